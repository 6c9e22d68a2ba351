#include "desktop/generators/generator_forms.h"

#include "desktop/documents/text/pane_view.h"
#include "desktop/generators/heading_view.h"
#include "desktop/generators/single_text_view.h"
#include "desktop/generators/title_view.h"
#include "desktop/platform/qt_dialogues.h"
#include "platform/posix/drive_map.h"
#include "support/test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The three dialogues behind their commands, shown as in the program.
struct Dialogue : TestProgram {
    const DriveMap drives{{{}, "/tmp", "/tmp", "/tmp"}};
    QtDialogues shown{drives};

    Dialogue() { addGeneratorForms(shown, program().generators, nullptr); }

    /// Runs a command; `act` runs in its dialogue, which must be closed by it.
    template <typename Act> void run(MenuItem& command, Act act)
    {
        bool acted = false;
        dialogues.whileModal = [this, &act, &acted] {
            QTimer::singleShot(0, [&act, &acted] {
                QWidget* window = QApplication::activeModalWidget();
                ASSERT_NE(window, nullptr);
                act(*window);
                acted = true;
                EXPECT_FALSE(window->isVisible());
                window->close(); // else the test would hang
            });
            EXPECT_TRUE(shown.showModal(dialogues.modalForms.back()));
        };
        command.Click();
        EXPECT_TRUE(acted);
    }
    template <typename Widget> static Widget& child(QWidget& window, const char* name)
    {
        auto* const widget = window.findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    /// The widget of the dialogue that the keys go to.
    static QWidget* focused() { return QApplication::activeModalWidget()->focusWidget(); }
    static void type(const char* text) { QTest::keyClicks(focused(), QLatin1String(text)); }
    static void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier)
    {
        QTest::keyClick(focused(), key, with);
        QApplication::processEvents();
    }
    const std::string& joystick() { return editor().JoystickText.Text(); }
    const std::string& macro() { return editor().MacroText.Text(); }
};

TEST(TitleView, IsFilledInByKeysAlone)
{
    Dialogue t;
    t.run(t.menus().mnuInsertTitle, [&](QWidget& window) {
        QApplication::processEvents();
        ASSERT_EQ(Dialogue::focused()->objectName(), "Text2");
        Dialogue::type("Mig Alley"); // over the example
        Dialogue::press(Qt::Key_Tab);
        Dialogue::type("Ned");
        Dialogue::press(Qt::Key_Tab);
        Dialogue::press(Qt::Key_Tab);
        Dialogue::press(Qt::Key_Tab);
        ASSERT_EQ(Dialogue::focused()->objectName(), "RichTextBox1");
        Dialogue::type("one");
        Dialogue::press(Qt::Key_Return);
        Dialogue::type("two");
        Dialogue::press(Qt::Key_Tab);
        ASSERT_EQ(Dialogue::focused()->objectName(), "Command1");
        Dialogue::press(Qt::Key_Space);
        EXPECT_FALSE(window.isVisible());
    });
    for (const char* line : {" untitled.b50 for Mig Alley\r\n", " by Ned\r\n", " one\r\n", " two\r\n"})
        EXPECT_NE(t.joystick().find(line), std::string::npos) << t.joystick();
}

TEST(TitleView, ReturnInALineWritesTheTitleAndEscapeDoesNot)
{
    Dialogue t;
    t.run(t.menus().mnuInsertTitle, [](QWidget&) { Dialogue::press(Qt::Key_Escape); });
    EXPECT_EQ(t.joystick(), "");
    t.run(t.menus().mnuInsertTitle, [](QWidget&) { Dialogue::press(Qt::Key_Return); });
    EXPECT_TRUE(t.joystick().starts_with("Rem ####"));
}

TEST(HeadingView, StaysOnTopAndTakesANameOfTheList)
{
    Dialogue t;
    t.editor().TabStrip1.Select(2);
    t.run(t.menus().mnuInsertHeading, [](QWidget& window) {
        EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
        EXPECT_EQ(Dialogue::child<QComboBox>(window, "Combo1").count(), 56);
        EXPECT_EQ(Dialogue::child<QComboBox>(window, "Combo1").currentText(), "");
        Dialogue::press(Qt::Key_Down);
        Dialogue::press(Qt::Key_Down);
        Dialogue::press(Qt::Key_Return);
    });
    EXPECT_NE(t.macro().find("Rem Communications\r\n"), std::string::npos) << t.macro();
}

TEST(HeadingView, TakesANameOfTheUsersOwnJustAsItIsWritten)
{
    Dialogue t;
    t.editor().TabStrip1.Select(2);
    t.run(t.menus().mnuInsertHeading, [](QWidget&) {
        Dialogue::type("view");
        Dialogue::press(Qt::Key_Return);
    });
    EXPECT_NE(t.macro().find("Rem view\r\n"), std::string::npos) << t.macro();
}

TEST(HeadingView, OfSeveralPastedLinesTheFirstIsTheHeading)
{
    Dialogue t;
    t.editor().TabStrip1.Select(2);
    QApplication::clipboard()->setText("Guns\r\nfire = f");
    t.run(t.menus().mnuInsertHeading, [](QWidget&) {
        Dialogue::press(Qt::Key_V, Qt::ControlModifier);
        Dialogue::press(Qt::Key_Return);
    });
    EXPECT_NE(t.macro().find("Rem Guns\r\nRem -"), std::string::npos) << t.macro();
    EXPECT_EQ(t.macro().find("fire"), std::string::npos);
}

TEST(HeadingView, CancelAndEscapeInsertNothing)
{
    Dialogue t;
    t.editor().TabStrip1.Select(2);
    t.run(t.menus().mnuInsertHeading, [](QWidget& window) {
        Dialogue::type("view");
        QTest::mouseClick(&Dialogue::child<QPushButton>(window, "Command1_1"), Qt::LeftButton);
    });
    t.run(t.menus().mnuInsertHeading, [](QWidget&) { Dialogue::press(Qt::Key_Escape); });
    EXPECT_EQ(t.macro(), "");
}

TEST(SingleTextView, ReturnInsertsTheStatementAndTheTickDecidesOnTheLineEnd)
{
    Dialogue t;
    t.run(t.menus().mnuInsertRemStatement, [](QWidget& window) {
        EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
        auto& tick = Dialogue::child<QCheckBox>(window, "CheckAddCR");
        EXPECT_TRUE(tick.isChecked());
        Dialogue::type("eject");
        Dialogue::press(Qt::Key_Tab);
        ASSERT_EQ(Dialogue::focused(), &tick);
        Dialogue::press(Qt::Key_Space);
        Dialogue::press(Qt::Key_Backtab);
        Dialogue::press(Qt::Key_Return);
    });
    EXPECT_EQ(t.joystick(), "Rem  eject");
}

TEST(SingleTextView, TypingInTheMiddleGoesOnAtTheEnd)
{
    Dialogue t;
    t.run(t.menus().mnuInsertRemStatement, [](QWidget&) {
        Dialogue::type("ac");
        Dialogue::press(Qt::Key_Home);
        Dialogue::type("xy");
        Dialogue::press(Qt::Key_Return);
    });
    EXPECT_EQ(t.joystick(), "Rem  xacy\r\n");
}

TEST(SingleTextView, EscapeInsertsNothing)
{
    Dialogue t;
    t.run(t.menus().mnuInsertRemStatement, [](QWidget&) {
        Dialogue::type("eject");
        Dialogue::press(Qt::Key_Escape);
    });
    EXPECT_EQ(t.joystick(), "");
}

} // namespace
} // namespace tarvex
