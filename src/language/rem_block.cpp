#include "language/rem_block.h"

#include "documents/tabs.h"
#include "language/coloured_insertion.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

constexpr std::string_view comment = "Rem ";

struct Lines {
    std::int64_t first;
    std::int64_t last;
};

/// Lines, from 0, of the selection's two ends.
Lines selectedLines(const Pane& pane)
{
    return {pane.GetLineFromChar(pane.SelStart()), pane.GetLineFromChar(pane.SelStart() + pane.SelLength())};
}

void putCaret(Side& side, std::int64_t position)
{
    side.pane.setSelStart(position);
    side.Caret = static_cast<float>(position);
    side.SelectionLength = 0;
}

void commentOut(Editor& editor, Side& side, std::int64_t line)
{
    side.pane.setSelStart(side.pane.lineStart(line));
    if (editor.menus.mnuInsertWithColour.Checked) side.pane.setSelColor(editor.shared.settings.RemStatements);
    side.pane.setSelText(comment);
}

/// Takes "Rem " from the line's beginning, or "Rem" where no blank follows.
void uncomment(Pane& pane, std::int64_t line)
{
    for (const std::string_view start : {comment, comment.substr(0, comment.size() - 1)}) {
        pane.setSelStart(pane.lineStart(line));
        pane.setSelLength(static_cast<std::int64_t>(start.size()));
        if (lowerWindows1252(pane.SelText()) == lowerWindows1252(start)) return pane.setSelText("");
    }
}

} // namespace

void RemBlockCommon(Editor& editor)
{
    const Steps step;
    step([&] {
        Side& side = editor.selected();
        const std::int64_t caret = side.pane.SelStart();
        commentOut(editor, side, side.pane.GetLineFromChar(caret));
        putCaret(side, caret + static_cast<std::int64_t>(comment.size()));
        side.pane.SetFocus();
    });
}

void REMblock(Editor& editor)
{
    const Steps step;
    Side& side = editor.selected();
    const std::int64_t caret = side.pane.SelStart();
    side.Caret = static_cast<float>(caret);
    const Lines lines = selectedLines(side.pane);
    if (lines.first == lines.last) return RemBlockCommon(editor);

    BeginColInsert(editor);
    for (std::int64_t line = lines.first; line <= lines.last; ++line) {
        step([&] { commentOut(editor, side, line); });
    }
    step([&] {
        putCaret(side, caret + static_cast<std::int64_t>(comment.size()));
        showLineNumber(editor, side, side.pane.SelStart());
        side.pane.SetFocus();
    });
    EndColInsert(editor);
}

void REMunblock(Editor& editor)
{
    const Steps step;
    Side& side = editor.selected();
    const std::int64_t caret = side.pane.SelStart();
    const Lines lines = selectedLines(side.pane);
    BeginColInsert(editor);
    for (std::int64_t line = lines.first; line <= lines.last; ++line) {
        step([&] { uncomment(side.pane, line); });
    }
    step([&] {
        putCaret(side, caret);
        showLineNumber(editor, side, side.pane.SelStart());
    });
    EndColInsert(editor);
}

} // namespace tarvex
