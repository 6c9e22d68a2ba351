#include "documents/file_new.h"

#include "documents/file_questions.h"
#include "documents/pane_change.h"
#include "documents/tabs.h"
#include "documents/undo.h"

namespace tarvex {

namespace {

void newDocument(Editor& editor, Side& side, std::string_view tag)
{
    if (!mayLeave(editor, side, questionBeforeNew(side))) return;
    const Steps step(editor.shared.errors, tag);

    editor.shared.IsLoading = 1;
    side.Changed = changed::noText;
    step([&] {
        side.pane.setText("");
        side.pane.BackColor = side.Background;
        applyBaseFormat(editor, side.pane);
    });
    UpdateSavedIcon(editor);
    nameUntitled(editor, side);
    side.pane.setSelStart(0);
    side.Caret = 0;
    side.SelectionLength = 0;
    step([&] { keepOnlyThePresent(editor, side); });
    showLineNumber(editor, side, side.pane.SelStart());
    if (side.tab == editor.macro.tab) {
        StatusBar::Panel& analysed = editor.mum.StatusBar.Panels(panel::macroFile);
        analysed.Text = "No macro file analysed";
        analysed.ToolTipText = "";
        step([&] { editor.operations.ClearAllForNewMacroFile(); });
    }
    editor.status("New " + std::string(side.kind) + " file created");
    editor.shared.IsLoading = 0;
}

} // namespace

void nameUntitled(Editor& editor, Side& side)
{
    side.FileName = "untitled." + side.Extension;
    side.FilePath = editor.shared.settings.ProgramFilesPath + side.FileName;
    editor.TabStrip1.Tabs(side.tab).Caption = side.FileName;
    UpdateSavedIcon(editor);
}

void mnuFileNewJoystick_Click(Editor& editor) { newDocument(editor, editor.joystick, "ED_mnuFileNewJoystick_Click"); }

void mnuFileNewMacro_Click(Editor& editor) { newDocument(editor, editor.macro, "ED_mnuFileNewMacro_Click"); }

void mnuFileNewBoth_Click(Editor& editor)
{
    mnuFileNewJoystick_Click(editor);
    mnuFileNewMacro_Click(editor);
}

void mnuFileClose_Click(Editor& editor)
{
    if (editor.TabStrip1.SelectedItem == editor.joystick.tab)
        mnuFileNewJoystick_Click(editor);
    else
        mnuFileNewMacro_Click(editor);
}

void mnuFileCloseBoth_Click(Editor& editor) { mnuFileNewBoth_Click(editor); }

} // namespace tarvex
