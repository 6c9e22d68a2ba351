#pragma once

namespace tarvex {

/// Lets the windows be drawn, and nothing else happen, until the user presses Esc. Returns at once while no window is
/// shown. A window that the user wants closed meanwhile ends the wait too, and is asked to close once the work that
/// waited is done.
void waitForEscapeKey();

} // namespace tarvex
