#pragma once

#include "platform/platform.h"

namespace tarvex {

/// Informs the user of INI files that are too large to be read: the program runs with the defaults instead, and leaves
/// those files alone. No such file, no box.
void reportLargeSettings(const Platform& platform);

} // namespace tarvex
