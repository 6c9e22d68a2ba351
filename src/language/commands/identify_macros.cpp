#include "language/commands/identify_macros.h"

#include "language/commands/macro_lists.h"
#include "language/macros_used.h"
#include "platform/windows1252.h"

#include <unordered_map>

namespace tarvex {

namespace {

/// The joystick text in the hidden pane, where a search doesn't move the caret of the user.
class SearchedText {
public:
    explicit SearchedText(Editor& editor) : m_pane(editor.TempRichTextBox)
    {
        m_pane.setText(std::string(blanksBeforeText) + editor.JoystickText.Text());
    }
    ~SearchedText() { m_pane.setText(""); }
    SearchedText(const SearchedText&) = delete;
    SearchedText& operator=(const SearchedText&) = delete;

    /// A name stands in several lists, and is searched once.
    bool uses(const std::string& name)
    {
        const auto [known, isNew] = m_known.try_emplace(name);
        if (isNew) known->second = isMacroUsed(m_pane, windows1252FromUtf8(name));
        return known->second;
    }

private:
    Pane& m_pane;
    std::unordered_map<std::string, bool> m_known;
};

/// Sets all ticks of a list and notifies its view once.
template <typename Ticked> void tick(CheckListBox& list, Ticked ticked)
{
    std::vector<CheckListBox::Item> items = list.Items;
    for (CheckListBox::Item& item : items) item.Selected = ticked(item.Text);
    list.Items = std::move(items);
}

void refuseToAnalyse(Editor& editor)
{
    editor.platform.dialogues.show(
        {.title = "You're kidding me...right?!", .text = std::string(nothingToIdentify), .icon = BoxIcon::Exclamation});
}

} // namespace

void ClearMacroTicks(Editor& editor)
{
    const Steps step;
    for (CheckListBox& list : editor.FrameMacros.List1)
        step([&] { tick(list, [](const std::string&) { return false; }); });
}

void IdentifyMacrosUsed(Editor& editor)
{
    const Steps step;
    if (!canIdentify(editor.JoystickText, editor.MacroText)) return refuseToAnalyse(editor);
    step([&] { ClearMacroTicks(editor); });
    editor.status("Analysing the macros you've already assigned in the " + editor.joystick.FileName +
                  ". Please wait ...");
    editor.platform.desktop.showHourglass(true);
    step([&] {
        SearchedText text(editor);
        for (CheckListBox& list : editor.FrameMacros.List1) {
            if (!list.Items.get().empty()) editor.macros.SelectedMacro = list.Items.get().back().Text;
            tick(list, [&](const std::string& name) { return text.uses(name); });
        }
    });
    showAllMacros(editor);
    editor.macros.MacroListDirty = 1;
    editor.status("Finished analysing the macros assigned in your joystick file...phew!...fancy a beer?");
    editor.platform.desktop.showHourglass(false);
}

void IdentifyMacrosIfAny(Editor& editor)
{
    canIdentify(editor.JoystickText, editor.MacroText) ? IdentifyMacrosUsed(editor) : ClearMacroTicks(editor);
}

} // namespace tarvex
