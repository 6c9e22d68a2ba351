#include "language/commands/text_transfer.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/protected_pane.h"
#include "language/base_format.h"
#include "language/commands/colour_highlighting.h"
#include "platform/text.h"

namespace tarvex {

namespace {

bool touchesAWord(const Pane& pane)
{
    if (pane.SelStart() == 0) return false;
    const std::string_view before = Mid(pane.Text(), static_cast<long>(pane.SelStart()), 1);
    return before != " " && before != "\n";
}

void colourScratch(Editor& editor, std::span<const ColourPass> passes)
{
    Pane& scratch = editor.TempRichTextBox;
    writeBaseFormat(scratch, editor.shared.settings, editor.shared.DefaultTextColour);
    if (!editor.menus.mnuInsertWithColour.Checked) return;
    float position = 0;
    runPasses(
        {scratch, editor.shared.settings, position, Steps(), nullptr, holdUntilEscape(editor.platform, editor.mum)},
        passes);
}

void transfer(Editor& editor)
{
    Pane& scratch = editor.TempRichTextBox;
    Side& side = editor.selected();
    Pane& target = side.pane;
    scratch.setSelStart(0);
    if (touchesAWord(target)) scratch.setSelText(" ");
    scratch.setSelStart(0);
    scratch.setSelLength(static_cast<std::int64_t>(scratch.TextLength()));
    writeAsOneLevel(side, [&] { target.setSelRTF(scratch.SelRTF()); });
}

void transferColoured(Editor& editor, std::span<const ColourPass> passes)
{
    const Steps step;
    Pane& scratch = editor.TempRichTextBox;
    if (refuseProtected(editor)) return scratch.setText("");
    endBlinking(editor);
    scratch.Visible = true;
    step([&] { colourScratch(editor, passes); });
    step([&] { transfer(editor); });
    step([&] { scratch.setText(""); });
    scratch.Visible = false;
}

} // namespace

void SafeinTransferText(Editor& editor, std::string_view text)
{
    if (text.empty()) return;
    editor.TempRichTextBox.setText(text);
    transferColoured(editor, safeinTransferPasses());
}

void MacroTransferText(Editor& editor)
{
    if (editor.TempRichTextBox.TextLength() > 0) transferColoured(editor, macroTransferPasses());
}

} // namespace tarvex
