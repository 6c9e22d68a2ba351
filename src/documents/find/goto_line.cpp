#include "documents/find/goto_line.h"

#include "documents/editing/line_highlight.h"
#include "documents/pair/document_status.h"
#include "platform/text.h"

#include <algorithm>

namespace tarvex {

namespace {

void selectLine(Editor& editor, std::int64_t number, std::int64_t start)
{
    Side& side = editor.joystick;
    const auto textEnd = static_cast<std::int64_t>(side.pane.TextLength());
    const std::int64_t length = startOfLine(side.pane, number + 1).value_or(textEnd) - start;
    side.SelectionLength = static_cast<std::int16_t>(length);
    side.Caret = start;
    side.pane.setSelStart(start);
    side.pane.setSelLength(length);
    showLineNumber(editor, side, start);
    editor.Jumped(side);
}

} // namespace

void Command7_Click(FindAndReplace& window)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "FIND Command7_Click");
    step([&] {
        endBlinking(editor);
        Pane& pane = editor.JoystickText;
        const double behindLast = static_cast<double>(pane.lineCount()) + 1;
        const double number = std::clamp(Val(window.LineToFind.Text.get()), 0.0, behindLast); // both no line
        const auto line = static_cast<std::int64_t>(number);
        const auto start = startOfLine(pane, line);
        if (!start) {
            editor.platform.dialogues.show({.title = "Check the value you entered!",
                                            .text = "The line number is invalid",
                                            .icon = BoxIcon::Exclamation});
            window.LineToFind.SetFocus();
            return;
        }
        if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
        selectLine(editor, line, *start);
    });
}

} // namespace tarvex
