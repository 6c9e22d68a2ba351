// Counts that only a damaged settings file holds.

#include "lists/favourites.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr int many = 30000;

std::string section(const std::string& name, const std::string& countKey, const std::vector<std::string>& stems)
{
    std::string text = "[" + name + "]\r\n" + countKey + "=" + std::to_string(many) + "\r\n";
    for (int i = 1; i <= many; ++i) {
        for (const std::string& stem : stems) text += stem + std::to_string(i) + "=" + stem + "\r\n";
    }
    return text;
}

TEST(LongLists, ThirtyThousandEntriesOfAllListsAreReadShownAndUpdated)
{
    TestProgram t(false);
    t.files.addFile(TestMachine::iniPath,
                    t.fileText(TestMachine::iniPath) + section("PreviousJoystickFiles", "JFArrayNum", {"JFPath"}) +
                        section("Favourites", "FavArrayNum", {"FavName", "FavJFPath", "FavMFPath"}) +
                        section("Games", "GameArrayNum", {"GameName", "GamePath", "GameDIRPath", "GameJF"}));
    t.start();
    EXPECT_EQ(t.menus().mnuJFArray.UBound(), many);
    EXPECT_EQ(t.menus().mnuFavArray.UBound(), many);
    EXPECT_EQ(t.menus().mnuGameArray.UBound(), many);
    t.files.addFile("c:\\a.b50", "");
    t.files.addFile("c:\\a.m50", "");
    t.openBoth("c:\\a.b50");
    EXPECT_EQ(t.ini("PreviousJoystickFiles", "JFPath1"), "c:\\a.b50");
    t.program().lists.favourites.current = {"new", "c:\\a.b50", "c:\\a.m50"};
    UpdateFavouritesMenu(t.program().lists.favourites);
    EXPECT_EQ(t.ini("Favourites", "FavName1"), "new");
    EXPECT_EQ(t.ini("Favourites", "FavName30000"), "FavName");
    EXPECT_EQ(t.ini("Favourites", "FavArrayNum"), "30000");
}

TEST(LongLists, ACountAloneGivesEmptyEntriesAndNoKeysUntilTheNextUpdate)
{
    TestProgram t(false);
    t.setIni("PreviousMacroFiles", "MFArrayNum", "30000");
    t.start();
    EXPECT_EQ(t.menus().mnuMFArray.UBound(), many);
    EXPECT_EQ(t.menus().mnuMFArray[many].Caption.get(), "");
    EXPECT_EQ(t.ini("PreviousMacroFiles", "MFPath1"), "(none)");
    t.menus().mnuPreviousClearAllM.Click();
    EXPECT_EQ(t.menus().mnuMFArray.UBound(), 0);
    EXPECT_EQ(t.ini("PreviousMacroFiles", "MFArrayNum"), "0");
}

} // namespace
} // namespace tarvex
