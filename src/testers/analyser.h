#pragma once

#include "documents/pair/editor.h"
#include "platform/input_devices.h"
#include "shell/tool_form.h"
#include "testers/drawing.h"
#include "testers/numbers.h"

#include <array>
#include <vector>

namespace tarvex {

namespace plotColour {
constexpr Colour field = 0xFFFFFF;
constexpr Colour cross = 0x000000;
constexpr Colour mark = 0xFF0000; ///< blue
constexpr Colour centred = 0x00FF00;
constexpr Colour offCentre = 0x0000FF; ///< red
constexpr Colour grid = 0x978055;
} // namespace plotColour

constexpr float plotLast = 65535;
constexpr float zoomLow = 22768;
constexpr float zoomHigh = 42768;

/// What the two analysers share: the field with the crosses, its commands and the reading of the joystick.
struct Analyser {
    Analyser(Editor& theEditor, InputDevices devices, const char* name);
    Analyser(const Analyser&) = delete;
    Analyser& operator=(const Analyser&) = delete;
    virtual ~Analyser() = default;

    Editor& editor;
    Joystick& joystick;
    std::int16_t WindowOpen = 0; ///< 1 while the window is loaded
    ToolForm form;

    MenuItem mnuexit{"mnuexit", "E&xit"};
    MenuItem mnuClear{"mnuClear", "&Clear"};
    MenuItem mnuPlot{"mnuPlot", "&Plot"};
    MenuItem mnuGrid{"mnuGrid", "Show &grid"};
    MenuItem mnuZoom{"mnuZoom", "&Zoom"};
    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuView{"mnuView", "&View"};

    DrawingField PicJoy{plotColour::field};
    /// What the analyser reads at. The window runs it with the display instead, and only after the device has reported:
    /// each tick draws all that came since the one before.
    Timer JoyTimer{1};
    Signal<> reportArrived; ///< there is something for the next tick

    std::int16_t PlotOn = 1;
    std::int16_t GridOn = 1;
    float ScaleLow = 0;
    float ScaleHigh = plotLast;
    std::uint32_t LastX = 0;
    std::uint32_t LastY = 0;
    JOYCAPS Caps;
    JOYINFOEX Info;
    bool JoystickStarted = false;

    Numbers numbers;

    std::vector<JoystickReport> waiting; ///< reports for the next tick, oldest first
    std::vector<Connection> connections;

    /// What the box about a missing joystick says at its end.
    virtual std::string_view remarkOnMissing() const { return {}; }
    /// All that a tick draws beside the crosses, and its texts: from Info.
    virtual void drawPosition() = 0;
    /// The fields are empty, or have another scale or size.
    virtual void layOut() = 0;
    virtual void clearFields();
};

void wireAnalyser(Analyser& analyser);

void loadAnalyser(Analyser& analyser);
void unloadAnalyser(Analyser& analyser);
void JoyTimer_Timer(Analyser& analyser);
/// No report has come for `milliseconds`: the stick is at rest.
void reportsPaused(Analyser& analyser, int milliseconds);

void mnuClear_Click(Analyser& analyser);
void mnuPlot_Click(Analyser& analyser);
void mnuGrid_Click(Analyser& analyser);
void mnuZoom_Click(Analyser& analyser);

/// Draws the cross that is on the screen in the field's background.
void eraseCross(Analyser& analyser);
/// Both centre lines of a field, from `from` to ScaleHigh.
void drawCentreLines(Analyser& analyser, float from, Colour vertical, Colour horizontal);

} // namespace tarvex
