#pragma once

#include "safein/keys/key_table.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace tarvex {

/// What the keys print in the user's keyboard layout, UTF-8, by index of the key table; empty where they print nothing.
struct KeyboardSigns {
    std::array<std::string, keyIndex::last + 1> plain;
    std::array<std::string, keyIndex::last + 1> shifted;
};

/// What one key prints. `symbols` are the X server's for it: plain and with Shift, of one layout after the other. A
/// layout that has none for the key leaves it to the first; dead keys print the accent that they add.
struct KeyPrints {
    std::string plain;
    std::string shifted;
};
KeyPrints printsOf(std::span<const std::uint32_t> symbols, unsigned layout);

/// Asks the X server for the layout that is in use now. Where there is none, all signs are empty.
KeyboardSigns readKeyboardSigns();

} // namespace tarvex
