#include "shell/tool_form.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct ToolFormTest : testing::Test {
    std::int16_t flag = 0;
    ToolForm form{"Tool", &flag};
    int loads = 0;
    int unloads = 0;

    ToolFormTest()
    {
        form.Load = [this] {
            ++loads;
            form.markLoaded();
        };
        form.Unload = [this] {
            ++unloads;
            form.markUnloaded();
        };
    }
};

TEST_F(ToolFormTest, IsLoadedOnceAndShownEachTime)
{
    form.open();
    EXPECT_EQ(flag, 1);
    form.hide();
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(flag, 1);
    form.open();
    EXPECT_TRUE(form.Visible);
    EXPECT_EQ(loads, 1);
}

TEST_F(ToolFormTest, ClosingUnloadsItAndTheNextOpeningLoadsItAgain)
{
    form.open();
    form.Close();
    EXPECT_EQ(flag, 0);
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(unloads, 1);
    form.open();
    EXPECT_EQ(loads, 2);
}

TEST_F(ToolFormTest, UnloadingOneThatIsNotLoadedRunsNothing)
{
    form.unload();
    EXPECT_EQ(unloads, 0);
}

TEST_F(ToolFormTest, OpeningBringsAMinimisedWindowBack)
{
    form.open();
    form.State = WindowState::Minimised;
    form.open();
    EXPECT_EQ(form.State, WindowState::Normal);
}

TEST_F(ToolFormTest, WithoutFlagAndProceduresItIsShownAndHidden)
{
    ToolForm plain("Plain");
    plain.open();
    EXPECT_TRUE(plain.Visible);
    EXPECT_FALSE(plain.isLoaded());
    plain.unload();
    EXPECT_FALSE(plain.Visible);
}

TEST_F(ToolFormTest, JoinsTheWindowsOfTheFrameByItsName)
{
    ToolWindows windows;
    form.join(windows, true);
    EXPECT_TRUE(windows.canShow("Tool"));
    windows.show("Tool");
    EXPECT_EQ(flag, 1);
    windows.minimiseAll();
    EXPECT_EQ(form.State, WindowState::Minimised);
    windows.unload("Tool");
    EXPECT_EQ(unloads, 1);
}

TEST(OnScreen, PlacesFrom0ToTheScreensSizeStayAndOthersBecome200)
{
    EXPECT_EQ(onScreen(0, 1000), 0);
    EXPECT_EQ(onScreen(1000, 1000), 1000);
    EXPECT_EQ(onScreen(-0.5F, 1000), 200);
    EXPECT_EQ(onScreen(1000.5F, 1000), 200);
}

} // namespace
} // namespace tarvex
