#include "documents/editing/pane_keys.h"

#include "documents/editing/line_highlight.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr PaneKey both(std::string_view keys, MenuItem Menus::*item) { return {keys, item, item}; }

constexpr PaneKey keys[] = {
    both("Ctrl+Z", &Menus::mnuEditUndo),
    both("Ctrl+X", &Menus::mnuEditCut),
    both("Ctrl+C", &Menus::mnuEditCopy),
    both("Ctrl+V", &Menus::mnuEditPaste),
    both("Ctrl+A", &Menus::mnuEditSelectAll),
    both("Ctrl+F", &Menus::mnuEditFind),
    both("Ctrl+G", &Menus::mnuEditGoto),
    both("Ctrl+R", &Menus::mnuEditReplace),
    {"Ctrl+N", &Menus::mnuFileNewJoystick, &Menus::mnuFileNewMacro},
    {"Ctrl+O", &Menus::mnuFileJoystickLoad, &Menus::MnuFileMacroLoad},
    both("Ctrl+S", &Menus::mnuFileSave),
    {"Ctrl+P", &Menus::mnuFilePrintJoystick, &Menus::mnuFilePrintMacro},
    both("Ctrl+Y", &Menus::mnuEditRedo),
    both("Ctrl+H", &Menus::mnuViewReformat),
    both("Ctrl+K", &Menus::mnuSendToKeyTest),
    both("Ctrl+L", &Menus::mnuViewHighlightLine),
    both("Ctrl+T", &Menus::mnuViewApplyColourBothFiles),
    both("Ctrl+F8", &Menus::mnuFileSaveBoth),
};

} // namespace

std::span<const PaneKey> paneKeys() { return keys; }

bool pressPaneKey(Editor& editor, std::string_view pressed)
{
    const auto* const row = std::ranges::find(keys, pressed, &PaneKey::keys);
    if (row == std::end(keys)) return false;
    Side& side = editor.selected();
    recordCaret(editor, side);
    MenuItem& item = editor.menus.*(side.tab == editor.joystick.tab ? row->joystick : row->macro);
    if (!item.Enabled || !item.handler) return false;
    item.Click();
    return true;
}

void selectOtherTab(Editor& editor) { editor.TabStrip1.Select(editor.other(editor.selected()).tab); }

} // namespace tarvex
