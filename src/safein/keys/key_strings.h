#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

/// The state of the key pad that decides what a key is called and sends.
struct PadState {
    bool shift = false;   ///< ToggleButton1 is held
    bool ctrl = false;    ///< ToggleButton2
    bool alt = false;     ///< ToggleButton3
    bool numLock = false; ///< ToggleButton4 is held and to be seen
    std::int16_t UseShfKey = 1;
    std::int16_t ApplyRAWTMnotes = 0;
    std::int16_t JoyName = 0;      ///< 0: F22 Pro
    std::string_view caption = {}; ///< of the key with the index LastKeyIndex
};

/// What is computed for a key: its name and its codes, with the modifiers that are held.
struct KeyStrings {
    std::int16_t LastKeyIndex = -1; ///< the key; -1: none yet

    std::string KeySyntax;
    std::string KeyMake;
    std::string KeyBreak;
    std::string KeyCombined;

    std::string KeyModifier;       ///< the words of what is held, each with a blank behind it
    std::int16_t ShiftInLabel = 0; ///< 1: the name carries the shift already
};

/// Fills KeyModifier.
void GetModifier(KeyStrings& strings, const PadState& pad);
/// Fills the four results for LastKeyIndex. An index without a key has empty texts, to which the modifiers are added
/// all the same.
void GetKeystrings(KeyStrings& strings, const PadState& pad);

} // namespace tarvex
