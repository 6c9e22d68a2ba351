#pragma once

#include "shell/settings.h"

#include <span>
#include <string_view>

namespace tarvex {

/// What a pass does with each of its matches.
enum class PassAction {
    Head,              ///< the word, the character behind it, and what follows up to the next blank
    Slash,             ///< a slash behind a blank or at the start of a line, and the character behind it
    Bracket,           ///< the word and the next ")"; what stands between keeps its colour
    Blank,             ///< the word, if a blank follows
    Plain,             ///< the word
    Parenthesis,       ///< the word of five letters, if "(" follows at once or one place further
    SingleParenthesis, ///< the same, but only if "(" follows at once
    Port,              ///< up to the next "S", and the rest of that line in BTNColour
    Comment,           ///< the word and the rest of its line
    TemplateDef,       ///< as Head, but the word itself in MiscellaneousColour, and only if a blank follows
};

/// What the progress bar shows of a pass.
namespace passProgress {
constexpr int byPosition = -1; ///< where in the text the pass is
constexpr int asBefore = 0;    ///< nothing new; any other value is set after the pass, of 15
constexpr int keywords = 15;
} // namespace passProgress

/// One search through the whole text for one word of the language.
struct ColourPass {
    std::string_view word;
    int options;             ///< of Pane::Find
    std::string_view status; ///< shown from the start of the pass; empty: what stands there stays
    PassAction action;
    Colour Settings::*colour;
    int progress;
};

// The lists of passes, in their order: a later pass paints over an earlier one.
std::span<const ColourPass> joystickPasses();
std::span<const ColourPass> macroPasses();
std::span<const ColourPass> templatePasses();
std::span<const ColourPass> safeinTransferPasses();
std::span<const ColourPass> macroTransferPasses();

} // namespace tarvex
