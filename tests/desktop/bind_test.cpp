#include "desktop/bind.h"

#include "desktop/toggle_view.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Controls in a window that has the keyboard. What the user does with them is counted in `clicks`.
struct BindingsTest : testing::Test {
    QWidget window;
    Bindings bindings;
    int clicks = 0;

    std::function<void()> counted()
    {
        return [this] { ++clicks; };
    }
    void showWindow()
    {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }
    static void key(QWidget& widget, Qt::Key key) { QTest::keyClick(&widget, key); }
};

TEST_F(BindingsTest, AButtonShowsItsStateAndRunsItsHandlerOncePerClick)
{
    Button state;
    state.Caption = "&Go";
    state.ToolTipText = "goes";
    state.handler = counted();
    auto* button = new QPushButton(&window);
    bindings.button(state, *button);
    showWindow();
    EXPECT_EQ(button->text(), QString("&Go"));
    EXPECT_EQ(button->toolTip(), QString("goes"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    state.Caption = "Stop";
    state.ToolTipText = "stops";
    state.Enabled = false;
    EXPECT_EQ(button->text(), QString("Stop"));
    EXPECT_EQ(button->toolTip(), QString("stops"));
    EXPECT_FALSE(button->isEnabled());
    state.Visible = false;
    EXPECT_TRUE(button->isHidden());
    state.Enabled = true;
    state.Visible = true;
    state.SetFocus();
    EXPECT_TRUE(button->hasFocus());
}

TEST_F(BindingsTest, TheKeysOfAButtonsCaptionClickItAtOnceEachTime)
{
    Button state;
    state.Caption = "&Go";
    state.handler = counted();
    auto* button = new QPushButton(&window);
    bindings.button(state, *button);
    showWindow();
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(clicks, 2);
}

TEST_F(BindingsTest, KeysThatTwoButtonsHaveClickNone)
{
    Button one;
    one.Caption = "&Go";
    one.handler = counted();
    Button other;
    other.Caption = "&Get";
    other.handler = counted();
    bindings.button(one, *new QPushButton(&window));
    bindings.button(other, *new QPushButton(&window));
    showWindow();
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(clicks, 0);
}

// ---- combo boxes ----------------------------------------------------------------------------------------------------

TEST_F(BindingsTest, AComboBoxShowsItemsAndChoiceAndSetsTheUsersChoice)
{
    ComboBox state;
    state.Items = {"a", "b", "c"};
    state.Text = "b";
    state.ToolTipText = "letters";
    state.Click = counted();
    auto* box = new QComboBox(&window);
    bindings.comboBox(state, *box);
    showWindow();
    EXPECT_EQ(box->count(), 3);
    EXPECT_EQ(box->currentText(), QString("b"));
    EXPECT_EQ(box->toolTip(), QString("letters"));
    state.SetFocus();
    EXPECT_TRUE(box->hasFocus());
    key(*box, Qt::Key_Down);
    EXPECT_EQ(state.Text.get(), "c");
    EXPECT_EQ(clicks, 1);
    state.Text = "a";
    EXPECT_EQ(box->currentIndex(), 0);
    EXPECT_EQ(clicks, 1) << "the program chose it";
}

TEST_F(BindingsTest, AComboBoxShowsATextThatIsNoneOfItsItems)
{
    ComboBox state;
    state.Items = {"a"};
    state.Text = "other";
    auto* box = new QComboBox(&window);
    bindings.comboBox(state, *box);
    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->placeholderText(), QString("other"));
    state.Items = {"x", "other"};
    EXPECT_EQ(box->currentIndex(), 1);
    EXPECT_EQ(box->count(), 2);
}

TEST_F(BindingsTest, WithoutAHandlerAChoiceOnlySetsTheText)
{
    ComboBox state;
    state.Items = {"a", "b"};
    state.Text = "a";
    auto* box = new QComboBox(&window);
    bindings.comboBox(state, *box);
    showWindow();
    key(*box, Qt::Key_Down);
    EXPECT_EQ(state.Text.get(), "b");
}

TEST_F(BindingsTest, AnEditableComboBoxTakesWhatIsWrittenAndKeepsItWhenItsItemsChange)
{
    ComboBox state;
    state.Items = {"a", "b"};
    state.Click = counted();
    auto* box = new QComboBox(&window);
    box->setEditable(true);
    bindings.comboBox(state, *box);
    showWindow();
    box->setFocus();
    QTest::keyClicks(box, "b");
    EXPECT_EQ(state.Text.get(), "b");
    state.Items = {"x", "b", "y"};
    EXPECT_EQ(box->currentText(), QString("b"));
    EXPECT_EQ(state.Text.get(), "b");
    EXPECT_EQ(box->currentIndex(), 1) << "where the arrow keys go on from";
    key(*box, Qt::Key_Down);
    EXPECT_EQ(state.Text.get(), "y");
    EXPECT_EQ(clicks, 1);
    state.Text = "by the program";
    EXPECT_EQ(box->currentText(), QString("by the program"));
    EXPECT_EQ(clicks, 1);
    state.SelectAll();
    EXPECT_EQ(box->lineEdit()->selectedText(), QString("by the program"));
}

TEST_F(BindingsTest, TextThatIsAlreadyWrittenLeavesTheCaretWhereItIs)
{
    ComboBox state;
    auto* box = new QComboBox(&window);
    box->setEditable(true);
    bindings.comboBox(state, *box);
    TextBox lineState;
    auto* line = new QLineEdit(&window);
    bindings.textBox(lineState, *line);
    showWindow();
    QTest::keyClicks(box, "abc");
    key(*box, Qt::Key_Home);
    QTest::keyClicks(box, "x");
    EXPECT_EQ(box->lineEdit()->cursorPosition(), 1);
    QTest::keyClicks(line, "abc");
    key(*line, Qt::Key_Home);
    QTest::keyClicks(line, "x");
    EXPECT_EQ(line->cursorPosition(), 1);
    EXPECT_EQ(lineState.Text.get(), "xabc");
}

// ---- lines, ticks and choices ---------------------------------------------------------------------------------------

TEST_F(BindingsTest, ATextBoxFollowsItsStateAndTheUser)
{
    TextBox state;
    state.Text = "first";
    state.ToolTipText = "a tip";
    auto* line = new QLineEdit(&window);
    bindings.textBox(state, *line);
    showWindow();
    EXPECT_EQ(line->text(), QString("first"));
    EXPECT_EQ(line->toolTip(), QString("a tip"));
    state.SetFocus();
    EXPECT_TRUE(line->hasFocus());
    state.SelectAll();
    QTest::keyClicks(line, "second");
    EXPECT_EQ(state.Text.get(), "second");
    state.Text = "third";
    EXPECT_EQ(line->text(), QString("third"));
    state.Enabled = false;
    EXPECT_FALSE(line->isEnabled());
    state.ToolTipText = "another";
    EXPECT_EQ(line->toolTip(), QString("another"));
}

TEST_F(BindingsTest, ACheckBoxHasTheUsersTickInItsStateWhenItsHandlerRuns)
{
    CheckBox state;
    state.Caption = "tick";
    state.ToolTipText = "a tip";
    std::optional<bool> seen;
    state.Click = [&] { seen = state.Value; };
    auto* box = new QCheckBox(&window);
    bindings.checkBox(state, *box);
    showWindow();
    EXPECT_EQ(box->text(), QString("tick"));
    EXPECT_EQ(box->toolTip(), QString("a tip"));
    key(*box, Qt::Key_Space);
    EXPECT_EQ(seen, true);
    key(*box, Qt::Key_Space);
    EXPECT_EQ(seen, false);
    seen.reset();
    state.Value = true;
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(seen, std::nullopt) << "the program ticked it";
    state.Enabled = false;
    EXPECT_FALSE(box->isEnabled());
    CheckBox plain;
    auto* another = new QCheckBox(&window);
    bindings.checkBox(plain, *another);
    another->click();
    EXPECT_TRUE(plain.Value);
}

TEST_F(BindingsTest, OptionButtonsLeaveTheChoiceToTheLogic)
{
    OptionButton one;
    OptionButton other;
    one.Caption = "one";
    one.ToolTipText = "a tip";
    one.Value = true;
    other.Click = counted();
    auto* first = new QRadioButton(&window);
    auto* second = new QRadioButton(&window);
    bindings.optionButton(one, *first);
    bindings.optionButton(other, *second);
    showWindow();
    EXPECT_EQ(first->text(), QString("one"));
    EXPECT_EQ(first->toolTip(), QString("a tip"));
    EXPECT_TRUE(first->isChecked());
    second->click();
    EXPECT_EQ(clicks, 1);
    one.Value = false;
    other.Value = true;
    EXPECT_TRUE(second->isChecked());
    EXPECT_FALSE(first->isChecked());
    first->click();
    EXPECT_EQ(clicks, 1) << "the first has no handler";
}

TEST_F(BindingsTest, AToggleIsDownWhileItsStateSaysSoWhateverTheClickDid)
{
    ToggleLabel state;
    state.Caption = "toggle";
    state.ToolTipText = "a tip";
    state.Click = counted();
    auto* button = new QPushButton(&window);
    bindToggle(state, *button, bindings);
    showWindow();
    EXPECT_EQ(button->text(), QString("toggle"));
    EXPECT_EQ(button->toolTip(), QString("a tip"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(button->isChecked());
    state.hold(true);
    EXPECT_TRUE(button->isChecked());
    EXPECT_EQ(button->palette().color(QPalette::Button), toQt(ToggleLabel::heldColour));
    EXPECT_EQ(button->palette().color(QPalette::ButtonText), QColor(Qt::black));
    state.hold(false);
    EXPECT_EQ(button->palette().color(QPalette::Button), window.palette().color(QPalette::Button));
    state.Visible = false;
    EXPECT_TRUE(button->isHidden());
}

// ---- tabs and pages -------------------------------------------------------------------------------------------------

TEST_F(BindingsTest, TabsAreNumberedFromOneAndTheUsersSelectionRunsClick)
{
    TabStrip state(2);
    state.Tabs(1).Caption = "one";
    state.SelectedItem = 2;
    state.Click = counted();
    auto* tabs = new QTabWidget(&window);
    tabs->addTab(new QWidget, QString());
    tabs->addTab(new QWidget, QString());
    bindings.tabs(state, *tabs);
    EXPECT_EQ(tabs->tabText(0), QString("one"));
    EXPECT_EQ(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(0); // as the user does
    EXPECT_EQ(state.SelectedItem, 1);
    EXPECT_EQ(clicks, 1);
    state.Tabs(2).Caption = "two";
    EXPECT_EQ(tabs->tabText(1), QString("two"));
    state.SelectedItem = 2;
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(clicks, 1) << "the program selected it";
}

TEST_F(BindingsTest, PagesAreNumberedFromNoughtAndFollowTheirState)
{
    SSTab state{"one", "two", "three"};
    state.Tab = 1;
    state.Click = counted();
    auto* tabs = new QTabWidget(&window);
    for (int i = 0; i < 3; ++i) tabs->addTab(new QWidget, QString());
    bindings.pages(state, *tabs);
    EXPECT_EQ(tabs->tabText(2), QString("three"));
    EXPECT_EQ(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(2); // as the user does
    EXPECT_EQ(state.Tab, 2);
    EXPECT_EQ(clicks, 1);
    state.Tab = 0;
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_EQ(clicks, 1) << "the program chose it";
    state.Pages(1).Caption = "second";
    state.Pages(1).Enabled = false;
    state.Pages(2).Visible = false;
    EXPECT_EQ(tabs->tabText(1), QString("second"));
    EXPECT_FALSE(tabs->isTabEnabled(1));
    EXPECT_FALSE(tabs->isTabVisible(2));
    state.Click = {};
    state.Pages(1).Enabled = true;
    tabs->setCurrentIndex(1);
    EXPECT_EQ(state.Tab, 1);
}

// ---- lists ----------------------------------------------------------------------------------------------------------

struct ListBindings : BindingsTest {
    ListBox state;
    QListWidget* list = new QListWidget(&window);

    ListBindings()
    {
        state.Items = {"a", "b", "c"};
        state.ListIndex = 1;
        state.Click = counted();
    }
    void click(int row)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }
};

TEST_F(ListBindings, AListShowsEntriesAndChoiceAndRunsClickOnEachChoiceOfTheUser)
{
    state.ToolTipText = "letters";
    bindings.listBox(state, *list);
    showWindow();
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->currentRow(), 1);
    EXPECT_EQ(list->toolTip(), QString("letters"));
    state.SetFocus();
    EXPECT_TRUE(list->hasFocus());
    key(*list, Qt::Key_Down);
    EXPECT_EQ(state.ListIndex, 2);
    EXPECT_EQ(clicks, 1);
    click(0);
    EXPECT_EQ(state.ListIndex, 0);
    EXPECT_EQ(clicks, 2);
    state.ListIndex = 2;
    EXPECT_EQ(list->currentRow(), 2);
    state.Items = {"x", "y", "z", "w"};
    EXPECT_EQ(list->count(), 4);
    EXPECT_EQ(list->item(0)->text(), QString("x"));
    EXPECT_EQ(list->currentRow(), 2);
    state.ListIndex = -1;
    EXPECT_EQ(list->currentRow(), -1);
    EXPECT_EQ(clicks, 2) << "the program did the rest";
    state.Enabled = false;
    state.Visible = false;
    EXPECT_FALSE(list->isEnabled());
    EXPECT_TRUE(list->isHidden());
}

TEST_F(ListBindings, WhereOnlyAClickOrReturnCountsTheArrowKeysOnlyChoose)
{
    bindings.listBox(state, *list, Bindings::Runs::OnClickOrReturn);
    showWindow();
    list->setFocus();
    key(*list, Qt::Key_Down);
    EXPECT_EQ(state.ListIndex, 2);
    EXPECT_EQ(clicks, 0);
    key(*list, Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
    click(0);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(state.ListIndex, 0);
    state.ListIndex = -1;
    key(*list, Qt::Key_Return);
    EXPECT_EQ(clicks, 2) << "nothing is chosen";
}

TEST_F(ListBindings, AListWithoutAHandlerOnlyKeepsTheChoice)
{
    state.Click = {};
    bindings.listBox(state, *list);
    showWindow();
    click(2);
    EXPECT_EQ(state.ListIndex, 2);
}

// ---- progress and clockworks ----------------------------------------------------------------------------------------

TEST_F(BindingsTest, AProgressBarFollowsItsRangeAndItsValue)
{
    ProgressBar state;
    state.Max = 10;
    state.Value = 3;
    auto* bar = new QProgressBar(&window);
    bindings.progressBar(state, *bar);
    EXPECT_TRUE(bar->isHidden());
    EXPECT_EQ(bar->maximum(), 10);
    EXPECT_EQ(bar->value(), 3);
    state.Visible = true;
    EXPECT_FALSE(bar->isHidden());
    state.Max = 20;
    EXPECT_EQ(bar->maximum(), 20);
    state.Value = 15;
    EXPECT_EQ(bar->value(), 15);
    state.Min = 5;
    EXPECT_EQ(bar->minimum(), 5);
}

TEST_F(BindingsTest, ATimerTicksWhileItIsEnabled)
{
    Timer state(1'000'000);
    state.Tick = counted();
    bindings.timer(state, window);
    auto* clockwork = window.findChild<QTimer*>(tickName);
    ASSERT_NE(clockwork, nullptr);
    EXPECT_FALSE(clockwork->isActive());
    EXPECT_EQ(clockwork->interval(), 1'000'000);
    state.Enabled = true;
    EXPECT_TRUE(clockwork->isActive());
    state.Interval = 0;
    QApplication::processEvents();
    EXPECT_GT(clicks, 0);
    state.Tick = {};
    QApplication::processEvents();
    state.Enabled = false;
    EXPECT_FALSE(clockwork->isActive());
}

} // namespace
} // namespace tarvex
