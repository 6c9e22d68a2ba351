#pragma once

#include <string_view>

namespace tarvex {

/// What the reader does at a control word.
enum class RtfAction {
    None,
    // look of the characters that follow
    Bold,
    Italic,
    Underline,
    NoUnderline,
    ForeColour,
    Font,
    FontSize,
    Indent,
    Plain,
    ParagraphPlain,
    Hidden,
    Deleted,
    // characters
    Character, ///< the byte in `value`
    Paragraph,
    LineEnd,
    Unicode,
    UnicodeSkip,
    // tables
    DefaultFont,
    FilePage,       ///< the code page in `value`
    FilePageNumber, ///< the code page that the word gives
    FontCharset,    ///< of the font whose name follows
    FontPage,       ///< likewise, as a number
    FontTable,
    ColourTable,
    Component, ///< of a colour: 0 red, 1 green, 2 blue, in `value`
    // groups
    Skip, ///< the group holds nothing of the text
    ExactSize,
    ExactColour,
    CrFormat
};

struct RtfWord {
    RtfAction action = RtfAction::None;
    int value = 0;
};

/// None for an unknown word.
RtfWord rtfWord(std::string_view name);

} // namespace tarvex
