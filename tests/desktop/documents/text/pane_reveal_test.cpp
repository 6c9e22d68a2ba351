// Text that the program selects is scrolled into view.

#include "desktop/documents/text/pane_view.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <string>

namespace tarvex {
namespace {

constexpr int lineLength = 8; // "line NNN" without its end

struct PaneReveal : testing::Test {
    Pane pane;
    PaneView view{pane};

    PaneReveal()
    {
        std::string text;
        for (int line = 100; line < 300; ++line) text += "line " + std::to_string(line) + "\r\n";
        pane.setText(text);
        view.resize(600, 400);
        view.show();
        settle();
    }
    void settle()
    {
        QApplication::processEvents();
        view.settle();
    }
    /// Selects `count` lines from `line`, counted from 0, with their ends.
    void selectLines(int line, int count = 1)
    {
        pane.setSelStart(line * (lineLength + 2));
        pane.setSelLength(count * (lineLength + 2));
        settle();
    }
    bool isShown(int line, int column = 0)
    {
        QTextCursor cursor(view.document()->findBlockByNumber(line));
        cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
        return view.viewport()->rect().contains(view.cursorRect(cursor));
    }
    void scrollTo(int line) { view.verticalScrollBar()->setValue(line); }
    int top() const { return view.verticalScrollBar()->value(); }
};

TEST_F(PaneReveal, ALineAboveTheViewComesToItsMiddle)
{
    scrollTo(150);
    selectLines(30);
    for (int line = 25; line <= 35; ++line) EXPECT_TRUE(isShown(line)) << line;
}

TEST_F(PaneReveal, ALineBelowTheViewComesToItsMiddle)
{
    selectLines(120);
    for (int line = 115; line <= 125; ++line) EXPECT_TRUE(isShown(line)) << line;
}

TEST_F(PaneReveal, ALineAtTheUpperEdgeGetsThreeLinesAboveIt)
{
    scrollTo(50);
    selectLines(50);
    EXPECT_EQ(top(), 47);
}

TEST_F(PaneReveal, ALineAtTheLowerEdgeGetsThreeLinesBelowIt)
{
    scrollTo(50);
    int last = 50;
    while (isShown(last + 1)) ++last;
    selectLines(last);
    EXPECT_TRUE(isShown(last + 3));
    EXPECT_LE(top(), 54) << "no further than it takes";
}

TEST_F(PaneReveal, ALineInTheMiddleScrollsNothing)
{
    scrollTo(50);
    selectLines(58);
    EXPECT_EQ(top(), 50);
}

TEST_F(PaneReveal, TheFirstAndTheLastLineAreShownAsFarAsThereIsText)
{
    scrollTo(100);
    selectLines(0);
    EXPECT_EQ(top(), 0);
    selectLines(199);
    EXPECT_TRUE(isShown(199));
}

TEST_F(PaneReveal, MoreLinesThanThereIsRoomForScrollNothingWhileOneIsInSight)
{
    scrollTo(50);
    selectLines(0, 200);
    EXPECT_EQ(top(), 50);
}

TEST_F(PaneReveal, MoreLinesThanThereIsRoomForAreShownFromTheFirstOnWhenNoneIsInSight)
{
    selectLines(60, 100);
    EXPECT_EQ(top(), 60);
}

TEST_F(PaneReveal, ALongLineIsShownFromItsStart)
{
    pane.setText("short\r\n" + std::string(500, 'x') + " end\r\nshort");
    settle();
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    pane.setSelStart(7);
    pane.setSelLength(504);
    settle();
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(PaneReveal, AWordAtTheEndOfALongLineIsShownWhole)
{
    pane.setText("short\r\n" + std::string(500, 'x') + " end\r\nshort");
    settle();
    pane.setSelStart(7 + 501);
    pane.setSelLength(3);
    settle();
    EXPECT_TRUE(isShown(1, 501));
    EXPECT_TRUE(isShown(1, 504));
}

} // namespace
} // namespace tarvex
