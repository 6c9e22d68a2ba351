// Where the keyboard goes and comes back from, with the window system's own events.

#include "desktop/documents/window/editor_view.h"

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// Counts how often a widget gets the keyboard.
class FocusCounter : public QObject {
public:
    explicit FocusCounter(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn) ++count;
        return false;
    }
};

struct EditorFocusTest : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    Editor& editor = t.editor();
    PaneView& joystick = window.editor().pane(editor.joystick);
    PaneView& macro = window.editor().pane(editor.macro);
    FocusCounter returns{joystick};

    EditorFocusTest()
    {
        editor.JoystickText.setText("one\r\ntwo\r\nthree");
        window.showNormal();
        window.resize(1000, 700);
        activate(window);
        joystick.setFocus();
        returns.count = 0;
        editor.status("Saved, and proud of it");
    }
    static void activate(QWidget& wanted)
    {
        wanted.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&wanted));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
        QApplication::processEvents();
    }
    void expectStatusOutlivedAReturn()
    {
        EXPECT_EQ(QApplication::focusWidget(), &joystick);
        EXPECT_GT(returns.count, 0) << "the keyboard was elsewhere";
        EXPECT_EQ(t.status(), "Saved, and proud of it");
    }
};

TEST(EditorFocus, TheWelcomeOutlivesTheFirstActivationOfTheWindow)
{
    TestProgram t;
    MumWindow window(t.program());
    FocusCounter comes(window.editor().pane(t.editor().joystick));
    t.editor().JoystickText.SetFocus(); // as the start does, before the window is there
    window.showNormal();
    EditorFocusTest::activate(window);
    EXPECT_GE(comes.count, 1);
    EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex!");
}

TEST_F(EditorFocusTest, AStatusTextOutlivesABox)
{
    QTimer::singleShot(0, [] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_TRUE(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box, Qt::Key_Return);
    });
    QMessageBox::information(&window, "Box", "Text");
    activate(window); // as a window manager does
    expectStatusOutlivedAReturn();
}

TEST_F(EditorFocusTest, AStatusTextOutlivesAMenu)
{
    press(Qt::Key_E, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape); // the menu bar lets go of the keyboard
    expectStatusOutlivedAReturn();
}

TEST_F(EditorFocusTest, AStatusTextOutlivesAPopUpMenu)
{
    QMenu menu(&window);
    menu.addAction("Item");
    menu.popup(joystick.mapToGlobal(QPoint(10, 10)));
    QApplication::processEvents();
    QTest::keyClick(&menu, Qt::Key_Escape);
    QApplication::processEvents();
    expectStatusOutlivedAReturn();
}

TEST_F(EditorFocusTest, AStatusTextOutlivesAnotherWindow)
{
    QWidget other;
    other.show();
    activate(other);
    activate(window);
    expectStatusOutlivedAReturn();
}

TEST_F(EditorFocusTest, TurningToThePaneShowsWhatIsEdited)
{
    window.editor().tabs().setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(t.status(), "Saved, and proud of it");
    joystick.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(t.status(), "Editing untitled.b50");
}

TEST_F(EditorFocusTest, TheTileWithTheKeyboardIsTheSelectedOneAlsoAfterAnotherWindow)
{
    t.menus().mnuViewTileVertically.Click();
    QWidget other;
    other.show();
    activate(other);
    macro.setFocus(Qt::MouseFocusReason);
    activate(window);
    EXPECT_EQ(QApplication::focusWidget(), &window.editor().pane(editor.selected()));
}

TEST_F(EditorFocusTest, WhatIsTypedOnTheTabsGoesToTheSelectedPane)
{
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    if (QApplication::focusWidget() == &joystick) window.editor().tabs().setFocus(Qt::BacktabFocusReason);
    ASSERT_EQ(QApplication::focusWidget(), &window.editor().tabs());
    press(Qt::Key_X);
    EXPECT_EQ(editor.JoystickText.Text(), "xone\r\ntwo\r\nthree");
    EXPECT_EQ(QApplication::focusWidget(), &joystick);

    press(Qt::Key_Tab, Qt::ControlModifier);
    window.editor().tabs().setFocus(Qt::BacktabFocusReason);
    press(Qt::Key_Y);
    EXPECT_EQ(editor.MacroText.Text(), "y");
    EXPECT_EQ(QApplication::focusWidget(), &macro);
}

TEST_F(EditorFocusTest, KeysThatTakeCharactersAwayGoToTheSelectedPaneToo)
{
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Backspace}) {
        window.editor().tabs().setFocus(Qt::BacktabFocusReason);
        press(key);
    }
    EXPECT_EQ(editor.JoystickText.Text(), "ne\r\ntwo\r\nthree");
}

TEST_F(EditorFocusTest, ArrowKeysOnTheTabsStayThere)
{
    window.editor().tabs().setFocus(Qt::BacktabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), &window.editor().tabs());
}

TEST_F(EditorFocusTest, CtrlPlusZoomsHoweverTheKeyboardWritesThePlus)
{
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(joystick.zoom(), 110);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(joystick.zoom(), 140);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(joystick.zoom(), 130);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(joystick.zoom(), 100);
}

TEST_F(EditorFocusTest, AltAndALetterOpensItsMenuEveryTime)
{
    for (int round = 0; round < 3; ++round) {
        for (const auto& [key, menu] :
             {std::pair{Qt::Key_F, "mnuFile"}, std::pair{Qt::Key_E, "mnuEdit"}, std::pair{Qt::Key_H, "mnuHelp"}}) {
            for (int again = 0; again < 2; ++again) {
                QTest::mouseClick(joystick.viewport(), Qt::LeftButton);
                press(key, Qt::AltModifier);
                ASSERT_NE(QApplication::activePopupWidget(), nullptr) << menu << " in round " << round;
                EXPECT_EQ(QApplication::activePopupWidget()->objectName(), menu);
                press(Qt::Key_Escape);
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            }
        }
    }
}

TEST_F(EditorFocusTest, TypingGoesToThePaneAfterAMenuWasClosed)
{
    for (int round = 1; round <= 3; ++round) {
        press(Qt::Key_F, Qt::AltModifier);
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        press(Qt::Key_E);
        EXPECT_EQ(QApplication::focusWidget(), &joystick) << round;
        EXPECT_TRUE(editor.JoystickText.Text().starts_with(std::string(static_cast<std::size_t>(round), 'e'))) << round;
    }
}

} // namespace
} // namespace tarvex
