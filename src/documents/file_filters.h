#pragma once

#include "shell/settings.h"

#include <string>

namespace tarvex {

// What the file dialogues offer: descriptions and patterns in turn, joined by "|".
std::string joystickOpenFilter(const Settings& settings);
std::string macroOpenFilter(const Settings& settings);
std::string bothOpenFilter(const Settings& settings);
std::string joystickSaveFilter(const Settings& settings);
std::string macroSaveFilter(const Settings& settings);

} // namespace tarvex
