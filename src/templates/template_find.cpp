#include "templates/template_find.h"

#include "platform/windows1252.h"
#include "shell/handler.h"

namespace tarvex {

namespace {

int optionsOf(const TemplateFind& find)
{
    return (find.MatchCase.Value ? find::matchCase : 0) + (find.WholeWord.Value ? find::wholeWord : 0);
}

/// Position of the last match that lies in the first `end` characters; -1: there is none.
std::int64_t lastMatch(const Pane& pane, const std::string& what, std::int64_t end, int options)
{
    Pane scratch; // the selection that the user sees doesn't run through all matches
    scratch.setText(pane.Text());
    std::int64_t last = -1;
    for (std::int64_t at = scratch.Find(what, 0, end, options); at >= 0; at = scratch.Find(what, at + 1, end, options))
        last = at;
    return last;
}

struct Match {
    std::int64_t at;
    bool beyondTheEnd; ///< of the text, or its beginning: the search went on at the other one
};

Match nextMatch(const Pane& pane, const std::string& what, int options)
{
    Pane scratch;
    scratch.setText(pane.Text());
    const std::int64_t behind = scratch.Find(what, pane.SelStart() + pane.SelLength(), Pane::toEnd, options);
    if (behind >= 0) return {behind, false};
    return {scratch.Find(what, 0, Pane::toEnd, options), true};
}

Match previousMatch(const Pane& pane, const std::string& what, int options)
{
    const std::int64_t before = lastMatch(pane, what, pane.SelStart(), options);
    if (before >= 0) return {before, false};
    return {lastMatch(pane, what, static_cast<std::int64_t>(pane.TextLength()), options), true};
}

/// Selects a match, or says that there is none. Without a text to look for, asks for one.
void select(TemplateForm& window, Match (*search)(const Pane& pane, const std::string& what, int options))
{
    const std::string& words = window.Find.What.Text;
    const std::string what = windows1252FromUtf8(words);
    if (what.empty()) return mnuFind_Click(window);
    Pane& pane = window.TemplateText;
    const int options = optionsOf(window.Find);
    const Match match = search(pane, what, options);
    if (match.at < 0) {
        window.editor.platform.dialogues.show({.title = "Text not found",
                                               .text = "\"" + words + "\" not found in " + window.TemplateName,
                                               .icon = BoxIcon::Information});
        return;
    }
    pane.Find(what, match.at, Pane::toEnd, options);
    if (match.beyondTheEnd) window.editor.status("That was all of it, so I went round once more");
}

} // namespace

void wireTemplateFind(TemplateForm& window)
{
    window.mnuFind.handler = on(window, mnuFind_Click);
    window.mnuFindNext.handler = on(window, mnuFindNext_Click);
    window.mnuFindPrevious.handler = on(window, mnuFindPrevious_Click);
    window.Find.Next.handler = on(window, mnuFindNext_Click);
    window.Find.Previous.handler = on(window, mnuFindPrevious_Click);
    window.Find.Close.handler = on(window, closeTemplateFind);
    window.form.Escape = [&window] { window.Find.Visible ? closeTemplateFind(window) : window.form.unload(); };
}

void mnuFind_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuFind_Click");
    step([&] {
        const std::string selected = window.TemplateText.SelText();
        if (!selected.empty() && selected.find('\r') == std::string::npos)
            window.Find.What.Text = utf8FromWindows1252(selected);
        window.Find.Visible = true;
        window.Find.What.SetFocus();
        window.Find.What.SelectAll();
    });
}

void mnuFindNext_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuFindNext_Click");
    step([&] { select(window, nextMatch); });
}

void mnuFindPrevious_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuFindPrevious_Click");
    step([&] { select(window, previousMatch); });
}

void closeTemplateFind(TemplateForm& window)
{
    window.Find.Visible = false;
    window.TemplateText.SetFocus();
}

} // namespace tarvex
