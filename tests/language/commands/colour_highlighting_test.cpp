#include "language/commands/colour_highlighting.h"

#include "documents/text/rtf/rtf.h"
#include "language/colour_letters.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvex {
namespace {

struct ColourTest : testing::Test {
    TestProgram t;

    ColourTest() { setTestScheme(t.settings()); }

    Pane& joystick() { return t.editor().JoystickText; }
    Pane& macro() { return t.editor().MacroText; }
    const ErrorRecord& errors() { return t.program().shared.errors; }

    std::string joystickColours(const std::string& text)
    {
        joystick().setText(text);
        t.menus().mnuViewColourJoystick.Click();
        return visibleColoursOf(joystick(), t.settings());
    }
    std::string macroColours(const std::string& text)
    {
        macro().setText(text);
        t.menus().mnuViewColourMacro.Click();
        return visibleColoursOf(macro(), t.settings());
    }
    /// Of either file, where both colour alike.
    std::string colours(const std::string& text)
    {
        const std::string inJoystick = joystickColours(text);
        EXPECT_EQ(macroColours(text), inJoystick);
        return inJoystick;
    }
};

// ---- words ----------------------------------------------------------------------------------------------------------

TEST_F(ColourTest, BtnInsideAnotherWordIsNotFound) { EXPECT_EQ(colours("XBTN S1"), "......."); }

TEST_F(ColourTest, BtnInLowerCaseIsFoundAndColoured) { EXPECT_EQ(colours("btn s1 x"), "BBBBBB.."); }

TEST_F(ColourTest, LowerCaseNotIsNotColoured) { EXPECT_EQ(colours("X not X"), "......."); }
TEST_F(ColourTest, MixedCaseNotIsNotColoured) { EXPECT_EQ(colours("X Not X"), "......."); }
TEST_F(ColourTest, UpperCaseNotIsColoured) { EXPECT_EQ(colours("X NOT X"), "..MMM.."); }

TEST_F(ColourTest, AndBeforeALineEndIsNotColoured) { EXPECT_EQ(colours("X AND\r\nX"), ".....\r\n."); }
TEST_F(ColourTest, AndAtTheEndOfTheTextIsNotColoured) { EXPECT_EQ(colours("X AND"), "....."); }
TEST_F(ColourTest, AndBeforeABlankIsColoured) { EXPECT_EQ(colours("X AND X"), "..MMM.."); }
TEST_F(ColourTest, LowerCaseAndIsNotColoured) { EXPECT_EQ(colours("X and X"), "......."); }

TEST_F(ColourTest, AntInAnyCaseBeforeABlankIsColouredInAJoystickFile)
{
    EXPECT_EQ(joystickColours("ANT 1\r\nAnt 1\r\nant 1"), "MMM..\r\nMMM..\r\nMMM..");
}

TEST_F(ColourTest, AntOfAMacroFileMustMatchItsCase)
{
    EXPECT_EQ(macroColours("ant 1 2\r\nANT 1 2"), ".......\r\nMMM....");
    EXPECT_EQ(macroColours("rng 1 2\r\nRNG 1 2"), ".......\r\nMMM....");
}

TEST_F(ColourTest, UseBeforeATabIsNotColoured) { EXPECT_EQ(colours("USE\tTQS\r\nUSE TQS"), ".......\r\nMMM...."); }

TEST_F(ColourTest, EveryWordBeforeABlankIsColoured)
{
    for (const std::string word : {"ANT", "RNG", "USE", "MT", "MDEF", "RATE", "JSX", "JSY", "RDDR", "THR", "SWAPTG",
                                   "AND", "NOT", "OR", "GAME1", "GAME2", "NULLCHR", "@digitalthrottle"}) {
        std::string painted = word;
        std::ranges::fill(painted, 'M');
        EXPECT_EQ(colours(word + " x"), painted + "..");
        EXPECT_EQ(colours("x" + word).find('M'), std::string::npos) << word;
    }
}

TEST_F(ColourTest, RockersAreColouredInAJoystickFileOnly)
{
    EXPECT_EQ(joystickColours("RKR UP a\r\nRKR DN b\r\nRKR MD c"), "MMMMMM..\r\nMMMMMM..\r\n........");
    EXPECT_EQ(macroColours("RKR UP a\r\nRKR DN b"), "........\r\n........");
}

TEST_F(ColourTest, F22rstNeedsNoBlankBehindIt) { EXPECT_EQ(colours("F22RST\r\nf22rst"), "MMMMMM\r\n......"); }

TEST_F(ColourTest, DefIsAHeadThatMatchesItsCase) { EXPECT_EQ(colours("DEF X1 a\r\ndef X1 a"), "BBBBBB..\r\n........"); }

TEST_F(ColourTest, AStatementHeadWithNothingBehindItPaintsOnToTheNextBlank)
{
    EXPECT_EQ(coloursOf((joystickColours("BTN\r\nUSEFUL x"), joystick()), t.settings()), "BBBBBBBBBBB..");
}

TEST_F(ColourTest, PortIsPaintedUpToTheNextCapitalSWhichMayStandInALaterLine)
{
    EXPECT_EQ(joystickColours("PortB1 IS H1U x\r\ny"), "MMMMMMMMMBBBBBB\r\n.");
    EXPECT_EQ(joystickColours("portb1 is H1U\r\nx S y z\r\nx"), "MMMMMMMMMMMMM\r\nMMMBBBB\r\n.");
}

TEST_F(ColourTest, PortIsNotColouredInAMacroFile) { EXPECT_EQ(macroColours("PortB1 IS H1U"), "............."); }

// ---- what takes brackets --------------------------------------------------------------------------------------------

TEST_F(ColourTest, OfARawStatementTheWordAndItsBracketsAreColoured)
{
    EXPECT_EQ(colours("BTN S1 RAW (#5B)"), "BBBBBB.RRRRR...R");
}

TEST_F(ColourTest, RawWithoutABlankAndDelaysAndRepeatsAreBracketsToo)
{
    EXPECT_EQ(colours("RAW(#5B) DLY(60) RPT(2)"), "RRRR...R.RRRR..R.RRRR.R");
    EXPECT_EQ(colours("raw(#5B) dly(60) rpt(2)"), "RRRR...R.RRRR..R.RRRR.R");
    EXPECT_EQ(colours("DLY (60)"), "........");
}

TEST_F(ColourTest, DelayInAMacroFileIsColouredAndItsBracketsAreNot)
{
    EXPECT_EQ(macroColours("Fire = /T DELAY(5)"), ".......SS.RRRRR...");
}

TEST_F(ColourTest, ABlankBeforeTheBracketIsAllowedInAJoystickFileOnly)
{
    EXPECT_EQ(joystickColours("DELAY (5) CMPLT (AAA 3)"), "RRRRR.....MMMMM........");
    EXPECT_EQ(macroColours("DELAY (5) CMPLT (AAA 3)"), ".......................");
    EXPECT_EQ(joystickColours("DELAY  (5) delay(5)"), "...................");
}

TEST_F(ColourTest, ComparisonsAreWholeWordsInAMacroFileOnly)
{
    EXPECT_EQ(joystickColours("XCMPGT(5) CMPGT(5)"), ".MMMMM....MMMMM...");
    EXPECT_EQ(macroColours("XCMPGT(5) CMPGT(5)"), "..........MMMMM...");
    EXPECT_EQ(macroColours("XDELAY(5)"), ".RRRRR...");
}

// ---- slashes --------------------------------------------------------------------------------------------------------

TEST_F(ColourTest, ASlashBehindABlankIsColouredWithTheNextCharacter)
{
    EXPECT_EQ(colours("x /P a/b /9"), "..SS.....SS");
}

TEST_F(ColourTest, ASlashAtALineStartIsColouredTwoCharactersWide) { EXPECT_EQ(colours("x\r\n/Q y"), ".\r\nSS.."); }

TEST_F(ColourTest, ASlashBeforeABlankOrALineEndIsNoModifier)
{
    EXPECT_EQ(colours("KP / x"), "......");
    EXPECT_EQ(colours("KP /\r\nx"), "....\r\n.");
}

TEST_F(ColourTest, ASlashAsTheLastCharacterIsColouredAlone) { EXPECT_EQ(colours("x /"), "..S"); }

TEST_F(ColourTest, TwoSlashesAreNoModifierButAComment) { EXPECT_EQ(colours("x //P a\r\n//P b"), "..CCCCC\r\nCCCCC"); }

TEST_F(ColourTest, ASlashAtTheVeryStartOfTheTextIsReportedAndNotColoured)
{
    EXPECT_EQ(joystickColours("/Q x /Q"), ".....SS");
    EXPECT_EQ(errors().ErrorProcedure, "ApplyColourHighlighting");
    EXPECT_EQ(errors().ErrorNumber, 5);
    EXPECT_EQ(macroColours("/Q x /Q"), ".....SS");
    EXPECT_EQ(errors().ErrorProcedure, "ApplyMacroColourHighlighting");
}

// ---- comments -------------------------------------------------------------------------------------------------------

TEST_F(ColourTest, ACommentIsPaintedOverTheStatementInIt)
{
    EXPECT_EQ(colours("Rem BTN S1\r\nBTN S1 x"), "CCCCCCCCCC\r\nBBBBBB..");
}

TEST_F(ColourTest, ADelayInACommentEndsInTheCommentsColour) { EXPECT_EQ(colours("rem DLY(50)"), "CCCCCCCCCCC"); }

TEST_F(ColourTest, RemInTheMiddleMakesTheRestOfTheLineAComment)
{
    EXPECT_EQ(colours("BTN S1 x REM y\r\nz"), "BBBBBB...CCCCC\r\n.");
}

TEST_F(ColourTest, RemarkIsNoComment) { EXPECT_EQ(colours("Remark x"), "........"); }

TEST_F(ColourTest, ATildeInAMacrosKeysStartsAComment) { EXPECT_EQ(macroColours("A = a ~ b"), "......CCC"); }

TEST_F(ColourTest, SlashesBeforeADefinitionAreACommentToTheColouring)
{
    EXPECT_EQ(macroColours("// a = b"), "CCCCCCCC");
}

// ---- the run --------------------------------------------------------------------------------------------------------

TEST_F(ColourTest, EmptyTextIsOnlyReported)
{
    t.editor().TabStrip1.Select(2);
    t.editor().joystick.Caret = 7;
    joystick().BackColor = 0x123456;
    t.files.clearWrites();
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(t.status(), "untitled.b50 has no text to highlight.");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
    EXPECT_EQ(t.editor().joystick.Caret, 7);
    EXPECT_EQ(joystick().BackColor, 0x123456);
    EXPECT_FALSE(t.program().mum.ProgressBar1.Visible);
    EXPECT_TRUE(t.files.writes().empty());
    t.menus().mnuViewColourMacro.Click();
    EXPECT_EQ(t.status(), "untitled.m50 has no text to highlight.");
}

struct Watched {
    std::vector<std::string> seen;
    Connection connection;
    template <typename T> explicit Watched(Property<T>& property)
    {
        connection = property.changed.connect([this, &property] {
            if constexpr (std::is_same_v<T, std::string>)
                seen.push_back(property.get());
            else
                seen.push_back(std::to_string(property.get()));
        });
    }
};

TEST_F(ColourTest, StatusTextsOfAJoystickFileComeInTheOrderOfThePasses)
{
    joystick().setText("BTN S1");
    Watched status(t.program().mum.StatusBar.Panels(panel::progress).Text);
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(status.seen,
              (std::vector<std::string>{
                  "Removing colour highlighting from untitled.b50. Please wait ...", "Done",
                  "Applying colour highlighting to untitled.b50. Please wait ...", "Editing untitled.b50",
                  "Applying colour to BTN statements ...", "Applying colour to / modifiers ...",
                  "Applying colour to RAW statements ...", "Applying colour to DLY statements ...",
                  "Applying colour to RPT statements ...", "Applying colour to USE,ANT,MDEF etc. commands ...",
                  "Applying colour to Rem comments ...", "Done"}));
}

TEST_F(ColourTest, StatusTextsOfAMacroFileNameTheTilde)
{
    macro().setText("A = a");
    t.editor().TabStrip1.Select(2);
    Watched status(t.program().mum.StatusBar.Panels(panel::progress).Text);
    t.menus().mnuViewColourMacro.Click();
    ASSERT_GT(status.seen.size(), 4U);
    EXPECT_EQ(
        std::vector<std::string>(status.seen.end() - 4, status.seen.end()),
        (std::vector<std::string>{"Applying colour to USE,ANT,MDEF etc. commands ...",
                                  "Applying colour to Rem comments ...", "Applying colour to ~ comments ...", "Done"}));
}

TEST_F(ColourTest, ProgressOfTheKeywordsCountsTo15AndOfTheOthersFollowsThePosition)
{
    joystick().setText("BTN S1 x\r\n");
    Watched value(t.program().mum.ProgressBar1.Value);
    Watched most(t.program().mum.ProgressBar1.Max);
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(value.seen, (std::vector<std::string>{"1", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11",
                                                    "12", "13", "14", "15", "0"}));
    EXPECT_EQ(most.seen, (std::vector<std::string>{"11", "15", "11"}));
    EXPECT_FALSE(t.program().mum.ProgressBar1.Visible);
}

TEST_F(ColourTest, ProgressOfAMacroFileNeverShowsSeven)
{
    macro().setText("Fire = f\r\n");
    Watched value(t.program().mum.ProgressBar1.Value);
    t.menus().mnuViewColourMacro.Click();
    EXPECT_EQ(value.seen, (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "8", "9", "10", "11", "12", "13",
                                                    "14", "15", "0"}));
}

TEST_F(ColourTest, TheFilesOwnBackgroundAndTheBaseFormatAreWritten)
{
    t.settings().TextFontName = "Courier";
    t.settings().TextFontSize = 12;
    t.settings().TextFontBold = 1;
    joystick().setText("plain");
    joystick().setSelLength(3);
    joystick().setSelItalic(true);
    joystick().setSelUnderline(true);
    joystick().setSelColor(0x777777);
    t.menus().mnuViewColourJoystick.Click();
    CharacterFormat base;
    base.fontName = "Courier";
    base.fontSize = 12;
    base.bold = true;
    base.indent = 20;
    EXPECT_EQ(joystick().formatAt(0), base);
    EXPECT_EQ(joystick().formatAt(4), base);
    EXPECT_EQ(joystick().BackColor, 0xEEEEE1);
    EXPECT_EQ(joystick().Font(), (PaneFont{"Courier", 12, true}));
    macroColours("A = a");
    EXPECT_EQ(macro().BackColor, 0xEEEEE2);
}

TEST_F(ColourTest, WhetherTheFilesAreChangedStaysAsItWas)
{
    for (const std::int16_t state : {changed::noText, changed::saved, changed::modified}) {
        joystick().setText("BTN S1 x");
        t.editor().joystick.Changed = state;
        t.editor().macro.Changed = state;
        t.menus().mnuViewColourJoystick.Click();
        EXPECT_EQ(t.editor().joystick.Changed, state);
        EXPECT_EQ(t.editor().macro.Changed, state);
        EXPECT_EQ(t.program().shared.IsLoading, 0);
    }
}

TEST_F(ColourTest, BothCaretsComeBack)
{
    t.typeJoystick("BTN S1 x\r\nRem y");
    t.typeMacro("A = a");
    t.editor().joystick.Caret = 4;
    t.editor().macro.Caret = 2;
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(joystick().SelStart(), 4);
    EXPECT_EQ(joystick().SelLength(), 0);
    EXPECT_EQ(macro().SelStart(), 2);
    EXPECT_EQ(t.editor().joystick.Caret, 4);
}

TEST_F(ColourTest, ACaretOnBothSidesOf32767StaysInPaneAndRecord)
{
    std::string text(70000, 'x');
    text.replace(0, 10, "BTN S1 /P ");
    joystick().setText(text);
    macro().setText(text);
    for (const int caret : {32767, 32768, 35000, 65536, 70000}) {
        for (MenuItem* command : {&t.menus().mnuViewColourJoystick, &t.menus().mnuViewColourMacro,
                                  &t.menus().mnuRemoveColourJoystick, &t.menus().mnuRemoveColourMacro}) {
            t.editor().joystick.Caret = caret;
            t.editor().macro.Caret = caret - 1;
            joystick().setSelStart(caret);
            macro().setSelStart(caret - 1);
            command->Click();
            EXPECT_EQ(joystick().SelStart(), caret) << command->Name;
            EXPECT_EQ(t.editor().joystick.Caret, caret) << command->Name;
            EXPECT_EQ(macro().SelStart(), caret - 1) << command->Name;
            EXPECT_EQ(t.editor().macro.Caret, caret - 1) << command->Name;
        }
    }
}

TEST_F(ColourTest, ARecordedCaretBeyondTheTextComesBackAsThePanesOwn)
{
    joystick().setText("BTN S1 x");
    for (MenuItem* command : {&t.menus().mnuViewColourJoystick, &t.menus().mnuRemoveColourJoystick}) {
        t.editor().joystick.Caret = 20;
        command->Click();
        EXPECT_EQ(joystick().SelStart(), 8);
        EXPECT_EQ(t.editor().joystick.Caret, 8);
    }
}

TEST_F(ColourTest, TheColouredTextGoesToTheUndoLevelThatIsShowing)
{
    t.typeJoystick("BTN S1 x");
    t.pressKeys(joystick(), " y");
    t.menus().mnuEditUndo.Click();
    const std::size_t levels = t.editor().joystick.Undo.Levels.size();
    ASSERT_EQ(t.editor().joystick.Undo.Position, 2U);
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(t.editor().joystick.Undo.Levels.size(), levels);
    EXPECT_EQ(t.editor().joystick.Undo.Levels[1].Text, joystick().TextRTF());
    EXPECT_NE(t.editor().joystick.Undo.Levels[0].Text, joystick().TextRTF());
}

TEST_F(ColourTest, TheColouredTextIsSavedAsTheShadow)
{
    joystick().setText("BTN S1 x");
    t.menus().mnuViewColourJoystick.Click();
    const auto shadow = t.files.contents("c:\\tarvex\\Rtf\\untitled.b50");
    ASSERT_TRUE(shadow);
    EXPECT_EQ(readRtf(*shadow, t.editor().formats), joystick().TextRTF());
    macro().setText("A = a");
    t.menus().mnuViewColourMacro.Click();
    EXPECT_TRUE(t.files.contents("c:\\tarvex\\Rtf\\untitled.m50"));
}

TEST_F(ColourTest, TheTabOfTheFileIsSelected)
{
    joystick().setText("BTN S1 x");
    macro().setText("A = a");
    t.editor().TabStrip1.Select(2);
    t.menus().mnuViewColourJoystick.Click();
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    t.menus().mnuViewColourMacro.Click();
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
}

TEST_F(ColourTest, ColourBothFilesColoursBothAndStaysOnTheTab)
{
    joystick().setText("BTN S1 x");
    macro().setText("A = /P a");
    for (const int tab : {1, 2}) {
        t.editor().TabStrip1.Select(tab);
        t.menus().mnuRemoveColourJoystick.Click();
        t.menus().mnuRemoveColourMacro.Click();
        t.menus().mnuViewApplyColourBothFiles.Click();
        EXPECT_EQ(coloursOf(joystick(), t.settings()), "BBBBBB..");
        EXPECT_EQ(coloursOf(macro(), t.settings()), "....SS..");
        EXPECT_EQ(t.editor().TabStrip1.SelectedItem, tab);
    }
}

TEST_F(ColourTest, AFileIsColouredWhenItIsOpened)
{
    t.files.addFile("c:\\tm\\b50progs\\mig.b50", "BTN S1 x\r\n");
    t.files.addFile("c:\\tm\\b50progs\\mig.m50", "x = /P a\r\n");
    t.openBoth("c:\\tm\\b50progs\\mig.b50");
    EXPECT_EQ(coloursOf(joystick(), t.settings()), "BBBBBB....");
    EXPECT_EQ(coloursOf(macro(), t.settings()), "....SS....");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
}

TEST_F(ColourTest, ThePopUpMenuColoursTheFileOfTheSelectedTab)
{
    joystick().setText("BTN S1 x");
    macro().setText("A = /P a");
    t.editor().TabStrip1.Select(2);
    t.menus().mnuRHMColour.Click();
    EXPECT_EQ(coloursOf(joystick(), t.settings()), "........");
    EXPECT_EQ(coloursOf(macro(), t.settings()), "....SS..");
}

// ---- removing -------------------------------------------------------------------------------------------------------

struct RemoveColourTest : ColourTest {
    RemoveColourTest()
    {
        joystickColours("BTN S1 x");
        macroColours("A = /P a");
        t.editor().joystick.Changed = changed::saved;
        t.editor().macro.Changed = changed::saved;
    }
    std::string now(const Pane& pane) { return coloursOf(pane, t.settings()); }
};

TEST_F(RemoveColourTest, FromTheJoystickFileMakesAllOfItBlackAndKeepsTheCaret)
{
    t.editor().joystick.Caret = 3;
    Watched status(t.program().mum.StatusBar.Panels(panel::progress).Text);
    t.menus().mnuRemoveColourJoystick.Click();
    EXPECT_EQ(now(joystick()), "........");
    EXPECT_EQ(now(macro()), "....SS..");
    EXPECT_EQ(joystick().SelStart(), 3);
    EXPECT_EQ(joystick().SelLength(), 0);
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(status.seen,
              (std::vector<std::string>{"Removing colour highlighting from untitled.b50. Please wait ...", "Done"}));
}

TEST_F(RemoveColourTest, FromTheMacroFile)
{
    t.editor().macro.Caret = 5;
    t.menus().mnuRemoveColourMacro.Click();
    EXPECT_EQ(now(joystick()), "BBBBBB..");
    EXPECT_EQ(now(macro()), "........");
    EXPECT_EQ(macro().SelStart(), 5);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
}

TEST_F(RemoveColourTest, FromTheSelectionOfTheSelectedTab)
{
    joystick().setSelStart(2);
    joystick().setSelLength(2);
    macro().setSelStart(4);
    macro().setSelLength(1);
    t.editor().TabStrip1.Select(1);
    t.menus().mnuRemoveColourSelectedText.Click();
    EXPECT_EQ(now(joystick()), "BB..BB..");
    EXPECT_EQ(now(macro()), "....SS..");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.status(), "Done");
    t.editor().TabStrip1.Select(2);
    t.menus().mnuRemoveColourSelectedText.Click();
    EXPECT_EQ(now(macro()), ".....S..");
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(RemoveColourTest, ThePopUpMenuRemovesFromThePaneOfTheSelectedTab)
{
    t.editor().TabStrip1.Select(2);
    t.menus().mnuRHMColoursRemove.Click();
    EXPECT_EQ(now(joystick()), "BBBBBB..");
    EXPECT_EQ(now(macro()), "........");
    t.editor().TabStrip1.Select(1);
    t.menus().mnuRHMColoursRemove.Click();
    EXPECT_EQ(now(joystick()), "........");
}

TEST_F(RemoveColourTest, ThePopUpMenuRemovesFromTheSelectionToo)
{
    t.editor().TabStrip1.Select(1);
    joystick().setSelStart(1);
    joystick().setSelLength(2);
    t.menus().mnuRHMColoursSelection.Click();
    EXPECT_EQ(now(joystick()), "B..BBB..");
    EXPECT_EQ(t.status(), "Done");
}

} // namespace
} // namespace tarvex
