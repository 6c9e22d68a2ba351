#pragma once

#include "help/help.h"

#include <string_view>

namespace tarvex {

/// The topic of the page about a window, by the window's name in the program; 0: none.
int topicOfWindow(std::string_view name);
/// F1 in a window: shows the page about it. False: no page is about that window, and the key is its own.
bool showWindowHelp(Help& help, std::string_view name);

} // namespace tarvex
