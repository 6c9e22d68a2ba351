// What is shown beside and behind the text of a pane.

#include "desktop/documents/text/pane_margin.h"

#include "desktop/documents/text/match_scroll_bar.h"
#include "desktop/mixed.h"
#include "desktop/readable.h"
#include "pane_picture.h"
#include "shell/dark_colours.h"
#include "shown_pane.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

namespace tarvex {
namespace {

std::string lines(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line) text += "BTN S1 line " + std::to_string(line) + "\r\n";
    return text;
}

struct MarginTest : testing::Test {
    ShownPane shown{lines(200)};
    LineMark error{shown.pane};
    MatchMarks matches{shown.pane};

    MarginTest()
    {
        shown.view.setCursorWidth(0);
        shown.view.showMarks(error, matches);
        shown.view.showLineNumbers(true);
        shown.view.showCurrentLine(true);
        settle();
    }
    void settle()
    {
        ShownPane::events();
        shown.view.settle();
        ShownPane::events();
    }
    QWidget& margin() { return *shown.view.findChild<QWidget*>("Margin"); }
    QRect row(int line)
    {
        for (const ShownLine& place : shown.view.shownLines(shown.view.viewport()->rect()))
            if (place.number == line) return {0, place.top, 10, place.height};
        return {};
    }
    /// Of the middle of a line's row.
    static QColor colourAt(const QImage& image, const QRect& row, int x)
    {
        return image.pixelColor(x, row.center().y());
    }
    QColor behindText(int line)
    {
        const QImage image = painted(*shown.view.viewport());
        return colourAt(image, row(line), image.width() - 3);
    }
    QColor beside(int line) { return colourAt(painted(margin()), row(line), 1); }
    static bool isReddish(const QColor& colour) { return colour.red() > colour.green() + 20; }
};

TEST_F(MarginTest, IsAsWideAsTheNumbersOfTheLinesNeed)
{
    const int width = margin().width();
    EXPECT_TRUE(margin().isVisible());
    EXPECT_EQ(shown.view.viewport()->x(), margin().geometry().right() + 1);
    shown.pane.setText(lines(9'999) + "x");
    settle();
    EXPECT_GT(margin().width(), width);
    shown.pane.setText("x");
    settle();
    EXPECT_EQ(margin().width(), width);
}

TEST(MarginColours, NumbersAreReadableOnAnyGround)
{
    const QColor standard(0, 128, 255); // of a new colour scheme
    for (const QColor& ground : {standard, QColor(Qt::white), QColor(Qt::black), QColor(Qt::gray), QColor(0, 0, 128),
                                 QColor(255, 255, 192), QColor(0x1F, 0x21, 0x24)}) {
        const MarginColours colours = marginColours(ground);
        for (const QColor& ink : {colours.number, colours.current})
            EXPECT_GE(contrastOf(toColour(ink), toColour(colours.ground)), readableContrast) << fromQt(ground.name());
        EXPECT_NE(colours.ground, ground);
    }
}

TEST_F(MarginTest, GoesWithTheLineNumbers)
{
    shown.view.showLineNumbers(false);
    EXPECT_FALSE(margin().isVisible());
    error.set(3);
    settle();
    EXPECT_TRUE(margin().isVisible()); // for the mark of the error
    error.clear();
    settle();
    EXPECT_FALSE(margin().isVisible());
}

TEST_F(MarginTest, ScrollsWithTheText)
{
    const QImage before = painted(margin());
    shown.view.verticalScrollBar()->setValue(50);
    settle();
    EXPECT_NE(painted(margin()), before);
    EXPECT_EQ(shown.view.shownLines(QRect(0, 0, 1, 1)).front().number, 50);
    shown.view.verticalScrollBar()->setValue(0);
    settle();
    EXPECT_EQ(painted(margin()), before);
}

TEST_F(MarginTest, TheLineOfTheCaretIsShadedAndOnlyThat)
{
    const QColor ground = behindText(5);
    EXPECT_NE(behindText(0), ground);
    shown.press(Qt::Key_Down);
    EXPECT_EQ(behindText(0), ground);
    EXPECT_NE(behindText(1), ground);
    shown.pane.setSelStart(shown.pane.lineStart(3));
    settle();
    EXPECT_EQ(behindText(1), ground);
    EXPECT_NE(behindText(3), ground);
    shown.view.showCurrentLine(false);
    EXPECT_EQ(behindText(3), ground);
}

TEST_F(MarginTest, ASelectionShadesTheLineInWhichItBegins)
{
    const QColor ground = behindText(9);
    shown.pane.setSelStart(shown.pane.lineStart(2));
    shown.pane.setSelLength(shown.pane.lineStart(3) - shown.pane.lineStart(2)); // with its end
    settle();
    EXPECT_NE(behindText(2), ground);
    EXPECT_EQ(behindText(3), ground);
}

TEST_F(MarginTest, AnErrorIsMarkedInMarginAndLineUntilTheLineIsEdited)
{
    EXPECT_FALSE(isReddish(beside(4)));
    error.set(4);
    settle();
    EXPECT_TRUE(isReddish(beside(4)));
    EXPECT_TRUE(isReddish(behindText(4)));
    EXPECT_FALSE(isReddish(behindText(3)));
    shown.press(Qt::Key_Return); // a line above it
    EXPECT_FALSE(isReddish(beside(4)));
    EXPECT_TRUE(isReddish(beside(5)));
    shown.caretTo(shown.view.document()->findBlockByNumber(5).position());
    shown.type("x");
    EXPECT_FALSE(isReddish(beside(5)));
    EXPECT_FALSE(isReddish(behindText(5)));
}

TEST_F(MarginTest, TheTipNamesTheErrorBesideItsLine)
{
    error.set(4);
    settle();
    const auto tipAt = [&](int line) {
        QToolTip::hideText();
        const QPoint place = row(line).center();
        QHelpEvent help(QEvent::ToolTip, place, margin().mapToGlobal(place));
        QApplication::sendEvent(&margin(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tipAt(3), "");
    EXPECT_EQ(tipAt(4), "The last download found an error in this line");
}

TEST_F(MarginTest, TheNumbersHaveRoomOnBothSides)
{
    const int digits = QFontMetrics(shown.view.font()).horizontalAdvance(QStringLiteral("200"));
    EXPECT_GE(margin().width(), digits + 6);
}

TEST_F(MarginTest, AClickSelectsTheLineWithItsEnd)
{
    QTest::mouseClick(&margin(), Qt::LeftButton, {}, row(2).center());
    EXPECT_EQ(shown.pane.SelStart(), shown.pane.lineStart(2));
    EXPECT_EQ(shown.pane.SelLength(), shown.pane.lineStart(3) - shown.pane.lineStart(2));
    EXPECT_TRUE(shown.view.hasFocus());
}

TEST_F(MarginTest, AllMatchesInSightAreMarkedInTheText)
{
    shown.view.showCurrentLine(false);
    const QImage before = painted(*shown.view.viewport());
    matches.show("line", 0);
    settle();
    const QImage marked = painted(*shown.view.viewport());
    QTextCursor cursor(shown.view.document()->findBlockByNumber(6));
    cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 7);
    const QRect first = shown.view.cursorRect(cursor);
    EXPECT_NE(marked.pixelColor(first.left() + 2, first.top()), before.pixelColor(first.left() + 2, first.top()));
    EXPECT_EQ(marked.pixelColor(first.left() - 3, first.top()), before.pixelColor(first.left() - 3, first.top()));
    matches.clear();
    settle();
    EXPECT_EQ(painted(*shown.view.viewport()), before);
}

TEST_F(MarginTest, TheScrollBarShowsWhereTheMatchesAre)
{
    EXPECT_TRUE(shown.view.matchBar()->markedRows().empty());
    matches.show("line 101", 0);
    shown.view.matchBar()->showPlaces();
    const auto& rows = shown.view.matchBar()->markedRows();
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_NEAR(rows.front(), shown.view.matchBar()->height() / 2, shown.view.matchBar()->height() / 8);
    matches.show("line", 0);
    shown.view.matchBar()->showPlaces();
    EXPECT_GT(rows.size(), 50U);
    matches.clear();
    shown.view.matchBar()->showPlaces();
    EXPECT_TRUE(rows.empty());
}

TEST_F(MarginTest, TenThousandMatchesInOneLineAreMarkedWhereTheyAreSeen)
{
    std::string text;
    for (int i = 0; i < 10'000; ++i) text += "ab ";
    shown.pane.setText(text);
    matches.show("ab", 0);
    settle();
    EXPECT_EQ(matches.positions().size(), 10'000U);
    EXPECT_NE(painted(*shown.view.viewport()), QImage());
    shown.view.horizontalScrollBar()->setValue(shown.view.horizontalScrollBar()->maximum() / 2);
    const QImage there = painted(*shown.view.viewport());
    matches.clear();
    settle();
    EXPECT_NE(painted(*shown.view.viewport()), there);
}

TEST_F(MarginTest, AMatchThatBeginsLeftOfTheViewIsMarkedWhereItIsSeen)
{
    shown.view.showCurrentLine(false);
    shown.pane.setText(std::string(600, 'a'));
    matches.show(std::string(500, 'a'), 0);
    settle();
    shown.view.horizontalScrollBar()->setValue(shown.view.horizontalScrollBar()->maximum() / 2);
    const QImage there = painted(*shown.view.viewport());
    matches.clear();
    settle();
    EXPECT_NE(painted(*shown.view.viewport()), there);
}

TEST_F(MarginTest, ItsColoursFollowTheBackground)
{
    const int light = beside(7).lightness();
    shown.pane.BackColor = 0x202020;
    settle();
    EXPECT_LT(beside(7).lightness(), light / 2);
    EXPECT_GT(beside(7).lightness(), 0x20);
}

} // namespace
} // namespace tarvex
