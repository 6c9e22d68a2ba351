#include "documents/files/coloured_shadow.h"

#include "documents/files/largest_text.h"
#include "documents/files/working_box.h"
#include "documents/text/rtf/rtf.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

/// Both boxes get the same font, so that only their texts can differ.
void TempTextRefreshFont(Editor& editor)
{
    for (Pane* box : {&editor.TempRichTextBox, &editor.CompareRTF}) {
        box->setSelStart(0);
        box->setSelLength(static_cast<std::int64_t>(box->TextLength()));
        const Settings& settings = editor.shared.settings;
        box->setSelFontName(settings.TextFontName);
        box->setSelFontSize(static_cast<float>(settings.TextFontSize));
        box->setSelBold(settings.TextFontBold == 1);
    }
}

/// The shadow lies beside no document of its own; a document that is kept in the shadows' folder has none.
std::string shadowOf(const Editor& editor, const std::string& path, const std::string& name)
{
    const std::string shadow = editor.shared.RtfDirectory + name;
    return lowerUtf8(shadow) == lowerUtf8(path) ? std::string() : shadow;
}

} // namespace

bool showShadow(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& plain)
{
    const std::string shadow = shadowOf(editor, path, name);
    if (shadow.empty() || !editor.platform.files.fileExists(shadow) || isTooLarge(editor, shadow)) return false;
    const WorkingBox temp(editor.TempRichTextBox);
    const WorkingBox compare(editor.CompareRTF);
    editor.TempRichTextBox.setTextRTF(readRtf(editor.platform.files.read(shadow), editor.formats));
    editor.CompareRTF.setText(plain);
    TempTextRefreshFont(editor);
    if (editor.TempRichTextBox.Text() != editor.CompareRTF.Text()) return false;
    side.pane.setTextRTF(editor.TempRichTextBox.TextRTF());
    return true;
}

void saveColouredText(Editor& editor, const Side& side)
{
    const Steps step(editor.shared.errors, byKind(side, "ED_SaveColouredTextJF", "ED_SaveColouredTextMF"));
    step([&] {
        const std::string shadow = shadowOf(editor, side.FilePath, side.FileName);
        if (shadow.empty()) return;
        const WorkingBox temp(editor.TempRichTextBox);
        editor.TempRichTextBox.setTextRTF(side.pane.TextRTF());
        editor.platform.files.writePrivate(shadow, writeRtf(editor.TempRichTextBox.TextRTF()));
    });
}

} // namespace tarvex
