#include "shell/tool_form.h"

#include "support/test_program.h"

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

struct PlaceTest : testing::Test, TestMachine {
    Settings settings;
    ErrorRecord errors;
    SettingsStore store{files, programDirectory, settings, errors};
    Form form;
    PlaceSettings place{&Settings::SafeinTop, &Settings::SafeinLeft,   Access::PositionSafein,
                        Access::SavePosition, "SAFEIN PositionSafein", "SAFEIN SavePosition"};

    void position() { positionForm(form, place, 300, 400, settings, store, desktop); }
    void save() { savePosition(form, place, settings, store, desktop); }
};

TEST_F(PlaceTest, WithoutARememberedOneIsTheDefault)
{
    position();
    EXPECT_EQ(form.Top, 300.0F);
    EXPECT_EQ(form.Left, 400.0F);
    EXPECT_EQ(settings.SafeinTop, 300.0F);
    EXPECT_EQ(settings.SafeinLeft, 400.0F);
}

TEST_F(PlaceTest, IsKeptAndComesBackWithinTheScreen)
{
    form.Top = desktop.screenHeight();
    form.Left = desktop.screenWidth();
    save();
    form.Top = 0;
    form.Left = 0;
    position();
    EXPECT_EQ(form.Top, desktop.screenHeight());
    EXPECT_EQ(form.Left, desktop.screenWidth());
    form.Top = desktop.screenHeight() + 1;
    form.Left = -1;
    save();
    EXPECT_EQ(settings.SafeinTop, placeOffScreen);
    EXPECT_EQ(settings.SafeinLeft, placeOffScreen);
    setIni("Miscellaneous", "SafeinTop", "-7");
    setIni("Miscellaneous", "SafeinLeft", "999999");
    position();
    EXPECT_EQ(form.Top, placeOffScreen);
    EXPECT_EQ(form.Left, placeOffScreen);
}

TEST_F(PlaceTest, OfAMinimisedWindowIsNotKept)
{
    form.Top = 500;
    form.State = WindowState::Minimised;
    save();
    EXPECT_EQ(ini("Miscellaneous", "SafeinTop"), "(none)");
}

} // namespace
} // namespace tarvex
