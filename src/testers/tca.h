#pragma once

#include "platform/toggle_label.h"
#include "testers/analyser.h"

#include <array>

namespace tarvex {

/// The controller analyser: the joystick analyser with throttle, rudders and buttons, a grid of any density and a
/// centre band of any width. Its options are kept in TCA.ini.
struct TCAform final : Analyser {
    static constexpr std::array<int, 3> densities = {5, 10, 20}; ///< grid divisions per half axis
    static constexpr std::array<int, 4> halfWidths = {1, 250, 500, 1000};

    TCAform(Editor& theEditor, InputDevices devices);

    MenuItem mnuDensity{"mnuDensity", "Grid &density"};
    MenuArray mnuDensityArray{"mnuDensityArray", {"&Low", "&Medium", "&High"}};
    MenuItem mnuSensitivity{"mnuSensitivity", "Centre &sensitivity"};
    MenuArray SensitivityArray{"SensitivityArray", {"&Exact", "&High", "&Medium", "&Low"}};
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuAbout{"mnuAbout", "&About TCA"};

    DrawingField PicThrottle{0}; ///< black; across the strip the coordinates are those of the field, too
    DrawingField PicRudder{0};
    std::array<ToggleLabel, 4> JoyButtonAnalogue;
    Label MoreButtons; ///< the other buttons that are pressed, and the hats

    std::uint32_t LastThrottle = 0;
    std::uint32_t LastRudder = 0;
    JoystickReport LastReport;

    std::vector<MenuEntry> menuBar();

    std::string_view remarkOnMissing() const override;
    void drawPosition() override;
    void layOut() override;
    void clearFields() override;
};

void wireTca(TCAform& window);

/// Reads both options and checks their menu items.
void GetTcaOptions(TCAform& window);
void SaveTcaOptions(TCAform& window);
/// Lays strips and field out and draws the field anew, after a change of its size or scale.
void ResizeStuff(TCAform& window);
void mnuDensityArray_Click(TCAform& window, int index);
void SensitivityArray_Click(TCAform& window, int index);
void mnuAbout_Click(TCAform& window);

} // namespace tarvex
