#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

/// Writes the pane's text as the document's file. A file in UTF-16 with characters that the text lacks is put aside
/// first, as keepOutsideVersion does.
void writePlain(Editor& editor, const Side& side);
/// Writes it as a copy that only the user may access: the document itself may be private.
void writePlainCopy(Editor& editor, const Side& side, const std::string& path);

} // namespace tarvex
