#include "documents/find/find_bar.h"

#include "documents/editing/line_highlight.h"
#include "documents/find/matches.h"
#include "documents/pair/document_status.h"

#include <algorithm>

namespace tarvex {

namespace {

int optionsOf(const FindBar& bar)
{
    return (bar.MatchCase.Value ? find::matchCase : 0) + (bar.WholeWord.Value ? find::wholeWord : 0);
}

void showCount(FindBar& bar)
{
    if (!bar.Visible) return;
    const MatchMarks& matches = bar.editor.selected().Matches;
    const std::size_t count = matches.positions().size();
    const auto selected = matches.selected();
    if (bar.Text.Text.get().empty())
        bar.Count.Caption = "";
    else if (count == 0)
        bar.Count.Caption = "Not found";
    else if (selected)
        bar.Count.Caption = std::to_string(*selected + 1) + " of " + std::to_string(count);
    else
        bar.Count.Caption = std::to_string(count) + (count == 1 ? " match" : " matches");
}

/// The find window goes on behind this match, too.
void selectMatch(FindBar& bar, std::int64_t position)
{
    Side& side = bar.editor.selected();
    endBlinking(bar.editor);
    side.pane.setSelStart(position);
    side.pane.setSelLength(side.Matches.length());
    side.SelectionLength = static_cast<std::int32_t>(side.Matches.length());
    side.Caret = position + side.Matches.length();
    showLineNumber(bar.editor, side, position);
    bar.editor.Jumped(side);
}

/// The first match from a position on; behind the last one comes the first.
void selectFrom(FindBar& bar, std::int64_t position)
{
    const std::vector<std::int64_t>& all = bar.editor.selected().Matches.positions();
    if (all.empty()) return;
    const auto match = std::ranges::lower_bound(all, position);
    selectMatch(bar, match == all.end() ? all.front() : *match);
}

void seekAnew(FindBar& bar)
{
    if (!bar.Visible) return;
    markMatches(bar.editor, bar.Text.Text, optionsOf(bar));
    selectFrom(bar, bar.Anchor);
    showCount(bar);
}

/// What is written later is sought from the caret on.
void anchorAtCaret(FindBar& bar) { bar.Anchor = bar.editor.selected().pane.SelStart(); }

template <typename Work> std::function<void()> step(FindBar& bar, std::string_view tag, Work work)
{
    return [&bar, tag, work] {
        const Steps steps(bar.editor.shared.errors, tag);
        steps([&] { work(bar); });
    };
}

void follow(FindBar& bar)
{
    Editor& editor = bar.editor;
    bar.connections.push_back(bar.Text.Text.changed.connect(step(bar, "FINDBAR Text_Change", seekAnew)));
    bar.connections.push_back(editor.TabStrip1.SelectedItem.changed.connect([&bar] {
        anchorAtCaret(bar);
        showCount(bar);
    }));
    for (Side* side : {&editor.joystick, &editor.macro}) {
        bar.connections.push_back(side->Matches.changed.connect([&bar] { showCount(bar); }));
        bar.connections.push_back(side->pane.selectionChanged.connect([&bar] { showCount(bar); }));
    }
}

} // namespace

void wireFindBar(FindBar& bar)
{
    bar.MatchCase.Caption = "Match case";
    bar.WholeWord.Caption = "Whole words";
    bar.Previous.Caption = "Previous";
    bar.Next.Caption = "Next";
    bar.Close.Caption = "Close";
    bar.Previous.ToolTipText = "Previous match (Shift+Enter)";
    bar.Next.ToolTipText = "Next match (Enter)";
    bar.Close.ToolTipText = "Close (Esc)";
    bar.Text.GotFocus = [&bar] { anchorAtCaret(bar); };
    bar.MatchCase.Click = step(bar, "FINDBAR MatchCase_Click", seekAnew);
    bar.WholeWord.Click = step(bar, "FINDBAR WholeWord_Click", seekAnew);
    bar.Next.handler = step(bar, "FINDBAR Next_Click", findNextMatch);
    bar.Previous.handler = step(bar, "FINDBAR Previous_Click", findPreviousMatch);
    bar.Close.handler = step(bar, "FINDBAR Close_Click", closeFindBar);
    bar.editor.menus.mnuEditFindBar.handler = step(bar, "ED_mnuEditFindBar_Click", mnuEditFindBar_Click);
    follow(bar);
}

void mnuEditFindBar_Click(FindBar& bar)
{
    const std::string word = selectedWord(bar.editor);
    bar.Visible = true;
    bar.form.MarksElsewhere = true;
    anchorAtCaret(bar);
    if (!word.empty()) bar.Text.Text = word;
    markMatches(bar.editor, bar.Text.Text, optionsOf(bar));
    showCount(bar);
    bar.Text.SetFocus();
    bar.Text.SelectAll();
}

void closeFindBar(FindBar& bar)
{
    bar.editor.selected().pane.SetFocus(); // a bar that hides with the keyboard would hand it to either pane
    bar.Visible = false;
    bar.form.MarksElsewhere = false;
    markFormMatches(bar.form);
}

void findNextMatch(FindBar& bar)
{
    const Side& side = bar.editor.selected();
    const bool onMatch = side.Matches.selected().has_value();
    selectFrom(bar, side.pane.SelStart() + (onMatch ? side.Matches.length() : 0));
    anchorAtCaret(bar);
}

void findPreviousMatch(FindBar& bar)
{
    Side& side = bar.editor.selected();
    const std::vector<std::int64_t>& all = side.Matches.positions();
    if (all.empty()) return;
    const auto behind = std::ranges::lower_bound(all, side.pane.SelStart());
    selectMatch(bar, behind == all.begin() ? all.back() : *(behind - 1));
    anchorAtCaret(bar);
}

} // namespace tarvex
