#pragma once

#include "documents/pair/editor.h"

#include <string>

namespace tarvex {

/// A file in UTF-16 may hold characters that no text of the program has: before it is replaced, keepOutsideVersion puts
/// it aside. Throws RuntimeError when it can't be copied.
void keepWhatTextLacks(Editor& editor, const std::string& path);
/// Writes the pane's text as the document's file, after keepWhatTextLacks.
void writePlain(Editor& editor, const Side& side);
/// Writes it as a copy that only the user may access: the document itself may be private.
void writePlainCopy(Editor& editor, const Side& side, const std::string& path);

} // namespace tarvex
