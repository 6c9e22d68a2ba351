#include "shell/help_topics.h"
#include "support/test_program.h"
#include "wizards/wizards.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct SlashWizardTest : testing::Test {
    TestProgram t;
    SlashWizard& window = t.program().wizards.slash;
    Button& close = window.pages.foot[footButton::close];
    Button& next = window.pages.foot[footButton::next];
    Button& back = window.pages.foot[footButton::back];

    SlashWizardTest() { t.menus().mnuWixUnderstandSlash.Click(); }
};

TEST_F(SlashWizardTest, ComesUpOnTopAtItsFirstPageWithoutAWayBack)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_EQ(window.form.Caption, "Understanding slash modifiers");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(window.pages.PageNumber, 0);
    EXPECT_FALSE(back.Enabled);
    EXPECT_TRUE(next.Visible);
    EXPECT_EQ(close.Caption, "Cancel");
}

TEST_F(SlashWizardTest, TheLastPageHasNoNextAndIsFinished)
{
    for (int page = 0; page < SlashWizard::lastPage; ++page) next.Click();
    EXPECT_EQ(window.pages.PageNumber, SlashWizard::lastPage);
    EXPECT_FALSE(next.Visible);
    EXPECT_EQ(close.Caption, "Finished");
    back.Click();
    EXPECT_TRUE(next.Visible);
    EXPECT_EQ(close.Caption, "Cancel");
    EXPECT_TRUE(back.Enabled);
}

TEST_F(SlashWizardTest, ClosedHalfWayItBeginsAnewNextTime)
{
    next.Click();
    close.Click();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 0);
    t.menus().mnuWixUnderstandSlash.Click();
    EXPECT_EQ(window.pages.PageNumber, 0);
}

TEST_F(SlashWizardTest, IsUnloadedAtTheExit)
{
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(SlashWizardTest, HelpShowsTheWizardsOwnTopic)
{
    std::vector<int> topics;
    t.program().operations.HelpTopic = [&](int topic) { topics.push_back(topic); };
    t.menus().mnuhelpWizCreateMacroFile.Click();
    t.menus().mnuhelpWizCreateJoyFile.Click();
    Wizards& wizards = t.program().wizards;
    for (PageTurner* pages : {&wizards.slash.pages, &wizards.macro.pages, &wizards.joystick.pages}) {
        EXPECT_TRUE(pages->foot[footButton::help].Enabled);
        pages->foot[footButton::help].Click();
    }
    EXPECT_EQ(topics, (std::vector<int>{helpTopic::slashWizard, helpTopic::macroWizard, helpTopic::joystickWizard}));
}

TEST_F(SlashWizardTest, HelpIsGreyWhileThereIsNone)
{
    close.Click();
    t.program().operations.HelpTopic = nullptr;
    t.menus().mnuWixUnderstandSlash.Click();
    EXPECT_FALSE(window.pages.foot[footButton::help].Enabled);
}

} // namespace
} // namespace tarvex
