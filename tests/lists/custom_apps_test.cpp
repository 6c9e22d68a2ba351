#include "lists/custom_apps.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(CustomApps, WithNoneInUseTheirItemsAndTheDividerAreHidden)
{
    TestProgram t;
    for (int i = 0; i < 4; ++i) EXPECT_FALSE(t.menus().mnuCustomApp[i].Visible) << i;
    EXPECT_FALSE(t.menus().mnuAppDivider2.Visible);
}

TEST(CustomApps, ItemsTakeNamesAndVisibilityFromTheSettings)
{
    TestProgram t(false);
    t.setIni("Apps", "CustomAppName2", "Notepad & more");
    t.setIni("Apps", "CustomAppUse2", "1");
    t.setIni("Apps", "CustomAppName4", "Other");
    t.setIni("Apps", "CustomAppUse4", "-1");
    t.start();
    EXPECT_EQ(t.menus().mnuCustomApp[1].Caption.get(), "Notepad & more");
    EXPECT_TRUE(t.menus().mnuCustomApp[1].Visible);
    EXPECT_FALSE(t.menus().mnuCustomApp[0].Visible);
    EXPECT_FALSE(t.menus().mnuCustomApp[3].Visible) << "only 1 counts";
    EXPECT_TRUE(t.menus().mnuAppDivider2.Visible);
    EXPECT_EQ(t.settings().CustomAppPath.size(), 4U);
}

TEST(CustomApps, AnAppWithUse0KeepsItsNameAndPathInTheFile)
{
    TestProgram t(false);
    t.setIni("Apps", "CustomAppName1", "Kept");
    t.setIni("Apps", "CustomAppPath1", "c:\\kept.exe");
    t.setIni("Apps", "CustomAppUse1", "0");
    t.start();
    SaveApps(t.editor());
    EXPECT_FALSE(t.menus().mnuCustomApp[0].Visible);
    EXPECT_EQ(t.menus().mnuCustomApp[0].Caption.get(), "Kept");
    EXPECT_EQ(t.ini("Apps", "CustomAppName1"), "Kept");
    EXPECT_EQ(t.ini("Apps", "CustomAppPath1"), "c:\\kept.exe");
    EXPECT_EQ(t.ini("Apps", "CustomAppUse1"), "0");
}

TEST(CustomApps, TheDividerFollowsTheFlags)
{
    TestProgram t;
    t.settings().CustomAppUse = {0, 0, 0, 1};
    UpdateMnuCustomApps(t.editor());
    EXPECT_TRUE(t.menus().mnuAppDivider2.Visible);
    t.settings().CustomAppUse = {0, 0, 0, 0};
    UpdateMnuCustomApps(t.editor());
    EXPECT_FALSE(t.menus().mnuAppDivider2.Visible);
}

TEST(CustomApps, SaveAppsWritesAllKeys)
{
    TestProgram t;
    t.settings().CustomAppName = {"a", "b", "c", "d"};
    t.settings().CustomAppPath = {"1", "2", "3", "4"};
    t.settings().CustomAppUse = {1, 0, 0, 1};
    t.settings().TextFilePath = "c:\\x.txt";
    SaveApps(t.editor());
    EXPECT_EQ(t.ini("Apps", "CustomAppName4"), "d");
    EXPECT_EQ(t.ini("Apps", "CustomAppPath3"), "3");
    EXPECT_EQ(t.ini("Apps", "CustomAppUse4"), "1");
    EXPECT_EQ(t.ini("Apps", "TextFilePath"), "c:\\x.txt");
}

} // namespace
} // namespace tarvex
