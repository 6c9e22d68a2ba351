#include "safein/keys/key_table.h"

#include <algorithm>

namespace tarvex {

namespace {

using enum KeyKind;

constexpr std::string_view pauseCode = "#E1 #14 #77 #E1 #F0 #14 #F0 #77";

// index, name, name on the F22 Pro, make, label, shifted label, spoken, kind
constexpr Key keys[] = {
    {0, "0", "", "#45", "0", ")", "0", Plain},
    {1, "1", "", "#16", "1", "!", "1", NamedByLabel},
    {2, "2", "", "#1E", "2", "@", "2", NamedByLabel},
    {3, "3", "", "#26", "3", "#", "3", NamedByLabel},
    {4, "4", "", "#25", "4", "$", "4", NamedByLabel},
    {5, "5", "", "#2E", "5", "%", "5", NamedByLabel},
    {6, "6", "", "#36", "6", "^", "6", NamedByLabel},
    {7, "", "", "#3D", "7", "&&", "7", NamedByLabel},
    {8, "8", "", "#3E", "8", "*", "8", NamedByLabel},
    {9, "9", "", "#46", "9", "(", "9", Plain},
    {10, "KP0", "", "#70", "0", "", "Keypad 0", Plain},
    {11, "KP1", "", "#69", "1", "", "Keypad 1", Plain},
    {12, "KP2", "", "#72", "2", "", "Keypad 2", Plain},
    {13, "KP3", "", "#7A", "3", "", "Keypad 3", Plain},
    {14, "KP4", "", "#6B", "4", "", "Keypad 4", Plain},
    {15, "KP5", "", "#73", "5", "", "Keypad 5", Plain},
    {16, "KP6", "", "#74", "6", "", "Keypad 6", Plain},
    {17, "KP7", "", "#6C", "7", "", "Keypad 7", Plain},
    {18, "KP8", "", "#75", "8", "", "Keypad 8", Plain},
    {19, "KP9", "", "#7D", "9", "", "Keypad 9", Plain},
    {20, "a", "", "#1C", "a", "A", "A", NamedByLabel},
    {21, "b", "", "#32", "b", "B", "B", NamedByLabel},
    {22, "c", "", "#21", "c", "C", "C", NamedByLabel},
    {23, "d", "", "#23", "d", "D", "D", NamedByLabel},
    {24, "e", "", "#24", "e", "E", "E", NamedByLabel},
    {25, "f", "", "#2B", "f", "F", "F", NamedByLabel},
    {26, "g", "", "#34", "g", "G", "G", NamedByLabel},
    {27, "h", "", "#33", "h", "H", "H", NamedByLabel},
    {28, "i", "", "#43", "i", "I", "I", NamedByLabel},
    {29, "j", "", "#3B", "j", "J", "J", NamedByLabel},
    {30, "k", "", "#42", "k", "K", "K", NamedByLabel},
    {31, "l", "", "#4B", "l", "L", "L", NamedByLabel},
    {32, "m", "", "#3A", "m", "M", "M", NamedByLabel},
    {33, "n", "", "#31", "n", "N", "N", NamedByLabel},
    {34, "o", "", "#44", "o", "O", "O", NamedByLabel},
    {35, "p", "", "#4D", "p", "P", "P", NamedByLabel},
    {36, "q", "", "#15", "q", "Q", "Q", NamedByLabel},
    {37, "r", "", "#2D", "r", "R", "R", NamedByLabel},
    {38, "s", "", "#1B", "s", "S", "S", NamedByLabel},
    {39, "t", "", "#2C", "t", "T", "T", NamedByLabel},
    {40, "u", "", "#3C", "u", "U", "U", NamedByLabel},
    {41, "v", "", "#2A", "v", "V", "V", NamedByLabel},
    {42, "w", "", "#1D", "w", "W", "W", NamedByLabel},
    {43, "x", "", "#22", "x", "X", "X", NamedByLabel},
    {44, "y", "", "#35", "y", "Y", "Y", NamedByLabel},
    {45, "z", "", "#1A", "z", "Z", "Z", NamedByLabel},
    {46, "`", "", "#0E", "`", "~", "Grave accent", NamedByLabel},
    {47, "-", "", "#4E", "-", "_", "Minus", NamedByLabel},
    {48, "=", "", "#55", "=", "+", "Equals", NamedByLabel},
    {49, "\\", "", "#5D", "\\", "|", "Backslash", NamedByLabel},
    {50, "[", "", "#54", "[", "{", "Left bracket", Plain},
    {51, "]", "", "#5B", "]", "}", "Right bracket", Plain},
    {52, ";", "", "#4C", ";", ":", "Semicolon", NamedByLabel},
    {53, "'", "", "#52", "'", "\"", "Apostrophe", NamedByLabel},
    {55, ",", "", "#41", ",", "<", "Comma", NamedByLabel},
    {56, ".", "", "#49", ".", ">", "Period", NamedByLabel},
    {57, "/", "", "#4A", "/", "?", "Slash", NamedByLabel},
    {58, "LSFT", "", "#12", "Shift", "", "Left Shift", Plain},
    {59, "RSFT", "", "#59", "Shift", "", "Right Shift", Plain},
    {60, "LCTL", "", "#14", "Ctrl", "", "Left Ctrl", Plain},
    {61, "RCTL", "", "#E0 #14", "Ctrl", "", "Right Ctrl", Plain},
    {62, "LALT", "", "#11", "Alt", "", "Left Alt", Plain},
    {63, "RALT", "", "#E0 #11", "Alt", "", "Right Alt", Plain},
    {64, "ENT", "", "#5A", "Enter", "", "Enter", Plain},
    {65, "KPENT", "AUXENT", "#E0 #5A", "Ent", "", "Keypad Enter", Plain},
    {66, "KP.", "", "#71", ".", "", "Keypad period", Plain},
    {67, "KP+", "", "#79", "+", "", "Keypad plus", Plain},
    {68, "KP-", "", "#7B", "-", "", "Keypad minus", Plain},
    {69, "KP*", "", "#7C", "*", "", "Keypad asterisk", Plain},
    {70, "KP/", "AUX/", "#E0 #4A", "/", "", "Keypad slash", FakeShift},
    {71, "F1", "", "#05", "F1", "", "F1", Plain},
    {72, "F2", "", "#06", "F2", "", "F2", Plain},
    {73, "F3", "", "#04", "F3", "", "F3", Plain},
    {74, "F4", "", "#0C", "F4", "", "F4", Plain},
    {75, "F5", "", "#03", "F5", "", "F5", Plain},
    {76, "F6", "", "#0B", "F6", "", "F6", Plain},
    {77, "F7", "", "#83", "F7", "", "F7", Plain},
    {78, "F8", "", "#0A", "F8", "", "F8", Plain},
    {79, "F9", "", "#01", "F9", "", "F9", Plain},
    {80, "F10", "", "#09", "F10", "", "F10", Plain},
    {81, "F11", "", "#78", "F11", "", "F11", Plain},
    {82, "F12", "", "#07", "F12", "", "F12", Plain},
    {83, "ESC", "", "#76", "Esc", "", "Escape", Plain},
    {84, "INS", "AUXINS", "#E0 #70", "Ins", "", "Insert", FakeShiftAndNumLock},
    {85, "HOME", "AUXHOME", "#E0 #6C", "Home", "", "Home", FakeShiftAndNumLock},
    {86, "PGUP", "AUXPGUP", "#E0 #7D", "Pgup", "", "Page up", FakeShiftAndNumLock},
    {87, "DEL", "AUXDEL", "#E0 #71", "Del", "", "Delete", FakeShiftAndNumLock},
    {88, "END", "AUXEND", "#E0 #69", "End", "", "End", FakeShiftAndNumLock},
    {89, "PGDN", "AUXPGDN", "#E0 #7A", "Pgdn", "", "Page down", FakeShiftAndNumLock},
    {90, "TAB", "", "#0D", "Tab", "", "Tab", Plain},
    {91, "CAPS", "", "#58", "Caps", "", "Caps Lock", Plain},
    {92, "SPC", "", "#29", "Spacebar", "", "Spacebar", Plain},
    {93, "NUML", "", "#77", "NL", "", "Num Lock", Plain},
    {94, "UAROW", "AUXUAROW", "#E0 #75", "^", "", "Up arrow", FakeShiftAndNumLock},
    {95, "DAROW", "AUXDAROW", "#E0 #72", "v", "", "Down arrow", FakeShiftAndNumLock},
    {96, "LAROW", "AUXLAROW", "#E0 #6B", "<", "", "Left arrow", FakeShiftAndNumLock},
    {97, "RAROW", "AUXRAROW", "#E0 #74", ">", "", "Right arrow", FakeShiftAndNumLock},
    {98, "SCRLCK", "", "#7E", "Scrl", "", "Scroll Lock", Plain},
    {99, notSupported, "", pauseCode, "Brk", "", "Pause", Plain},
    {100, notSupported, "", "#E0 #12 #E0 #7C", "Prt", "", "Print Screen", Plain},
    {101, "BSP", "", "#66", "Bsp", "", "Backspace", Plain},
};

constexpr std::string_view printScreenBreak = "#E0 #F0 #7C #E0 #F0 #12";

/// Codes of keys that send another one while a modifier is held.
struct OtherCode {
    std::uint8_t byte;
    bool extended;
    int index;
};
constexpr OtherCode otherCodes[] = {
    {0x84, false, keyIndex::printScreen}, // with Alt
    {0x7E, true, keyIndex::pause},        // with Ctrl
};

constexpr std::uint8_t noKey = 0xFF;

struct ByIndex {
    std::array<std::uint8_t, keyIndex::last + 1> rows{};
    constexpr ByIndex()
    {
        rows.fill(noKey);
        for (std::size_t row = 0; row < std::size(keys); ++row)
            rows[static_cast<std::size_t>(keys[row].index)] = static_cast<std::uint8_t>(row);
    }
};
constexpr ByIndex byIndex;

/// The rows of the table by the last byte of the make code.
struct ByCode {
    std::array<std::array<std::uint8_t, 256>, 2> rows{};
    constexpr ByCode()
    {
        for (auto& half : rows) half.fill(noKey);
        for (const Key& key : keys) {
            if (key.index == keyIndex::pause) continue;
            const std::string_view code = key.make.substr(key.make.size() - 2);
            const bool extended = key.make.starts_with("#E0");
            rows[extended][static_cast<std::size_t>(hexDigit(code[0]) * 16 + hexDigit(code[1]))] =
                byIndex.rows[static_cast<std::size_t>(key.index)];
        }
        for (const OtherCode& other : otherCodes)
            rows[other.extended][other.byte] = byIndex.rows[static_cast<std::size_t>(other.index)];
    }
};
constexpr ByCode byCode;

} // namespace

std::span<const Key> keyTable() { return keys; }

const Key* keyAt(int index)
{
    if (index < 0 || index > keyIndex::last) return nullptr;
    const std::uint8_t row = byIndex.rows[static_cast<std::size_t>(index)];
    return row == noKey ? nullptr : &keys[row];
}

const Key* keyNamed(std::string_view distinctName)
{
    const Key* const found = std::ranges::find(keys, distinctName, &Key::distinctName);
    return found == std::end(keys) ? nullptr : found;
}

std::string breakCode(const Key& key)
{
    if (key.index == keyIndex::pause) return {};
    if (key.index == keyIndex::printScreen) return std::string(printScreenBreak);
    constexpr std::string_view extended = "#E0 ";
    const bool isExtended = key.make.starts_with(extended);
    std::string code(isExtended ? "#E0 #F0 " : "#F0 ");
    code += key.make.substr(isExtended ? extended.size() : 0);
    return code;
}

std::string_view secondSign(const Key& key, bool shiftHeld, std::string_view layoutSign)
{
    if (key.shifted.empty()) return {};
    const std::string_view label = key.labelWith(shiftHeld);
    return layoutSign == label.substr(0, 1) && !label.empty() ? std::string_view() : layoutSign;
}

const Key* keyOfCode(std::uint8_t byte, bool extended)
{
    const std::uint8_t row = byCode.rows[extended][byte];
    return row == noKey ? nullptr : &keys[row];
}

} // namespace tarvex
