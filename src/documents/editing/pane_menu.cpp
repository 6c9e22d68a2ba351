#include "documents/editing/pane_menu.h"

namespace tarvex {

namespace {

/// An item of the pop-up menu and the command that it stands for.
struct StandIn {
    MenuItem Menus::*item;
    MenuItem Menus::*command;
};

constexpr StandIn standIns[] = {
    {&Menus::mnuRHMCut, &Menus::mnuEditCut},
    {&Menus::mnuRHMCopy, &Menus::mnuEditCopy},
    {&Menus::mnuRHMPaste, &Menus::mnuEditPaste},
    {&Menus::mnuRHMDelete, &Menus::mnuEditDelete},
    {&Menus::mnuRHMDownload, &Menus::mnuSendToJoystick},
    {&Menus::mnuRHMProtect, &Menus::mnuPreferencesProtectMacroFile},
};

void updateItems(Editor& editor, const Side& side)
{
    Menus& menus = editor.menus;
    const bool selection = side.pane.SelLength() > 0;
    for (MenuItem* item : {&menus.mnuRHMCut, &menus.mnuRHMCopy, &menus.mnuRHMColoursSelection, &menus.mnuRHMDelete})
        item->Enabled = selection;
    menus.mnuRHMPaste.Enabled = editor.platform.clipboard.holdsText();
    menus.mnuRHMProtect.Checked = menus.mnuPreferencesProtectMacroFile.Checked.get();
    menus.mnuRHMProtect.Enabled = menus.mnuPreferencesProtectMacroFile.Enabled.get();
    const MenuItem& download = menus.mnuSendToJoystick;
    menus.mnuRHMDownload.Enabled = download.Enabled && download.handler != nullptr;
}

} // namespace

void popUpPaneMenu(Editor& editor, const Side& side, bool atCaret)
{
    updateItems(editor, side);
    if (atCaret) {
        editor.platform.dialogues.popUpAtCaret(editor.menus.mnuRHMouse);
    } else {
        editor.platform.dialogues.popUp(editor.menus.mnuRHMouse);
    }
}

void popUpInsertMenu(Editor& editor, const Steps& step)
{
    Menus& menus = editor.menus;
    menus.mnuInsertDivider8.Visible = false;
    menus.mnuInsertQuickTip.Visible = false;
    step([&] { editor.platform.dialogues.popUpAtCaret(menus.mnuInsert); });
    menus.mnuInsertDivider8.Visible = true;
    menus.mnuInsertQuickTip.Visible = true;
}

void wirePaneMenu(Editor& editor)
{
    for (const StandIn& row : standIns)
        (editor.menus.*row.item).handler = [&command = editor.menus.*row.command] { command.Click(); };
}

} // namespace tarvex
