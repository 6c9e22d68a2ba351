// What holds for every page of the preferences: access keys, Tab order, room.

#include "desktop/preferences/preferences_view.h"

#include "../access_keys.h"
#include "support/test_program.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PreferencesPagesTest : testing::Test, TestProgram {
    PreferencesPagesTest() : TestProgram(false)
    {
        setIni("FileLocations", "B50LoadPath", "c:\\tm\\winld.exe");
        for (const char* list : {"Favourites", "Games"})
            setIni(list, list[0] == 'F' ? "FavArrayNum" : "GameArrayNum", "1");
        setIni("Favourites", "FavName1", "Lance");
        setIni("Games", "GameName1", "Falcon");
        start();
        PREFS_Form_Load(program().preferences);
        view = std::make_unique<PreferencesView>(program().preferences, nullptr);
        view->show();
        tabs = view->findChild<QTabWidget*>("SSTab1");
    }
    QWidget* showPage(int page)
    {
        tabs->setCurrentIndex(page);
        QApplication::processEvents();
        return static_cast<QScrollArea*>(tabs->widget(page))->widget();
    }
    ExtrasPage& extras() { return program().preferences.extrasPage; }
    template <typename Widget> Widget* child(const char* name)
    {
        auto* found = view->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    std::unique_ptr<PreferencesView> view;
    QTabWidget* tabs = nullptr;
};

TEST_F(PreferencesPagesTest, AccessKeysAreUniqueOnEachPage)
{
    for (int page = 0; page < tabs->count(); ++page) {
        showPage(page);
        const auto nested = tabs->widget(page)->findChildren<QTabWidget*>();
        const int inner = nested.isEmpty() ? 1 : nested.first()->count();
        for (int i = 0; i < inner; ++i) {
            if (!nested.isEmpty()) nested.first()->setCurrentIndex(i);
            QApplication::processEvents();
            const auto keys = accessKeys(*view);
            for (auto key = keys.begin(); key != keys.end(); ++key)
                EXPECT_EQ(key->size(), 1) << "page " << page << ": " << key->join(" | ").toStdString();
        }
    }
}

/// A control that follows in the Tab order stands further down, or beside to the right.
bool follows(const QRect& before, const QRect& after)
{
    return after.top() >= before.top() - before.height() || after.left() >= before.right();
}

TEST_F(PreferencesPagesTest, TabLeadsThroughEachPageAsTheEyeDoes)
{
    for (int page = 0; page < tabs->count(); ++page) {
        const QWidget* area = showPage(page);
        const QWidget* last = nullptr;
        QWidget* widget = tabs;
        do {
            widget = widget->nextInFocusChain();
            const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && widget->isVisible();
            if (!takesTab || !area->isAncestorOf(widget)) continue;
            const auto place = [area](const QWidget* w) { return QRect(w->mapTo(area, QPoint()), w->size()); };
            if (last != nullptr) {
                EXPECT_TRUE(follows(place(last), place(widget)))
                    << "page " << page << ": " << last->objectName().toStdString() << " before "
                    << widget->objectName().toStdString();
            }
            last = widget;
        } while (widget != tabs);
        EXPECT_NE(last, nullptr) << page;
    }
}

TEST_F(PreferencesPagesTest, EveryControlHasANameForScreenReaders)
{
    for (int page = 0; page < tabs->count(); ++page) {
        const QWidget* area = showPage(page);
        for (const QWidget* widget : area->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || widget->objectName().isEmpty())
                continue;
            if (widget->objectName().startsWith("qt_")) continue;
            const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
            EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
        }
    }
}

TEST_F(PreferencesPagesTest, APageWithoutRoomScrollsAndShowsAllOfIt)
{
    view->resize(500, 300);
    for (int page = 0; page < tabs->count(); ++page) {
        const QWidget* inside = showPage(page);
        auto* area = static_cast<QScrollArea*>(tabs->widget(page));
        const QSize hidden = inside->size() - area->viewport()->size();
        EXPECT_GE(area->verticalScrollBar()->maximum(), hidden.height()) << page;
        EXPECT_GE(area->horizontalScrollBar()->maximum(), hidden.width()) << page;
        EXPECT_GE(inside->height(), inside->minimumSizeHint().height()) << "nothing is squeezed";
    }
}

// ---- the page "Extras"
// ----------------------------------------------------------------------------------------------

TEST_F(PreferencesPagesTest, ExtrasShowsTheDrivesAndTakesAWrittenFolder)
{
    showPage(Preferences::extras);
    auto* table = child<QTableWidget>("Drives");
    ASSERT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->item(0, 0)->text(), "c:");
    EXPECT_EQ(table->item(1, 1)->text(), "/");
    EXPECT_FALSE(table->item(1, 1)->flags() & Qt::ItemIsEditable);
    QApplication::setActiveWindow(view.get());
    table->setFocus();
    table->setCurrentCell(0, 1);
    EXPECT_EQ(extras().DriveRow, 0);
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_EQ(extras().DriveRow, 1);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(table->findChild<QLineEdit*>(), nullptr) << "the folder of this drive can't be changed";
    QTest::keyClick(table, Qt::Key_Up);
    QTest::keyClick(table, Qt::Key_Return);
    auto* editor = table->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "/mnt/disk");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !extras().chosenDrives.empty(); }));
    EXPECT_EQ(extras().chosenDrives, (DriveChoices{{'c', "/mnt/disk"}}));
    EXPECT_EQ(table->item(0, 1)->text(), "/mnt/disk");
    EXPECT_EQ(table->item(0, 2)->text(), "you");
    EXPECT_TRUE(child<QPushButton>("DriveReset")->isEnabled());
}

TEST_F(PreferencesPagesTest, ExtrasRefusesAFolderThatIsNotThere)
{
    auto* table = child<QTableWidget>("Drives");
    table->item(0, 1)->setText("/no/such");
    QApplication::processEvents();
    EXPECT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(table->item(0, 1)->text(), "/home/pilot/tarvex/drive_c") << "what counts is shown again";
}

TEST_F(PreferencesPagesTest, ExtrasTestsARunnerAndShowsItsVersion)
{
    machine.whenAsked = [](const std::string&) { return ProgramOutput{true, "wine-8.0\n"}; };
    showPage(Preferences::extras);
    auto* answer = child<QLabel>("WineAnswer");
    EXPECT_FALSE(answer->isVisible());
    child<QLineEdit>("Wine")->setText("/opt/wine");
    QTest::mouseClick(child<QPushButton>("WineTest"), Qt::LeftButton);
    EXPECT_TRUE(answer->isVisible());
    EXPECT_EQ(answer->text(), "wine-8.0");
}

TEST_F(PreferencesPagesTest, ExtrasNamesWhatWasFoundInTheEmptyBox)
{
    EXPECT_EQ(child<QLineEdit>("DOSBox")->placeholderText(), "not found");
    machine.runners[Runner::DosBox] = "/usr/bin/dosbox";
    PREFS_Form_Load(program().preferences);
    EXPECT_EQ(child<QLineEdit>("DOSBox")->placeholderText(), "/usr/bin/dosbox (found)");
}

TEST_F(PreferencesPagesTest, ALongPathShowsItsMiddleOnlyWhileItIsWritten)
{
    showPage(Preferences::fileLocations);
    QApplication::setActiveWindow(view.get());
    auto* box = child<QLineEdit>("Text15");
    const QString path = "c:\\" + QString(250, 'x') + "\\ctfj.exe";
    program().preferences.fileLocationsPage.Text15.Text = path.toStdString();
    const QImage elided = box->grab().toImage();
    box->setFocus();
    EXPECT_NE(box->grab().toImage(), elided);
    EXPECT_EQ(box->toolTip(), path);
    EXPECT_EQ(box->text(), path) << "nothing is cut";
}

} // namespace
} // namespace tarvex
