// A key, or the program, repaints the lines that it changed and no others.

#include "shown_pane.h"

#include <QPaintEvent>

namespace tarvex {
namespace {

/// The part of a widget that was painted.
class PaintedRegion : public QObject {
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) m_region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    void forget() { m_region = {}; }
    bool paints(const QRect& rect) const { return m_region.intersects(rect); }
    QRect bounds() const { return m_region.boundingRect(); }

private:
    QRegion m_region;
};

/// Twenty coloured lines, all in sight, with the caret in line 10.
struct PaneRepaint : testing::Test {
    static constexpr int lines = 20;
    static constexpr int lineLength = 10; // with its end
    ShownPane shown{text()};
    PaintedRegion painted{*shown.view.viewport()};

    PaneRepaint()
    {
        QApplication::setCursorFlashTime(0); // a blinking caret is repainted at any time
        for (int line = 0; line < lines; ++line) shown.colour(line * lineLength, 3, blue);
        shown.caretTo(10 * (lineLength - 1) + 4);
        finish();
        painted.forget();
    }
    static std::string text()
    {
        std::string result;
        for (int line = 0; line < lines; ++line) result += "BTN S1 a\r\n";
        return result;
    }
    /// Lets all be painted that waits for it.
    void finish()
    {
        ShownPane::events();
        shown.view.settle();
        ShownPane::events();
    }
    QRect rectOf(int line) const
    {
        QTextCursor cursor(shown.view.document()->findBlockByNumber(line));
        return shown.view.cursorRect(cursor).adjusted(0, 2, 20, -2); // without what neighbours share
    }
    std::vector<int> paintedLines() const
    {
        std::vector<int> result;
        for (int line = 0; line < lines; ++line)
            if (painted.paints(rectOf(line))) result.push_back(line);
        return result;
    }
};

TEST_F(PaneRepaint, AllLinesAreInSight)
{
    EXPECT_TRUE(shown.view.viewport()->rect().contains(rectOf(0)));
    EXPECT_TRUE(shown.view.viewport()->rect().contains(rectOf(lines - 1)));
    shown.view.viewport()->update();
    finish();
    EXPECT_EQ(paintedLines().size(), static_cast<std::size_t>(lines));
}

TEST_F(PaneRepaint, ACharacterRepaintsItsLine)
{
    shown.type("x");
    finish();
    EXPECT_EQ(shown.pane.Text().substr(10 * lineLength, 9), "BTN xS1 a");
    EXPECT_EQ(paintedLines(), std::vector<int>{10});
}

TEST_F(PaneRepaint, ACharacterBeforeColouredTextRepaintsItsLine)
{
    shown.caretTo(10 * (lineLength - 1));
    finish();
    painted.forget();
    shown.type("x");
    finish();
    EXPECT_EQ(shown.shownColour(10, 2), blue);
    EXPECT_EQ(paintedLines(), std::vector<int>{10});
}

TEST_F(PaneRepaint, BackspaceAndDeleteRepaintTheirLine)
{
    shown.press(Qt::Key_Backspace);
    shown.press(Qt::Key_Delete);
    finish();
    EXPECT_EQ(shown.pane.Text().substr(10 * lineLength, 6), "BTN1 a");
    EXPECT_EQ(paintedLines(), std::vector<int>{10});
}

TEST_F(PaneRepaint, ReturnRepaintsTheLinesThatMove)
{
    shown.press(Qt::Key_Return);
    finish();
    for (int line = 10; line < lines; ++line) EXPECT_TRUE(painted.paints(rectOf(line))) << line;
}

TEST_F(PaneRepaint, AKeyWithoutEffectRepaintsNoMoreThanTheCaret)
{
    shown.press(Qt::Key_Shift);
    finish();
    const int lineHeight = rectOf(1).top() - rectOf(0).top();
    EXPECT_LT(painted.bounds().width(), 2 * lineHeight); // the caret, with the margin that Qt gives it
    EXPECT_LT(painted.bounds().height(), 2 * lineHeight);
}

TEST_F(PaneRepaint, ColourRepaintsTheLinesThatGotIt)
{
    shown.colour(3 * lineLength, 6, red);
    shown.colour(15 * lineLength, 6, red);
    finish();
    EXPECT_EQ(shown.shownColour(3, 4), red);
    EXPECT_EQ(paintedLines(), (std::vector<int>{3, 15}));
}

TEST_F(PaneRepaint, TheSameColourAgainRepaintsNothing)
{
    shown.colour(3 * lineLength, 3, blue);
    finish();
    EXPECT_EQ(paintedLines(), std::vector<int>{});
}

TEST_F(PaneRepaint, TextOfTheProgramRepaintsItsLine)
{
    shown.pane.setSelStart(5 * lineLength);
    shown.pane.setSelText("new ");
    finish();
    EXPECT_EQ(shown.pane.Text().substr(5 * lineLength, 7), "new BTN");
    EXPECT_TRUE(painted.paints(rectOf(5)));
    EXPECT_FALSE(painted.paints(rectOf(2)));
    EXPECT_FALSE(painted.paints(rectOf(15)));
}

TEST_F(PaneRepaint, ANewBackColourRepaintsEverything)
{
    shown.pane.BackColor = 0x80FFFF;
    finish();
    EXPECT_EQ(paintedLines().size(), static_cast<std::size_t>(lines));
}

} // namespace
} // namespace tarvex
