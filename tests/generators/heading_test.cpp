#include "generators/heading.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct HeadingTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Heading& window = t.program().generators.heading;

    HeadingTest() { editor.TabStrip1.Select(2); }

    /// F5, then the user writes a heading and clicks a button.
    void insertHeading(const std::string& text, std::size_t button = 0)
    {
        t.dialogues.whileModal = [this, text, button] {
            window.Form.Visible = true;
            window.Combo1.Text = text;
            window.Command1.at(button).Click();
            EXPECT_FALSE(window.Form.Visible);
        };
        t.menus().mnuInsertHeading.Click();
    }
    const std::string& macro() const { return editor.MacroText.Text(); }
};

TEST_F(HeadingTest, IsAskedForInATopmostWindowWithTheNamesToChooseFrom)
{
    t.dialogues.whileModal = [this] {
        window.Form.Visible = true;
        EXPECT_TRUE(window.Form.TopMost);
        EXPECT_EQ(window.Combo1.Items.get().size(), 56U);
        EXPECT_EQ(window.Combo1.Items.get().front(), "Game control");
        EXPECT_EQ(window.Combo1.Text, "");
    };
    t.menus().mnuInsertHeading.Click();
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Heading"});
}

TEST_F(HeadingTest, StandsBetweenTwoRulesOf20DashesMore)
{
    insertHeading("Harm");
    const std::string rule = "Rem " + std::string(24, '-') + "\r\n";
    EXPECT_EQ(macro(), rule + "Rem Harm\r\n" + rule);
}

TEST_F(HeadingTest, IsOfTheColourOfComments)
{
    t.settings().RemStatements = 0x123456;
    insertHeading("Harm");
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 0x123456);
    EXPECT_EQ(editor.MacroText.formatAt(40).colour, 0x123456);
}

TEST_F(HeadingTest, WithoutInsertWithColourItIsPlain)
{
    t.settings().InsertWithColour = 0;
    insertHeading("Harm");
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 0);
}

TEST_F(HeadingTest, AnEmptyTextOnOkInsertsNothing)
{
    insertHeading("");
    EXPECT_EQ(macro(), "");
    EXPECT_EQ(editor.macro.Changed, changed::noText);
}

TEST_F(HeadingTest, CancelInsertsNothingWhateverIsWritten)
{
    insertHeading("Harm", 1);
    EXPECT_EQ(macro(), "");
    EXPECT_EQ(t.program().shared.HeadingText, "");
}

TEST_F(HeadingTest, ClosingTheWindowInsertsNothingAlsoAfterAnEarlierHeading)
{
    insertHeading("Harm");
    const std::string before = macro();
    t.dialogues.whileModal = [this] {
        window.Form.Visible = true;
        window.Combo1.Text = "Views";
        window.Form.Visible = false;
    };
    t.menus().mnuInsertHeading.Click();
    EXPECT_EQ(macro(), before);
}

TEST_F(HeadingTest, InsideALineItBeginsOnANewLineBelow)
{
    t.typeMacro("one = a");
    editor.MacroText.setSelStart(2);
    insertHeading("Views");
    EXPECT_TRUE(macro().starts_with("one = a\r\nRem -----")) << macro();
}

TEST_F(HeadingTest, IsOneUndoStep)
{
    t.typeMacro("one = a\r\n");
    insertHeading("Views");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(macro(), "one = a\r\n");
    t.menus().mnuEditRedo.Click();
    EXPECT_TRUE(macro().starts_with("one = a\r\nRem -----"));
}

TEST_F(HeadingTest, IsReadAsAHeadingByTheMacroList)
{
    insertHeading("Cockpit Views");
    t.typeMacro("front = F1\r\n");
    t.dialogues.filesToSave = {std::string("c:\\tm\\b50progs\\a.m50")};
    t.menus().mnuFileSave.Click();
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(editor.FrameMacros.Combo1.Items.get(), (std::vector<std::string>{"All", "Cockpit views"}));
}

TEST_F(HeadingTest, IntoAProtectedMacroFileNothingIsWrittenAndTheStatusSaysSo)
{
    t.menus().mnuPreferencesProtectMacroFile.Click();
    insertHeading("Harm");
    EXPECT_EQ(macro(), "");
    EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
}

TEST_F(HeadingTest, ALetterThatTheFileCannotHoldBecomesAQuestionMark)
{
    insertHeading("Men\xC3\xBC \xE2\x9C\x88");
    const std::string rule = "Rem " + std::string(26, '-') + "\r\n";
    EXPECT_EQ(macro(), rule + "Rem Men\xFC ?\r\n" + rule);
}

TEST_F(HeadingTest, OfFiveThousandCharactersIsWrittenWhole)
{
    const std::string longOne(5000, 'x');
    insertHeading(longOne);
    EXPECT_NE(macro().find("\r\nRem " + longOne + "\r\n"), std::string::npos);
    EXPECT_TRUE(macro().starts_with("Rem " + std::string(5020, '-') + "\r\n"));
}

TEST_F(HeadingTest, EachOpeningStartsWithoutAText)
{
    window.Combo1.Text = "from before";
    window.Form.Visible = true;
    EXPECT_EQ(window.Combo1.Text, "");
}

} // namespace
} // namespace tarvex
