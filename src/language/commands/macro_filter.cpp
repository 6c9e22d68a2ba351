#include "language/commands/macro_filter.h"

#include "platform/windows1252.h"

namespace tarvex {

bool passesFilter(const FrameMacros& frame, const std::string& macro)
{
    const std::string& wanted = frame.Filter.Text;
    if (!frame.FilterVisible || wanted.empty()) return true;
    return lowerUtf8(macro).find(lowerUtf8(wanted)) != std::string::npos;
}

void mnuViewFilterMacros_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuViewFilterMacros_Click");
    step([&] {
        if (!editor.menus.mnuViewMacros.Checked) editor.menus.mnuViewMacros.Click();
        editor.FrameMacros.FilterVisible = true;
        editor.FrameMacros.Filter.SetFocus();
        editor.FrameMacros.Filter.SelectAll();
    });
}

void writeIntoFilter(Editor& editor, const std::string& typed)
{
    const Steps step(editor.shared.errors, "ED_writeIntoFilter");
    step([&] {
        FrameMacros& frame = editor.FrameMacros;
        frame.FilterVisible = true;
        frame.Filter.Text = frame.Filter.Text.get() + typed;
        frame.Filter.SetFocus();
    });
}

void closeFilter(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_closeFilter");
    step([&] {
        editor.selected().pane.SetFocus(); // a box that hides with the keyboard would hand it to the next control
        editor.FrameMacros.Filter.Text = "";
        editor.FrameMacros.FilterVisible = false;
    });
}

} // namespace tarvex
