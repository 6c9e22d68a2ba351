#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

// Text that the program puts into the pane of the selected tab, with a colour of its own, so that the file needn't be
// highlighted again. A caller's sequence: BeginColInsert; perhaps CheckAtLineBeginning; any number of insertions;
// EndColInsert. The whole of it is one edit and one undo step. Texts are bytes, as the pane holds them. Each of these
// operations refuses to write into a protected pane, and the status says so.

/// Opens an insertion: the newest undo level takes the state before it.
void BeginColInsert(Editor& editor);
/// Closes it: the document is modified.
void EndColInsert(Editor& editor);

/// Replaces the selection by the text; what is typed next is plain. The colour counts in the joystick pane only.
void InsertColouredString(Editor& editor, std::string_view text, Colour colour);
/// The same with its colour in either pane.
void InsertColouredStringNoSpace(Editor& editor, std::string_view text, Colour colour);
/// Five blanks.
void InsertBlackBlanks(Editor& editor);
void InsertCarriageReturn(Editor& editor);
/// InsertText in DefaultTextColour, apart from the word before it.
void InsertBlackText(Editor& editor);
/// Puts a blank in front of InsertText where it would touch the word before the caret.
void AddSpaceToColouredText(Editor& editor);
/// Opens a new line behind the caret's, unless the caret stands at the end of its line.
void CheckAtLineBeginning(Editor& editor);

} // namespace tarvex
