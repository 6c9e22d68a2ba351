#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Plain text is black, whichever tab is selected.
void GetCurrentDefaultTextColour(Editor& editor);
/// A tab was selected, by the user or by the program: pane, focus, status, tab images, download command and undo menus
/// follow.
void TabStrip1_Click(Editor& editor);
/// A pane got the keyboard (JoystickText_GotFocus, MacroText_GotFocus).
void Text_GotFocus(Editor& editor, Side& side);
/// Locks the macro pane against edits, or frees it again.
void mnuPreferencesProtectMacroFile_Click(Editor& editor);

} // namespace tarvex
