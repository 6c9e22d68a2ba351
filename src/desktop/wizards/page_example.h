#pragma once

#include "shell/settings.h"

#include <QLabel>

#include <string>

namespace tarvex {

/// Lines of a file, on the background and in the colours of the panes. The user can select and copy them.
QLabel* makePageExample(const std::string& lines, const Settings& settings);

} // namespace tarvex
