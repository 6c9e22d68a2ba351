#include "testers/joystick_boxes.h"

#include "platform/joystick.h"

namespace tarvex {

MessageBox noJoystickBox(std::string_view remark)
{
    std::string text = "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or "
                       "Thrustmaster's ProPanel to see what the problem is.";
    if (!remark.empty()) text += " " + std::string(remark);
    return {.title = "No joystick detected", .text = text, .icon = BoxIcon::Exclamation};
}

MessageBox joystickFailureBox(int error)
{
    if (error == joyError::unplugged)
        return {.title = "Tarvex",
                .text = "I think your joystick is unplugged, or incorrectly set up under Windows. Please investigate "
                        "further!"};
    return {.title = "Tarvex",
            .text = "Ooohhh....something's happened to the signal from the joystick. Please check your settings, close "
                    "down the joystick analyser, and restart it to see if I can pick it up again."};
}

} // namespace tarvex
