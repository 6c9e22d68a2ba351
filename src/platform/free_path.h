#pragma once

#include "platform/files.h"

#include <string>

namespace tarvex {

/// A path in the directory that names nothing yet: "mig.b50", "mig-2.b50", "mig-3.b50", ... `directory` ends with "\".
std::string freePath(const FileSystem& files, const std::string& directory, const std::string& name);

} // namespace tarvex
