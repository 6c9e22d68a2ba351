#pragma once

#include "desktop/bind.h"
#include "shell/appearance.h"
#include "shell/extras.h"

#include <QPalette>

namespace tarvex {

/// Colours of the windows.
QPalette lightPalette();
QPalette darkPalette();
QPalette highContrastPalette();

/// Gives the application its style, and the colours that the user chose now and whenever another choice is made. In
/// dark windows the panes are dark, too, while the user wants that.
class ThemeView {
public:
    /// Both outlive this.
    ThemeView(Appearance& appearance, Extras& extras);

private:
    Bindings m_bindings;
};

} // namespace tarvex
