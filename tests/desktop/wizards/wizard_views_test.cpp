#include "desktop/wizards/wizard_forms.h"

#include "support/test_program.h"
#include "wizards/wizards.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The program with the windows of the Wizards menu, as MumWindow makes them.
struct Shown : TestProgram {
    Wizards& wizards = program().wizards;
    QWidget parent;
    Bindings bindings;

    Shown() { makeWizardsWhenShown(wizards, bindings, &parent); }
    ~Shown() { events(); }

    static void events() { QApplication::processEvents(); }
    QWidget& window(const char* name)
    {
        events();
        auto* const found = parent.findChild<QWidget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    QWidget& open(MenuItem& command, const char* name)
    {
        command.Click();
        return window(name);
    }
};

template <typename Widget> Widget& child(QWidget& window, const QString& name)
{
    auto* const widget = window.findChild<Widget*>(name);
    EXPECT_NE(widget, nullptr) << name.toStdString();
    return *widget;
}

QWidget& pageOf(QWidget& window) { return *window.findChild<QStackedWidget*>()->currentWidget(); }

QString titleOf(QWidget& window) { return child<QLabel>(pageOf(window), "PageTitle").text(); }

void press(QWidget& window, Qt::Key key)
{
    QTest::keyClick(window.focusWidget(), key);
    Shown::events();
}

TEST(WizardView, PagesAreTurnedByKeysAlone)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuWixUnderstandSlash, "SlashWizard");
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_EQ(window.windowTitle(), "Understanding slash modifiers");
    EXPECT_EQ(titleOf(window), "What's a slash modifier?");
    press(window, Qt::Key_Space);
    EXPECT_EQ(titleOf(window), "/U, /M and /D");
    press(window, Qt::Key_Return);
    EXPECT_EQ(titleOf(window), "/I and /O");
    press(window, Qt::Key_Backtab);
    press(window, Qt::Key_Space);
    EXPECT_EQ(titleOf(window), "/U, /M and /D");
    for (int page = 1; page < SlashWizard::lastPage; ++page) press(window, Qt::Key_Return);
    EXPECT_FALSE(child<QPushButton>(window, "FootNext").isVisible());
    EXPECT_EQ(window.focusWidget()->objectName(), "FootClose");
    press(window, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(t.wizards.slash.WindowOpen, 0);
}

TEST(WizardView, KeysPressedAtOnceAfterEachOtherAreAllTaken)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateMacroFile, "MacroWizard");
    for (int page = 0; page < 7; ++page) QTest::keyClick(&window, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(titleOf(window), "Your first macros");
    QTest::keyClick(&window, Qt::Key_M, Qt::AltModifier); // the name's box on the page that is in front now
    EXPECT_EQ(window.focusWidget(), &child<QLineEdit>(pageOf(window), "Text1_0"));
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(t.wizards.macro.pages.PageNumber, 5);
}

/// What Tab comes to, beginning with the widget that has the keyboard, until it is there again.
QSet<QWidget*> reachedByTab(QWidget& window)
{
    QSet<QWidget*> reached;
    while (!reached.contains(window.focusWidget()) && reached.size() < 100) {
        reached.insert(window.focusWidget());
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    return reached;
}

TEST(WizardView, TabReachesEverythingThatCanBeUsedOnAPage)
{
    Shown t;
    t.menus().mnuhelpWizCreateJoyFile.Click();
    t.menus().mnuhelpWizCreateMacroFile.Click();
    t.wizards.macro.maker.Text1[0].Text = "a";
    t.wizards.macro.maker.Text1[1].Text = "b"; // so that the button that inserts them is there
    for (const char* name : {"JoystickWiz", "MacroWizard"}) {
        QWidget& window = t.window(name);
        PageTurner& turner = name == QLatin1String("JoystickWiz") ? t.wizards.joystick.pages : t.wizards.macro.pages;
        for (int page = 0; page <= turner.lastPage; ++page) {
            turner.PageNumber = page;
            const QSet<QWidget*> reached = reachedByTab(window);
            for (QWidget* widget : window.findChildren<QWidget*>()) {
                const bool used = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                                  qobject_cast<QListWidget*>(widget);
                if (!used || !widget->isVisible() || !widget->isEnabled()) continue;
                EXPECT_TRUE(reached.contains(widget)) << name << page << widget->objectName().toStdString();
            }
        }
    }
}

TEST(WizardView, EscapeClosesIt)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuWixUnderstandSlash, "SlashWizard");
    press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(t.wizards.slash.WindowOpen, 0);
}

TEST(WizardView, BackIsGreyOnTheFirstPage)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateJoyFile, "JoystickWiz");
    EXPECT_FALSE(child<QPushButton>(window, "FootBack").isEnabled());
    press(window, Qt::Key_Return);
    EXPECT_TRUE(child<QPushButton>(window, "FootBack").isEnabled());
}

TEST(WizardView, ButtonsOnThePagesRunTheirActions)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateJoyFile, "JoystickWiz");
    t.typeJoystick("BTN S1 a");
    t.wizards.joystick.pages.PageNumber = 5;
    auto& place = child<QPushButton>(pageOf(window), "Command1_4");
    EXPECT_EQ(place.text(), "Put me in the correct position in the joystick file please.");
    QTest::mouseClick(&place, Qt::LeftButton);
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 0);
}

TEST(WizardView, ExamplesAreColouredLikeFiles)
{
    Shown t;
    t.settings().SlashColour = 255;
    QWidget& window = t.open(t.menus().mnuWixUnderstandSlash, "SlashWizard");
    auto& example = child<QLabel>(pageOf(window), "Example");
    EXPECT_TRUE(example.text().contains("BTN T4"));
    EXPECT_TRUE(example.text().contains("color:#ff0000")) << example.text().toStdString(); // slash modifiers
}

TEST(WizardView, PicturesAreShownWhereAPageHasOne)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuWixUnderstandSlash, "SlashWizard");
    press(window, Qt::Key_Return);
    auto& picture = child<QWidget>(pageOf(window), "PagePicture");
    EXPECT_EQ(picture.accessibleName(), "TQS throttle");
    EXPECT_GT(picture.width(), 200);
    // Marked controls are painted in the colour of selections.
    const QImage painted = picture.grab().toImage();
    const QColor mark = picture.palette().color(QPalette::Highlight);
    int marked = 0;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x)
            if (painted.pixelColor(x, y) == mark) ++marked;
    EXPECT_GT(marked, 50);
}

TEST(WizardView, NoPageIsWiderThanTheWindowAndEveryTextHasItsRoom)
{
    Shown t;
    t.menus().mnuhelpWizCreateJoyFile.Click();
    t.menus().mnuhelpWizCreateMacroFile.Click();
    t.menus().mnuWixUnderstandSlash.Click();
    for (const char* name : {"JoystickWiz", "MacroWizard", "SlashWizard"}) {
        QWidget& window = t.window(name);
        auto& pages = *window.findChild<QStackedWidget*>();
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentIndex(page);
            Shown::events();
            auto* area = qobject_cast<QScrollArea*>(pages.widget(page));
            ASSERT_NE(area, nullptr);
            EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width()) << name << page;
            for (const QLabel* label : area->findChildren<QLabel*>()) {
                const int needed =
                    label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
                EXPECT_GE(label->height(), needed) << name << page << label->text().toStdString();
            }
        }
    }
}

TEST(WizardView, ALongPageIsScrolledByKeys)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateJoyFile, "JoystickWiz");
    t.wizards.joystick.pages.PageNumber = 8;
    window.resize(window.width(), 300);
    Shown::events();
    const QScrollBar& bar = *static_cast<QScrollArea&>(pageOf(window)).verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    press(window, Qt::Key_PageDown);
    const int down = bar.value();
    EXPECT_GT(down, 0);
    press(window, Qt::Key_PageUp);
    EXPECT_LT(bar.value(), down);
    EXPECT_EQ(t.wizards.joystick.pages.PageNumber, 8);
}

TEST(MacroWizardView, AMacroIsWrittenByKeysAlone)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateMacroFile, "MacroWizard");
    for (int page = 0; page < 7; ++page) press(window, Qt::Key_Return);
    auto& name = child<QLineEdit>(pageOf(window), "Text1_0");
    name.setFocus();
    QTest::keyClicks(&name, "Eject Now");
    EXPECT_EQ(name.text(), "Eject_Now");
    auto& insert = child<QPushButton>(pageOf(window), "Command1_4");
    EXPECT_FALSE(insert.isEnabled());
    press(window, Qt::Key_Return); // not yet whole
    EXPECT_EQ(t.editor().MacroText.Text(), "");
    press(window, Qt::Key_Tab);
    QTest::keyClicks(window.focusWidget(), "CTL e");
    EXPECT_TRUE(insert.isEnabled());
    EXPECT_EQ(child<QLabel>(pageOf(window), "Label1").text(), "Eject_Now = CTL e");
    press(window, Qt::Key_Return);
    EXPECT_EQ(t.editor().MacroText.Text(), "Eject_Now = CTL e\r\n");
    EXPECT_EQ(name.text(), "");
    EXPECT_EQ(window.focusWidget(), &name);
}

TEST(MacroWizardView, AHeadingIsInsertedByDoubleClickAndByReturn)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuhelpWizCreateMacroFile, "MacroWizard");
    for (int page = 0; page < 4; ++page) press(window, Qt::Key_Return);
    auto& list = child<QListWidget>(pageOf(window), "List1");
    EXPECT_EQ(list.count(), 56);
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(t.editor().MacroText.Text(), "");
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_NE(t.editor().MacroText.Text().find("Rem           Communications\r\n"), std::string::npos);
    list.setFocus();
    press(window, Qt::Key_Down);
    press(window, Qt::Key_Return);
    EXPECT_NE(t.editor().MacroText.Text().find("Rem           Avionics\r\n"), std::string::npos);
}

TEST(SpeedyView, HasAPageForEachTabAndWritesMacros)
{
    Shown t;
    QWidget& window = t.open(t.menus().mnuWizSpeedy, "Speedy");
    auto& tabs = child<QTabWidget>(window, "SSTab1");
    EXPECT_EQ(tabs.count(), 4);
    EXPECT_EQ(tabs.tabText(2), "Macros");
    EXPECT_EQ(child<QPushButton>(*tabs.widget(0), "Command1_0").text(), "New macro file please");
    tabs.setCurrentIndex(2);
    Shown::events();
    EXPECT_EQ(t.wizards.speedy.SSTab1.Tab, 2);
    auto& keys = child<QLineEdit>(*tabs.widget(2), "Text1_1");
    keys.setFocus();
    QTest::keyClicks(&keys, "g");
    QTest::keyClicks(&child<QLineEdit>(*tabs.widget(2), "Text1_0"), "Gear");
    QTest::mouseClick(&child<QPushButton>(*tabs.widget(2), "Command1_4"), Qt::LeftButton);
    EXPECT_EQ(t.editor().MacroText.Text(), "Gear = g\r\n");
}

} // namespace
} // namespace tarvex
