#include "testers/analyser.h"

#include "shell/handler.h"
#include "testers/joystick_boxes.h"

#include <utility>

namespace tarvex {

namespace {

constexpr float centre = axisCentre;
constexpr float crossArm = 750;
constexpr float markArm = 150;

void drawCross(DrawingField& field, std::uint32_t x, std::uint32_t y, float arm, Colour colour)
{
    const auto atX = static_cast<float>(x);
    const auto atY = static_cast<float>(y);
    field.line(atX - arm, atY, atX + arm, atY, colour);
    field.line(atX, atY - arm, atX, atY + arm, colour);
}

/// Of a report that another one of the same tick follows: its cross would be erased again, its mark drawn anew.
void passThrough(Analyser& analyser, const JOYINFOEX& info)
{
    eraseCross(analyser);
    if (analyser.PlotOn != 0) drawCross(analyser.PicJoy, analyser.LastX, analyser.LastY, markArm, plotColour::mark);
    analyser.LastX = info.dwXpos;
    analyser.LastY = info.dwYpos;
}

void moveCross(Analyser& analyser, const JOYINFOEX& info)
{
    passThrough(analyser, info);
    drawCross(analyser.PicJoy, info.dwXpos, info.dwYpos, crossArm, plotColour::cross);
    if (analyser.PlotOn != 0) drawCross(analyser.PicJoy, info.dwXpos, info.dwYpos, markArm, plotColour::mark);
}

void setUp(Analyser& analyser)
{
    if (!analyser.JoystickStarted) {
        analyser.joystick.choose(analyser.numbers.choice());
        analyser.joystick.start();
    }
    analyser.JoystickStarted = true;
    analyser.numbers.showDevices();
    const bool failed = analyser.joystick.joyGetDevCapsA(analyser.Caps) != joyError::none;
    if (failed) analyser.editor.platform.dialogues.show(noJoystickBox(analyser.remarkOnMissing()));
    analyser.PicJoy.setScale(analyser.ScaleLow, analyser.ScaleHigh);
    analyser.clearFields();
    drawCentreLines(analyser, analyser.ScaleLow, plotColour::cross, plotColour::cross);
    analyser.PicJoy.Refresh();
    if (failed || !analyser.form.isLoaded()) return; // the user may have closed it while the box was up
    analyser.JoyTimer.Enabled = true;
    analyser.reportArrived(); // the first tick needs no report
}

/// The box may stay for long, so the timer is off before it comes up.
void stopReading(Analyser& analyser, int error)
{
    analyser.JoyTimer.Enabled = false;
    analyser.waiting.clear();
    analyser.editor.platform.dialogues.show(joystickFailureBox(error));
}

bool invert(MenuItem& item)
{
    item.Checked = !item.Checked;
    return item.Checked;
}

void followJoystick(Analyser& analyser)
{
    Joystick& joystick = analyser.joystick;
    analyser.connections.push_back(joystick.reported.connect([&analyser](const JoystickReport& report) {
        if (!analyser.JoyTimer.Enabled) return;
        analyser.waiting.push_back(report);
        analyser.reportArrived();
    }));
    analyser.connections.push_back(joystick.devicesChanged.connect([&analyser] {
        if (analyser.JoystickStarted) analyser.joystick.joyGetDevCapsA(analyser.Caps);
        if (analyser.JoyTimer.Enabled) analyser.reportArrived();
    }));
}

} // namespace

Analyser::Analyser(Editor& theEditor, InputDevices devices, const char* name)
    : editor(theEditor), joystick(devices.joystick), form(name, &WindowOpen), numbers(theEditor, devices.joystick)
{
    mnuPlot.Checked = true;
    mnuGrid.Checked = true;
}

void Analyser::clearFields() { PicJoy.Cls(); }

void wireAnalyser(Analyser& analyser)
{
    analyser.form.Load = on(analyser, loadAnalyser);
    analyser.form.Unload = on(analyser, unloadAnalyser);
    analyser.mnuexit.handler = [&analyser] { analyser.form.unload(); };
    analyser.mnuClear.handler = on(analyser, mnuClear_Click);
    analyser.mnuPlot.handler = on(analyser, mnuPlot_Click);
    analyser.mnuGrid.handler = on(analyser, mnuGrid_Click);
    analyser.mnuZoom.handler = on(analyser, mnuZoom_Click);
    analyser.JoyTimer.Tick = on(analyser, JoyTimer_Timer);
    followJoystick(analyser);
    analyser.form.join(analyser.editor.mum.toolWindows, true);
}

void loadAnalyser(Analyser& analyser)
{
    const Steps step;
    analyser.form.markLoaded();
    analyser.PlotOn = 1;
    analyser.GridOn = 1;
    analyser.mnuPlot.Checked = true;
    analyser.mnuGrid.Checked = true;
    analyser.mnuZoom.Checked = false;
    analyser.ScaleLow = 0;
    analyser.ScaleHigh = plotLast;
    analyser.LastX = 0;
    analyser.LastY = 0;
    step([&] { analyser.numbers.restart(); });
    step([&] { setUp(analyser); });
}

void unloadAnalyser(Analyser& analyser)
{
    analyser.JoyTimer.Enabled = false;
    analyser.waiting.clear();
    if (analyser.JoystickStarted) analyser.joystick.stop();
    analyser.JoystickStarted = false;
    analyser.form.markUnloaded();
}

void JoyTimer_Timer(Analyser& analyser)
{
    analyser.Info.dwSize = 52;
    analyser.Info.dwFlags = 255;
    const int result = analyser.joystick.joyGetPosEx(analyser.Info);
    if (result != joyError::none) return stopReading(analyser, result);
    const std::vector<JoystickReport> reports = std::exchange(analyser.waiting, {});
    for (const JoystickReport& report : reports) {
        analyser.numbers.add(report);
        if (&report != &reports.back()) passThrough(analyser, report.position);
    }
    if (!reports.empty()) analyser.Info = reports.back().position;
    moveCross(analyser, analyser.Info);
    analyser.drawPosition();
    analyser.numbers.refreshSometimes();
}

void reportsPaused(Analyser& analyser, int milliseconds)
{
    analyser.numbers.statistics.pause(milliseconds * 1000LL);
    analyser.numbers.refresh();
}

void mnuClear_Click(Analyser& analyser)
{
    analyser.clearFields();
    analyser.PicJoy.Refresh();
    if (analyser.JoyTimer.Enabled) analyser.reportArrived(); // the next tick paints the lines again
}

void mnuPlot_Click(Analyser& analyser)
{
    analyser.PlotOn = invert(analyser.mnuPlot) ? 1 : 0;
    mnuClear_Click(analyser);
}

void mnuGrid_Click(Analyser& analyser)
{
    analyser.GridOn = invert(analyser.mnuGrid) ? 1 : 0;
    mnuClear_Click(analyser);
}

void mnuZoom_Click(Analyser& analyser)
{
    const bool zoomed = invert(analyser.mnuZoom);
    analyser.ScaleLow = zoomed ? zoomLow : 0;
    analyser.ScaleHigh = zoomed ? zoomHigh : plotLast;
    analyser.layOut();
}

void eraseCross(Analyser& analyser)
{
    drawCross(analyser.PicJoy, analyser.LastX, analyser.LastY, crossArm, analyser.PicJoy.background());
}

void drawCentreLines(Analyser& analyser, float from, Colour vertical, Colour horizontal)
{
    analyser.PicJoy.line(centre, from, centre, analyser.ScaleHigh, vertical);
    analyser.PicJoy.line(from, centre, analyser.ScaleHigh, centre, horizontal);
}

} // namespace tarvex
