#pragma once

#include "preferences/preferences.h"

namespace tarvex {

/// Asks for the folder of an old installation and what to bring along of it, copies that, and takes imported settings
/// into memory and into the pages of the preferences. False: nothing was copied.
bool importInstallation(Preferences& preferences);

} // namespace tarvex
