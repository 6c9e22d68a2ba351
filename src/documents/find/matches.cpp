#include "documents/find/matches.h"

#include "platform/windows1252.h"

namespace tarvex {

std::optional<std::string> soughtBytes(const std::string& text)
{
    std::string bytes = windows1252FromUtf8(text);
    if (utf8FromWindows1252(bytes) != text) return std::nullopt;
    return bytes;
}

void markMatches(Editor& editor, const std::string& text, int options)
{
    const std::string sought = soughtBytes(text).value_or("");
    for (Side* side : {&editor.joystick, &editor.macro}) side->Matches.show(sought, options);
}

void markFormMatches(FindAndReplace& window)
{
    if (window.MarksElsewhere) return;
    const int tab = window.SSTab1.SelectedItem;
    if (!window.form.isLoaded() || tab == findTab::line) return markMatches(window.editor, {}, 0);
    const FindPage page = tab == findTab::find ? findPage(window) : replacePage(window);
    markMatches(window.editor, page.text.Text,
                (page.matchCase.Value ? find::matchCase : 0) + (page.wholeWord.Value ? find::wholeWord : 0));
}

std::string selectedWord(Editor& editor)
{
    constexpr std::int64_t longest = 100;
    const Pane& pane = editor.selected().pane;
    if (pane.SelLength() > longest) return {};
    const std::string selected = pane.SelText();
    if (selected.find_first_of(" \t\r\n") != std::string::npos) return {};
    return utf8FromWindows1252(selected);
}

} // namespace tarvex
