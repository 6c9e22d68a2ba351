#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// The buttons Command1 of the macro frame, by their index from 0: they insert a slash modifier or a DLY statement.

/// Gives the buttons their captions and handlers.
void loadSlashButtons(Editor& editor);
void Command1_Click(Editor& editor, std::size_t index);
/// The pointer moved over a button: says in status panel 1 what it does.
void Command1_MouseMove(Editor& editor, std::size_t index);

} // namespace tarvex
