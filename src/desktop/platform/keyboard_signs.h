#pragma once

#include "safein/keys/key_table.h"

#include <array>
#include <string>

namespace tarvex {

/// What the keys print in the user's keyboard layout, UTF-8, by index of the key table; empty where they print nothing.
struct KeyboardSigns {
    std::array<std::string, keyIndex::last + 1> plain;
    std::array<std::string, keyIndex::last + 1> shifted;
};

/// Asks the X server for the layout that is in use now. Where there is none, all signs are empty.
KeyboardSigns readKeyboardSigns();

} // namespace tarvex
