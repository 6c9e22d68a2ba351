#pragma once

#include "documents/pair/editor.h"

#include <span>

namespace tarvex {

/// A key that tool windows pass on to the program.
struct ToolKey {
    int keyCode;
    MenuItem Menus::*command;
};
/// Keys without Ctrl, or with Ctrl and others.
std::span<const ToolKey> plainToolKeys();
/// Keys with Ctrl alone.
std::span<const ToolKey> ctrlToolKeys();

/// KeyDown of a tool window: runs the program's command of this key. A function key runs its command whatever is held
/// with it and F4 minimises the window; a key with Ctrl alone runs its command while that is enabled. True: the key was
/// a Ctrl key's and goes no further.
bool forwardKey(Editor& editor, Form& form, int key, int shift);

/// The document window comes to the front, its pane with the keyboard.
void focusEditor(Editor& editor);

} // namespace tarvex
