#include "testers/key_test_joystick.h"

#include "testers/button_text.h"
#include "testers/joystick_boxes.h"
#include "testers/joystick_choice.h"

namespace tarvex {

namespace {

constexpr int gap = 90; // twips between the plot and the frames

/// A bar's inside margins, in twips.
constexpr int barSide = 60;
constexpr int bothSides = 120;

int portion(std::uint32_t part, int whole) { return static_cast<int>(static_cast<double>(part) / axisLast * whole); }

void placeBars(KeyTestForm& window)
{
    using namespace keyTestTwips;
    window.FrameTHR = Placement{plot + gap, 0, throttleWidth, plot};
    window.LabelTHR = Placement{barSide, barSide, throttleWidth - bothSides, 0};
    window.FrameRDDR = Placement{0, plot + gap, plot, rudderHeight};
    window.LabelRDDR = Placement{bothSides, barSide, (plot - bothSides) / 2, 270};
    window.LastThrottleSize = 0;
    window.LastRudderSize = window.LabelRDDR.get().Width;
}

void showThrottle(KeyTestForm& window)
{
    const int size = portion(axisLast - window.Info.dwZpos, keyTestTwips::plot - barSide);
    if (size == window.LastThrottleSize) return;
    Placement bar = window.LabelTHR;
    bar.Height = size;
    bar.Top = window.FrameTHR.get().Height - size - barSide;
    window.LabelTHR = bar;
    window.LastThrottleSize = size;
}

void showRudder(KeyTestForm& window)
{
    const int size = portion(window.Info.dwRpos, keyTestTwips::plot - bothSides);
    if (size == window.LastRudderSize) return;
    Placement bar = window.LabelRDDR;
    bar.Width = size;
    bar.Top = barSide;
    window.LabelRDDR = bar;
    window.LastRudderSize = size;
}

/// A text that the user is still to read stays until the state is another one.
void showResult(KeyTestForm& window, int result)
{
    if (result == window.LastResult) return;
    window.LastResult = result;
    window.status.Caption = result == joyError::none        ? "Status: Joystick connected"
                            : result == joyError::unplugged ? "Status: Joystick unplugged"
                                                            : "Status: Joystick error";
}

} // namespace

void JoystickStuff(KeyTestForm& window)
{
    window.JoystickTimer.Enabled = false;
    window.JoystickShown = false;
    window.LastResult = -1;
    window.LastReport = {};
    window.MoreButtons.Caption = "";
    placeBars(window);
    if (!window.JoystickStarted) {
        window.joystick.choose(readJoystickChoice(window.editor.shared.platformIni));
        window.joystick.start();
    }
    window.JoystickStarted = true;
    if (window.joystick.joyGetDevCapsA(window.Caps) != joyError::none) {
        if (!window.ToldOfCapsLock) window.status.Caption = "Status: No joystick";
        window.editor.platform.dialogues.show(noJoystickBox());
        return;
    }
    window.JoystickShown = true;
    window.JoystickTimer.Enabled = true;
}

void JoystickTimer_Timer(KeyTestForm& window)
{
    window.Info.dwSize = 52;
    window.Info.dwFlags = 255;
    const int result = window.joystick.joyGetPosEx(window.Info);
    showResult(window, result);
    if (result != joyError::none) return;
    window.PictureJoystick = PlottedPoint{window.Info.dwXpos, window.Info.dwYpos};
    if ((window.Caps.wCaps & joyCaps::hasZ) != 0) showThrottle(window);
    if ((window.Caps.wCaps & joyCaps::hasR) != 0) showRudder(window);
    for (std::size_t i = 0; i < window.JoyButtonAnalogue.size(); ++i)
        window.JoyButtonAnalogue[i].hold((window.Info.dwButtons >> i & 1U) != 0);
    window.MoreButtons.Caption = buttonText(window.LastReport, window.JoyButtonAnalogue.size());
}

} // namespace tarvex
