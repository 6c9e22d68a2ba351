#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

/// The user's edit of a pane (JoystickTextChanged, MacroTextChanged): its document is modified, and its undo levels
/// take the new state.
void textChanged(Editor& editor, Side& side);

/// The panes' Change (JoystickText_Change, MacroText_Change): counts as the user's edit unless IsLoading is 1.
void Text_Change(Editor& editor, Side& side);

/// Gives a pane the font and background of the colour scheme.
void applyScheme(Editor& editor, Side& side);
/// Gives what is written next into a pane the font of the colour scheme, colour 0 and the fixed indent.
void applyBaseFormat(Editor& editor, Pane& pane);

} // namespace tarvex
