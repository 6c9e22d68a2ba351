#include "shell/toolbar_buttons.h"

#include "shell/mum.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace tarvex {
namespace {

constexpr int helpButton = 47; ///< its tip is that of the preferences

void collectKeys(const std::vector<MenuEntry>& entries, std::map<const MenuItem*, std::string>& keys)
{
    for (const MenuEntry& entry : entries) {
        if (entry.item != nullptr && !entry.keys.empty()) keys[entry.item] = entry.keys;
        collectKeys(entry.entries, keys);
    }
}

/// The keys that the menu bar shows beside a command; empty for none.
struct MenuKeys {
    Menus menus;
    std::map<const MenuItem*, std::string> keys;
    MenuKeys() { collectKeys(menuBar(menus), keys); }
    std::string of(MenuItem Menus::*command) { return keys[&(menus.*command)]; }
};

/// What the tip has in brackets, written as a key: "Shift F11" as "Shift+F11".
std::string keyInTip(std::string_view tip)
{
    const std::size_t open = tip.rfind('(');
    if (open == std::string_view::npos || !tip.ends_with(')')) return {};
    std::string key(tip.substr(open + 1, tip.size() - open - 2));
    std::ranges::replace(key, ' ', '+');
    return key;
}

TEST(ToolbarButtons, StandInOrderAndFillTheBar)
{
    int number = 0;
    for (const ToolbarButton& button : toolbarButtons()) EXPECT_EQ(button.number, ++number);
    EXPECT_EQ(number, Mum::toolbarButtons);
}

TEST(ToolbarButtons, SeparatorsStandWhereTheBarHasNoCommand)
{
    const std::set<int> expected{4, 6, 10, 13, 17, 19, 22, 31, 35, 43, 45};
    std::set<int> separators;
    for (const ToolbarButton& button : toolbarButtons()) {
        if (!button.isSeparator()) continue;
        separators.insert(button.number);
        EXPECT_EQ(button.joystick, nullptr) << button.number;
        EXPECT_EQ(button.hoverText, "") << button.number;
    }
    EXPECT_EQ(separators, expected);
}

TEST(ToolbarButtons, EveryButtonHasHoverTextCommandAndAnIconOfItsOwn)
{
    std::set<std::string_view> icons;
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.isSeparator()) continue;
        EXPECT_NE(button.hoverText, "") << button.number;
        if (button.number == toolbarButton::picture) continue;
        EXPECT_NE(button.joystick, nullptr) << button.number;
        EXPECT_TRUE(icons.insert(button.icon).second) << button.icon;
    }
}

TEST(ToolbarButtons, EveryIconIsAFile)
{
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.icon.empty()) continue;
        const std::string file = std::string(button.icon) + ".svg";
        EXPECT_TRUE(std::filesystem::exists(TARVEX_SOURCE_DIRECTORY "/resources/icons/" + file)) << file;
    }
}

TEST(ToolbarButtons, TheShortcutInATipIsThatOfTheRow)
{
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.isSeparator()) continue;
        EXPECT_EQ(keyInTip(button.tip), button.shortcut) << button.number;
        EXPECT_EQ(keyInTip(button.both.tip), button.both.shortcut) << button.number;
    }
}

TEST(ToolbarButtons, TheShortcutOfARowIsThatOfItsCommandInTheMenuBar)
{
    MenuKeys menu;
    for (const ToolbarButton& button : toolbarButtons()) {
        if (button.both.command != nullptr && !button.both.shortcut.empty()) {
            EXPECT_EQ(menu.of(button.both.command), button.both.shortcut) << button.number;
        }
        if (button.shortcut.empty() || button.number == helpButton) continue;
        EXPECT_EQ(menu.of(button.joystick), button.shortcut) << button.number;
    }
}

TEST(ToolbarButtons, TheHelpButtonHasTheTipOfThePreferences)
{
    EXPECT_EQ(toolbarButtonAt(helpButton)->tip, toolbarButtonAt(toolbarButton::preferences)->tip);
    EXPECT_EQ(MenuKeys().of(toolbarButtonAt(helpButton)->joystick), "F1");
}

TEST(ToolbarButtons, ANumberOutsideTheBarHasNoRow)
{
    EXPECT_EQ(toolbarButtonAt(0), nullptr);
    EXPECT_EQ(toolbarButtonAt(48), nullptr);
    EXPECT_EQ(toolbarButtonAt(toolbarButton::compile), nullptr);
    EXPECT_EQ(toolbarButtonAt(47)->number, 47);
}

} // namespace
} // namespace tarvex
