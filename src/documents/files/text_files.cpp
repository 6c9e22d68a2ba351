#include "documents/files/text_files.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/pair/document_status.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/text/rtf/rtf.h"
#include "platform/windows1252.h"

namespace tarvex {

namespace {

/// A hidden box is shown behind the panes while it works, and is put away empty.
class WorkingBox {
public:
    explicit WorkingBox(Pane& box) : m_box(box) { m_box.Visible = true; }
    ~WorkingBox()
    {
        m_box.setText("");
        m_box.Visible = false;
    }
    WorkingBox(const WorkingBox&) = delete;
    WorkingBox& operator=(const WorkingBox&) = delete;

private:
    Pane& m_box;
};

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
        box->setSelStart(0);
    }
}

/// Whether the shadow brought text and colours into the pane.
bool putShadow(Editor& editor, Side& side, const std::string& shadow, const std::string& plain)
{
    const WorkingBox temp(editor.TempRichTextBox);
    const WorkingBox compare(editor.CompareRTF);
    editor.TempRichTextBox.setTextRTF(readRtf(editor.platform.files.read(shadow), editor.formats));
    editor.CompareRTF.setText(plain);
    TempTextRefreshFont(editor);
    if (editor.TempRichTextBox.Text() != editor.CompareRTF.Text()) return false;
    side.pane.setTextRTF(editor.TempRichTextBox.TextRTF());
    return true;
}

void putPlain(Editor& editor, Side& side, const std::string& plain)
{
    side.pane.setTextRTF({}); // drops the old text's formats with it
    applyBaseFormat(editor, side.pane);
    side.pane.setText(plain);
}

/// The shadow lies beside no document of its own; a document that is kept in the shadows' folder has none.
std::string shadowOf(const Editor& editor, const std::string& path, const std::string& name)
{
    const std::string shadow = editor.shared.RtfDirectory + name;
    return lowerUtf8(shadow) == lowerUtf8(path) ? std::string() : shadow;
}

/// The pane of a text holds it several times over, and no file for a controller comes near that.
constexpr std::uint64_t largestText = std::uint64_t{64} << 20;

bool isTooLarge(const Editor& editor, const std::string& path)
{
    return editor.platform.files.stamp(path).size > largestText;
}

void tellTooLarge(Editor& editor, const std::string& name)
{
    editor.platform.dialogues.show({.title = "Ooops!",
                                    .text = name +
                                            " is larger than 64 MB, so I don't believe that it's for a joystick. "
                                            "I've left everything just as it was.",
                                    .icon = BoxIcon::Exclamation});
}

void tellUnreadable(Editor& editor, const std::string& name)
{
    editor.platform.dialogues.show({.title = "Ooops!",
                                    .text = "I couldn't read " + name +
                                            ", so I've left everything just as it was. Is it still there, and are you "
                                            "allowed to read it?",
                                    .icon = BoxIcon::Exclamation});
}

/// Lone CR and lone LF.
std::size_t otherLineEnds(std::string_view bytes)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool isPair = bytes.substr(i, 2) == "\r\n";
        if (!isPair && (bytes[i] == '\r' || bytes[i] == '\n')) ++count;
        if (isPair) ++i;
    }
    return count;
}

/// The pane has CR LF throughout, and so has the file after its next save.
void remarkOtherLineEnds(Editor& editor, const std::string& name, std::string_view bytes)
{
    const std::size_t count = otherLineEnds(bytes);
    if (count == 0) return;
    editor.OpeningRemarks.push_back(name + " had " + std::to_string(count) + (count == 1 ? " line end" : " line ends") +
                                    " of another kind.");
}

} // namespace

std::optional<std::string> readForOpening(Editor& editor, const std::string& path, const std::string& name)
{
    const Steps step(editor.shared.errors, "ED_readForOpening");
    std::optional<std::string> bytes;
    if (isTooLarge(editor, path)) {
        tellTooLarge(editor, name);
        return bytes;
    }
    step([&] { bytes = editor.platform.files.read(path); });
    if (!bytes) tellUnreadable(editor, name);
    return bytes;
}

void showDocument(Editor& editor, Side& side, const std::string& path, const std::string& name,
                  const std::string& bytes)
{
    const Steps step(editor.shared.errors, "ED_showDocument");
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab); // reformatting works on its pane

    // The text comes first: as long as the pane may hold the old one, it keeps the old name.
    bool coloured = false;
    const std::string shadow = shadowOf(editor, path, name);
    if (!shadow.empty() && editor.platform.files.fileExists(shadow) && !isTooLarge(editor, shadow))
        step([&] { coloured = putShadow(editor, side, shadow, bytes); });
    if (!coloured) putPlain(editor, side, bytes);
    remarkOtherLineEnds(editor, name, bytes);
    side.FilePath = path;
    side.FileName = name;
    side.Changed = changed::saved;
    editor.TabStrip1.Tabs(side.tab).Caption = name;
    updateDownload(editor);
    if (editor.platform.files.fileExists(path)) step([&] { side.NoteLatestFile(path); });
    if (!coloured) {
        step([&] { editor.menus.mnuViewReformat.Click(); });
        if (editor.shared.settings.ApplyColoursOnFileOpen == 1) step([&] { side.ApplyColours(); });
    }

    side.pane.setSelStart(0);
    side.Caret = 0;
    side.SelectionLength = 0;
    step([&] { DeleteUndosOnSave(editor, side); });
    side.Changed = changed::saved;
    noteTextSettled(editor, side, sumOf(bytes));
    UpdateSavedIcon(editor);
    showLineNumber(editor, side, 0);
}

void showOpeningRemarks(Editor& editor)
{
    std::string text = editor.mum.StatusBar.Panels(panel::progress).Text;
    if (!editor.OpeningRemarks.empty() && !text.empty() && text.back() != '!' && text.back() != '.') text += '.';
    for (const std::string& remark : editor.OpeningRemarks) text += ' ' + remark;
    editor.status(text);
}

void writePlain(Editor& editor, const Side& side, const std::string& path)
{
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.write(path, editor.TempRichTextBox.Text());
}

void writePlainCopy(Editor& editor, const Side& side, const std::string& path)
{
    const WorkingBox temp(editor.TempRichTextBox);
    editor.TempRichTextBox.setText(side.pane.Text());
    editor.platform.files.writePrivate(path, editor.TempRichTextBox.Text());
}

void saveColouredText(Editor& editor, const Side& side)
{
    const Steps step(editor.shared.errors, side.tab == 1 ? "ED_SaveColouredTextJF" : "ED_SaveColouredTextMF");
    step([&] {
        const std::string shadow = shadowOf(editor, side.FilePath, side.FileName);
        if (shadow.empty()) return;
        const WorkingBox temp(editor.TempRichTextBox);
        editor.TempRichTextBox.setTextRTF(side.pane.TextRTF());
        editor.platform.files.writePrivate(shadow, writeRtf(editor.TempRichTextBox.TextRTF()));
    });
}

void SaveColouredTextJF(Editor& editor) { saveColouredText(editor, editor.joystick); }
void SaveColouredTextMF(Editor& editor) { saveColouredText(editor, editor.macro); }

} // namespace tarvex
