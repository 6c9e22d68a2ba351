#include "language/colour_passes.h"

#include "documents/text/pane.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

using enum PassAction;
using passProgress::asBefore;
using passProgress::byPosition;

constexpr int any = 0;
constexpr int whole = find::wholeWord;
constexpr int matchCase = find::matchCase;
constexpr int wholeAndCase = find::wholeWord + find::matchCase;

constexpr auto btn = &Settings::BTNColour;
constexpr auto slash = &Settings::SlashColour;
constexpr auto raw = &Settings::RAWColour;
constexpr auto misc = &Settings::MiscellaneousColour;
constexpr auto rem = &Settings::RemStatements;

// clang-format off
constexpr auto joystick = std::to_array<ColourPass>({
    {"BTN", whole, "Applying colour to BTN statements ...", Head, btn, byPosition},
    {"/", any, "Applying colour to / modifiers ...", Slash, slash, byPosition},
    {"RAW (", any, "", Bracket, raw, byPosition},
    {"RAW(", any, "Applying colour to RAW statements ...", Bracket, raw, byPosition},
    {"DLY(", any, "Applying colour to DLY statements ...", Bracket, raw, byPosition},
    {"RPT(", any, "Applying colour to RPT statements ...", Bracket, raw, byPosition},
    {"ANT", whole, "Applying colour to USE,ANT,MDEF etc. commands ...", Blank, misc, 1},
    {"RNG", whole, "", Blank, misc, 2},
    {"USE", whole, "", Blank, misc, 3},
    {"MT", whole, "", Blank, misc, 4},
    {"MDEF", whole, "", Blank, misc, 5},
    {"RATE", whole, "", Blank, misc, 6},
    {"PortB", any, "", Port, misc, 7},
    {"JSX", whole, "", Blank, misc, 8},
    {"JSY", whole, "", Blank, misc, 9},
    {"RDDR", whole, "", Blank, misc, 10},
    {"THR", whole, "", Blank, misc, 11},
    {"SWAPTG", whole, "", Blank, misc, asBefore},
    {"RKR UP", whole, "", Blank, misc, asBefore},
    {"RKR DN", whole, "", Blank, misc, asBefore},
    {"AND", wholeAndCase, "", Blank, misc, asBefore},
    {"NOT", wholeAndCase, "", Blank, misc, asBefore},
    {"OR", wholeAndCase, "", Blank, misc, asBefore},
    {"DEF", wholeAndCase, "", Head, btn, asBefore},
    {"F22RST", wholeAndCase, "", Plain, misc, asBefore},
    {"CMPLT", matchCase, "", Parenthesis, misc, asBefore},
    {"CMPGT", matchCase, "", Parenthesis, misc, asBefore},
    {"DELAY", matchCase, "", Parenthesis, raw, asBefore},
    {"PULSE", matchCase, "", Parenthesis, raw, 12},
    {"GAME1", whole, "", Blank, misc, 13},
    {"GAME2", whole, "", Blank, misc, asBefore},
    {"NULLCHR", whole, "", Blank, misc, 14},
    {"@digitalthrottle", whole, "", Blank, misc, 15},
    {"Rem", whole, "Applying colour to Rem comments ...", Comment, rem, byPosition},
    {"~", any, "Applying colour to Rem comments ...", Comment, rem, byPosition},
    {"//", any, "Applying colour to Rem comments ...", Comment, rem, byPosition},
});

constexpr auto macro = std::to_array<ColourPass>({
    {"BTN", whole, "Applying colour to BTN statements ...", Head, btn, byPosition},
    {"/", any, "Applying colour to / modifiers ...", Slash, slash, byPosition},
    {"RAW (", any, "", Bracket, raw, byPosition},
    {"RAW(", any, "Applying colour to RAW statements ...", Bracket, raw, byPosition},
    {"DLY(", any, "Applying colour to DLY statements ...", Bracket, raw, byPosition},
    {"RPT(", any, "Applying colour to RPT statements ...", Bracket, raw, byPosition},
    {"ANT", wholeAndCase, "Applying colour to USE,ANT,MDEF etc. commands ...", Blank, misc, 1},
    {"RNG", wholeAndCase, "", Blank, misc, 2},
    {"USE", whole, "", Blank, misc, 3},
    {"MT", whole, "", Blank, misc, 4},
    {"MDEF", whole, "", Blank, misc, 5},
    {"RATE", whole, "", Blank, misc, 6},
    {"JSX", whole, "", Blank, misc, 8},
    {"JSY", whole, "", Blank, misc, 9},
    {"RDDR", whole, "", Blank, misc, 10},
    {"THR", whole, "", Blank, misc, 11},
    {"SWAPTG", whole, "", Blank, misc, 12},
    {"AND", wholeAndCase, "", Blank, misc, asBefore},
    {"NOT", wholeAndCase, "", Blank, misc, asBefore},
    {"OR", wholeAndCase, "", Blank, misc, asBefore},
    {"DEF", wholeAndCase, "", Head, btn, asBefore},
    {"F22RST", wholeAndCase, "", Plain, misc, asBefore},
    {"CMPLT", wholeAndCase, "", SingleParenthesis, misc, asBefore},
    {"CMPGT", wholeAndCase, "", SingleParenthesis, misc, asBefore},
    {"DELAY", matchCase, "", SingleParenthesis, raw, asBefore},
    {"PULSE", matchCase, "", SingleParenthesis, raw, asBefore},
    {"GAME1", whole, "", Blank, misc, 13},
    {"GAME2", whole, "", Blank, misc, asBefore},
    {"NULLCHR", whole, "", Blank, misc, 14},
    {"@digitalthrottle", whole, "", Blank, misc, 15},
    {"Rem", whole, "Applying colour to Rem comments ...", Comment, rem, byPosition},
    {"~", any, "Applying colour to ~ comments ...", Comment, rem, byPosition},
    {"//", any, "Applying colour to ~ comments ...", Comment, rem, byPosition},
});

constexpr auto safeinTransfer = std::to_array<ColourPass>({
    {"RAW (", any, "", Bracket, raw, asBefore},
    {"/", any, "", Slash, slash, asBefore},
    {"DLY(", any, "", Bracket, raw, asBefore},
    {"Rem", whole, "", Comment, rem, asBefore},
});
// clang-format on

/// A template is coloured like a joystick file, with fewer texts and a colour of its own for DEF.
constexpr auto forTemplate = [] {
    auto passes = joystick;
    for (ColourPass& pass : passes) {
        if (pass.word == "RPT(" || pass.word == "ANT" || pass.word == "~") pass.status = "";
        if (pass.word == "DEF") pass.action = TemplateDef;
    }
    return passes;
}();

/// The joystick file's passes; a block for the macro pane is coloured by them too.
constexpr auto macroTransfer = [] {
    std::array<ColourPass, joystick.size() - 1> passes{};
    std::ranges::copy_if(joystick, passes.begin(), [](const ColourPass& pass) { return pass.word != "NULLCHR"; });
    return passes;
}();

} // namespace

std::span<const ColourPass> joystickPasses() { return joystick; }
std::span<const ColourPass> macroPasses() { return macro; }
std::span<const ColourPass> templatePasses() { return forTemplate; }
std::span<const ColourPass> safeinTransferPasses() { return safeinTransfer; }
std::span<const ColourPass> macroTransferPasses() { return macroTransfer; }

} // namespace tarvex
