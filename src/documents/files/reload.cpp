#include "documents/files/reload.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/files/file_load.h"
#include "documents/files/line_differences.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "platform/text.h"
#include "platform/utf16.h"

#include <algorithm>

namespace tarvex {

namespace {

/// `removed` characters at `position` give way to `inserted`.
struct Replacement {
    std::int64_t position;
    std::int64_t removed;
    std::string_view inserted;
};

/// From the last to the first, so that each finds its place.
std::vector<Replacement> replacementsOf(std::string_view from, std::string_view to)
{
    constexpr std::size_t most = 500; // each moves the text behind it
    const auto old = linesWithEnds(from);
    const auto now = linesWithEnds(to);
    auto hunks = differingLines(old, now);
    if (hunks.size() > most)
        hunks = {{hunks.front().leftBegin, hunks.back().leftEnd, hunks.front().rightBegin, hunks.back().rightEnd}};

    const auto start = [](std::string_view text, const std::vector<std::string_view>& lines, std::size_t line) {
        return line < lines.size() ? static_cast<std::size_t>(lines[line].data() - text.data()) : text.size();
    };
    std::vector<Replacement> replacements;
    for (auto hunk = hunks.rbegin(); hunk != hunks.rend(); ++hunk) {
        const std::size_t begin = start(from, old, hunk->leftBegin);
        const std::size_t end = start(from, old, hunk->leftEnd);
        const std::size_t first = start(to, now, hunk->rightBegin);
        replacements.push_back({static_cast<std::int64_t>(begin), static_cast<std::int64_t>(end - begin),
                                to.substr(first, start(to, now, hunk->rightEnd) - first)});
    }
    return replacements;
}

/// Where a character stands after a replacement: one within it as near to its old place as there is text.
std::int64_t moved(std::int64_t position, const Replacement& by)
{
    const auto inserted = static_cast<std::int64_t>(by.inserted.size());
    if (position >= by.position + by.removed) return position + inserted - by.removed;
    return std::min(position, by.position + std::max<std::int64_t>(inserted - 1, 0));
}

void write(Editor& editor, Side& side, const Replacement& replacement)
{
    Pane& pane = side.pane;
    pane.setSelStart(replacement.position);
    pane.setSelLength(replacement.removed);
    pane.setSelText(replacement.inserted);
    pane.setSelStart(replacement.position);
    pane.setSelLength(static_cast<std::int64_t>(replacement.inserted.size()));
    if (!replacement.inserted.empty()) applyBaseFormat(editor, pane); // not the colours of what was there
}

void select(Side& side, std::int64_t begin, std::int64_t end)
{
    side.pane.setSelStart(begin);
    side.pane.setSelLength(std::max<std::int64_t>(0, end - begin));
    side.Caret = side.pane.SelStart();
    side.SelectionLength = static_cast<std::int32_t>(side.pane.SelLength());
}

void replaceText(Editor& editor, Side& side, const std::string& text)
{
    const std::string before = side.pane.Text();
    std::int64_t begin = side.pane.SelStart();
    std::int64_t end = begin + side.pane.SelLength();
    for (const Replacement& replacement : replacementsOf(before, text)) {
        write(editor, side, replacement);
        begin = moved(begin, replacement);
        end = moved(end, replacement);
    }
    select(side, begin, end);
}

void listMacrosAnew(Editor& editor, const Steps& step)
{
    step([&] { editor.operations.ClearAllForNewMacroFile(); });
    editor.mum.StatusBar.Panels(panel::macroFile).Text = editor.macro.FileName;
    step([&] { editor.operations.GetEachLineFromMacroFile(); });
    step([&] { editor.operations.ExtractMacrosAndTitles(); });
}

/// The macros used follow either file.
void identifyAnew(Editor& editor, const Steps& step)
{
    if (editor.shared.settings.CheckIdentifyOK == 1)
        step([&] { editor.operations.IdentifyMacrosIfAny(); });
    else
        step([&] { editor.operations.ClearMacroTicks(); });
}

} // namespace

void takeFileText(Editor& editor, Side& side, const std::string& bytes, const std::function<void(Side&)>& colour)
{
    const Steps step(editor.shared.errors, "ED_takeFileText");
    const Loading loading(editor.shared);
    endBlinking(editor);
    storeStateBeforeWrite(editor, side);
    step([&] { replaceText(editor, side, withWindowsLineEnds(textOfFile(bytes))); });
    if (colour && editor.shared.settings.ApplyColoursOnFileOpen == 1) step([&] { colour(side); });
    writeAsOneLevel(side, [&] { recordUndo(editor, side); });
    side.Changed = changed::saved;
    noteTextSettled(editor, side, sumOf(bytes));
    UpdateSavedIcon(editor);
    if (side.tab == editor.macro.tab) listMacrosAnew(editor, step);
    identifyAnew(editor, step);
    if (side.tab == editor.selected().tab) showLineNumber(editor, side, side.pane.SelStart());
    const std::string remark = utf16Remark(side.FileName, bytes);
    editor.status(side.FileName + " is reloaded. If you'd rather have what was here before, press Undo." +
                  (remark.empty() ? "" : ' ' + remark));
}

} // namespace tarvex
