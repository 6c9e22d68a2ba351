#include "language/commands/macro_lists.h"

#include "language/macro_analysis.h"
#include "platform/errors.h"

#include <limits>

namespace tarvex {

namespace {

/// The program shows counts as 16-bit numbers; a larger one fails where it is to be shown.
std::int16_t toInt16(std::size_t number)
{
    if (number > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw RuntimeError(ErrorCode::Overflow, "Overflow");
    return static_cast<std::int16_t>(number);
}

void addItems(CheckListBox& list, const MacroNames& names)
{
    std::vector<CheckListBox::Item> items = list.Items;
    items.reserve(items.size() + names.size());
    for (const std::string& name : names) items.push_back({name, false});
    list.Items = std::move(items);
}

/// A loaded list is hidden until its heading is chosen.
void fillLists(FrameMacros& frame, const std::vector<MacroNames>& macros)
{
    for (std::size_t i = 0; i < macros.size(); ++i) {
        if (i == frame.List1.size()) frame.List1.emplace_back().Visible = false;
        addItems(frame.List1[i], macros[i]);
    }
    frame.List1Changed();
}

} // namespace

void bringToFront(FrameMacros& frame, std::size_t list)
{
    for (std::size_t i = 0; i < frame.List1.size(); ++i) frame.List1[i].Visible = i == list;
}

void showAllMacros(Editor& editor)
{
    const Steps step;
    FrameMacros& frame = editor.FrameMacros;
    const std::vector<std::string>& headings = frame.Combo1.Items;
    bool found = false;
    for (std::size_t i = 0; i < headings.size(); ++i) {
        if (headings[i] != allMacros) continue;
        found = true;
        step([&] { editor.macros.HeadingShown = toInt16(i); }); // the last heading of that name counts
    }
    if (!found) return;
    frame.Combo1.Text = allMacros;
    const auto shown = static_cast<std::size_t>(editor.macros.HeadingShown);
    if (shown < frame.List1.size()) bringToFront(frame, shown);
}

void ExtractMacrosAndTitles(Editor& editor)
{
    const Steps step;
    MacroRecord& record = editor.macros;
    FrameMacros& frame = editor.FrameMacros;
    editor.status("Analysing " + editor.macro.FileName + " for macros and sub-headings. Please wait ...");
    step([&] {
        fillLists(frame, extractMacros(record));
        std::vector<std::string> headings = frame.Combo1.Items;
        headings.insert(headings.end(), record.MacroHeadings.begin(), record.MacroHeadings.end());
        frame.Combo1.Items = std::move(headings);
    });
    editor.operations.UpdateEditorTooltips(); // for the lists that were loaded
    editor.status("Done");
    showAllMacros(editor);
    step([&] {
        const std::size_t macros = frame.List1.front().Items.get().size();
        editor.mum.StatusBar.Panels(panel::macroFile).ToolTipText =
            "Contains " + std::to_string(toInt16(macros)) + " macros and " +
            std::to_string(record.MacroHeadings.size() - 1) + " macro headings";
    });
}

void ClearAllForNewMacroFile(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_ClearAllForNewMacroFile");
    step([&] {
        FrameMacros& frame = editor.FrameMacros;
        editor.macros.MacroHeadings.clear();
        editor.macros.ListClicked = 0;
        frame.Combo1.Items = std::vector<std::string>();
        frame.Combo1.Text = std::string();
        frame.List1.resize(1);
        frame.List1.front().Items = std::vector<CheckListBox::Item>();
        frame.List1.front().ListIndex = -1;
        frame.List1.front().Visible = true;
        frame.List1Changed();
        editor.macros.MacroListDirty = 1;
    });
}

} // namespace tarvex
