// Where tabs, panes and the macro frame stand in windows of all sizes.

#include "documents/pair/editor_layout.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct LayoutTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();

    void resize(int width, int height)
    {
        editor.ScaleWidth = width;
        editor.ScaleHeight = height;
        Form_Resize(editor);
    }
    void show(bool frame, bool tiled)
    {
        if (t.menus().mnuViewMacros.Checked != frame) t.menus().mnuViewMacros.Click();
        if (t.menus().mnuViewTileVertically.Checked != tiled) t.menus().mnuViewTileVertically.Click();
    }
};

TEST_F(LayoutTest, PanesFillWhatTheFrameLeaves)
{
    editor.shared.settings.MacroFrameWidth = 200;
    for (const bool frame : {false, true}) {
        const int left = frame ? 200 : 0;
        show(frame, false);
        resize(1001, 601);
        EXPECT_EQ(editor.TabStrip1Place.get(), (Placement{left, 0, 1001 - left, 601}));
        for (const Side* side : {&editor.joystick, &editor.macro})
            EXPECT_EQ(side->pane.Place.get(), (Placement{left + 3, 23, 1001 - left - 6, 579}));
        EXPECT_EQ(editor.FrameMacros.Visible, frame);
        EXPECT_EQ(editor.FrameMacros.Place.get(), (Placement{0, 0, 200, 601}));

        show(frame, true);
        resize(1001, 601);
        const int half = (1001 - left) / 2;
        EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{left + 3, 23, half - 4, 579}));
        EXPECT_EQ(editor.MacroText.Place.get(), (Placement{left + half + 2, 23, half - 4, 579}));
    }
}

TEST_F(LayoutTest, PanesAreMovedWhileTheWindowHasAnyRoomForThem)
{
    show(false, false);
    resize(1000, 600);
    resize(6, 22);
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{3, 23, 0, 0}));
    resize(1000, 600);
    const Placement before = editor.JoystickText.Place;
    resize(5, 600);
    EXPECT_EQ(editor.JoystickText.Place.get(), before) << "no width";
    resize(1000, 21);
    EXPECT_EQ(editor.JoystickText.Place.get(), before) << "no height";
}

TEST_F(LayoutTest, TilesAreMovedWhileTheWindowHasAnyRoomForThem)
{
    show(false, true);
    resize(8, 22);
    EXPECT_EQ(editor.JoystickText.Place.get(), (Placement{3, 23, 0, 0}));
    EXPECT_EQ(editor.MacroText.Place.get(), (Placement{6, 23, 0, 0}));
    resize(7, 600);
    EXPECT_EQ(editor.MacroText.Place.get(), (Placement{6, 23, 0, 0})) << "no width";
}

TEST_F(LayoutTest, TheFrameLeaves120PixelsToThePanesUnlessItIsAtItsSmallest)
{
    show(true, false);
    editor.shared.settings.MacroFrameWidth = 400;
    for (const auto& [window, frame] : {std::pair(1000, 400),
                                        {520, 400},
                                        {519, 399},
                                        {400, 280},
                                        {306, 186},
                                        {smallestMacroFrame + 120, smallestMacroFrame},
                                        {200, smallestMacroFrame}}) {
        resize(window, 600);
        EXPECT_EQ(editor.FrameMacros.Place.get().Width, frame) << window;
    }
    editor.shared.settings.MacroFrameWidth = smallestMacroFrame - 1;
    resize(1000, 600);
    EXPECT_EQ(editor.FrameMacros.Place.get().Width, smallestMacroFrame);
}

TEST_F(LayoutTest, BothPanesAreVisibleTiledAndTheSelectedOneElse)
{
    for (const int tab : {1, 2}) {
        editor.TabStrip1.Select(tab);
        show(false, true);
        EXPECT_TRUE(editor.JoystickText.Visible);
        EXPECT_TRUE(editor.MacroText.Visible);
        show(false, false);
        EXPECT_EQ(editor.JoystickText.Visible, tab == 1);
        EXPECT_EQ(editor.MacroText.Visible, tab == 2);
    }
}

} // namespace
} // namespace tarvex
