#include "language/commands/colour_as_typed.h"

#include "documents/pair/noted_caret.h"
#include "language/base_format.h"
#include "language/colour_letters.h"
#include "language/commands/coloured_insertion.h"
#include "support/random_seed.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tarvex {
namespace {

struct ColourAsTypedTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;

    ColourAsTypedTest()
    {
        setTestScheme(t.settings());
        t.program().shared.extras.set(extraKey::colourAsTyped, true);
        open("BTN S1 /P a\r\nREM note\r\nBTN S2 b");
    }
    void open(const std::string& text)
    {
        t.files.addFile("c:\\tm\\a.b50", text);
        t.files.addFile("c:\\tm\\a.m50", "");
        editor.joystick.Changed = changed::saved; // the former text may be dropped
        t.openBoth("c:\\tm\\a.b50");
        editor.TabStrip1.Select(1);
        t.dialogues.boxes.clear();
    }
    /// As keys do it: the level first, then the character.
    void type(std::int64_t position, const std::string& text)
    {
        for (const char character : text) {
            joystick.setSelStart(position++);
            joystick.KeyPress(character);
            joystick.userEdit(joystick.SelStart(), 0, std::string(1, character));
        }
    }
    void pause()
    {
        ASSERT_TRUE(editor.TimerColour.Enabled);
        editor.TimerColour.Tick();
    }
    void noteCaretAt(std::int64_t position)
    {
        joystick.setSelStart(position);
        noteCaret(editor, editor.joystick);
    }
    std::string colours() { return coloursOf(joystick, t.settings()); }
    std::string coloursOfWholeFile()
    {
        t.menus().mnuViewApplyColourBothFiles.Click();
        return colours();
    }
};

TEST_F(ColourAsTypedTest, TheLineWrittenGetsItsColoursAfterAPause)
{
    joystick.userEdit(static_cast<std::int64_t>(joystick.TextLength()), 0, "\r\n");
    type(static_cast<std::int64_t>(joystick.TextLength()), "BTN S3 /I c");
    EXPECT_EQ(editor.TimerColour.Interval.get(), 300);
    const std::string uncoloured = colours();
    pause();
    EXPECT_FALSE(editor.TimerColour.Enabled);
    EXPECT_NE(colours(), uncoloured);
    const std::string typed = colours();
    EXPECT_EQ(typed, coloursOfWholeFile());
}

TEST_F(ColourAsTypedTest, TheLineWrittenGetsTheFontOfTheTexts)
{
    t.settings().TextFontName = "Terminal";
    t.settings().TextFontSize = 14;
    t.settings().TextFontBold = 1;
    type(0, "x");
    pause();
    const CharacterFormat& format = joystick.formatAt(0);
    EXPECT_EQ(format.fontName, "Terminal");
    EXPECT_EQ(format.fontSize, 14.0F);
    EXPECT_TRUE(format.bold);
    EXPECT_EQ(format.indent, paragraphIndent);
}

TEST_F(ColourAsTypedTest, IsOffUntilItIsTicked)
{
    t.program().shared.extras.set(extraKey::colourAsTyped, false);
    type(0, "BTN ");
    EXPECT_FALSE(editor.TimerColour.Enabled);
}

TEST_F(ColourAsTypedTest, ATickTakesEffectAtTheNextKey)
{
    type(0, "x");
    pause();
    t.program().shared.extras.set(extraKey::colourAsTyped, false);
    type(0, "y");
    EXPECT_FALSE(editor.TimerColour.Enabled);
    t.program().shared.extras.set(extraKey::colourAsTyped, true);
    type(0, "z");
    EXPECT_TRUE(editor.TimerColour.Enabled);
}

TEST_F(ColourAsTypedTest, EachKeyBeginsTheWaitAnew)
{
    type(0, "x");
    std::vector<bool> states;
    const auto listening =
        editor.TimerColour.Enabled.changed.connect([&] { states.push_back(editor.TimerColour.Enabled); });
    joystick.userEdit(1, 0, "y");
    EXPECT_EQ(states, (std::vector<bool>{false, true}));
}

TEST_F(ColourAsTypedTest, ATimerThatWasOnItsWayColoursNothingMore)
{
    type(0, "x");
    pause();
    joystick.setSelStart(0);
    joystick.setSelLength(1);
    joystick.setSelColor(0x123456);
    editor.TimerColour.Tick();
    EXPECT_EQ(joystick.formatAt(0).colour, 0x123456);
}

TEST_F(ColourAsTypedTest, AFailureIsReportedByItsName)
{
    type(0, "x");
    const auto failing = joystick.reformatted.connect(
        [](std::int64_t, std::int64_t) { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); });
    pause();
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_TimerColour_Timer");
}

TEST_F(ColourAsTypedTest, TheNextLineKeepsTheColoursOfTheHand)
{
    joystick.setSelStart(joystick.lineStart(1));
    joystick.setSelLength(1);
    joystick.setSelColor(0x123456);
    type(0, "x");
    pause();
    EXPECT_EQ(joystick.formatAt(static_cast<std::size_t>(joystick.lineStart(1))).colour, 0x123456);
}

TEST_F(ColourAsTypedTest, AllOfOneDocumentIsColouredAtOnceAndTheOtherOneWaits)
{
    editor.MacroText.userEdit(0, 0, "REM x");
    type(0, "REM ");
    t.program().colourAsTyped.colourAll(editor.joystick);
    const std::string whole = colours();
    EXPECT_EQ(whole.substr(0, 4), "CCCC");
    joystick.setSelStart(0);
    joystick.setSelLength(1);
    joystick.setSelColor(0x123456);
    pause();
    EXPECT_EQ(joystick.formatAt(0).colour, 0x123456) << "nothing waits there any more";
    EXPECT_EQ(coloursOf(editor.MacroText, t.settings()), "CCCCC");
    t.program().colourAsTyped.colourAll(editor.joystick);
    EXPECT_EQ(colours(), whole);
}

TEST_F(ColourAsTypedTest, LeavingTheLineMakesTheWaitShort)
{
    type(0, "REM ");
    noteCaretAt(4);
    EXPECT_EQ(editor.TimerColour.Interval.get(), 300);
    noteCaretAt(joystick.lineStart(1));
    EXPECT_EQ(editor.TimerColour.Interval.get(), 30);
    pause();
    EXPECT_EQ(colours().substr(0, 8), "CCCCCCCC");
}

TEST_F(ColourAsTypedTest, OpensNoUndoLevelAndStaysInTheOneOfTheEdit)
{
    type(0, "REM");
    const std::size_t levels = editor.joystick.Undo.Levels.size();
    pause();
    EXPECT_EQ(editor.joystick.Undo.Levels.size(), levels);
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
    const std::string coloured = colours();
    t.menus().mnuEditUndo.Click();
    EXPECT_NE(joystick.Text().substr(0, 3), "REM");
    t.menus().mnuEditRedo.Click();
    EXPECT_EQ(colours(), coloured);
}

TEST_F(ColourAsTypedTest, ASaveBeforeThePauseKeepsTheColoursForTheNextOpening)
{
    type(static_cast<std::int64_t>(joystick.TextLength()), " /U c");
    t.menus().mnuFileSave.Click();
    EXPECT_FALSE(editor.TimerColour.Enabled);
    t.openBoth("c:\\tm\\a.b50");
    const std::string fromCopy = colours();
    EXPECT_EQ(fromCopy, coloursOfWholeFile());
}

TEST_F(ColourAsTypedTest, AnInsertionBeforeThePauseLeavesTheLineWrittenItsColours)
{
    type(0, "REM ");
    joystick.setSelStart(static_cast<std::int64_t>(joystick.TextLength()));
    BeginColInsert(editor);
    EXPECT_FALSE(editor.TimerColour.Enabled);
    InsertColouredString(editor, " c", 0x123456);
    EndColInsert(editor);
    EXPECT_EQ(colours().substr(0, 8), "CCCCCCCC");
    EXPECT_EQ(joystick.formatAt(joystick.TextLength() - 1).colour, 0x123456) << "the insertion keeps its own";
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(colours().substr(0, 8), "CCCCCCCC");
}

TEST_F(ColourAsTypedTest, CaretAndSelectionStay)
{
    type(0, "REM ");
    joystick.setSelStart(5);
    joystick.setSelLength(7);
    int moves = 0;
    const auto listening = joystick.selectionChanged.connect([&] { ++moves; });
    pause();
    EXPECT_EQ(joystick.SelStart(), 5);
    EXPECT_EQ(joystick.SelLength(), 7);
    EXPECT_EQ(moves, 0);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(ColourAsTypedTest, WhatWasColouredByHandElsewhereStays)
{
    joystick.setSelStart(joystick.lineStart(2));
    joystick.setSelLength(3);
    joystick.setSelColor(0x123456);
    type(0, "x");
    pause();
    EXPECT_EQ(joystick.formatAt(static_cast<std::size_t>(joystick.lineStart(2))).colour, 0x123456);
}

TEST_F(ColourAsTypedTest, AnEditThatColoursOtherLinesColoursThem)
{
    open("a\r\nb )\r\nBTN S1 c");
    type(0, "RAW (");
    pause();
    const std::string typed = colours();
    EXPECT_EQ(typed[typed.find('R', 6)], 'R'); // the bracket of the next line
    EXPECT_EQ(typed, coloursOfWholeFile());
}

TEST_F(ColourAsTypedTest, WhatIsCutAndTypedAgainWithinThePauseGetsItsColours)
{
    coloursOfWholeFile();
    const std::string whole = colours();
    joystick.userEdit(7, 2, "");
    joystick.userEdit(0, 0, "x");
    joystick.userEdit(0, 1, "");
    joystick.userEdit(7, 0, "/P"); // the text of before, but "/P" has the format in front of it
    EXPECT_NE(colours(), whole);
    pause();
    EXPECT_EQ(colours(), whole);
}

TEST_F(ColourAsTypedTest, WhatIsCutAndTypedAgainOnTwoLinesGetsItsColours)
{
    for (const bool upwards : {false, true}) {
        open("BTN S1 /P a\r\nx\r\nBTN S2 /I b");
        coloursOfWholeFile();
        const std::string whole = colours();
        const std::int64_t first = 7;
        const std::int64_t last = joystick.lineStart(2) + 7;
        for (const std::int64_t place : upwards ? std::vector{last, first} : std::vector{first, last}) {
            const std::string text = joystick.Text().substr(static_cast<std::size_t>(place), 2);
            joystick.userEdit(place, 2, "");
            joystick.userEdit(place, 0, text);
        }
        ASSERT_NE(colours(), whole);
        pause();
        EXPECT_EQ(colours(), whole) << upwards;
    }
}

TEST_F(ColourAsTypedTest, ALineTypedInFrontOfItsEqualGetsItsColours)
{
    open("BTN S1 /P a\r\nx /P\r\nx /P\r\n");
    coloursOfWholeFile();
    joystick.userEdit(13, 0, "x /P\r\n");
    pause();
    const std::string typed = colours();
    EXPECT_EQ(typed, coloursOfWholeFile());
}

TEST_F(ColourAsTypedTest, ABracketThatNothingClosesHoldsNothing)
{
    type(0, "RAW (");
    int holds = 0;
    t.desktop.whileWaitingForEscape = [&] { ++holds; };
    pause();
    EXPECT_EQ(holds, 0);
}

TEST_F(ColourAsTypedTest, WhatTheProgramWritesIsNotWaitedFor)
{
    type(0, "x");
    t.menus().mnuEditUndo.Click();
    joystick.setSelStart(0);
    joystick.setSelLength(3);
    joystick.setSelColor(0x123456);
    pause();
    EXPECT_EQ(joystick.formatAt(0).colour, 0x123456);
}

TEST_F(ColourAsTypedTest, TheMacroFileHasItsOwnPasses)
{
    editor.TabStrip1.Select(2);
    editor.MacroText.userEdit(0, 0, "A = RAW (#5B)\r\nREM x");
    pause();
    const std::string typed = coloursOf(editor.MacroText, t.settings());
    t.menus().mnuViewApplyColourBothFiles.Click();
    EXPECT_EQ(typed, coloursOf(editor.MacroText, t.settings()));
    EXPECT_NE(typed.find('R'), std::string::npos);
}

TEST_F(ColourAsTypedTest, AfterRandomEditsTheColoursAreThoseOfTheWholeFile)
{
    const std::vector<std::string> pieces = {"BTN ", "S1",   " /P ", " /I ",  "RAW (", "#5B",  ")",
                                             "REM ", "DEF ", "x",    "DLY(",  "60) ",  "\r\n", "\r\n",
                                             "USE ", " ",    "MT ",  "PortB", "S3",    "="};
    std::mt19937 random(randomSeed());
    const auto below = [&](std::size_t bound) { return random() % bound; };
    for (int round = 0; round < 60; ++round) {
        std::string text;
        for (std::size_t i = below(60); i > 0; --i) text += pieces[below(pieces.size())];
        open(text);
        coloursOfWholeFile();
        for (int edit = 0; edit < 25; ++edit) {
            for (std::size_t keys = 1 + below(4); keys > 0; --keys)
                joystick.userEdit(static_cast<std::int64_t>(below(joystick.TextLength() + 1)),
                                  static_cast<std::int64_t>(below(3) == 0 ? below(8) : 0),
                                  pieces[below(pieces.size())]);
            if (editor.TimerColour.Enabled) editor.TimerColour.Tick();
            const std::string typed = visibleColoursOf(joystick, t.settings());
            coloursOfWholeFile();
            ASSERT_EQ(typed, visibleColoursOf(joystick, t.settings())) << joystick.Text();
        }
    }
}

} // namespace
} // namespace tarvex
