#include "composer/find_button.h"

#include "composer/insertion.h"
#include "documents/editing/line_highlight.h"
#include "language/commands/side_caret.h"
#include "language/statements.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

constexpr std::array<std::string_view, 6> wholeWords{"RNG", "ANT", "RDDR", "JSX", "JSY", "THR"};

bool isWholeWord(std::string_view text)
{
    return std::ranges::any_of(wholeWords,
                               [text](std::string_view word) { return text.find(word) != std::string_view::npos; });
}

/// The line at the caret flashes, or the whole definition where the user wants that.
void highlight(InsertOptions& window, std::string_view text)
{
    Editor& editor = window.editor;
    Pane& pane = editor.joystick.pane;
    const std::int64_t caret = pane.SelStart();
    const std::string_view head = text.substr(0, text.find_last_not_of(' ') + 1);
    const bool definition = window.InsertNeeded == 0 && editor.shared.settings.HighlightDefinitions == 1 &&
                            selectStatement(pane, head, Steps());
    const std::int64_t start = pane.SelStart();
    const std::int64_t length = pane.SelLength();
    putCaret(editor.joystick, caret);
    if (definition)
        flashText(editor, start, length);
    else
        flashLine(editor);
}

} // namespace

void FindButton(InsertOptions& window, std::string_view text)
{
    Editor& editor = window.editor;
    const Steps step(editor.shared.errors, "COMPOSER FindButton");
    Side& side = editor.joystick;
    window.InsertNeeded = 1;
    if (side.pane.TextLength() == 0 || editor.shared.settings.AlwaysInsert == 1) return;
    leaveShownUse(window);
    endBlinking(editor);
    if (editor.TabStrip1.SelectedItem != side.tab) step([&] { editor.TabStrip1.Select(side.tab); });
    step([&] {
        const std::int64_t kept = side.Caret;
        const std::int64_t found = side.pane.Find(text, 0, Pane::toEnd, isWholeWord(text) ? find::wholeWord : 0);
        if (found < 0) return putCaret(side, kept);
        putCaret(side, found + static_cast<std::int64_t>(text.size()));
        window.InsertNeeded = 0;
    });
    step([&] { highlight(window, text); });
}

} // namespace tarvex
