#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The lines of a macro file that say something: leading blanks (not tabs) gone; without empty ones, bare "rem", "~"
/// and "//", and "~" comments that hold "=". Bytes.
std::vector<std::string> keptMacroLines(std::string_view file);

/// Reads the macro file from disk into MacroFileLines, and leaves them in "C:\macro.txt" as well. A missing file is
/// passed over.
void GetEachLineFromMacroFile(Editor& editor);

} // namespace tarvex
