#pragma once

#include "sheet/sheet_word.h"

#include <string_view>
#include <vector>

namespace tarvex {

/// The macros of a macro file (bytes). Of several with one name the first counts; comments don't belong to the keys.
MacroKeys macroKeys(std::string_view macroFile);

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
