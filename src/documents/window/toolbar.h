#pragma once

#include "documents/pair/editor.h"
#include "shell/toolbar_buttons.h"

namespace tarvex {

/// The command of a button just now; none for a separator, for Picture1's and for a number outside the bar.
MenuItem* toolbarCommand(Editor& editor, int button);
/// The button can be pressed: it is enabled, and so is its command.
bool toolbarOffers(Editor& editor, int button);

/// A number outside the bar does nothing.
void Toolbar1_ButtonClick(Editor& editor, int button);
/// The mouse is over the bar, at a point in pixels of the bar: shows on status panel 1 what the button there is for.
void Toolbar1_MouseMove(Editor& editor, int button, int shift, float x, float y);
/// The mouse is over the status bar, `x` twips from its left edge.
void StatusBar_MouseMove(Editor& editor, float x);

void Picture1_MouseMove(Editor& editor);
/// Opens the choice of colours below the picture, for the pane.
void Picture1_Click(Editor& editor);

} // namespace tarvex
