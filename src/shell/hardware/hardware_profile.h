#pragma once

#include "platform/platform.h"
#include "shell/shared.h"

#include <string>

namespace tarvex {

/// Values of the setting JoyName.
namespace joystick {
constexpr std::int16_t f22Pro = 0;
constexpr std::int16_t f16Flcs = 1;
constexpr std::int16_t pFcs = 2;
constexpr std::int16_t topGun = 3;
constexpr std::int16_t fcs = 4;
} // namespace joystick

/// The controllers as sentences name them, e.g. "F-16 FLCS, TQS, no rudders."; an index that there isn't adds nothing.
std::string GetHardwareNames(const Settings& settings);

/// Guesses the controllers from the maker's folders on drive c: and sets the factory colours. Saves what it found; when
/// no folder is there, only the colours are saved and ProgramFilesPath stays empty.
void AutoDetect(const Platform& platform, Shared& shared);

// The user's choice in the preferences, by list index.
void ComboJoystick_Click(Shared& shared, std::int16_t index);
void ComboThrottle_Click(Shared& shared, std::int16_t index);
void ComboRudders_Click(Shared& shared, std::int16_t index);

} // namespace tarvex
