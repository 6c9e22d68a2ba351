#include "preferences/miscellaneous_page.h"

#include "platform/text.h"

#include <algorithm>
#include <string_view>

namespace tarvex {

namespace {

/// A tick and the setting that it is.
struct Tick {
    CheckBox& box;
    std::int16_t Settings::*setting;
};

std::vector<Tick> ticksOf(MiscellaneousPage& page)
{
    return {
        {page.CheckFlattenToolbar[0], &Settings::FlatToolbar},
        {page.CheckFlattenToolbar[1], &Settings::GradientEffect},
        {page.CheckFlattenToolbar[2], &Settings::CanWrapToolbar},
        {page.CheckUseTCA, &Settings::UseTCA},
        {page.CheckDisableCalibrate, &Settings::DisableCalibrateMenu},
        {page.WavPlay, &Settings::PlayWavOnStartup},
        {page.CheckExtraToolbar, &Settings::UseExtraButtons},
        {page.CheckButtonsOnStatusBar, &Settings::ButtonsOnStatusBar},
        {page.CheckMinimiseAll, &Settings::MinimiseAll},
        {page.CheckShowTooltips, &Settings::OKtoShowToolTips},
        {page.CheckIdentify, &Settings::CheckIdentifyOK},
        {page.CheckAggressiveFocus, &Settings::AllowAggressiveFocus},
    };
}

void CheckShowTooltips_Click(MiscellaneousPage& page)
{
    page.editor.shared.settings.OKtoShowToolTips = page.CheckShowTooltips.Value ? 1 : 0;
    page.editor.operations.UpdateTooltips();
    page.editor.operations.UpdateEditorTooltips();
}

void OptionImagesToShow_Click(MiscellaneousPage& page, std::size_t index)
{
    for (std::size_t i = 0; i < page.OptionImagesToShow.size(); ++i) page.OptionImagesToShow[i].Value = i == index;
    page.editor.shared.settings.ComposerImages = static_cast<std::int16_t>(index);
}

/// Keeps the digits of what was typed; the setting follows while there is a number that it can hold.
void DLYText_Change(MiscellaneousPage& page)
{
    std::string digits = page.DLYText.Text;
    std::erase_if(digits, [](char c) { return c < '0' || c > '9'; });
    page.DLYText.Text = digits;
    const Steps step;
    if (!digits.empty()) step([&] { page.editor.shared.settings.DefaultDLYvalue = toInteger(digits); });
}

} // namespace

MiscellaneousPage::MiscellaneousPage(Editor& theEditor) : editor(theEditor)
{
    CheckFlattenToolbar[0].Caption = "Flat toolbar";
    CheckFlattenToolbar[1].Caption = "Gradient behind the document";
    CheckFlattenToolbar[2].Caption = "Wrap the toolbar";
    CheckUseTCA.Caption = "Use TCA as the joystick analyser";
    CheckDisableCalibrate.Caption = "Hide the calibration command";
    WavPlay.Caption = "Play a sound when Tarvex starts";
    CheckExtraToolbar.Caption = "Extra buttons on the toolbar";
    CheckButtonsOnStatusBar.Caption = "Explain the toolbar in the status bar";
    CheckMinimiseAll.Caption = "Minimise all windows with Tarvex";
    CheckShowTooltips.Caption = "Show tooltips";
    CheckIdentify.Caption = "Identify the macros used when files are opened";
    CheckAggressiveFocus.Caption = "Keep the Composer on top at all times";
    OptionImagesToShow[0].Caption = "Pictures of my hardware";
    OptionImagesToShow[1].Caption = "All pictures";
    OptionImagesToShow[2].Caption = "Pictures by the joystick file";
    ComboGamesCaption.Items =
        std::vector<std::string>{"&Games",        "Flight &sims", "Flight &simulations", "Fighter &simulations",
                                 "Fighter &sims", "Check si&x",   "Combat &sims",        "Combat &simulations",
                                 "&Sims",         "Fl&y",         "&Shoot! Shoot!",      "Eat thi&s!",
                                 "En&gage!",      "&Scramble!",   "Air&borne!"};
    CheckShowTooltips.Click = [this] { CheckShowTooltips_Click(*this); };
    for (std::size_t i = 0; i < OptionImagesToShow.size(); ++i)
        OptionImagesToShow[i].Click = [this, i] { OptionImagesToShow_Click(*this, i); };
    m_delayChanged = DLYText.Text.changed.connect([this] { DLYText_Change(*this); });
}

void loadMiscellaneous(MiscellaneousPage& page)
{
    const Settings& settings = page.editor.shared.settings;
    for (const Tick& tick : ticksOf(page)) tick.box.Value = settings.*tick.setting == 1;
    const bool sound = page.editor.shared.StartupSoundAvailable == 1;
    page.WavPlay.Enabled = sound;
    if (!sound) page.WavPlay.Value = false;
    page.ComboGamesCaption.Text = settings.GamesCaption;
    page.DLYText.Text = std::to_string(std::max<int>(settings.DefaultDLYvalue, 0));
    for (std::size_t i = 0; i < page.OptionImagesToShow.size(); ++i)
        page.OptionImagesToShow[i].Value = settings.ComposerImages == static_cast<std::int16_t>(i);
}

void takeMiscellaneous(MiscellaneousPage& page)
{
    Settings& settings = page.editor.shared.settings;
    for (const Tick& tick : ticksOf(page)) {
        if (tick.box.Enabled) settings.*tick.setting = tick.box.Value ? 1 : 0;
    }
    const std::string& caption = page.ComboGamesCaption.Text;
    settings.GamesCaption = caption.empty() ? "&Games" : caption;
    if (settings.AllowAggressiveFocus == 1) settings.CompOnTop = 1;
}

} // namespace tarvex
