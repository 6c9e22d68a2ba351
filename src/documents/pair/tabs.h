#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// Shows the changed state of the selected document on the saved-state panel: image value + 2, and its tooltip.
void UpdateSavedIcon(Editor& editor);
/// Plain text is black, whichever tab is selected.
void GetCurrentDefaultTextColour(Editor& editor);
/// The download command names the joystick file; one of another controller family can't be downloaded to this one.
void updateDownload(Editor& editor);
/// A tab was selected, by the user or by the program: pane, focus, status, tab images, download command and undo menus
/// follow.
void TabStrip1_Click(Editor& editor);
/// A pane got the keyboard.
void JoystickText_GotFocus(Editor& editor);
void MacroText_GotFocus(Editor& editor);
/// The caret of a pane was moved by the user: remembers it and shows its line.
void noteCaret(Editor& editor, Side& side);
/// Locks the macro pane against edits, or frees it again.
void mnuPreferencesProtectMacroFile_Click(Editor& editor);
/// What the selected document is, in the status; a compile result and a macro's definition (it holds "=") stay up.
void showEditingText(Editor& editor);
/// Status panel 3: the line of a position, from 1.
void showLineNumber(Editor& editor, const Side& side, std::int64_t position);

} // namespace tarvex
