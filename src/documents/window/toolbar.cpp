#include "documents/window/toolbar.h"

#include "documents/window/colour_selector.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr int pictureSlot = 29;
constexpr float statusBarLeftPart = 4020; // twips
constexpr float belowPicture = 250;       // twips
constexpr std::string_view welcome = "Welcome to Tarvex Freeware";
constexpr std::string_view greeting = "Hi there buddy, I'm the status bar";

constexpr ToolbarSlot slots[] = {
    {1, "Create a new joystick or macro file", &Menus::mnuFileNewJoystick, &Menus::mnuFileNewMacro},
    {2,
     "Open a file",
     &Menus::mnuFileJoystickLoad,
     &Menus::MnuFileMacroLoad,
     {&Settings::OpenBothOnToolbar, &Menus::mnuFileOpen, "Open joystick file and its macro file"}},
    {3,
     "Save currently selected file",
     &Menus::mnuFileSave,
     nullptr,
     {&Settings::SaveBothOnToolbar, &Menus::mnuFileSaveBoth, "Save both files"}},
    {5, "Print currently selected file", &Menus::mnuFilePrintJoystick, &Menus::mnuFilePrintMacro},
    {7, "Cut", &Menus::mnuEditCut},
    {8, "Copy", &Menus::mnuEditCopy},
    {9, "Paste", &Menus::mnuEditPaste},
    {11, "Undo editing", &Menus::mnuEditUndo},
    {12, "Redo - the opposite of Undo", &Menus::mnuEditRedo},
    {14, "Find word or phrase in file", &Menus::mnuEditFind},
    {15, "Find word or phrase in file and replace with some other text", &Menus::mnuEditReplace},
    {16, "Goto line number - useful when a download files with an error at a line number", &Menus::mnuEditGoto},
    {18, "Add current files to the Favourites menu - editable from the Preferences window",
     &Menus::mnuFavouritesAddCurrent},
    {20, "Update macros in the macro list to reflect changes to the macro file", &Menus::mnuEditUpdateMacros},
    {21, "View the macros list", &Menus::mnuViewMacros},
    {23, "Open up the Composer", &Menus::mnuShowInsertWindow},
    {24, "Select a template and insert it", &Menus::mnuComposerPlugin},
    {25, "Open up Safein - the graphical keyboard", &Menus::mnuInsertRAW},
    {26, "Insert a Title at the beginning of the current file", &Menus::mnuInsertTitle},
    {27, "Insert Heading - essential for subdividing your macros in your macro file", &Menus::mnuInsertHeading},
    {28, "Insert a Rem statement for adding comments to your file", &Menus::mnuInsertRemStatement},
    {pictureSlot, "Colour of text at cursor - click to select a different colour"},
    {30, "Show the joystick and macro files tiled vertically", &Menus::mnuViewTileVertically},
    {32, "Apply colour highlighting to selected file", &Menus::mnuViewColourJoystick, &Menus::mnuViewColourMacro},
    {33, "Highlight the line containing the insertion point", &Menus::mnuViewHighlightLine},
    {34, "Identify the macros used in the joystick file", &Menus::mnuViewIdentify},
    {36, "Run the Launcher", &Menus::mnuLauncher},
    {37, "Calibrate your controllers in Windows", &Menus::mnuAppsProPanel},
    {38, "Use Ned Marl's CTFJ utility to correct the registry calibration data", &Menus::mnuAppsCTFJ},
    {39, "Open up the Image viewer", &Menus::mnuAppsImageViewer},
    {40, "Open up the Key tester to check the output from your controllers", &Menus::mnuSendToKeyTest},
    {41, "Open up the Template Editor for creating/editing templates", &Menus::mnuAppsTemplate},
    {42, "Run the Thrustmaster Control Centre DOS software", &Menus::mnuAppsCandCC},
    // What was to disable this button with its command names one that the bar doesn't have.
    {44, "Download joystick file to joystick", &Menus::mnuSendToJoystick, nullptr, {}, true},
    {46, "Edit your Preferences and customise Tarvex", &Menus::mnuPreferencesEdit},
    {47, "View the help file", &Menus::mnuHelpContents},
};

const ToolbarSlot* slotOf(int number)
{
    const auto* const slot = std::ranges::find(slots, number, &ToolbarSlot::number);
    return slot != std::end(slots) ? slot : nullptr;
}

/// The first button that holds the point, its edges left out; the bar's count + 1 when none does.
int buttonAt(ToolBar& bar, float x, float y)
{
    int number = 1;
    for (; number <= bar.Count(); ++number) {
        const Placement& place = bar.Buttons(number).Place;
        const auto inside = [](float at, int start, int length) {
            return at > static_cast<float>(start) && at < static_cast<float>(start + length);
        };
        if (inside(x, place.Left, place.Width) && inside(y, place.Top, place.Height)) break;
    }
    return number;
}

/// A compile result stays up until another message replaces it, and everything does when help texts aren't wanted.
bool panelIsFree(const Editor& editor)
{
    return editor.shared.settings.ButtonsOnStatusBar != 0 && !showsCompileResult(editor.mum);
}

} // namespace

std::span<const ToolbarSlot> toolbarSlots() { return slots; }

bool toolbarMeansBoth(const Editor& editor, const ToolbarSlot& slot)
{
    return slot.both.setting != nullptr && editor.shared.settings.*slot.both.setting == 1;
}

MenuItem* toolbarCommand(Editor& editor, int button)
{
    const ToolbarSlot* slot = slotOf(button);
    if (slot == nullptr) return nullptr;
    if (toolbarMeansBoth(editor, *slot)) return &(editor.menus.*slot->both.command);
    const bool macro = editor.selected().tab == editor.macro.tab && slot->macro != nullptr;
    MenuItem Menus::*const command = macro ? slot->macro : slot->joystick;
    return command != nullptr ? &(editor.menus.*command) : nullptr;
}

bool toolbarOffers(Editor& editor, int button)
{
    const ToolbarSlot* slot = slotOf(button);
    if (slot == nullptr || !editor.mum.Toolbar1.Buttons(button).Enabled) return false;
    if (button == pictureSlot) return true;
    const MenuItem* command = toolbarCommand(editor, button);
    return command != nullptr && command->handler && (command->Enabled || slot->alwaysEnabled);
}

void Toolbar1_ButtonClick(Editor& editor, int button)
{
    const Steps step(editor.shared.errors, "MUM Toolbar1_ButtonClick");
    if (const MenuItem* command = toolbarCommand(editor, button)) step([&] { command->Click(); });
}

void Toolbar1_MouseMove(Editor& editor, int /*button*/, int /*shift*/, float x, float y)
{
    if (!panelIsFree(editor)) return;
    const ToolbarSlot* slot = slotOf(buttonAt(editor.mum.Toolbar1, x, y));
    if (slot == nullptr) return editor.status(std::string(welcome));
    editor.status(std::string(toolbarMeansBoth(editor, *slot) ? slot->both.hoverText : slot->hoverText));
}

void StatusBar_MouseMove(Editor& editor, float x)
{
    if (!panelIsFree(editor)) return;
    const bool greeted = editor.mum.StatusBar.Panels(panel::progress).Text == std::string(greeting);
    if (x < statusBarLeftPart) {
        editor.status(std::string(greeting));
    } else if (greeted) {
        editor.status("What say you and I give up on this programming lark and go and get a beer?");
    }
}

void Picture1_MouseMove(Editor& editor)
{
    if (panelIsFree(editor)) editor.status(std::string(slotOf(pictureSlot)->hoverText));
}

void Picture1_Click(Editor& editor)
{
    editor.mum.Picture1PlaceWanted();
    const Placement& picture = editor.mum.Picture1Place;
    Form& form = editor.ColourSelector.form;
    form.Left = static_cast<float>(picture.Left * twipsPerPixel);
    form.Top = static_cast<float>((picture.Top + picture.Height) * twipsPerPixel) + belowPicture;
    showColourSelector(editor, ColourTarget::Pane);
}

} // namespace tarvex
