#include "desktop/theme.h"

#include "desktop/theme_style.h"

#include <QApplication>

namespace tarvex {

namespace {

struct Colours {
    QColor window, text, base, alternate, button, highlight, highlightedText, link, dimmed;
};

QPalette paletteOf(const Colours& colours)
{
    QPalette palette(colours.button, colours.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colours.text);
        palette.setColor(QPalette::Disabled, role, colours.dimmed);
    }
    palette.setColor(QPalette::Base, colours.base);
    palette.setColor(QPalette::AlternateBase, colours.alternate);
    palette.setColor(QPalette::ToolTipBase, colours.alternate);
    palette.setColor(QPalette::PlaceholderText, colours.dimmed);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.dimmed);
    palette.setColor(QPalette::Link, colours.link);
    return palette;
}

} // namespace

QPalette lightPalette()
{
    return paletteOf({.window = QColor(0xEF, 0xEF, 0xEF),
                      .text = QColor(0x1B, 0x1E, 0x23),
                      .base = Qt::white,
                      .alternate = QColor(0xF6, 0xF6, 0xF6),
                      .button = QColor(0xEF, 0xEF, 0xEF),
                      .highlight = QColor(0x2F, 0x6F, 0xB3),
                      .highlightedText = Qt::white,
                      .link = QColor(0x1F, 0x5F, 0xA8),
                      .dimmed = QColor(0x9A, 0x9D, 0xA2)});
}

QPalette darkPalette()
{
    return paletteOf({.window = QColor(0x2B, 0x2D, 0x31),
                      .text = QColor(0xE4, 0xE6, 0xE9),
                      .base = QColor(0x1F, 0x21, 0x24),
                      .alternate = QColor(0x35, 0x38, 0x3D),
                      .button = QColor(0x3A, 0x3D, 0x42),
                      .highlight = QColor(0x2F, 0x6F, 0xB3),
                      .highlightedText = Qt::white,
                      .link = QColor(0x6F, 0xAE, 0xEC),
                      .dimmed = QColor(0x7C, 0x80, 0x87)});
}

ThemeView::ThemeView(Appearance& appearance)
{
    QApplication::setStyle(new ThemeStyle);
    m_bindings.bind(appearance.theme, [](Appearance::Theme theme) {
        switch (theme) {
        case Appearance::Theme::System:
            QApplication::setPalette(QPalette());
            break;
        case Appearance::Theme::Light:
            QApplication::setPalette(lightPalette());
            break;
        case Appearance::Theme::Dark:
            QApplication::setPalette(darkPalette());
            break;
        }
    });
}

} // namespace tarvex
