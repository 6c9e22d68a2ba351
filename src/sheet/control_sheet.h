#pragma once

#include "sheet/control_layers.h"
#include "shell/hardware/pictures.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A name of a control, and what it does.
struct SheetRow {
    std::string name;
    std::vector<ControlLayer> layers;
};

/// One controller.
struct SheetPage {
    PictureOf picture = PictureOf::F22AndF16Stick;
    std::vector<SheetRow> rows;      ///< in the order of the picture
    std::vector<std::string> unused; ///< names that do nothing
};

/// What a joystick file has on the controls of its controllers. Texts are UTF-8.
struct ControlSheet {
    std::string fileName;
    std::string macroName; ///< empty: none
    std::string date;
    std::vector<SheetPage> pages;
};

/// The files as they are to be read; texts are bytes.
struct SheetFiles {
    std::string joystickName;
    std::string_view joystickText;
    std::string macroName;
    std::string_view macroText;
};
ControlSheet controlSheet(const SheetFiles& files, const std::string& date);

} // namespace tarvex
