#include "desktop/documents/find/find_and_replace_view.h"

#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The program with its windows and the find window open over it, used by keys and mouse alone.
struct FindView : testing::Test {
    TestProgram t;
    MumWindow window{t.program()};
    Editor& editor = t.editor();
    Pane& joystick = editor.JoystickText;

    FindView()
    {
        joystick.setText("BTN S1 fire\r\nBTN S2 Fire\r\nBTN S3 x");
        window.showNormal();
        window.resize(1000, 700);
        pane().setFocus();
        events();
    }
    static void events() { QApplication::processEvents(); }
    PaneView& pane() { return window.editor().pane(editor.joystick); }
    QWidget* form() { return window.findChild<QWidget*>("FindAndReplace"); }
    template <typename Widget> Widget* get(const char* name)
    {
        events();
        auto* widget = form()->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    /// Near the left edge, where check boxes have their box.
    void click(const char* name)
    {
        auto* button = get<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        events();
    }
    /// Types into the widget that has the keyboard.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        events();
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        events();
    }
    static void type(const QString& text)
    {
        events();
        QTest::keyClicks(QApplication::focusWidget(), text);
    }
    /// The words that the pane shows as selected.
    QString selected()
    {
        events();
        pane().settle();
        return pane().textCursor().selectedText();
    }
};

TEST_F(FindView, IsMadeWhenItIsFirstOpened)
{
    EXPECT_EQ(form(), nullptr);
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_NE(form(), nullptr);
    EXPECT_TRUE(form()->isVisible());
    EXPECT_EQ(form()->windowTitle(), "Find and replace");
    EXPECT_FALSE(static_cast<QDialog*>(form())->isModal());
    EXPECT_TRUE(get<QComboBox>("ComboTextFind")->hasFocus());
}

TEST_F(FindView, TypedTextAndEnterFindTheFirstMatchAndEnterAgainTheNext)
{
    press(Qt::Key_F, Qt::ControlModifier);
    type("fire");
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "fire");
    EXPECT_EQ(pane().textCursor().blockNumber(), 0);
    EXPECT_EQ(get<QPushButton>("Command1")->text(), "&Find next");
    EXPECT_TRUE(get<QPushButton>("Command1")->hasFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "Fire");
    EXPECT_EQ(pane().textCursor().blockNumber(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(t.lastBox().title, "You found 'em all!");
    EXPECT_EQ(get<QPushButton>("Command1")->text(), "&Find first");
    EXPECT_TRUE(get<QComboBox>("ComboTextFind")->hasFocus());
    EXPECT_EQ(get<QComboBox>("ComboTextFind")->lineEdit()->selectedText(), "fire");
}

TEST_F(FindView, TheHistoryIsInTheListAndDoesntCompleteWhatIsTyped)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* combo = get<QComboBox>("ComboTextFind");
    for (const char* text : {"Fire", "BTN", "fi"}) {
        combo->setFocus();
        combo->lineEdit()->selectAll();
        type(QLatin1String(text));
        EXPECT_EQ(combo->currentText(), text);
        EXPECT_EQ(t.program().findAndReplace.ComboTextFind.Text.get(), text);
        press(Qt::Key_Return);
    }
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->itemText(0), "Fire");
    combo->setFocus();
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(t.program().findAndReplace.ComboTextFind.Text.get(), "Fire");
    EXPECT_EQ(get<QPushButton>("Command1")->text(), "&Find first");
}

TEST_F(FindView, AMatchOutOfSightScrollsIntoSightWhileTheWindowHasTheKeyboard)
{
    std::string text;
    for (int i = 0; i < 300; ++i) text += "line\r\n";
    joystick.setText(text + "needle");
    press(Qt::Key_F, Qt::ControlModifier);
    type("needle");
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "needle");
    EXPECT_TRUE(pane().viewport()->rect().contains(pane().cursorRect().center()));
    const QPalette look = pane().palette();
    EXPECT_NE(look.color(QPalette::Inactive, QPalette::Highlight), look.color(QPalette::Inactive, QPalette::Base));
}

TEST_F(FindView, EscapeClosesItAndThePaneIsWrittenToAgain)
{
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_FALSE(form()->isVisible());
    EXPECT_EQ(t.program().shared.FindWindowOpen, 0);
    window.activateWindow();
    press(Qt::Key_X);
    EXPECT_EQ(joystick.Text().substr(0, 4), "xBTN");
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(FindView, TheFramesCloseButtonAndCloseUnloadIt)
{
    press(Qt::Key_F, Qt::ControlModifier);
    form()->close();
    EXPECT_EQ(t.program().shared.FindWindowOpen, 0);
    t.menus().mnuEditFind.Click();
    click("Command2");
    EXPECT_FALSE(form()->isVisible());
}

TEST_F(FindView, ReplaceWritesWhatTheFindSelectedAndLeavesTheKeyboardAtTheSearch)
{
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_FALSE(get<QPushButton>("Command5")->isEnabled());
    type("fire");
    press(Qt::Key_Tab);
    type("chaff");
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "fire");
    EXPECT_TRUE(get<QPushButton>("Command5")->isEnabled());
    click("Command5");
    EXPECT_EQ(joystick.Text().substr(0, 14), "BTN S1 chaff\r\n");
    EXPECT_EQ(pane().document()->firstBlock().text(), "BTN S1 chaff");
    EXPECT_FALSE(get<QPushButton>("Command5")->isEnabled());
    EXPECT_TRUE(get<QPushButton>("Command3")->hasFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), "Fire");
}

TEST_F(FindView, ReplaceAllShowsTheNewTextAndUndoBringsTheOldOneBack)
{
    press(Qt::Key_R, Qt::ControlModifier);
    type("BTN");
    press(Qt::Key_Return);
    auto* with = get<QComboBox>("ComboTextReplaceWith");
    with->setFocus();
    type("USE");
    click("Command6");
    EXPECT_EQ(t.lastBox().text, "2 replacements were made in untitled.b50");
    events();
    EXPECT_EQ(pane().toPlainText(), "USE S1 fire\nUSE S2 Fire\nUSE S3 x");
    t.menus().mnuEditUndo.Click();
    events();
    EXPECT_EQ(pane().toPlainText(), "BTN S1 fire\nBTN S2 Fire\nBTN S3 x");
}

TEST_F(FindView, TabsBringTheirFieldsAndTheirDefaultButtons)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* tabs = get<QTabWidget>("SSTab1");
    EXPECT_EQ(tabs->tabText(0), "Fin&d");
    EXPECT_EQ(tabs->tabText(1), "Re&place");
    EXPECT_EQ(tabs->tabText(2), "G&o to line");
    type("fire");
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(t.program().findAndReplace.SSTab1.SelectedItem, findTab::replace);
    EXPECT_EQ(get<QComboBox>("ComboTextReplaceFind")->currentText(), "fire");
    EXPECT_TRUE(get<QComboBox>("ComboTextReplaceFind")->hasFocus());
    EXPECT_TRUE(get<QPushButton>("Command3")->isDefault());
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(t.program().findAndReplace.SSTab1.SelectedItem, findTab::line);
    EXPECT_TRUE(get<QLineEdit>("LineToFind")->hasFocus());
    EXPECT_TRUE(get<QPushButton>("Command7")->isDefault());
}

TEST_F(FindView, EnterGoesToTheLineAndShowsItWhole)
{
    press(Qt::Key_G, Qt::ControlModifier);
    type("2");
    press(Qt::Key_Return);
    EXPECT_EQ(joystick.SelStart(), 13);
    EXPECT_EQ(joystick.SelLength(), 13);
    EXPECT_TRUE(pane().textCursor().hasSelection());
    get<QLineEdit>("LineToFind")->setText("9");
    press(Qt::Key_Return);
    EXPECT_EQ(t.lastBox().text, "The line number is invalid");
    EXPECT_TRUE(get<QLineEdit>("LineToFind")->hasFocus());
}

TEST_F(FindView, AClickIntoTheLineNumberSelectsItAll)
{
    press(Qt::Key_G, Qt::ControlModifier);
    auto* line = get<QLineEdit>("LineToFind");
    line->setText("123");
    get<QPushButton>("Command7")->setFocus();
    line->deselect();
    QTest::mouseClick(line, Qt::LeftButton);
    events();
    EXPECT_EQ(line->selectedText(), "123");
}

TEST_F(FindView, ChecksAndChoicesReachTheStateAndTheOtherTab)
{
    press(Qt::Key_F, Qt::ControlModifier);
    click("MatchCaseF");
    click("WholeWordF");
    EXPECT_TRUE(get<QCheckBox>("MatchCaseR")->isChecked());
    EXPECT_TRUE(get<QCheckBox>("WholeWordR")->isChecked());
    EXPECT_TRUE(get<QRadioButton>("OptionJoystickF")->isChecked());
    click("OptionMacroF");
    EXPECT_TRUE(get<QRadioButton>("OptionMacroF")->isChecked());
    EXPECT_FALSE(get<QRadioButton>("OptionJoystickF")->isChecked());
    EXPECT_TRUE(t.program().findAndReplace.OptionMacroF.Value);
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(get<QRadioButton>("OptionMacroR")->isChecked());
    EXPECT_FALSE(get<QRadioButton>("OptionJoystickR")->isChecked());
}

TEST_F(FindView, KeepOnTopKeepsTheWindowOpen)
{
    press(Qt::Key_F, Qt::ControlModifier);
    click("Check6");
    events();
    EXPECT_TRUE(form()->isVisible());
    EXPECT_TRUE(form()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(get<QCheckBox>("Check8")->isChecked());
    click("Check6");
    EXPECT_FALSE(form()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(form()->isVisible());
}

TEST_F(FindView, EveryFieldHasAnAccessKeyThatNoOtherOfItsTabHas)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* tabs = get<QTabWidget>("SSTab1");
    for (int tab = 0; tab < tabs->count(); ++tab) {
        std::vector<QKeySequence> keys{get<QPushButton>("Command10")->shortcut()};
        for (const auto* button : tabs->widget(tab)->findChildren<QAbstractButton*>())
            keys.push_back(button->shortcut());
        for (const auto* label : tabs->widget(tab)->findChildren<QLabel*>()) {
            EXPECT_NE(label->buddy(), nullptr);
            keys.push_back(QKeySequence::mnemonic(label->text()));
        }
        for (std::size_t i = 0; i < keys.size(); ++i) {
            EXPECT_FALSE(keys[i].isEmpty());
            for (std::size_t k = 0; k < i; ++k) EXPECT_NE(keys[i], keys[k]) << keys[i].toString().toStdString();
        }
    }
}

// ---- access keys and what comes into sight --------------------------------------------------------------------------

QString accessKeyOf(const QString& caption) { return QKeySequence::mnemonic(caption).toString(); }

TEST_F(FindView, EveryTabAndControlOfAPageHasAnAccessKeyOfItsOwn)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* tabs = get<QTabWidget>("SSTab1");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        events();
        QStringList captions;
        for (int tab = 0; tab < tabs->count(); ++tab) captions << tabs->tabText(tab);
        for (const QLabel* label : form()->findChildren<QLabel*>()) {
            if (label->isVisible()) captions << label->text();
        }
        for (const QAbstractButton* button : form()->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty()) captions << button->text();
        }
        QStringList keys;
        for (const QString& caption : captions) keys << accessKeyOf(caption);
        EXPECT_GE(keys.size(), 8);
        EXPECT_FALSE(keys.contains(QString())) << "page " << page;
        EXPECT_EQ(keys.removeDuplicates(), 0) << captions.join(u' ').toStdString();
    }
}

TEST_F(FindView, TicksAndChoicesTakeTheirKeysAtOnceAndTheKeyboard)
{
    press(Qt::Key_F, Qt::ControlModifier);
    const auto alt = [this](Qt::Key key) { QTest::keyClick(form()->windowHandle(), key, Qt::AltModifier); };
    alt(Qt::Key_S);
    EXPECT_TRUE(get<QCheckBox>("MatchCaseF")->isChecked());
    EXPECT_TRUE(get<QCheckBox>("MatchCaseF")->hasFocus());
    alt(Qt::Key_S);
    EXPECT_FALSE(get<QCheckBox>("MatchCaseF")->isChecked());
    alt(Qt::Key_M);
    EXPECT_TRUE(get<QRadioButton>("OptionMacroF")->isChecked());
    EXPECT_TRUE(get<QRadioButton>("OptionMacroF")->hasFocus());
}

TEST_F(FindView, AltAndALetterGoesToATab)
{
    press(Qt::Key_F, Qt::ControlModifier);
    auto* tabs = get<QTabWidget>("SSTab1");
    EXPECT_EQ(tabs->tabText(0), "Fin&d");
    for (const auto& [key, page] : {std::pair{Qt::Key_P, 1}, std::pair{Qt::Key_O, 2}, std::pair{Qt::Key_D, 0}}) {
        QTest::keyClick(form()->windowHandle(), key, Qt::AltModifier);
        events();
        EXPECT_EQ(tabs->currentIndex(), page);
    }
}

TEST_F(FindView, GotoShowsTheLineWithLinesAroundItAlsoOnTheWayUp)
{
    std::string text;
    for (int line = 1; line <= 200; ++line) text += "BTN S1 line" + std::to_string(line) + "\r\n";
    joystick.setText(text);
    events();
    press(Qt::Key_G, Qt::ControlModifier);
    for (const int wanted : {150, 31, 33, 1, 200}) {
        get<QLineEdit>("LineToFind")->setText(QString::number(wanted));
        get<QPushButton>("Command7")->click();
        events();
        pane().settle();
        EXPECT_EQ(pane().textCursor().selectionStart(), pane().document()->findBlockByNumber(wanted - 1).position());
        for (int line = std::max(1, wanted - 3); line <= std::min(200, wanted + 3); ++line) {
            const QTextCursor start(pane().document()->findBlockByNumber(line - 1));
            EXPECT_TRUE(pane().viewport()->rect().contains(pane().cursorRect(start))) << line << " around " << wanted;
        }
    }
}

} // namespace
} // namespace tarvex
