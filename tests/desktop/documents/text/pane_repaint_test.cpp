// What of a pane's view is painted again: all that looks different, and with a key no more than its line.

#include "desktop/documents/text/pane_view.h"
#include "support/random_seed.h"

#include <QApplication>
#include <QPaintEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// A pane in a window, with the part of the view that was painted since `forget`.
class PaintedPane : public QObject {
public:
    Pane pane;
    PaneView view{pane};

    explicit PaintedPane(const std::string& text)
    {
        QApplication::setCursorFlashTime(0); // the caret is always seen
        pane.setText(text);
        view.resize(300, 250);
        view.show();
        view.setFocus();
        view.viewport()->installEventFilter(this);
        settle();
    }
    /// Lets all be painted that waits for it.
    static void settle()
    {
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
    }
    void forget() { m_painted = {}; }
    const QRegion& painted() const { return m_painted; }
    QImage picture()
    {
        m_notes = false;
        QImage image = view.viewport()->grab().toImage();
        m_notes = true;
        return image;
    }
    int lineHeight() { return view.fontMetrics().lineSpacing(); }
    void colour(std::int64_t start, std::int64_t length, Colour colour)
    {
        pane.setSelStart(start);
        pane.setSelLength(length);
        pane.setSelColor(colour);
        pane.setSelStart(start);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (m_notes && event->type() == QEvent::Paint) m_painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    QRegion m_painted;
    bool m_notes = true;
};

QRegion difference(const QImage& a, const QImage& b)
{
    QRegion result;
    for (int y = 0; y < a.height(); ++y) {
        int first = 0;
        int last = a.width() - 1;
        while (first <= last && a.pixel(first, y) == b.pixel(first, y)) ++first;
        while (last >= first && a.pixel(last, y) == b.pixel(last, y)) --last;
        if (first <= last) result += QRect(first, y, last - first + 1, 1);
    }
    return result;
}

std::string manyLines()
{
    std::string text;
    for (int line = 0; line < 30; ++line) text += "BTN S1 /I Chaff Rem x\r\n";
    return text;
}

TEST(PaneRepaint, KeyPaintsOnlyItsLine)
{
    PaintedPane shown(manyLines());
    for (std::int64_t line = 0; line < 30; ++line) shown.colour(shown.pane.lineStart(line) + 4, 2, 0x0000FF);
    shown.pane.setSelStart(shown.pane.lineStart(5) + 3);
    PaintedPane::settle();
    shown.forget();
    QTest::keyClick(&shown.view, Qt::Key_X);
    PaintedPane::settle();
    EXPECT_FALSE(shown.painted().isEmpty());
    EXPECT_LE(shown.painted().boundingRect().height(), shown.lineHeight() + 2);
}

TEST(PaneRepaint, ColourOfALineInSightIsPainted)
{
    PaintedPane shown(manyLines());
    const QImage before = shown.picture();
    shown.forget();
    shown.colour(shown.pane.lineStart(3), 3, 0x0000FF);
    PaintedPane::settle();
    const QRegion changed = difference(before, shown.picture());
    EXPECT_FALSE(changed.isEmpty());
    EXPECT_TRUE(changed.subtracted(shown.painted()).isEmpty());
}

/// A random act of the user or of the program.
void act(PaintedPane& shown, std::mt19937& random)
{
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const auto position = static_cast<std::int64_t>(below(shown.pane.TextLength() + 1));
    static const std::vector<std::string> texts{"", "x", "BTN", "a\r\nb", "\r\n"};
    static const std::vector<Qt::Key> keys{Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Up,
                                           Qt::Key_Down,   Qt::Key_Home,      Qt::Key_Insert, Qt::Key_PageDown};
    switch (below(6)) {
    case 0:
        shown.pane.setSelStart(position);
        shown.pane.setSelLength(static_cast<std::int64_t>(below(30)));
        shown.pane.setSelText(texts[below(texts.size())]);
        break;
    case 1:
        shown.colour(position, static_cast<std::int64_t>(below(40)), below(2) == 0 ? 0x0000FF : 0xFF0000);
        break;
    case 2:
        shown.pane.setSelStart(position);
        shown.pane.setSelLength(static_cast<std::int64_t>(below(40)));
        break;
    case 3:
        QTest::keyClick(&shown.view, keys[below(keys.size())], below(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    default:
        QTest::keyClick(&shown.view, 'a' + static_cast<char>(below(3)));
    }
}

TEST(PaneRepaint, AllThatLooksDifferentIsPaintedAfterRandomActs)
{
    constexpr int acts = 1500;
    std::mt19937 random(randomSeed());
    PaintedPane shown(manyLines());
    QImage before = shown.picture();
    for (int i = 0; i < acts; ++i) {
        shown.forget();
        act(shown, random);
        PaintedPane::settle();
        QImage after = shown.picture();
        const QRegion missed = difference(before, after).subtracted(shown.painted());
        ASSERT_TRUE(missed.isEmpty()) << "after act " << i << " at y " << missed.boundingRect().y();
        before = after;
    }
}

} // namespace
} // namespace tarvex
