#pragma once

#include "wizards/wizard_pages.h"

namespace tarvex {

/// The pages of a window by the name of their file: "macro", "joystick", "slash" or "speedy".
std::vector<WizardPage> wizardTexts(const char* name);

} // namespace tarvex
