#pragma once

#include "platform/controls.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The commands of the program. Whoever owns a command sets its handler and may call any other by `Click`, so that no
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
    MenuItem mnuFilePrevious{"mnuFilePrevious", "P&revious joystick files"};
    MenuItem mnuFilePrevMacro{"mnuFilePrevMacro", "Previous macro f&iles"};
    MenuItem mnuFileExit{"mnuFileExit", "E&xit"};

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
    MenuItem mnuEditGoto{"mnuEditGoto", "&Goto line..."};
    MenuItem mnuEditUpdateMacros{"mnuEditUpdateMacros", "Update &macros"};
    MenuItem mnuEditREMblock{"mnuEditREMblock", "Comment &out block"};
    MenuItem mnuEditREMunblock{"mnuEditREMunblock", "Restore &block"};

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
    MenuItem mnuViewReformat{"mnuViewReformat", "&Reformat"};
    MenuItem mnuViewrefreshIndent{"mnuViewrefreshIndent", "Refresh &indent"};
    MenuItem mnuViewAlignSlashes{"mnuViewAlignSlashes", "&Align slashes"};
    MenuItem mnuViewHighlightLine{"mnuViewHighlightLine", "&Highlight line"};
    MenuItem mnuViewIdentify{"mnuViewIdentify", "I&dentify macros used"};

    MenuItem mnuInsertWithColour{"mnuInsertWithColour", "Insert with &colour"};

    MenuItem mnuGames{"mnuGames", "&Games"};
    MenuItem mnuAppsProPanel{"mnuAppsProPanel", "Calibrate controllers"};
    MenuItem mnuAppsQuiet{"mnuAppsQuiet", "&Quiet mode transfer"};
    MenuItem mnuSendToJoystick{"mnuSendToJoystick", "&Download joystick file to joystick"};
    MenuItem mnuSendToKeyTest{"mnuSendToKeyTest", "&KeyTest"};
    MenuItem mnuF22Setup{"mnuF22Setup", "Cali&brate F22"};
    MenuItem mnuF22Clear{"mnuF22Clear", "C&lear F22"};
    MenuItem mnuF22Reset{"mnuF22Reset", "&Reset F22"};
    MenuItem mnuF22Delay{"mnuF22Delay", "F22 &delay"};
    MenuItem mnuAppDivider1{"mnuAppDivider1", "-"};
    MenuItem mnuSlashModifierA{"mnuSlashModifierA", "/A  force analogue"};
    MenuItem mnuFilePrintJoystick{"mnuFilePrintJoystick", "&Print joystick file"};
    MenuItem mnuFilePrintMacro{"mnuFilePrintMacro", "Print mac&ro file"};

    MenuItem mnuPreferences{"mnuPreferences", "&Preferences"};
    MenuItem mnuPreferencesEdit{"mnuPreferencesEdit", "&Edit preferences..."};
    MenuItem mnuPreferencesProtectMacroFile{"mnuPreferencesProtectMacroFile", "&Protect macro file"};
    MenuItem mnuJoyPopUpSingleFile{"mnuJoyPopUpSingleFile", "Open &single files only"};
    MenuItem mnuMacrosSaveOptions{"mnuMacrosSaveOptions", "On sa&ving a macro file"};
    MenuItem mnuMacrosSaveOptions1{"mnuMacrosSaveOptions1", "&Update the macros list"};
    MenuItem mnuMacrosSaveOptions2{"mnuMacrosSaveOptions2", "&Identify the macros used"};
    MenuItem mnuUseWakeWarning{"mnuUseWakeWarning", "&Use \"Wake up joystick\" warning"};
    MenuItem mnuAppearance{"mnuAppearance", "&Appearance"};
    MenuItem mnuAppearanceSystem{"mnuAppearanceSystem", "As the &desktop"};
    MenuItem mnuAppearanceLight{"mnuAppearanceLight", "&Light"};
    MenuItem mnuAppearanceDark{"mnuAppearanceDark", "&Dark"};

    MenuItem mnuRHMouse{"mnuRHMouse"}; ///< root of the panes' pop-up menu
    MenuItem mnuRHMColour{"mnuRHMColour", "Colou&r this file"};
    MenuItem mnuRHMColoursRemove{"mnuRHMColoursRemove", "Remo&ve colour"};
    MenuItem mnuRHMColoursSelection{"mnuRHMColoursSelection", "Remove colour from selec&tion"};
    MenuItem mnuRHMIdentify{"mnuRHMIdentify", "Identif&y macros used"};
    MenuItem mnuRHList{"mnuRHList"}; ///< root of the macro lists' pop-up menu
    MenuItem mnuRHListInsert{"mnuRHListInsert", "&Insert into joystick file"};
    MenuItem mnuFindInJF{"mnuFindInJF", "&Find in joystick file"};
    MenuItem mnuRHListIdentify{"mnuRHListIdentify", "I&dentify macros used"};

    /// Items of the favourites menu, from index 1; 0 is a hidden pattern.
    std::deque<MenuItem> mnuFavArray;
};

/// One place in a menu: a command, a menu of its own, or (no item) a dividing line.
struct MenuEntry {
    MenuItem* item = nullptr;
    std::string keys; ///< keys shown beside the caption and obeyed in the whole window, e.g. "Ctrl+S"; or empty
    std::vector<MenuEntry> entries; ///< of a menu
};

/// The menu bar from left to right. Menus none of whose commands has a handler are left out by the view.
std::vector<MenuEntry> menuBar(Menus& menus);
/// What the pop-up menu below a root holds; empty for a root without one.
std::vector<MenuEntry> popUpMenu(Menus& menus, const MenuItem& root);

} // namespace tarvex
