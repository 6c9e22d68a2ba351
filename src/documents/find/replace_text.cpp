#include "documents/find/replace_text.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/find/find_text.h"
#include "documents/pair/loading.h"
#include "documents/pair/protected_pane.h"
#include "platform/text.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

void takeReplacement(FindAndReplace& window)
{
    window.ReplaceText = withWindowsLineEnds(windows1252FromUtf8(window.ComboTextReplaceWith.Text.get()));
    if (!window.ReplaceText.empty()) addToHistory(window.ComboTextReplaceWith);
}

/// The user goes on with a search; a button that greys under the keyboard would hand it to the next one, Close.
void offerNoReplacement(FindAndReplace& window)
{
    window.Command3.SetFocus();
    window.Command5.Enabled = false;
    window.Command6.Enabled = false;
}

void showProgress(ProgressBar& progress, const Pane& pane, std::int64_t value)
{
    progress.Max = static_cast<int>(pane.TextLength());
    progress.Value = static_cast<int>(value);
}

/// Number of replacements behind the first. The document's caret stands behind the last.
std::int64_t replaceAll(FindAndReplace& window, Side& side)
{
    Pane& pane = side.pane;
    ProgressBar& progress = window.editor.mum.ProgressBar1;
    progress.Visible = true;
    progress.Min = 0;
    showProgress(progress, pane, 0);
    window.FoundPosition = static_cast<std::int32_t>(pane.Find(window.SearchText, 0, Pane::toEnd, window.FindOptions));
    takeReplacement(window);
    pane.setSelText(window.ReplaceText);
    std::int64_t caret = window.FoundPosition + static_cast<std::int64_t>(window.ReplaceText.size());
    showProgress(progress, pane, caret);
    std::int64_t count = 0;
    if (!endsSearch(window.FoundPosition)) {
        const Pane::Replaced replaced =
            pane.replaceEach(window.SearchText, window.ReplaceText, caret, window.FindOptions,
                             [](std::int64_t position) { return !endsSearch(static_cast<std::int32_t>(position)); });
        window.FoundPosition = static_cast<std::int32_t>(replaced.found);
        caret = replaced.caret;
        count = replaced.count;
        showProgress(progress, pane, caret);
    }
    progress.Visible = false;
    side.Caret = caret;
    return count;
}

void showReplaced(FindAndReplace& window, Side& side, std::int64_t count)
{
    window.editor.platform.dialogues.show(
        {.title = "Replaced 'em all for you. Now buy me a drink",
         .text = std::to_string(count) + " replacements were made in " + window.editor.tabCaption(side),
         .icon = BoxIcon::Information});
}

} // namespace

void ReplaceText(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND ReplaceText");
    step([&] {
        Editor& editor = window.editor;
        endBlinking(editor);
        takeReplacement(window);
        Side& side = chosenSide(window, replacePage(window));
        if (refuseProtected(editor, side)) return;
        writeAsOneLevel(side, [&] { side.pane.setSelText(window.ReplaceText); });
        side.Caret += static_cast<std::int64_t>(window.ReplaceText.size());
    });
}

void Command5_Click(FindAndReplace& window)
{
    ReplaceText(window);
    offerNoReplacement(window);
}

void Command6_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND Command6_Click");
    step([&] {
        Editor& editor = window.editor;
        endBlinking(editor);
        const FindPage page = replacePage(window);
        if (!takeSearchText(window, page)) return;
        Side& side = chosenSide(window, page);
        if (!holdsText(window, side) || refuseProtected(editor, side)) return;
        {
            const Loading loading(editor.shared);
            if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab);
            takeFindOptions(window, page);
            showReplaced(window, side, replaceAll(window, side));
            page.find.Caption = findFirst;
            step([&] { side.pane.setSelStart(side.Caret); });
            offerNoReplacement(window);
        }
        writeAsOneLevel(side, [&] { textChanged(editor, side); });
    });
}

} // namespace tarvex
