#pragma once

#include "documents/find/find_window.h"

namespace tarvex {

/// Replaces what the last search selected.
void Command5_Click(FindAndReplace& window);
void ReplaceText(FindAndReplace& window);

/// Replaces all matches. The first replacement is made whether or not the text was found, over the selection if it
/// wasn't, and isn't counted.
void Command6_Click(FindAndReplace& window);

} // namespace tarvex
