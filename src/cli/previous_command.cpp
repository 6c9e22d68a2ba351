#include "cli/previous_command.h"

#include "cli/input.h"
#include "cli/scheme.h"
#include "platform/posix/program_directory.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <filesystem>

namespace tarvex::cli {

namespace {

/// Before the first start there are no settings, and that is no error.
std::vector<std::string> previousFiles(const std::string& ini)
{
    if (!ini.empty()) return readPreviousFiles(ini);
    const std::string own = findProgramDirectory(readProgramPlaces()) + "/Tarvex.ini";
    std::error_code error;
    if (!std::filesystem::exists(own, error)) return {};
    return readPreviousFiles(own);
}

} // namespace

int previousCommand(const PreviousOptions& options)
{
    const std::vector<std::string> paths = previousFiles(options.ini);
    if (paths.empty()) {
        std::fputs("tarvexctl: there are no previous files\n", stderr);
        return exitStatus::nothingToAnalyse;
    }
    std::string text;
    for (const std::string& path : paths) text += path + "\n";
    print(options.json ? nlohmann::ordered_json(paths).dump() + "\n" : text);
    return exitStatus::done;
}

} // namespace tarvex::cli
