#include "composer/macro_tab.h"

#include "composer/insertion.h"
#include "documents/editing/line_highlight.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/find_macro.h"
#include "language/commands/macro_keys.h"
#include "language/commands/side_caret.h"
#include "language/macro_analysis.h"
#include "platform/input.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

template <typename Work> void tagged(InsertOptions& window, std::string_view tag, Work work)
{
    const Steps step(window.editor.shared.errors, tag);
    step(work);
}

void showList(MacroTab& tab, std::size_t shown)
{
    for (std::size_t i = 0; i < tab.List1.size(); ++i) tab.List1[i].Visible = i == shown;
}

std::vector<CheckListBox::Item> withoutTicks(std::vector<CheckListBox::Item> items)
{
    for (CheckListBox::Item& item : items) item.Selected = false;
    return items;
}

/// False: there is no such entry, or none is picked.
bool pick(InsertOptions& window, std::size_t list)
{
    MacroTab& tab = window.macros;
    if (list >= tab.List1.size()) return false;
    const CheckListBox& box = tab.List1[list];
    const auto row = static_cast<std::size_t>(box.ListIndex.get());
    if (box.ListIndex < 0 || row >= box.Items.get().size()) return false;
    tab.ListClicked = list;
    window.editor.macros.SelectedMacro = box.Items.get()[row].Text;
    return true;
}

MacroTab::Selection selectionOf(const Pane& pane) { return {pane.SelStart(), pane.SelLength()}; }

/// A click shows where the macro is used by selecting that place. A double click must not write over it, so what was
/// selected before is kept.
void showUse(InsertOptions& window, std::size_t list)
{
    if (!pick(window, list)) return;
    MacroTab& tab = window.macros;
    Editor& editor = window.editor;
    endBlinking(editor); // a line that flashes isn't what the user had selected
    const MacroTab::Selection now = selectionOf(editor.JoystickText);
    if (!tab.BeforeClick || now != tab.AfterClick) tab.BeforeClick = now;
    FindMacroInJF(editor);
    ShowMacroKeys(editor);
    tab.AfterClick = selectionOf(editor.JoystickText);
}

std::string textToInsert(const Pane& pane, const std::string& name)
{
    const bool touches =
        pane.SelLength() == 0 && pane.SelStart() != 0 && Mid(pane.Text(), static_cast<long>(pane.SelStart()), 1) != " ";
    return (touches ? " " : "") + name + " ";
}

void insertMacro(InsertOptions& window)
{
    Editor& editor = window.editor;
    Side& side = editor.joystick;
    const Steps step(editor.shared.errors, "COMPOSER List1_DblClick");
    BeginColInsert(editor);
    step([&] {
        side.pane.setSelText(textToInsert(side.pane, windows1252FromUtf8(editor.macros.SelectedMacro)));
        putCaret(side, side.pane.SelStart());
    });
    if (editor.shared.settings.COMPaddCR == 1) InsertCarriageReturn(editor);
    EndColInsert(editor);
    returnFocus(window);
}

} // namespace

void ClearAllForNewMacroFile(InsertOptions& window)
{
    MacroTab& tab = window.macros;
    tab.Combo1.Items = std::vector<std::string>();
    tab.Combo1.Text = std::string();
    tab.List1.resize(1);
    tab.List1.front().Items = std::vector<CheckListBox::Item>();
    tab.List1.front().ListIndex = -1;
    tab.List1.front().Visible = true;
    tab.ListClicked = 0;
    tab.List1Changed();
}

void CopyMacroList(InsertOptions& window)
{
    tagged(window, "COMPOSER CopyMacroList", [&] {
        MacroTab& tab = window.macros;
        Editor& editor = window.editor;
        const std::deque<CheckListBox>& lists = editor.FrameMacros.List1;
        const bool withTicks = editor.shared.settings.COMPMacrosTickedCopy == 1;
        ClearAllForNewMacroFile(window);
        std::size_t shown = 0;
        const std::vector<std::string>& headings = editor.macros.MacroHeadings;
        for (std::size_t i = 0; i < lists.size(); ++i) {
            if (i == tab.List1.size()) tab.List1.emplace_back();
            tab.List1[i].Items = withTicks ? lists[i].Items.get() : withoutTicks(lists[i].Items);
            if (i < headings.size() && headings[i] == allMacros) shown = i;
        }
        tab.Combo1.Items = headings;
        tab.Combo1.Text = headings.empty() ? std::string() : std::string(allMacros);
        showList(tab, shown);
        tab.List1Changed();
        editor.macros.MacroListDirty = 0;
    });
}

void Combo1_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER Combo1_Click", [&] {
        MacroTab& tab = window.macros;
        const std::vector<std::string>& headings = tab.Combo1.Items;
        const auto heading = std::ranges::find(headings, tab.Combo1.Text.get());
        if (heading != headings.end()) showList(tab, static_cast<std::size_t>(heading - headings.begin()));
    });
}

void List1_DblClick(InsertOptions& window, std::size_t list)
{
    tagged(window, "COMPOSER List1_DblClick", [&] {
        Editor& editor = window.editor;
        endBlinking(editor);
        if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
        if (!pick(window, list)) return;
        leaveShownUse(window);
        insertMacro(window);
    });
}

void List1_MouseDown(InsertOptions& window, std::size_t list, int button)
{
    tagged(window, "COMPOSER List1_MouseDown", [&] {
        showUse(window, list);
        if (button == mouseButton::right && pick(window, list))
            window.editor.platform.dialogues.popUp(window.mnuRHList);
    });
}

void List1_MouseMove(InsertOptions& window, std::size_t list, int buttons)
{
    if (buttons != mouseButton::none) tagged(window, "COMPOSER List1_MouseMove", [&] { showUse(window, list); });
}

std::string List1_OLEStartDrag(InsertOptions& window, std::size_t list)
{
    return pick(window, list) ? " " + window.editor.macros.SelectedMacro + " " : std::string();
}

void mnuRHListInsert_Click(InsertOptions& window) { List1_DblClick(window, window.macros.ListClicked); }

void mnuFindInJoyFile_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER mnuFindInJoyFile_Click", [&] {
        if (!pick(window, window.macros.ListClicked)) return;
        window.macros.BeforeClick.reset(); // the user wants to be there
        FindMacroInJF(window.editor);
        returnFocus(window);
    });
}

void mnuRHListEdit_Click(InsertOptions& window)
{
    tagged(window, "COMPOSER mnuRHListEdit_Click", [&] {
        Editor& editor = window.editor;
        if (!pick(window, window.macros.ListClicked)) return;
        if (editor.TabStrip1.SelectedItem != editor.macro.tab) editor.TabStrip1.Select(editor.macro.tab);
        ShowMacroKeys(editor);
        returnFocus(window);
    });
}

void FindMacriInJfile(InsertOptions& window)
{
    tagged(window, "COMPOSER FindMacriInJfile", [&] {
        Side& side = window.editor.joystick;
        const std::string name = windows1252FromUtf8(window.editor.macros.SelectedMacro);
        const std::int64_t found = side.pane.Find(name, 0);
        if (found >= 0) putCaret(side, found + static_cast<std::int64_t>(name.size()));
    });
}

void wireMacroTab(InsertOptions& window)
{
    window.macros.Combo1.Click = [&window] { Combo1_Click(window); };
    window.mnuRHListInsert.handler = [&window] { mnuRHListInsert_Click(window); };
    window.mnuFindInJoyFile.handler = [&window] { mnuFindInJoyFile_Click(window); };
    window.mnuRHListEdit.handler = [&window] { mnuRHListEdit_Click(window); };
}

} // namespace tarvex
