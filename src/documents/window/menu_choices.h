#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Turns a check mark over and keeps it in its setting.
void toggle(MenuItem& item, std::int16_t& setting);

// Commands that toggle their own tick and keep it in a setting.
void mnuJoyPopUpSingleFile_Click(Editor& editor);
void mnuMacrosSaveOptions_Click(Editor& editor, int index); ///< 1: update the list, 2: identify
void mnuInsertWithColour_Click(Editor& editor);

} // namespace tarvex
