#pragma once

#include "platform/posix/system_calls.h"

#include <string>

namespace tarvex {

/// Gives a new file that only its owner may access the owner, group, mode, access control list and user attributes of
/// the file that it is about to replace. At no moment does anybody get more rights than the old file gives: where
/// something can't be carried over, the new file grants less. Attributes that can't be set are left out. Throws
/// RuntimeError when the new file can't be examined.
void copyRights(SystemCalls& calls, int file, const std::string& oldPath, const struct stat& old);

} // namespace tarvex
