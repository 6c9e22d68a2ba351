#pragma once

#include <string>

namespace tarvex {

/// Windows' numbers of the keys that the tester treats in a way of their own.
namespace testedKey {
constexpr int shift = 16;
constexpr int ctrl = 17;
constexpr int alt = 18;
constexpr int capsLock = 20;
constexpr int numLock = 144;
} // namespace testedKey

struct NamedKey {
    std::string name;           ///< with a leading blank; empty: the key shows through its character, if at all
    bool suppressPress = false; ///< its character isn't shown
};

/// The text name of a key on a UK keyboard by Windows' number of it; `shift` is a sum of shiftKey.
NamedKey WhichKey(int keyCode, int shift);

/// What is held, as the lines of the key lists have it, e.g. "SHF & CTRL"; empty for none.
std::string modifierText(int shift);

} // namespace tarvex
