#include "shell/menus.h"

namespace tarvex {

namespace {

const MenuEntry divider{};

MenuEntry command(MenuItem& item, std::string keys = {}, char accessKey = '\0')
{
    return {&item, std::move(keys), {}, nullptr, accessKey};
}

MenuEntry list(MenuArray& array) { return {nullptr, {}, {}, &array}; }

MenuEntry menu(MenuItem& item, std::vector<MenuEntry> entries) { return {&item, {}, std::move(entries), nullptr}; }

MenuEntry fileMenu(Menus& m)
{
    return menu(
        m.mnuFile,
        {
            menu(m.mnuFileNew,
                 {command(m.mnuFileNewJoystick, "Ctrl+N"), command(m.mnuFileNewMacro), command(m.mnuFileNewBoth)}),
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
            command(m.mnuFilePrintPreview),
            command(m.mnuFilePrintPdf),
            command(m.mnuFilePrintControls),
            command(m.mnuFilePrinterSetup),
            divider,
            menu(m.mnuFilePrevious, {list(m.mnuJFArray), command(m.mnuPUDivider1), command(m.mnuPreviousClearAllJ)}),
            menu(m.mnuFilePrevMacro, {list(m.mnuMFArray), command(m.mnuPUDivider2), command(m.mnuPreviousClearAllM)}),
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
                               command(m.mnuEditPastePlain, "Ctrl+Shift+V"),
                               command(m.mnuEditDelete),
                               command(m.mnuEditSelectAll, "Ctrl+A"),
                               divider,
                               command(m.mnuEditFind, "Ctrl+F"),
                               command(m.mnuEditFindBar, "Ctrl+Shift+F"),
                               command(m.mnuEditReplace, "Ctrl+R"),
                               command(m.mnuEditGoto, "Ctrl+G"),
                               divider,
                               command(m.mnuEditREMblock, "Ctrl+Shift+K"),
                               command(m.mnuEditREMunblock, "Ctrl+Shift+U"),
                               divider,
                               command(m.mnuEditUpdateMacros, "Ctrl+U"),
                               command(m.mnuEditTmCFG),
                           });
}

MenuEntry viewMenu(Menus& m)
{
    return menu(m.mnuView,
                {
                    command(m.mnuViewTileVertically),
                    command(m.mnuViewMacros),
                    divider,
                    command(m.mnuViewColourJoystick),
                    command(m.mnuViewColourMacro),
                    command(m.mnuViewApplyColourBothFiles, "Ctrl+T"),
                    menu(m.mnuRemoveColour, {command(m.mnuRemoveColourJoystick), command(m.mnuRemoveColourMacro),
                                             command(m.mnuRemoveColourSelectedText)}),
                    command(m.mnuViewEditColours),
                    command(m.mnuViewTextColour, "Ctrl+Shift+C"),
                    divider,
                    command(m.mnuViewReformat, "Ctrl+H"),
                    command(m.mnuViewrefreshIndent),
                    command(m.mnuViewAlignSlashes, "Ctrl+Shift+A"),
                    command(m.mnuViewHighlightLine, "Ctrl+L"),
                    divider,
                    command(m.mnuViewIdentify, "F7"),
                    command(m.mnuViewFilterMacros, "Ctrl+Alt+F"),
                    divider,
                    command(m.mnuViewZoomIn, "Ctrl++"),
                    command(m.mnuViewZoomOut, "Ctrl+-"),
                    command(m.mnuViewZoomNormal, "Ctrl+0"),
                });
}

std::vector<MenuEntry> insertEntries(Menus& m)
{
    return {
        command(m.mnuShowInsertWindow, "F2"),
        command(m.mnuComposerPlugin, "F3"),
        command(m.mnuInsertRAW, "F4"),
        divider,
        command(m.mnuInsertTitle),
        command(m.mnuInsertHeading, "F5"),
        command(m.mnuInsertRemStatement, "F6"),
        divider,
        menu(m.mnuSlashModifier, {list(m.mnuSlashModifierArray)}),
        divider,
        command(m.mnuInsertWithColour),
        command(m.mnuInsertDivider8),
        command(m.mnuInsertQuickTip),
    };
}

MenuEntry wizardsMenu(Menus& m)
{
    return menu(m.mnuWizards, {
                                  command(m.mnuhelpWizCreateJoyFile),
                                  command(m.mnuhelpWizCreateMacroFile),
                                  command(m.mnuWizSpeedy),
                                  divider,
                                  command(m.mnuWixUnderstandSlash),
                              });
}

MenuEntry appsMenu(Menus& m)
{
    return menu(m.mnuApps, {
                               command(m.mnuSendToJoystick, "F12"),
                               command(m.mnuAppsQuiet),
                               command(m.mnuUseWakeWarning),
                               divider,
                               command(m.mnuAppsImageViewer),
                               command(m.mnuSendToKeyTest, "Ctrl+K"),
                               command(m.mnuAppsTemplate, "Shift+F11"),
                               command(m.mnuAppsJoyAnalyser, "F11"),
                               divider,
                               command(m.mnuLauncher),
                               command(m.mnuAppsCandCC),
                               command(m.mnuAppsTMScope),
                               command(m.mnuAppsProPanel, {}, 'i'),
                               command(m.mnuAppsCTFJ, {}, 'F'),
                               command(m.mnuAppDivider1),
                               command(m.mnuF22Setup),
                               command(m.mnuF22Clear),
                               command(m.mnuF22Reset),
                               command(m.mnuF22Delay),
                               command(m.mnuAppDivider2),
                               list(m.mnuCustomApp),
                               divider,
                               command(m.mnuAppsEdit),
                           });
}

MenuEntry gamesMenu(Menus& m)
{
    return menu(m.mnuGames, {
                                list(m.mnuGameArray),
                                divider,
                                command(m.mnuGamesDownloadFirst),
                                command(m.mnuGamesAdd),
                                command(m.mnuGamesEdit),
                            });
}

MenuEntry favouritesMenu(Menus& m)
{
    return menu(m.mnuFavourites, {
                                     list(m.mnuFavArray),
                                     divider,
                                     command(m.mnuFavouritesAddCurrent),
                                     command(m.mnuFavsEdit),
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
                    divider,
                    menu(m.mnuAppearance, {command(m.mnuAppearanceSystem), command(m.mnuAppearanceLight),
                                           command(m.mnuAppearanceDark), command(m.mnuAppearanceContrast)}),
                });
}

MenuEntry helpMenu(Menus& m)
{
    return menu(m.mnuHelp, {
                               command(m.mnuHelpContents, "F1"),
                               menu(m.mnuHowDoI, {list(m.mnuHowDoIArray)}),
                               menu(m.mnuThrustmasterHelp, {list(m.mnuTMhelp)}),
                               command(m.mnuHelpTips),
                               divider,
                               menu(m.mnuHelpOnTheNet, {list(m.mnuWebTarvex)}),
                               divider,
                               command(m.mnuHelpAbout),
                           });
}

std::vector<MenuEntry> paneEntries(Menus& m)
{
    return {
        command(m.mnuRHMCut),
        command(m.mnuRHMCopy),
        command(m.mnuRHMPaste),
        command(m.mnuRHMDelete),
        divider,
        menu(m.mnuSlashModifier, {list(m.mnuSlashModifierArray)}),
        divider,
        command(m.mnuRHMColour),
        command(m.mnuRHMColoursRemove),
        command(m.mnuRHMColoursSelection),
        command(m.mnuRHMIdentify),
        divider,
        command(m.mnuRHMDownload),
        command(m.mnuRHMProtect),
    };
}

} // namespace

std::vector<MenuEntry> menuBar(Menus& menus)
{
    return {fileMenu(menus),        editMenu(menus), viewMenu(menus),  menu(menus.mnuInsert, insertEntries(menus)),
            wizardsMenu(menus),     appsMenu(menus), gamesMenu(menus), favouritesMenu(menus),
            preferencesMenu(menus), helpMenu(menus)};
}

std::vector<MenuEntry> mumMenuBar(Menus& menus)
{
    return {menu(menus.mnuFile, {command(menus.mnuMumFileExit)}),
            menu(menus.mnuHelp, {command(menus.mnuHelpContents)})};
}

std::vector<MenuEntry> popUpMenu(Menus& menus, const MenuItem& root)
{
    if (&root == &menus.mnuRHMouse) return paneEntries(menus);
    if (&root == &menus.mnuInsert) return insertEntries(menus);
    if (&root == &menus.mnuRHList)
        return {command(menus.mnuRHListInsert), command(menus.mnuFindInJF), divider, command(menus.mnuRHListIdentify)};
    return {};
}

} // namespace tarvex
