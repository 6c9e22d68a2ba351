#include "desktop/testers/key_test_view.h"

#include "support/test_program.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct KeyTestViewTest : testing::Test, TestProgram {
    KeyTestForm& form = program().testers.keyTest;
    KeyTestView view{form, nullptr};

    KeyTestViewTest()
    {
        menus().mnuSendToKeyTest.Click();
        QApplication::processEvents();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }
    void press(int key, Qt::KeyboardModifiers held = Qt::NoModifier) { QTest::keyClick(&view, Qt::Key(key), held); }
    template <typename Widget> Widget& child(const char* name)
    {
        auto* const found = view.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    QString shown(const char* list) { return child<QPlainTextEdit>(list).toPlainText(); }
};

TEST_F(KeyTestViewTest, KeysAppearInTheirLists)
{
    press(Qt::Key_Return);
    EXPECT_EQ(shown("RTFKeysDownText"), "Keycode:  13\n");
    EXPECT_EQ(shown("RTFKeysUpText"), "Keycode:  13\n");
    EXPECT_EQ(shown("RTFKeysText"), " Enter\n");
}

TEST_F(KeyTestViewTest, LettersArriveAsTheyAreTyped)
{
    for (const auto& [held, text] : {std::pair(Qt::NoModifier, "a"), {Qt::ShiftModifier, "A"}}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, held, text);
        QApplication::sendEvent(&view, &event);
    }
    EXPECT_EQ(shown("RTFKeysText").toStdString(), " a\n A\n");
    EXPECT_EQ(shown("RTFKeysDownText").toStdString(), "Keycode:  65\nKeycode:  65 + SHF\n");
}

TEST_F(KeyTestViewTest, KeysThatWindowsUseThemselvesAreShownAndDoNothingElse)
{
    const QWidget* focused = view.focusWidget();
    for (const int key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_F10, Qt::Key_Alt, Qt::Key_Print,
                          Qt::Key_F1, Qt::Key_Menu})
        press(key);
    press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.focusWidget(), focused);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(view.findChild<QMenuBar*>()->activeAction(), nullptr);
    EXPECT_EQ(shown("RTFKeysText"), " TAB\n TAB\n Escape\n F10\n PrintScreen\n F1\n Ctrl F4\n");
    EXPECT_EQ(shown("RTFKeysDownText").count("Keycode:"), 10) << "Ctrl itself, too";
}

TEST_F(KeyTestViewTest, ModifiersLightTheirLampsWhileTheyAreHeld)
{
    auto& lamp = child<QLabel>("LabelSHIFT");
    QTest::keyPress(&view, Qt::Key_Shift);
    EXPECT_EQ(lamp.palette().color(QPalette::Window), QColor(255, 192, 128));
    QTest::keyRelease(&view, Qt::Key_Shift);
    EXPECT_NE(lamp.palette().color(QPalette::Window), QColor(255, 192, 128));
    EXPECT_EQ(shown("RTFKeysDownText"), "Keycode:  16 + SHF\n");
    EXPECT_EQ(shown("RTFKeysUpText"), "Keycode:  16\n");
}

TEST_F(KeyTestViewTest, AHeldKeyThatRepeatsComesUpOnce)
{
    for (const auto& [type, repeats] : {std::pair(QEvent::KeyPress, false),
                                        {QEvent::KeyRelease, true},
                                        {QEvent::KeyPress, true},
                                        {QEvent::KeyRelease, false}}) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", repeats);
        QApplication::sendEvent(&view, &event);
    }
    EXPECT_EQ(shown("RTFKeysDownText").count("Keycode:"), 2);
    EXPECT_EQ(shown("RTFKeysUpText").count("Keycode:"), 1);
}

TEST_F(KeyTestViewTest, KeysHeldWhenTheWindowLosesTheKeyboardAreUnlit)
{
    QTest::keyPress(&view, Qt::Key_Control);
    EXPECT_TRUE(form.LabelCTRL.isHeld());
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_FALSE(form.LabelCTRL.isHeld());
}

TEST_F(KeyTestViewTest, EveryLineHasTheColourOfItsKey)
{
    settings().SlashColour = 0x0000FF;
    press(Qt::Key_Return);
    auto& list = child<QPlainTextEdit>("RTFKeysText");
    QTextCursor caret(list.document());
    caret.movePosition(QTextCursor::NextCharacter, QTextCursor::MoveAnchor, 2);
    EXPECT_EQ(caret.charFormat().foreground().color(), QColor(255, 0, 0));
}

TEST_F(KeyTestViewTest, TheListsKeepTheLastLinesOfAHundredThousandKeys)
{
    for (int i = 0; i < 100'000; ++i) form.RTFKeysText.append(std::to_string(i), 0);
    const QString text = shown("RTFKeysText");
    EXPECT_TRUE(text.endsWith("99999\n"));
    EXPECT_TRUE(text.startsWith("98000\n"));
}

TEST_F(KeyTestViewTest, ExitButtonCloses)
{
    QTest::mouseClick(&child<QPushButton>("Command1"), Qt::LeftButton);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(form.WindowOpen, 0);
}

TEST_F(KeyTestViewTest, TheJoystickIsReadByItsTimer)
{
    joystick.position.dwXpos = 0;
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.PictureJoystick.get().x == 0; }, 20'000));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return child<QLabel>("status").text() == "Status: Joystick connected"; }, 20'000));
}

} // namespace
} // namespace tarvex
