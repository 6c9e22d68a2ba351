// Colours, fonts and scroll position of a pane's view.

#include "shown_pane.h"

#include <QInputMethodEvent>
#include <QScrollBar>

namespace tarvex {
namespace {

TEST(PaneLook, ColoursOfThePaneAreSeenAndFollowTheText)
{
    ShownPane shown("BTN S1 a\r\nRem x");
    shown.colour(0, 3, blue);
    shown.colour(10, 3, red);
    ShownPane::events();
    EXPECT_EQ(shown.shownColour(0, 2), blue);
    EXPECT_EQ(shown.shownColour(0, 3), 0);
    EXPECT_EQ(shown.shownColour(1, 0), red);
    shown.caretTo(0);
    shown.press(Qt::Key_Return);
    EXPECT_EQ(shown.shownColour(2, 0), red);
    shown.expectEqual();
}

TEST(PaneLook, CaretAndScrollStayWhenTheProgramColoursTheText)
{
    std::string text;
    for (int line = 0; line < 300; ++line) text += "BTN S1 a\r\n";
    ShownPane shown(text);
    shown.view.verticalScrollBar()->setValue(100);
    for (int line = 0; line < 300; ++line) shown.colour(line * 10, 3, blue);
    ShownPane::events();
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 100);
    EXPECT_EQ(shown.view.textCursor().position(), 0);
}

TEST(PaneLook, TextOnTopStaysInSightWhenLinesAboveItGrow)
{
    std::string text;
    for (int line = 0; line < 300; ++line) text += std::to_string(line) + "\r\n";
    ShownPane shown(text);
    shown.caretTo(shown.view.document()->findBlockByNumber(200).position());
    shown.view.verticalScrollBar()->setValue(195);
    const auto caret = shown.pane.SelStart();
    shown.pane.setSelStart(0);
    shown.pane.setSelText("a\r\nb\r\n");
    shown.pane.setSelStart(caret + 6);
    ShownPane::events();
    EXPECT_EQ(shown.view.verticalScrollBar()->value(), 197);
}

TEST(PaneLook, ComposedTextLeavesTheColoursOfItsLine)
{
    ShownPane shown("BTN S1");
    shown.colour(0, 3, blue);
    shown.colour(4, 2, red);
    shown.caretTo(4);
    ShownPane::events();
    QInputMethodEvent composing("xy", {});
    QApplication::sendEvent(&shown.view, &composing);
    EXPECT_EQ(shown.pane.Text(), "BTN S1");
    EXPECT_EQ(shown.shownColour(0, 0), blue);
    EXPECT_EQ(shown.shownColour(0, 6), red) << "behind the composed text";
    EXPECT_EQ(shown.shownColour(0, 4), 0);
    QInputMethodEvent commit;
    commit.setCommitString("S");
    QApplication::sendEvent(&shown.view, &commit);
    EXPECT_EQ(shown.pane.Text(), "BTN SS1");
    EXPECT_EQ(shown.pane.SelStart(), 5);
    EXPECT_EQ(shown.shownColour(0, 0), blue);
    shown.expectEqual();
}

TEST(PaneLook, ZoomGrowsTextAndFormatsAndLeavesThePaneAlone)
{
    ShownPane shown("ab");
    shown.pane.setSelStart(0);
    shown.pane.setSelLength(1);
    shown.pane.setSelFontSize(20);
    shown.view.setZoom(200);
    EXPECT_EQ(shown.view.font().pointSizeF(), 20);
    shown.view.settle();
    shown.view.formatAll();
    EXPECT_EQ(shown.view.document()->firstBlock().layout()->formats().value(0).format.fontPointSize(), 40);
    EXPECT_EQ(shown.pane.Font().size, 10);
    shown.view.setZoom(10);
    EXPECT_EQ(shown.view.zoom(), 40);
    shown.view.setZoom(1000);
    EXPECT_EQ(shown.view.zoom(), 500);
    shown.press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(shown.view.zoom(), 100);
}

TEST(PaneLook, PaneKeepsItsColoursInADarkAppearance)
{
    ShownPane shown("ab");
    QPalette dark(QColor(40, 40, 40));
    QApplication::setPalette(dark);
    ShownPane::events();
    EXPECT_EQ(shown.view.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(shown.view.palette().color(QPalette::Text), QColor(Qt::black));
    QApplication::setPalette(QPalette());
    shown.pane.BackColor = 0x80FFFF;
    EXPECT_EQ(shown.view.palette().color(QPalette::Base), QColor(255, 255, 0x80));
}

TEST(PaneLook, MovingTheCaretForgetsNoChosenFormatUnlessItMoves)
{
    ShownPane shown("ab");
    shown.caretTo(1);
    shown.pane.setSelColor(red);
    ShownPane::events();
    shown.type("x");
    EXPECT_EQ(shown.shownColour(0, 1), red);
    EXPECT_EQ(shown.shownColour(0, 0), 0);
}

TEST(PaneLook, CopiedSelectionPastesWithItsColours)
{
    ShownPane shown("BTN S1");
    shown.colour(0, 3, blue);
    shown.select(0, 3);
    shown.view.copy();
    shown.caretTo(6);
    shown.view.paste();
    EXPECT_EQ(shown.pane.Text(), "BTN S1BTN");
    EXPECT_EQ(shown.shownColour(0, 7), blue);
    EXPECT_EQ(shown.changes, 2) << "the colouring and the paste";
    shown.select(0, 3);
    shown.view.cut();
    shown.view.settle();
    EXPECT_EQ(shown.pane.Text(), " S1BTN");
    shown.expectEqual();
}

} // namespace
} // namespace tarvex
