#include "desktop/documents/window/macro_frame_view.h"

#include "desktop/documents/text/pane_view.h"
#include "desktop/documents/window/check_list_model.h"
#include "desktop/documents/window/macro_list_view.h"
#include "language/commands/update_macros.h"
#include "support/test_program.h"

#include <QApplication>
#include <QComboBox>
#include <QDrag>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* prompt = "Select a macro heading to view the macros under it";

/// The frame and the joystick pane in a window, with the macros of a file: Fire, Gear and, under "Brakes", Stop and Go.
struct FrameViewTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FrameMacros& frame = editor.FrameMacros;
    QWidget window;
    PaneView pane{editor.JoystickText, &window};
    MacroFrameView view{editor, &window};
    MacroListView* list = dynamic_cast<MacroListView*>(view.findChild<QWidget*>("List1"));
    QComboBox* headings = view.findChild<QComboBox*>("Combo1");

    FrameViewTest()
    {
        t.files.addFile("c:\\a\\x.b50", "e Stop Gear \r\n");
        t.files.addFile("c:\\a\\x.m50",
                        "Fire = f\r\nGear = g\r\nRem ----\r\nRem BRAKES\r\nRem ----\r\nStop = s\r\nGo = o\r\n");
        t.settings().CheckIdentifyOK = 0;
        t.openBoth("c:\\a\\x.b50");
        editor.status("");
        window.resize(800, 400);
        view.setGeometry(0, 0, 185, 400);
        pane.setGeometry(200, 0, 600, 400);
        window.show();
        QApplication::processEvents();
    }
    QRect item(int row) { return list->visualRect(list->model()->index(row, 0)); }
    /// On the name, right of the tick.
    QPoint name(int row) { return item(row).center(); }
    QPoint tick(int row) { return {item(row).left() + 8, item(row).center().y()}; }
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(list->viewport(), button, keys, at);
    }
    void move(QPoint at, Qt::MouseButtons buttons = {}, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, at, list->viewport()->mapToGlobal(at), Qt::NoButton, buttons, keys);
        QApplication::sendEvent(list->viewport(), &event);
    }
    bool ticked(int row, std::size_t of = 0)
    {
        return frame.List1[of].Items.get()[static_cast<std::size_t>(row)].Selected;
    }
    QPushButton* button(int index) { return view.findChild<QPushButton*>(QString("Command1_%1").arg(index)); }
};

// ---- Combo1 ---------------------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, HeadingChosenShowsItsMacrosAndPicksTheFirst)
{
    ASSERT_EQ(headings->count(), 2);
    EXPECT_EQ(headings->currentText(), "All");
    EXPECT_EQ(list->model()->rowCount(), 4);
    headings->setFocus();
    QTest::keyClick(headings, Qt::Key_Down);
    EXPECT_EQ(headings->currentText(), "Brakes");
    EXPECT_EQ(list->model()->rowCount(), 2);
    EXPECT_EQ(list->model()->index(0, 0).data().toString(), "Stop");
    EXPECT_EQ(list->currentIndex().row(), 0);
    EXPECT_EQ(t.status(), "Stop = s");
}

TEST_F(FrameViewTest, KeyboardOrMouseOverTheHeadingsShowsThePrompt)
{
    headings->setFocus();
    EXPECT_EQ(t.status(), prompt);
    editor.status("");
    frame.MousePointer = MousePointer::SizeWestEast;
    QMouseEvent event(QEvent::MouseMove, QPointF(9, 9), headings->mapToGlobal(QPointF(9, 9)), Qt::NoButton,
                      Qt::NoButton, {});
    QApplication::sendEvent(headings, &event);
    EXPECT_EQ(t.status(), prompt);
    EXPECT_EQ(frame.MousePointer, MousePointer::Default);
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(FrameViewTest, PopUpOfTheHeadingsThatClosesLeavesTheStatusAlone)
{
    editor.status("Stop = s");
    QFocusEvent event(QEvent::FocusIn, Qt::PopupFocusReason);
    QApplication::sendEvent(headings, &event);
    EXPECT_EQ(t.status(), "Stop = s");
}

// ---- List1: mouse ---------------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, ClickPicksTheMacroAndShowsItsKeys)
{
    click(name(1));
    EXPECT_EQ(frame.List1[0].ListIndex, 1);
    EXPECT_EQ(editor.macros.SelectedMacro, "Gear");
    EXPECT_EQ(t.status(), "Gear = g");
    EXPECT_FALSE(ticked(1));
}

TEST_F(FrameViewTest, ClickWithShiftSelectsWhereTheMacroIsUsed)
{
    click(name(1), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(editor.JoystickText.SelText(), "Gear");
    click(name(2), Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(editor.JoystickText.SelText(), "Gear") << "Shift alone counts";
    EXPECT_EQ(frame.List1[0].ListIndex, 2);
}

TEST_F(FrameViewTest, ClickWithCtrlKeepsTheMacroPicked)
{
    click(name(1), Qt::LeftButton, Qt::ControlModifier);
    click(name(1), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(frame.List1[0].ListIndex, 1);
    EXPECT_TRUE(list->selectionModel()->isSelected(list->currentIndex()));
}

TEST_F(FrameViewTest, RightClickPicksTheMacroAndPopsUpTheListMenu)
{
    click(name(2), Qt::RightButton);
    EXPECT_EQ(editor.macros.SelectedMacro, "Stop");
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuRHList"});
    t.menus().mnuRHListInsert.Click();
    EXPECT_EQ(editor.JoystickText.Text().substr(0, 5), "Stop ");
}

TEST_F(FrameViewTest, MenuKeyPopsUpTheListMenuOnceAndTheMouseNotTwice)
{
    click(name(2), Qt::RightButton);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, name(2), QPoint());
    QApplication::sendEvent(list->viewport(), &byMouse);
    EXPECT_EQ(t.dialogues.popUps.size(), 1U);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, name(2), QPoint());
    QApplication::sendEvent(list->viewport(), &byKey);
    EXPECT_EQ(t.dialogues.popUps.size(), 2U);
}

TEST_F(FrameViewTest, DoubleClickInsertsTheMacroOnce)
{
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, name(3));
    EXPECT_EQ(editor.JoystickText.Text(), "Go e Stop Gear \r\n");
    QTest::mouseDClick(list->viewport(), Qt::RightButton, {}, name(3));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, item(3).center() + QPoint(0, 2 * item(3).height()));
    EXPECT_EQ(editor.JoystickText.Text(), "Go e Stop Gear \r\n") << "other button, and below the last macro";
}

TEST_F(FrameViewTest, ClickOnTheTickTogglesItAndADoubleClickInsertsNothing)
{
    click(tick(1));
    EXPECT_TRUE(ticked(1));
    EXPECT_EQ(t.status(), "Gear = g");
    click(tick(1));
    EXPECT_FALSE(ticked(1));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, tick(1));
    EXPECT_EQ(editor.JoystickText.Text(), "e Stop Gear \r\n");
}

TEST_F(FrameViewTest, IdentifiedMacrosShowTheirTicks)
{
    t.menus().mnuViewIdentify.Click();
    const auto shownTick = [&](int row) { return list->model()->index(row, 0).data(Qt::CheckStateRole).toInt(); };
    EXPECT_EQ(shownTick(0), Qt::Unchecked);
    EXPECT_EQ(shownTick(1), Qt::Checked);
    EXPECT_EQ(shownTick(2), Qt::Checked);
}

TEST_F(FrameViewTest, MouseMoveWithAButtonShowsTheMacroAndOneWithoutDoesNot)
{
    click(name(1));
    editor.status("");
    frame.MousePointer = MousePointer::SizeWestEast;
    move(name(0));
    EXPECT_EQ(t.status(), "");
    EXPECT_EQ(frame.MousePointer, MousePointer::Default);
    move(name(1), Qt::RightButton);
    EXPECT_EQ(t.status(), "Gear = g");
    move(name(1), Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(editor.JoystickText.SelText(), "Gear");
}

TEST_F(FrameViewTest, MouseMoveWithTheSizingPointerIsTheFramesOwn)
{
    frame.MousePointer = MousePointer::SizeWestEast;
    const QPoint at(240, 10);
    move(at, Qt::LeftButton);
    EXPECT_EQ(t.settings().MacroFrameWidth, list->viewport()->mapTo(&view, at).x() + 1);
}

TEST_F(FrameViewTest, DragCarriesTheMacroBetweenBlanksAndADropInsertsItOnce)
{
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, name(1));
    move(name(1) + QPoint(1, 0), Qt::LeftButton);
    EXPECT_EQ(list->findChild<QDrag*>(), nullptr) << "a hand that shakes drags nothing";
    move(name(1) + QPoint(QApplication::startDragDistance() + 2, 0), Qt::LeftButton);
    const auto* drag = list->findChild<QDrag*>();
    ASSERT_NE(drag, nullptr);
    const QString carried = drag->mimeData()->text();
    EXPECT_EQ(carried, " Gear ");
    QMimeData data;
    data.setText(carried);
    pane.takeDrop(data, 1, false);
    EXPECT_EQ(editor.JoystickText.Text(), "e Gear  Stop Gear \r\n");
}

TEST_F(FrameViewTest, TipIsTheListsAndNamesWhatIsCut)
{
    frame.List1[0].Items = {{"Fire", false}, {std::string(200, 'x') + "<b>", false}};
    const auto tipAt = [&](QPoint at) {
        QHelpEvent event(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
        QApplication::sendEvent(list->viewport(), &event);
        return QToolTip::text();
    };
    const QString tip = "Double click macro to insert into Joystick file, or use drag and drop";
    EXPECT_EQ(tipAt(name(0)), tip);
    EXPECT_EQ(tipAt(name(1)), "<b>" + QString(200, u'x') + "&lt;b&gt;</b><br>" + tip);
    EXPECT_EQ(item(1).width(), list->viewport()->width()) << "a long name is cut and doesn't scroll";
}

// ---- List1: keyboard ------------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, ArrowsHomeAndEndPickMacros)
{
    list->setFocus();
    click(name(0));
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(t.status(), "Gear = g");
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_EQ(editor.macros.SelectedMacro, "Go");
    QTest::keyClick(list, Qt::Key_Home);
    EXPECT_EQ(frame.List1[0].ListIndex, 0);
    EXPECT_EQ(t.status(), "Fire = f");
}

TEST_F(FrameViewTest, KeyWithShiftSelectsWhereTheMacroIsUsed)
{
    click(name(0));
    QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(frame.List1[0].ListIndex, 1);
    EXPECT_EQ(editor.JoystickText.SelText(), "Gear");
}

TEST_F(FrameViewTest, ReleasedKeyIsReportedWithTheKeysHeld)
{
    click(name(1));
    editor.status("");
    QTest::keyRelease(list, Qt::Key_F2);
    EXPECT_EQ(t.status(), "Gear = g");
    EXPECT_EQ(editor.JoystickText.SelText(), "");
    QTest::keyRelease(list, Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(editor.JoystickText.SelText(), "Gear");
}

TEST_F(FrameViewTest, SpaceTogglesTheTickAndEnterInserts)
{
    click(name(3));
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_TRUE(ticked(3));
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_FALSE(ticked(3));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(editor.JoystickText.Text(), "Go e Stop Gear \r\n");
}

// ---- List1: the lists -----------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, TicksShowAndToggleBothWays)
{
    frame.List1[0].Items = {{"Flaps", false}, {"Gear", true}};
    QAbstractItemModel* model = list->model();
    EXPECT_EQ(model->rowCount(), 2);
    EXPECT_EQ(model->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_TRUE(ticked(0));
    frame.List1[0].ListIndex = 1;
    EXPECT_EQ(list->currentIndex().row(), 1);
    list->setCurrentIndex(model->index(0, 0));
    EXPECT_EQ(frame.List1[0].ListIndex, 0);
}

TEST_F(FrameViewTest, ListsThatGoWhileOneOfThemIsShownLeaveTheFirst)
{
    frame.Combo1.Text = "Brakes";
    frame.Combo1.Click();
    ASSERT_EQ(list->model()->rowCount(), 2);
    mnuEditUpdateMacros_Click(editor);
    EXPECT_EQ(list->model()->rowCount(), 4);
    EXPECT_EQ(headings->currentText(), "All");
    frame.List1[0].Visible = false;
    EXPECT_EQ(list->model()->rowCount(), 0) << "no list is visible";
}

TEST_F(FrameViewTest, TheFilterGetsItsClearButtonOnlyWhenItIsShown)
{
    const auto* filter = view.findChild<QLineEdit*>(QStringLiteral("Filter"));
    ASSERT_NE(filter, nullptr);
    EXPECT_FALSE(filter->isClearButtonEnabled()) << "its icon is looked for in all themes";
    frame.FilterVisible = true;
    EXPECT_TRUE(filter->isVisibleTo(&view));
    EXPECT_TRUE(filter->isClearButtonEnabled());
}

TEST_F(FrameViewTest, TwoThousandMacrosArriveAsAWhole)
{
    QSignalSpy resets(list->model(), &QAbstractItemModel::modelReset);
    QSignalSpy inserts(list->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changes(list->model(), &QAbstractItemModel::dataChanged);
    std::vector<CheckListBox::Item> items(2000);
    for (std::size_t i = 0; i < items.size(); ++i) items[i].Text = "Macro" + std::to_string(i);
    frame.List1[0].Items = items;
    EXPECT_EQ(list->model()->rowCount(), 2000);
    EXPECT_EQ(resets.count(), 1);
    for (CheckListBox::Item& item : items) item.Selected = true;
    frame.List1[0].Items = items;
    EXPECT_EQ(changes.count(), 1) << "all ticks at once";
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(inserts.count(), 0);
    frame.List1[0].ListIndex = 1999;
    EXPECT_TRUE(list->viewport()->rect().contains(item(1999))) << "the one picked is in sight";
}

// ---- Command1 and the edge ------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, ButtonInsertsItsModifierAndThePaneKeepsTheKeyboard)
{
    pane.setFocus();
    QTest::mouseClick(button(0), Qt::LeftButton);
    EXPECT_EQ(editor.JoystickText.Text(), "/U e Stop Gear \r\n");
    EXPECT_EQ(window.focusWidget(), &pane);
    frame.Command1[5].Caption = "/F";
    EXPECT_EQ(button(5)->text(), "/F");
    frame.Command1[5].Caption = "";
    EXPECT_FALSE(button(5)->isVisible()) << "it has no use";
}

TEST_F(FrameViewTest, PointerOverAButtonShowsWhatItDoes)
{
    frame.MousePointer = MousePointer::SizeWestEast;
    const QPointF at(4, 4);
    QMouseEvent event(QEvent::MouseMove, at, button(12)->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(button(12), &event);
    EXPECT_EQ(t.status(), "Insert the /Q (Ignore initial repeat delay) slash modifier");
    EXPECT_EQ(frame.MousePointer, MousePointer::Default);
}

TEST_F(FrameViewTest, ButtonsStandInThreeFullRowsAndInsideTheFrame)
{
    std::map<int, int> widths;
    for (int index = 0; index < 13; ++index) {
        const QRect place = button(index)->geometry();
        widths[place.top()] += place.width();
        EXPECT_TRUE(view.rect().contains(place)) << index;
        EXPECT_GE(place.width(), button(index)->fontMetrics().horizontalAdvance(button(index)->text()) + 6) << index;
    }
    EXPECT_EQ(widths.size(), 3U);
    EXPECT_GT(button(11)->width(), 2 * button(12)->width());
}

TEST_F(FrameViewTest, EdgeIsMarkedWhereItCanBeDragged)
{
    const QImage picture = view.grab().toImage();
    const QRgb ground = picture.pixel(view.width() - 3, 5);
    bool marked = false;
    for (int y = 0; y < view.height(); ++y) marked = marked || picture.pixel(view.width() - 3, y) != ground;
    EXPECT_TRUE(marked);
}

TEST_F(FrameViewTest, TheEdgeHasSevenDotsAndIsShadedWhileThePointerIsOnIt)
{
    const QRect grip(view.width() - 6, 0, 6, view.height());
    const auto differs = [&](const QColor& ground) {
        const QImage picture = view.grab().toImage();
        int count = 0;
        for (int y = grip.top(); y <= grip.bottom(); ++y)
            for (int x = grip.left(); x <= grip.right(); ++x) count += picture.pixelColor(x, y) != ground;
        return count;
    };
    EXPECT_EQ(differs(view.palette().color(QPalette::Window)), 7 * 4);
    frame.MousePointer = MousePointer::SizeWestEast;
    EXPECT_EQ(view.cursor().shape(), Qt::SizeHorCursor);
    EXPECT_EQ(differs(view.palette().color(QPalette::Window)), grip.width() * grip.height());
    EXPECT_EQ(differs(view.grab().toImage().pixelColor(grip.topLeft())), 7 * 4) << "the dots are darker";
}

TEST_F(FrameViewTest, APointerThatLeavesTheEdgeDragsNothing)
{
    const int before = t.settings().MacroFrameWidth;
    const QPointF at(view.width() - 2, 50);
    QMouseEvent over(QEvent::MouseMove, at, view.mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(&view, &over);
    EXPECT_EQ(frame.MousePointer, MousePointer::SizeWestEast);
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(&view, &left);
    EXPECT_EQ(frame.MousePointer, MousePointer::Default);
    EXPECT_EQ(t.settings().MacroFrameWidth, before);
}

// ---- the filter -----------------------------------------------------------------------------------------------------

struct FrameFilterTest : FrameViewTest {
    QLineEdit* filter = view.findChild<QLineEdit*>("Filter");

    void openFilter(const std::string& text)
    {
        frame.FilterVisible = true;
        frame.Filter.Text = text;
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }
    int current() { return list->currentIndex().row(); }
};

TEST_F(FrameFilterTest, TheKeyboardComesToTheFirstMacroThatIsNotHidden)
{
    click(name(0));
    openFilter("o"); // Stop and Go
    filter->setFocus();
    list->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(current(), 2);
    list->setCurrentIndex(list->model()->index(3, 0));
    filter->setFocus();
    list->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(current(), 3) << "this one is in sight";
    frame.FilterVisible = false;
    list->setCurrentIndex(list->model()->index(1, 0));
    filter->setFocus();
    list->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(current(), 1);
}

TEST_F(FrameFilterTest, DownReturnAndEnterLeadIntoTheListAndEscClosesIt)
{
    openFilter("g");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
        filter->setFocus();
        QTest::keyClick(filter, key);
        EXPECT_TRUE(list->hasFocus()) << key;
    }
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_E);
    EXPECT_EQ(filter->text(), "ge");
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_FALSE(frame.FilterVisible);
    EXPECT_EQ(editor.JoystickText.Text(), "e Stop Gear \r\n") << "Return inserted nothing";
}

TEST_F(FrameFilterTest, InTheListLettersAreWrittenIntoItAndBlanksAndCommandsAreNot)
{
    list->setFocus();
    QTest::keyClick(list, Qt::Key_G);
    EXPECT_TRUE(frame.FilterVisible);
    EXPECT_EQ(frame.Filter.Text.get(), "g");
    QApplication::setActiveWindow(&window);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Space);
    QTest::keyClick(list, Qt::Key_E, Qt::ControlModifier);
    QTest::keyClick(list, Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(frame.Filter.Text.get(), "g");
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(frame.FilterVisible);
}

TEST_F(FrameFilterTest, HiddenRowsFollowTextVisibilityAndItems)
{
    const auto hidden = [this] {
        std::string rows;
        for (int row = 0; row < list->model()->rowCount(); ++row) rows += list->isRowHidden(row) ? 'h' : '-';
        return rows;
    };
    openFilter("g");
    EXPECT_EQ(hidden(), "h-h-");
    frame.Filter.Text = "";
    EXPECT_EQ(hidden(), "----");
    frame.Filter.Text = "st";
    EXPECT_EQ(hidden(), "hh-h");
    frame.FilterVisible = false;
    EXPECT_EQ(hidden(), "----");
    frame.FilterVisible = true;
    frame.Filter.Text = "a";
    frame.List1[0].Items = {{"Stop", false}, {"Flaps", true}};
    EXPECT_EQ(hidden(), "h-");
}

// ---- the entries ----------------------------------------------------------------------------------------------------

TEST_F(FrameViewTest, OnlyTheTicksOfEntriesThatThereAreCanBeWritten)
{
    QAbstractItemModel* model = list->model();
    const QModelIndex first = model->index(0, 0);
    EXPECT_FALSE(model->setData(first, "x", Qt::EditRole));
    EXPECT_FALSE(model->setData(QModelIndex(), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(model->data(first, Qt::DecorationRole), QVariant());
    EXPECT_EQ(model->data(QModelIndex(), Qt::DisplayRole), QVariant());
    EXPECT_EQ(model->rowCount(first), 0) << "entries have none below them";
    EXPECT_TRUE(model->flags(first).testFlag(Qt::ItemIsUserCheckable));
    EXPECT_TRUE(model->flags(first).testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(FrameViewTest, OnDarkGroundTheTickBoxHasAFrameInTheTextsColour)
{
    const auto corner = [&] {
        const QImage picture = list->viewport()->grab().toImage();
        int light = 0;
        for (int y = item(0).top(); y <= item(0).bottom(); ++y)
            for (int x = 0; x < 20; ++x) light += picture.pixelColor(x, y).lightness() > 100;
        return light;
    };
    QPalette dark = list->palette();
    dark.setColor(QPalette::Base, QColor(0x1F, 0x21, 0x24));
    dark.setColor(QPalette::Text, QColor(0xE4, 0xE6, 0xE9));
    dark.setColor(QPalette::Window, QColor(0x1F, 0x21, 0x24));
    list->setPalette(dark);
    EXPECT_GE(corner(), 40);
}

} // namespace
} // namespace tarvex
