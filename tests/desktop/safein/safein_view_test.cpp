#include "desktop/safein/safein_view.h"

#include "desktop/platform/native_keys.h"
#include "desktop/program/mum_window.h"
#include "desktop/safein/key_button.h"
#include "desktop/safein/key_pad_view.h"
#include "safein/keys/key_table.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The program with its windows and Safein open over it, used by keys and mouse alone.
struct SafeinViewTest : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    RAWform& safein = t.program().safein;

    SafeinViewTest()
    {
        window.showNormal();
        events();
        t.menus().mnuInsertRAW.Click();
        events();
    }
    static void events() { QApplication::processEvents(); }
    QWidget* form() { return window.findChild<QWidget*>("RAWform"); }
    template <typename Widget> Widget* get(const QString& name)
    {
        auto* widget = form()->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }
    KeyButton* key(const char* name)
    {
        return get<KeyButton>(QStringLiteral("Command1_%1").arg(keyNamed(name)->index));
    }
    void click(const QString& name)
    {
        QTest::mouseClick(get<QAbstractButton>(name), Qt::LeftButton);
        events();
    }
    QString text(const QString& name) { return get<QLineEdit>(name)->text(); }
    std::string joystick() { return std::string(t.editor().JoystickText.Text()); }
    /// A real key at the place of a drawn one, into whatever has the keyboard.
    void pressReal(const char* name, int qtKey, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QWidget* control = form()->focusWidget() != nullptr ? form()->focusWidget() : form();
        const quint32 code = nativeCodeOf(keyNamed(name)->index);
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, qtKey, held, code, 0, 0);
            QApplication::sendEvent(control, &event);
        }
        events();
    }
};

TEST_F(SafeinViewTest, DrawsAllKeysWithTheirCaptionsAndSpokenNames)
{
    EXPECT_EQ(form()->findChildren<KeyButton*>().size(), 101);
    EXPECT_EQ(key("LSFT")->text(), "Shift");
    EXPECT_EQ(key("LSFT")->accessibleName(), "Left Shift");
    EXPECT_EQ(key("KP5")->accessibleName(), "Keypad 5");
    EXPECT_GT(key("SPC")->width(), 5 * key("a")->width());
    EXPECT_GT(key("KP+")->height(), 3 * key("a")->height() / 2);
}

TEST_F(SafeinViewTest, AClickOnAKeyShowsItsTextsAndEnterInsertsTheName)
{
    QTest::mouseClick(key("a"), Qt::LeftButton);
    events();
    EXPECT_EQ(text("SyntaxText"), "a");
    EXPECT_EQ(text("RCombinedText"), "#1C #F0 #1C");
    EXPECT_EQ(form()->focusWidget(), get<QWidget>("CommandPasteJ_0"));
    QTest::keyClick(form()->focusWidget(), Qt::Key_Return);
    events();
    EXPECT_EQ(joystick(), "a\r\n");
    EXPECT_EQ(text("SyntaxText"), "");
}

TEST_F(SafeinViewTest, ShiftShowsTheOtherCapsAndStaysDown)
{
    click("ToggleButton1");
    EXPECT_TRUE(get<QAbstractButton>("ToggleButton1")->isChecked());
    EXPECT_EQ(key("a")->text(), "A");
    EXPECT_EQ(key("7")->text(), "&&") << "shown as one";
    EXPECT_FALSE(key("LSFT")->isEnabled());
    click("ToggleButton1");
    EXPECT_FALSE(get<QAbstractButton>("ToggleButton1")->isChecked());
    EXPECT_EQ(key("a")->text(), "a");
}

TEST_F(SafeinViewTest, ArrowKeysMoveOnThePadAndPassKeysThatCannotBePressed)
{
    click("ToggleButton1");
    key("CAPS")->setFocus();
    QTest::keyClick(key("CAPS"), Qt::Key_Right);
    EXPECT_EQ(form()->focusWidget(), key("a"));
    QTest::keyClick(key("a"), Qt::Key_Down);
    EXPECT_EQ(form()->focusWidget(), key("z"));
    QTest::keyClick(key("z"), Qt::Key_Left);
    EXPECT_EQ(form()->focusWidget(), key("z")) << "Shift is held, and nothing is left of its key";
    QTest::keyClick(key("z"), Qt::Key_Space);
    EXPECT_EQ(text("SyntaxText"), "SHF z");
}

TEST_F(SafeinViewTest, ThePadIsOneStopOfTheTabKey)
{
    const auto stops = [this] {
        return std::ranges::count_if(form()->findChildren<KeyButton*>(),
                                     [](const KeyButton* key) { return key->focusPolicy() & Qt::TabFocus; });
    };
    EXPECT_EQ(stops(), 1);
    key("KP5")->setFocus();
    EXPECT_EQ(stops(), 1);
    EXPECT_TRUE(key("KP5")->focusPolicy() & Qt::TabFocus);
}

TEST_F(SafeinViewTest, TypedTextReachesTheStateAndEnterInsertsItsField)
{
    auto* field = get<QLineEdit>("TotalCombinedText");
    field->setFocus();
    events();
    QTest::keyClicks(field, "/T a");
    EXPECT_EQ(safein.TotalCombinedText.Text.get(), "/T a");
    QTest::keyClick(field, Qt::Key_Return);
    events();
    EXPECT_EQ(joystick(), "/T a\r\n");
}

TEST_F(SafeinViewTest, AStatementOfAHundredThousandCharactersIsNotCut)
{
    safein.TotalCombinedText.Text = std::string(100'000, 'x');
    EXPECT_EQ(text("TotalCombinedText").size(), 100'000);
    EXPECT_EQ(safein.TotalCombinedText.Text.get().size(), 100'000U);
}

TEST_F(SafeinViewTest, CtrlKeysGoToTheProgramButEditTheFieldOfCodesToRead)
{
    int pastes = 0;
    t.menus().mnuEditPaste.handler = [&pastes] { ++pastes; };
    t.menus().mnuEditPaste.Enabled = true;
    auto* statement = get<QLineEdit>("TotalCombinedText");
    statement->setFocus();
    QTest::keyClick(statement, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pastes, 1);
    auto* read = get<QLineEdit>("RawToRead");
    read->setFocus();
    QTest::keyClick(read, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(pastes, 1);
    read->clear(); // of whatever the clipboard held
    QTest::keyClicks(read, "#1C");
    EXPECT_EQ(get<QLabel>("RawKeys")->text(), "a down; stays down: a");
}

TEST_F(SafeinViewTest, EscHidesAndF4Minimises)
{
    QTest::keyClick(form(), Qt::Key_Escape);
    EXPECT_FALSE(form()->isVisible());
    EXPECT_EQ(safein.WindowOpen, 1);
    t.menus().mnuInsertRAW.Click();
    events();
    EXPECT_TRUE(form()->isVisible());
    form()->close();
    EXPECT_EQ(safein.WindowOpen, 0);
}

TEST_F(SafeinViewTest, MenusAreThoseOfTheLogic)
{
    auto* extended = get<QAction>("mnuUseExtendedRAW");
    EXPECT_FALSE(get<QWidget>("ToggleButton4")->isVisible());
    extended->trigger();
    EXPECT_TRUE(get<QWidget>("ToggleButton4")->isVisible());
    EXPECT_TRUE(extended->isChecked());
}

// ---- capture ------------------------------------------------------------------------------------------------------

TEST_F(SafeinViewTest, WhileCapturingARealKeyIsLookedUpByItsPlace)
{
    click("Capture");
    pressReal("z", Qt::Key_Y); // as on a German keyboard
    EXPECT_EQ(text("SyntaxText"), "z");
    EXPECT_TRUE(key("z")->isLit());
    pressReal("TAB", Qt::Key_Tab);
    EXPECT_EQ(text("SyntaxText"), "TAB");
    EXPECT_FALSE(key("z")->isLit());
    pressReal("F2", Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(text("SyntaxText"), "SHF F2");
    pressReal("ENT", Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(text("SyntaxText"), "ALT ENT");
    pressReal("ESC", Qt::Key_Escape);
    EXPECT_EQ(text("SyntaxText"), "ESC");
    EXPECT_EQ(joystick(), "");
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(SafeinViewTest, CtrlEscEndsCapturing)
{
    click("Capture");
    EXPECT_TRUE(safein.Capture.isHeld());
    pressReal("ESC", Qt::Key_Escape, Qt::ControlModifier);
    EXPECT_FALSE(safein.Capture.isHeld());
    EXPECT_TRUE(form()->isVisible());
    EXPECT_FALSE(get<QAbstractButton>("Capture")->isChecked());
}

TEST_F(SafeinViewTest, SignsOfTheUsersLayoutStandBesideOtherLabels)
{
    ASSERT_TRUE(form()->isActiveWindow());
    events(); // the display's own signs, which are read when the window becomes active
    KeyboardSigns german;
    const auto at = [](const char* name) { return static_cast<std::size_t>(keyNamed(name)->index); };
    german.plain[at("y")] = "z";
    german.shifted[at("y")] = "Z";
    german.plain[at("a")] = "a";
    german.plain[at("SPC")] = "x";
    get<KeyPadView>("KeyPad")->showSigns(german);
    EXPECT_EQ(key("y")->secondSign(), "z");
    EXPECT_EQ(key("y")->accessibleDescription(), "z on your keyboard");
    EXPECT_EQ(key("a")->secondSign(), "");
    EXPECT_EQ(key("SPC")->secondSign(), "") << "writes no sign";
    click("ToggleButton1");
    EXPECT_EQ(key("y")->secondSign(), "Z");
}

TEST(NativeKeys, EveryDrawnKeyHasACodeOfItsOwn)
{
    for (const Key& key : keyTable()) EXPECT_EQ(keyOfNativeCode(nativeCodeOf(key.index)), key.index) << key.index;
    EXPECT_EQ(nativeCodeOf(54), 0U);
    for (const quint32 none : {0U, 8U, 94U, 133U, 255U, 256U, 100000U}) EXPECT_EQ(keyOfNativeCode(none), -1) << none;
}

} // namespace
} // namespace tarvex
