#pragma once

#include "sheet/sheet_word.h"

#include <string>
#include <vector>

namespace tarvex {

/// A word at its place in a line.
struct PlacedWord {
    double x = 0; ///< from the line's left edge
    double size = 0;
    SheetWord::Kind kind = SheetWord::Kind::Plain;
    std::string text;
};
struct PlacedLine {
    std::vector<PlacedWord> words;
    double size = 0;     ///< of its largest word
    bool parted = false; ///< its last word goes on in the next line
};

/// Whether words of this kind are printed in bold.
bool isBold(SheetWord::Kind kind);
/// The size of words of this kind beside others of `size`: keys are smaller than the macro that sends them.
double sizeOf(SheetWord::Kind kind, double size);

/// Breaks the words into lines of at most `width`. All but the first line begin at `hanging`. A word that is wider by
/// itself is broken behind "_", else between its letters. Keys stay together where a line holds them all. Takes a time
/// in proportion to the text.
std::vector<PlacedLine> wrapWords(const std::vector<SheetWord>& words, double width, double size, double hanging = 0);

/// The text cut to the width, with "…" where it was cut.
std::string cutTo(const std::string& text, double width, double size, bool bold);

} // namespace tarvex
