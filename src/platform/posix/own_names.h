#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

// Names of the files that saving makes for itself: each tells its process, so that what a killed one has left behind
// can be told from what a living one is writing.

namespace tarvex {

/// A hidden name for the new contents of a file, beside it. No two calls of one process give the same.
std::string temporaryName();
/// A name for the copy of a file of that name.
std::string copyName(std::string_view name);

/// The process that made the name; nothing for a name of another kind.
std::optional<pid_t> processOfTemporary(std::string_view name);
std::optional<pid_t> processOfCopy(std::string_view name);

/// The process is there and isn't this one.
bool isOtherLivingProcess(pid_t process);

} // namespace tarvex
