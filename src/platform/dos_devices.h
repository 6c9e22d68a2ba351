#pragma once

#include <string_view>

namespace tarvex {

/// Whether DOS and Windows keep the name for a device, in any folder, case and with any extension: no file can have it.
/// `name` is a file's name, UTF-8.
bool isDosDevice(std::string_view name);

} // namespace tarvex
