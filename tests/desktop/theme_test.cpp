#include "desktop/theme.h"

#include "desktop/icon_theme.h"
#include "support/memory_files.h"

#include <QApplication>
#include <QDirIterator>
#include <QPainter>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// Lightness, from 0 to 255, of what the icon draws in the text colour.
int lightness(const QIcon& icon)
{
    const QImage image = icon.pixmap(QSize(32, 32)).toImage();
    std::vector<int> greys;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.alpha() == 255 && colour.saturation() < 60) greys.push_back(colour.lightness());
        }
    }
    if (greys.empty()) return -1;
    std::sort(greys.begin(), greys.end());
    return greys[greys.size() / 2];
}

TEST(ThemeView, DarkAppearanceTintsTheIconsLightAndBack)
{
    MemoryFiles files;
    Menus menus;
    Appearance appearance(files, "c:\\tarvex", menus);
    const ThemeView view(appearance);
    const QIcon icon = themeIcon("file-save");
    appearance.choose(Appearance::Theme::Light);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
    const int onLight = lightness(icon);
    appearance.choose(Appearance::Theme::Dark);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 80);
    const int onDark = lightness(icon);
    appearance.choose(Appearance::Theme::System);
    EXPECT_GE(onLight, 0);
    EXPECT_LT(onLight, 80);
    EXPECT_GT(onDark, 180);
}

/// How much lighter than the ground the lightest pixel of an empty tick box or radio button is, 0 to 255.
int contrast(QStyle::PrimitiveElement element, QPalette::ColorRole ground)
{
    constexpr int side = 16;
    const QPalette palette = QApplication::palette();
    QStyleOptionButton option;
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    option.rect = QRect(4, 4, side, side);
    QImage image(side + 8, side + 8, QImage::Format_RGB32);
    image.fill(palette.color(ground));
    QPainter painter(&image);
    QApplication::style()->drawPrimitive(element, &option, &painter);
    int lightest = 0;
    for (int i = 0; i < side; ++i) lightest = std::max(lightest, image.pixelColor(4 + i, 4 + side / 2).lightness());
    return lightest - palette.color(ground).lightness();
}

TEST(ThemeView, OnDarkGroundEmptyTickBoxesAndRadioButtonsHaveVisibleFrames)
{
    MemoryFiles files;
    Menus menus;
    Appearance appearance(files, "c:\\tarvex", menus);
    const ThemeView view(appearance);
    appearance.choose(Appearance::Theme::Dark);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button})
            EXPECT_GT(contrast(element, ground), 70) << element << " on " << ground;
    }
    appearance.choose(Appearance::Theme::System);
}

TEST(ThemeIcon, EveryIconDrawsSomethingAtEverySize)
{
    int icons = 0;
    for (QDirIterator files(":/icons"); files.hasNext(); ++icons) {
        files.next();
        const QIcon icon = themeIcon(files.fileInfo().completeBaseName());
        for (const int size : {16, 22, 44}) {
            const QImage image = icon.pixmap(QSize(size, size)).toImage();
            bool drawn = false;
            for (int i = 0; i < size * size && !drawn; ++i) drawn = qAlpha(image.pixel(i % size, i / size)) > 128;
            EXPECT_TRUE(drawn) << files.fileName().toStdString() << " at " << size;
        }
    }
    EXPECT_GT(icons, 30);
}

TEST(ThemeIcon, UnknownNameIsEmpty)
{
    const QImage image = themeIcon("no-such-icon").pixmap(QSize(16, 16)).toImage();
    for (int i = 0; i < 256; ++i) EXPECT_EQ(qAlpha(image.pixel(i % 16, i / 16)), 0);
}

} // namespace
} // namespace tarvex
