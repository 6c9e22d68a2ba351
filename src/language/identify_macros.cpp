#include "language/identify_macros.h"

#include "language/macro_analysis.h"
#include "platform/windows1252.h"

#include <unordered_map>

namespace tarvex {

namespace {

/// The joystick text in the hidden pane, where a search disturbs nobody.
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
        const auto [known, isNew] = m_known.try_emplace(name, false);
        if (isNew) known->second = isMacroUsed(m_pane, windows1252FromUtf8(name));
        return known->second;
    }

private:
    Pane& m_pane;
    std::unordered_map<std::string, bool> m_known;
};

/// Sets all ticks of a list and tells its view once.
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

const std::string_view nothingToIdentify =
    "Oh come off it ... what's there to analyse? You think I'm some kind of slave that you can just push around ... "
    "well no .... computers have feelings you know ... you keep turning me on, and then turning me off ... how would "
    "you like it? !!! Next time I'm going to analyse you instead of these damn files ...";

bool canIdentify(const Pane& joystick, const Pane& macros)
{
    return joystick.Text().find('e') != std::string::npos && macros.TextLength() != 0;
}

bool isMacroUsed(Pane& text, std::string_view name)
{
    const auto end = static_cast<std::int64_t>(text.TextLength());
    for (std::int64_t start = 0; text.Find(name, start, end, find::wholeWord) >= 0;) {
        start = text.SelStart() + text.SelLength();
        text.setSelStart(start);
        text.setSelLength(2);
        const std::string next = text.SelText();
        if (next.starts_with(' ') || next == "\r\n") return true;
    }
    return false;
}

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
    editor.status("Analysing the macros you've already assigned in the " + editor.pair.JoystickFileName +
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

} // namespace tarvex
