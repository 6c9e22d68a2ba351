#include "shell/toolbar_tips.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Tip {
    int button;
    const char* text;
};

/// Buttons without a row have no tip.
constexpr Tip tips[] = {
    {1, "New joystick or macro file"},
    {2, "Open file"},
    {3, "Save currently selected file (Ctrl+S)"},
    {5, "Print currently selected file (Ctrl+P)"},
    {7, "Cut (Ctrl+X)"},
    {8, "Copy (Ctrl+C)"},
    {9, "Paste (Ctrl+V)"},
    {11, "Undo (Ctrl+Z)"},
    {12, "Redo (Ctrl+Y)"},
    {14, "Find word or phrase in file (Ctrl+F)"},
    {15, "Find and Replace (Ctrl+R)"},
    {16, "Goto line number (Ctrl+G)"},
    {18, "Add current files to Favourites"},
    {20, "Update macros"},
    {21, "View macros"},
    {23, "Composer (F2)"},
    {24, "Select a template and insert it (F3)"},
    {25, "Safein (F4)"},
    {26, "Insert Title"},
    {27, "Insert Heading (F5)"},
    {28, "Insert Rem statement (F6)"},
    {30, "Tile joystick and macro files vertically"},
    {32, "Apply colour highlighting to selected file"},
    {33, "Highlight insertion line (Ctrl+L)"},
    {34, "Identify macros used (F7)"},
    {36, "Launcher"},
    {37, "Calibrate controllers"},
    {38, "Ned Marl's CTFJ"},
    {39, "Image viewer"},
    {40, "Key test (Ctrl+K)"},
    {41, "Template Editor (Shift F11)"},
    {42, "Thrustmaster Control Centre"},
    {44, "Download joystick file to joystick (F12)"},
    {45, "Compile joystick file (Shift F12)"},
    {46, "Edit Preferences (F9)"},
    {47, "Edit Preferences (F9)"},
};

struct TipsTest : testing::Test {
    Mum mum;
    Settings settings;

    TipsTest() { settings.OKtoShowToolTips = 1; }
    std::string tip(int button) { return mum.Toolbar1.Buttons(button).ToolTipText; }
};

TEST_F(TipsTest, EachButtonHasItsTip)
{
    UpdateTooltips(mum, settings);
    const Tip* expected = tips;
    for (int number = 1; number <= Mum::toolbarButtons; ++number) {
        const bool hasTip = expected != std::end(tips) && expected->button == number;
        EXPECT_EQ(tip(number), hasTip ? expected->text : "") << number;
        if (hasTip) ++expected;
    }
}

TEST_F(TipsTest, From45OnTheTipsStandOneButtonTooFar)
{
    EXPECT_EQ(tip(46), "Edit Preferences (F9)") << "as the bar was drawn";
    UpdateTooltips(mum, settings);
    EXPECT_EQ(tip(45), "Compile joystick file (Shift F12)") << "a separator";
    EXPECT_EQ(tip(47), "Edit Preferences (F9)") << "the help button; the tip of the help has no button";
}

TEST_F(TipsTest, OpenAndSaveSayWhetherBothFilesAreMeant)
{
    settings.OpenBothOnToolbar = 1;
    settings.SaveBothOnToolbar = 1;
    UpdateTooltips(mum, settings);
    EXPECT_EQ(tip(2), "Open joystick file and its macro file (F8)");
    EXPECT_EQ(tip(3), "Save both files");
    settings.OpenBothOnToolbar = 0;
    settings.SaveBothOnToolbar = 2;
    UpdateToolBarOpenSaveTooltips(mum, settings);
    EXPECT_EQ(tip(2), "Open file");
    EXPECT_EQ(tip(3), "Save currently selected file (Ctrl+S)");
}

TEST_F(TipsTest, AllTipsAreBlankUnlessTheSettingIs1)
{
    UpdateTooltips(mum, settings);
    settings.OKtoShowToolTips = 2;
    UpdateTooltips(mum, settings);
    UpdateToolBarOpenSaveTooltips(mum, settings);
    for (int number = 1; number <= Mum::toolbarButtons; ++number) EXPECT_EQ(tip(number), "") << number;
}

TEST_F(TipsTest, ExtraButtonsAre35To42)
{
    settings.UseExtraButtons = 0;
    ShowExtraButtons(mum, settings);
    for (int number = 1; number <= Mum::toolbarButtons; ++number)
        EXPECT_EQ(mum.Toolbar1.Buttons(number).Visible, number < 35 || number > 42) << number;
    settings.UseExtraButtons = 1;
    ShowExtraButtons(mum, settings);
    for (int number = 1; number <= Mum::toolbarButtons; ++number) EXPECT_TRUE(mum.Toolbar1.Buttons(number).Visible);
}

} // namespace
} // namespace tarvex
