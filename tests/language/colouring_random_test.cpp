#include "language/colour_letters.h"
#include "language/naive_passes.h"
#include "language/pass_runner.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace tarvex {
namespace {

/// Words of controller files, and words that are nearly such.
const std::vector<std::string> pieces{"BTN",
                                      "btn",
                                      "XBTN",
                                      "DEF",
                                      "def",
                                      "RAW (",
                                      "RAW(",
                                      "raw(",
                                      "DLY(",
                                      "RPT(",
                                      ")",
                                      "#5B",
                                      "(",
                                      "/",
                                      "//",
                                      "/P",
                                      "/I",
                                      "ANT",
                                      "ant",
                                      "RNG",
                                      "Rng",
                                      "USE",
                                      "MT",
                                      "MDEF",
                                      "RATE",
                                      "PortB",
                                      "PORTB1",
                                      "S",
                                      "S1",
                                      "H1U",
                                      "JSX",
                                      "JSY",
                                      "RDDR",
                                      "THR",
                                      "SWAPTG",
                                      "RKR UP",
                                      "RKR DN",
                                      "AND",
                                      "and",
                                      "NOT",
                                      "Not",
                                      "OR",
                                      "F22RST",
                                      "CMPLT",
                                      "CMPGT(",
                                      "XCMPGT",
                                      "DELAY",
                                      "DELAY(",
                                      "PULSE (",
                                      "GAME1",
                                      "GAME2",
                                      "NULLCHR",
                                      "@digitalthrottle",
                                      "Rem",
                                      "REM",
                                      "Remark",
                                      "~",
                                      "_",
                                      "=",
                                      "x",
                                      "5",
                                      "\t",
                                      " ",
                                      " ",
                                      " ",
                                      "  ",
                                      "\r\n",
                                      "\r\n",
                                      "\r\n"};

struct RandomColouring : testing::Test {
    Settings settings;
    std::mt19937 chance;

    RandomColouring() { setTestScheme(settings); }

    std::size_t below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(chance); }

    std::string words(std::size_t count) { return words(count, pieces); }
    std::string words(std::size_t count, const std::vector<std::string>& from)
    {
        const bool spaced = below(2) == 0;
        std::string text;
        for (std::size_t i = 0; i < count; ++i) {
            text += from[below(from.size())];
            if (spaced && below(4) != 0) text += ' ';
        }
        return text;
    }

    void compare(const std::string& text, std::span<const ColourPass> passes)
    {
        Pane pane;
        pane.setText(text);
        ASSERT_EQ(pane.Text(), text);
        int failures = 0;
        ErrorRecord errors;
        errors.reportWindow = [&] { ++failures; };
        std::vector<NaiveColouring::HeldAt> holds;
        float position = 0;
        runPasses({pane, settings, position, Steps(errors, "run"), nullptr,
                   [&](const Hold& hold) {
                       holds.push_back({std::string(hold.word), hold.line});
                   }},
                  passes);
        const NaiveColouring expected = naiveColouring(text, settings, passes);
        std::string letters;
        for (const Colour colour : expected.colours) letters += letterOf(colour, settings);
        ASSERT_EQ(coloursOf(pane, settings), letters) << text.substr(0, 2000);
        ASSERT_TRUE(holds == expected.holds) << text.substr(0, 2000);
        ASSERT_EQ(failures, expected.failures) << text.substr(0, 2000);
    }

    void compareAll(const std::string& text)
    {
        for (const auto& passes :
             {joystickPasses(), macroPasses(), templatePasses(), safeinTransferPasses(), macroTransferPasses()}) {
            compare(text, passes);
            if (HasFatalFailure()) return;
        }
    }

    void begin()
    {
        const auto seed = std::random_device()();
        std::cout << "seed " << seed << '\n';
        chance.seed(seed);
    }
};

TEST_F(RandomColouring, ShortTextsAreColouredAsTheNaiveWayDoes)
{
    begin();
    for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) compareAll(words(below(60)));
}

TEST_F(RandomColouring, ClosedTextsOfManyLinesAreColouredAsTheNaiveWayDoes)
{
    begin();
    for (int i = 0; i < 200 && !HasFatalFailure(); ++i) compareAll(words(below(600)) + ")");
}

TEST_F(RandomColouring, TextsBeyondTheBoundsOf16BitsAreColouredAsTheNaiveWayDoes)
{
    begin();
    for (int i = 0; i < 12 && !HasFatalFailure(); ++i) {
        std::string text = words(below(30));
        for (const std::size_t bound : {32768U, 65536U, 98304U, 131072U}) {
            if (text.size() + 150 < bound) text += std::string(bound - 150 + below(140) - text.size(), ' ');
            text += words(40);
            if (below(3) == 0) break;
        }
        compareAll(text + (below(2) == 0 ? ")" : ""));
    }
}

/// Statement heads without blanks between them, at positions that a pass holds as negative ones.
TEST_F(RandomColouring, CrowdedHeadsBeyondTheBoundOf16BitsAreColouredAsTheNaiveWayDoes)
{
    begin();
    const std::vector<std::string> heads{"DEF", "DEF,", "DEF,", "BTN,", "Rem", ",", "x", " ", "\r\n"};
    for (int i = 0; i < 200 && !HasFatalFailure(); ++i) {
        std::string text = words(10, heads);
        text += std::string(32768 - below(60) - text.size(), ' ') + words(40, heads);
        compare(text, templatePasses());
        if (!HasFatalFailure()) compare(text, joystickPasses());
    }
}

} // namespace
} // namespace tarvex
