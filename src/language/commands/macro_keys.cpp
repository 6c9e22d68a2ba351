#include "language/commands/macro_keys.h"

#include "documents/editing/line_highlight.h"
#include "language/macro_file_lines.h"
#include "platform/windows1252.h"

namespace tarvex {

void ShowMacroKeys(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_ShowMacroKeys");
    step([&] {
        const MacroRecord& record = editor.macros;
        const std::string* line = definitionOf(record.MacroFileLines, windows1252FromUtf8(record.SelectedMacro));
        if (!line) return;
        editor.status(utf8FromWindows1252(*line));
        Side& macro = editor.macro;
        if (editor.selected().tab != macro.tab && !editor.menus.mnuViewTileVertically.Checked) return;
        endBlinking(editor); // its next step would take the selection back
        macro.pane.Find(*line, 0, static_cast<std::int64_t>(macro.pane.TextLength()));
        macro.SelectionLength = static_cast<std::int32_t>(macro.pane.SelLength());
        macro.Caret = macro.pane.SelStart();
    });
}

} // namespace tarvex
