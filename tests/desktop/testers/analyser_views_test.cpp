#include "desktop/pane_colours.h"
#include "desktop/readable.h"
#include "desktop/testers/field_view.h"
#include "desktop/testers/joy_plot_view.h"
#include "desktop/testers/tca_view.h"
#include "desktop/theme.h"
#include "shell/dark_colours.h"
#include "support/test_program.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr QRgb white = 0xFFFFFFFF;
constexpr QRgb black = 0xFF000000;
constexpr QRgb blue = 0xFF0000FF;
constexpr QRgb red = 0xFFFF0000;
constexpr QRgb green = 0xFF00FF00;

/// A window of an analyser over the whole program.
template <typename View> struct AnalyserTest : testing::Test, TestProgram {
    FieldView* field = nullptr;

    /// Waits for the next tick and what it paints.
    void waitUntil(const std::function<bool()>& condition) { EXPECT_TRUE(QTest::qWaitFor(condition, 20'000)); }
    QRgb at(const FieldView& view, double x, double y)
    {
        const QImage& canvas = view.canvas();
        return canvas.pixel(static_cast<int>(std::lround(x / 65535 * (canvas.width() - 1))),
                            static_cast<int>(std::lround(y / 65535 * (canvas.height() - 1))));
    }
    void trigger(QWidget& view, const char* name)
    {
        auto* action = view.findChild<QAction*>(QLatin1String(name));
        ASSERT_NE(action, nullptr) << name;
        action->trigger();
    }
};

struct JoyPlotViewTest : AnalyserTest<JoyPlotView> {
    JoyPlot& form = program().testers.joyPlot;
    JoyPlotView view{form, nullptr};

    JoyPlotViewTest()
    {
        joystick.position.dwXpos = 10000;
        joystick.position.dwYpos = 20000;
        menus().mnuAppsJoyAnalyser.Click();
        field = view.findChild<FieldView*>("PicJoy");
        waitUntil([&] { return form.LastX == 10000 && form.PicJoy.strokes().empty(); });
    }
};

TEST_F(JoyPlotViewTest, ShowsCrossMarkCentreLinesAndGrid)
{
    EXPECT_EQ(at(*field, 10000, 20000), blue);
    EXPECT_EQ(at(*field, 10500, 20000), black);
    EXPECT_EQ(at(*field, 32768, 5000), red);
    EXPECT_EQ(at(*field, 60000, 60000), white);
    int dots = 0;
    for (int x = 0; x < field->canvas().width(); ++x)
        dots +=
            field->canvas().pixel(x, static_cast<int>(std::lround(8192.0 / 65535 * (field->canvas().height() - 1)))) ==
                    qRgb(85, 128, 151)
                ? 1
                : 0;
    EXPECT_GT(dots, field->canvas().width() / 4);
    EXPECT_LT(dots, field->canvas().width() / 2);
}

TEST_F(JoyPlotViewTest, EveryReportBetweenTwoFramesIsInTheTrail)
{
    for (std::uint32_t x = 2000; x < 30000; x += 2000) joystick.send(x, 50000, 100);
    waitUntil([&] { return form.waiting.empty() && form.PicJoy.strokes().empty(); });
    for (std::uint32_t x = 2000; x < 30000; x += 2000) EXPECT_EQ(at(*field, x, 50000), blue) << x;
    EXPECT_EQ(form.numbers.statistics.reports(), 14U);
}

TEST_F(JoyPlotViewTest, TheScreenShowsAllThatWasDrawn)
{
    const auto onScreen = [&] {
        return view.screen()
            ->grabWindow(view.winId())
            .toImage()
            .convertToFormat(QImage::Format_RGB32)
            .copy(QRect(field->mapTo(&view, QPoint()), field->size()));
    };
    for (const auto& [x, y] : {std::pair(2000U, 50000U), {32768U, 20000U}, {64000U, 1000U}, {32768U, 32768U}}) {
        joystick.send(x, y);
        waitUntil([&] { return form.LastX == x && form.PicJoy.strokes().empty(); });
        waitUntil([&] { return onScreen() == field->canvas(); });
    }
}

TEST_F(JoyPlotViewTest, TheCentreLineTurnsGreen)
{
    joystick.send(32768, 20000);
    waitUntil([&] { return form.LastX == 32768 && form.PicJoy.strokes().empty(); });
    EXPECT_EQ(at(*field, 32768, 5000), green);
    EXPECT_EQ(at(*field, 60000, 32768), red);
}

TEST_F(JoyPlotViewTest, InDarkWindowsTheFieldIsDarkAndReadableAndItsTrailStays)
{
    Appearance appearance(files, platform.programDirectory, menus());
    const ThemeView theme(appearance, program().shared.extras);
    appearance.choose(Appearance::Theme::Dark);
    const PaneColours dark = paneColours(plotColour::field);
    ASSERT_TRUE(dark.isDarkened());
    joystick.send(12000, 40000);
    waitUntil([&] { return form.LastX == 12000 && form.PicJoy.strokes().empty(); });
    EXPECT_EQ(at(*field, 60000, 60000), dark.ground.rgb());
    EXPECT_EQ(at(*field, 10500, 20000), dark.ground.rgb()) << "the old cross is erased";
    EXPECT_EQ(at(*field, 12500, 40000), dark.text(plotColour::cross).rgb());
    for (const auto& [x, y] : {std::pair(10000, 20000), {12000, 40000}})
        EXPECT_EQ(at(*field, x, y), dark.text(plotColour::mark).rgb()) << x;
    for (const Colour used : {plotColour::cross, plotColour::mark, plotColour::centred, plotColour::offCentre})
        EXPECT_GE(contrastOf(toColour(dark.text(used)), toColour(dark.ground)), readableContrast) << used;

    appearance.choose(Appearance::Theme::Light);
    EXPECT_EQ(at(*field, 60000, 60000), white);
    EXPECT_EQ(at(*field, 10000, 20000), blue);
    EXPECT_EQ(at(*field, 12500, 40000), black);
    appearance.choose(Appearance::Theme::System);
}

TEST_F(JoyPlotViewTest, CommandsOfTheMenuReachTheAnalyser)
{
    trigger(view, "mnuGrid");
    EXPECT_EQ(form.GridOn, 0);
    EXPECT_FALSE(view.findChild<QAction*>("mnuGrid")->isChecked());
    trigger(view, "mnuZoom");
    EXPECT_EQ(form.PicJoy.low(), 22768);
    trigger(view, "mnuClear");
    EXPECT_EQ(at(*field, 10000, 20000), white);
}

TEST_F(JoyPlotViewTest, AnotherSizeStartsANewTrailWithTheLinesInPlace)
{
    view.resize(view.size() + QSize(100, 60));
    waitUntil([&] { return form.PicJoy.strokes().empty() && field->canvas().size() == field->size(); });
    QApplication::processEvents();
    EXPECT_EQ(field->width(), form.InnerWidth);
    EXPECT_EQ(at(*field, 32768, 5000), red);
}

TEST_F(JoyPlotViewTest, MaintainingTheRatioMakesWindowAndFieldFit)
{
    view.resize(700, 500);
    QApplication::processEvents();
    trigger(view, "mnuMaintain");
    waitUntil([&] { return field->width() == field->height() && field->parentWidget()->size() == field->size(); });
    EXPECT_LT(view.width(), 700);
}

TEST_F(JoyPlotViewTest, NothingTicksWhileTheDeviceIsSilent)
{
    QTest::qWait(50); // the frame after the first tick
    int ticks = 0;
    const auto tick = form.JoyTimer.Tick;
    form.JoyTimer.Tick = [&] {
        ++ticks;
        tick();
    };
    QTest::qWait(100);
    EXPECT_EQ(ticks, 0);
    joystick.send(5, 5);
    waitUntil([&] { return ticks == 1; });
}

TEST_F(JoyPlotViewTest, UnpluggingShowsItsBoxOnce)
{
    joystick.unplug();
    waitUntil([&] { return !dialogues.boxes.empty(); });
    QApplication::processEvents();
    EXPECT_EQ(dialogues.boxes.size(), 1U);
}

TEST_F(JoyPlotViewTest, ThePictureIsAPngOfTheField)
{
    QImage image;
    EXPECT_TRUE(image.loadFromData(QByteArray::fromStdString(form.numbers.picture()), "PNG"));
    EXPECT_EQ(image.size(), field->canvas().size());
    EXPECT_EQ(image.pixel(image.width() - 3, 2), white);
}

TEST_F(JoyPlotViewTest, TheNumbersUnfoldAndTheirButtonsWork)
{
    auto* panel = view.findChild<QWidget*>("Numbers");
    EXPECT_FALSE(panel->isVisible());
    trigger(view, "mnuNumbers");
    EXPECT_TRUE(panel->isVisible());
    joystick.send(33000, 20000);
    waitUntil([&] { return view.findChild<QLabel*>("Cell_0_0")->text() == "33000"; });
    EXPECT_EQ(view.findChild<QComboBox*>("Device")->currentText(), "TM F-22 Pro (4 axes, 4 buttons)");
    QTest::mouseClick(view.findChild<QPushButton*>("CopySummary"), Qt::LeftButton);
    EXPECT_NE(clipboard.content.text, "");
}

TEST_F(JoyPlotViewTest, UnfoldingTheNumbersKeepsTheTrail)
{
    joystick.send(60000, 50000);
    waitUntil([&] { return form.LastX == 60000 && form.PicJoy.strokes().empty(); });
    const QSize before = field->size();
    trigger(view, "mnuNumbers");
    QApplication::processEvents();
    EXPECT_EQ(field->size(), before);
    EXPECT_EQ(at(*field, 10000, 20000), blue);
    trigger(view, "mnuNumbers");
    QApplication::processEvents();
    EXPECT_EQ(field->size(), before);
    EXPECT_EQ(at(*field, 10000, 20000), blue);
}

TEST_F(JoyPlotViewTest, ALongerVerdictKeepsTheTrail)
{
    trigger(view, "mnuNumbers");
    QApplication::processEvents();
    const QSize before = field->size();
    form.numbers.Verdict.Caption =
        "Centred. 1 spike on X in 60 s: clean or replace that pot. 2 spikes on Y in 60 s: "
        "clean or replace that pot. 3 spikes on Throttle in 60 s: clean or replace that pot.";
    QApplication::processEvents();
    EXPECT_EQ(field->size(), before);
    for (auto& row : form.numbers.Cells) {
        row[5].Caption = "-100.0 %";
        row[6].Caption = "1234.5 (2999)"; // a stick that trembles a lot
    }
    QApplication::processEvents();
    EXPECT_EQ(field->size(), before);
    form.numbers.Verdict.Caption = "Centred.";
    QApplication::processEvents();
    EXPECT_EQ(field->size(), before);
    EXPECT_EQ(at(*field, 10000, 20000), blue);
}

TEST_F(JoyPlotViewTest, ReopeningStartsAfresh)
{
    view.close();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(joystick.users, 0);
    menus().mnuAppsJoyAnalyser.Click();
    waitUntil([&] { return view.isVisible() && form.LastX == 10000 && form.PicJoy.strokes().empty(); });
    EXPECT_EQ(at(*field, 10000, 20000), blue);
}

struct TcaViewTest : AnalyserTest<TcaView> {
    TCAform& form = program().testers.controllerAnalyser;
    TcaView view{form, nullptr};

    TcaViewTest()
    {
        settings().UseTCA = 1;
        joystick.position.dwZpos = 10000;
        joystick.position.dwRpos = 50000;
        menus().mnuAppsJoyAnalyser.Click();
        waitUntil([&] { return form.LastThrottle == 10000 && form.PicRudder.strokes().empty(); });
    }
};

TEST_F(TcaViewTest, ShowsThrottleAndRuddersOnTheirStrips)
{
    constexpr QRgb yellow = 0xFFFFFF00;
    const auto& throttle = *view.findChild<FieldView*>("PicThrottle");
    const auto& rudder = *view.findChild<FieldView*>("PicRudder");
    EXPECT_EQ(at(throttle, 30000, 10000), yellow);
    EXPECT_EQ(at(throttle, 30000, 62000), black);
    EXPECT_EQ(at(throttle, 30000, 32768), red);
    EXPECT_EQ(at(rudder, 50000, 30000), yellow);
}

TEST_F(TcaViewTest, AButtonLightsItsLamp)
{
    joystick.position.dwButtons = 2;
    joystick.send();
    waitUntil([&] { return form.JoyButtonAnalogue[1].isHeld(); });
    EXPECT_EQ(view.findChild<QLabel*>("JoyButtonAnalogue_1")->palette().color(QPalette::Window), QColor(255, 192, 128));
}

TEST_F(TcaViewTest, ManyPressedButtonsDoNotWidenTheWindow)
{
    const int width = view.minimumSizeHint().width();
    JoystickReport report;
    report.buttons.set();
    joystick.reported(report);
    waitUntil([&] { return !form.MoreButtons.Caption.get().empty(); });
    EXPECT_EQ(view.minimumSizeHint().width(), width);
}

TEST_F(TcaViewTest, DensityAndSensitivityAreChosenInTheMenu)
{
    trigger(view, "mnuDensityArray(2)");
    EXPECT_EQ(settings().TCAGridCellSize, 20);
    trigger(view, "SensitivityArray(0)");
    EXPECT_EQ(settings().TCACentreSensitivity, 1);
    EXPECT_TRUE(view.findChild<QAction*>("SensitivityArray(0)")->isChecked());
}

} // namespace
} // namespace tarvex
