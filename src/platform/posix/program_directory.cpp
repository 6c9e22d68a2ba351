#include "platform/posix/program_directory.h"

#include "platform/posix/command_line.h"

#include <filesystem>
#include <unistd.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

bool isWritableDirectory(const fs::path& path)
{
    std::error_code error;
    return fs::is_directory(path, error) && ::access(path.c_str(), W_OK | X_OK) == 0;
}

fs::path dataDirectory(const ProgramPlaces& places)
{
    if (places.dataHome.starts_with('/')) return fs::path(places.dataHome) / "tarvex"; // a relative one doesn't count
    if (places.home.starts_with('/')) return fs::path(places.home) / ".local/share/tarvex";
    return {};
}

/// Packages may hold files that nobody may write; the user's own must be his to change.
void makeWritable(const fs::path& directory)
{
    fs::permissions(directory, fs::perms::owner_all, fs::perm_options::add);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory)) {
        fs::permissions(entry.path(),
                        entry.is_directory() ? fs::perms::owner_all : fs::perms::owner_read | fs::perms::owner_write,
                        fs::perm_options::add);
    }
}

/// Fills a directory beside the wanted one and renames it, so that a start that is cut short leaves nothing half done.
void makeFilled(const fs::path& directory, const std::string& installedFiles)
{
    fs::create_directories(directory.parent_path());
    const fs::path unfinished = directory.parent_path() / (".tarvex-fill-" + std::to_string(::getpid()));
    std::error_code ignored;
    fs::remove_all(unfinished, ignored);
    try {
        if (installedFiles.empty() || !fs::is_directory(installedFiles)) {
            fs::create_directory(unfinished);
        } else {
            fs::copy(installedFiles, unfinished, fs::copy_options::recursive);
            makeWritable(unfinished);
        }
        fs::permissions(unfinished, fs::perms::owner_all); // backups and notes of private files will lie in it
        fs::rename(unfinished, directory);
    } catch (const fs::filesystem_error&) {
        fs::remove_all(unfinished, ignored);
    }
}

} // namespace

std::string installedFilesOf(const std::string& executable)
{
    std::error_code error;
    const fs::path installed = fs::path(executable).parent_path().parent_path() / "share/tarvex";
    return fs::is_directory(installed, error) ? installed.string() : std::string();
}

ProgramPlaces readProgramPlaces()
{
    std::error_code error;
    ProgramPlaces places;
    places.executable = fs::read_symlink("/proc/self/exe", error).string();
    places.installedFiles = installedFilesOf(places.executable);
    places.dataHome = fromEnvironment("XDG_DATA_HOME");
    places.home = fromEnvironment("HOME");
    return places;
}

std::string findProgramDirectory(const ProgramPlaces& places)
{
    const fs::path beside = fs::path(places.executable).parent_path();
    const fs::path data = dataDirectory(places);
    const bool portable = places.installedFiles.empty() && isWritableDirectory(beside);
    if (portable || data.empty()) return beside.string();
    std::error_code error;
    try {
        if (!fs::is_directory(data, error)) makeFilled(data, places.installedFiles);
    } catch (const fs::filesystem_error&) {
        return beside.string();
    }
    return isWritableDirectory(data) ? data.string() : beside.string();
}

} // namespace tarvex
