#include "documents/pair/tabs.h"

#include "documents/editing/undo.h"
#include "documents/pair/editor_layout.h"
#include "documents/window/toolbar.h"
#include "platform/dos_path.h"

namespace tarvex {

namespace {

/// The bar has fewer buttons: the statements that reach for it fail, and the download button stays as it is.
constexpr int compileButton = 49;

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

void showTabImages(Editor& editor)
{
    const bool joystickSelected = editor.TabStrip1.SelectedItem == editor.joystick.tab;
    editor.TabStrip1.Tabs(editor.joystick.tab).Image = joystickSelected ? tabImage::selected : tabImage::none;
    editor.TabStrip1.Tabs(editor.macro.tab).Image = joystickSelected ? tabImage::none : editor.TabImage;
}

void gotFocus(Editor& editor, Side& side)
{
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab); // a click into the other tile
    if (editor.mum.MousePointer == MousePointer::ArrowQuestion) return;
    UpdateUndoRedoMenus(editor);
    editor.operations.UpdateCCPButtons();
    showLineNumber(editor, side, side.pane.SelStart());
    showCaretColour(editor);
    showEditingText(editor);
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
    const std::string& text = progress.Text;
    if (text.starts_with("Compile") || text.find('=') != std::string::npos) return;
    progress.Text = "Editing " + editor.tabCaption(side);
}

void showLineNumber(Editor& editor, const Side& side, std::int64_t position)
{
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
    step([&] { editor.mum.Toolbar1.Buttons(compileButton).Enabled = fits; });
}

void UpdateSavedIcon(Editor& editor)
{
    const Steps step(editor.shared.errors, "UpdateSavedIcon");
    step([&] {
        const Side& side = editor.selected();
        StatusBar::Panel& state = editor.mum.StatusBar.Panels(panel::savedState);
        state.Picture = side.Changed + 2;
        state.ToolTipText = savedStateTip(side.FileName, side.Changed);
    });
}

void GetCurrentDefaultTextColour(Editor& editor) { editor.shared.DefaultTextColour = 0; }

void TabStrip1_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_TabStrip1_Click");
    GetCurrentDefaultTextColour(editor);
    updateDownload(editor);
    step([&] { Form_Resize(editor); });
    showEditingText(editor);
    showTabImages(editor);
    UpdateSavedIcon(editor);
    step([&] { UpdateUndoRedoMenus(editor); });
    showLineNumber(editor, editor.selected(), editor.selected().pane.SelStart());
    showCaretColour(editor);
    editor.selected().pane.SetFocus();
}

void JoystickText_GotFocus(Editor& editor) { gotFocus(editor, editor.joystick); }
void MacroText_GotFocus(Editor& editor) { gotFocus(editor, editor.macro); }

void noteCaret(Editor& editor, Side& side)
{
    side.Caret = static_cast<float>(side.pane.SelStart());
    side.SelectionLength = static_cast<std::int32_t>(side.pane.SelLength());
    showLineNumber(editor, side, side.pane.SelStart());
    showCaretColour(editor);
    editor.operations.UpdateCCPButtons();
}

void mnuPreferencesProtectMacroFile_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "mnuPreferencesProtectMacroFile_Click");
    step([&] {
        MenuItem& item = editor.menus.mnuPreferencesProtectMacroFile;
        item.Checked = !item.Checked;
        editor.MacroText.Locked = item.Checked.get();
        editor.TabImage = item.Checked ? tabImage::macroProtected : tabImage::selected;
        if (editor.TabStrip1.SelectedItem == editor.macro.tab) showTabImages(editor);
        editor.operations.UpdateCCPButtons();
    });
}

} // namespace tarvex
