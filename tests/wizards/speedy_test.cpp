#include "support/test_program.h"
#include "wizards/wizards.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct SpeedyTest : testing::Test {
    TestProgram t;
    Speedy& window = t.program().wizards.speedy;

    SpeedyTest() { t.menus().mnuWizSpeedy.Click(); }
};

TEST_F(SpeedyTest, ComesUpOnTopAtItsFirstTab)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_EQ(window.form.Caption, "Speedy - for fast macro files");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(window.SSTab1.Tab, 0);
}

TEST_F(SpeedyTest, WritesAMacro)
{
    window.maker.Text1[0].Text = "Eject Now";
    window.maker.Text1[1].Text = "CTL e";
    window.maker.Command1[4].Click();
    EXPECT_EQ(t.editor().MacroText.Text(), "Eject_Now = CTL e\r\n");
}

TEST_F(SpeedyTest, AsksForATitleOfTheMacroFile)
{
    t.dialogues.whileModal = [this] {
        Title& title = t.program().generators.title;
        title.Form.Visible = true;
        EXPECT_EQ(title.Text1.Text, "untitled.m50");
    };
    window.maker.Command1[1].Click();
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Title"});
}

TEST_F(SpeedyTest, TakesSafeinsStatementBesideTheMacroWizard)
{
    t.menus().mnuhelpWizCreateMacroFile.Click();
    t.menus().mnuInsertRAW.Click();
    t.program().safein.TotalCombinedText.Text = "a";
    EXPECT_EQ(window.maker.Text1[1].Text, "a");
    EXPECT_EQ(t.program().wizards.macro.maker.Text1[1].Text, "a");
}

TEST_F(SpeedyTest, IsUnloadedAtTheExit)
{
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(window.WindowOpen, 0);
}

TEST_F(SpeedyTest, EachOpeningStartsAtTheFirstTabWithoutTexts)
{
    window.SSTab1.Tab = 1;
    window.maker.Text1[0].Text = "Eject";
    window.form.unload();
    t.menus().mnuWizSpeedy.Click();
    EXPECT_EQ(window.SSTab1.Tab, 0);
    EXPECT_EQ(window.maker.Text1[0].Text, "");
    EXPECT_EQ(window.maker.Label1.Caption.get(), "Macro will appear here");
}

} // namespace
} // namespace tarvex
