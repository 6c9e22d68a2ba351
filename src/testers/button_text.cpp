#include "testers/button_text.h"

#include <iterator>

namespace tarvex {

namespace {

constexpr const char* directions[] = {"up", "up right", "right", "down right", "down", "down left", "left", "up left"};

std::string hatText(const JoystickReport& report)
{
    constexpr std::uint32_t step = 4500;
    std::string text;
    for (const std::uint32_t angle : report.hats) {
        if (angle / step >= std::size(directions)) continue;
        text += (text.empty() ? "Hat " : ", ") + std::string(directions[angle / step]);
    }
    return text;
}

} // namespace

std::string buttonText(const JoystickReport& report, std::size_t first)
{
    std::string text;
    for (std::size_t i = first; i < report.buttons.size(); ++i) {
        if (report.buttons[i]) text += (text.empty() ? "Buttons " : ", ") + std::to_string(i + 1);
    }
    const std::string hats = hatText(report);
    if (!text.empty() && !hats.empty()) text += "   ";
    return text + hats;
}

} // namespace tarvex
