#include "composer/logic.h"

#include "composer/composer_fixture.h"
#include "composer/logic_analysis.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

struct LogicTest : ComposerTest {
    FlagTab& tab = window.flags;
    Pane& field(std::size_t index = 0) { return tab.RichTexFlag[index]; }
    void choose(std::size_t list, int row) { tab.FlagList[list].ListIndex = row; }
    void number(std::size_t index, const char* text) { tab.TxtFlag[index].Text = std::string(text); }
    /// A term of a button, in a field that is empty before.
    std::string term(const Button& button)
    {
        field().setText("");
        button.Click();
        return field().Text();
    }
    std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        for (const Pane& pane : tab.RichTexFlag) all.push_back(pane.Text());
        return all;
    }
};

TEST_F(LogicTest, TheListsHaveTheirNames)
{
    EXPECT_EQ(tab.FlagList[0].Items.get().front(), "X1");
    EXPECT_EQ(tab.FlagList[0].Items.get().back(), "X48");
    EXPECT_EQ(tab.FlagList[0].Items.get().size(), 48U);
    EXPECT_THAT(tab.FlagList[1].Items.get(), testing::ElementsAre("H1", "H2", "H3", "H4"));
    EXPECT_THAT(tab.FlagList[2].Items.get(),
                testing::ElementsAre("S1", "S2", "S3", "S4", "T1", "T2", "T3", "T4", "T5", "T6", "T7", "T8", "T9",
                                     "T10", "T11", "T12", "T13", "T14", "TG1", "TG2"));
    EXPECT_THAT(tab.FlagList[3].Items.get(), testing::ElementsAre("CMPLT", "CMPGT"));
    EXPECT_THAT(tab.FlagList[4].Items.get(), testing::ElementsAre("ANT", "RNG", "THR", "RDDR", "JSX", "JSY"));
    EXPECT_THAT(tab.FlagList[5].Items.get(), testing::ElementsAre("U", "D", "L", "R", "M", "UL", "DL", "UR", "DR"));
}

TEST_F(LogicTest, TheTermButtonsGiveTheirWords)
{
    const char* words[] = {"AND", "OR", "NOT", "(", ")", "BTN", "DEF", "F22RST", "*"};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(term(tab.CMDCompare[i]), words[i]);
}

TEST_F(LogicTest, TheSlashButtonsGiveTheirModifiers)
{
    const char* words[] = {"/U", "/M", "/D", "/I", "/O", "/T", "/P", "/R", "/H", "/N", "/A", "/Q"};
    for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(term(tab.CMDFlagSlash[i]), words[i]);
}

TEST_F(LogicTest, TheInsertButtonsGiveTheTermsOfTheirListsAndFields)
{
    choose(0, 6);
    choose(1, 1);
    choose(5, 5);
    choose(2, 18);
    choose(3, 1);
    choose(4, 2);
    const char* numbers[] = {"10", "20", "30", "40", "50", "60"};
    for (std::size_t i = 0; i < 6; ++i) number(i, numbers[i]);
    const char* terms[] = {"X7", "H2UL", "TG1", "PULSE(10 20)", "DELAY(30)", "CMPGT(THR 40)", "DLY(50)", "RPT(60)"};
    for (std::size_t i = 0; i < 8; ++i) EXPECT_EQ(term(tab.CMDFlagInsert[i]), terms[i]);
}

TEST_F(LogicTest, AListWithoutASelectionGivesAnEmptyTerm)
{
    EXPECT_EQ(term(tab.CMDFlagInsert[0]), "");
    EXPECT_EQ(term(tab.CMDFlagInsert[1]), "");
}

TEST_F(LogicTest, WithTheCaretAtPosition0TheTermHasNoLeadingBlank)
{
    field().setText("X1");
    field().setSelStart(0);
    tab.CMDCompare[2].Click();
    EXPECT_EQ(field().Text(), "NOTX1");
}

TEST_F(LogicTest, ANDAfterX1GetsABlankAndAClosingBracketNone)
{
    field().setText("X1");
    field().setSelStart(2);
    tab.CMDCompare[0].Click();
    EXPECT_EQ(field().Text(), "X1 AND");
    field().setText("X1");
    field().setSelStart(2);
    tab.CMDCompare[4].Click();
    EXPECT_EQ(field().Text(), "X1)");
}

TEST_F(LogicTest, BehindABlankATermGetsNoFurtherOne)
{
    field().setText("X1 ");
    field().setSelStart(3);
    tab.CMDCompare[1].Click();
    EXPECT_EQ(field().Text(), "X1 OR");
}

TEST_F(LogicTest, ATermReplacesTheSelectionAndTheFieldTakesTheKeyboard)
{
    int asked = 0;
    const Connection focus = field().focusWanted.connect([&asked] { ++asked; });
    field().setText("X1 AND X2");
    field().setSelStart(3);
    field().setSelLength(3);
    tab.CMDCompare[1].Click();
    EXPECT_EQ(field().Text(), "X1 OR X2");
    EXPECT_EQ(asked, 1);
}

TEST_F(LogicTest, TheLastChosenSelectorCounts)
{
    tab.OptionFlag[3].Value = true;
    tab.OptionFlag[40].Value = true;
    WhichLogicText(window);
    EXPECT_EQ(tab.CurrentFlag, 40);
}

TEST_F(LogicTest, TheChosenFieldIsWhiteAndTheOthersHaveTheFormsColour)
{
    tab.OptionFlag[5].Click();
    EXPECT_EQ(field(5).BackColor.get(), 0xFFFFFF);
    EXPECT_EQ(field(0).BackColor.get(), static_cast<Colour>(0x8000000FU));
    RichTexFlag_GotFocus(window, 0);
    EXPECT_EQ(field(0).BackColor.get(), 0xFFFFFF);
    EXPECT_TRUE(tab.OptionFlag[0].Value);
    EXPECT_FALSE(tab.OptionFlag[5].Value);
}

TEST_F(LogicTest, InsertAllPutsTheFilledDefinitionsInOrderWithTheirColours)
{
    settings.InsertWithColour = 1;
    t.menus().mnuInsertWithColour.Checked = true;
    field(2).setText("DEF X3 T1 AND T2");
    field(40).setText("BTN X41 Fire");
    tab.Command13[0].Click();
    EXPECT_EQ(joystick.Text(), "DEF X3 T1 AND T2\r\nBTN X41 Fire\r\n\r\n");
    EXPECT_EQ(colourOf(joystick, "DEF"), settings.BTNColour);
    EXPECT_EQ(colourOf(joystick, "AND"), settings.MiscellaneousColour);
}

TEST_F(LogicTest, InsertCurrentPutsTheChosenDefinition)
{
    field(0).setText("DEF X1 T1");
    field(1).setText("DEF X2 T2");
    tab.OptionFlag[1].Click();
    write("BTN S1 x\r\n");
    tab.Command13[1].Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\nDEF X2 T2\r\n");
}

TEST_F(LogicTest, AnInsertionIsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    field(0).setText("DEF X1 T1");
    write("BTN S1 x\r\n");
    tab.Command13[0].Click();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\n");
}

TEST_F(LogicTest, WithNothingInTheFieldsNothingIsInserted)
{
    tab.Command13[0].Click();
    tab.Command13[1].Click();
    EXPECT_EQ(joystick.Text(), "");
}

TEST_F(LogicTest, AnalysingReadsTheLogicalLinesBackAndLeavesNoFile)
{
    field(5).setText("old");
    write("BTN S1 x\r\nDEF X1 T1 AND T2\r\nBTN X1 Fire\r\nbtn X2 low\r\nDEF Y1\r\n");
    tab.Command13[2].Click();
    EXPECT_EQ(field(0).Text(), "DEF X1 T1 AND T2");
    EXPECT_EQ(field(1).Text(), "BTN X1 Fire");
    EXPECT_EQ(field(2).Text(), "");
    EXPECT_EQ(field(5).Text(), "");
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\logic.txt"));
    EXPECT_TRUE(
        std::ranges::any_of(t.files.writes(), [](const auto& write) { return write.path == "c:\\tarvex\\logic.txt"; }));
}

TEST_F(LogicTest, AnalysingGoesToTheFirstPageAndDefinition)
{
    window.SSTabFlags.Tab = 3;
    tab.OptionFlag[30].Click();
    write("DEF X1 T1");
    tab.Command13[2].Click();
    EXPECT_EQ(window.SSTabFlags.Tab.get(), 0);
    EXPECT_TRUE(tab.OptionFlag[0].Value);
}

TEST_F(LogicTest, OfSixtyLogicalLines48AreKept)
{
    std::string text;
    for (int i = 1; i <= 60; ++i) text += "DEF X" + std::to_string(i) + "\r\n";
    write(text);
    tab.Command13[2].Click();
    EXPECT_EQ(field(0).Text(), "DEF X1");
    EXPECT_EQ(field(47).Text(), "DEF X48");
}

TEST_F(LogicTest, ALineThatBeginsWithABlankBeforeBTNXIsNotFound)
{
    EXPECT_THAT(logicalLines(" BTN X1 a\r\nBTN  X2 b\r\nBTN X3 c"), testing::ElementsAre("BTN X3 c"));
}

TEST_F(LogicTest, WithoutLogicalLinesABoxSaysSoAndTheFirstEmptyDefinitionIsChosen)
{
    field(0).setText("mine");
    window.SSTabFlags.Tab = 3;
    tab.OptionFlag[30].Click();
    write("BTN S1 x\r\n");
    tab.Command13[2].Click();
    EXPECT_EQ(t.lastBox().title, "What logical statements?");
    EXPECT_EQ(t.lastBox().text, "I couldn't find any logical statements in your joystick file");
    EXPECT_EQ(field(0).Text(), "");
    EXPECT_EQ(window.SSTabFlags.Tab.get(), 0);
    EXPECT_TRUE(tab.OptionFlag[0].Value);
}

TEST_F(LogicTest, AnEmptyJoystickFileLeavesTheFieldsAndTheChoiceAsTheyAre)
{
    field(0).setText("mine");
    window.SSTabFlags.Tab = 3;
    tab.OptionFlag[30].Click();
    tab.Command13[2].Click();
    EXPECT_EQ(field(0).Text(), "mine");
    EXPECT_EQ(window.SSTabFlags.Tab.get(), 3);
    EXPECT_TRUE(tab.OptionFlag[30].Value);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(LogicTest, WhereNoFileCanBeWrittenTheTextIsReadAllTheSame)
{
    t.files.failWrites("c:\\tarvex\\logic.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    write("DEF X1 T1");
    tab.Command13[2].Click();
    EXPECT_EQ(field(0).Text(), "DEF X1 T1");
}

TEST_F(LogicTest, TheNotesAreOpenedByTheSystemAndTheHelpByItsWord)
{
    std::string word;
    editor.operations.HelpKeyword = [&word](const std::string& text) { word = text; };
    tab.CMDFlagInsert[8].Click();
    tab.CMDFlagInsert[9].Click();
    EXPECT_THAT(t.desktop.programFilesOpened, testing::ElementsAre("An0002a.txt"));
    EXPECT_EQ(word, "logic");
    EXPECT_EQ(field(0).Text(), "");
}

TEST_F(LogicTest, ARowBehindTheLastIsNoTerm)
{
    std::vector<std::string> names{"X1", "gone"};
    names.pop_back(); // its text may still be there
    tab.FlagList[0].Items = std::move(names);
    for (const int row : {1, -1}) {
        choose(0, row);
        EXPECT_EQ(term(tab.CMDFlagInsert[0]), "") << row;
    }
    choose(0, 0);
    EXPECT_EQ(term(tab.CMDFlagInsert[0]), "X1");
}

TEST_F(LogicTest, DefinitionsBeginALineOfTheirOwn)
{
    write("BTN S1 a\r\n");
    putCaret(5);
    window.flags.RichTexFlag[0].setText("DEF X1 S1");
    window.flags.Command13[0].Click();
    EXPECT_TRUE(joystick.Text().starts_with("BTN S1 a\r\nDEF X1 S1\r\n")) << joystick.Text();
}

TEST_F(LogicTest, OnlyTheDefinitionThatWasChosenLastIsWhite)
{
    for (const std::size_t chosen : {0U, 7U, 47U, 3U}) {
        tab.OptionFlag[chosen].Click();
        for (std::size_t i = 0; i < FlagTab::count; ++i)
            EXPECT_EQ(tab.RichTexFlag[i].BackColor.get() == 0xFFFFFF, i == chosen) << i << " of " << chosen;
    }
}

} // namespace
} // namespace tarvex
