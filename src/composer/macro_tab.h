#pragma once

#include "composer/insert_options.h"

#include <string>

namespace tarvex {

// The macro tab: a copy of the document window's macro lists, whose names go into the joystick file. `list` is the
// index in List1; its ListIndex is already at the entry that was clicked or moved to.

void wireMacroTab(InsertOptions& window);
/// Copies headings and lists, with the ticks if the user wants them; the heading "All" is then on show.
void CopyMacroList(InsertOptions& window);
/// Empties the Composer's headings and lists.
void ClearAllForNewMacroFile(InsertOptions& window);

void Combo1_Click(InsertOptions& window);
/// Puts the macro's name into the joystick file, at the caret or in the selection's place.
void List1_DblClick(InsertOptions& window, std::size_t list);
/// `button` is one of mouseButton: shows where the macro is used, and its keys; the right one pops up mnuRHList.
void List1_MouseDown(InsertOptions& window, std::size_t list, int button);
/// The mouse moves with buttons held, a sum of mouseButton values.
void List1_MouseMove(InsertOptions& window, std::size_t list, int buttons);
/// The text that a drag out of a list carries, UTF-8: the macro between blanks; empty when there is none.
std::string List1_OLEStartDrag(InsertOptions& window, std::size_t list);

void mnuRHListInsert_Click(InsertOptions& window);
void mnuFindInJoyFile_Click(InsertOptions& window);
void mnuRHListEdit_Click(InsertOptions& window);
/// Puts the caret behind the first place of the chosen macro's name in the joystick file; without one nothing moves.
void FindMacriInJfile(InsertOptions& window);

} // namespace tarvex
