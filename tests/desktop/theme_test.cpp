#include "desktop/theme.h"

#include "desktop/documents/text/pane_view.h"
#include "desktop/icon_theme.h"
#include "desktop/pane_colours.h"
#include "desktop/theme_style.h"
#include "shell/dark_colours.h"
#include "support/memory_files.h"

#include <QApplication>
#include <QDirIterator>
#include <QPainter>
#include <QStyleOptionButton>
#include <QTextBlock>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// The application in the appearances that a test chooses; afterwards it is as the desktop again.
struct Themed : testing::Test {
    MemoryFiles files;
    Menus menus;
    ProfileFile ini{files, "c:\\tarvex\\Platform.ini"};
    Extras extras{ini};
    Appearance appearance{files, "c:\\tarvex", menus};
    ThemeView view{appearance, extras};

    Themed() { files.createDirectory("c:\\tarvex"); }
    ~Themed() override { appearance.choose(Appearance::Theme::System); }
};
using ThemeViewTest = Themed;

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

TEST_F(ThemeViewTest, DarkAppearanceTintsTheIconsLightAndBack)
{
    const QIcon icon = themeIcon("file-save");
    appearance.choose(Appearance::Theme::Light);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
    const int onLight = lightness(icon);
    appearance.choose(Appearance::Theme::Dark);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 80);
    const int onDark = lightness(icon);
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

TEST_F(ThemeViewTest, AsTheDesktopHasItTheColoursAreNoneOfThePrograms)
{
    appearance.choose(Appearance::Theme::Dark);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), darkPalette().color(QPalette::Window));
    appearance.choose(Appearance::Theme::Light);
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), lightPalette().color(QPalette::Highlight));
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), lightPalette().color(QPalette::Window));
    appearance.choose(Appearance::Theme::HighContrast);
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(Qt::yellow));
    appearance.choose(Appearance::Theme::System);
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight),
              QApplication::style()->standardPalette().color(QPalette::Highlight));
}

TEST_F(ThemeViewTest, OnDarkGroundEmptyTickBoxesAndRadioButtonsHaveVisibleFrames)
{
    appearance.choose(Appearance::Theme::Dark);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button})
            EXPECT_GT(contrast(element, ground), 70) << element << " on " << ground;
    }
}

TEST_F(ThemeViewTest, OnDarkGroundOtherControlsHaveNoBrightFrames)
{
    appearance.choose(Appearance::Theme::Dark);
    for (const auto element : {QStyle::PE_PanelButtonCommand, QStyle::PE_FrameLineEdit, QStyle::PE_Frame})
        EXPECT_LT(contrast(element, QPalette::Window), 70) << element;
}

double contrastOf(const QPalette& palette, QPalette::ColorRole text, QPalette::ColorRole ground)
{
    const auto colour = [&palette](QPalette::ColorRole role) {
        const QColor of = palette.color(QPalette::Active, role);
        return of.red() | of.green() << 8 | of.blue() << 16;
    };
    return tarvex::contrastOf(colour(text), colour(ground));
}

TEST_F(ThemeViewTest, TextsAreReadableInEachAppearance)
{
    constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Base},
        {QPalette::Link, QPalette::Window},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Highlight, QPalette::Base},
    };
    for (const auto& [text, ground] : pairs) {
        const double least = text == QPalette::Highlight ? 3 : 4.5; // a frame needs less than letters
        EXPECT_GE(contrastOf(lightPalette(), text, ground), least) << text << " on " << ground;
        EXPECT_GE(contrastOf(darkPalette(), text, ground), least) << text << " on " << ground;
        EXPECT_GE(contrastOf(highContrastPalette(), text, ground), 7) << text << " on " << ground;
    }
}

TEST_F(ThemeViewTest, WithHighContrastEveryControlHasAFrameAndThatOfTheFocusIsYellow)
{
    appearance.choose(Appearance::Theme::HighContrast);
    const QPalette palette = QApplication::palette();
    EXPECT_TRUE(isHighContrast(palette));
    const auto colourAtTheEdge = [&palette](QStyle::PrimitiveElement element, QStyle::State state) {
        QStyleOptionButton option;
        option.palette = palette;
        option.state = QStyle::State_Enabled | state;
        option.rect = QRect(0, 0, 60, 30);
        QImage image(60, 30, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(element, &option, &painter);
        return image.pixelColor(30, 0);
    };
    for (const auto element : {QStyle::PE_PanelButtonCommand, QStyle::PE_FrameLineEdit, QStyle::PE_Frame}) {
        EXPECT_EQ(colourAtTheEdge(element, QStyle::State_None), QColor(Qt::white)) << element;
        EXPECT_EQ(colourAtTheEdge(element, QStyle::State_HasFocus), QColor(Qt::yellow)) << element;
    }
}

// ---- panes ----------------------------------------------------------------------------------------------------------

constexpr Colour white = 0xFFFFFF;
constexpr Colour blue = 0xFF0000;

TEST_F(ThemeViewTest, PanesAreDarkInDarkWindowsAndKeepTheirColoursInLightOnes)
{
    appearance.choose(Appearance::Theme::Light);
    EXPECT_EQ(paneColours(white).ground, QColor(Qt::white));
    EXPECT_EQ(paneColours(white).text(blue), QColor(Qt::blue));
    appearance.choose(Appearance::Theme::Dark);
    const PaneColours dark = paneColours(white);
    EXPECT_EQ(dark.ground, darkPalette().color(QPalette::Base));
    EXPECT_GT(dark.text(blue).lightness(), QColor(Qt::blue).lightness());
    EXPECT_EQ(dark.text(blue).hslHue(), QColor(Qt::blue).hslHue());
    EXPECT_GT(dark.text(0).lightness(), 220) << "black";
}

TEST_F(ThemeViewTest, ADarkBackgroundOfTheUsersOwnStaysAsItIs)
{
    constexpr Colour navy = 0x400000;
    appearance.choose(Appearance::Theme::Dark);
    EXPECT_EQ(paneColours(navy).ground, QColor(0, 0, 0x40));
    EXPECT_EQ(paneColours(navy).text(blue), QColor(Qt::blue));
}

TEST_F(ThemeViewTest, WithoutTheTickPanesKeepTheirColoursInDarkWindows)
{
    appearance.choose(Appearance::Theme::Dark);
    extras.set(extraKey::darkFiles, false);
    EXPECT_EQ(paneColours(white), (PaneColours{Qt::white, 0}));
    extras.set(extraKey::darkFiles, true);
    EXPECT_TRUE(paneColours(white).isDarkened());
}

TEST_F(ThemeViewTest, APaneFollowsAppearanceAndTickAndItsTextKeepsItsColours)
{
    Pane pane;
    pane.setText("BTN S1");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(blue);
    PaneView shown(pane);
    shown.show();
    const auto colourShown = [&shown] {
        QApplication::processEvents();
        shown.formatAll();
        return shown.document()->firstBlock().layout()->formats().value(0).format.foreground().color();
    };
    appearance.choose(Appearance::Theme::Light);
    EXPECT_EQ(colourShown(), QColor(Qt::blue));
    appearance.choose(Appearance::Theme::Dark);
    EXPECT_EQ(colourShown(), paneColours(white).text(blue));
    EXPECT_EQ(shown.palette().color(QPalette::Base), darkPalette().color(QPalette::Base));
    EXPECT_NE(colourShown(), QColor(Qt::blue));
    extras.set(extraKey::darkFiles, false);
    EXPECT_EQ(colourShown(), QColor(Qt::blue));
    EXPECT_EQ(shown.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(pane.SelColor(), blue);
    EXPECT_EQ(pane.BackColor, white);
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
