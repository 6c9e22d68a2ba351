#pragma once

#include "platform/posix/drive_map.h"
#include "platform/posix/posix_files.h"
#include "platform/posix/processes/posix_processes.h"
#include "platform/posix/safe_writer.h"
#include "platform/posix/system_calls.h"
#include "support/scripted_dialogues.h"
#include "support/temporary_directory.h"

#include <filesystem>
#include <string>

namespace tarvex {

/// A program directory on the real disk whose drive_c is drive c:, and the programs that are started there.
struct ProcessWorld {
    /// Makes a native program of the lines of a shell script.
    void script(const std::string& name, const std::string& lines) const
    {
        const std::string path = disk.put("drive_c/" + name, "#!/bin/sh\n" + lines);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }
    /// What a file of drive c: holds.
    std::string contents(const std::string& name) const { return bytesOf(disk / ("drive_c/" + name)); }
    /// Number of the run-time error that starting ends with; 0 when the program ran to its end.
    int run(const ProgramCommand& command, const std::string& directory = "c:\\")
    {
        try {
            const ProcessId process = processes.start(command, windowStyle::normal, directory);
            EXPECT_EQ(processes.wait(process, -1), waitResult::ended);
        } catch (const RuntimeError& error) {
            lastError = error.what();
            return static_cast<int>(error.code());
        }
        return 0;
    }

    TemporaryDirectory disk;
    std::string driveC = disk.makeDirectory("drive_c");
    DriveMap drives{{.winePrefix = {}, .home = {}, .programDirectory = disk.path(), .workingDirectory = disk.path()}};
    SystemCalls calls;
    SafeWriter writer{disk / "Recovery", calls};
    PosixFiles files{drives, writer};
    ScriptedDialogues dialogues;
    PosixProcesses processes{drives, files, dialogues, drives.toDos(disk.path())};
    std::string lastError;
};

} // namespace tarvex
