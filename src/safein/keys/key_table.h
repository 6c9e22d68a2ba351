#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarvex {

/// Name of the keys that the controllers' language has no word for.
inline constexpr std::string_view notSupported = "not supported";

/// What is particular about a key.
enum class KeyKind : std::uint8_t {
    Plain,
    NamedByLabel,       ///< without the SHF syntax its name is the label of the moment
    FakeShift,          ///< a grey key: the keyboard surrounds it with shift codes of its own while Shift is held
    FakeShiftAndNumLock ///< the same, and also while Num Lock is on
};

/// A key of the 101-key keyboard. Codes are PS/2 scan code set 2, written as the controllers' files write them: "#" and
/// two upper-case hexadecimal digits for each byte, one blank between.
struct Key {
    int index;                ///< 0 to 101, without 54
    std::string_view name;    ///< in the controllers' language; none for index 7
    std::string_view f22Name; ///< on the F22 Pro, where that differs
    std::string_view make;
    std::string_view label;   ///< caption of the drawn key
    std::string_view shifted; ///< the same while Shift is held, where that differs; "&" is doubled
    std::string_view spoken;  ///< for those who can't see the drawn key
    KeyKind kind;

    std::string_view labelWith(bool shiftHeld) const { return shiftHeld && !shifted.empty() ? shifted : label; }
    /// The name, or the label of a key without a usable one. Unlike names, unique.
    std::string_view distinctName() const { return name.empty() || name == notSupported ? label : name; }
};

namespace keyIndex {
constexpr int last = 101;
constexpr int seven = 7;
constexpr int leftShift = 58;
constexpr int rightShift = 59;
constexpr int leftCtrl = 60;
constexpr int rightCtrl = 61;
constexpr int leftAlt = 62;
constexpr int rightAlt = 63;
constexpr int pause = 99;
constexpr int printScreen = 100;
} // namespace keyIndex

/// All keys, by index.
std::span<const Key> keyTable();
/// None for an index without a key.
const Key* keyAt(int index);
/// By distinct name, in its case; none for any other text.
const Key* keyNamed(std::string_view distinctName);

/// What the key sends when it goes up; empty for Pause, which sends everything when it goes down.
std::string breakCode(const Key& key);

/// The key whose code ends in this byte, alone or behind #E0; none for a byte that no key sends. Knows the codes that
/// Print Screen and Pause send while Alt or Ctrl is held. Not for the bytes of Pause's own long code.
const Key* keyOfCode(std::uint8_t byte, bool extended);
/// Whether this byte behind #E0 is a shift that no finger holds: grey keys come with them.
constexpr bool isFakeShift(std::uint8_t byte) { return byte == 0x12 || byte == 0x59; }

/// The second sign on a key cap: the character of the current keyboard layout, UTF-8, where it differs from the label.
/// Empty for keys that write nothing.
std::string_view secondSign(const Key& key, bool shiftHeld, std::string_view layoutSign);

inline constexpr std::array<std::uint8_t, 8> pauseBytes = {0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77};
inline constexpr std::uint8_t extendedPrefix = 0xE0;
inline constexpr std::uint8_t breakPrefix = 0xF0;

/// The value of a hexadecimal digit in either case; -1 for any other character.
constexpr int hexDigit(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

} // namespace tarvex
