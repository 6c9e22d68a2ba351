#pragma once

#include "testers/analyser.h"

namespace tarvex {

/// The joystick analyser: the stick as a moving cross that leaves a trail.
struct JoyPlot final : Analyser {
    static constexpr std::uint32_t firstCentred = 32269;
    static constexpr std::uint32_t lastCentred = 33267;
    static constexpr int gridStep = 8192;

    JoyPlot(Editor& theEditor, InputDevices devices);

    MenuItem mnuMaintain{"mnuMaintain", "&Maintain 1:1 ratio"};
    MenuItem mnuWindow{"mnuWindow", "&Window"};
    MenuArray mnuArrange{"mnuArrange", {"&Cascade", "Tile &horizontally", "Tile &vertically", "&Arrange icons"}};
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuHelpContents{"mnuHelpContents", "&Contents"};
    MenuItem mnuHelpOverview{"mnuHelpOverview", "&Overview"};
    MenuItem mnuhelpSpiking{"mnuhelpSpiking", "What's &spiking?"};
    MenuItem mnuReadMe{"mnuReadMe", "&Read me"};

    std::int16_t MaintainRatio = 0;
    int InnerWidth = 0; ///< the room for the field, pixels; the view reports it and runs Form_Resize
    int InnerHeight = 0;
    Property<Placement> PicJoyPlace; ///< inside that room
    Signal<int, int> sizeWanted;     ///< the window is to shrink so that the room has this width and height

    std::function<void(int mode)> Arrange; ///< arranges the program's windows; set by their owner

    std::vector<MenuEntry> menuBar();

    void drawPosition() override;
    void layOut() override;
};

void wireJoyPlot(JoyPlot& window);

void Form_Resize(JoyPlot& window);
void mnuMaintain_Click(JoyPlot& window);
void mnuArrange_Click(JoyPlot& window, int index);
void mnuReadMe_Click(JoyPlot& window);

} // namespace tarvex
