#include "documents/editing/pane_change.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "language/base_format.h"

namespace tarvex {

void textChanged(Editor& editor, Side& side)
{
    side.Changed = changed::modified;
    UpdateSavedIcon(editor);
    writeDownChanges(editor, side);
    recordUndo(editor, side);
}

void Text_Change(Editor& editor, Side& side)
{
    stopBlinking(editor, side);
    // emptying a pane takes the indent with the text
    if (side.pane.TextLength() == 0) side.pane.setSelIndent(paragraphIndent);
    if (editor.shared.IsLoading == 1) return;
    textChanged(editor, side);
    side.TakeNewLevel = 1;
}

void applyScheme(Editor& editor, Side& side)
{
    side.pane.BackColor = side.Background;
    setPaneFont(side.pane, editor.shared.settings);
    side.pane.Refresh();
}

void applyBaseFormat(Editor& editor, Pane& pane)
{
    const Settings& settings = editor.shared.settings;
    pane.setSelFontName(settings.TextFontName);
    pane.setSelFontSize(settings.TextFontSize);
    pane.setSelBold(settings.TextFontBold == 1);
    pane.setSelColor(0);
    pane.setSelIndent(paragraphIndent);
}

} // namespace tarvex
