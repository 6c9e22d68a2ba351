#include "desktop/minimise.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(Minimise, HidesTheWindowWhereTheProgramCanBringItBack)
{
    QWidget window;
    window.show();
    minimise(window, "xcb");
    EXPECT_TRUE(window.isMinimized());
    window.showNormal();
    EXPECT_FALSE(window.isMinimized());
}

TEST(Minimise, UnderWaylandTheWindowStaysSinceOnlyTheUserCouldBringItBack)
{
    for (const char* platform : {"wayland", "wayland-egl"}) {
        QWidget window;
        window.showMaximized();
        minimise(window, platform);
        EXPECT_FALSE(window.isMinimized()) << platform;
        EXPECT_TRUE(window.isMaximized()) << platform;
    }
}

} // namespace
} // namespace tarvex
