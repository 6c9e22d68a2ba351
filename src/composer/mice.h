#pragma once

#include "composer/insert_options.h"

namespace tarvex {

// The mouse types of USE MTYPE: three lists, of which the one of the chosen kind of mouse is on show.

void wireMice(InsertOptions& window);
/// Fills the lists and chooses the first row of each, and the first kind of mouse.
void FillMiceListBoxes(InsertOptions& window);
/// A row of a list was chosen: the labels say what works as which mouse button.
void MouseList_Click(InsertOptions& window, int Index);
void Option1_Click(InsertOptions& window, int Index);
void Command9_Click(InsertOptions& window);

} // namespace tarvex
