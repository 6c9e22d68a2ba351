#include "language/commands/macro_keys.h"

#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

bool beginsWith(std::string_view line, std::string_view start)
{
    const auto lower = [](char character) { return windows1252Lower[static_cast<unsigned char>(character)]; };
    return line.size() >= start.size() && std::ranges::equal(line.substr(0, start.size()), start, {}, lower, lower);
}

} // namespace

const std::string* definitionOf(const std::vector<std::string>& lines, std::string_view name)
{
    const std::string start = std::string(name) + " =";
    const auto line = std::ranges::find_if(lines, [&](const std::string& text) { return beginsWith(text, start); });
    return line == lines.end() ? nullptr : &*line;
}

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
        macro.pane.Find(*line, 0, static_cast<std::int64_t>(macro.pane.TextLength()));
        macro.SelectionLength = static_cast<std::int32_t>(macro.pane.SelLength());
        macro.Caret = static_cast<float>(macro.pane.SelStart());
    });
}

} // namespace tarvex
