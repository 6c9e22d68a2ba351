#include "templates/template_edit.h"

#include "documents/editing/clipboard_commands.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "language/base_format.h"
#include "language/colour_template.h"
#include "language/commands/colour_highlighting.h"
#include "templates/template_journal.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr int backspaceKey = 8;
constexpr int returnKey = 13;
constexpr int blankKey = 32;

UndoHistory::Level levelOf(const TemplateForm& window)
{
    return {window.TemplateText.TextRTF(), static_cast<std::int32_t>(window.TemplateText.SelStart())};
}

/// Levels that were undone stay below a new one.
void recordUndo(TemplateForm& window)
{
    UndoHistory& history = window.Undo;
    if (window.TakeNewLevel == 1 || history.Position != 1) {
        const auto most = static_cast<std::size_t>(std::max<int>(window.editor.shared.settings.UndoMax, 0)) + 1;
        history.Levels.push_front({});
        while (history.Levels.size() > most) history.Levels.pop_back();
        history.Position = 1;
        window.TakeNewLevel = 0;
    }
    history.Levels.front() = levelOf(window);
    updateEditMenu(window);
}

void showLevel(TemplateForm& window, std::size_t level)
{
    UndoHistory& history = window.Undo;
    if (level < 1 || level > history.Levels.size()) return;
    history.Position = level;
    const UndoHistory::Level& shown = history.Levels[level - 1];
    writeWithoutEdit(window, [&] { window.TemplateText.setTextRTF(shown.Text); });
    window.TemplateText.setSelStart(shown.Caret);
    writeDownChanges(window.editor, journalled(window));
    window.TemplateChanged = 1;
    window.TakeNewLevel = 1;
    updateEditMenu(window);
}

/// Runs `write` over the whole text; caret, selection and the changed flag stay.
template <typename Write> void overWholeText(TemplateForm& window, Write write)
{
    Pane& pane = window.TemplateText;
    const std::int64_t start = pane.SelStart();
    const std::int64_t length = pane.SelLength();
    writeWithoutEdit(window, [&] {
        pane.setSelStart(0);
        pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
        write(pane);
        pane.setSelStart(start);
        pane.setSelLength(length);
    });
}

void refreshIndent(TemplateForm& window)
{
    overWholeText(window, [](Pane& pane) { pane.setSelIndent(paragraphIndent); });
}

void sayRefreshed(TemplateForm& window) { window.editor.status("Layout refreshed ... (I wish I was!)"); }

} // namespace

void TemplateText_Change(TemplateForm& window)
{
    if (window.TemplateText.TextLength() == 0) window.TemplateText.setSelIndent(paragraphIndent);
    if (window.IsLoading == 1) return;
    window.TemplateChanged = 1;
    writeDownChanges(window.editor, journalled(window));
    recordUndo(window);
    if (window.Journal.Failed) return; // the status bar says so
    const std::string text = "Editing " + window.TemplateName;
    if (window.editor.mum.StatusBar.Panels(panel::progress).Text != text) window.editor.status(text);
}

/// A level is a word or so: blank, Return and Backspace open one, unless they follow each other.
void TemplateText_KeyPress(TemplateForm& window, int key)
{
    UndoHistory& history = window.Undo;
    const bool opens = key == backspaceKey || key == returnKey || key == blankKey;
    const bool again = opens && history.LastKeyWasSpace == key;
    window.TakeNewLevel = history.Levels.size() == 1 || history.Position != 1 || (opens && !again) ? 1 : 0;
    history.LastKeyWasSpace = static_cast<std::int16_t>(opens ? key : 0);
}

void templateEditComing(TemplateForm& window) { window.TakeNewLevel = 1; }

void popUpTemplateMenu(TemplateForm& window, bool atCaret)
{
    updateEditMenu(window);
    Dialogues& dialogues = window.editor.platform.dialogues;
    atCaret ? dialogues.popUpAtCaret(window.mnuPopShow) : dialogues.popUp(window.mnuPopShow);
}

void beginHistory(TemplateForm& window)
{
    window.Undo = {};
    window.Undo.Levels.front() = levelOf(window);
    window.TakeNewLevel = 1;
    updateEditMenu(window);
}

void mnuUndo_Click(TemplateForm& window) { showLevel(window, window.Undo.Position + 1); }

void mnuRedo_Click(TemplateForm& window) { showLevel(window, window.Undo.Position - 1); }

void updateEditMenu(TemplateForm& window)
{
    const bool selected = window.TemplateText.SelLength() > 0;
    window.mnuCut.Enabled = selected;
    window.mnuCopy.Enabled = selected;
    window.mnuPaste.Enabled = window.editor.platform.clipboard.holdsText();
    window.mnuUndo.Enabled = window.Undo.Position < window.Undo.Levels.size();
    window.mnuRedo.Enabled = window.Undo.Position > 1;
}

void mnuCopy_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuCopy_Click");
    step([&] {
        if (window.TemplateText.SelLength() > 0)
            window.editor.platform.clipboard.put(selectionContent(window.TemplateText));
    });
}

void mnuCut_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuCut_Click");
    step([&] {
        if (window.TemplateText.SelLength() == 0) return;
        mnuCopy_Click(window);
        window.TakeNewLevel = 1;
        window.TemplateText.setSelText("");
    });
}

void mnuPaste_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuPaste_Click");
    step([&] {
        window.TakeNewLevel = 1;
        insertContent(window.TemplateText, window.editor.platform.clipboard.get());
    });
}

void mnuSelectAll_Click(TemplateForm& window)
{
    Pane& pane = window.TemplateText;
    pane.setSelStart(0);
    pane.setSelLength(static_cast<std::int64_t>(pane.TextLength()));
}

void ColourTemplateText(TemplateForm& window)
{
    Editor& editor = window.editor;
    writeWithoutEdit(window, [&] {
        ColourTemplateText({window.TemplateText, window.Text1.Text, [&] { mnuTextToBlack_Click(window); },
                            editor.shared.settings, editor.shared.errors, editor.mum,
                            holdUntilEscape(editor.platform, editor.mum)});
    });
    if (window.TemplateText.TextLength() == 0) return;
    window.TakeNewLevel = 1;
    const std::string done = editor.mum.StatusBar.Panels(panel::progress).Text;
    TemplateText_Change(window);
    editor.status(done);
}

void mnuTextToBlack_Click(TemplateForm& window)
{
    const Steps step(window.editor.shared.errors, "TEMPLATE mnuTextToBlack_Click");
    step([&] {
        window.TakeNewLevel = 1;
        window.TemplateText.setSelColor(0);
    });
}

void GetCustomColour(TemplateForm& window, Colour colour)
{
    const std::int16_t changedBefore = window.TemplateChanged;
    window.ColourLabel1 = colour;
    window.TakeNewLevel = 1;
    window.TemplateText.setSelColor(colour);
    window.TemplateChanged = changedBefore;
    window.TemplateText.SetFocus();
}

void UpdateLabelColours(TemplateForm& window) { window.ColourLabel1 = window.TemplateText.SelColor(); }

void DoTheFonts(TemplateForm& window)
{
    const Settings& settings = window.editor.shared.settings;
    setPaneFont(window.TemplateText, settings);
    window.TemplateText.BackColor = settings.BackgroundColour;
}

void refreshLayout(TemplateForm& window)
{
    DoTheFonts(window);
    const Settings& settings = window.editor.shared.settings;
    overWholeText(window, [&](Pane& pane) {
        pane.setSelIndent(paragraphIndent);
        pane.setSelFontName(settings.TextFontName);
        pane.setSelBold(settings.TextFontBold == 1);
        pane.setSelFontSize(settings.TextFontSize);
    });
}

void followTextSettings(TemplateForm& window)
{
    const PaneFont before = window.TemplateText.Font();
    DoTheFonts(window);
    if (window.TemplateText.Font() != before) refreshLayout(window);
}

void mnuViewrefreshLayout_Click(TemplateForm& window)
{
    refreshLayout(window);
    sayRefreshed(window);
}

void mnuRefreshIndent_Click(TemplateForm& window)
{
    refreshIndent(window);
    sayRefreshed(window);
}

} // namespace tarvex
