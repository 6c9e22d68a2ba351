#include "language/commands/layout_refresh.h"

#include "documents/editing/line_highlight.h"
#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "language/base_format.h"

namespace tarvex {

namespace {

/// Lays the text out in the hidden pane, so that the user's is written once. Its document isn't changed by that.
template <typename LayOut> void refreshLayout(Editor& editor, std::string_view tag, LayOut layOut)
{
    const Steps step(editor.shared.errors, tag);
    Pane& scratch = editor.TempRichTextBox;
    Side& side = editor.selected();
    const Loading loading(editor.shared);
    editor.status("Reformatting layout. Please wait ...");
    const std::int16_t state = side.Changed;
    step([&] {
        scratch.Visible = true;
        scratch.setTextRTF(side.pane.TextRTF());
        layOut(scratch);
        side.pane.setTextRTF(scratch.TextRTF());
    });
    step([&] { side.pane.setSelStart(side.Caret); });
    side.Changed = state;
    step([&] { scratch.setText(""); });
    scratch.Visible = false;
    UpdateSavedIcon(editor);
    editor.status("Layout refreshed ... (I wish I was!)");
    // BeginColInsert's part: a protected pane is laid out too, though it takes no insertion.
    endBlinking(editor);
    step([&] { storeStateBeforeWrite(editor, side); });
}

} // namespace

void mnuViewReformat_Click(Editor& editor)
{
    refreshLayout(editor, "ED_mnuViewReformat_Click",
                  [&](Pane& text) { writeBaseFormat(text, editor.shared.settings, 0); });
}

void mnuViewrefreshIndent_Click(Editor& editor)
{
    refreshLayout(editor, "ED_mnuViewrefreshIndent_Click", [](Pane& text) {
        text.setSelLength(static_cast<std::int64_t>(text.TextLength())); // from its beginning
        text.setSelIndent(paragraphIndent);
    });
}

} // namespace tarvex
