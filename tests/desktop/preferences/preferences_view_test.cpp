#include "desktop/preferences/preferences_view.h"

#include "support/test_program.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PreferencesViewTest : testing::Test, TestProgram {
    PreferencesViewTest() : TestProgram(false)
    {
        setIni("FileLocations", "B50LoadPath", "c:\\tm\\winld.exe");
        setIni("Favourites", "FavArrayNum", "2");
        setIni("Favourites", "FavName1", "Lance");
        setIni("Favourites", "FavName2", "Kestrel");
        start();
        PREFS_Form_Load(preferences());
        view = std::make_unique<PreferencesView>(preferences(), nullptr);
        view->show();
    }
    Preferences& preferences() { return program().preferences; }
    template <typename Widget> Widget* child(const char* name)
    {
        auto* found = view->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    std::unique_ptr<PreferencesView> view;
};

TEST_F(PreferencesViewTest, ShowsItsPagesByTheirCaptions)
{
    auto* tabs = child<QTabWidget>("SSTab1");
    const QStringList captions{"&File locations", "&Colours/Fonts", "&Apps",   "Fa&vourites", "&Games",
                               "&Open/Save/Undo", "&Miscellaneous", "&Sticky", "E&xtras"};
    ASSERT_EQ(tabs->count(), captions.size());
    for (int i = 0; i < tabs->count(); ++i) EXPECT_EQ(tabs->tabText(i), captions[i]);
}

TEST_F(PreferencesViewTest, TypedPathReachesTheSettingsWhenTheDialogueCloses)
{
    auto* folder = child<QLineEdit>("Text2");
    folder->selectAll();
    QTest::keyClicks(folder, "C:\\Mine");
    PREFS_Form_Unload(preferences());
    EXPECT_EQ(settings().ProgramFilesPath, "c:\\mine");
}

TEST_F(PreferencesViewTest, APathThatIsTooLongHasTheWholeAsItsTip)
{
    preferences().fileLocationsPage.Text15.Text = "c:\\" + std::string(200, 'x');
    EXPECT_EQ(child<QLineEdit>("Text15")->toolTip(), QString("c:\\") + QString(200, 'x'));
}

TEST_F(PreferencesViewTest, StickyIsGreyedForAnotherLoader)
{
    auto* tabs = child<QTabWidget>("SSTab1");
    EXPECT_TRUE(tabs->isTabEnabled(Preferences::winLoad));
    child<QComboBox>("Text1")->setEditText("c:\\tm\\b50load.exe");
    EXPECT_FALSE(tabs->isTabEnabled(Preferences::winLoad));
}

TEST_F(PreferencesViewTest, OpensAtTheWantedPageWithTheKeyboardInItsFirstBox)
{
    QApplication::setActiveWindow(view.get());
    EXPECT_EQ(QApplication::focusWidget(), child<QComboBox>("Text1"));
    program().shared.PreferencesPage = Preferences::favourites;
    view.reset(); // or its boxes would take the keyboard, too
    view = std::make_unique<PreferencesView>(preferences(), nullptr);
    view->show();
    QApplication::setActiveWindow(view.get());
    EXPECT_EQ(child<QTabWidget>("SSTab1")->currentIndex(), Preferences::favourites);
    EXPECT_EQ(QApplication::focusWidget(), child<QLineEdit>("Text7"));
}

TEST_F(PreferencesViewTest, ChoosingAPageGivesTheKeyboardToItsFirstBox)
{
    QApplication::setActiveWindow(view.get());
    child<QTabWidget>("SSTab1")->setCurrentIndex(Preferences::saving);
    EXPECT_EQ(QApplication::focusWidget(), child<QLineEdit>("Text3"));
}

TEST_F(PreferencesViewTest, LeavingTheUndoBoxShowsTheClampedValue)
{
    QApplication::setActiveWindow(view.get());
    child<QTabWidget>("SSTab1")->setCurrentIndex(Preferences::saving);
    auto* levels = child<QLineEdit>("TxtUndoLevels");
    levels->setFocus();
    levels->selectAll();
    QTest::keyClicks(levels, "40000");
    EXPECT_EQ(levels->text(), "40000");
    child<QLineEdit>("Text3")->setFocus();
    EXPECT_EQ(levels->text(), "30000");
}

TEST_F(PreferencesViewTest, ReturnIsOkOnEveryPage)
{
    QApplication::setActiveWindow(view.get());
    auto* tabs = child<QTabWidget>("SSTab1");
    auto* ok = child<QPushButton>("Command3");
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        child<QPushButton>("Command6")->setFocus(); // where the keyboard is while a page goes
        tabs->setFocus();
        EXPECT_TRUE(ok->isDefault()) << page;
    }
    const QSignalSpy clicks(ok, &QPushButton::clicked);
    QTest::keyClick(tabs, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(PreferencesViewTest, ArrowKeysMoveAmongTheColourItemsAndReturnAsksForTheColour)
{
    auto* list = child<QListWidget>("List1");
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_TRUE(dialogues.coloursShown.empty());
    EXPECT_EQ(preferences().coloursPage.List1.ListIndex, 2);
}

TEST_F(PreferencesViewTest, ChosenFavouriteIsShownAndRemoved)
{
    auto* list = child<QListWidget>("List2");
    list->setCurrentRow(1);
    EXPECT_EQ(child<QLineEdit>("Text7")->text(), "Kestrel");
    QTest::mouseClick(child<QPushButton>("Command13"), Qt::LeftButton);
    EXPECT_EQ(list->count(), 1);
    EXPECT_EQ(child<QLineEdit>("Text7")->text(), "Lance");
}

TEST_F(PreferencesViewTest, WinLoadsOptionsAreShownAsTheyAreChosen)
{
    auto* blanker = child<QCheckBox>("CheckUseBlanker");
    blanker->click();
    EXPECT_EQ(child<QLabel>("WinLoadLabel")->text(), " /NB ");
}

TEST_F(PreferencesViewTest, OkHidesTheForm)
{
    preferences().Form.Visible = true;
    QTest::mouseClick(child<QPushButton>("Command3"), Qt::LeftButton);
    EXPECT_FALSE(preferences().Form.Visible);
}

} // namespace
} // namespace tarvex
