// The words that the files in examples/ may use.
#pragma once

#include <string>

namespace examples {

/// A key or a modifier key: a single printable character, or a name.
bool isKey(const std::string& word);
/// A slash and one of the letters of the language.
bool isSlashCode(const std::string& word);
/// A button, hat position, rocker position or trigger, without the logic lines X1 to X48.
bool isSwitch(const std::string& word);
/// X1 to X48.
bool isLogicLine(const std::string& word);
/// One option of USE, with its mouse type if it has one: "TQS", "MTYPE A3".
bool isUseOption(const std::string& words);
bool isNumber(const std::string& word);

} // namespace examples
