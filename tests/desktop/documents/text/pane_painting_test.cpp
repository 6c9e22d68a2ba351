// The pixels of a pane, against a drawing of what it holds.

#include "desktop/documents/text/pane_view.h"
#include "pane_picture.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr Colour red = 0x0000FF;
constexpr Colour blue = 0xFF0000;

/// A pane on a screen. The caret, which would blink, isn't drawn.
struct Painted {
    Pane pane;
    PaneView view{pane};

    explicit Painted(std::string_view text)
    {
        pane.setText(text);
        view.setCursorWidth(0);
        view.resize(500, 300);
        view.show();
        view.activateWindow();
        view.setFocus();
        QApplication::processEvents();
    }
    void select(std::int64_t start, std::int64_t length)
    {
        pane.setSelStart(start);
        pane.setSelLength(length);
    }
    template <typename Set> void format(std::int64_t start, std::int64_t length, Set set)
    {
        select(start, length);
        set(pane);
        select(0, 0);
    }
    QSize size() const { return view.viewport()->size(); }
    std::string difference(PanePicture wanted) const
    {
        return tarvex::difference(painted(*view.viewport()), wanted.drawn(size()));
    }
    std::string difference() const { return difference({pane}); }
    QImage picture() const { return painted(*view.viewport()); }
};

int darkPixels(const QImage& image)
{
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
    return dark;
}

const std::string twoLines = "BTN S1 /U fire /D gear\r\nRem a comment";

TEST(PanePainting, TextIsBlackOnTheBackColour)
{
    Painted t(twoLines);
    EXPECT_EQ(t.difference(), "");
    EXPECT_GT(darkPixels(t.picture()), 200) << "the drawing to compare with isn't empty either";
    t.pane.BackColor = 0x80FFFF;
    EXPECT_EQ(t.difference(), "");
    EXPECT_EQ(t.picture().pixelColor(400, 200), QColor(0xFF, 0xFF, 0x80));
}

TEST(PanePainting, AnEmptyPaneIsAllBackColour)
{
    Painted t("");
    EXPECT_EQ(t.difference(), "");
}

TEST(PanePainting, CharactersHaveTheirColours)
{
    Painted t(twoLines);
    const QImage black = t.picture();
    t.format(0, 6, [](Pane& pane) { pane.setSelColor(blue); });
    t.format(24, 13, [](Pane& pane) { pane.setSelColor(red); });
    EXPECT_EQ(t.difference(), "");
    EXPECT_NE(difference(t.picture(), black), "");
}

TEST(PanePainting, CharactersHaveTheirWeightSlantUnderlineAndSize)
{
    Painted t(twoLines);
    const QImage plain = t.picture();
    t.format(0, 3, [](Pane& pane) { pane.setSelBold(true); });
    t.format(4, 2, [](Pane& pane) { pane.setSelItalic(true); });
    t.format(7, 2, [](Pane& pane) { pane.setSelUnderline(true); });
    t.format(24, 3, [](Pane& pane) { pane.setSelFontSize(16); });
    EXPECT_EQ(t.difference(), "");
    EXPECT_NE(difference(t.picture(), plain), "");
}

TEST(PanePainting, TheSelectionIsHighlighted)
{
    Painted t(twoLines);
    t.format(0, 6, [](Pane& pane) { pane.setSelColor(blue); });
    const QImage before = t.picture();
    t.select(4, 5);
    EXPECT_EQ(t.difference(), "");
    EXPECT_NE(difference(t.picture(), before), "");
}

TEST(PanePainting, TheSelectionOfAPaneWithoutTheKeyboardIsSeenToo)
{
    Painted t(twoLines);
    QWidget other;
    other.show();
    other.activateWindow();
    QApplication::processEvents();
    ASSERT_FALSE(t.view.isActiveWindow());
    t.select(4, 5);
    EXPECT_EQ(t.difference({.pane = t.pane, .active = false}), "");
}

TEST(PanePainting, WhatTheProgramWritesIsPaintedWithoutWaiting)
{
    Painted t(twoLines);
    t.select(3, 0);
    t.pane.setSelText("!\r\nand ");
    t.select(0, 0);
    EXPECT_EQ(t.difference(), "");
}

TEST(PanePainting, TypedTextIsPaintedInTheColourChosenForIt)
{
    Painted t(twoLines);
    t.select(3, 0);
    QApplication::processEvents();
    t.pane.setSelColor(red);
    QTest::keyClicks(&t.view, "xyz");
    EXPECT_EQ(t.pane.formatAt(4).colour, red);
    EXPECT_EQ(t.difference(), "");
}

TEST(PanePainting, TextColouredAndMovedInTheSameMomentKeepsItsColours)
{
    Painted t(twoLines);
    t.format(0, 3, [](Pane& pane) { pane.setSelColor(blue); });
    t.format(24, 3, [](Pane& pane) { pane.setSelColor(red); });
    t.select(0, 0);
    t.pane.setSelText("one\r\ntwo\r\n");
    t.select(0, 0);
    EXPECT_EQ(t.difference(), "");
    t.format(10, 3, [](Pane& pane) { pane.setSelColor(red); });
    t.select(14, 20);
    t.pane.setSelText("");
    t.select(0, 0);
    EXPECT_EQ(t.difference(), "");
}

TEST(PanePainting, AScrolledPaneShowsTheLinesFromThere)
{
    std::string text;
    for (int line = 0; line < 100; ++line) text += "BTN S" + std::to_string(line) + " fire\r\n";
    Painted t(text);
    for (int line = 0; line < 100; line += 3)
        t.format(t.pane.lineStart(line), 3, [](Pane& pane) { pane.setSelColor(blue); });
    QApplication::processEvents();
    for (const int top : {1, 50, 37}) {
        t.view.verticalScrollBar()->setValue(top);
        EXPECT_EQ(t.difference({.pane = t.pane, .firstLine = top}), "") << "from line " << top;
    }
}

TEST(PanePainting, ZoomPaintsLargerText)
{
    Painted t(twoLines);
    t.format(0, 3, [](Pane& pane) { pane.setSelFontSize(16); });
    t.view.setZoom(150);
    EXPECT_EQ(t.difference({.pane = t.pane, .zoom = 150}), "");
}

TEST(PanePainting, ThePanesOwnFontIsPainted)
{
    Painted t(twoLines);
    const QImage before = t.picture();
    t.pane.setFont({.name = t.pane.Font().name, .size = 14, .bold = true});
    EXPECT_EQ(difference(t.picture(), before), "") << "characters keep the font that they have";
    t.pane.setText("");
    t.pane.setFont({.name = t.pane.Font().name, .size = 16, .bold = true});
    t.pane.userEdit(0, 0, twoLines);
    EXPECT_EQ(t.difference(), "");
    EXPECT_NE(difference(t.picture(), before), "");
}

TEST(PanePainting, TheCaretIsALineWhereTheNextKeyGoes)
{
    Painted t(twoLines);
    t.view.setCursorWidth(2);
    const int flashing = QApplication::cursorFlashTime();
    QApplication::setCursorFlashTime(0);
    t.view.clearFocus();
    t.view.setFocus();
    t.select(9, 0);
    QApplication::processEvents();
    const QImage shown = t.picture();
    const QRect caret = t.view.cursorRect();
    QApplication::setCursorFlashTime(flashing);
    const QPoint middle(caret.left(), caret.center().y());
    EXPECT_EQ(shown.pixelColor(middle), QColor(Qt::black));
    QTest::keyClicks(&t.view, "x");
    EXPECT_EQ(t.pane.Text().substr(8, 2), "Ux") << "the caret stood behind the U";
}

} // namespace
} // namespace tarvex
