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

} // namespace
} // namespace tarvex
