#pragma once

#include <string>
#include <string_view>

// Names of files as the program speaks them: drive letter, ":", "\" between the names.

namespace tarvex {

/// What follows the last "\", or the whole text.
std::string fileNameOf(std::string_view path);
/// The path up to and with its last "\"; empty without one.
std::string directoryOf(std::string_view path);
/// Drive and root of a path that has a drive ("c:\"), else empty.
std::string rootOf(std::string_view path);
/// The last three characters, lower-cased: how the program distinguishes kinds of files.
std::string lastThree(std::string_view path);
/// The path without its last three characters, followed by `extension`.
std::string withLastThree(std::string_view path, std::string_view extension);

} // namespace tarvex
