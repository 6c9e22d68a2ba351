// What the style draws beyond the toolkit's own: compared with a list in tests/data/frames.txt. With
// TARVEX_UPDATE_TEXTS set the list is written instead; read the difference before committing it.

#include "desktop/theme.h"
#include "desktop/theme_style.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QStyleFactory>
#include <QTabBar>

#include <gtest/gtest.h>

#include <memory>

namespace tarvex {
namespace {

struct Control {
    const char* name;
    std::function<QWidget*(QWidget& parent)> make;
};

template <typename Widget, typename... Args> auto made(Args... args)
{
    return [args...](QWidget& parent) { return new Widget(args..., &parent); };
}

QWidget* tabsIn(QWidget& parent)
{
    auto* tabs = new QTabBar(&parent);
    tabs->addTab("    ");
    tabs->addTab("    ");
    return tabs;
}

QWidget* headerIn(QWidget& parent)
{
    auto* header = new QHeaderView(Qt::Horizontal, &parent);
    header->setModel(new QStandardItemModel(1, 2, header));
    header->setMinimumSize(90, 20);
    return header;
}

QWidget* downIn(QWidget& parent)
{
    auto* button = new QPushButton(&parent);
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

QWidget* groupIn(QWidget& parent)
{
    auto* group = new QGroupBox(" ", &parent);
    group->setMinimumSize(90, 60);
    return group;
}

const Control controls[] = {
    {"tick box", made<QCheckBox>()},
    {"radio button", made<QRadioButton>()},
    {"button", made<QPushButton>()},
    {"button that is down", downIn},
    {"field", made<QLineEdit>()},
    {"box of choices", made<QComboBox>()},
    {"number", made<QSpinBox>()},
    {"group", groupIn},
    {"text", made<QPlainTextEdit>()},
    {"slider", made<QSlider>(Qt::Horizontal)},
    {"scroll bar", made<QScrollBar>(Qt::Horizontal)},
    {"progress", made<QProgressBar>()},
    {"tabs", tabsIn},
    {"header", headerIn},
};

enum class State { Enabled, Disabled, Focused };

QImage picture(const Control& control, const QPalette& palette, State state, QStyle& style)
{
    QWidget window;
    window.setPalette(palette);
    window.resize(200, 120);
    QWidget* widget = control.make(window);
    widget->setStyle(&style);
    widget->setPalette(palette);
    widget->setGeometry(10, 10, 100, widget->sizeHint().height() > 80 ? 60 : widget->sizeHint().height());
    widget->setEnabled(state != State::Disabled);
    window.show();
    QApplication::setActiveWindow(&window);
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as after a Tab
    if (state == State::Focused)
        widget->setFocus(Qt::TabFocusReason);
    else if (QWidget* focused = window.focusWidget())
        focused->clearFocus();
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pixels differ from the toolkit's picture, where, and their colour; nothing where none does.
std::string difference(const QImage& toolkits, const QImage& ours)
{
    QRect area;
    int count = 0, red = 0, green = 0, blue = 0;
    for (int y = 0; y < ours.height(); ++y) {
        for (int x = 0; x < ours.width(); ++x) {
            if (ours.pixel(x, y) == toolkits.pixel(x, y)) continue;
            const QColor colour = ours.pixelColor(x, y);
            area |= QRect(x, y, 1, 1);
            ++count;
            red += colour.red();
            green += colour.green();
            blue += colour.blue();
        }
    }
    if (count == 0) return {};
    const QColor mean(red / count, green / count, blue / count);
    return std::to_string(count) + " pixels in " + std::to_string(area.width()) + " x " +
           std::to_string(area.height()) + " at " + std::to_string(area.left()) + "," + std::to_string(area.top()) +
           ", " + mean.name().toStdString();
}

std::string framesOfAll()
{
    const std::pair<const char*, QPalette> palettes[] = {
        {"light", lightPalette()}, {"dark", darkPalette()}, {"high contrast", highContrastPalette()}};
    const std::pair<const char*, State> states[] = {
        {"", State::Enabled}, {"disabled ", State::Disabled}, {"focused ", State::Focused}};
    const std::unique_ptr<QStyle> toolkits(QStyleFactory::create(QStringLiteral("Fusion")));
    ThemeStyle ours;
    std::string list;
    QApplication::setCursorFlashTime(0); // a caret is always there
    for (const auto& [appearance, palette] : palettes)
        for (const auto& [stateName, state] : states)
            for (const Control& control : controls) {
                const std::string found =
                    difference(picture(control, palette, state, *toolkits), picture(control, palette, state, ours));
                if (!found.empty())
                    list += std::string(appearance) + ", " + stateName + control.name + ": " + found + '\n';
            }
    return list;
}

TEST(ThemeStyle, DrawsTheFramesOfTheListAndNothingElse)
{
    const std::string found = framesOfAll();
    QFile list(QStringLiteral(TARVEX_SOURCE_DIRECTORY "/tests/data/frames.txt"));
    if (qEnvironmentVariableIsSet("TARVEX_UPDATE_TEXTS")) {
        ASSERT_TRUE(list.open(QIODevice::WriteOnly));
        list.write(QByteArray::fromStdString(found));
        list.close();
    }
    ASSERT_TRUE(list.open(QIODevice::ReadOnly));
    EXPECT_EQ(found, list.readAll().toStdString());
}

} // namespace
} // namespace tarvex
