#include "platform/posix/processes/runners.h"

#include "platform/machine_settings.h"
#include "platform/runner_missing.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace tarvex {

namespace {

struct RunnerRow {
    const char* command;
    const char* package;
    const char* programs; ///< what it runs, as the box names it
};

const RunnerRow& rowOf(Runner which)
{
    static constexpr RunnerRow wine{"wine", "wine", "a Windows program"};
    static constexpr RunnerRow dosBox{"dosbox", "dosbox", "a DOS program"};
    return which == Runner::Wine ? wine : dosBox;
}

bool isExecutable(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

} // namespace

std::string findCommand(const std::string& path, const std::string& command)
{
    std::istringstream folders(path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (folder.starts_with('/') && isExecutable(folder + "/" + command)) return folder + "/" + command;
    }
    return {};
}

std::string findRunnerInPath(Runner which)
{
    const char* path = std::getenv("PATH");
    return findCommand(path != nullptr ? path : "", rowOf(which).command);
}

std::string findRunner(FileSystem& files, Dialogues& dialogues, const std::string& programDirectory, Runner which,
                       const std::string& program)
{
    const RunnerRow& row = rowOf(which);
    const std::string name = nameOf(which);
    ProfileFile ini(files, platformIniPath(programDirectory));
    const MachineSettings settings(ini);
    const std::string set = settings.runner(which);
    const std::string found = !set.empty() ? set : findRunnerInPath(which);
    if (found.starts_with('/') && isExecutable(found)) return found;

    const std::string expected = set.empty() ? "" : " You've told me that it is here: " + set;
    dialogues.show({.title = "Where is " + name + "?",
                    .text = program + " is " + row.programs + ", and I need " + name +
                            " to run it, which I couldn't find." + expected + "\n\nInstall it (the package is called " +
                            row.package + "), or choose it on the Extras page of the preferences, which keep it in " +
                            ini.path() + ".",
                    .icon = BoxIcon::Exclamation});
    throw RunnerMissing();
}

} // namespace tarvex
