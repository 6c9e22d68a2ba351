// Windows programs in the real Wine, where it is installed and has been used: its own command interpreter shows what
// reaches it.

#include "platform/posix/processes/runners.h"
#include "process_world.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(Wine, AProgramSeesItsFolderAndItsCommandLine)
{
    const char* home = std::getenv("HOME");
    const char* prefix = std::getenv("WINEPREFIX");
    const std::string place = prefix != nullptr ? prefix : std::string(home != nullptr ? home : "") + "/.wine";
    if (findCommand(std::getenv("PATH"), "wine").empty() || !std::filesystem::exists(place + "/dosdevices/c:"))
        GTEST_SKIP() << "Wine isn't installed, or has no prefix yet";

    const TemporaryDirectory disk;
    const std::string folder = disk.makeDirectory("a folder");
    const DriveMap drives({.winePrefix = place, .home = {}, .programDirectory = disk.path(), .workingDirectory = "/"});
    SystemCalls calls;
    SafeWriter writer(disk / "Recovery", calls);
    PosixFiles files(drives, writer);
    ScriptedDialogues dialogues;
    PosixProcesses processes(drives, files, dialogues, drives.toDos(disk.path()));
    const ProcessId process = processes.start("c:\\windows\\system32\\cmd.exe /c echo one $(two) `three`> seen.txt",
                                              windowStyle::normal, drives.toDos(folder));
    EXPECT_EQ(processes.wait(process, -1), waitResult::ended);
    EXPECT_EQ(bytesOf(folder + "/seen.txt"), "one $(two) `three`\r\n");
}

} // namespace
} // namespace tarvex
