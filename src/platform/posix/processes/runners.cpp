#include "platform/posix/processes/runners.h"

#include "platform/profile_file.h"
#include "platform/runner_missing.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace tarvex {

namespace {

struct RunnerRow {
    const char* key; ///< in section Programs of Platform.ini
    const char* command;
    const char* package;
    const char* programs; ///< what it runs, as the box names it
};

const RunnerRow& rowOf(Runner which)
{
    static constexpr RunnerRow wine{"Wine", "wine", "wine", "a Windows program"};
    static constexpr RunnerRow dosBox{"DOSBox", "dosbox", "dosbox", "a DOS program"};
    return which == Runner::Wine ? wine : dosBox;
}

bool isExecutable(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

/// The longest path that the system takes.
constexpr std::size_t longestPath = 4096;

} // namespace

std::string findCommand(const std::string& path, const std::string& command)
{
    std::istringstream folders(path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (folder.starts_with('/') && isExecutable(folder + "/" + command)) return folder + "/" + command;
    }
    return {};
}

std::string findRunner(FileSystem& files, Dialogues& dialogues, const std::string& programDirectory, Runner which,
                       const std::string& program)
{
    const RunnerRow& row = rowOf(which);
    const std::string iniPath = programDirectory + "\\Platform.ini";
    const std::string set = ProfileFile(files, iniPath).readString("Programs", row.key, "", longestPath);
    const char* path = std::getenv("PATH");
    const std::string found = !set.empty() ? set : findCommand(path != nullptr ? path : "", row.command);
    if (found.starts_with('/') && isExecutable(found)) return found;

    const std::string expected = set.empty() ? "" : " You've told me that it is here: " + set;
    dialogues.show({.title = "Where is " + std::string(row.key) + "?",
                    .text = program + " is " + row.programs + ", and I need " + row.key +
                            " to run it, which I couldn't find." + expected + "\n\nInstall it (the package is called " +
                            row.package + "), or write its full path after " + row.key +
                            "= in the section [Programs] of " + iniPath + ".",
                    .icon = BoxIcon::Exclamation});
    throw RunnerMissing();
}

} // namespace tarvex
