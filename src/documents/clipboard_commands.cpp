#include "documents/clipboard_commands.h"

#include "documents/rtf.h"
#include "documents/tabs.h"
#include "platform/windows1252.h"

namespace tarvex {

ClipboardContent selectionContent(const Pane& pane)
{
    if (pane.SelLength() == 0) return {};
    return {utf8FromWindows1252(pane.SelText()), writeRtf(pane.SelRTF())};
}

void insertContent(Pane& pane, const ClipboardContent& content)
{
    if (pane.Locked) return;
    if (looksLikeRtf(content.rtf))
        pane.setSelRTF(readRtf(content.rtf, pane.formats()));
    else if (!content.text.empty())
        pane.setSelText(windows1252FromUtf8(content.text));
}

void mnuEditCopy_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditCopy_Click");
    const Pane& pane = editor.selected().pane;
    if (pane.SelLength() > 0) step([&] { editor.platform.clipboard.put(selectionContent(pane)); });
}

void mnuEditCut_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditCut_Click");
    Pane& pane = editor.selected().pane;
    if (pane.Locked || pane.SelLength() == 0) return;
    step([&] {
        editor.platform.clipboard.put(selectionContent(pane));
        pane.setSelText("");
    });
}

void mnuEditPaste_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditPaste_Click");
    step([&] { insertContent(editor.selected().pane, editor.platform.clipboard.get()); });
}

void mnuEditDelete_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditDelete_Click");
    Pane& pane = editor.selected().pane;
    if (!pane.Locked && pane.SelLength() > 0) step([&] { pane.setSelText(""); });
}

void mnuEditSelectAll_Click(Editor& editor)
{
    const Steps step(editor.shared.errors, "ED_mnuEditSelectAll_Click");
    Pane& pane = editor.selected().pane;
    step([&] {
        pane.setSelStart(0);
        pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
        noteCaret(editor, editor.selected());
    });
}

} // namespace tarvex
