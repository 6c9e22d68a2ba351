#pragma once

#include <functional>
#include <map>
#include <string>

namespace tarvex {

/// Keys of the macros, as the sheet shows them (UTF-8), by their names (bytes).
using MacroKeys = std::map<std::string, std::string, std::less<>>;

/// A word of what a control does, UTF-8.
struct SheetWord {
    enum class Kind { Plain, Macro, Keys, Modifier };
    std::string text;
    Kind kind = Kind::Plain;
    bool operator==(const SheetWord&) const = default;
};

} // namespace tarvex
