#include "shell/menus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <map>

namespace tarvex {
namespace {

/// The letter that Alt, or the letter alone in an open menu, reaches the entry by; 0: none.
char accessKeyOf(const MenuEntry& entry)
{
    const std::string& caption = entry.item->Caption;
    for (std::size_t at = 0; (at = caption.find('&', at)) != std::string::npos && at + 1 < caption.size(); at += 2) {
        if (caption[at + 1] != '&') return static_cast<char>(std::tolower(caption[at + 1]));
    }
    if (entry.accessKey == '\0' || caption.find(entry.accessKey) == std::string::npos) return '\0';
    return static_cast<char>(std::tolower(entry.accessKey));
}

/// Separators and what only informs need no key; lists have the names that the user gave.
bool needsAccessKey(const Menus& menus, const MenuEntry& entry)
{
    return entry.item != nullptr && entry.item->Caption != std::string("-") && entry.item != &menus.mnuInsertQuickTip;
}

void expectOwnAccessKeys(const Menus& menus, const std::vector<MenuEntry>& entries, const std::string& where)
{
    std::map<char, std::string> taken;
    for (const MenuEntry& entry : entries) {
        if (!needsAccessKey(menus, entry)) continue;
        const char key = accessKeyOf(entry);
        EXPECT_NE(key, '\0') << entry.item->Name << " in " << where;
        const auto [other, isNew] = taken.try_emplace(key, entry.item->Name);
        EXPECT_TRUE(isNew) << entry.item->Name << " and " << other->second << " in " << where;
        expectOwnAccessKeys(menus, entry.entries, entry.item->Name);
    }
}

TEST(MenuBar, EveryCommandOfAMenuHasAnAccessKeyOfItsOwn)
{
    Menus menus;
    menus.mnuGames.Caption = "&Games"; // as the settings give it
    expectOwnAccessKeys(menus, menuBar(menus), "the menu bar");
    expectOwnAccessKeys(menus, mumMenuBar(menus), "the frame's menu bar");
    for (const MenuItem* root : {&menus.mnuRHMouse, &menus.mnuInsert, &menus.mnuRHList})
        expectOwnAccessKeys(menus, popUpMenu(menus, *root), root->Name);
}

TEST(MenuBar, TheItemsOfFixedListsShareNoAccessKey)
{
    Menus menus;
    for (MenuArray* list : {&menus.mnuHowDoIArray, &menus.mnuTMhelp, &menus.mnuWebTarvex}) {
        std::map<char, std::string> taken;
        for (int i = 0; i <= list->UBound(); ++i) {
            const char key = accessKeyOf({&(*list)[i], {}, {}, nullptr});
            EXPECT_NE(key, '\0') << (*list)[i].Name;
            EXPECT_TRUE(taken.try_emplace(key, (*list)[i].Name).second) << (*list)[i].Name;
        }
    }
}

TEST(MenuBar, ListsOfFilesAndNamesShowThemAsTheyAreAndCustomAppsMarkTheirAccessKey)
{
    Menus menus;
    for (const MenuArray* list : {&menus.mnuJFArray, &menus.mnuMFArray, &menus.mnuGameArray, &menus.mnuFavArray})
        EXPECT_TRUE(list->plain) << list->Name;
    EXPECT_FALSE(menus.mnuCustomApp.plain);
}

TEST(Menus, StartWithNothingToUndoAndWithListsThatAreEmpty)
{
    Menus menus;
    EXPECT_FALSE(menus.mnuEditUndo.Enabled);
    EXPECT_FALSE(menus.mnuEditRedo.Enabled);
    EXPECT_FALSE(menus.mnuViewMacros.Checked);
    for (MenuArray* list : {&menus.mnuJFArray, &menus.mnuMFArray, &menus.mnuGameArray, &menus.mnuFavArray}) {
        EXPECT_TRUE(list->plain) << list->Name;
        EXPECT_TRUE(list->hidesBlanks) << list->Name;
        EXPECT_FALSE((*list)[0].Enabled) << list->Name;
    }
    EXPECT_FALSE(menus.mnuCustomApp.plain);
}

} // namespace
} // namespace tarvex
