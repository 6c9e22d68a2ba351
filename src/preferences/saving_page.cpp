#include "preferences/saving_page.h"

#include "documents/editing/undo.h"
#include "platform/text.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::int16_t usualMinutes = 10;
constexpr double fewestLevels = 10;
constexpr double mostLevels = 30000;

template <typename Work> void handle(SavingPage& page, std::string_view tag, Work work)
{
    const Steps step(page.editor.shared.errors, tag);
    step(work);
}

std::int16_t clampedLevels(const std::string& text)
{
    return static_cast<std::int16_t>(std::clamp(Val(text), fewestLevels, mostLevels));
}

/// A whole number of minutes that isn't negative; throws RuntimeError for anything else.
std::int16_t minutesOf(const std::string& text)
{
    const std::int16_t minutes = toInteger(text);
    if (minutes < 0) throw RuntimeError(ErrorCode::Overflow, "Overflow");
    return minutes;
}

void useUsualMinutes(SavingPage& page)
{
    page.editor.platform.dialogues.show(
        {.title = "Oops!",
         .text = "The value you entered isn't valid. I'm changing it to 10 minutes to prevent an error ocurring."});
    page.Text3.Text = std::to_string(usualMinutes); // and the setting follows
}

std::int16_t flag(const CheckBox& box) { return box.Value ? 1 : 0; }

} // namespace

SavingPage::SavingPage(Editor& theEditor) : editor(theEditor)
{
    Check3[0].Caption = "Enabled";
    Check3[1].Caption = "Create backup when saving files";
    OpenBothChk.Caption = "The toolbar's Open opens both files";
    SaveBothChk.Caption = "The toolbar's Save saves both files";
    CheckUndoSave.Caption = "Clear undo levels when a file is saved";
    CheckHighlightOnUndo.Caption = "Highlight the line on undo and redo";
    Command11.Caption = "Clear now";
    Command11.handler = [this] { PREFS_Command11_Click(*this); };
    m_minutesChanged = Text3.Text.changed.connect([this] { Text3_Change(*this); });
    m_levelsChanged = TxtUndoLevels.Text.changed.connect([this] { TxtUndoLevels_Change(*this); });
    Text3.LostFocus = [this] { Text3_LostFocus(*this); };
    TxtUndoLevels.LostFocus = [this] { TxtUndoLevels_LostFocus(*this); };
}

void loadSaving(SavingPage& page)
{
    const Settings& settings = page.editor.shared.settings;
    page.loading = true;
    page.Text3.Text = std::to_string(settings.AutoSaveTime);
    page.TxtUndoLevels.Text = std::to_string(settings.UndoMax);
    page.loading = false;
    page.Check3[0].Value = settings.AutoSaveEnabled == 1;
    page.Check3[0].Enabled = true;
    page.Check3[1].Value = settings.CreateBackup == 1;
    page.OpenBothChk.Value = settings.OpenBothOnToolbar == 1;
    page.SaveBothChk.Value = settings.SaveBothOnToolbar == 1;
    page.CheckUndoSave.Value = settings.UndoClearOnSave == 1;
    page.CheckHighlightOnUndo.Value = settings.HighlightLineOnUndo == 1;
}

void takeSaving(SavingPage& page)
{
    Settings& settings = page.editor.shared.settings;
    settings.AutoSaveEnabled = flag(page.Check3[0]);
    settings.CreateBackup = flag(page.Check3[1]);
    settings.OpenBothOnToolbar = flag(page.OpenBothChk);
    settings.SaveBothOnToolbar = flag(page.SaveBothChk);
    settings.UndoClearOnSave = flag(page.CheckUndoSave);
    settings.HighlightLineOnUndo = flag(page.CheckHighlightOnUndo);
    settings.UndoMax = clampedLevels(page.TxtUndoLevels.Text);
}

void Text3_Change(SavingPage& page)
{
    if (page.loading) return;
    Settings& settings = page.editor.shared.settings;
    const std::string& text = page.Text3.Text;
    page.Check3[0].Enabled = !text.empty();
    if (text.empty()) {
        page.Check3[0].Value = false;
        settings.AutoSaveTime = usualMinutes;
        return;
    }
    try {
        settings.AutoSaveTime = std::max<std::int16_t>(minutesOf(text), 1);
    } catch (const RuntimeError&) {
        return useUsualMinutes(page);
    }
    if (minutesOf(text) == 0) page.Text3.Text = "1";
}

void Text3_LostFocus(SavingPage& page)
{
    handle(page, "PREFS Text3_LostFocus", [&] {
        if (Val(page.Text3.Text.get()) < 1) page.Text3.Text = std::to_string(usualMinutes);
    });
}

void TxtUndoLevels_Change(SavingPage& page)
{
    if (page.loading) return;
    handle(page, "PREFS TxtUndoLevels_Change",
           [&] { page.editor.shared.settings.UndoMax = clampedLevels(page.TxtUndoLevels.Text); });
}

void TxtUndoLevels_LostFocus(SavingPage& page)
{
    handle(page, "PREFS TxtUndoLevels_LostFocus",
           [&] { page.TxtUndoLevels.Text = std::to_string(clampedLevels(page.TxtUndoLevels.Text)); });
}

void PREFS_Command11_Click(SavingPage& page)
{
    handle(page, "PREFS Command11_Click", [&] {
        for (Side* side : {&page.editor.joystick, &page.editor.macro}) DeleteUndosOnSave(page.editor, *side);
    });
}

} // namespace tarvex
