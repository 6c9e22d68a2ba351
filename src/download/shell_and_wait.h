#pragma once

#include "platform/processes.h"
#include "shell/current_directory.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

/// Starts a program in the current directory and blocks until it has ended, or for `timeout` milliseconds. The result
/// of the wait; when the program can't be started, the error's number plus 0x80040000, without a wait. The window is a
/// normal one, whatever style is asked for: what a loader prints is to be seen.
std::int32_t ShellAndWait(Processes& processes, const CurrentDirectory& current, const ProgramCommand& command,
                          std::optional<int> style = {}, std::optional<std::int32_t> timeout = {});

} // namespace tarvex
