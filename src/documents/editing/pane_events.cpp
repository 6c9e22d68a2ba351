#include "documents/editing/pane_events.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/pane_keys.h"
#include "documents/editing/pane_menu.h"
#include "documents/pair/document_status.h"
#include "documents/pair/noted_caret.h"
#include "platform/input.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

/// Help on the word that is selected, else all help.
void askForHelp(Editor& editor, const Side& side)
{
    if (side.pane.SelLength() > 0)
        editor.operations.HelpKeyword(utf8FromWindows1252(side.pane.SelText()));
    else
        editor.menus.mnuHelpContents.Click();
}

bool runCtrlKey(Editor& editor, Side& side, std::string_view keys)
{
    recordCaret(editor, side);
    if (keys != "Ctrl+Tab") return pressPaneKey(editor, keys);
    selectOtherTab(editor);
    return true;
}

} // namespace

bool Text_KeyDown(Editor& editor, Side& side, std::string_view keys)
{
    const Steps step(editor.shared.errors, byKind(side, "ED_JoystickText_KeyDown", "ED_MacroText_KeyDown"));
    bool swallowed = false;
    if (keys.starts_with("Ctrl+")) step([&] { swallowed = runCtrlKey(editor, side, keys); });
    if (swallowed) return true;
    step([&] { showCaretLine(editor, side); });
    if (keys == "Esc") popUpInsertMenu(editor, step);
    if (keys == "F1") step([&] { askForHelp(editor, side); });
    return keys == "Esc" || keys == "F1";
}

void Text_KeyUp(Editor& editor, Side& side)
{
    const Steps step(editor.shared.errors, byKind(side, "ED_JoystickText_KeyUp", "ED_MacroText_KeyUp"));
    step([&] {
        if (flashesForCaret(editor, side)) return; // the key was pressed in another window, and found what flashes
        editor.HighlightLength = side.pane.SelLength();
        noteCaret(editor, side);
    });
}

void Text_Click(Editor& editor, Side& side)
{
    const Steps step(editor.shared.errors, byKind(side, "ED_JoystickText_Click", "ED_Macrotext_Click"));
    step([&] {
        if (editor.mum.MousePointer == MousePointer::ArrowQuestion)
            editor.operations.UpdateCCPButtons();
        else
            noteCaret(editor, side);
    });
}

void Text_MouseDown(Editor& editor, Side& side, int button, bool atCaret)
{
    const Steps step(editor.shared.errors, byKind(side, "ED_JoystickText_MouseDown", "ED_MacroText_MouseDown"));
    step([&] {
        showEditingText(editor);
        if (button == mouseButton::right) popUpPaneMenu(editor, side, atCaret);
    });
}

} // namespace tarvex
