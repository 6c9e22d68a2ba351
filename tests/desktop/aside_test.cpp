#include "desktop/aside.h"

#include <gtest/gtest.h>

#include <QtGlobal>

#include <ostream>

namespace tarvex {
namespace {

constexpr QRect room(0, 0, 1000, 800);

TEST(AsideOf, AWindowThatCoversNothingStays)
{
    EXPECT_EQ(asideOf({100, 100, 200, 200}, {400, 100, 50, 20}, room), QPoint(100, 100));
}

TEST(AsideOf, TheNearestWayIsTaken)
{
    const QRect window(400, 300, 200, 200);
    EXPECT_EQ(asideOf(window, {450, 310, 50, 20}, room), QPoint(400, 330));                // down
    EXPECT_EQ(asideOf(window, {450, 470, 50, 20}, room), QPoint(400, 270));                // up
    EXPECT_EQ(asideOf({400, 300, 200, 400}, {410, 500, 20, 20}, room), QPoint(430, 300));  // to the right
    EXPECT_EQ(asideOf({400, 300, 200, 400}, {580, 500, 400, 20}, room), QPoint(380, 300)); // to the left
}

TEST(AsideOf, TheWindowStaysInTheRoom)
{
    EXPECT_EQ(asideOf({400, 590, 200, 200}, {300, 600, 500, 20}, room), QPoint(400, 400)); // no room below
    EXPECT_EQ(asideOf({400, 10, 200, 200}, {300, 190, 500, 20}, room), QPoint(400, 210));  // none above
}

TEST(AsideOf, WithoutAnyRoomItStays) { EXPECT_EQ(asideOf({0, 0, 1000, 800}, {450, 310, 50, 20}, room), QPoint(0, 0)); }

} // namespace
} // namespace tarvex
