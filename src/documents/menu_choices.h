#pragma once

#include "documents/editor.h"

namespace tarvex {

// Commands that toggle their own tick and keep it in a setting.
void mnuJoyPopUpSingleFile_Click(Editor& editor);
void mnuMacrosSaveOptions_Click(Editor& editor, int index); ///< 1: update the list, 2: identify
void mnuInsertWithColour_Click(Editor& editor);

} // namespace tarvex
