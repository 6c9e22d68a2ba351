#pragma once

#include "platform/platform.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// A file that comes with the program and belongs into the program directory.
struct ShippedFile {
    std::string name; ///< path below the program directory, "\" between its parts
    std::string bytes;
};

/// Puts files into the program directory, once in its life: what the user removes or changes later stays so. `key` of
/// Platform.ini keeps that it was done. A file that is there already is left alone. What can't be written is tried
/// again at the next start. `read` gives the files; it runs only when they are needed.
void copyShippedFiles(const Platform& platform, std::string_view key,
                      const std::function<std::vector<ShippedFile>()>& read);

} // namespace tarvex
