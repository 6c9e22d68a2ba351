#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Reads the macro file from disk into MacroFileLines, and leaves them in "C:\macro.txt" as well. A missing file is
/// passed over.
void GetEachLineFromMacroFile(Editor& editor);

} // namespace tarvex
