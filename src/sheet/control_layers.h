#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Keys of the macros, as the sheet shows them (UTF-8), by their names (bytes).
using MacroKeys = std::map<std::string, std::string, std::less<>>;

/// The macros of a macro file (bytes). Of several with one name the first counts; comments don't belong to the keys.
MacroKeys macroKeys(std::string_view macroFile);

/// A word of what a control does, UTF-8.
struct SheetWord {
    enum class Kind { Plain, Macro, Keys, Modifier };
    std::string text;
    Kind kind = Kind::Plain;
    bool operator==(const SheetWord&) const = default;
};

/// What a control does under one position of the dogfight switch ('U', 'M', 'D'; ' ': any) and of S3 ('I' held in, 'O'
/// out; ' ': either).
struct ControlLayer {
    char dogfight = ' ';
    char shift = ' ';
    std::vector<SheetWord> words;
    bool operator==(const ControlLayer&) const = default;
};

/// The layers of a statement (bytes), in its order; those that do nothing are left out. The modifier that comes first
/// is the outer one: the inner one begins anew below it. Each macro is followed by its keys. What a control does in
/// every position of a switch alike is one layer of any position.
std::vector<ControlLayer> controlLayers(std::string_view statement, const MacroKeys& macros);

} // namespace tarvex
