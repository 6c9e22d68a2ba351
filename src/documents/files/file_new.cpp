#include "documents/files/file_new.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/files/file_questions.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/recovery/journal/recovery_journal.h"

namespace tarvex {

namespace {

/// False: the user keeps the document that is there.
bool newDocument(Editor& editor, Side& side, std::string_view tag)
{
    if (!mayLeave(editor, side, questionBeforeNew(side))) return false;
    const Steps step(editor.shared.errors, tag);
    const Loading loading(editor.shared);

    side.Changed = changed::noText;
    step([&] {
        side.pane.setText("");
        side.pane.BackColor = side.Background;
        applyBaseFormat(editor, side.pane);
    });
    editor.TabStrip1.Tabs(side.tab).Caption = ""; // under the same name it is another document, too
    nameUntitled(editor, side);
    side.pane.setSelStart(0);
    side.Caret = 0;
    side.SelectionLength = 0;
    step([&] { DeleteUndosOnSave(editor, side); });
    noteTextSettled(editor, side, std::nullopt);
    showLineNumber(editor, side, side.pane.SelStart());
    if (side.tab == editor.macro.tab) {
        StatusBar::Panel& analysed = editor.mum.StatusBar.Panels(panel::macroFile);
        analysed.Text = "No macro file analysed";
        analysed.ToolTipText = "";
        step([&] { editor.operations.ClearAllForNewMacroFile(); });
    }
    editor.status("New " + std::string(side.kind) + " file created");
    return true;
}

constexpr std::string_view joystickTag = "ED_mnuFileNewJoystick_Click";
constexpr std::string_view macroTag = "ED_mnuFileNewMacro_Click";

} // namespace

void nameUntitled(Editor& editor, Side& side)
{
    side.FileName = "untitled." + side.Extension;
    side.FilePath = editor.shared.settings.ProgramFilesPath.whole() + side.FileName;
    editor.TabStrip1.Tabs(side.tab).Caption = side.FileName;
    updateDownload(editor);
    UpdateSavedIcon(editor);
}

void mnuFileNewJoystick_Click(Editor& editor) { newDocument(editor, editor.joystick, joystickTag); }

void mnuFileNewMacro_Click(Editor& editor) { newDocument(editor, editor.macro, macroTag); }

void mnuFileNewBoth_Click(Editor& editor)
{
    if (newDocument(editor, editor.joystick, joystickTag)) newDocument(editor, editor.macro, macroTag);
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
