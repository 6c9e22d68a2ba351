#pragma once

#include "documents/pair/editor.h"
#include "platform/input.h"

#include <string>

namespace tarvex {

// What the user does in the frame with the macro list. The views call these; `list` is the index in List1, and a list's
// ListIndex is already at the item that was clicked or moved to.

/// A heading was chosen in Combo1: its list comes to the front with its first macro picked.
void Combo1_Click(Editor& editor);
void Combo1_GotFocus(Editor& editor);
void Combo1_MouseMove(Editor& editor);

/// Inserts the macro's name at the caret of the joystick pane.
void List1_DblClick(Editor& editor, std::size_t list);
/// `shift` is a sum of shiftKey values. Shows the macro's keys; with Shift alone also where it is used.
void List1_KeyDown(Editor& editor, std::size_t list, int shift);
void List1_KeyUp(Editor& editor, std::size_t list, int shift);
/// `button` is one of mouseButton. The same as a key; the right button pops up mnuRHList.
void List1_MouseDown(Editor& editor, std::size_t list, int button, int shift);
/// `buttons` is a sum of mouseButton values; `x` is in twips from the frame's left edge.
void List1_MouseMove(Editor& editor, std::size_t list, int buttons, int shift, float x);
/// The text that a drag out of a list carries, UTF-8: the macro between blanks; empty when there is none.
std::string List1_OLEStartDrag(Editor& editor, std::size_t list);

/// Inserts the macro that the pop-up menu was opened for.
void mnuRHListInsert_Click(Editor& editor);

} // namespace tarvex
