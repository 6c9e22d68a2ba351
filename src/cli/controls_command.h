#pragma once

#include <string>

namespace tarvex::cli {

struct ControlsOptions {
    std::string file;
    bool json = false;
};
/// Prints what a joystick file has on each control of its controllers. Returns the exit status.
int controlsCommand(const ControlsOptions& options);

} // namespace tarvex::cli
