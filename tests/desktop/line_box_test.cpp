#include "desktop/line_box.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// Two of them in a window that has the keyboard.
struct LineBoxTest : testing::Test {
    TextBox state;
    TextBox otherState;
    Bindings bindings;
    QWidget window;
    LineBox* box = new LineBox(state, "Text1", bindings);
    LineBox* other = new LineBox(otherState, "Text2", bindings);
    int got = 0;
    int lost = 0;

    LineBoxTest()
    {
        state.GotFocus = [this] { ++got; };
        state.LostFocus = [this] { ++lost; };
        auto* column = new QVBoxLayout(&window);
        column->addWidget(other);
        column->addWidget(box);
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
        QApplication::processEvents();
    }
    void focus(LineBox* wanted, Qt::FocusReason reason = Qt::TabFocusReason)
    {
        wanted->setFocus(reason);
        QApplication::processEvents();
    }
};

TEST_F(LineBoxTest, SaysWhenTheKeyboardComesAndGoes)
{
    EXPECT_EQ(box->objectName(), "Text1");
    EXPECT_EQ(got, 0);
    focus(box);
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
    focus(other);
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 1);
}

TEST_F(LineBoxTest, ItsOwnMenuIsNoLoss)
{
    focus(box);
    QFocusEvent gone(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(box, &gone);
    QFocusEvent back(QEvent::FocusIn, Qt::PopupFocusReason);
    QApplication::sendEvent(box, &back);
    QApplication::processEvents();
    EXPECT_EQ(got, 1);
    EXPECT_EQ(lost, 0);
}

TEST_F(LineBoxTest, WithoutHandlersTheKeyboardComesAndGoes)
{
    state.GotFocus = {};
    state.LostFocus = {};
    focus(box);
    focus(other);
    EXPECT_TRUE(other->hasFocus());
}

TEST_F(LineBoxTest, OfSeveralLinesTheFirstIsTaken)
{
    for (const QString end : {"\n", "\r", "\u2028", "\u2029"}) {
        box->clear();
        box->insert("first" + end + "second");
        EXPECT_EQ(box->text(), "first");
        EXPECT_EQ(state.Text.get(), "first");
        EXPECT_EQ(box->cursorPosition(), 5);
    }
    box->clear();
    box->insert("whole");
    EXPECT_EQ(state.Text.get(), "whole");
}

} // namespace
} // namespace tarvex
