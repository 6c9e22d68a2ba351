#include "documents/files/file_load.h"

#include "documents/editing/pane_change.h"
#include "documents/editing/undo.h"
#include "documents/files/coloured_shadow.h"
#include "documents/files/largest_text.h"
#include "documents/pair/document_status.h"
#include "documents/pair/loading.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "platform/utf16.h"

namespace tarvex {

namespace {

// ---- reading --------------------------------------------------------------------------------------------------------

void showTooLarge(Editor& editor, const std::string& name)
{
    editor.platform.dialogues.show({.title = "Ooops!",
                                    .text = name +
                                            " is larger than 64 MB, so I don't believe that it's for a joystick. "
                                            "I've left everything just as it was.",
                                    .icon = BoxIcon::Exclamation});
}

void showUnreadable(Editor& editor, const std::string& name)
{
    editor.platform.dialogues.show({.title = "Ooops!",
                                    .text = "I couldn't read " + name +
                                            ", so I've left everything just as it was. Is it still there, and are you "
                                            "allowed to read it?",
                                    .icon = BoxIcon::Exclamation});
}

// ---- showing --------------------------------------------------------------------------------------------------------

void showPlain(Editor& editor, Side& side, const std::string& plain)
{
    side.pane.setTextRTF({}); // drops the old text's formats with it
    applyBaseFormat(editor, side.pane);
    side.pane.setText(plain);
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

void nameDocument(Editor& editor, Side& side, const std::string& path, const std::string& name, const Steps& step)
{
    side.FilePath = path;
    side.FileName = name;
    side.Changed = changed::saved;
    editor.TabStrip1.Tabs(side.tab).Caption = name;
    updateDownload(editor);
    if (editor.platform.files.fileExists(path)) step([&] { side.NoteLatestFile(path); });
}

void layOutAndColour(Editor& editor, Side& side, const Steps& step)
{
    step([&] { editor.menus.mnuViewReformat.Click(); });
    if (editor.shared.settings.ApplyColoursOnFileOpen == 1) step([&] { side.ApplyColours(); });
}

/// Caret, undo, state and journal are those of a file that was just opened.
void startAnew(Editor& editor, Side& side, const std::string& bytes, const Steps& step)
{
    side.ErrorLine.clear(); // another file may have the same text there
    side.pane.setSelStart(0);
    side.Caret = 0;
    side.SelectionLength = 0;
    step([&] { DeleteUndosOnSave(editor, side); });
    side.Changed = changed::saved;
    noteTextSettled(editor, side, sumOf(bytes));
    UpdateSavedIcon(editor);
    showLineNumber(editor, side, 0);
}

void listMacros(Editor& editor, const std::string& name, const Steps& step)
{
    editor.mum.StatusBar.Panels(panel::macroFile).Text = name;
    step([&] { editor.operations.GetEachLineFromMacroFile(); });
    step([&] { editor.operations.ExtractMacrosAndTitles(); });
    if (!editor.menus.mnuViewMacros.Checked) editor.menus.mnuViewMacros.Click();
}

} // namespace

std::optional<std::string> readForOpening(Editor& editor, const std::string& path, const std::string& name,
                                          std::string_view tag)
{
    const Steps step(editor.shared.errors, tag);
    std::optional<std::string> bytes;
    if (isTooLarge(editor, path)) {
        showTooLarge(editor, name);
        return bytes;
    }
    step([&] { bytes = editor.platform.files.read(path); });
    if (!bytes) showUnreadable(editor, name);
    return bytes;
}

bool loadFile(Editor& editor, Side& side, const std::string& path, const std::string& name)
{
    const auto bytes = readForOpening(editor, path, name);
    if (bytes) showFile(editor, side, path, name, *bytes);
    return bytes.has_value();
}

void showFile(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& bytes)
{
    const Loading loading(editor.shared);
    const Steps step(editor.shared.errors, "ED_loadMacroFile");
    const bool isMacroFile = side.tab == editor.macro.tab;
    if (isMacroFile) step([&] { editor.operations.ClearAllForNewMacroFile(); });
    showText(editor, side, path, name, bytes);
    if (isMacroFile) listMacros(editor, name, step);
}

void showText(Editor& editor, Side& side, const std::string& path, const std::string& name, const std::string& bytes)
{
    const Steps step(editor.shared.errors, "ED_showDocument");
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab); // reformatting works on its pane
    // The text comes first: as long as the pane may hold the old one, it keeps the old name.
    const std::string text = textOfFile(bytes);
    bool coloured = false;
    step([&] { coloured = showShadow(editor, side, path, name, text); });
    if (!coloured) showPlain(editor, side, text);
    if (const std::string remark = utf16Remark(name, bytes); !remark.empty()) editor.OpeningRemarks.push_back(remark);
    remarkOtherLineEnds(editor, name, text);
    nameDocument(editor, side, path, name, step);
    if (!coloured) layOutAndColour(editor, side, step);
    startAnew(editor, side, bytes, step);
}

std::string utf16Remark(const std::string& name, std::string_view bytes)
{
    if (!utf16OrderOf(bytes)) return {};
    std::string remark = name + " is in Unicode, which no loader reads: when you save it, it becomes plain text.";
    if (const std::size_t lost = charactersLostFromFile(bytes); lost > 0)
        remark += " That has no room for " + std::to_string(lost) + (lost == 1 ? " character" : " characters") +
                  ", so you see question marks.";
    return remark;
}

void showOpeningRemarks(Editor& editor)
{
    std::string text = editor.mum.StatusBar.Panels(panel::progress).Text;
    if (!editor.OpeningRemarks.empty() && !text.empty() && text.back() != '!' && text.back() != '.') text += '.';
    for (const std::string& remark : editor.OpeningRemarks) text += ' ' + remark;
    editor.status(text);
}

} // namespace tarvex
