#include "desktop/platform/qt_desktop.h"

#include "desktop/bind.h"
#include "desktop/text.h"
#include "held_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(WaitForEscape, EndsWithEscAndTakesNothingElse)
{
    HeldWindow window;
    window.press(Qt::Key_A);
    window.press(Qt::Key_F7);
    window.acts.emplace_back([&] { QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5)); });
    window.press(Qt::Key_Return);
    window.press(Qt::Key_Escape);
    EXPECT_TRUE(window.waitWhileTheUserActs());
    EXPECT_EQ(window.keys + window.clicks + window.shortcuts, 0);
}

TEST(WaitForEscape, CtrlSEndsItTooAndReachesTheWindowAfterwards)
{
    HeldWindow window;
    window.press(Qt::Key_S);
    window.acts.emplace_back([&] { QTest::keyClick(window.windowHandle(), Qt::Key_S, Qt::ControlModifier); });
    EXPECT_TRUE(window.waitWhileTheUserActs());
    EXPECT_EQ(window.keys, 0) << "the work that waited comes first";
    QApplication::processEvents();
    EXPECT_EQ(window.keys, 1);
}

TEST(WaitForEscape, TheWindowTakesInputAgainAfterwards)
{
    HeldWindow window;
    window.press(Qt::Key_Escape);
    window.waitWhileTheUserActs();
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    QTest::keyClick(window.windowHandle(), Qt::Key_F7);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(window.keys, 1);
    EXPECT_EQ(window.shortcuts, 1);
    EXPECT_EQ(window.clicks, 1);
}

TEST(WaitForEscape, TheWindowIsDrawnMeanwhile)
{
    HeldWindow window;
    int before = 0;
    int after = 0;
    window.acts.emplace_back([&] {
        before = window.paints;
        window.update();
    });
    window.acts.emplace_back([] {});
    window.acts.emplace_back([&] { after = window.paints; });
    window.press(Qt::Key_Escape);
    EXPECT_TRUE(window.waitWhileTheUserActs());
    EXPECT_GT(after, before);
}

TEST(WaitForEscape, NoTimerOfTheProgramTicks)
{
    HeldWindow window;
    Timer timer(0);
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    Bindings bindings;
    bindings.timer(timer, window);
    timer.Enabled = true;
    for (int i = 0; i < 5; ++i) window.acts.emplace_back([] {});
    window.press(Qt::Key_Escape);
    EXPECT_TRUE(window.waitWhileTheUserActs());
    EXPECT_EQ(ticks, 0);
    QApplication::processEvents();
    EXPECT_GT(ticks, 0) << "it goes on afterwards";
}

TEST(WaitForEscape, ClosingTheWindowEndsItAndTheWindowIsAskedAfterwards)
{
    HeldWindow window;
    window.acts.emplace_back([&] {
        QCloseEvent event;
        QApplication::sendEvent(window.windowHandle(), &event);
        EXPECT_FALSE(event.isAccepted());
        EXPECT_EQ(window.closes, 0);
    });
    EXPECT_TRUE(window.waitWhileTheUserActs());
    QApplication::processEvents();
    EXPECT_EQ(window.closes, 1);
}

TEST(WaitForEscape, TheKeyboardThatComesMeanwhileIsReportedAfterwards)
{
    HeldWindow window;
    window.acts.emplace_back([&] {
        for (const auto type : {QEvent::FocusOut, QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type);
            QApplication::sendEvent(&window, &event);
        }
        EXPECT_EQ(window.focusEvents, "");
    });
    window.press(Qt::Key_Escape);
    EXPECT_TRUE(window.waitWhileTheUserActs());
    QApplication::processEvents();
    EXPECT_EQ(window.focusEvents, "out ");
}

TEST(WaitForEscape, ReturnsAtOnceWhereNoWindowIsShown)
{
    QtDesktop desktop("/nowhere");
    bool happened = false;
    QTimer::singleShot(0, qApp, [&] { happened = true; });
    desktop.waitForEscape();
    EXPECT_FALSE(happened) << "no event was handled";
    QApplication::processEvents();
}

TEST(QtDesktop, HourglassShowsWhileAWindowIsSeen)
{
    QtDesktop desktop("/nowhere");
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    desktop.showHourglass(true);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    desktop.showHourglass(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(QtDesktop, HourglassThatBeganBeforeAnyWindowWasSeenStaysAway)
{
    QtDesktop desktop("/nowhere");
    desktop.showHourglass(true);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    QWidget window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    desktop.showHourglass(false);
    desktop.showHourglass(true);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "the next one shows";
    desktop.showHourglass(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(QtDesktop, TheScreenIsAsLargeAsTheRoomForWindowsOnIt)
{
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const QtDesktop desktop("/nowhere");
    EXPECT_EQ(desktop.screenWidth(), toTwips(room.width()));
    EXPECT_EQ(desktop.screenHeight(), toTwips(room.height()));
}

} // namespace
} // namespace tarvex
