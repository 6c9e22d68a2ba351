#include "documents/editing/undo.h"

#include "documents/editing/line_highlight.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/pair/protected_pane.h"
#include "documents/pair/undo_menus.h"
#include "documents/recovery/journal/recovery_journal.h"

namespace tarvex {

namespace {

constexpr int backspaceKey = 8;
constexpr int returnKey = 13;
constexpr int blankKey = 32;

void keyPress(Side& side, int key)
{
    UndoHistory& history = side.Undo;
    side.Caret = side.pane.SelStart();
    const bool onUndoneState = history.Position != 1; // typing there must not overwrite the newest one
    const bool blankInEmptyPane = key == blankKey && side.pane.TextLength() == 0;
    if (blankInEmptyPane || history.Levels.size() == 1) {
        side.TakeNewLevel = blankInEmptyPane && !onUndoneState ? 0 : 1;
        return;
    }
    const bool again =
        (key == returnKey && history.LastKeyWasReturn == 1) || (key == blankKey && history.LastKeyWasSpace == 1);
    const bool opens = key == backspaceKey || key == returnKey || key == blankKey;
    side.TakeNewLevel = onUndoneState || (opens && !again) ? 1 : 0;
    if (key == backspaceKey) return;
    history.LastKeyWasReturn = key == returnKey ? 1 : 0;
    history.LastKeyWasSpace = key == blankKey ? 1 : 0;
}

/// The text is the one that its file got, or was read from, last.
bool holdsSavedText(const Side& side)
{
    const RichText& saved = side.Journal.Base;
    return side.Journal.File && saved.size() == side.pane.TextLength() && saved.text() == side.pane.Text();
}

void showLevel(Editor& editor, std::size_t level)
{
    Side& side = editor.selected();
    UndoHistory& history = side.Undo;
    if (level < 1 || level > history.Levels.size() || refuseProtected(editor)) return;
    const Loading loading(editor.shared);
    history.Position = level;
    const UndoHistory::Level& shown = history.Levels[level - 1];
    side.pane.setTextRTF(shown.Text);
    side.pane.setSelStart(shown.Caret);
    side.Caret = shown.Caret;
    if (holdsSavedText(side)) {
        noteTextSettled(editor, side, side.Journal.File);
        side.Changed = changed::saved;
    } else {
        writeDownChanges(editor, side);
        side.Changed = changed::modified;
    }
    UpdateSavedIcon(editor);
    UpdateUndoRedoMenus(editor);
    if (editor.shared.settings.HighlightLineOnUndo == 1) blinkLineAtIP(editor);
}

} // namespace

void Text_KeyPress(Editor& editor, Side& side, int key)
{
    endBlinking(editor);
    keyPress(side, key);
}

void paneEditComing(Editor& editor, Side& side)
{
    endBlinking(editor);
    side.TakeNewLevel = 1;
}

void UpdateUndoText(const Editor& editor, Side& side)
{
    UndoHistory& history = side.Undo;
    const bool grows = static_cast<long>(history.Levels.size()) <= editor.shared.settings.UndoMax;
    history.Levels.push_front(history.Levels.front());
    if (!grows) history.Levels.pop_back();
}

void storeInNewestLevel(Side& side)
{
    side.Undo.Levels.front() = {side.pane.TextRTF(), static_cast<std::int32_t>(side.pane.SelStart())};
}

void storeStateBeforeWrite(Editor& editor, Side& side)
{
    if (side.Undo.Position != 1) {
        UpdateUndoText(editor, side);
        side.Undo.Position = 1;
        UpdateUndoRedoMenus(editor);
    }
    storeInNewestLevel(side);
}

void recordUndo(Editor& editor, Side& side)
{
    if (side.TakeNewLevel != 1 && side.Undo.Position == 1) return storeInNewestLevel(side);
    UpdateUndoText(editor, side);
    storeInNewestLevel(side);
    side.Undo.Position = 1;
    UpdateUndoRedoMenus(editor);
}

void mnuEditUndo_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditUndo_Click");
    step([&] { showLevel(editor, editor.selected().Undo.Position + 1); });
}

void mnuEditRedo_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditRedo_Click");
    step([&] { showLevel(editor, editor.selected().Undo.Position - 1); });
}

void DeleteUndosOnSave(Editor& editor, Side& side)
{
    side.Undo = {};
    storeInNewestLevel(side);
    side.TakeNewLevel = 1;
    UpdateUndoRedoMenus(editor);
}

void DeleteUndosFromMemory(Editor& editor)
{
    editor.joystick.Undo = {};
    editor.macro.Undo = {};
    UpdateUndoRedoMenus(editor);
}

} // namespace tarvex
