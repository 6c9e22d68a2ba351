#include "shell/toolbar_tips.h"

#include "shell/errors.h"
#include "shell/toolbar_buttons.h"

namespace tarvex {

namespace {

bool tipsAreOn(const Settings& settings) { return settings.OKtoShowToolTips == 1; }

void showTip(Mum& mum, const Settings& settings, const ToolbarButton& button)
{
    const std::string_view tip = toolbarMeansBoth(button, settings) ? button.both.tip : button.tip;
    mum.Toolbar1.Buttons(button.number).ToolTipText = std::string(tipsAreOn(settings) ? tip : "");
}

} // namespace

void UpdateTooltips(Mum& mum, const Settings& settings)
{
    const Steps step;
    for (const ToolbarButton& button : toolbarButtons()) step([&] { showTip(mum, settings, button); });
    mum.Toolbar1.Refresh();
}

void UpdateToolBarOpenSaveTooltips(Mum& mum, const Settings& settings)
{
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.both.setting != nullptr) showTip(mum, settings, button);
    }
    mum.Toolbar1.Refresh(); // these buttons have other pictures, too
}

void ShowExtraButtons(Mum& mum, const Settings& settings)
{
    for (int number = toolbarButton::firstExtra; number <= toolbarButton::lastExtra; ++number)
        mum.Toolbar1.Buttons(number).Visible = settings.UseExtraButtons == 1;
}

} // namespace tarvex
