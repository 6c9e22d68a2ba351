#pragma once

#include "platform/profile_file.h"
#include "shell/menus.h"

namespace tarvex {

/// Whether the program shows itself light, dark, with high contrast or as the desktop does. Kept as Theme in the
/// section Appearance of Platform.ini ("light", "dark" or "contrast"; anything else is as the desktop), written when
/// the user chooses.
class Appearance {
public:
    enum class Theme { System, Light, Dark, HighContrast };

    /// Takes over the commands of the appearance menu. Both outlive this, or their commands are not run.
    Appearance(FileSystem& files, const std::string& programDirectory, Menus& menus);

    Property<Theme> theme = Theme::System;
    void choose(Theme chosen);

private:
    void tick();

    ProfileFile m_ini;
    Menus& m_menus;
};

} // namespace tarvex
