#include "documents/window/zoom_commands.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(Zoom, IsKeptFromOneStartToTheNext)
{
    TestProgram t;
    EXPECT_EQ(t.editor().Zoom.get(), 100);
    t.menus().mnuViewZoomIn.Click();
    t.menus().mnuViewZoomIn.Click();
    ASSERT_TRUE(t.program().exit());
    t.start();
    EXPECT_EQ(t.editor().Zoom.get(), 120);
}

TEST(Zoom, ADamagedValueIsTheNormalSize)
{
    for (const auto& [written, read] :
         {std::pair("0", 100), std::pair("32000", 100), std::pair("many", 100), std::pair("40", 40)}) {
        TestProgram t(false);
        t.files.addFile("c:\\tarvex\\Platform.ini", std::string("[Extras]\r\nZoom=") + written + "\r\n");
        t.start();
        EXPECT_EQ(t.editor().Zoom.get(), read) << written;
    }
}

TEST(Zoom, GoesByStepsOfTenBetween40And500)
{
    TestProgram t;
    for (const auto& [from, in, out] : {std::tuple(100, 110, 90),
                                        {490, 500, 480},
                                        {500, 500, 490},
                                        {495, 500, 485},
                                        {50, 60, 40},
                                        {40, 50, 40},
                                        {45, 55, 40}}) {
        t.editor().Zoom = from;
        t.menus().mnuViewZoomIn.Click();
        EXPECT_EQ(t.editor().Zoom.get(), in) << from;
        t.editor().Zoom = from;
        t.menus().mnuViewZoomOut.Click();
        EXPECT_EQ(t.editor().Zoom.get(), out) << from;
        t.menus().mnuViewZoomNormal.Click();
        EXPECT_EQ(t.editor().Zoom.get(), 100) << from;
    }
}

TEST(Zoom, KeptIsTakenWithinItsBounds)
{
    for (const auto& [written, read] : {std::pair("39", 100), {"40", 40}, {"500", 500}, {"501", 100}}) {
        TestProgram t(false);
        t.files.addFile("c:\\tarvex\\Platform.ini", std::string("[Extras]\r\nZoom=") + written + "\r\n");
        t.start();
        EXPECT_EQ(t.editor().Zoom.get(), read) << written;
    }
}

} // namespace
} // namespace tarvex
