#pragma once

#include "shell/shipped_files.h"

#include <QString>

namespace tarvex {

/// All files in a folder and the folders in it; none for a folder that isn't there.
std::vector<ShippedFile> readShippedFiles(const QString& folder);
/// The files that the installed program puts into the program directory: help texts, tips, web addresses, picture and
/// sounds.
std::vector<ShippedFile> shippedProgramFiles();

} // namespace tarvex
