#include "language/commands/coloured_insertion.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/pair/protected_pane.h"
#include "documents/pair/undo_menus.h"
#include "language/base_format.h"
#include "platform/text.h"

namespace tarvex {

namespace {

void setFontAndColour(Editor& editor, Pane& pane, Colour colour)
{
    const Settings& settings = editor.shared.settings;
    pane.setSelIndent(paragraphIndent);
    pane.setSelFontName(settings.TextFontName);
    pane.setSelBold(settings.TextFontBold == 1);
    pane.setSelFontSize(settings.TextFontSize);
    pane.setSelColor(colour);
}

void insertColoured(Editor& editor, std::string_view text, Colour colour)
{
    const Steps step;
    if (refuseProtected(editor)) return;
    step([&] {
        Side& side = editor.selected();
        Pane& pane = side.pane;
        if (pane.SelLength() != 0) pane.setSelText("");
        setFontAndColour(editor, pane, colour);
        pane.setSelText(text);
        side.Caret = pane.SelStart();
        side.SelectionLength = 0;
        setFontAndColour(editor, pane, 0);
        pane.SetFocus();
    });
}

/// Plain text at the caret; a selection stays where it is.
void insertBlack(Editor& editor, std::string_view text)
{
    if (refuseProtected(editor)) return;
    Side& side = editor.selected();
    side.pane.setSelStart(side.pane.SelStart());
    side.pane.setSelColor(0);
    side.pane.setSelText(text);
    side.Caret = side.pane.SelStart();
}

} // namespace

void BeginColInsert(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_BeginColInsert");
    if (refuseProtected(editor)) return;
    endBlinking(editor);
    if (editor.TimerColour.Enabled) editor.TimerColour.Tick(); // what was just written waits for its colours no longer
    step([&] {
        editor.insertion.Writing.emplace(editor.shared);
        storeStateBeforeWrite(editor, editor.selected());
    });
}

void EndColInsert(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_EndColInsert");
    editor.insertion.Writing.reset();
    Side& side = editor.selected();
    if (side.pane.Locked) return; // nothing was written
    step([&] { writeAsOneLevel(side, [&] { textChanged(editor, side); }); });
    step([&] { UpdateUndoRedoMenus(editor); });
}

void InsertColouredString(Editor& editor, std::string_view text, Colour colour)
{
    insertColoured(editor, text, editor.selected().tab == editor.joystick.tab ? colour : 0);
}

void InsertColouredStringNoSpace(Editor& editor, std::string_view text, Colour colour)
{
    insertColoured(editor, text, colour);
}

void InsertBlackBlanks(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_InsertBlackBlanks");
    step([&] { insertBlack(editor, "     "); });
    step([&] { editor.mum.Picture1 = editor.shared.DefaultTextColour; });
}

void InsertCarriageReturn(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_InsertCarriageReturn");
    step([&] { insertBlack(editor, "\r\n"); });
}

void InsertBlackText(Editor& editor)
{
    editor.mum.Picture1 = editor.shared.DefaultTextColour;
    AddSpaceToColouredText(editor);
    InsertColouredStringNoSpace(editor, editor.insertion.InsertText, editor.shared.DefaultTextColour);
}

void AddSpaceToColouredText(Editor& editor)
{
    const Steps step;
    step([&] {
        const Pane& pane = editor.selected().pane;
        if (pane.SelLength() != 0 || pane.SelStart() == 0) return;
        const std::string_view before = Mid(pane.Text(), pane.SelStart(), 1);
        if (before != " " && before != "\n") editor.insertion.InsertText.insert(0, " ");
    });
}

void CheckAtLineBeginning(Editor& editor)
{
    const Steps step;
    if (refuseProtected(editor)) return;
    step([&] {
        Side& side = editor.selected();
        Pane& pane = side.pane;
        if (pane.TextLength() == 0 || pane.SelLength() != 0) return;
        const std::int64_t nextLine = pane.GetLineFromChar(pane.SelStart()) + 1;
        const std::int64_t next =
            nextLine < pane.lineCount() ? pane.lineStart(nextLine) : static_cast<std::int64_t>(pane.TextLength()) + 1;
        // At the end of a line the caret stands two places before the next one. Without a next line it stands one
        // place before; the place before the last character passes for the end there.
        if (pane.SelStart() == next - 2 || pane.SelStart() == next - 1) return;
        pane.setSelStart(next - 1);
        InsertCarriageReturn(editor);
        side.Caret = pane.SelStart();
        side.SelectionLength = 0;
        pane.SetFocus();
        showLineNumber(editor, side, pane.SelStart());
    });
}

} // namespace tarvex
