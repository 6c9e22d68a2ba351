#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A key that goes down or comes up.
struct KeyEvent {
    std::int16_t key; ///< index in the key table
    bool down;
    bool operator==(const KeyEvent&) const = default;
};

/// A piece of the text that is no key's code: a byte, a code that breaks off, or a word that is no byte at all.
struct UnknownCode {
    std::size_t position; ///< of its first character in the text, from 0
    std::size_t length;
    bool operator==(const UnknownCode&) const = default;
};

struct DecodedRaw {
    std::vector<KeyEvent> events;
    std::vector<std::int16_t> leftDown; ///< keys that are down at the end, in the order in which they went down
    std::vector<UnknownCode> unknown;
};

/// Reads raw codes backwards into keys. In a text with "RAW (" only what stands in such brackets is read, all brackets
/// as one stream; otherwise the whole text. Digits may be lower-case. The shifts that grey keys bring along are no
/// events. Takes any text; the cost grows in a straight line with it.
DecodedRaw decodeRaw(std::string_view text);

/// One line for a window: "LSFT down, a down, a up, LSFT up", what stays down, what isn't known. Breaks off with "..."
/// after `mostEvents` events. Empty for a text without any code.
std::string rawSummary(std::string_view text, std::size_t mostEvents = 24);

} // namespace tarvex
