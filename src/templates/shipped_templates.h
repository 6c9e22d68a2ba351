#pragma once

#include "platform/platform.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvex {

/// A template that comes with the program.
struct ShippedTemplate {
    std::string name; ///< of the file
    std::string bytes;
};

/// The folder of the templates, with "\" at its end.
std::string templatesFolder(const Platform& platform);

/// Puts the program's templates into the folder of the templates, once in the life of a program directory: what the
/// user removes or changes later stays so. A file that has the name of one is left alone. What can't be written is
/// tried again at the next start. `read` gives the templates; it runs only when they are needed.
void copyShippedTemplates(const Platform& platform, const std::function<std::vector<ShippedTemplate>()>& read);

} // namespace tarvex
