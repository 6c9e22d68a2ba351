#pragma once

#include "shell/menus.h"
#include "shell/settings.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tarvex {

/// Numbers on Toolbar1, from 1, that the program speaks of apart from their rows.
namespace toolbarButton {
constexpr int picture = 29; ///< lies under Picture1 and has no command of the menus
constexpr int preferences = 46;
constexpr int calibrate = 37; ///< can be switched off in the settings
constexpr int firstExtra = 35;
constexpr int lastExtra = 42;
/// The bar ends before it: what is done to it fails, and the download button stays as it is.
constexpr int compile = 49;
} // namespace toolbarButton

/// One place on Toolbar1 and all there is to know of it. A separator has no command and no icon.
struct ToolbarButton {
    int number; ///< from 1
    std::string_view icon = {};
    std::string_view hoverText = {};     ///< for status panel 1
    std::string_view tip = {};           ///< with its shortcut in brackets, as the user reads it
    std::string_view shortcut = {};      ///< as the tip has it, e.g. "Shift+F11"
    MenuItem Menus::*joystick = nullptr; ///< the command while tab 1 is selected
    MenuItem Menus::*macro = nullptr;    ///< while tab 2 is; none: the same
    /// What stands in for hover text, tip and commands while a setting is 1. The icon is that with "-both" behind it.
    struct Both {
        std::int16_t Settings::*setting = nullptr;
        std::string_view hoverText = {};
        std::string_view tip = {};
        MenuItem Menus::*command = nullptr;
        std::string_view shortcut = {};
    } both = {};
    bool alwaysEnabled = false; ///< whether the menu offers the command or not
    bool hidesWithSeparators = false;

    bool isSeparator() const { return icon.empty() && number != toolbarButton::picture; }
};

/// All places of the bar, by number from 1 without a gap.
std::span<const ToolbarButton> toolbarButtons();
/// Both documents at once are meant by a button that is for either.
bool toolbarMeansBoth(const ToolbarButton& button, const Settings& settings);
/// None for a number outside the bar.
const ToolbarButton* toolbarButtonAt(int number);

} // namespace tarvex
