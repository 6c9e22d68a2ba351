#include "desktop/program/mum_window.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The whole program with its window, and a pair of files.
struct Shown : TestProgram {
    std::unique_ptr<MumWindow> window;

    Shown() : TestProgram(false)
    {
        files.addFile("c:\\tm\\a & b.b50", "Rem");
        files.addFile("c:\\tm\\a & b.m50", "Fire = f");
    }
    void show()
    {
        start();
        window = std::make_unique<MumWindow>(program());
        window->showNormal();
        QApplication::processEvents();
    }
    QAction* action(const QString& name) { return window->findChild<QAction*>(name); }
    /// The menu's actions as they are when the user opens it.
    void open(const QString& menu) { emit window->findChild<QMenu*>(menu)->aboutToShow(); }
    bool canOpen(const QString& menu) { return window->findChild<QMenu*>(menu)->menuAction()->isEnabled(); }
};

TEST(ListMenus, WithoutPreviousFilesTheirMenusAreGrey)
{
    Shown t;
    t.show();
    EXPECT_FALSE(t.canOpen("mnuFilePrevious"));
    EXPECT_FALSE(t.canOpen("mnuFilePrevMacro"));
}

TEST(ListMenus, APreviousFileIsShownAsItIsNamedAndOpenedByAClick)
{
    Shown t;
    t.show();
    t.openBoth("c:\\tm\\a & b.b50");
    t.menus().mnuFileNewBoth.Click();
    ASSERT_TRUE(t.canOpen("mnuFilePrevious"));
    t.open("mnuFilePrevious");
    EXPECT_EQ(t.action("mnuJFArray(1)")->text(), "c:\\tm\\a && b.b50");
    EXPECT_FALSE(t.action("mnuJFArray(0)")->isVisible());
    t.action("mnuJFArray(1)")->trigger();
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\a & b.b50");
    t.action("mnuPreviousClearAllJ")->trigger();
    EXPECT_FALSE(t.canOpen("mnuFilePrevious"));
    t.open("mnuFilePrevious");
    EXPECT_EQ(t.action("mnuJFArray(1)"), nullptr);
}

TEST(ListMenus, WithoutFavouritesAndGamesAGreyLineSaysSoAndTheFirstCanBeAdded)
{
    Shown t;
    t.show();
    for (const auto& [menu, pattern, add] : {std::tuple{"mnuFavourites", "mnuFavArray(0)", "mnuFavouritesAddCurrent"},
                                             std::tuple{"mnuGames", "mnuGameArray(0)", "mnuGamesAdd"}}) {
        EXPECT_TRUE(t.canOpen(menu));
        t.open(menu);
        EXPECT_TRUE(t.action(pattern)->isVisible());
        EXPECT_FALSE(t.action(pattern)->isEnabled());
        EXPECT_TRUE(t.action(add)->isEnabled());
    }
}

TEST(ListMenus, TheTickOfTheDownloadFollowsTheClick)
{
    Shown t;
    t.show();
    t.action("mnuGamesDownloadFirst")->trigger();
    EXPECT_TRUE(t.action("mnuGamesDownloadFirst")->isChecked());
    EXPECT_EQ(t.ini("Games", "GameDownloadOption"), "1");
    t.action("mnuGamesDownloadFirst")->trigger();
    EXPECT_FALSE(t.action("mnuGamesDownloadFirst")->isChecked());
}

TEST(ListMenus, TheGapsOfADamagedListAreNotSeenUntilAnEntryMovesThere)
{
    Shown t;
    t.setIni("PreviousJoystickFiles", "JFArrayNum", "5");
    t.setIni("PreviousJoystickFiles", "JFPath1", "c:\\gone.b50");
    t.show();
    t.open("mnuFilePrevious");
    EXPECT_TRUE(t.action("mnuJFArray(1)")->isVisible());
    for (const char* gap : {"mnuJFArray(2)", "mnuJFArray(3)", "mnuJFArray(4)", "mnuJFArray(5)"})
        EXPECT_FALSE(t.action(gap)->isVisible()) << gap;
    t.menus().mnuJFArray[2].Caption = "c:\\tm\\a & b.b50";
    EXPECT_TRUE(t.action("mnuJFArray(2)")->isVisible());
}

} // namespace
} // namespace tarvex
