#include "shell/appearance.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* path = "c:\\tarvex\\Platform.ini";

TEST(Appearance, WithoutAFileItIsAsTheDesktop)
{
    MemoryFiles files;
    Menus menus;
    const Appearance appearance(files, "c:\\tarvex", menus);
    EXPECT_EQ(appearance.theme, Appearance::Theme::System);
    EXPECT_TRUE(menus.mnuAppearanceSystem.Checked);
    EXPECT_FALSE(menus.mnuAppearanceDark.Checked);
}

TEST(Appearance, ChosenCommandIsTickedKeptAndReadAgain)
{
    MemoryFiles files;
    files.createDirectory("c:\\tarvex");
    Menus menus;
    Appearance appearance(files, "c:\\tarvex", menus);
    int changes = 0;
    const Connection connection = appearance.theme.changed.connect([&] { ++changes; });
    menus.mnuAppearanceDark.Click();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(menus.mnuAppearanceDark.Checked);
    EXPECT_FALSE(menus.mnuAppearanceSystem.Checked);
    Menus nextMenus;
    const Appearance next(files, "c:\\tarvex", nextMenus);
    EXPECT_EQ(next.theme, Appearance::Theme::Dark);
    EXPECT_TRUE(nextMenus.mnuAppearanceDark.Checked);
}

TEST(Appearance, EachChoiceHasItsOwnWordInTheFile)
{
    MemoryFiles files;
    files.createDirectory("c:\\tarvex");
    Menus menus;
    Appearance appearance(files, "c:\\tarvex", menus);
    using Theme = Appearance::Theme;
    for (const auto& [theme, word] : {std::pair(Theme::System, "system"),
                                      {Theme::Light, "light"},
                                      {Theme::Dark, "dark"},
                                      {Theme::HighContrast, "contrast"}}) {
        appearance.choose(theme);
        EXPECT_EQ(files.read(path), std::string("[Appearance]\r\nTheme=") + word + "\r\n");
        Menus next;
        EXPECT_EQ(Appearance(files, "c:\\tarvex", next).theme, theme);
    }
    EXPECT_TRUE(menus.mnuAppearanceContrast.Checked);
}

TEST(Appearance, UnknownValueIsAsTheDesktopAndOtherKeysStay)
{
    MemoryFiles files;
    files.createDirectory("c:\\tarvex");
    files.write(path, "[Appearance]\r\nTheme=purple\r\nOther=1\r\n");
    Menus menus;
    Appearance appearance(files, "c:\\tarvex", menus);
    EXPECT_EQ(appearance.theme, Appearance::Theme::System);
    appearance.choose(Appearance::Theme::Light);
    EXPECT_EQ(files.read(path), "[Appearance]\r\nTheme=light\r\nOther=1\r\n");
}

} // namespace
} // namespace tarvex
