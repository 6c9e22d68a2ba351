#pragma once

#include <string>

namespace tarvex {

/// docs/settings.md as the table of all settings gives it.
std::string settingsDocument();

} // namespace tarvex
