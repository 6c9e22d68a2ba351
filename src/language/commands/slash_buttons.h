#pragma once

#include "documents/pair/editor.h"

#include <string>
#include <string_view>

namespace tarvex {

// The buttons Command1 of the macro frame, by their index from 0: they insert a slash modifier or a DLY statement.

/// Gives the buttons their captions and handlers.
void loadSlashButtons(Editor& editor);
void Command1_Click(Editor& editor, std::size_t index);
/// The pointer moved over a button: says in status panel 1 what it does.
void Command1_MouseMove(Editor& editor, std::size_t index);

/// Puts a modifier such as "/P" and a blank into the pane of the selected tab, as one edit. Bytes, as below.
void InsertSlashModifier(Editor& editor, const std::string& modifier);
/// Puts a timed item there: the word with its bracket ("DLY("), the value, ")" and a blank.
void InsertTimedItem(Editor& editor, std::string_view word, std::string_view value);

} // namespace tarvex
