#pragma once

namespace tarvex {

/// Lets the windows be drawn, and nothing else happen, until the user presses Esc. Returns at once while no window is
/// shown. Ctrl+S ends the wait too, and reaches the widget with the keyboard once the work that waited is done; so does
/// the wish to close a window.
void waitForEscapeKey();

} // namespace tarvex
