#pragma once

#include <cstdint>
#include <string_view>

namespace tarvex {

/// Values of the setting ThrottleName.
namespace throttle {
constexpr std::int16_t none = 0;
constexpr std::int16_t tqs = 1;
constexpr std::int16_t wcsMkII = 2;
constexpr std::int16_t wcs = 3;
} // namespace throttle

/// The controllers that a joystick file is for, as values of JoyName and ThrottleName.
struct DocumentHardware {
    std::int16_t JoyName = 0;
    std::int16_t ThrottleName = 0;
};

/// The stick by the last three letters of the file's name, in any case; the F-22 Pro for unknown ones. The throttle by
/// the names in the text (bytes), in any case; the TQS when both are there.
DocumentHardware hardwareOfDocument(std::string_view fileName, std::string_view text);

} // namespace tarvex
