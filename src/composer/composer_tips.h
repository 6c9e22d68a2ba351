#pragma once

#include "composer/insert_options.h"

namespace tarvex {

/// Gives the controls their tips, or takes them away.
void showTips(InsertOptions& window, bool on);

} // namespace tarvex
