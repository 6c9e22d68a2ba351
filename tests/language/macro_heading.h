#pragma once

#include <string>

namespace tarvex {

/// A heading as macro files have it.
inline std::string heading(const std::string& words) { return "Rem -----\r\nRem   " + words + "\r\nRem -----\r\n"; }

} // namespace tarvex
