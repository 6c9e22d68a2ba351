#pragma once

#include "preferences/preferences.h"

namespace tarvex {

/// Gives the controls of the preferences their tips, empty ones where the user wants none. A few always stay; so do the
/// whole paths, which the boxes of paths have as tips.
void PREFS_UpdateTooltips(Preferences& preferences);

} // namespace tarvex
