#pragma once

#include "platform/controls.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The commands of the program. The owner of a command sets its handler and may call any other by `Click`, so that no
/// unit needs to know the unit that does the work.
struct Menus {
    Menus();
    Menus(const Menus&) = delete;
    Menus& operator=(const Menus&) = delete;

    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuFileNew{"mnuFileNew", "&New"};
    MenuItem mnuFileNewJoystick{"mnuFileNewJoystick", "New &joystick file"};
    MenuItem mnuFileNewMacro{"mnuFileNewMacro", "New &macro file"};
    MenuItem mnuFileNewBoth{"mnuFileNewBoth", "New &both files"};
    MenuItem mnuFileOpen{"mnuFileOpen", "Open &both files..."};
    MenuItem mnuFileJoystickLoad{"mnuFileJoystickLoad", "&Open joystick file..."};
    MenuItem MnuFileMacroLoad{"MnuFileMacroLoad", "Open &macro file..."};
    MenuItem mnuFileSave{"mnuFileSave", "&Save"};
    MenuItem mnuFileSaveAs{"mnuFileSaveAs", "Save &as..."};
    MenuItem mnuFileSaveBoth{"mnuFileSaveBoth", "Sa&ve both files"};
    MenuItem mnuFileClose{"mnuFileClose", "&Close"};
    MenuItem mnuFileCloseBoth{"mnuFileCloseBoth", "C&lose both files"};
    MenuItem mnuFilePrintJoystick{"mnuFilePrintJoystick", "&Print joystick file"};
    MenuItem mnuFilePrintMacro{"mnuFilePrintMacro", "Print macro &file"};
    MenuItem mnuFilePrintPreview{"mnuFilePrintPreview", "Print previe&w..."};
    MenuItem mnuFilePrintPdf{"mnuFilePrintPdf", "Save as P&DF..."};
    MenuItem mnuFilePrintControls{"mnuFilePrintControls", "Print t&he controls..."};
    MenuItem mnuFilePrinterSetup{"mnuFilePrinterSetup", "Prin&ter setup..."};
    MenuItem mnuFilePrevious{"mnuFilePrevious", "P&revious joystick files"};
    MenuArray mnuJFArray{"mnuJFArray", {"(no files yet)"}};
    MenuItem mnuPUDivider1{"mnuPUDivider1", "-"};
    MenuItem mnuPreviousClearAllJ{"mnuPreviousClearAllJ", "Clear all &joystick files"};
    MenuItem mnuFilePrevMacro{"mnuFilePrevMacro", "Previous macro f&iles"};
    MenuArray mnuMFArray{"mnuMFArray", {"(no files yet)"}};
    MenuItem mnuPUDivider2{"mnuPUDivider2", "-"};
    MenuItem mnuPreviousClearAllM{"mnuPreviousClearAllM", "Clear all &macro files"};
    MenuItem mnuFileExit{"mnuFileExit", "E&xit"};
    MenuItem mnuMumFileExit{"mnuMumFileExit", "E&xit"}; ///< the frame's own, while no document window is open

    MenuItem mnuEdit{"mnuEdit", "&Edit"};
    MenuItem mnuEditUndo{"mnuEditUndo", "&Undo"};
    MenuItem mnuEditRedo{"mnuEditRedo", "&Redo"};
    MenuItem mnuEditCut{"mnuEditCut", "Cu&t"};
    MenuItem mnuEditCopy{"mnuEditCopy", "&Copy"};
    MenuItem mnuEditPaste{"mnuEditPaste", "&Paste"};
    MenuItem mnuEditDelete{"mnuEditDelete", "&Delete"};
    MenuItem mnuEditSelectAll{"mnuEditSelectAll", "Select &all"};
    MenuItem mnuEditFind{"mnuEditFind", "&Find..."};
    MenuItem mnuEditReplace{"mnuEditReplace", "R&eplace..."};
    MenuItem mnuEditPastePlain{"mnuEditPastePlain", "Paste as p&lain text"};
    MenuItem mnuEditGoto{"mnuEditGoto", "&Goto line..."};
    MenuItem mnuEditFindBar{"mnuEditFindBar", "Find a&s I type"};
    MenuItem mnuEditREMblock{"mnuEditREMblock", "Comment &out block"};
    MenuItem mnuEditREMunblock{"mnuEditREMunblock", "Restore &block"};
    MenuItem mnuEditUpdateMacros{"mnuEditUpdateMacros", "Update &macros"};
    MenuItem mnuEditTmCFG{"mnuEditTmCFG", "Ed&it tm.cfg"};

    MenuItem mnuView{"mnuView", "&View"};
    MenuItem mnuViewTileVertically{"mnuViewTileVertically", "&Tile vertically"};
    MenuItem mnuViewMacros{"mnuViewMacros", "&Macros"};
    MenuItem mnuViewColourJoystick{"mnuViewColourJoystick", "Colour &joystick file"};
    MenuItem mnuViewColourMacro{"mnuViewColourMacro", "Colour ma&cro file"};
    MenuItem mnuViewApplyColourBothFiles{"mnuViewApplyColourBothFiles", "Colour &both files"};
    MenuItem mnuRemoveColour{"mnuRemoveColour", "Remo&ve colour"};
    MenuItem mnuRemoveColourJoystick{"mnuRemoveColourJoystick", "From the &joystick file"};
    MenuItem mnuRemoveColourMacro{"mnuRemoveColourMacro", "From the &macro file"};
    MenuItem mnuRemoveColourSelectedText{"mnuRemoveColourSelectedText", "From the &selected text"};
    MenuItem mnuViewEditColours{"mnuViewEditColours", "&Edit colours..."};
    MenuItem mnuViewTextColour{"mnuViewTextColour", "Te&xt colour..."};
    MenuItem mnuViewReformat{"mnuViewReformat", "&Reformat"};
    MenuItem mnuViewrefreshIndent{"mnuViewrefreshIndent", "Refresh &indent"};
    MenuItem mnuViewAlignSlashes{"mnuViewAlignSlashes", "&Align slashes"};
    MenuItem mnuViewHighlightLine{"mnuViewHighlightLine", "&Highlight line"};
    MenuItem mnuViewIdentify{"mnuViewIdentify", "I&dentify macros used"};
    MenuItem mnuViewFilterMacros{"mnuViewFilterMacros", "Filter the macro &list"};
    MenuItem mnuViewZoomIn{"mnuViewZoomIn", "Lar&ger text"};
    MenuItem mnuViewZoomOut{"mnuViewZoomOut", "&Smaller text"};
    MenuItem mnuViewZoomNormal{"mnuViewZoomNormal", "&Normal text size"};

    MenuItem mnuInsert{"mnuInsert", "&Insert"};
    MenuItem mnuShowInsertWindow{"mnuShowInsertWindow", "&Composer"};
    MenuItem mnuComposerPlugin{"mnuComposerPlugin", "Te&mplate..."};
    MenuItem mnuInsertRAW{"mnuInsertRAW", "&Safein"};
    MenuItem mnuInsertTitle{"mnuInsertTitle", "&Title..."};
    MenuItem mnuInsertHeading{"mnuInsertHeading", "&Heading..."};
    MenuItem mnuInsertRemStatement{"mnuInsertRemStatement", "&Rem statement..."};
    MenuItem mnuSlashModifier{"mnuSlashModifier", "S&lash modifier"};
    MenuArray mnuSlashModifierArray{
        "mnuSlashModifierArray",
        {"/U  dogfight switch is up", "/M  dogfight switch middle position", "/D  dogfight switch is down",
         "/I  S3 is held in", "/O S3 is out", "/A  force analogue", "/P  press event", "/R  release event",
         "/H  hold down", "/N  no repeat", "/T  toggle modifier", "/Q  ignore initial repeat delay modifier"}};
    MenuItem mnuInsertWithColour{"mnuInsertWithColour", "&Insert with colour"};
    MenuItem mnuInsertDivider8{"mnuInsertDivider8", "-"};
    MenuItem mnuInsertQuickTip{"mnuInsertQuickTip", "Tip: Esc in a file brings up this menu"};

    MenuItem mnuWizards{"mnuWizards", "&Wizards"};
    MenuItem mnuhelpWizCreateJoyFile{"mnuhelpWizCreateJoyFile", "Create a &joystick file"};
    MenuItem mnuhelpWizCreateMacroFile{"mnuhelpWizCreateMacroFile", "Create a &macro file"};
    MenuItem mnuWizSpeedy{"mnuWizSpeedy", "&Speedy - for fast macro files"};
    MenuItem mnuWixUnderstandSlash{"mnuWixUnderstandSlash", "&Understanding slash modifiers"};

    MenuItem mnuApps{"mnuApps", "&Apps"};
    MenuItem mnuSendToJoystick{"mnuSendToJoystick", "&Download joystick file to joystick"};
    MenuItem mnuAppsQuiet{"mnuAppsQuiet", "&Quiet mode transfer"};
    MenuItem mnuUseWakeWarning{"mnuUseWakeWarning", "&Use \"Wake up joystick\" warning"};
    MenuItem mnuAppsImageViewer{"mnuAppsImageViewer", "Image &Viewer"};
    MenuItem mnuSendToKeyTest{"mnuSendToKeyTest", "&KeyTest"};
    MenuItem mnuAppsTemplate{"mnuAppsTemplate", "&Template Editor"};
    MenuItem mnuAppsJoyAnalyser{"mnuAppsJoyAnalyser", "Joystick analy&ser"};
    MenuItem mnuLauncher{"mnuLauncher", "&Launcher"};
    MenuItem mnuAppsCandCC{"mnuAppsCandCC", "Thrustmaster &Control Centre"};
    MenuItem mnuAppsTMScope{"mnuAppsTMScope", "TMSco&pe"};
    MenuItem mnuAppsProPanel{"mnuAppsProPanel", "Calibrate controllers"};
    MenuItem mnuAppsCTFJ{"mnuAppsCTFJ", "CTFJ"};
    MenuItem mnuAppDivider1{"mnuAppDivider1", "-"};
    MenuItem mnuF22Setup{"mnuF22Setup", "Cali&brate F22"};
    MenuItem mnuF22Clear{"mnuF22Clear", "Cle&ar F22"};
    MenuItem mnuF22Reset{"mnuF22Reset", "&Reset F22"};
    MenuItem mnuF22Delay{"mnuF22Delay", "F22 dela&y"};
    MenuItem mnuAppDivider2{"mnuAppDivider2", "-"};
    MenuArray mnuCustomApp{"mnuCustomApp", {"CustomApp", "CustomApp", "CustomApp", "CustomApp"}};
    MenuItem mnuAppsEdit{"mnuAppsEdit", "&Edit custom apps"};

    MenuItem mnuGames{"mnuGames", "&Games"};
    MenuArray mnuGameArray{"mnuGameArray", {"(no games yet)"}};
    MenuItem mnuGamesDownloadFirst{"mnuGamesDownloadFirst", "&Download joystick file first"};
    MenuItem mnuGamesAdd{"mnuGamesAdd", "&Add a game..."};
    MenuItem mnuGamesEdit{"mnuGamesEdit", "&Edit games..."};

    MenuItem mnuFavourites{"mnuFavourites", "Fav&ourites"};
    MenuArray mnuFavArray{"mnuFavArray", {"(no favourites yet)"}};
    MenuItem mnuFavouritesAddCurrent{"mnuFavouritesAddCurrent", "&Add current files..."};
    MenuItem mnuFavsEdit{"mnuFavsEdit", "&Edit favourites..."};

    MenuItem mnuPreferences{"mnuPreferences", "&Preferences"};
    MenuItem mnuPreferencesEdit{"mnuPreferencesEdit", "&Edit preferences..."};
    MenuItem mnuPreferencesProtectMacroFile{"mnuPreferencesProtectMacroFile", "&Protect macro file"};
    MenuItem mnuJoyPopUpSingleFile{"mnuJoyPopUpSingleFile", "Open &single files only"};
    MenuItem mnuMacrosSaveOptions{"mnuMacrosSaveOptions", "On sa&ving a macro file"};
    MenuItem mnuMacrosSaveOptions1{"mnuMacrosSaveOptions1", "&Update the macros list"};
    MenuItem mnuMacrosSaveOptions2{"mnuMacrosSaveOptions2", "&Identify the macros used"};
    MenuItem mnuAppearance{"mnuAppearance", "&Appearance"};
    MenuItem mnuAppearanceSystem{"mnuAppearanceSystem", "As the des&ktop"};
    MenuItem mnuAppearanceLight{"mnuAppearanceLight", "&Light"};
    MenuItem mnuAppearanceDark{"mnuAppearanceDark", "&Dark"};
    MenuItem mnuAppearanceContrast{"mnuAppearanceContrast", "&High contrast"};

    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuHelpContents{"mnuHelpContents", "&Tarvex help topics"};
    MenuItem mnuHowDoI{"mnuHowDoI", "&How do I ..."};
    MenuArray mnuHowDoIArray{
        "mnuHowDoIArray",
        {"&Insert macros?", "&Update macros?", "&Download files?", "&Compile files?", "Set my &preferences?"}};
    MenuItem mnuThrustmasterHelp{"mnuThrustmasterHelp", "Thrust&master"};
    MenuArray mnuTMhelp{"mnuTMhelp", {"&Syntax", "Slash &modifiers", "&Error codes"}};
    MenuItem mnuHelpTips{"mnuHelpTips", "Tip of the &day"};
    MenuItem mnuHelpOnTheNet{"mnuHelpOnTheNet", "On the &Internet"};
    MenuArray mnuWebTarvex{"mnuWebTarvex",
                           {"&Tarvex", "Tarvex &Professional", "Thrustmaster &questions and answers",
                            "Thrustmaster customer &support", "The &author's home page"}};
    MenuItem mnuHelpAbout{"mnuHelpAbout", "&About Tarvex"};

    MenuItem mnuRHMouse{"mnuRHMouse"}; ///< root of the panes' pop-up menu
    MenuItem mnuRHMCut{"mnuRHMCut", "Cu&t"};
    MenuItem mnuRHMCopy{"mnuRHMCopy", "&Copy"};
    MenuItem mnuRHMPaste{"mnuRHMPaste", "&Paste"};
    MenuItem mnuRHMDelete{"mnuRHMDelete", "&Delete"};
    MenuItem mnuRHMColour{"mnuRHMColour", "Colou&r this file"};
    MenuItem mnuRHMColoursRemove{"mnuRHMColoursRemove", "Remo&ve colour"};
    MenuItem mnuRHMColoursSelection{"mnuRHMColoursSelection", "Remove colour from &selection"};
    MenuItem mnuRHMIdentify{"mnuRHMIdentify", "Identif&y macros used"};
    MenuItem mnuRHMDownload{"mnuRHMDownload", "Do&wnload joystick file to joystick"};
    MenuItem mnuRHMProtect{"mnuRHMProtect", "Pr&otect macro file"};
    MenuItem mnuRHList{"mnuRHList"}; ///< root of the macro lists' pop-up menu
    MenuItem mnuRHListInsert{"mnuRHListInsert", "&Insert into joystick file"};
    MenuItem mnuFindInJF{"mnuFindInJF", "&Find in joystick file"};
    MenuItem mnuRHListIdentify{"mnuRHListIdentify", "I&dentify macros used"};
};

/// One place in a menu: a command, an array of commands, a menu of its own, or (none of them) a dividing line. An item
/// whose caption is "-" is a dividing line that can be hidden.
struct MenuEntry {
    MenuItem* item = nullptr;
    std::string keys; ///< keys shown beside the caption and obeyed in the whole window, e.g. "Ctrl+S"; or empty
    std::vector<MenuEntry> entries; ///< of a menu
    MenuArray* array = nullptr;     ///< all its visible items, in order
    char accessKey = '\0';          ///< the letter of the caption to mark, for a caption that marks none itself
};

/// The document window's menu bar from left to right. A command without a handler isn't there yet; the view greys it.
std::vector<MenuEntry> menuBar(Menus& menus);
/// The frame's own, while no document window is open.
std::vector<MenuEntry> mumMenuBar(Menus& menus);
/// What the pop-up menu below a root holds; empty for a root without one.
std::vector<MenuEntry> popUpMenu(Menus& menus, const MenuItem& root);

} // namespace tarvex
