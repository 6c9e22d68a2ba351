#include "documents/find/find_and_replace.h"

#include "documents/find/find_text.h"
#include "documents/find/goto_line.h"
#include "documents/find/matches.h"
#include "documents/find/replace_text.h"
#include "platform/windows1252.h"
#include "shell/help_topics.h"

namespace tarvex {

namespace {

/// The handler of a control, in resume-next mode: the small handlers report nothing.
template <typename Work> std::function<void()> quietly(Work work)
{
    return [work] {
        const Steps step;
        step(work);
    };
}

void chooseFile(FindAndReplace& window, const FindPage& page, int tab)
{
    page.joystick.Value = tab == window.editor.joystick.tab;
    page.macro.Value = tab == window.editor.macro.tab;
    window.FileChosen = tab;
}

/// A search for another text begins at the top; the check boxes are those of the other tab too.
void wirePage(FindAndReplace& window, const FindPage& page, std::vector<Connection>& connections)
{
    page.find.Caption = findFirst;
    page.joystick.Caption = "Joystick file";
    page.macro.Caption = "Macro file";
    page.matchCase.Caption = "Match case";
    page.wholeWord.Caption = "Find whole words only";
    chooseFile(window, page, window.editor.joystick.tab);
    connections.push_back(page.text.Text.changed.connect([&window, page] {
        page.find.Caption = findFirst;
        markFormMatches(window);
    }));
    page.joystick.Click = quietly([&window, page] { chooseFile(window, page, window.editor.joystick.tab); });
    page.macro.Click = quietly([&window, page] { chooseFile(window, page, window.editor.macro.tab); });
}

/// Two check boxes that are one option of the search; `option` is what it adds to FindOptions while it is on.
void mirror(FindAndReplace& window, CheckBox& a, CheckBox& b, std::int16_t& option)
{
    const auto follow = [&window, &option](const CheckBox& clicked, CheckBox& other) {
        other.Value = clicked.Value.get();
        if (!clicked.Value) option = 0;
        markFormMatches(window);
    };
    a.Click = quietly([&a, &b, follow] { follow(a, b); });
    b.Click = quietly([&a, &b, follow] { follow(b, a); });
}

void wireKeepOnTop(FindAndReplace& window)
{
    for (CheckBox* clicked : {&window.Check6, &window.Check7, &window.Check8}) {
        clicked->Caption = "Keep on top";
        clicked->Click = quietly([&window, clicked] {
            const bool on = clicked->Value;
            for (CheckBox* box : {&window.Check6, &window.Check7, &window.Check8}) box->Value = on;
            window.form.TopMost = on;
        });
    }
}

void wireButtons(FindAndReplace& window)
{
    window.Command5.Caption = "Replace";
    window.Command6.Caption = "Replace All";
    window.Command7.Caption = "Goto";
    window.Command10.Caption = "Help";
    window.Command1.handler = [&window] { Command1_Click(window); };
    window.Command3.handler = [&window] { Command3_Click(window); };
    window.Command5.handler = [&window] { Command5_Click(window); };
    window.Command6.handler = [&window] { Command6_Click(window); };
    window.Command7.handler = [&window] { Command7_Click(window); };
    window.Command10.handler = [&window] {
        window.editor.operations.HelpTopic(helpTopic::findPage + window.SSTab1.SelectedItem - 1);
    };
    for (Button* close : {&window.Command2, &window.Command4, &window.Command8, &window.Command9}) {
        close->Caption = "Close";
        close->handler = [&window] { window.form.unload(); };
    }
}

void focusTab(FindAndReplace& window)
{
    switch (window.SSTab1.SelectedItem) {
    case findTab::find:
        window.ComboTextFind.SetFocus();
        break;
    case findTab::replace:
        window.ComboTextReplaceFind.SetFocus();
        break;
    default:
        window.LineToFind.SetFocus();
        window.LineToFind.SelectAll();
    }
}

void selectFindTab(FindAndReplace& window)
{
    const std::string& sought = window.ComboTextReplaceFind.Text;
    if (!sought.empty()) window.ComboTextFind.Text = sought;
    chooseFile(window, findPage(window), window.FileChosen);
    window.Command1.Caption = findFirst;
}

void selectReplaceTab(FindAndReplace& window)
{
    const std::string& sought = window.ComboTextFind.Text;
    if (!sought.empty()) window.ComboTextReplaceFind.Text = sought;
    chooseFile(window, replacePage(window), window.FileChosen);
    const bool found = window.Command3.Caption != findFirst;
    window.Command5.Enabled = found;
    window.Command6.Enabled = found;
}

/// The word that was just found is sought already, however it was written.
void seekWord(FindAndReplace& window, const std::string& word)
{
    if (word.empty()) return;
    for (ComboBox* text : {&window.ComboTextFind, &window.ComboTextReplaceFind}) {
        if (lowerUtf8(text->Text.get()) != lowerUtf8(word)) text->Text = word;
    }
}

/// Shows a tab of the window, for the document in front. A single word that is selected there is sought.
void open(FindAndReplace& window, int tab)
{
    const std::string word = selectedWord(window.editor);
    window.form.open(); // first, because only what is shown can take the keyboard
    const int document = window.editor.TabStrip1.SelectedItem;
    for (const FindPage& page : {findPage(window), replacePage(window)}) chooseFile(window, page, document);
    if (tab != findTab::line) seekWord(window, word);
    if (window.SSTab1.SelectedItem != tab) {
        window.SSTab1.Select(tab);
    } else {
        focusTab(window);
    }
    window.ComboTextFind.SelectAll();
    window.ComboTextReplaceFind.SelectAll();
}

/// Captions and handlers of the controls.
void wireControls(FindAndReplace& window)
{
    window.form.Caption = "Find and replace";
    window.form.Load = [&window] { Form_Load(window); };
    window.form.Unload = [&window] { Form_Unload(window); };
    window.SSTab1.Tabs(findTab::find).Caption = "Find";
    window.SSTab1.Tabs(findTab::replace).Caption = "Replace";
    window.SSTab1.Tabs(findTab::line).Caption = "Go to line";
    window.SSTab1.Click = [&window] { SSTab1_Click(window); };
    wirePage(window, findPage(window), window.connections);
    wirePage(window, replacePage(window), window.connections);
    mirror(window, window.MatchCaseF, window.MatchCaseR, window.MatchOption);
    mirror(window, window.WholeWordF, window.WholeWordR, window.WordOption);
    wireKeepOnTop(window);
    wireButtons(window);
    window.LineToFind.GotFocus = quietly([&window] { window.LineToFind.SelectAll(); });
}

} // namespace

void wireFindAndReplace(FindAndReplace& window)
{
    wireControls(window);
    Menus& menus = window.editor.menus;
    menus.mnuEditFind.handler = [&window] { mnuEditFind_Click(window); };
    menus.mnuEditReplace.handler = [&window] { mnuEditReplace_Click(window); };
    menus.mnuEditGoto.handler = [&window] { mnuEditGoto_Click(window); };
    window.form.join(window.editor.mum.toolWindows);
}

void Form_Load(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND Form_Load");
    step([&] {
        window.Command1.Caption = findFirst;
        window.Command3.Caption = findFirst;
        window.Command5.Enabled = false;
        window.Command6.Enabled = false;
        window.Command10.Enabled = window.editor.operations.HelpTopic ? true : false;
        window.form.markLoaded();
        markFormMatches(window);
    });
}

void Form_Unload(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND Form_Unload");
    step([&] { window.form.markUnloaded(); });
    step([&] { markFormMatches(window); });
}

void SSTab1_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND SSTab1_Click");
    step([&] {
        if (window.SSTab1.SelectedItem == findTab::find) selectFindTab(window);
        if (window.SSTab1.SelectedItem == findTab::replace) selectReplaceTab(window);
        focusTab(window);
        markFormMatches(window);
    });
}

void mnuEditFind_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "ED_mnuEditFind_Click");
    step([&] { open(window, findTab::find); });
}

void mnuEditReplace_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "ED_mnuEditReplace_Click");
    step([&] { open(window, findTab::replace); });
}

void mnuEditGoto_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "ED_mnuEditGoto_Click");
    step([&] { open(window, findTab::line); });
}

} // namespace tarvex
