#include "documents/editing/clipboard_commands.h"

#include "documents/editing/blank_strings.h"
#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/protected_pane.h"
#include "documents/text/rtf/rtf.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <functional>

namespace tarvex {

namespace {

constexpr int cutButton = 7;
constexpr int copyButton = 8;
constexpr int pasteButton = 9;

void enable(Editor& editor, MenuItem& item, int button, bool on)
{
    item.Enabled = on;
    editor.mum.Toolbar1.Buttons(button).Enabled = on;
}

/// The text as it would look typed at the selection, in its own colours.
RichText withFontOf(const Pane& pane, const RichText& text)
{
    if (text.empty()) return text;
    std::vector<FormatRun> runs = text.runs();
    for (FormatRun& run : runs) {
        CharacterFormat format = pane.SelFormat();
        format.colour = (*text.formats())[run.format].colour;
        run.format = pane.formats()->idOf(format);
    }
    return {pane.formats(), text.text(), runs};
}

/// `choose` takes what there is of the clipboard.
template <typename Choose> void paste(Editor& editor, const Steps& step, Choose choose)
{
    endBlinking(editor);
    if (refuseProtected(editor)) return;
    step([&] {
        const ClipboardContent content = choose(editor.platform.clipboard.get());
        Side& side = editor.selected();
        std::size_t lost = 0;
        writeAsOneLevel(side, [&] { lost = insertContent(side.pane, content); });
        reportLostCharacters(editor, lost);
    });
    UpdateCCPButtons(editor);
}

} // namespace

ClipboardContent selectionContent(const Pane& pane)
{
    if (pane.SelLength() == 0) return {};
    return {utf8FromWindows1252(pane.SelText()), writeRtf(pane.SelRTF())};
}

std::size_t insertContent(Pane& pane, const ClipboardContent& content)
{
    if (pane.Locked) return 0;
    const std::string plain = windows1252FromUtf8(content.text);
    if (looksLikeRtf(content.rtf))
        pane.setSelRTF(withFontOf(pane, readRtf(content.rtf, pane.formats())));
    else if (!plain.empty())
        pane.setSelText(plain);
    return static_cast<std::size_t>(std::ranges::count(plain, '?') - std::ranges::count(content.text, '?'));
}

void reportLostCharacters(Editor& editor, std::size_t count)
{
    if (count == 0) return;
    editor.status(std::to_string(count) + (count == 1 ? " character is" : " characters are") +
                  " not in the Windows character set and became ?");
}

void mnuEditCopy_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditCopy_Click");
    endBlinking(editor);
    const Pane& pane = editor.selected().pane;
    if (pane.SelLength() > 0) step([&] { editor.platform.clipboard.put(selectionContent(pane)); });
    UpdateCCPButtons(editor);
}

void mnuEditCut_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditCut_Click");
    endBlinking(editor);
    Side& side = editor.selected();
    Pane& pane = side.pane;
    if (pane.SelLength() == 0 || refuseProtected(editor)) return;
    step([&] {
        editor.platform.clipboard.put(selectionContent(pane));
        writeAsOneLevel(side, [&] { pane.setSelText(""); });
    });
    UpdateCCPButtons(editor);
}

void mnuEditPaste_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditPaste_Click");
    paste(editor, step, std::identity());
}

void mnuEditPastePlain_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditPastePlain_Click");
    paste(editor, step, [&editor](ClipboardContent content) {
        if (content.text.empty()) content.text = utf8FromWindows1252(readRtf(content.rtf, editor.formats).text());
        content.rtf.clear();
        return content;
    });
}

void mnuEditDelete_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditDelete_Click");
    endBlinking(editor);
    Side& side = editor.selected();
    if (side.pane.SelLength() == 0 || refuseProtected(editor)) return;
    step([&] { writeAsOneLevel(side, [&] { side.pane.setSelText(""); }); });
    UpdateCCPButtons(editor);
}

void mnuEditSelectAll_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditSelectAll_Click");
    endBlinking(editor); // its next step would take the selection back
    Pane& pane = editor.selected().pane;
    RemoveHugeBlankStringJF(editor);
    RemoveHugeBlankStringMF(editor);
    step([&] {
        pane.setSelStart(0);
        pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
        noteCaret(editor, editor.selected());
    });
}

void UpdateCCPButtons(Editor& editor)
{
    const Pane& pane = editor.selected().pane;
    const bool selection = pane.SelLength() > 0;
    enable(editor, editor.menus.mnuEditCut, cutButton, selection && !pane.Locked);
    enable(editor, editor.menus.mnuEditCopy, copyButton, selection);
    enable(editor, editor.menus.mnuEditPaste, pasteButton, !pane.Locked && editor.platform.clipboard.holdsText());
    editor.menus.mnuEditPastePlain.Enabled = editor.menus.mnuEditPaste.Enabled.get();
}

} // namespace tarvex
