#include "shell/tool_windows.h"

#include "shell/frame/mum_window.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarvex {
namespace {

struct ToolWindowsTest : testing::Test {
    TestProgram t;
    Form& frame = t.program().mum.form;
    Form open;
    Form closed;
    std::int16_t openFlag = 1;
    std::int16_t closedFlag = 0;

    ToolWindowsTest()
    {
        ToolWindows& windows = t.program().mum.toolWindows;
        windows.add({.name = "Open", .form = &open, .openFlag = &openFlag, .unload = nullptr});
        windows.add({.name = "Closed", .form = &closed, .openFlag = &closedFlag, .unload = nullptr});
        t.settings().MinimiseAll = 1;
    }
    void setFrame(WindowState state)
    {
        frame.State = state;
        Program& program = t.program();
        MDIForm_Resize({program.platform, program.shared, program.mum, program.operations});
    }
};

TEST_F(ToolWindowsTest, OpenWindowsAreMinimisedAndBroughtBackWithTheFrame)
{
    setFrame(WindowState::Minimised);
    EXPECT_EQ(open.State, WindowState::Minimised);
    EXPECT_EQ(closed.State, WindowState::Normal) << "its open flag is 0";
    setFrame(WindowState::Normal);
    EXPECT_EQ(open.State, WindowState::Normal);
}

TEST_F(ToolWindowsTest, TheyComeBackAsTheyWereWhateverTheFrameIs)
{
    open.State = WindowState::Maximised;
    setFrame(WindowState::Minimised);
    setFrame(WindowState::Minimised); // reported twice
    setFrame(WindowState::Maximised);
    EXPECT_EQ(open.State, WindowState::Maximised);
}

TEST_F(ToolWindowsTest, WithMinimiseAll0TheyStay)
{
    t.settings().MinimiseAll = 0;
    setFrame(WindowState::Minimised);
    EXPECT_EQ(open.State, WindowState::Normal);
}

TEST_F(ToolWindowsTest, AWindowThatTheUserMinimisedHimselfStaysSo)
{
    open.State = WindowState::Minimised;
    setFrame(WindowState::Minimised);
    setFrame(WindowState::Normal);
    EXPECT_EQ(open.State, WindowState::Minimised);
}

TEST_F(ToolWindowsTest, AWindowThatWasClosedMeanwhileIsLeftAlone)
{
    setFrame(WindowState::Minimised);
    openFlag = 0;
    setFrame(WindowState::Normal);
    EXPECT_EQ(open.State, WindowState::Minimised);
    openFlag = 1;
    setFrame(WindowState::Normal);
    EXPECT_EQ(open.State, WindowState::Minimised) << "forgotten";
}

TEST_F(ToolWindowsTest, FindAndReplaceGoesWithTheFrame)
{
    Form& find = t.program().findAndReplace.form;
    t.menus().mnuEditFind.Click();
    setFrame(WindowState::Minimised);
    EXPECT_EQ(find.State, WindowState::Minimised);
    setFrame(WindowState::Normal);
    EXPECT_EQ(find.State, WindowState::Normal);
    t.program().operations.UnloadForm("FindAndReplace");
    EXPECT_FALSE(find.Visible);
    EXPECT_EQ(t.program().shared.FindWindowOpen, 0);
    setFrame(WindowState::Minimised);
    EXPECT_EQ(find.State, WindowState::Normal) << "not loaded";
}

TEST_F(ToolWindowsTest, UnloadingHidesOrRunsWhatTheWindowAsksFor)
{
    Form third;
    int unloads = 0;
    t.program().mum.toolWindows.add(
        {.name = "Third", .form = &third, .openFlag = nullptr, .unload = [&] { ++unloads; }});
    open.Visible = true;
    third.Visible = true;
    t.program().operations.UnloadForm("Open");
    EXPECT_FALSE(open.Visible);
    t.program().operations.UnloadForm("Third");
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(third.Visible);
    t.program().operations.UnloadForm("Nobody");
    EXPECT_EQ(unloads, 1);
}

TEST_F(ToolWindowsTest, TheModalFormsAreTakenDownByTheirNamesToo)
{
    Program& program = t.program();
    const std::pair<const char*, Form*> forms[] = {
        {"frmTip", &program.help.frmTip.Form},
        {"frmAbout", &program.help.frmAbout.Form},
        {"Title", &program.generators.title.Form},
        {"Heading", &program.generators.heading.Form},
        {"SingleTextForm", &program.generators.rem.Form},
    };
    for (const auto& [name, form] : forms) {
        form->Visible = true;
        program.operations.UnloadForm(name);
        EXPECT_FALSE(form->Visible) << name;
    }
}

TEST_F(ToolWindowsTest, AWindowThatNobodyKnowsOrThatCannotBeOpenedByNameIsNotShown)
{
    const ToolWindows& windows = t.program().mum.toolWindows;
    EXPECT_FALSE(windows.canShow("Nobody"));
    EXPECT_FALSE(windows.canShow("Open"));
    windows.show("Open");
    EXPECT_FALSE(open.Visible);
}

} // namespace
} // namespace tarvex
