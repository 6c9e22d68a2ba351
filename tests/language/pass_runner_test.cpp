#include "language/pass_runner.h"

#include "language/colour_letters.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Found {
    std::string word;
    std::int64_t line;
    bool first;
    bool operator==(const Found&) const = default;
    friend void PrintTo(const Found& found, std::ostream* out)
    {
        *out << found.word << " in line " << found.line << (found.first ? ", first" : "");
    }
};

/// The joystick file's passes over a pane alone.
struct RunTest : testing::Test {
    Settings settings;
    ErrorRecord errors;
    Pane pane;
    std::vector<Found> holds;
    float position = -7;

    RunTest() { setTestScheme(settings); }

    std::string colours(const std::string& text, std::span<const ColourPass> passes = joystickPasses())
    {
        pane.setTextRTF({});
        pane.setSelColor(0);
        pane.setText(text);
        const auto keep = [&](const Hold& hold) {
            holds.push_back({std::string(hold.word), hold.line, hold.isFirstOfRun});
        };
        runPasses({pane, settings, position, Steps(errors, "run"), nullptr, keep}, passes);
        return visibleColoursOf(pane, settings);
    }
    std::string coloursFrom(std::size_t start, const std::string& text) { return colours(text).substr(start); }
};

std::string blanks(std::size_t count) { return std::string(count, ' '); }

// ---- holds ----------------------------------------------------------------------------------------------------------

TEST_F(RunTest, AnUnclosedRawBehindTheLastBracketIsHeldAndTheRunGoesOn)
{
    EXPECT_EQ(colours("RAW(#1) x\r\nBTN S1 RAW(#5B\r\nRem y"), "RRRR..R..\r\nBBBBBB.RRRR...\r\nCCCCC");
    EXPECT_EQ(holds, (std::vector<Found>{{"RAW(", 2, true}}));
}

TEST_F(RunTest, AnUnclosedRawInFrontOfAnotherBracketIsNotHeld)
{
    EXPECT_EQ(colours("RAW(#5B x\r\nDLY(5)"), "RRRR.....\r\nRRRR.R");
    EXPECT_TRUE(holds.empty());
}

TEST_F(RunTest, SeveralUnclosedBracketsAreHeldOneAfterTheOtherAndOnlyTheFirstIsTheRunsFirst)
{
    EXPECT_EQ(colours("RAW (x\r\nRAW(x\r\nDLY(x\r\nRPT(x"), "RRRRR.\r\nRRRR.\r\nRRRR.\r\nRRRR.");
    EXPECT_EQ(holds,
              (std::vector<Found>{{"RAW (", 1, true}, {"RAW(", 2, false}, {"DLY(", 3, false}, {"RPT(", 4, false}}));
}

TEST_F(RunTest, ASecondUnclosedBracketOfAHeldPassIsNeverReached)
{
    EXPECT_EQ(colours("RAW(x\r\nRAW(y"), "RRRR.\r\n.....");
    EXPECT_EQ(holds, (std::vector<Found>{{"RAW(", 1, true}}));
}

TEST_F(RunTest, WithoutAListenerAHoldEndsAtOnce)
{
    pane.setText("RAW(x");
    runPasses({pane, settings, position, Steps(), nullptr, {}}, joystickPasses());
    EXPECT_EQ(coloursOf(pane, settings), "RRRR.");
}

TEST_F(RunTest, TheHoldsOfASecondRunBeginAnew)
{
    colours("RAW(x");
    colours("DLY(x");
    EXPECT_EQ(holds, (std::vector<Found>{{"RAW(", 1, true}, {"DLY(", 1, true}}));
}

// ---- positions of 16 bits -------------------------------------------------------------------------------------------

TEST_F(RunTest, ABlankWordAt32767IsReadAndPainted)
{
    EXPECT_EQ(coloursFrom(32766, blanks(32767) + "USE x"), ".MMM..");
    EXPECT_TRUE(errors.ErrorProcedure.empty());
}

TEST_F(RunTest, ABlankWordAt32768ReadsWhatTheMatchBeforeRead)
{
    EXPECT_EQ(coloursFrom(32767, blanks(32768) + "USE x"), "......") << "nothing was read before";
    EXPECT_EQ(errors.ErrorProcedure, "run");
    EXPECT_EQ(errors.ErrorNumber, 5);
    EXPECT_EQ(coloursFrom(32767, "USE x" + blanks(32763) + "USE\tx"), ".MMM..") << "a blank was read before";
    EXPECT_EQ(coloursFrom(32767, "USE\tx" + blanks(32763) + "USE x"), "......") << "a tab was read before";
    EXPECT_EQ(coloursFrom(32767, "ANT x" + blanks(32763) + "USE x"), "......") << "another pass read a blank";
    EXPECT_TRUE(holds.empty());
}

TEST_F(RunTest, TheSearchGoesOnBehind32768)
{
    EXPECT_EQ(coloursFrom(40000, blanks(40000) + "F22RST x F22RST y F22RST"), "MMMMMM...MMMMMM...MMMMMM");
    EXPECT_TRUE(holds.empty());
}

TEST_F(RunTest, ARefusedCaretLeavesTheSelectionOnTheHeadAndSpanGoesOnFromThere)
{
    EXPECT_EQ(coloursFrom(39999, blanks(40000) + "BTN S1 x"), ".BBBBBB..");
    EXPECT_EQ(errors.ErrorNumber, 380);
}

TEST_F(RunTest, ASlashBehind32767ReadsWhatTheMatchBeforeRead)
{
    EXPECT_EQ(coloursFrom(40000, blanks(40000) + "/P x"), "....");
    EXPECT_EQ(coloursFrom(40000, " /P " + blanks(39996) + "/P x"), "SS..");
}

TEST_F(RunTest, AMatchAt65534IsPaintedAndOneAt65535EndsItsPass)
{
    // 65,535 is searched from after the first "~"; the second is at 65,539, which counts as 3, and the rest of the line
    // from 4 on is painted as its comment.
    const std::string letters = colours(blanks(65534) + "~ x\r\n~");
    EXPECT_EQ(letters.substr(0, 6), "....CC");
    EXPECT_EQ(letters.substr(65533), "CCCC\r\nC");
    EXPECT_EQ(holds, (std::vector<Found>{{"~", 2, true}}));
    holds.clear();
    EXPECT_EQ(coloursFrom(65534, blanks(65535) + "~ x\r\n~"), "....\r\n.");
    EXPECT_TRUE(holds.empty());
}

TEST_F(RunTest, AWordThatReachesBeyond65535TurnsItsPassBack)
{
    // From 65,529 the search goes on at 65,535 and finds the word at 65,536, which turns it back.
    EXPECT_EQ(coloursFrom(65528, blanks(65529) + "F22RST F22RST"), ".MMMMMM.MMMMMM");
    EXPECT_EQ(holds, (std::vector<Found>{{"F22RST", 1, true}}));
    holds.clear();
    EXPECT_EQ(coloursFrom(65529, blanks(65530) + "F22RST F22RST"), ".MMMMMM.......");
    EXPECT_EQ(holds, (std::vector<Found>{{"F22RST", 1, true}}));
}

TEST_F(RunTest, AMatchAt65536IsPaintedAndHoldsItsPassForTheSearchStartsOver)
{
    EXPECT_EQ(coloursFrom(65535, blanks(65536) + "F22RST F22RST"), ".MMMMMM.......");
    EXPECT_EQ(holds, (std::vector<Found>{{"F22RST", 1, true}}));
}

TEST_F(RunTest, AHeadWhosePositionTurnsPositiveAgainStartsOverAndIsHeld)
{
    // The match at 65,532 is position -4; four characters on from there is 0, where a blank stands.
    EXPECT_EQ(coloursFrom(65531, blanks(65532) + "BTN S1 x"), ".BBBB....");
    EXPECT_EQ(holds, (std::vector<Found>{{"BTN", 1, true}}));
}

TEST_F(RunTest, ABracketClosedAt65535CountsAsUnclosed)
{
    EXPECT_EQ(coloursFrom(65529, blanks(65530) + "DLY(5) x"), ".RRRR.R..");
    EXPECT_EQ(holds, (std::vector<Found>{{"DLY(", 1, true}}));
}

TEST_F(RunTest, TextsUpTo65535CharactersAreNotHeldAndLongerOnesAre)
{
    const std::string piece = "BTN S1 /I RAW (#5B) DLY(6)\r\nRem // ~\r\nANT 1 DELAY(5)\r\n";
    for (const std::size_t length : {32767U, 32768U, 65534U, 65535U, 65536U, 65600U, 200'000U}) {
        std::string text;
        while (text.size() + piece.size() <= length) text += piece;
        text += blanks(length - text.size());
        holds.clear();
        const std::string letters = colours(text);
        if (length <= 65535) {
            EXPECT_EQ(letters.substr(0, piece.size()), "BBBBBB.SS.RRRRR...R.RRRR.R\r\nCCCCCCCC\r\nMMM...RRRRR...\r\n")
                << length;
        }
        EXPECT_EQ(holds.empty(), length <= 65536) << length;
    }
}

TEST_F(RunTest, ATemplatesDefsBehind32767AreButtonsWhateverTheMatchBeforeRead)
{
    EXPECT_EQ(colours("DEF x" + blanks(39995) + "DEF,DEF,DEF x", templatePasses()).substr(39999), ".BBBBBBBBBBBBB");
}

// ---- transfers ------------------------------------------------------------------------------------------------------

TEST_F(RunTest, SafeinsPassesAreFourAndPaintRemLast)
{
    EXPECT_EQ(colours("BTN S1 RAW (#5B) RAW(#5B) /P DLY(6) rem DLY(6)", safeinTransferPasses()),
              ".......RRRRR...R..........SS.RRRR.R.CCCCCCCCCC");
}

TEST_F(RunTest, AMacroBlockIsColouredLikeAJoystickFileLessNullchr)
{
    const std::string text = "BTN S1 /P PortB1 IS H1 \r\nant 1 DELAY (5) NULLCHR x";
    const std::string joystick = colours(text);
    std::string block = colours(text, macroTransferPasses());
    const std::size_t word = text.find("NULLCHR");
    EXPECT_EQ(joystick.substr(word, 7), "MMMMMMM");
    EXPECT_EQ(block.substr(word, 7), ".......");
    EXPECT_EQ(block.replace(word, 7, "MMMMMMM"), joystick);
}

// ---- in the program -------------------------------------------------------------------------------------------------

struct HeldProgramTest : testing::Test {
    TestProgram t;
    std::vector<std::string> shown;

    HeldProgramTest()
    {
        setTestScheme(t.settings());
        t.desktop.whileWaitingForEscape = [this] { shown.push_back(t.status()); };
    }
};

TEST_F(HeldProgramTest, StatusNamesTheLineOfTheFirstHoldUntilEscape)
{
    t.editor().JoystickText.setText("x\r\nRAW(x\r\nDLY(x\r\nRem y");
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(shown,
              std::vector<std::string>{
                  "Applying colour to RAW statements ... held by RAW( in line 2. Press Esc to go on, Ctrl+S to save."});
    EXPECT_EQ(t.status(), "Done");
    EXPECT_EQ(visibleColoursOf(t.editor().JoystickText, t.settings()), ".\r\nRRRR.\r\nRRRR.\r\nCCCCC");
}

TEST_F(HeldProgramTest, AnUnclosedRawHoldsAMacroFileToo)
{
    t.editor().MacroText.setText("A = RAW(#1");
    t.menus().mnuViewColourMacro.Click();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0],
              "Applying colour to RAW statements ... held by RAW( in line 1. Press Esc to go on, Ctrl+S to save.");
}

TEST_F(HeldProgramTest, OpeningAFileHoldsNothingAndRemarksWhereColouringEnded)
{
    t.settings().ApplyColoursOnFileOpen = 1;
    t.settings().CheckIdentifyOK = 0;
    t.files.addFile("c:\\a\\x.b50", "BTN S1\r\nRAW(x\r\nDLY(x\r\nRem y");
    t.files.addFile("c:\\a\\x.m50", "A = RAW(#1");
    t.openBoth("c:\\a\\x.b50");
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(t.status(), "Done. Colouring x.b50 couldn't get past RAW( in line 2. Colouring x.m50 couldn't get past "
                          "RAW( in line 1.");
    EXPECT_EQ(visibleColoursOf(t.editor().JoystickText, t.settings()), "BBBBBB\r\nRRRRB\r\nRRRRB\r\nCCCCC")
        << "a head goes on to the next blank";
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(shown.size(), 1U) << "the command still holds";
}

TEST_F(HeldProgramTest, OpeningATextBeyond65535CharactersHoldsNothing)
{
    t.settings().ApplyColoursOnFileOpen = 1;
    t.settings().CheckIdentifyOK = 0;
    std::string text;
    while (text.size() < 66'000) text += "BTN S1 x Rem y\r\n";
    t.files.addFile("c:\\a\\x.b50", text);
    t.files.addFile("c:\\a\\x.m50", "");
    t.openBoth("c:\\a\\x.b50");
    EXPECT_TRUE(shown.empty());
    EXPECT_TRUE(t.status().starts_with("Done. Colouring x.b50 couldn't get past ")) << t.status();
}

TEST_F(HeldProgramTest, AFileWithoutHoldsWaitsForNobody)
{
    t.editor().JoystickText.setText("RAW(x)");
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_TRUE(shown.empty());
}

} // namespace
} // namespace tarvex
