#pragma once

#include "platform/dialogues.h"
#include "platform/files.h"
#include "platform/machine.h"

#include <string>

namespace tarvex {

/// The absolute native path of a runner: what Platform.ini in the program directory says, else where PATH has it.
/// When it isn't there, a box says what to do about it, with the program that wants it, and throws RunnerMissing.
std::string findRunner(FileSystem& files, Dialogues& dialogues, const std::string& programDirectory, Runner which,
                       const std::string& program);

/// Where PATH has a runner; empty: nowhere.
std::string findRunnerInPath(Runner which);

/// Where a command is found in the folders of PATH; relative folders in it don't count. Empty: nowhere.
std::string findCommand(const std::string& path, const std::string& command);

} // namespace tarvex
