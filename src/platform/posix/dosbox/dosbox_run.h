#pragma once

#include "platform/posix/dosbox/dosbox_folder.h"
#include "platform/posix/dosbox/dosbox_paths.h"
#include "platform/posix/program_file.h"

#include <string>
#include <vector>

namespace tarvex {

/// One run of a DOS program in DOSBox, which ends when the program does. Everything that DOSBox reads as text is of
/// our own making; paths reach it as links, and the program's name and command line as data of a small program that
/// runs it.
class DosboxRun {
public:
    /// Paths are DOS paths; `tail` is what follows the program's name. Throws RuntimeError when the program can't be
    /// given its commands.
    DosboxRun(const DriveMap& drives, ProgramKind kind, const std::string& program, const std::string& tail,
              const std::string& directory);

    std::vector<std::string> arguments(const std::string& dosbox) const;
    DosboxFolder& folder() { return m_folder; }

private:
    DosboxFolder m_folder;
    DosboxPaths m_paths;
};

} // namespace tarvex
