#include "desktop/pane_colours.h"

#include "desktop/text.h"
#include "desktop/theme_style.h"
#include "shell/dark_colours.h"

#include <QApplication>

namespace tarvex {

namespace {

Colour fromQt(const QColor& colour) { return colour.red() | colour.green() << 8 | colour.blue() << 16; }

} // namespace

QColor PaneColours::text(Colour colour) const
{
    return toQt(isDarkened() ? onDarkGround(colour, fromQt(ground), leastContrast) : colour);
}

PaneColours paneColours(Colour background)
{
    constexpr double readable = 4.5; // for text of any size, as the Web Content Accessibility Guidelines have it
    constexpr double easy = 7;
    const QPalette palette = QApplication::palette();
    const auto* style = qobject_cast<const ThemeStyle*>(QApplication::style());
    const bool darkens = style != nullptr && style->darkPanes() && isDark(fromQt(palette.color(QPalette::Base)));
    if (!darkens || isDark(background)) return {toQt(background), 0};
    return {palette.color(QPalette::Base), isHighContrast(palette) ? easy : readable};
}

} // namespace tarvex
