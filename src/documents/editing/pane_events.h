#pragma once

#include "documents/pair/editor.h"

#include <string_view>

namespace tarvex {

// What the user does in a pane with keys and mouse, beside writing and moving the caret. True: the key is swallowed.
// `keys` names a key as "Ctrl+S", "Esc" or "F1"; keys that are nobody's command may come without a name.
bool JoystickText_KeyDown(Editor& editor, std::string_view keys);
bool MacroText_KeyDown(Editor& editor, std::string_view keys);
void JoystickText_KeyUp(Editor& editor);
void MacroText_KeyUp(Editor& editor);
void JoystickText_Click(Editor& editor);
void MacroText_Click(Editor& editor);
/// `button` is a value of mouseButton. The right one pops up the pane's menu at the mouse; with `atCaret` it stands for
/// the key that does so.
void JoystickText_MouseDown(Editor& editor, int button, bool atCaret = false);
void MacroText_MouseDown(Editor& editor, int button, bool atCaret = false);

} // namespace tarvex
