#include "desktop/theme.h"

#include "desktop/theme_style.h"

#include <QApplication>
#include <QWidget>

namespace tarvex {

namespace {

struct Colours {
    QColor window, text, base, alternate, button, highlight, highlightedText, link, hint, dimmed;
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
    palette.setColor(QPalette::PlaceholderText, colours.hint);
    palette.setColor(QPalette::Highlight, colours.highlight);
    palette.setColor(QPalette::HighlightedText, colours.highlightedText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colours.dimmed);
    palette.setColor(QPalette::Link, colours.link);
    return palette;
}

/// As when the style itself is another one.
void announceChange()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(widget, &change);
    }
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
                      .hint = QColor(0x68, 0x6C, 0x72),
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
                      .hint = QColor(0x9A, 0x9F, 0xA6),
                      .dimmed = QColor(0x7C, 0x80, 0x87)});
}

QPalette highContrastPalette()
{
    return paletteOf({.window = Qt::black,
                      .text = Qt::white,
                      .base = Qt::black,
                      .alternate = QColor(0x20, 0x20, 0x20),
                      .button = Qt::black,
                      .highlight = Qt::yellow,
                      .highlightedText = Qt::black,
                      .link = QColor(0x7F, 0xD4, 0xFF),
                      .hint = QColor(0xC8, 0xC8, 0xC8),
                      .dimmed = QColor(0xA0, 0xA0, 0xA0)});
}

ThemeView::ThemeView(Appearance& appearance, Extras& extras)
{
    auto* style = new ThemeStyle; // the application's own from now on
    QApplication::setStyle(style);
    style->setDarkPanes(extras.on(extraKey::darkFiles));
    m_bindings.follow(extras.changed, [style, &extras](std::string_view key) {
        if (key != extraKey::darkFiles) return;
        style->setDarkPanes(extras.on(key));
        announceChange();
    });
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
        case Appearance::Theme::HighContrast:
            QApplication::setPalette(highContrastPalette());
            break;
        }
        announceChange(); // panes have palettes of their own, which don't follow
    });
}

} // namespace tarvex
