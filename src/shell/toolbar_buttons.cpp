#include "shell/toolbar_buttons.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr ToolbarButton separator(int number) { return {.number = number}; }

/// One that goes when the user hides separators.
constexpr ToolbarButton sparedSeparator(int number) { return {.number = number, .hidesWithSeparators = true}; }

constexpr ToolbarButton buttons[] = {
    {.number = 1,
     .icon = "file-new",
     .hoverText = "Create a new joystick or macro file",
     .tip = "New joystick or macro file",
     .joystick = &Menus::mnuFileNewJoystick,
     .macro = &Menus::mnuFileNewMacro},
    {.number = 2,
     .icon = "file-open",
     .hoverText = "Open a file",
     .tip = "Open file",
     .joystick = &Menus::mnuFileJoystickLoad,
     .macro = &Menus::MnuFileMacroLoad,
     .both = {.setting = &Settings::OpenBothOnToolbar,
              .hoverText = "Open joystick file and its macro file",
              .tip = "Open joystick file and its macro file (F8)",
              .command = &Menus::mnuFileOpen,
              .shortcut = "F8"}},
    {.number = 3,
     .icon = "file-save",
     .hoverText = "Save currently selected file",
     .tip = "Save currently selected file (Ctrl+S)",
     .shortcut = "Ctrl+S",
     .joystick = &Menus::mnuFileSave,
     .both = {.setting = &Settings::SaveBothOnToolbar,
              .hoverText = "Save both files",
              .tip = "Save both files",
              .command = &Menus::mnuFileSaveBoth}},
    separator(4),
    {.number = 5,
     .icon = "print",
     .hoverText = "Print currently selected file",
     .tip = "Print currently selected file (Ctrl+P)",
     .shortcut = "Ctrl+P",
     .joystick = &Menus::mnuFilePrintJoystick,
     .macro = &Menus::mnuFilePrintMacro},
    separator(6),
    {7, "cut", "Cut", "Cut (Ctrl+X)", "Ctrl+X", &Menus::mnuEditCut},
    {8, "copy", "Copy", "Copy (Ctrl+C)", "Ctrl+C", &Menus::mnuEditCopy},
    {9, "paste", "Paste", "Paste (Ctrl+V)", "Ctrl+V", &Menus::mnuEditPaste},
    separator(10),
    {11, "undo", "Undo editing", "Undo (Ctrl+Z)", "Ctrl+Z", &Menus::mnuEditUndo},
    {12, "redo", "Redo - the opposite of Undo", "Redo (Ctrl+Y)", "Ctrl+Y", &Menus::mnuEditRedo},
    separator(13),
    {14, "find", "Find word or phrase in file", "Find word or phrase in file (Ctrl+F)", "Ctrl+F", &Menus::mnuEditFind},
    {15, "replace", "Find word or phrase in file and replace with some other text", "Find and Replace (Ctrl+R)",
     "Ctrl+R", &Menus::mnuEditReplace},
    {16, "goto-line", "Goto line number - useful when a download files with an error at a line number",
     "Goto line number (Ctrl+G)", "Ctrl+G", &Menus::mnuEditGoto},
    sparedSeparator(17),
    {18, "favourite-add", "Add current files to the Favourites menu - editable from the Preferences window",
     "Add current files to Favourites", "", &Menus::mnuFavouritesAddCurrent},
    sparedSeparator(19),
    {20, "macros-update", "Update macros in the macro list to reflect changes to the macro file", "Update macros", "",
     &Menus::mnuEditUpdateMacros},
    {21, "macros-view", "View the macros list", "View macros", "", &Menus::mnuViewMacros},
    sparedSeparator(22),
    {23, "composer", "Open up the Composer", "Composer (F2)", "F2", &Menus::mnuShowInsertWindow},
    {24, "template-insert", "Select a template and insert it", "Select a template and insert it (F3)", "F3",
     &Menus::mnuComposerPlugin},
    {25, "keyboard", "Open up Safein - the graphical keyboard", "Safein (F4)", "F4", &Menus::mnuInsertRAW},
    {26, "title-insert", "Insert a Title at the beginning of the current file", "Insert Title", "",
     &Menus::mnuInsertTitle},
    {27, "heading-insert", "Insert Heading - essential for subdividing your macros in your macro file",
     "Insert Heading (F5)", "F5", &Menus::mnuInsertHeading},
    {28, "rem-insert", "Insert a Rem statement for adding comments to your file", "Insert Rem statement (F6)", "F6",
     &Menus::mnuInsertRemStatement},
    {.number = toolbarButton::picture, .hoverText = "Colour of text at cursor - click to select a different colour"},
    {30, "tile-vertically", "Show the joystick and macro files tiled vertically",
     "Tile joystick and macro files vertically", "", &Menus::mnuViewTileVertically},
    separator(31),
    {32, "colour-apply", "Apply colour highlighting to selected file", "Apply colour highlighting to selected file", "",
     &Menus::mnuViewColourJoystick, &Menus::mnuViewColourMacro},
    {33, "highlight-line", "Highlight the line containing the insertion point", "Highlight insertion line (Ctrl+L)",
     "Ctrl+L", &Menus::mnuViewHighlightLine},
    {34, "identify", "Identify the macros used in the joystick file", "Identify macros used (F7)", "F7",
     &Menus::mnuViewIdentify},
    separator(35),
    {36, "launcher", "Run the Launcher", "Launcher", "", &Menus::mnuLauncher},
    {37, "calibrate", "Calibrate your controllers in Windows", "Calibrate controllers", "", &Menus::mnuAppsProPanel},
    {38, "ctfj", "Use Ned Marl's CTFJ utility to correct the registry calibration data", "Ned Marl's CTFJ", "",
     &Menus::mnuAppsCTFJ},
    {.number = 39,
     .icon = "image-viewer",
     .hoverText = "Open up the Image viewer",
     .tip = "Image viewer",
     .joystick = &Menus::mnuAppsImageViewer,
     .hidesWithSeparators = true}, // no separator, but it always went with them
    {40, "key-test", "Open up the Key tester to check the output from your controllers", "Key test (Ctrl+K)", "Ctrl+K",
     &Menus::mnuSendToKeyTest},
    {41, "template-editor", "Open up the Template Editor for creating/editing templates", "Template Editor (Shift F11)",
     "Shift+F11", &Menus::mnuAppsTemplate},
    {42, "control-centre", "Run the Thrustmaster Control Centre DOS software", "Thrustmaster Control Centre", "",
     &Menus::mnuAppsCandCC},
    separator(43),
    {.number = 44,
     .icon = "download",
     .hoverText = "Download joystick file to joystick",
     .tip = "Download joystick file to joystick (F12)",
     .shortcut = "F12",
     .joystick = &Menus::mnuSendToJoystick,
     .alwaysEnabled = true}, // what was to disable it names `compile`, which the bar doesn't have
    // From here on the tips stand one place too far: a separator has one, and that of the help has no button.
    {.number = 45, .tip = "Compile joystick file (Shift F12)"},
    {46, "preferences", "Edit your Preferences and customise Tarvex", "Edit Preferences (F9)", "F9",
     &Menus::mnuPreferencesEdit},
    {47, "help", "View the help file", "Edit Preferences (F9)", "F9", &Menus::mnuHelpContents},
};

} // namespace

std::span<const ToolbarButton> toolbarButtons() { return buttons; }

bool toolbarMeansBoth(const ToolbarButton& button, const Settings& settings)
{
    return button.both.setting != nullptr && settings.*button.both.setting == 1;
}

const ToolbarButton* toolbarButtonAt(int number)
{
    const auto* const button = std::ranges::find(buttons, number, &ToolbarButton::number);
    return button != std::end(buttons) ? button : nullptr;
}

} // namespace tarvex
