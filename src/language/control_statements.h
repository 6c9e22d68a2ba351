#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace tarvex {

/// A statement of a joystick file, as it stands there.
struct ControlStatement {
    std::string text;          ///< bytes; its line ends are CR LF
    std::int64_t line = 0;     ///< of its head, from 1
    std::int64_t position = 0; ///< of its head, from 0
};

/// The statements of a joystick file (bytes) by their heads, in upper case with single blanks: "BTN S1", "RNG",
/// "RKR UP", "PORTB1". Of several with one head the first counts. A statement is the line that begins with its head and
/// the lines below it up to the next one that begins with a word of the language; comments and empty lines at its end
/// don't belong to it. Nothing in a comment is a statement. Linear in the text.
std::map<std::string, ControlStatement, std::less<>> controlStatements(std::string_view text);

} // namespace tarvex
