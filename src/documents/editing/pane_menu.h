#pragma once

#include "documents/pair/editor.h"

namespace tarvex {

// The menus that pop up over a pane.

/// mnuRHMouse for what the pane has selected and the clipboard holds, at the mouse or at the caret.
void popUpPaneMenu(Editor& editor, const Side& side, bool atCaret);
/// mnuInsert at the caret, without the tip about this way to it.
void popUpInsertMenu(Editor& editor, const Steps& step);

/// Gives the items of mnuRHMouse that stand for commands of other menus their handlers.
void wirePaneMenu(Editor& editor);

} // namespace tarvex
