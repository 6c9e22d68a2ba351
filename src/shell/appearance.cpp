#include "shell/appearance.h"

#include <string_view>

namespace tarvex {

namespace {

struct Choice {
    Appearance::Theme theme;
    std::string_view value; ///< in the file
    MenuItem Menus::*item;
};

constexpr Choice choices[] = {
    {Appearance::Theme::System, "system", &Menus::mnuAppearanceSystem},
    {Appearance::Theme::Light, "light", &Menus::mnuAppearanceLight},
    {Appearance::Theme::Dark, "dark", &Menus::mnuAppearanceDark},
    {Appearance::Theme::HighContrast, "contrast", &Menus::mnuAppearanceContrast},
};

constexpr std::string_view section = "Appearance";
constexpr std::string_view key = "Theme";

} // namespace

Appearance::Appearance(FileSystem& files, const std::string& programDirectory, Menus& menus)
    : m_ini(files, programDirectory + "\\Platform.ini"), m_menus(menus)
{
    const std::string value = m_ini.readString(section, key, "");
    for (const Choice& choice : choices) {
        if (value == choice.value) theme = choice.theme;
        (menus.*choice.item).handler = [this, chosen = choice.theme] { choose(chosen); };
    }
    tick();
}

void Appearance::choose(Theme chosen)
{
    theme = chosen;
    tick();
    for (const Choice& choice : choices) {
        if (choice.theme == chosen) m_ini.writeString(section, key, choice.value);
    }
}

void Appearance::tick()
{
    for (const Choice& choice : choices) (m_menus.*choice.item).Checked = choice.theme == theme.get();
}

} // namespace tarvex
