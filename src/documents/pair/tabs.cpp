#include "documents/pair/tabs.h"

#include "documents/pair/document_status.h"
#include "documents/pair/editor_layout.h"
#include "documents/pair/undo_menus.h"

namespace tarvex {

namespace {

void showTabImages(Editor& editor)
{
    const bool joystickSelected = editor.TabStrip1.SelectedItem == editor.joystick.tab;
    editor.TabStrip1.Tabs(editor.joystick.tab).Image = joystickSelected ? tabImage::selected : tabImage::none;
    editor.TabStrip1.Tabs(editor.macro.tab).Image = joystickSelected ? tabImage::none : editor.TabImage;
}

} // namespace

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

void Text_GotFocus(Editor& editor, Side& side)
{
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab); // a click into the other tile
    if (editor.mum.MousePointer == MousePointer::ArrowQuestion) return;
    UpdateUndoRedoMenus(editor);
    editor.operations.UpdateCCPButtons();
    showLineNumber(editor, side, side.pane.SelStart());
    showCaretColour(editor);
    showEditingText(editor);
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
