#include "documents/editing/line_highlight.h"

#include "documents/pair/document_status.h"

namespace tarvex {

namespace {

/// Length of a line without its CR LF.
std::int64_t lineLength(const Pane& pane, std::int64_t line)
{
    constexpr std::int64_t lineEnd = 2;
    if (line + 1 < pane.lineCount()) return pane.lineStart(line + 1) - lineEnd - pane.lineStart(line);
    return static_cast<std::int64_t>(pane.TextLength()) - pane.lineStart(line);
}

Side& blinkingSide(Editor& editor) { return editor.BlinkTab == editor.joystick.tab ? editor.joystick : editor.macro; }

/// At the line's beginning, or where it was before a flash that keeps it.
void caretBack(Editor& editor)
{
    Side& side = blinkingSide(editor);
    side.pane.setSelStart(side.Caret);
    editor.HighlightLength = 0;
}

void highlightAgain(Editor& editor)
{
    if (!editor.Flash) return HighlightLineAtIP(editor);
    Pane& pane = blinkingSide(editor).pane;
    pane.setSelStart(editor.Flash->start);
    pane.setSelLength(editor.Flash->length);
    editor.HighlightLength = editor.Flash->length;
}

void startBlinking(Editor& editor)
{
    editor.BlinkStep = 0;
    editor.BlinkTab = editor.selected().tab;
    editor.TimerBlinkLine.Enabled = true;
}

} // namespace

void HighlightLineAtIP(Editor& editor)
{
    Side& side = editor.selected();
    Pane& pane = side.pane;
    if (pane.TextLength() == 0) return;
    const std::int64_t line = pane.GetLineFromChar(pane.SelStart());
    const std::int64_t start = pane.lineStart(line);
    editor.HighlightLength = lineLength(pane, line);
    pane.setSelStart(start);
    pane.setSelLength(editor.HighlightLength);
    side.Caret = start;
    showLineNumber(editor, side, start);
}

void blinkLineAtIP(Editor& editor)
{
    if (editor.selected().pane.TextLength() == 0) return;
    if (editor.BlinkTab != editor.selected().tab) endBlinking(editor);
    editor.Flash.reset();
    HighlightLineAtIP(editor);
    startBlinking(editor);
}

void flashText(Editor& editor, std::int64_t start, std::int64_t length)
{
    endBlinking(editor);
    Side& side = editor.selected();
    side.Caret = side.pane.SelStart();
    editor.Flash = {start, length};
    startBlinking(editor);
    highlightAgain(editor);
}

void flashLine(Editor& editor)
{
    const Pane& pane = editor.selected().pane;
    if (pane.TextLength() == 0) return;
    const std::int64_t line = pane.GetLineFromChar(pane.SelStart());
    flashText(editor, pane.lineStart(line), lineLength(pane, line));
}

void mnuViewHighlightLine_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuViewHighlightLine_Click");
    step([&] { blinkLineAtIP(editor); });
}

void TimerBlinkLine_Timer(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_TimerBlinkLine_Timer");
    step([&] {
        if (editor.selected().tab != editor.BlinkTab) return endBlinking(editor); // the user went to the other pane
        switch (editor.BlinkStep) {
        case 0:
        case 2:
            ++editor.BlinkStep;
            caretBack(editor);
            break;
        case 1:
            ++editor.BlinkStep;
            highlightAgain(editor);
            break;
        default:
            editor.TimerBlinkLine.Enabled = false;
        }
    });
}

void endBlinking(Editor& editor)
{
    if (!editor.TimerBlinkLine.Enabled) return;
    editor.TimerBlinkLine.Enabled = false;
    caretBack(editor);
}

bool flashesForCaret(const Editor& editor, const Side& side)
{
    return editor.Flash && editor.TimerBlinkLine.Enabled && editor.BlinkTab == side.tab;
}

void recordCaret(const Editor& editor, Side& side)
{
    if (!flashesForCaret(editor, side)) side.Caret = side.pane.SelStart();
}

void stopBlinking(Editor& editor, const Side& side)
{
    if (side.tab == editor.BlinkTab) editor.TimerBlinkLine.Enabled = false;
}

std::optional<std::int64_t> startOfLine(const Pane& pane, std::int64_t lineNumber)
{
    if (lineNumber < 1 || lineNumber > pane.lineCount()) return std::nullopt;
    return pane.lineStart(lineNumber - 1);
}

void HighlightErrorLine(Editor& editor, std::int64_t lineNumber)
{
    Pane& pane = editor.JoystickText;
    const auto start = startOfLine(pane, lineNumber);
    if (!start) {
        editor.platform.dialogues.show(
            {.title = "Hmmm....bizarre...", .text = "The line number is invalid", .icon = BoxIcon::Exclamation});
        return;
    }
    editor.joystick.ErrorLine.set(lineNumber - 1);
    if (editor.TabStrip1.SelectedItem != editor.joystick.tab) editor.TabStrip1.Select(editor.joystick.tab);
    pane.setSelStart(*start);
    blinkLineAtIP(editor);
    editor.Jumped(editor.joystick);
}

} // namespace tarvex
