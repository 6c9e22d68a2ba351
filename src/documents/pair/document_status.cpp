#include "documents/pair/document_status.h"

#include "platform/dos_path.h"
#include "shell/toolbar_buttons.h"

#include <stdexcept>

namespace tarvex {

namespace {

std::string savedStateTip(const std::string& name, std::int16_t state)
{
    switch (state) {
    case changed::noText:
        return name + " has no text and isn't saved";
    case changed::saved:
        return name + " is saved";
    default:
        return name + " has been modified and isn't saved";
    }
}

bool isProtected(const Editor& editor) { return editor.menus.mnuPreferencesProtectMacroFile.Checked; }

/// The bar ends before this button, so there is a failure to record instead. It isn't thrown: opening a pair gets here
/// nine times, and the first exception alone brings the tables of the unwinder into memory.
void enableCompileButton(Editor& editor, bool enabled, const Steps& step)
{
    static const std::out_of_range noSuchButton("The toolbar has no button for the compiler");
    ToolBar& bar = editor.mum.Toolbar1;
    if (toolbarButton::compile > bar.Count()) return step.fail(noSuchButton);
    bar.Buttons(toolbarButton::compile).Enabled = enabled;
}

} // namespace

void showEditingText(Editor& editor)
{
    StatusBar::Panel& progress = editor.mum.StatusBar.Panels(panel::progress);
    Side& side = editor.selected();
    if (side.tab == editor.macro.tab && isProtected(editor)) {
        progress.Text = editor.tabCaption(side) + " is protected and can't be edited.";
        progress.Enabled = false;
        return;
    }
    progress.Enabled = true;
    if (showsCompileResult(editor.mum) || showsDefinition(editor.mum)) return;
    progress.Text = "Editing " + editor.tabCaption(side);
}

void showLineNumber(Editor& editor, const Side& side, std::int64_t position)
{
    editor.Noted.reset();
    editor.mum.StatusBar.Panels(panel::line).Text =
        "Line no: " + std::to_string(side.pane.GetLineFromChar(position) + 1);
}

void updateDownload(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_TabStrip1_Click");
    Menus& menus = editor.menus;
    const std::string caption = editor.tabCaption(editor.joystick);
    const Settings& settings = editor.shared.settings;
    const bool fits = settings.AlwaysShowCompileDownload == 1 || lastThree(caption) == settings.JoystickExtension;

    menus.mnuSendToJoystick.Enabled = fits;
    if (fits)
        menus.mnuAppsQuiet.Enabled = true;
    else if (menus.mnuAppsQuiet.Checked)
        menus.mnuAppsQuiet.Enabled = false;
    menus.mnuSendToJoystick.Caption = fits ? "&Download " + caption : "&Download ";
    enableCompileButton(editor, fits, step);
}

void UpdateSavedIcon(Editor& editor)
{
    const Steps step(editor.shared.errors, "UpdateSavedIcon");
    step([&] {
        const Side& side = editor.selected();
        StatusBar::Panel& state = editor.mum.StatusBar.Panels(panel::savedState);
        state.Picture = savedStatePicture(side.Changed);
        state.ToolTipText = savedStateTip(side.FileName, side.Changed);
        for (Side* document : {&editor.joystick, &editor.macro})
            document->ShowsEdited = document->Changed == changed::modified;
    });
}

void showCaretColour(Editor& editor) { editor.mum.Picture1 = editor.selected().pane.SelColor(); }

} // namespace tarvex
