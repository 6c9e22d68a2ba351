#include "testers/joy_plot.h"

#include "shell/handler.h"
#include "shell/help_topics.h"

#include <algorithm>

namespace tarvex {

namespace {

Colour bandColour(std::uint32_t position)
{
    const bool centred = position >= JoyPlot::firstCentred && position <= JoyPlot::lastCentred;
    return centred ? plotColour::centred : plotColour::offCentre;
}

/// The grid leaves the centre out.
void drawGrid(JoyPlot& window)
{
    constexpr int lines[] = {1, 2, 3, 5, 6, 7};
    for (const int line : lines) {
        const auto at = static_cast<float>(line * JoyPlot::gridStep);
        window.PicJoy.line(at, 0, at, window.ScaleHigh, plotColour::grid, true);
        window.PicJoy.line(0, at, window.ScaleHigh, at, plotColour::grid, true);
    }
}

void wireHelpMenu(JoyPlot& window)
{
    Editor& editor = window.editor;
    window.mnuHelpContents.handler = [&editor] { editor.menus.mnuHelpContents.Click(); };
    window.mnuHelpOverview.handler = [&editor] { editor.operations.HelpTopic(helpTopic::joystickAnalyser); };
    window.mnuhelpSpiking.handler = [&editor] { editor.operations.HelpTopic(helpTopic::spiking); };
    window.mnuReadMe.handler = on(window, mnuReadMe_Click);
}

/// Entries without help are greyed.
void showWhichHelpIsThere(JoyPlot& window)
{
    window.mnuHelpContents.Enabled = window.editor.menus.mnuHelpContents.handler != nullptr;
    for (MenuItem* item : {&window.mnuHelpOverview, &window.mnuhelpSpiking})
        item->Enabled = window.editor.operations.HelpTopic ? true : false;
}

} // namespace

JoyPlot::JoyPlot(Editor& theEditor, InputDevices devices) : Analyser(theEditor, devices, "JoyPlot")
{
    form.Caption = "Joystick motion analayser";
    mnuexit.Caption = "E&xit joystick analyser";
}

std::vector<MenuEntry> JoyPlot::menuBar()
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
              {&mnuMaintain, {}, {}},
              divider,
              {&numbers.mnuNumbers, {}, {}}}},
            {&mnuWindow, {}, {{nullptr, {}, {}, &mnuArrange}}},
            {&mnuHelp,
             {},
             {{&mnuHelpContents, {}, {}},
              {&mnuHelpOverview, {}, {}},
              {&mnuhelpSpiking, {}, {}},
              divider,
              {&mnuReadMe, {}, {}}}}};
}

void wireJoyPlot(JoyPlot& window)
{
    wireAnalyser(window);
    window.form.Load = [&window] {
        window.MaintainRatio = 0;
        window.mnuMaintain.Checked = false;
        showWhichHelpIsThere(window);
        loadAnalyser(window);
    };
    window.mnuMaintain.handler = on(window, mnuMaintain_Click);
    window.mnuArrange.setHandler(onItem(window, mnuArrange_Click));
    wireHelpMenu(window);
}

void JoyPlot::drawPosition()
{
    editor.status("Joystick position: x = " + std::to_string(Info.dwXpos) + ", y = " + std::to_string(Info.dwYpos));
    drawCentreLines(*this, 0, bandColour(Info.dwXpos), bandColour(Info.dwYpos));
    if (GridOn != 0) drawGrid(*this);
}

void JoyPlot::layOut() { Form_Resize(*this); }

void Form_Resize(JoyPlot& window)
{
    window.PicJoy.Cls();
    eraseCross(window);
    int width = window.InnerWidth;
    int height = window.InnerHeight;
    if (window.MaintainRatio != 0) {
        window.form.State = WindowState::Normal;
        const int side = std::min(width, height);
        width = side;
        height = side;
    }
    window.PicJoyPlace = Placement{0, 0, width, height};
    if (width != window.InnerWidth || height != window.InnerHeight) window.sizeWanted(width, height);
    window.PicJoy.setScale(window.ScaleLow, window.ScaleHigh);
    drawCentreLines(window, window.ScaleLow, plotColour::offCentre, plotColour::offCentre);
    window.PicJoy.Refresh();
    if (window.JoyTimer.Enabled) window.reportArrived();
}

void mnuMaintain_Click(JoyPlot& window)
{
    window.mnuMaintain.Checked = !window.mnuMaintain.Checked;
    window.MaintainRatio = window.mnuMaintain.Checked ? 1 : 0;
    Form_Resize(window);
}

void mnuArrange_Click(JoyPlot& window, int index)
{
    if (window.Arrange) window.Arrange(index);
}

void mnuReadMe_Click(JoyPlot& window)
{
    window.editor.platform.dialogues.show(
        {.title = "Be kind on your CPU",
         .text = "Don't leave this running when you're using other parts of Tarvex, as it may slow down Tarvex because "
                 "the program is constantly reading data from the joystick. The centre lines will change to green if "
                 "the joystick is centred on that axis."});
}

} // namespace tarvex
