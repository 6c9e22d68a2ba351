#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

// User input in a pane with keys and mouse, except writing and moving the caret. One procedure serves both
// panes: Text_KeyDown is JoystickText_KeyDown and MacroText_KeyDown, and so are the others.

/// `keys` names a key as "Ctrl+S", "Esc" or "F1"; keys without a command may come without a name. True: the key is
/// swallowed.
bool Text_KeyDown(Editor& editor, Side& side, std::string_view keys);
void Text_KeyUp(Editor& editor, Side& side);
void Text_Click(Editor& editor, Side& side);
/// `button` is a value of mouseButton. The right one pops up the pane's menu at the mouse; with `atCaret` it stands for
/// the key that does so.
void Text_MouseDown(Editor& editor, Side& side, int button, bool atCaret = false);

} // namespace tarvex
