#include "desktop/composer/form_scenes.h"

#include "desktop/text.h"

#include <algorithm>
#include <functional>
#include <initializer_list>

namespace tarvex {

namespace {

Property<bool>& shown(InsertOptions& window, int page) { return window.SSTabHardware.Pages(page).Visible; }

/// Without a throttle it is the TQS. The labels of the WCS beside an older stick don't matter here.
PictureOf throttleOf(InsertOptions& window)
{
    return shown(window, hardwarePage::wcs) && !shown(window, hardwarePage::tqs) ? PictureOf::Wcs : PictureOf::Tqs;
}

/// Runs `show` now, and each time one of these pictures comes or goes.
void follow(InsertOptions& window, Bindings& bindings, std::initializer_list<int> pages,
            const std::function<void()>& show)
{
    show();
    for (const int page : pages) bindings.follow(shown(window, page), show);
}

constexpr std::initializer_list<int> throttlePages{hardwarePage::tqs, hardwarePage::wcs};

} // namespace

void showThrottle(InsertOptions& window, Bindings& bindings, ControlScene& scene)
{
    follow(window, bindings, throttlePages, [&window, &scene] {
        const PictureOf throttle = throttleOf(window);
        scene.showControls(throttle, {QLatin1String(throttle == PictureOf::Wcs ? "ROTARY(9)" : "ROTARY(5)")});
    });
}

void showAxis(InsertOptions& window, Bindings& bindings, ControlScene& scene)
{
    const auto show = [&window, &scene] {
        constexpr const char* controls[] = {"ROTARY(3)", "ROTARY(6)", "ROTARY(2)"}; // in the order of ToggleButton1
        const bool olderStick = !shown(window, hardwarePage::f22AndF16) && shown(window, hardwarePage::otherSticks);
        for (std::size_t i = 0; i < window.ToggleButton1.size(); ++i) {
            if (!window.ToggleButton1[i].isHeld()) continue;
            if (i == axisToggle::rddr && olderStick) // whose picture has no other axes
                scene.showControls(PictureOf::OlderStick, {QStringLiteral("ROTARY(8)")});
            else
                scene.showControls(PictureOf::F22AndF16Stick, {QLatin1String(controls[i])});
        }
    };
    follow(window, bindings, {hardwarePage::f22AndF16, hardwarePage::otherSticks}, show);
    for (ToggleLabel& toggle : window.ToggleButton1) bindings.follow(toggle.BackColor, show);
}

void showMouseButtons(InsertOptions& window, Bindings& bindings, ControlScene& scene)
{
    const auto show = [&window, &scene] {
        const PictureOf throttle = throttleOf(window);
        QStringList controls;
        for (const PictureControl& control : picture(throttle).controls) {
            const auto works = [&control](const Label& button) { return button.Caption.get() == control.name; };
            if (std::ranges::any_of(window.mice.Label5, works)) controls.append(toQt(control.id));
        }
        scene.showControls(throttle, controls);
    };
    follow(window, bindings, throttlePages, show);
    for (Label& button : window.mice.Label5) bindings.follow(button.Caption, show);
}

} // namespace tarvex
