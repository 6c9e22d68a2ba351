#include "language/commands/rem_block.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/pair/protected_pane.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/side_caret.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

constexpr std::string_view comment = "Rem ";

struct Lines {
    std::int64_t first;
    std::int64_t last;
};

/// At a line's beginning `removed` characters give way to `inserted`.
struct Change {
    std::int64_t position;
    std::int64_t removed;
    std::string_view inserted;
    FormatId format;
};

/// Lines, from 0, of the selection's two ends.
Lines selectedLines(const Pane& pane)
{
    return {pane.GetLineFromChar(pane.SelStart()), pane.GetLineFromChar(pane.SelStart() + pane.SelLength())};
}

void putCaretAlone(Side& side, std::int64_t position)
{
    putCaret(side, position);
    side.SelectionLength = 0;
}

/// Makes the changes, which come in the order of the text, in one write: line by line each would move all that follows.
void write(Pane& pane, const std::vector<Change>& changes)
{
    std::string text;
    std::vector<FormatRun> runs;
    std::int64_t kept = changes.front().position;
    for (const Change& change : changes) {
        text.append(pane.Text(), static_cast<std::size_t>(kept), static_cast<std::size_t>(change.position - kept));
        for (; kept < change.position; ++kept) appendRun(runs, 1, pane.formatIdAt(static_cast<std::size_t>(kept)));
        text += change.inserted;
        appendRun(runs, change.inserted.size(), change.format);
        kept += change.removed;
    }
    pane.setSelStart(changes.front().position);
    pane.setSelLength(kept - changes.front().position);
    pane.setSelRTF(RichText(pane.formats(), text, runs));
}

/// The format that text typed at the beginning of a line takes; of the first line the caret decides it.
FormatId formatAtStart(Pane& pane, std::int64_t line)
{
    const auto start = static_cast<std::size_t>(pane.lineStart(line));
    if (start < pane.TextLength() && pane.Text()[start] != '\r') return pane.formatIdAt(start);
    if (start > 0) return pane.formatIdAt(start - 1);
    pane.setSelStart(0);
    return pane.formats()->idOf(pane.SelFormat());
}

void commentOut(Editor& editor, Pane& pane, const Lines& lines)
{
    const bool coloured = editor.menus.mnuInsertWithColour.Checked;
    std::vector<Change> changes;
    for (std::int64_t line = lines.first; line <= lines.last; ++line) {
        const FormatId format = formatAtStart(pane, line);
        const FormatId own =
            coloured ? pane.formats()->withColour(format, editor.shared.settings.RemStatements) : format;
        changes.push_back({pane.lineStart(line), 0, comment, own});
    }
    write(pane, changes);
}

/// Length of the comment word at a line's beginning, with a blank behind it; 0 without the word.
std::int64_t commentLength(const Pane& pane, std::int64_t line)
{
    constexpr std::size_t word = comment.size() - 1;
    const std::string_view start =
        std::string_view(pane.Text()).substr(static_cast<std::size_t>(pane.lineStart(line)), comment.size());
    if (lowerWindows1252(start.substr(0, word)) != "rem") return 0;
    if (start.size() > word && windows1252IsWord[static_cast<unsigned char>(start[word])]) return 0;
    return static_cast<std::int64_t>(start.size() > word && start[word] == ' ' ? comment.size() : word);
}

std::vector<Change> uncommenting(const Pane& pane, const Lines& lines)
{
    std::vector<Change> changes;
    for (std::int64_t line = lines.first; line <= lines.last; ++line) {
        const std::int64_t length = commentLength(pane, line);
        if (length > 0) changes.push_back({pane.lineStart(line), length, {}, 0});
    }
    return changes;
}

} // namespace

void RemBlockCommon(Editor& editor)
{
    const Steps step;
    if (refuseProtected(editor)) return;
    step([&] {
        Side& side = editor.selected();
        Pane& pane = side.pane;
        const std::int64_t caret = pane.SelStart();
        pane.setSelStart(pane.lineStart(pane.GetLineFromChar(caret)));
        if (editor.menus.mnuInsertWithColour.Checked) pane.setSelColor(editor.shared.settings.RemStatements);
        writeAsOneLevel(side, [&] { pane.setSelText(comment); });
        putCaretAlone(side, caret + static_cast<std::int64_t>(comment.size()));
        pane.SetFocus();
    });
}

void REMblock(Editor& editor)
{
    const Steps step;
    if (refuseProtected(editor)) return;
    endBlinking(editor); // the lines of a statement that flashes aren't selected
    Side& side = editor.selected();
    const std::int64_t caret = side.pane.SelStart();
    const Lines lines = selectedLines(side.pane);
    if (lines.first == lines.last) return RemBlockCommon(editor);

    BeginColInsert(editor);
    step([&] { commentOut(editor, side.pane, lines); });
    step([&] {
        putCaretAlone(side, caret + static_cast<std::int64_t>(comment.size()));
        showLineNumber(editor, side, side.pane.SelStart());
        side.pane.SetFocus();
    });
    EndColInsert(editor);
}

void REMunblock(Editor& editor)
{
    const Steps step;
    if (refuseProtected(editor)) return;
    endBlinking(editor);
    Side& side = editor.selected();
    const std::int64_t caret = side.pane.SelStart();
    const std::vector<Change> changes = uncommenting(side.pane, selectedLines(side.pane));
    const auto finish = [&] {
        putCaretAlone(side, caret);
        showLineNumber(editor, side, side.pane.SelStart());
    };
    if (changes.empty()) {
        step(finish);
        return;
    }

    BeginColInsert(editor);
    step([&] { write(side.pane, changes); });
    step(finish);
    EndColInsert(editor);
}

} // namespace tarvex
