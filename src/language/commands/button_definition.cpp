#include "language/commands/button_definition.h"

#include "language/statements.h"

namespace tarvex {

bool ExtractButtonDefinition(Editor& editor, std::string_view head)
{
    const Steps step(editor.shared.errors, "ED_ExtractButtonDefinition");
    Side& side = editor.joystick;
    if (side.pane.TextLength() == 0) return false;
    if (editor.TabStrip1.SelectedItem != side.tab) step([&] { editor.TabStrip1.Select(side.tab); });
    const std::int64_t caret = side.Caret;
    side.Caret = 0;
    bool found = false;
    step([&] {
        found = selectStatement(side.pane, head, step);
        if (found) {
            side.SelectionLength = static_cast<std::int32_t>(side.pane.SelLength());
        } else {
            side.Caret = caret;
            side.pane.setSelStart(caret);
        }
    });
    return found;
}

} // namespace tarvex
