#pragma once

#include "platform/posix/drive_map.h"

#include <string>

namespace tarvex {

/// What it takes to run a program.
enum class ProgramKind {
    Native,       ///< this system itself
    Windows,      ///< Wine
    ControlPanel, ///< Wine's control program
    Dos,          ///< DOSBox
    DosBatch,     ///< the command interpreter in DOSBox
};

/// The native path of the program that a full DOS path names; ".exe" may be missing. Throws RuntimeError: FileNotFound
/// or PathNotFound when there is none, or the path isn't a full one; PathFileAccess for a directory and the like.
std::string findProgram(const DriveMap& drives, const std::string& dosPath);

/// Found by looking into the file, and at its name only where the contents don't decide. Throws RuntimeError
/// (InvalidCall) for a file that is no program.
ProgramKind kindOfProgram(const std::string& nativePath);

} // namespace tarvex
