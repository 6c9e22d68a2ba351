#pragma once

#include "shell/settings.h"

#include <string>
#include <vector>

namespace tarvex::cli {

/// The colour scheme (and the font) as the program has it: the factory's, or that of a settings file ("" : none), in
/// which a missing key counts as it does in the program. Throws CallError for a file that can't be read.
Settings readScheme(const std::string& iniPath);

/// The previous joystick files of a settings file, DOS paths, UTF-8, the newest first. Throws CallError for a file that
/// can't be read.
std::vector<std::string> readPreviousFiles(const std::string& iniPath);

} // namespace tarvex::cli
