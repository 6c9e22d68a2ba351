#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Names of the files that saving makes for itself. They carry random bits and no process number: in containers and
// after a restart the same number belongs to another process. What is in use is known by its lock instead.

namespace tarvex {

/// A hidden name for the new contents of a file, beside it.
std::string temporaryName(std::uint64_t random);
/// A name for the copy of a file of that name.
std::string copyName(std::string_view name, std::uint64_t random);

/// Also true for the names of versions up to 0.1, which held process numbers.
bool isTemporaryName(std::string_view name);
bool isCopyName(std::string_view name);

} // namespace tarvex
