#pragma once

#include "platform/errors.h"

namespace tarvex {

/// The run-time error for a number of the operating system: its text as the description, the number as lastDllError.
RuntimeError systemError(int number);
/// The same from errno, for a call that has just failed.
[[noreturn]] void throwSystemError();

} // namespace tarvex
