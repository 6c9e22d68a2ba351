#include "composer/templates_tab.h"

#include "composer/insertion.h"
#include "documents/text/rtf/rtf.h"
#include "language/base_format.h"
#include "language/commands/coloured_insertion.h"
#include "language/commands/side_caret.h"
#include "platform/input.h"
#include "platform/text.h"
#include "platform/utf16.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::uint64_t largestTemplate = std::uint64_t{16} << 20;

template <typename Work> void tagged(InsertOptions& window, std::string_view tag, Work work)
{
    const Steps step(window.editor.shared.errors, tag);
    step(work);
}

/// The names that end in `extension`, in any case.
std::vector<std::string> filesOf(const std::vector<std::string>& names, std::string_view extension)
{
    std::vector<std::string> files;
    for (const std::string& name : names) {
        if (lowerUtf8(name).ends_with(extension)) files.push_back(name);
    }
    return files;
}

/// A file that isn't RTF is plain text, even when its name ends in .rtf.
void show(Pane& preview, const std::string& bytes)
{
    if (looksLikeRtf(bytes))
        preview.setTextRTF(readRtf(bytes, preview.formats()));
    else
        preview.setText(bytes);
    preview.setSelStart(0);
}

bool isAtLineStart(const Pane& pane)
{
    return pane.SelStart() == 0 || Mid(pane.Text(), static_cast<long>(pane.SelStart()), 1) == "\n";
}

// The text goes through the hidden pane, where it gets the font of the panes; the user's is then written once.

void TextToTempRichTextBox(Editor& editor, const Pane& preview)
{
    editor.TempRichTextBox.setTextRTF(preview.TextRTF());
}

void TempTextRefreshFont(Editor& editor)
{
    Pane& scratch = editor.TempRichTextBox;
    const Settings& settings = editor.shared.settings;
    scratch.setSelStart(0);
    scratch.setSelLength(static_cast<std::int64_t>(scratch.TextLength()));
    scratch.setSelIndent(paragraphIndent);
    scratch.setSelFontName(settings.TextFontName);
    scratch.setSelFontSize(settings.TextFontSize);
    scratch.setSelBold(settings.TextFontBold == 1);
}

void TextFromTempRichTextBox(Editor& editor, Pane& target)
{
    target.setSelRTF(editor.TempRichTextBox.TextRTF());
    editor.TempRichTextBox.setText("");
}

void insertTemplate(InsertOptions& window, Side& side, std::string_view tag)
{
    Editor& editor = window.editor;
    const Pane& preview = window.templates.TemplatesPreview;
    if (preview.TextLength() == 0) return;
    if (editor.TabStrip1.SelectedItem != side.tab) editor.TabStrip1.Select(side.tab);
    leaveShownUse(window);
    BeginColInsert(editor);
    const Steps step(editor.shared.errors, tag);
    step([&] {
        if (side.pane.Locked) return;
        if (!isAtLineStart(side.pane)) InsertCarriageReturn(editor);
        TextToTempRichTextBox(editor, preview);
        TempTextRefreshFont(editor);
        TextFromTempRichTextBox(editor, side.pane);
        putCaret(side, side.pane.SelStart());
    });
    EndColInsert(editor);
    returnFocus(window);
}

} // namespace

void FillTemplates(InsertOptions& window)
{
    TemplateTab& tab = window.templates;
    const Settings& settings = window.editor.shared.settings;
    tab.TemplatesPreview.BackColor = settings.BackgroundColour;
    setPaneFont(tab.TemplatesPreview, settings);
    std::vector<std::string> names;
    const Steps step;
    step([&] { names = window.editor.platform.files.list(tab.Folder); });
    std::ranges::sort(names, {}, lowerUtf8);
    std::vector<std::string> files = filesOf(names, ".rtf");
    for (std::string& name : filesOf(names, ".txt")) files.push_back(std::move(name));
    tab.Templates.ListIndex = -1;
    tab.Templates.Items = std::move(files);
    tab.TemplatesPreview.setText("");
}

void Templates_Click(InsertOptions& window)
{
    TemplateTab& tab = window.templates;
    const auto row = static_cast<std::size_t>(tab.Templates.ListIndex.get());
    const std::vector<std::string>& names = tab.Templates.Items;
    if (row >= names.size()) return;
    tab.TemplatesPreview.setText("");
    const Steps step;
    step([&] {
        const FileSystem& files = window.editor.platform.files;
        const std::string path = tab.Folder + names[row];
        if (files.stamp(path).size <= largestTemplate) show(tab.TemplatesPreview, textOfFile(files.read(path)));
    });
}

void Templates_MouseDown(InsertOptions& window, int button)
{
    if (button == mouseButton::right) Templates_Click(window);
}

void TemplatesPreview_MouseDown(InsertOptions& window, int button)
{
    if (button == mouseButton::right) window.editor.platform.dialogues.popUp(window.mnuTemplates);
}

void TemplatesPreview_DblClick(InsertOptions& window)
{
    constexpr std::string_view tag = "COMPOSER TemplatesPreview_DblClick";
    tagged(window, tag, [&] { insertTemplate(window, window.editor.selected(), tag); });
}

void Command11_Click(InsertOptions& window, int Index)
{
    constexpr std::string_view tag = "COMPOSER Command11_Click";
    tagged(window, tag, [&] {
        constexpr int refresh = 2;
        if (Index == refresh) return FillTemplates(window);
        insertTemplate(window, Index == 0 ? window.editor.joystick : window.editor.macro, tag);
    });
}

void wireTemplates(InsertOptions& window)
{
    TemplateTab& tab = window.templates;
    constexpr const char* captions[] = {"Insert into Joystick file", "Insert into Macro file", "Refresh"};
    for (std::size_t i = 0; i < tab.Command11.size(); ++i) {
        tab.Command11[i].Caption = captions[i];
        tab.Command11[i].handler = [&window, i] { Command11_Click(window, static_cast<int>(i)); };
    }
    tab.Templates.Click = [&window] { Templates_Click(window); };
    window.mnuJoystick.handler = tab.Command11[0].handler;
    window.mnuMacrofile.handler = tab.Command11[1].handler;
    window.mnuQuickie.Enabled = false;
    tab.TemplatesPreview.Locked = true;
}

} // namespace tarvex
