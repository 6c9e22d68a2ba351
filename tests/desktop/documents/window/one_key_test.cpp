// One key does each thing once: one edit, one journal record, one undo level, one look at the caret.

#include "desktop/program/mum_window.h"
#include "documents/editing/clipboard_commands.h"
#include "support/test_program.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct OneKey : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    Editor& editor = t.editor();
    int clipboardUpdates = 0;
    int lineNumbers = 0;
    int caretColours = 0;
    Connection line;
    Connection colour;

    OneKey()
    {
        editor.JoystickText.setText("one\r\ntwo\r\nthree");
        window.showNormal();
        window.resize(1000, 700);
        view().setFocus();
        press(Qt::Key_End); // past what the first key begins: journal and undo history
        type("a");
        editor.operations.UpdateCCPButtons = [this] {
            ++clipboardUpdates;
            UpdateCCPButtons(editor);
        };
        line = editor.mum.StatusBar.Panels(panel::line).Text.changed.connect([this] { ++lineNumbers; });
        colour = editor.mum.Picture1.changed.connect([this] { ++caretColours; });
    }
    PaneView& view() { return window.editor().pane(editor.joystick); }
    /// Down and up, and all that the program does about it later.
    void press(Qt::Key key)
    {
        QTest::keyClick(window.windowHandle(), key);
        QApplication::processEvents();
    }
    void type(const char* text)
    {
        for (const char* at = text; *at != 0; ++at) QTest::keyClick(window.windowHandle(), *at);
        QApplication::processEvents();
    }
    std::size_t levels() const { return editor.joystick.Undo.Levels.size(); }
};

TEST_F(OneKey, WritesOneJournalRecord)
{
    const int before = t.files.appends();
    type("b");
    EXPECT_EQ(t.files.appends(), before + 1);
    press(Qt::Key_Return);
    EXPECT_EQ(t.files.appends(), before + 2);
    press(Qt::Key_Backspace);
    EXPECT_EQ(t.files.appends(), before + 3);
}

TEST_F(OneKey, WritesNothingWhenItOnlyMovesTheCaret)
{
    const int before = t.files.appends();
    press(Qt::Key_Down);
    EXPECT_EQ(t.files.appends(), before);
}

TEST_F(OneKey, OpensOneUndoLevelAtMost)
{
    const std::size_t before = levels();
    type("b");
    EXPECT_EQ(levels(), before) << "it belongs to the word";
    press(Qt::Key_Return);
    EXPECT_EQ(levels(), before + 1);
}

TEST_F(OneKey, UpdatesTheClipboardCommandsOnce)
{
    for (const Qt::Key key : {Qt::Key_B, Qt::Key_Return, Qt::Key_Up, Qt::Key_End}) {
        clipboardUpdates = 0;
        press(key);
        EXPECT_EQ(clipboardUpdates, 1) << "key " << key;
    }
    clipboardUpdates = 0;
    press(Qt::Key_Delete);
    EXPECT_EQ(clipboardUpdates, 0) << "the caret stays, and nothing is selected before or after";
}

TEST_F(OneKey, ShowsOneLineNumber)
{
    lineNumbers = 0;
    press(Qt::Key_Return);
    EXPECT_EQ(lineNumbers, 1);
    EXPECT_EQ(t.status(3), "Line no: 2");
    press(Qt::Key_Down);
    EXPECT_EQ(lineNumbers, 2);
}

TEST_F(OneKey, ShowsOneCaretColour)
{
    editor.JoystickText.setSelStart(0);
    editor.JoystickText.setSelLength(3);
    editor.JoystickText.setSelColor(0xFF0000);
    editor.JoystickText.setSelStart(6);
    QApplication::processEvents();
    caretColours = 0;
    press(Qt::Key_Up);
    EXPECT_EQ(caretColours, 1);
    EXPECT_EQ(editor.mum.Picture1, 0xFF0000);
}

TEST_F(OneKey, ShowsNothingAgainWhenItIsReleased)
{
    QTest::keyPress(window.windowHandle(), Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_EQ(t.status(3), "Line no: 2") << "a key that is held down shows each line";
    clipboardUpdates = lineNumbers = caretColours = 0;
    QTest::keyRelease(window.windowHandle(), Qt::Key_Down);
    QApplication::processEvents();
    EXPECT_EQ(clipboardUpdates + lineNumbers + caretColours, 0);
    EXPECT_EQ(editor.joystick.Caret, editor.JoystickText.SelStart());
}

} // namespace
} // namespace tarvex
