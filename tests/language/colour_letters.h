#pragma once

#include "documents/text/pane.h"
#include "shell/settings.h"

#include <string>

namespace tarvex {

/// A scheme whose colours all differ.
inline void setTestScheme(Settings& settings)
{
    settings.BTNColour = 0x0000B1;
    settings.SlashColour = 0x0000B2;
    settings.RAWColour = 0x0000B3;
    settings.MiscellaneousColour = 0x0000B4;
    settings.RemStatements = 0x0000B5;
    settings.BackgroundColour = 0xEEEEE1;
    settings.MacroBackgroundColour = 0xEEEEE2;
}

/// The setting that a colour comes from: B button, S slash, R raw, M miscellaneous, C comment, "." black, "?" another.
inline char letterOf(Colour colour, const Settings& settings)
{
    if (colour == 0) return '.';
    if (colour == settings.BTNColour) return 'B';
    if (colour == settings.SlashColour) return 'S';
    if (colour == settings.RAWColour) return 'R';
    if (colour == settings.MiscellaneousColour) return 'M';
    if (colour == settings.RemStatements) return 'C';
    return '?';
}

/// A letter for each character of the pane.
inline std::string coloursOf(const Pane& pane, const Settings& settings)
{
    std::string letters;
    for (std::size_t i = 0; i < pane.TextLength(); ++i) letters += letterOf(pane.formatAt(i).colour, settings);
    return letters;
}

/// The same, with the line ends as they stand in the text: what they are coloured in can't be seen.
inline std::string visibleColoursOf(const Pane& pane, const Settings& settings)
{
    std::string letters = coloursOf(pane, settings);
    for (std::size_t i = 0; i < letters.size(); ++i) {
        const char character = pane.Text()[i];
        if (character == '\r' || character == '\n') letters[i] = character;
    }
    return letters;
}

} // namespace tarvex
