#include "documents/editing/clipboard_commands.h"

#include "documents/editing/blank_strings.h"
#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/noted_caret.h"
#include "documents/pair/protected_pane.h"
#include "documents/text/rtf/rtf.h"
#include "platform/windows1252.h"

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

} // namespace

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
    endBlinking(editor);
    if (refuseProtected(editor)) return;
    step([&] {
        const ClipboardContent content = editor.platform.clipboard.get();
        Side& side = editor.selected();
        writeAsOneLevel(side, [&] { insertContent(side.pane, content); });
    });
    UpdateCCPButtons(editor);
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
}

} // namespace tarvex
