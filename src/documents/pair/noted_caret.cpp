#include "documents/pair/noted_caret.h"

#include "documents/pair/document_status.h"

namespace tarvex {

namespace {

NotedCaret caretOf(const Side& side)
{
    const std::int64_t start = side.pane.SelStart();
    return {.tab = side.tab,
            .start = start,
            .length = side.pane.SelLength(),
            .line = side.pane.GetLineFromChar(start),
            .colour = side.pane.SelColor()};
}

} // namespace

void noteCaret(Editor& editor, Side& side)
{
    const NotedCaret now = caretOf(side);
    side.Caret = now.start;
    side.SelectionLength = static_cast<std::int32_t>(now.length);
    if (editor.Noted == now) return;
    const bool leftLine = editor.Noted && (editor.Noted->tab != now.tab || editor.Noted->line != now.line);
    showLineNumber(editor, side, now.start);
    showCaretColour(editor);
    editor.operations.UpdateCCPButtons();
    editor.Noted = now;
    if (leftLine) editor.operations.CaretLeftLine();
}

void showCaretLine(Editor& editor, Side& side)
{
    if (editor.Noted != caretOf(side)) showLineNumber(editor, side, side.pane.SelStart());
}

} // namespace tarvex
