#pragma once

#include <array>
#include <charconv>
#include <string>

namespace tarvex {

/// The number with that many decimals and a point before them, whatever the user's country writes.
inline std::string fixedText(double value, int decimals)
{
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

} // namespace tarvex
