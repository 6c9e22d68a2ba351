#include "shell/hardware/document_hardware.h"

#include "shell/hardware/hardware_profile.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarvex {
namespace {

TEST(HardwareOfDocument, TheStickFollowsTheLastThreeLettersOfTheName)
{
    const std::pair<const char*, int> sticks[] = {
        {"mig.b50", joystick::f16Flcs}, {"MIG.B50", joystick::f16Flcs}, {"mig.adv", joystick::pFcs},
        {"mig.ADV", joystick::pFcs},    {"mig.f22", joystick::f22Pro},  {"mig.txt", joystick::f22Pro},
        {"b50", joystick::f16Flcs},     {"b50.f22", joystick::f22Pro},  {"", joystick::f22Pro},
    };
    for (const auto& [name, stick] : sticks) EXPECT_EQ(hardwareOfDocument(name, "").JoyName, stick) << name;
}

TEST(HardwareOfDocument, TheThrottleIsTheOneThatTheTextNames)
{
    const std::pair<const char*, int> throttles[] = {
        {"", throttle::none},
        {"BTN S1 a", throttle::none},
        {"Rem for the WCS", throttle::wcs},
        {"wcs", throttle::wcs},
        {"w c s, Tq s", throttle::none},
        {"Rem tqs", throttle::tqs},
        {"Rem TQS, no WCS", throttle::tqs},
        {"Rem Wcs, no Tqs", throttle::tqs},
        {"tq", throttle::none},
    };
    for (const auto& [text, kind] : throttles) EXPECT_EQ(hardwareOfDocument("", text).ThrottleName, kind) << text;
}

} // namespace
} // namespace tarvex
