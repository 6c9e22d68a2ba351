#include "language/commands/macro_list_events.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/editor_layout.h"
#include "language/commands/find_macro.h"
#include "language/commands/macro_keys.h"
#include "language/commands/macro_lists.h"
#include "language/commands/side_caret.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

void resetSizingPointer(Editor& editor)
{
    if (editor.FrameMacros.MousePointer == MousePointer::SizeWestEast)
        editor.FrameMacros.MousePointer = MousePointer::Default;
}

void prompt(Editor& editor)
{
    resetSizingPointer(editor);
    editor.status("Select a macro heading to view the macros under it");
}

/// False: the list has no such item, or none is picked.
bool pickMacro(Editor& editor, std::size_t list)
{
    if (list >= editor.FrameMacros.List1.size()) return false;
    const CheckListBox& box = editor.FrameMacros.List1[list];
    const auto index = static_cast<std::size_t>(box.ListIndex.get());
    if (box.ListIndex < 0 || index >= box.Items.get().size()) return false;
    editor.macros.SelectedMacro = box.Items.get()[index].Text;
    return true;
}

void showMacro(Editor& editor, std::size_t list, bool findToo)
{
    if (!pickMacro(editor, list)) return;
    ShowMacroKeys(editor);
    if (findToo) FindMacroInJF(editor);
}

void key(Editor& editor, std::size_t list, int shift)
{
    const Steps step(editor.shared.errors, "ED_List1_Key");
    step([&] { showMacro(editor, list, shift == shiftKey::shift); });
}

/// The character before the caret is read through the selection. A caret below 0, which a replacement can leave in the
/// record, is refused by the pane: then it is the character behind the pane's own caret.
bool touchesAWord(Side& side, const Steps& step)
{
    if (side.Caret == 0) return false;
    step([&] { side.pane.setSelStart(side.Caret - 1); });
    side.pane.setSelLength(1);
    return side.pane.SelText() != " ";
}

void insertMacro(Editor& editor, const Steps& step)
{
    Side& side = editor.joystick;
    Pane& pane = side.pane;
    const std::string name = windows1252FromUtf8(editor.macros.SelectedMacro);
    std::string text = name + " ";
    if (pane.SelLength() == 0) {
        if (touchesAWord(side, step)) text.insert(0, " ");
        step([&] { pane.setSelStart(side.Caret); });
    } else {
        side.Caret = pane.SelStart();
    }
    const FormatId black = pane.formats()->withColour(pane.formats()->idOf(pane.SelFormat()), 0);
    // Text and colour in one write: a selection coloured first would be an edit, and an undo level, of its own.
    const RichText coloured(pane.formats(), text, {{static_cast<std::uint32_t>(text.size()), black}});
    writeAsOneLevel(side, [&] { pane.setSelRTF(coloured); });
    // A blank in front isn't counted: the caret then stops before the one behind the name.
    putCaret(side, side.Caret + static_cast<std::int64_t>(name.size()) + 1);
    pane.SetFocus();
}

} // namespace

void Combo1_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_Combo1_Click");
    prompt(editor);
    step([&] {
        const std::string chosen = lowerUtf8(editor.FrameMacros.Combo1.Text.get());
        const std::vector<std::string>& headings = editor.macros.MacroHeadings;
        const auto heading =
            std::ranges::find_if(headings, [&](const std::string& text) { return lowerUtf8(text) == chosen; });
        if (heading == headings.end()) return;
        const auto list = static_cast<std::size_t>(heading - headings.begin());
        bringToFront(editor.FrameMacros, list);
        CheckListBox& box = editor.FrameMacros.List1.at(list);
        if (box.Items.get().empty()) return;
        box.ListIndex = 0;
        showMacro(editor, list, false);
    });
}

void Combo1_GotFocus(Editor& editor) { prompt(editor); }
void Combo1_MouseMove(Editor& editor) { prompt(editor); }

void List1_DblClick(Editor& editor, std::size_t list)
{
    const Steps step(editor.shared.errors, "ED_List1_DblClick");
    step([&] {
        endBlinking(editor);
        if (!editor.JoystickText.Visible) editor.TabStrip1.Select(editor.joystick.tab);
        if (pickMacro(editor, list)) insertMacro(editor, step);
    });
}

void List1_KeyDown(Editor& editor, std::size_t list, int shift) { key(editor, list, shift); }
void List1_KeyUp(Editor& editor, std::size_t list, int shift) { key(editor, list, shift); }

void List1_MouseDown(Editor& editor, std::size_t list, int button, int shift)
{
    const Steps step(editor.shared.errors, "ED_List1_MouseDown");
    step([&] { showMacro(editor, list, button == mouseButton::left && shift == shiftKey::shift); });
    const auto& lists = editor.FrameMacros.List1;
    if (button != mouseButton::right || list >= lists.size() || lists[list].Items.get().empty()) return;
    editor.macros.ListClicked = list;
    step([&] { editor.platform.dialogues.popUp(editor.menus.mnuRHList); });
}

void List1_MouseMove(Editor& editor, std::size_t list, int buttons, int shift, float x)
{
    const Steps step(editor.shared.errors, "ED_List1_MouseMove");
    step([&] {
        const bool sizing = editor.FrameMacros.MousePointer == MousePointer::SizeWestEast;
        if (buttons == mouseButton::left && sizing) return FrameMacros_MouseMove(editor, true, x, true);
        resetSizingPointer(editor);
        if (buttons == mouseButton::none) return;
        showMacro(editor, list, buttons == mouseButton::left && shift == shiftKey::shift);
    });
}

std::string List1_OLEStartDrag(Editor& editor, std::size_t list)
{
    return pickMacro(editor, list) ? " " + editor.macros.SelectedMacro + " " : std::string();
}

void mnuRHListInsert_Click(Editor& editor) { List1_DblClick(editor, editor.macros.ListClicked); }

} // namespace tarvex
