#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The whole text of a pane becomes black; the caret stays, and nothing counts as an edit.
void mnuRemoveColourJoystick_Click(Editor& editor);
void mnuRemoveColourMacro_Click(Editor& editor);
/// The selection of the selected tab's pane becomes black; its document isn't changed by that.
void mnuRemoveColourSelectedText_Click(Editor& editor);
/// From the pop-up menu: the whole text of the pane that the menu belongs to.
void mnuRHMColoursRemove_Click(Editor& editor);

} // namespace tarvex
