#pragma once

#include "desktop/bind.h"
#include "shell/appearance.h"

#include <QPalette>

namespace tarvex {

/// Colours of the windows.
QPalette lightPalette();
QPalette darkPalette();

/// Gives the application its style, and the colours that the user chose now and whenever another choice is made.
class ThemeView {
public:
    /// The appearance outlives this.
    explicit ThemeView(Appearance& appearance);

private:
    Bindings m_bindings;
};

} // namespace tarvex
