#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

/// Writes the pane's text as the document's file.
void writePlain(Editor& editor, const Side& side, const std::string& path);
/// Writes it as a copy that only the user may access: the document itself may be private.
void writePlainCopy(Editor& editor, const Side& side, const std::string& path);

} // namespace tarvex
