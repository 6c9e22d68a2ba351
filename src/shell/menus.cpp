#include "shell/menus.h"

namespace tarvex {

namespace {

const MenuEntry divider{};

MenuEntry command(MenuItem& item, std::string keys = {}) { return {&item, std::move(keys), {}}; }

MenuEntry menu(MenuItem& item, std::vector<MenuEntry> entries) { return {&item, {}, std::move(entries)}; }

MenuEntry fileMenu(Menus& m)
{
    return menu(m.mnuFile, {
                               menu(m.mnuFileNew, {command(m.mnuFileNewJoystick, "Ctrl+N"), command(m.mnuFileNewMacro),
                                                   command(m.mnuFileNewBoth)}),
                               command(m.mnuFileJoystickLoad, "Ctrl+O"),
                               command(m.MnuFileMacroLoad),
                               command(m.mnuFileOpen, "F8"),
                               divider,
                               command(m.mnuFileSave, "Ctrl+S"),
                               command(m.mnuFileSaveAs),
                               command(m.mnuFileSaveBoth, "Ctrl+F8"),
                               divider,
                               command(m.mnuFileClose),
                               command(m.mnuFileCloseBoth),
                               divider,
                               command(m.mnuFilePrintJoystick, "Ctrl+P"),
                               command(m.mnuFilePrintMacro),
                               divider,
                               command(m.mnuFileExit),
                           });
}

MenuEntry editMenu(Menus& m)
{
    return menu(m.mnuEdit, {
                               command(m.mnuEditUndo, "Ctrl+Z"),
                               command(m.mnuEditRedo, "Ctrl+Y"),
                               divider,
                               command(m.mnuEditCut, "Ctrl+X"),
                               command(m.mnuEditCopy, "Ctrl+C"),
                               command(m.mnuEditPaste, "Ctrl+V"),
                               command(m.mnuEditDelete),
                               command(m.mnuEditSelectAll, "Ctrl+A"),
                               divider,
                               command(m.mnuEditFind, "Ctrl+F"),
                               command(m.mnuEditReplace, "Ctrl+R"),
                               command(m.mnuEditGoto, "Ctrl+G"),
                               divider,
                               command(m.mnuEditREMblock, "Ctrl+Shift+K"),
                               command(m.mnuEditREMunblock, "Ctrl+Shift+U"),
                               divider,
                               command(m.mnuEditUpdateMacros),
                           });
}

MenuEntry viewMenu(Menus& m)
{
    return menu(m.mnuView, {
                               command(m.mnuViewTileVertically),
                               command(m.mnuViewMacros),
                               divider,
                               command(m.mnuViewColourJoystick),
                               command(m.mnuViewColourMacro),
                               command(m.mnuViewApplyColourBothFiles, "Ctrl+T"),
                               menu(m.mnuRemoveColour,
                                    {command(m.mnuRemoveColourJoystick), command(m.mnuRemoveColourMacro),
                                     command(m.mnuRemoveColourSelectedText)}),
                               divider,
                               command(m.mnuViewReformat, "Ctrl+H"),
                               command(m.mnuViewrefreshIndent),
                               command(m.mnuViewAlignSlashes, "Ctrl+Shift+A"),
                               command(m.mnuViewHighlightLine, "Ctrl+L"),
                               divider,
                               command(m.mnuViewIdentify, "F7"),
                           });
}

MenuEntry preferencesMenu(Menus& m)
{
    return menu(m.mnuPreferences,
                {
                    command(m.mnuPreferencesEdit, "F9"),
                    divider,
                    command(m.mnuPreferencesProtectMacroFile),
                    command(m.mnuJoyPopUpSingleFile),
                    menu(m.mnuMacrosSaveOptions, {command(m.mnuMacrosSaveOptions1), command(m.mnuMacrosSaveOptions2)}),
                    command(m.mnuInsertWithColour),
                    divider,
                    menu(m.mnuAppearance,
                         {command(m.mnuAppearanceSystem), command(m.mnuAppearanceLight), command(m.mnuAppearanceDark)}),
                });
}

} // namespace

Menus::Menus()
{
    mnuEditUndo.Enabled = false;
    mnuEditRedo.Enabled = false;
    mnuViewMacros.Checked = false;
}

std::vector<MenuEntry> menuBar(Menus& menus)
{
    return {fileMenu(menus), editMenu(menus), viewMenu(menus), preferencesMenu(menus)};
}

std::vector<MenuEntry> popUpMenu(Menus& menus, const MenuItem& root)
{
    if (&root == &menus.mnuRHList)
        return {command(menus.mnuRHListInsert), command(menus.mnuFindInJF), divider, command(menus.mnuRHListIdentify)};
    if (&root != &menus.mnuRHMouse) return {};
    return {command(menus.mnuEditCut),
            command(menus.mnuEditCopy),
            command(menus.mnuEditPaste),
            command(menus.mnuEditDelete),
            divider,
            command(menus.mnuEditSelectAll),
            divider,
            command(menus.mnuRHMColour),
            command(menus.mnuRHMColoursRemove),
            command(menus.mnuRHMColoursSelection),
            command(menus.mnuRHMIdentify),
            divider,
            command(menus.mnuPreferencesProtectMacroFile)};
}

} // namespace tarvex
