#include "testers/tca.h"

#include "shell/handler.h"
#include "testers/button_text.h"

namespace tarvex {

namespace {

constexpr Colour markerColour = 0x00FFFF; // yellow
constexpr Colour stripColour = 0;
constexpr int axisEnd = 65536;
constexpr int mostDivisions = 256; ///< what a settings file may ask for

bool has(const TCAform& window, std::uint32_t capability) { return (window.Caps.wCaps & capability) != 0; }

void acrossThrottle(TCAform& window, float at, Colour colour, bool dotted = false)
{
    window.PicThrottle.line(0, at, plotLast, at, colour, dotted);
}
void acrossRudder(TCAform& window, float at, Colour colour, bool dotted = false)
{
    window.PicRudder.line(at, 0, at, plotLast, colour, dotted);
}

/// Both bounds are outside.
Colour bandColour(const TCAform& window, std::uint32_t position)
{
    const float halfWidth = window.editor.shared.settings.TCACentreSensitivity;
    const float distance = static_cast<float>(position) - static_cast<float>(axisCentre);
    const bool centred = distance > -halfWidth && distance < halfWidth;
    return centred ? plotColour::centred : plotColour::offCentre;
}

using Across = void (*)(TCAform&, float, Colour, bool);

void moveMarker(TCAform& window, Across across, std::uint32_t position, std::uint32_t& last)
{
    if (position == last) return;
    across(window, static_cast<float>(last), stripColour, false);
    across(window, static_cast<float>(position), markerColour, false);
    last = position;
}

void drawGridLine(TCAform& window, int coordinate)
{
    const auto at = static_cast<float>(coordinate);
    window.PicJoy.line(at, 0, at, window.ScaleHigh, plotColour::grid, true);
    window.PicJoy.line(0, at, window.ScaleHigh, at, plotColour::grid, true);
    if (has(window, joyCaps::hasZ)) acrossThrottle(window, at, plotColour::grid, true);
    if (has(window, joyCaps::hasR)) acrossRudder(window, at, plotColour::grid, true);
}

void drawGrid(TCAform& window)
{
    const int divisions = window.editor.shared.settings.TCAGridCellSize;
    if (divisions < 1 || divisions > mostDivisions) return; // an edited file
    const int centre = static_cast<int>(axisCentre);
    const int step = centre / divisions;
    for (int at = step; at <= centre - step; at += step) drawGridLine(window, at);
    for (int at = centre + step; at <= axisEnd - step; at += step) drawGridLine(window, at);
}

void drawStrips(TCAform& window)
{
    constexpr float centre = axisCentre;
    if (has(window, joyCaps::hasZ)) {
        moveMarker(window, acrossThrottle, window.Info.dwZpos, window.LastThrottle);
        acrossThrottle(window, centre, bandColour(window, window.Info.dwZpos));
    }
    if (has(window, joyCaps::hasR)) {
        moveMarker(window, acrossRudder, window.Info.dwRpos, window.LastRudder);
        acrossRudder(window, centre, bandColour(window, window.Info.dwRpos));
    }
}

template <std::size_t count, typename Number>
void check(MenuArray& items, const std::array<int, count>& values, Number value)
{
    for (int i = 0; i <= items.UBound(); ++i)
        items[i].Checked = static_cast<Number>(values[static_cast<std::size_t>(i)]) == value;
}

} // namespace

TCAform::TCAform(Editor& theEditor, InputDevices devices) : Analyser(theEditor, devices, "TCAform")
{
    form.Caption = "TCA - Tarvy's Controller Analyser";
    for (std::size_t i = 0; i < JoyButtonAnalogue.size(); ++i) JoyButtonAnalogue[i].Caption = std::to_string(i + 1);
    connections.push_back(joystick.reported.connect([this](const JoystickReport& report) { LastReport = report; }));
}

std::vector<MenuEntry> TCAform::menuBar()
{
    const MenuEntry divider{};
    return {{&mnuFile, {}, {{&mnuexit, {}, {}}}},
            {&mnuView,
             {},
             {{&mnuClear, {}, {}},
              divider,
              {&mnuPlot, {}, {}},
              {&mnuGrid, {}, {}},
              {&mnuZoom, {}, {}},
              divider,
              {&mnuDensity, {}, {{nullptr, {}, {}, &mnuDensityArray}}},
              {&mnuSensitivity, {}, {{nullptr, {}, {}, &SensitivityArray}}},
              divider,
              {&numbers.mnuNumbers, {}, {}}}},
            {&mnuHelp, {}, {{&mnuAbout, {}, {}}}}};
}

std::string_view TCAform::remarkOnMissing() const
{
    return "Remember that if you're using the later versions of CTFJ, then you should do that from the CTFJ tray icon.";
}

void TCAform::clearFields()
{
    for (DrawingField* field : {&PicJoy, &PicThrottle, &PicRudder}) field->Cls();
    LastThrottle = 0; // the markers are gone, too
    LastRudder = 0;
}

void TCAform::drawPosition()
{
    drawStrips(*this);
    editor.status(" Joystick X: " + std::to_string(Info.dwXpos) + ", Joystick Y: " + std::to_string(Info.dwYpos) +
                  ", Throttle (Z): " + std::to_string(Info.dwZpos) + ", Rudders (R): " + std::to_string(Info.dwRpos));
    drawCentreLines(*this, 0, bandColour(*this, Info.dwXpos), bandColour(*this, Info.dwYpos));
    if (GridOn != 0) drawGrid(*this);
    for (std::size_t i = 0; i < JoyButtonAnalogue.size(); ++i)
        JoyButtonAnalogue[i].hold((Info.dwButtons >> i & 1U) != 0);
    MoreButtons.Caption = buttonText(LastReport, JoyButtonAnalogue.size());
}

void TCAform::layOut() { ResizeStuff(*this); }

void wireTca(TCAform& window)
{
    wireAnalyser(window);
    window.form.Load = [&window] {
        GetTcaOptions(window);
        window.LastReport = {};
        window.MoreButtons.Caption = "";
        for (ToggleLabel& button : window.JoyButtonAnalogue) button.hold(false);
        loadAnalyser(window);
    };
    window.mnuDensityArray.setHandler(onItem(window, mnuDensityArray_Click));
    window.SensitivityArray.setHandler(onItem(window, SensitivityArray_Click));
    window.mnuAbout.handler = on(window, mnuAbout_Click);
}

void GetTcaOptions(TCAform& window)
{
    const Settings& settings = window.editor.shared.settings;
    window.editor.shared.store.read(Access::GetTcaOptions, "MODULE GetTcaOptions");
    check(window.mnuDensityArray, TCAform::densities, settings.TCAGridCellSize);
    check(window.SensitivityArray, TCAform::halfWidths, settings.TCACentreSensitivity);
}

void SaveTcaOptions(TCAform& window)
{
    window.editor.shared.store.write(Access::SaveTcaOptions, "MODULE SaveTcaOptions");
}

void ResizeStuff(TCAform& window)
{
    window.clearFields();
    window.PicJoy.setScale(window.ScaleLow, window.ScaleHigh);
    drawCentreLines(window, window.ScaleLow, plotColour::offCentre, plotColour::offCentre);
    window.PicJoy.Refresh();
    if (window.JoyTimer.Enabled) window.reportArrived();
}

void mnuDensityArray_Click(TCAform& window, int index)
{
    const int divisions = TCAform::densities.at(static_cast<std::size_t>(index));
    check(window.mnuDensityArray, TCAform::densities, divisions);
    window.editor.shared.settings.TCAGridCellSize = static_cast<std::int16_t>(divisions);
    SaveTcaOptions(window);
    if (window.mnuGrid.Checked) mnuClear_Click(window);
}

void SensitivityArray_Click(TCAform& window, int index)
{
    const int halfWidth = TCAform::halfWidths.at(static_cast<std::size_t>(index));
    check(window.SensitivityArray, TCAform::halfWidths, halfWidth);
    window.editor.shared.settings.TCACentreSensitivity = static_cast<float>(halfWidth);
    SaveTcaOptions(window);
    if (window.JoyTimer.Enabled) window.reportArrived();
}

void mnuAbout_Click(TCAform& window)
{
    window.editor.platform.dialogues.show(
        {.title = "Version info",
         .text = "Tarvy Controller Analyser (TCA) version 1.1\n\n"
                 "It comes with Tarvex. Questions and ideas go where you got Tarvex from.",
         .icon = BoxIcon::Information});
}

} // namespace tarvex
