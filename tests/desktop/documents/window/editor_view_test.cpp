#include "desktop/documents/window/editor_view.h"

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct EditorViewTest : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    Editor& editor = t.editor();

    EditorViewTest()
    {
        editor.JoystickText.setText("one\r\ntwo\r\nthree");
        window.showNormal();
        window.resize(1000, 700);
        joystick().setFocus();
        QApplication::processEvents();
    }
    PaneView& joystick() { return window.editor().pane(editor.joystick); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers); // by way of the window's shortcuts
        QApplication::processEvents();
    }
};

TEST_F(EditorViewTest, ArrowKeysShowTheLineTheyReach)
{
    press(Qt::Key_Down);
    EXPECT_EQ(t.status(3), "Line no: 2");
    EXPECT_EQ(editor.joystick.Caret, 5);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(editor.HighlightLength, 1);
}

TEST_F(EditorViewTest, F1InAPaneLooksUpTheSelectionThoughTheMenuHasTheKey)
{
    std::string word;
    int contents = 0;
    editor.operations.HelpKeyword = [&](const std::string& keyword) { word = keyword; };
    t.menus().mnuHelpContents.handler = [&] { ++contents; };
    t.menus().mnuHelpContents.Enabled = false; // the view looks for the handler when this changes
    t.menus().mnuHelpContents.Enabled = true;
    press(Qt::Key_F1);
    EXPECT_EQ(contents, 1);
    EXPECT_EQ(word, "");
    editor.JoystickText.setSelStart(5);
    editor.JoystickText.setSelLength(3);
    press(Qt::Key_F1);
    EXPECT_EQ(contents, 1);
    EXPECT_EQ(word, "two");
}

TEST_F(EditorViewTest, EscapePopsUpTheInsertMenu)
{
    press(Qt::Key_Escape);
    EXPECT_EQ(t.dialogues.popUpsAtCaret, std::vector<std::string>{"mnuInsert"});
    EXPECT_EQ(editor.JoystickText.Text(), "one\r\ntwo\r\nthree");
}

TEST_F(EditorViewTest, AClickShowsItsLineAndTheEditingText)
{
    editor.status("Ready!");
    QTextCursor cursor = joystick().textCursor();
    cursor.setPosition(9);
    const QPoint place = joystick().cursorRect(cursor).center();
    QTest::mouseClick(joystick().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(t.status(3), "Line no: 3");
    EXPECT_EQ(t.status(), "Editing untitled.b50");
}

TEST_F(EditorViewTest, AClickWhileHelpIsAskedForShowsNoLine)
{
    editor.mum.MousePointer = MousePointer::ArrowQuestion;
    QTextCursor cursor = joystick().textCursor();
    cursor.setPosition(9);
    QTest::mouseClick(joystick().viewport(), Qt::LeftButton, {}, joystick().cursorRect(cursor).center());
    EXPECT_EQ(t.status(3), "Line no: 1");
}

TEST_F(EditorViewTest, TheRightButtonPopsUpAtTheMouseAndTheKeyAtTheCaret)
{
    const QPoint place(10, 10);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, place, joystick().viewport()->mapToGlobal(place));
    QApplication::sendEvent(joystick().viewport(), &byMouse);
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuRHMouse"});
    EXPECT_FALSE(t.menus().mnuRHMCut.Enabled);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, place, joystick().mapToGlobal(place));
    QApplication::sendEvent(&joystick(), &byKey);
    EXPECT_EQ(t.dialogues.popUpsAtCaret.size(), 1U);
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(t.dialogues.popUpsAtCaret, (std::vector<std::string>{"mnuRHMouse", "mnuRHMouse"}));
}

} // namespace
} // namespace tarvex
