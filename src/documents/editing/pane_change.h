#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The user's edit of a pane: its document is modified, and its undo levels take the new state.
void textChanged(Editor& editor, Side& side);
void JoystickTextChanged(Editor& editor);
void MacroTextChanged(Editor& editor);

/// The panes' Change: counts as the user's edit unless IsLoading is 1.
void JoystickText_Change(Editor& editor);
void MacroText_Change(Editor& editor);

/// Gives a pane the font and background of the colour scheme.
void applyScheme(Editor& editor, Side& side);
/// Gives what is written next into a pane the font of the colour scheme, colour 0 and the fixed indent.
void applyBaseFormat(Editor& editor, Pane& pane);

} // namespace tarvex
