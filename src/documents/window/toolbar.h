#pragma once

#include "documents/pair/editor.h"

#include <span>
#include <string_view>

namespace tarvex {

/// A button of Toolbar1, by its number from 1, and what it is for. Numbers without a row are separators.
struct ToolbarSlot {
    int number;
    std::string_view hoverText;          ///< for status panel 1
    MenuItem Menus::*joystick = nullptr; ///< the command while tab 1 is selected; none: no command of the menus
    MenuItem Menus::*macro = nullptr;    ///< while tab 2 is; none: the same
    /// What stands in for all of it while a setting is 1.
    struct Both {
        std::int16_t Settings::*setting = nullptr;
        MenuItem Menus::*command = nullptr;
        std::string_view hoverText = {};
    } both = {};
    bool alwaysEnabled = false; ///< whether the menu offers the command or not
};
std::span<const ToolbarSlot> toolbarSlots();

/// The command of a button just now; none for a separator, for Picture1's and for a number outside the bar.
MenuItem* toolbarCommand(Editor& editor, int button);
/// Both documents at once are meant by a button that is for either.
bool toolbarMeansBoth(const Editor& editor, const ToolbarSlot& slot);
/// The button can be pressed: it is enabled, and so is its command.
bool toolbarOffers(Editor& editor, int button);

/// A number outside the bar does nothing.
void Toolbar1_ButtonClick(Editor& editor, int button);
/// The mouse is over the bar, at a point in pixels of the bar: tells on status panel 1 what the button there is for.
void Toolbar1_MouseMove(Editor& editor, int button, int shift, float x, float y);
/// The mouse is over the status bar, `x` twips from its left edge.
void StatusBar_MouseMove(Editor& editor, float x);

void Picture1_MouseMove(Editor& editor);
/// Opens the choice of colours below the picture, for the pane.
void Picture1_Click(Editor& editor);

} // namespace tarvex
