#include "documents/editing/pane_events.h"

#include "documents/editing/pane_keys.h"
#include "documents/editing/pane_menu.h"
#include "documents/pair/document_status.h"
#include "documents/pair/tabs.h"
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
    side.Caret = side.pane.SelStart();
    if (keys != "Ctrl+Tab") return pressPaneKey(editor, keys);
    selectOtherTab(editor);
    return true;
}

bool keyDown(Editor& editor, Side& side, std::string_view keys, const Steps& step)
{
    bool swallowed = false;
    if (keys.starts_with("Ctrl+")) step([&] { swallowed = runCtrlKey(editor, side, keys); });
    if (swallowed) return true;
    showLineNumber(editor, side, side.pane.SelStart());
    if (keys == "Esc") popUpInsertMenu(editor, step);
    if (keys == "F1") step([&] { askForHelp(editor, side); });
    return keys == "Esc" || keys == "F1";
}

void keyUp(Editor& editor, Side& side)
{
    editor.HighlightLength = side.pane.SelLength();
    noteCaret(editor, side);
}

void click(Editor& editor, Side& side)
{
    if (editor.mum.MousePointer == MousePointer::ArrowQuestion)
        editor.operations.UpdateCCPButtons();
    else
        noteCaret(editor, side);
}

void mouseDown(Editor& editor, const Side& side, int button, bool atCaret)
{
    showEditingText(editor);
    if (button == mouseButton::right) popUpPaneMenu(editor, side, atCaret);
}

} // namespace

bool JoystickText_KeyDown(Editor& editor, std::string_view keys)
{
    return keyDown(editor, editor.joystick, keys, Steps(editor.shared.errors, "ED_JoystickText_KeyDown"));
}

bool MacroText_KeyDown(Editor& editor, std::string_view keys)
{
    return keyDown(editor, editor.macro, keys, Steps(editor.shared.errors, "ED_MacroText_KeyDown"));
}

void JoystickText_KeyUp(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_JoystickText_KeyUp");
    step([&] { keyUp(editor, editor.joystick); });
}

void MacroText_KeyUp(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_MacroText_KeyUp");
    step([&] { keyUp(editor, editor.macro); });
}

void JoystickText_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_JoystickText_Click");
    step([&] { click(editor, editor.joystick); });
}

void MacroText_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_Macrotext_Click");
    step([&] { click(editor, editor.macro); });
}

void JoystickText_MouseDown(Editor& editor, int button, bool atCaret)
{
    const Steps step(editor.shared.errors, "ED_JoystickText_MouseDown");
    step([&] { mouseDown(editor, editor.joystick, button, atCaret); });
}

void MacroText_MouseDown(Editor& editor, int button, bool atCaret)
{
    const Steps step(editor.shared.errors, "ED_MacroText_MouseDown");
    step([&] { mouseDown(editor, editor.macro, button, atCaret); });
}

} // namespace tarvex
