#include "desktop/safein/safein_view.h"

#include "desktop/platform/native_keys.h"
#include "desktop/program/mum_window.h"
#include "desktop/safein/key_button.h"
#include "desktop/safein/key_pad_view.h"
#include "safein/keys/key_table.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
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
    /// Presses a real key at the place of a drawn one, in the widget that has the keyboard.
    void pressReal(const char* name, int qtKey, Qt::KeyboardModifiers held = Qt::NoModifier, quint32 nativelyHeld = 0)
    {
        QWidget* control = form()->focusWidget() != nullptr ? form()->focusWidget() : form();
        const quint32 code = nativeCodeOf(keyNamed(name)->index);
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, qtKey, held, code, 0, nativelyHeld);
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
    for (const KeyButton* button : form()->findChildren<KeyButton*>())
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->index();
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

TEST_F(SafeinViewTest, OfSeveralPastedLinesTheStatementTakesTheFirstAndTheFieldOfCodesAll)
{
    QApplication::clipboard()->setText("RAW (#1C)\n#F0 #1C");
    get<QLineEdit>("TotalCombinedText")->paste();
    EXPECT_EQ(safein.TotalCombinedText.Text.get(), "RAW (#1C)");
    get<QLineEdit>("RawToRead")->paste();
    EXPECT_NE(safein.RawToRead.Text.get().find("#F0 #1C"), std::string::npos);
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

TEST_F(SafeinViewTest, AMegabyteInTheFieldOfCodesToReadIsReadAndShownCut)
{
    QString codes;
    while (codes.size() < 1'000'000) codes += QStringLiteral("#1C ");
    get<QLineEdit>("RawToRead")->setText(codes);
    events();
    const QString keys = get<QLabel>("RawKeys")->text();
    EXPECT_TRUE(keys.startsWith(QStringLiteral("a down, a down, "))) << keys.left(100).toStdString();
    EXPECT_TRUE(keys.endsWith(QStringLiteral("...; stays down: a"))) << keys.right(100).toStdString();
    EXPECT_LT(keys.size(), 1'000);
}

TEST_F(SafeinViewTest, ItFitsOnASmallScreen)
{
    const QSize least = form()->minimumSizeHint();
    EXPECT_LE(least.width(), 800);
    EXPECT_LE(least.height(), 480);
}

TEST_F(SafeinViewTest, APlaceBeyondTheRealScreenOpensItOnTheScreen)
{
    safein.form.unload();
    events();
    t.setIni("Miscellaneous", "SafeinTop", "15000"); // 1000 pixels, which the logic's screen has
    t.setIni("Miscellaneous", "SafeinLeft", "18000");
    t.menus().mnuInsertRAW.Click();
    events();
    EXPECT_TRUE(form()->screen()->geometry().contains(form()->pos())) << form()->x() << " " << form()->y();
}

TEST_F(SafeinViewTest, TheSignsOfTheKeyboardAreReadAnewWhenTheWindowComesToTheFront)
{
    const QString before = key("a")->accessibleDescription();
    window.activateWindow();
    events();
    events();
    key("a")->setSecondSign("?");
    events();
    EXPECT_EQ(key("a")->accessibleDescription(), "? on your keyboard");
    form()->activateWindow();
    events();
    events();
    EXPECT_EQ(key("a")->accessibleDescription(), before);
}

TEST_F(SafeinViewTest, TheSecondSignOfAKeyStandsAtItsLowerRightAndTheFirstAtItsUpperLeft)
{
    KeyButton alone(1, nullptr);
    KeyButton both(1, nullptr);
    KeyButton none(1, nullptr);
    const auto pictureOf = [](KeyButton& button, const QString& sign, const QString& second) {
        button.resize(60, 60);
        button.setText(sign);
        button.setSecondSign(second);
        return button.grab().toImage();
    };
    const QImage empty = pictureOf(none, "", "");
    const auto paintedIn = [&](const QImage& picture) {
        QRect painted;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) != empty.pixel(x, y)) painted |= QRect(x, y, 1, 1);
        return painted;
    };
    const QRect centred = paintedIn(pictureOf(alone, "a", ""));
    EXPECT_NEAR(centred.center().x(), empty.rect().center().x(), 4);
    const QRect spread = paintedIn(pictureOf(both, "a", "q"));
    EXPECT_LT(spread.left(), centred.left());
    EXPECT_LT(spread.top(), centred.top());
    EXPECT_GT(spread.right(), centred.right() + 8);
    EXPECT_GT(spread.bottom(), centred.bottom() + 8);
}

TEST_F(SafeinViewTest, AKeyGrowsWithTheWindow)
{
    const QSize before = key("a")->size();
    form()->resize(form()->width() * 3 / 2, form()->height() * 2);
    events();
    EXPECT_GT(key("a")->width(), before.width());
    EXPECT_GT(key("a")->height(), before.height());
    EXPECT_NEAR(key("a")->width(), key("a")->height(), 3);
}

TEST_F(SafeinViewTest, F4Minimises)
{
    get<QWidget>("SyntaxText")->setFocus();
    QTest::keyClick(form()->focusWidget(), Qt::Key_F4);
    EXPECT_EQ(safein.form.State, WindowState::Minimised);
    EXPECT_EQ(safein.WindowOpen, 1);
}

TEST_F(SafeinViewTest, EscHidesAndTheFramesCloseButtonUnloads)
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

TEST_F(SafeinViewTest, TheRightAltKeyOfALayoutWithThirdSignsCountsAsAlt)
{
    constexpr quint32 mod5 = 0x80;
    click("Capture");
    pressReal("RALT", Qt::Key_AltGr);
    EXPECT_EQ(text("SyntaxText"), "RALT");
    pressReal("q", Qt::Key_At, Qt::NoModifier, mod5); // the third sign of a German q
    EXPECT_EQ(text("SyntaxText"), "ALT q");
    EXPECT_EQ(text("RMakeText"), "#11 #15");
}

TEST_F(SafeinViewTest, PauseAndPrintScreenAreCaptured)
{
    click("Capture");
    pressReal("Brk", Qt::Key_Pause);
    EXPECT_EQ(text("RMakeText"), "#E1 #14 #77 #E1 #F0 #14 #F0 #77");
    pressReal("Prt", Qt::Key_Print);
    EXPECT_EQ(text("SyntaxText"), "not supported");
    EXPECT_TRUE(key("Prt")->isLit());
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
