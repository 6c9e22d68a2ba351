#pragma once

#include "preferences/preferences.h"

namespace tarvex {

/// Loads the dialogue, shows it modally and unloads it.
void mnuPreferencesEdit_Click(Preferences& preferences);

/// Takes the command that shows the preferences, and the operation that follows a change of the font.
void wirePreferences(Preferences& preferences);

} // namespace tarvex
