#include "safein_fixture.h"

namespace tarvex {
namespace {

struct Statement : SafeinTest {
    void appendMake(int key)
    {
        click(key);
        window.Command10[0].Click();
    }
};

// ---- building it --------------------------------------------------------------------------------------------------

TEST_F(Statement, AnEmptyNameOrCodeChangesNothing)
{
    window.LastAppend = lastAppend::rawBlock;
    window.TotalCombinedText.Text = "x";
    window.Command5.Click();
    for (Button& button : window.Command10) button.Click();
    EXPECT_EQ(statement(), "x");
    EXPECT_EQ(window.LastAppend, lastAppend::rawBlock);
}

TEST_F(Statement, NamesAreJoinedByOneBlank)
{
    click(keyA);
    window.Command5.Click();
    EXPECT_EQ(statement(), "a");
    EXPECT_EQ(window.LastAppend, lastAppend::other);
    click(keyB);
    window.Command5.Click();
    EXPECT_EQ(statement(), "a b");
}

TEST_F(Statement, RawPiecesMergeIntoOneBlock)
{
    appendMake(keyA);
    EXPECT_EQ(statement(), "RAW (#1C)");
    appendMake(keyB);
    EXPECT_EQ(statement(), "RAW (#1C #32)");
    window.Command10[1].Click();
    EXPECT_EQ(statement(), "RAW (#1C #32 #F0 #32)");
    window.Command10[2].Click();
    EXPECT_EQ(statement(), "RAW (#1C #32 #F0 #32 #32 #F0 #32)");
    EXPECT_EQ(window.LastAppend, lastAppend::rawBlock);
}

TEST_F(Statement, ANameBetweenRawPiecesBeginsANewBlock)
{
    window.Command4.Click();
    appendMake(keyA);
    window.Command5.Click();
    EXPECT_EQ(statement(), "RAW (#1C) a");
    EXPECT_EQ(window.LastAppend, lastAppend::other);
    window.Command10[0].Click();
    EXPECT_EQ(statement(), "RAW (#1C) a RAW (#1C)");
}

TEST_F(Statement, OnlyTheLastCharacterAndTheLastCommandDecideAboutMerging)
{
    appendMake(keyA);
    window.TotalCombinedText.Text = "DLY(20)"; // typed by hand
    window.Command10[0].Click();
    EXPECT_EQ(statement(), "DLY(20 #1C)");
    window.TotalCombinedText.Text = "(x)";
    window.LastAppend = lastAppend::other;
    window.Command10[0].Click();
    EXPECT_EQ(statement(), "(x) RAW (#1C)");
    window.TotalCombinedText.Text = "x";
    window.Command10[0].Click();
    EXPECT_EQ(statement(), "x RAW (#1C)");
}

TEST_F(Statement, SlashModifiersAndDelaysBeginWithABlankAlsoInAnEmptyStatement)
{
    constexpr const char* captions[] = {"/N", "/A", "/H", "/T", "/O", "/I", "/R", "/P"};
    std::string expected;
    for (std::size_t i = 0; i < RAWform::slashCount; ++i) {
        EXPECT_EQ(window.Command3[i].Caption.get(), captions[i]);
        window.Command3[i].Click();
        expected += std::string(" ") + captions[i];
    }
    EXPECT_EQ(statement(), expected);
    window.Command4.Click();
    window.mnuDelayValue[4].Click();
    EXPECT_EQ(statement(), " DLY(100)");
    EXPECT_EQ(window.LastAppend, lastAppend::other);
    appendMake(keyA);
    EXPECT_EQ(statement(), " DLY(100) RAW (#1C)") << "the delay ends in a bracket, but was no RAW block";
}

TEST_F(Statement, TheDelayButtonPopsUpTheTenValues)
{
    window.Command6.Click();
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuDelay"});
    EXPECT_FALSE(window.mnuDelay.Visible);
    constexpr const char* values[] = {"20", "40", "60", "80", "100", "150", "200", "300", "400", "500"};
    ASSERT_EQ(window.mnuDelayValue.UBound(), 9);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(window.mnuDelayValue[i].Caption.get(), values[i]);
}

TEST_F(Statement, ARemarkIsAskedForAndAnEmptyOneChangesNothing)
{
    editor.shared.HeadingText = "from before";
    window.Command7.Click();
    EXPECT_EQ(t.dialogues.modalForms.back(), "SingleTextForm");
    EXPECT_EQ(statement(), "");
    t.dialogues.whileModal = [this] { editor.shared.HeadingText = "fire"; };
    window.Command7.Click();
    EXPECT_EQ(statement(), " Rem fire");
    EXPECT_EQ(window.LastAppend, lastAppend::other);
}

TEST_F(Statement, AfterTheBoxForTheRemarkSafeinHasTheKeyboardAgain)
{
    int front = 0;
    const Connection connection = window.form.frontWanted.connect([&] { ++front; });
    t.dialogues.whileModal = [&] { EXPECT_EQ(front, 0); };
    window.Command7.Click();
    EXPECT_EQ(front, 1);
}

TEST_F(Statement, ClearEmptiesItAndGivesItTheBackgroundOfTheSettings)
{
    appendMake(keyA);
    settings.BackgroundColour = 0x102030;
    window.Command4.Click();
    EXPECT_EQ(statement(), "");
    EXPECT_EQ(window.LastAppend, lastAppend::nothing);
    EXPECT_EQ(window.TotalCombinedBackColor.get(), 0x102030);
}

TEST_F(Statement, ItsTextGoesToTheMacroWindows)
{
    std::string mirrored;
    window.MirrorStatement = [&](const std::string& text) { mirrored = text; };
    window.TotalCombinedText.Text = "typed";
    EXPECT_EQ(mirrored, "typed");
    window.Command4.Click();
    EXPECT_EQ(mirrored, "");
}

TEST_F(Statement, AHundredThousandCharactersAreKeptAndInserted)
{
    const std::string text(100'000, 'x');
    window.TotalCombinedText.Text = text;
    window.Command3[0].Click();
    EXPECT_EQ(statement(), text + " /N");
    settings.AddSafeinCR = 0;
    window.CommandPasteJ[4].Click();
    EXPECT_EQ(joystick(), text + " /N");
}

// ---- insertion ----------------------------------------------------------------------------------------------------

TEST_F(Statement, InsertingTheNameBlanksAllFieldsAndEndsTheLine)
{
    window.TotalCombinedText.Text = "x";
    click(keyA);
    window.CommandPasteJ[0].Click();
    EXPECT_EQ(joystick(), "a\r\n");
    EXPECT_EQ(syntax() + make() + ending() + combined() + statement(), "");
    EXPECT_EQ(window.keys.LastKeyIndex, keyA);
}

TEST_F(Statement, InsertingTheMakeLeavesTheFieldsForTheBreak)
{
    click(keyA);
    window.CommandPasteJ[1].Click();
    EXPECT_EQ(make(), "#1C");
    window.CommandPasteJ[2].Click();
    EXPECT_EQ(ending(), "#F0 #1C");
    EXPECT_EQ(joystick(), "RAW (#1C)\r\nRAW (#F0 #1C)\r\n");
    window.CommandPasteJ[3].Click();
    EXPECT_EQ(combined(), "");
    EXPECT_TRUE(joystick().ends_with("RAW (#1C #F0 #1C)\r\n"));
}

TEST_F(Statement, BracketsAndLineEndsFollowTheirOptions)
{
    settings.AddSafeinCR = 0;
    settings.AddRawBrackets = 0;
    click(keyA);
    window.CommandPasteJ[1].Click();
    EXPECT_EQ(joystick(), "#1C");
    settings.AddRawBrackets = 1;
    window.TotalCombinedText.Text = "x";
    window.CommandPasteJ[4].Click();
    EXPECT_EQ(joystick(), "#1C x") << "the statement never gets brackets";
}

TEST_F(Statement, AnEmptyFieldIsInsertedToo)
{
    settings.AddSafeinCR = 0;
    window.CommandPasteJ[1].Click();
    EXPECT_EQ(joystick(), "RAW ()");
    window.CommandPasteJ[0].Click();
    EXPECT_EQ(joystick(), "RAW ()");
}

TEST_F(Statement, WhatStandsInTheFieldIsInserted)
{
    settings.AddSafeinCR = 0;
    click(keyA);
    window.SyntaxText.Text = "typed \xE2\x82\xAC";
    window.CommandPasteJ[0].Click();
    EXPECT_EQ(joystick(), "typed \x80") << "the sign of the euro, in the pane's code page";
}

TEST_F(Statement, ControlCharactersAreInsertedAsTheyAreAndLineEndsAsPairs)
{
    settings.AddSafeinCR = 0;
    window.TotalCombinedText.Text = "a\tb\x01\x7F\nc\rd";
    window.CommandPasteJ[4].Click();
    EXPECT_EQ(joystick(), "a\tb\x01\x7F\r\nc\r\nd");
}

TEST_F(Statement, AnInsertionIsColouredAndOneUndoStep)
{
    t.menus().mnuInsertWithColour.Checked = true;
    t.typeJoystick("BTN S1");
    click(keyA);
    window.CommandPasteJ[3].Click();
    EXPECT_EQ(joystick(), "BTN S1 RAW (#1C #F0 #1C)\r\n");
    EXPECT_EQ(editor.JoystickText.formatAt(8).colour, settings.RAWColour);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick(), "BTN S1");
}

TEST_F(Statement, AnInsertionGoesToThePaneOfTheSelectedTab)
{
    editor.TabStrip1.Select(2);
    click(keyA);
    window.CommandPasteJ[0].Click();
    EXPECT_EQ(editor.MacroText.Text(), "a\r\n");
    EXPECT_EQ(joystick(), "");
}

TEST_F(Statement, AnInsertionGivesTheKeyboardToTheEditor)
{
    int front = 0;
    int focused = 0;
    const Connection frame = t.program().mum.form.frontWanted.connect([&] { ++front; });
    const Connection pane = editor.JoystickText.focusWanted.connect([&] { ++focused; });
    click(keyA);
    window.CommandPasteJ[0].Click();
    EXPECT_EQ(front, 1);
    EXPECT_GE(focused, 1);
}

TEST_F(Statement, AnInsertionDoesNotForgetWhatWasAppendedLast)
{
    appendMake(keyA);
    window.CommandPasteJ[4].Click();
    EXPECT_EQ(window.LastAppend, lastAppend::rawBlock);
    appendMake(keyB);
    EXPECT_EQ(statement(), "RAW (#32)");
}

} // namespace
} // namespace tarvex
