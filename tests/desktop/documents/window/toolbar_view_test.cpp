#include "desktop/documents/window/toolbar_view.h"

#include "desktop/documents/window/colour_selector_view.h"
#include "desktop/program/mum_window.h"
#include "documents/window/toolbar.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QToolTip>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The whole program with its windows; all commands of the toolbar are there, and say that they ran.
struct Bar : TestProgram {
    MumWindow window{program()};
    std::string ran;

    Bar()
    {
        for (const ToolbarButton& slot : toolbarButtons()) {
            for (MenuItem Menus::*command : {slot.joystick, slot.macro, slot.both.command}) {
                if (command == nullptr || slot.number == 21 || slot.number == 30) continue; // these show a tick
                MenuItem& item = menus().*command;
                item.handler = [this, &item] { ran += item.Name; };
            }
        }
        bar().Refresh();
        window.showNormal();
        resize(1400);
    }
    void resize(int width)
    {
        window.resize(width, 700);
        events();
    }
    static void events() { QApplication::processEvents(); }
    ToolBar& bar() { return program().mum.Toolbar1; }
    QWidget& view() { return *window.findChild<QWidget*>("Toolbar1"); }
    QAction& action(int number) { return *window.findChild<QAction*>(QStringLiteral("Toolbar1_%1").arg(number)); }
    /// The button, or the gap, of a number.
    QWidget& slot(int number)
    {
        for (QToolButton* button : view().findChildren<QToolButton*>()) {
            if (button->defaultAction() == window.findChild<QAction*>(QStringLiteral("Toolbar1_%1").arg(number)) &&
                button->defaultAction() != nullptr)
                return *button;
        }
        return *view().findChild<QWidget*>(QStringLiteral("Toolbar1_%1").arg(number));
    }
    bool seen(int number) { return slot(number).isVisible() && !slot(number).size().isEmpty(); }
    std::string click(int number)
    {
        ran.clear();
        QTest::mouseClick(&slot(number), Qt::LeftButton);
        return ran;
    }
    std::string hover(int number) { return moveOver(slot(number), slot(number).rect().center()); }
    std::string moveOver(QWidget& widget, QPoint at)
    {
        QMouseEvent move(QEvent::MouseMove, at, widget.mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
        return status();
    }
    /// The tip that comes up over a button; "none" when it has none.
    QString tipOf(int number)
    {
        QToolTip::showText(QPoint(), QStringLiteral("none"));
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), slot(number).mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&slot(number), &help);
        return QToolTip::text();
    }
};

TEST(ToolbarView, AllSlotsStandInTheirNumbering)
{
    Bar t;
    t.settings().UseExtraButtons = 1;
    t.program().operations.ShowExtraButtons();
    Bar::events();
    int right = 0;
    for (int number = 1; number <= t.bar().Count(); ++number) {
        ASSERT_TRUE(t.seen(number)) << number;
        EXPECT_GE(t.slot(number).x(), right) << number;
        right = t.slot(number).geometry().right();
    }
    EXPECT_FALSE(t.action(36).icon().isNull());
    EXPECT_EQ(t.slot(29).objectName(), "Picture1");
}

TEST(ToolbarView, EveryButtonHasAPictureOfItsOwn)
{
    Bar t;
    std::vector<QImage> pictures;
    for (const ToolbarButton& slot : toolbarButtons()) {
        if (slot.isSeparator()) continue;
        const QImage picture = t.action(slot.number).icon().pixmap(32, 32).toImage();
        for (const QImage& other : pictures) EXPECT_NE(picture, other) << slot.number;
        pictures.push_back(picture);
        EXPECT_FALSE(t.action(slot.number).text().isEmpty()) << slot.number << ": screen readers say the name";
    }
}

TEST(ToolbarView, AClickRunsTheCommandOfTheSelectedTab)
{
    Bar t;
    EXPECT_EQ(t.click(1), "mnuFileNewJoystick");
    EXPECT_EQ(t.click(2), "mnuFileOpen") << "both, as a new installation has it";
    EXPECT_EQ(t.click(47), "mnuHelpContents");
    t.editor().TabStrip1.Select(2);
    EXPECT_EQ(t.click(1), "mnuFileNewMacro");
    t.settings().OpenBothOnToolbar = 0;
    EXPECT_EQ(t.click(2), "MnuFileMacroLoad");
}

TEST(ToolbarView, EnablingFollowsTheButtonAndItsCommand)
{
    Bar t;
    t.menus().mnuEditFind.Enabled = false;
    EXPECT_FALSE(t.slot(14).isEnabled());
    t.menus().mnuEditFind.Enabled = true;
    EXPECT_TRUE(t.slot(14).isEnabled());
    t.bar().Buttons(14).Enabled = false;
    EXPECT_FALSE(t.slot(14).isEnabled());
    EXPECT_EQ(t.click(14), "");
    t.menus().mnuLauncher.handler = nullptr;
    t.bar().Refresh();
    EXPECT_FALSE(t.slot(36).isEnabled()) << "nobody does the work yet, but the slot is there";
}

TEST(ToolbarView, TheTickOfACommandIsShownByItsButton)
{
    Bar t;
    EXPECT_FALSE(t.action(30).isChecked());
    QTest::mouseClick(&t.slot(30), Qt::LeftButton);
    EXPECT_TRUE(t.menus().mnuViewTileVertically.Checked);
    EXPECT_TRUE(t.action(30).isChecked());
    QTest::mouseClick(&t.slot(30), Qt::LeftButton);
    EXPECT_FALSE(t.action(30).isChecked());
}

TEST(ToolbarView, HoverTextsComeFromButtonsGapsAndDisabledButtons)
{
    Bar t;
    EXPECT_EQ(t.hover(7), "Cut");
    EXPECT_EQ(t.hover(6), "Welcome to Tarvex Freeware");
    t.menus().mnuEditFind.Enabled = false;
    EXPECT_EQ(t.hover(14), "Find word or phrase in file");
    EXPECT_EQ(t.hover(29), "Colour of text at cursor - click to select a different colour");
    t.editor().status("x");
    EXPECT_EQ(t.moveOver(t.view(), QPoint(t.view().width() - 4, 10)), "Welcome to Tarvex Freeware");
}

TEST(ToolbarView, HiddenButtonsLeaveNoHole)
{
    Bar t;
    const int before = t.slot(20).x();
    const int gap = t.slot(17).width();
    t.bar().Buttons(17).Visible = false;
    Bar::events();
    EXPECT_EQ(t.slot(20).x(), before - gap);
    EXPECT_FALSE(t.seen(36)) << "an extra button";
    EXPECT_EQ(t.hover(44), "Download joystick file to joystick");
}

TEST(ToolbarView, TipsAreThoseOfTheButtonsAndNoneWhenTheyAreTurnedOff)
{
    Bar t;
    EXPECT_EQ(t.tipOf(7), "Cut (Ctrl+X)");
    EXPECT_EQ(t.tipOf(47), "Edit Preferences (F9)");
    EXPECT_EQ(t.tipOf(29), "none") << "its name is not to stand in for it";
    t.settings().OKtoShowToolTips = 0;
    EXPECT_EQ(t.tipOf(11), "none") << "Undo writes its tip by itself";
    t.program().operations.UpdateTooltips();
    EXPECT_EQ(t.tipOf(7), "none");
    EXPECT_EQ(t.hover(7), "Cut");
}

TEST(ToolbarView, OnANarrowWindowTheRestStandsBehindTheArrow)
{
    Bar t;
    auto& extension = *t.view().findChild<QToolButton*>("Extension");
    const int oneRow = t.view().height();
    EXPECT_FALSE(extension.isVisible());
    t.resize(500);
    EXPECT_TRUE(extension.isVisible());
    EXPECT_TRUE(t.view().rect().contains(extension.geometry()));
    EXPECT_EQ(t.view().height(), oneRow);
    EXPECT_TRUE(t.seen(1));
    EXPECT_FALSE(t.seen(47));
    QTest::mouseClick(&extension, Qt::LeftButton);
    auto* menu = extension.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    EXPECT_TRUE(menu->actions().contains(&t.action(47)));
    EXPECT_FALSE(menu->actions().contains(&t.action(1)));
    EXPECT_FALSE(menu->actions().contains(&t.action(36))) << "hidden, not left out";
    t.action(47).trigger();
    EXPECT_EQ(t.ran, "mnuHelpContents");
    menu->close();
    t.resize(1400);
    EXPECT_FALSE(extension.isVisible());
    EXPECT_TRUE(t.seen(47));
}

TEST(ToolbarView, AWrappableBarGoesOnInFurtherRows)
{
    Bar t;
    const int oneRow = t.view().height();
    t.bar().Wrappable = true;
    t.resize(400);
    EXPECT_GT(t.view().height(), 2 * oneRow - 8);
    EXPECT_FALSE(t.view().findChild<QToolButton*>("Extension")->isVisible());
    for (const ToolbarButton& slot : toolbarButtons()) {
        if (slot.isSeparator() || !t.bar().Buttons(slot.number).Visible) continue;
        EXPECT_TRUE(t.seen(slot.number)) << slot.number;
        EXPECT_TRUE(t.view().rect().contains(t.slot(slot.number).geometry())) << slot.number;
    }
    EXPECT_GT(t.slot(47).y(), t.slot(1).y());
    EXPECT_EQ(t.hover(47), "View the help file");
    EXPECT_GE(t.window.editor().mapTo(&t.window, QPoint()).y(), t.view().geometry().bottom());
    t.bar().Wrappable = false;
    Bar::events();
    EXPECT_EQ(t.view().height(), oneRow);
    EXPECT_FALSE(t.seen(47));
}

TEST(ToolbarView, IconsAreAsHighAsTheyAreWide)
{
    Bar t;
    for (const QToolButton* button : t.view().findChildren<QToolButton*>())
        EXPECT_EQ(button->iconSize().width(), button->iconSize().height()) << fromQt(button->objectName());
}

TEST(ToolbarView, IsNeverNarrowerThanAButtonAndTheArrow)
{
    Bar t;
    const int arrow = t.view().findChild<QToolButton*>("Extension")->sizeHint().width();
    const int button = t.slot(1).width();
    EXPECT_GE(t.view().layout()->minimumSize().width(), arrow + button);
    EXPECT_LT(t.view().layout()->minimumSize().width(), arrow + 3 * button);
}

TEST(ToolbarView, ButtonsAreRaisedUnlessTheBarIsFlat)
{
    Bar t;
    EXPECT_TRUE(static_cast<QToolButton&>(t.slot(1)).autoRaise());
    t.bar().Flat = false;
    EXPECT_FALSE(static_cast<QToolButton&>(t.slot(1)).autoRaise());
}

TEST(ToolbarView, ABarThatIsntVisibleIsntShown)
{
    Bar t;
    EXPECT_TRUE(t.view().isVisible());
    t.bar().Visible = false;
    EXPECT_FALSE(t.view().isVisible());
}

// ---- the picture ----

QColor pictureColour(Bar& t) { return t.action(29).icon().pixmap(22, 22).toImage().pixelColor(11, 11); }

TEST(ToolbarView, ThePictureFollowsTheCaretAndTheColouring)
{
    Bar t;
    Pane& pane = t.editor().JoystickText;
    t.typeJoystick("ab cd");
    pane.setSelStart(0);
    pane.setSelLength(2);
    pane.setSelColor(255);
    Bar::events();
    EXPECT_EQ(pictureColour(t), QColor(255, 0, 0));
    PaneView& view = t.window.editor().pane(t.editor().joystick);
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(pictureColour(t), QColor(0, 0, 0));
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(pictureColour(t), QColor(255, 0, 0));
    pane.setSelStart(0);
    pane.setSelLength(5);
    pane.setSelColor(0xFF0000);
    pane.setSelStart(0);
    Bar::events();
    EXPECT_EQ(pictureColour(t), QColor(0, 0, 255)) << "coloured by the program, the caret where it was";
}

TEST(ColourSelectorView, AClickOnThePictureOpensItBelowAndAColourGoesToWhatIsTypedNext)
{
    Bar t;
    t.settings().BTNColour = 255;
    for (int number = 1; number < 10; ++number) t.bar().Buttons(number).Visible = false; // room on the small screen
    Bar::events();
    PaneView& view = t.window.editor().pane(t.editor().joystick);
    view.setFocus();
    QTest::keyClicks(&view, "a");
    QTest::mouseClick(&t.slot(29), Qt::LeftButton);
    Bar::events();
    auto* selector = t.window.findChild<QWidget*>("ColourSelector");
    ASSERT_NE(selector, nullptr);
    EXPECT_TRUE(selector->isVisible());
    EXPECT_GT(selector->y(), t.slot(29).mapToGlobal(QPoint(0, t.slot(29).height())).y());
    EXPECT_NEAR(selector->x(), t.slot(29).mapToGlobal(QPoint(0, 0)).x(), 4);
    QTest::mouseClick(selector->findChild<QPushButton*>("Command1_5"), Qt::LeftButton);
    Bar::events();
    EXPECT_FALSE(selector->isVisible());
    EXPECT_EQ(pictureColour(t), QColor(255, 0, 0));
    QTest::keyClicks(&view, "b");
    EXPECT_EQ(t.editor().JoystickText.Text(), "ab");
    EXPECT_EQ(t.editor().JoystickText.formatAt(0).colour, 0);
    EXPECT_EQ(t.editor().JoystickText.formatAt(1).colour, 255);
}

TEST(ColourSelectorView, WorksWithTheKeyboardAlone)
{
    Bar t;
    t.settings().RemStatements = 0x00FF00;
    PaneView& view = t.window.editor().pane(t.editor().joystick);
    QTest::keyClicks(&view, "rem");
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    auto* command = t.window.findChild<QAction*>("mnuViewTextColour");
    EXPECT_EQ(command->shortcut(), QKeySequence("Ctrl+Shift+C"));
    command->trigger();
    auto* selector = t.window.findChild<QWidget*>("ColourSelector");
    ASSERT_TRUE(selector != nullptr && selector->isVisible());
    QWidget* first = selector->findChild<QPushButton*>("Command1_0");
    EXPECT_EQ(selector->focusWidget(), first);
    EXPECT_TRUE(static_cast<QPushButton*>(first)->isDefault());
    QTest::keyClick(first, Qt::Key_Down);
    QTest::keyClick(selector->focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(selector->isVisible());
    EXPECT_EQ(t.editor().JoystickText.formatAt(0).colour, 0x00FF00);
}

TEST(ColourSelectorView, EscAndAClickElsewhereCloseIt)
{
    Bar t;
    t.action(29).trigger();
    auto* selector = t.window.findChild<QWidget*>("ColourSelector");
    ASSERT_TRUE(selector != nullptr && selector->isVisible());
    QTest::keyClick(selector, Qt::Key_Escape);
    EXPECT_FALSE(selector->isVisible());
    EXPECT_FALSE(t.editor().ColourSelector.form.Visible);
    t.action(29).trigger();
    EXPECT_TRUE(selector->isVisible());
    QTest::mouseClick(selector, Qt::LeftButton, {}, QPoint(-50, -50)); // a popup gets the clicks beside it
    EXPECT_FALSE(selector->isVisible());
    EXPECT_FALSE(t.editor().ColourSelector.form.Visible);
    t.action(29).trigger();
    EXPECT_TRUE(selector->isVisible()) << "and it opens again";
}

TEST(ColourSelectorView, ASwatchIsAsGoodAsItsButton)
{
    Bar t;
    t.settings().RAWColour = 0x8000;
    t.action(29).trigger();
    auto* selector = t.window.findChild<QWidget*>("ColourSelector");
    ASSERT_TRUE(selector != nullptr && selector->isVisible());
    QTest::mouseClick(selector->findChild<QWidget*>("Label1_3"), Qt::LeftButton);
    EXPECT_FALSE(selector->isVisible());
    EXPECT_EQ(t.program().mum.Picture1.get(), 0x8000);
}

} // namespace
} // namespace tarvex
