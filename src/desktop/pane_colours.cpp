#include "desktop/pane_colours.h"

#include "desktop/readable.h"
#include "desktop/text.h"
#include "desktop/theme_style.h"
#include "shell/dark_colours.h"

#include <QApplication>

namespace tarvex {

QColor PaneColours::text(Colour colour) const
{
    return toQt(isDarkened() ? onDarkGround(colour, toColour(ground), leastContrast) : colour);
}

QColor PaneColours::readable() const { return isDarkened() || !isDark(toColour(ground)) ? text(0) : Qt::white; }

PaneColours paneColours(Colour background)
{
    constexpr double easy = 7;
    const QPalette palette = QApplication::palette();
    const auto* style = qobject_cast<const ThemeStyle*>(QApplication::style());
    const bool darkens = style != nullptr && style->darkPanes() && isDark(toColour(palette.color(QPalette::Base)));
    if (!darkens || isDark(background)) return {toQt(background), 0};
    return {palette.color(QPalette::Base), isHighContrast(palette) ? easy : readableContrast};
}

} // namespace tarvex
