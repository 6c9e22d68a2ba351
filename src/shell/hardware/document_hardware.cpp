#include "shell/hardware/document_hardware.h"

#include "platform/text.h"
#include "platform/windows1252.h"
#include "shell/hardware/hardware_profile.h"

#include <algorithm>

namespace tarvex {

namespace {

/// `word` is in lower case.
bool holds(std::string_view text, std::string_view word)
{
    const auto lower = [](char letter) { return windows1252Lower[static_cast<unsigned char>(letter)]; };
    const auto found = std::search(text.begin(), text.end(), word.begin(), word.end(), [&](char letter, char sought) {
        return lower(letter) == static_cast<unsigned char>(sought);
    });
    return found != text.end();
}

} // namespace

DocumentHardware hardwareOfDocument(std::string_view fileName, std::string_view text)
{
    DocumentHardware hardware{joystick::f22Pro, throttle::none};
    const std::string extension = lowerUtf8(std::string(Right(fileName, 3)));
    if (extension == "b50") hardware.JoyName = joystick::f16Flcs;
    if (extension == "adv") hardware.JoyName = joystick::pFcs;
    if (holds(text, "wcs")) hardware.ThrottleName = throttle::wcs;
    if (holds(text, "tqs")) hardware.ThrottleName = throttle::tqs;
    return hardware;
}

} // namespace tarvex
