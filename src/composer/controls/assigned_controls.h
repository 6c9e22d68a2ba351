#pragma once

#include "shell/hardware/pictures.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// One name of a control: a hat has one for each of its positions, all others but the trigger have one alone.
struct AssignedControl {
    std::string_view id;                  ///< of the control in its picture, e.g. "HAT(0)"
    std::string name;                     ///< e.g. "H1U"
    std::optional<std::string> statement; ///< bytes; nothing when the file has none
    std::int64_t line = 0;                ///< of the statement, from 1
    bool operator==(const AssignedControl&) const = default;
};

/// The names of the controls in these pictures, in their order, with the statements of a joystick file (bytes). Linear
/// in the text. `corners`: the hats have their corners too.
std::vector<AssignedControl> assignedControls(std::span<const PictureOf> pictures, bool corners, std::string_view text);

/// The pictures of the controllers that a joystick file is for, by its name and text (bytes).
std::vector<PictureOf> picturesOfDocument(std::string_view fileName, std::string_view text);

/// The controls of the controllers that a joystick file is for, with its statements.
std::vector<AssignedControl> controlsOfDocument(std::string_view fileName, std::string_view text);

} // namespace tarvex
