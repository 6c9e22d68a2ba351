#pragma once

#include "documents/pair/editor.h"

#include <span>
#include <string_view>

namespace tarvex {

/// A key of the panes and the command that it stands for in each.
struct PaneKey {
    std::string_view keys; ///< e.g. "Ctrl+S"
    MenuItem Menus::*joystick;
    MenuItem Menus::*macro;
};
std::span<const PaneKey> paneKeys();

/// Runs the command of a key in the pane of the selected tab when it is enabled. False: the key is the pane's own.
bool pressPaneKey(Editor& editor, std::string_view keys);
/// Ctrl+Tab: the other tab.
void selectOtherTab(Editor& editor);

} // namespace tarvex
