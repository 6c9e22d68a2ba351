#pragma once

#include "sheet/control_layers.h"

#include <string>
#include <vector>

namespace tarvex {

/// A word at its place in a line.
struct PlacedWord {
    double x = 0; ///< from the line's left edge
    std::string text;
    SheetWord::Kind kind = SheetWord::Kind::Plain;
};
using PlacedLine = std::vector<PlacedWord>;

/// Whether words of this kind are printed in bold.
bool isBold(SheetWord::Kind kind);

/// Breaks the words into lines of at most `width`; a word that is wider by itself is broken between its letters.
std::vector<PlacedLine> wrapWords(const std::vector<SheetWord>& words, double width, double size);

} // namespace tarvex
