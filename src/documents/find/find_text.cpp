#include "documents/find/find_text.h"

#include "documents/editing/line_highlight.h"
#include "documents/pair/document_status.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

void showNotFound(FindAndReplace& window, const FindPage& page, Side& side)
{
    Editor& editor = window.editor;
    const std::string& text = page.text.Text;
    const std::string caption = editor.tabCaption(side);
    if (page.find.Caption == findFirst) {
        editor.platform.dialogues.show({.title = "Text not found",
                                        .text = quoted(text) + " not found in " + caption,
                                        .icon = BoxIcon::Information});
    } else {
        editor.platform.dialogues.show({.title = "You found 'em all!",
                                        .text = "No further instances of " + quoted(text) + " found in " + caption,
                                        .icon = BoxIcon::Information});
        page.find.Caption = findFirst;
    }
}

void showFound(FindAndReplace& window, const FindPage& page, Side& side)
{
    const auto length = static_cast<std::int32_t>(window.SearchText.size());
    const std::int64_t behind = std::int64_t{window.FoundPosition} + length;
    side.SelectionLength = length;
    side.Caret = behind;
    page.find.Caption = findNext;
    showLineNumber(window.editor, side, behind);
    page.find.SetFocus();
    window.editor.Jumped(side);
}

/// True: the match is selected.
bool findText(FindAndReplace& window, const FindPage& page, const Steps& step)
{
    Editor& editor = window.editor;
    endBlinking(editor);
    if (!takeSearchText(window, page)) return false;
    addToHistory(page.text);
    Side& side = chosenSide(window, page);
    if (!holdsText(window, side)) return false;
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab);
    takeFindOptions(window, page);
    if (page.find.Caption == findFirst) side.Caret = 0;
    window.FoundPosition = static_cast<std::int32_t>(side.pane.Find(
        window.SearchText, side.Caret, static_cast<std::int64_t>(side.pane.TextLength()), window.FindOptions));
    if (!endsSearch(window.FoundPosition)) {
        showFound(window, page, side);
        return true;
    }
    showNotFound(window, page, side);
    step([&] { side.pane.setSelStart(side.Caret); });
    page.text.SetFocus();
    page.text.SelectAll();
    return false;
}

} // namespace

void Command1_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND Command1_Click");
    step([&] { findText(window, findPage(window), step); });
}

void Command3_Click(FindAndReplace& window)
{
    const Steps step(window.editor.shared.errors, "FIND Command3_Click");
    step([&] {
        if (!findText(window, replacePage(window), step)) return;
        window.Command5.Enabled = true;
        window.Command6.Enabled = true;
    });
}

Side& chosenSide(FindAndReplace& window, const FindPage& page)
{
    return page.joystick.Value ? window.editor.joystick : window.editor.macro;
}

bool takeSearchText(FindAndReplace& window, const FindPage& page)
{
    window.SearchText = windows1252FromUtf8(page.text.Text.get());
    if (!window.SearchText.empty()) return true;
    window.editor.platform.dialogues.show({.title = "Please enter text to search",
                                           .text = "You haven't specified the text to search for",
                                           .icon = BoxIcon::Exclamation});
    return false;
}

bool holdsText(FindAndReplace& window, Side& side)
{
    if (side.pane.TextLength() > 0) return true;
    window.editor.platform.dialogues.show({.title = "No text in " + std::string(side.kind) + " file",
                                           .text = window.editor.tabCaption(side) + " has no text to highlight.",
                                           .icon = BoxIcon::Exclamation});
    return false;
}

void takeFindOptions(FindAndReplace& window, const FindPage& page)
{
    if (page.matchCase.Value) window.MatchOption = find::matchCase;
    if (page.wholeWord.Value) window.WordOption = find::wholeWord;
    window.FindOptions = static_cast<std::int16_t>(window.MatchOption + window.WordOption);
}

bool endsSearch(std::int32_t foundPosition) { return static_cast<std::int16_t>(foundPosition) == -1; }

void addToHistory(ComboBox& combo)
{
    std::vector<std::string> items = combo.Items;
    if (std::ranges::find(items, combo.Text.get()) != items.end()) return;
    items.push_back(combo.Text);
    combo.Items = std::move(items);
}

} // namespace tarvex
