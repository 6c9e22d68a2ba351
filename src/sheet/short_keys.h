#pragma once

#include "sheet/sheet_word.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The keys that a definition (words, bytes) sends, as short as a reader needs them; UTF-8. Keys have the names that
/// are on their caps, raw codes are read, a key that is pressed several times running is counted ("Delete×3"). Delays
/// and the modifiers that say how a key is held or repeated are left out. "|" stands between what a toggle sends in
/// turn, "/R" before what is sent on release. A definition of codes that can't be read is "raw codes".
std::string shortKeys(std::span<const std::string_view> words);

/// The same for a layer of a statement, whose words keep their order and number. Each macro is followed by its keys.
std::vector<SheetWord> shortWords(std::span<const std::string_view> words, const MacroKeys& macros);

} // namespace tarvex
