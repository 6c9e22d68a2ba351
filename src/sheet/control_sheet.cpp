#include "sheet/control_sheet.h"

#include "composer/controls/assigned_controls.h"

namespace tarvex {

namespace {

/// SWAPTG does its work by standing in the file.
std::vector<ControlLayer> layersOf(const AssignedControl& control, const MacroKeys& macros)
{
    if (!control.statement) return {};
    std::vector<ControlLayer> layers = controlLayers(*control.statement, macros);
    if (layers.empty() && control.name == "SWAPTG") layers.push_back({' ', ' ', {{"first and second stage swapped"}}});
    return layers;
}

SheetPage pageOf(PictureOf what, const std::vector<AssignedControl>& controls, const MacroKeys& macros)
{
    SheetPage page{.picture = what, .rows = {}, .unused = {}};
    for (const AssignedControl& control : controls) {
        if (findControl(picture(what), control.id) == nullptr) continue;
        std::vector<ControlLayer> layers = layersOf(control, macros);
        if (layers.empty()) {
            page.unused.push_back(control.name);
        } else {
            page.rows.push_back({control.name, std::move(layers)});
        }
    }
    return page;
}

} // namespace

ControlSheet controlSheet(const SheetFiles& files, const std::string& date)
{
    ControlSheet sheet{.fileName = files.joystickName, .macroName = files.macroName, .date = date, .pages = {}};
    const MacroKeys macros = macroKeys(files.macroText);
    const auto controls = controlsOfDocument(files.joystickName, files.joystickText);
    for (const PictureOf what : picturesOfDocument(files.joystickName, files.joystickText))
        sheet.pages.push_back(pageOf(what, controls, macros));
    return sheet;
}

} // namespace tarvex
