#include "language/commands/find_macro.h"

#include "documents/editing/line_highlight.h"
#include "platform/windows1252.h"

namespace tarvex {

void FindMacroInJF(Editor& editor)
{
    const Steps step;
    Side& side = editor.joystick;
    Pane& pane = side.pane;
    if (editor.TabStrip1.SelectedItem != side.tab) step([&] { editor.TabStrip1.Select(side.tab); });
    step([&] {
        endBlinking(editor); // its next step would take the selection back
        const std::string name = windows1252FromUtf8(editor.macros.SelectedMacro);
        const auto end = static_cast<std::int64_t>(pane.TextLength());
        if (pane.Find(name + " ", 0, end, find::wholeWord) >= 0)
            pane.setSelLength(pane.SelLength() - 1); // without the blank
        else if (pane.Find(name + "\r", 0, end, find::wholeWord) < 0)
            return;
        side.SelectionLength = static_cast<std::int32_t>(pane.SelLength());
        side.Caret = pane.SelStart();
    });
}

} // namespace tarvex
