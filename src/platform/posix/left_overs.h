#pragma once

#include "platform/posix/system_calls.h"

#include <ctime>
#include <string>
#include <vector>

// Files that a killed process has left behind. A living one holds a lock on each that it is working on.

namespace tarvex {

/// Removes the temporary files in a directory that nobody has locked and that are older than `olderThan`. The
/// directory ends with "/" or is empty. One that can't be opened or locked stays; nothing throws.
void removeTemporaryFiles(SystemCalls& calls, const std::string& directory, const timespec& olderThan);

/// Paths of the copies in a directory that nobody has locked.
std::vector<std::string> unlockedCopies(SystemCalls& calls, const std::string& directory);

} // namespace tarvex
