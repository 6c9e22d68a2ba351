#include "testers/key_names.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvex {

namespace {

struct KeyName {
    int code;
    std::string_view name;
};

constexpr KeyName names[] = {
    {8, "BackSpace"},  {9, "TAB"},       {12, "CLEAR (KP5)"}, {13, "Enter"},     {19, "PAUSE"},       {20, "CAPSLOCK"},
    {27, "Escape"},    {32, "SpaceBar"}, {33, "PageUP"},      {34, "PageDOWN"},  {35, "END"},         {36, "HOME"},
    {37, "LeftARROW"}, {38, "UpARROW"},  {39, "RightARROW"},  {40, "DownARROW"}, {42, "PrintScreen"}, {45, "INSERT"},
    {46, "DELETE"},    {106, "KP *"},    {107, "KP +"},       {108, "KP ENTER"}, {109, "KP -"},       {110, "KP ."},
    {111, "KP /"},     {186, ";"},       {187, "="},          {188, ","},        {189, "-"},          {190, "."},
    {191, "/"},        {192, "'"},       {219, "["},          {220, "\\"},       {221, "]"},          {222, "#"},
    {223, "`"},
};

constexpr int keypad0 = 96;
constexpr int keypad9 = 105;
constexpr int f1 = 112;
constexpr int f16 = 127;

constexpr std::array<std::string_view, 8> prefixes = {"",     "Shift ",     "Ctrl ",     "Shift Ctrl ",
                                                      "Alt ", "Shift Alt ", "Ctrl Alt ", "Shift Ctrl Alt "};
constexpr std::array<std::string_view, 8> modifiers = {"",    "SHF",       "CTRL",       "SHF & CTRL",
                                                       "ALT", "SHF & ALT", "CTRL & ALT", "SHF & CTRL & ALT"};

std::string_view entry(const std::array<std::string_view, 8>& table, int shift)
{
    return shift < 0 || shift >= static_cast<int>(table.size()) ? "" : table[static_cast<std::size_t>(shift)];
}

std::string plainName(int code)
{
    if (code >= keypad0 && code <= keypad9) return "KP " + std::to_string(code - keypad0);
    if (code >= f1 && code <= f16) return "F" + std::to_string(code - f1 + 1);
    const auto found = std::ranges::find(names, code, &KeyName::code);
    return found == std::end(names) ? "" : std::string(found->name);
}

/// The character of a code, in lower case. Control characters would only disturb the list.
std::string lowerCharacter(int code)
{
    if (code < ' ' || code > 255) return "";
    return utf8FromWindows1252(lowerWindows1252(std::string(1, static_cast<char>(code))));
}

} // namespace

NamedKey WhichKey(int keyCode, int shift)
{
    if (keyCode == testedKey::ctrl || keyCode == testedKey::alt) return {.name = "", .suppressPress = true};
    const std::string blankAndPrefix = " " + std::string(entry(prefixes, shift));
    if (const std::string name = plainName(keyCode); !name.empty()) return {.name = blankAndPrefix + name};
    if (shift < 2) return {};
    if (keyCode == testedKey::shift) return {.name = "", .suppressPress = true};
    return {.name = blankAndPrefix + lowerCharacter(keyCode)};
}

std::string modifierText(int shift) { return std::string(entry(modifiers, shift)); }

} // namespace tarvex
