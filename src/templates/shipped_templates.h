#pragma once

#include "platform/platform.h"
#include "shell/shipped_files.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvex {

/// A template that comes with the program; its name is that of the file alone.
using ShippedTemplate = ShippedFile;

/// The folder of the templates, with "\" at its end.
std::string templatesFolder(const Platform& platform);

/// Puts the program's templates into the folder of the templates, as copyShippedFiles does. The folder is there
/// afterwards.
void copyShippedTemplates(const Platform& platform, const std::function<std::vector<ShippedTemplate>()>& read);

} // namespace tarvex
