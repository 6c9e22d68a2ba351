#pragma once

#include "preferences/preferences.h"

namespace tarvex {

/// Asks, and takes the answer into the settings and their files. Afterwards the question isn't due any more, unless its
/// tick on the page "Extras" makes it so.
void askForFilesHome(Preferences& preferences);

} // namespace tarvex
