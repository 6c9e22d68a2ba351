#include "shell/current_directory.h"

#include "platform/dos_path.h"
#include "platform/text.h"

namespace tarvex {

namespace {

char lowerLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; }

/// The lower-case drive letter that the text begins with, or 0.
char driveOf(std::string_view text)
{
    const char letter = text.empty() ? '\0' : lowerLetter(text.front());
    return letter >= 'a' && letter <= 'z' ? letter : '\0';
}

std::string rootOfDrive(char drive) { return std::string(1, drive) + ":\\"; }

std::string withoutEnd(std::string path)
{
    while (path.size() > 3 && path.ends_with('\\')) path.pop_back();
    return path;
}

} // namespace

CurrentDirectory::CurrentDirectory(const FileSystem& files, const std::string& start)
    : m_files(files), m_drive(rootOf(start).empty() ? 'c' : lowerLetter(start.front()))
{
    m_directories[m_drive] = rootOf(start).empty() ? rootOfDrive(m_drive) : withoutEnd(start);
}

std::string CurrentDirectory::fullPath(std::string_view path) const
{
    char drive = m_drive;
    if (!rootOf(path).empty()) {
        drive = driveOf(path);
        path.remove_prefix(2);
    }
    if (path.starts_with('\\') || path.starts_with('/')) return rootOfDrive(drive) + std::string(path.substr(1));
    const auto directory = m_directories.find(drive);
    const std::string from = directory == m_directories.end() ? rootOfDrive(drive) : directory->second;
    if (path.empty()) return from;
    return (from.ends_with('\\') ? from : from + "\\") + std::string(path);
}

void CurrentDirectory::ChDrive(std::string_view drive)
{
    const char letter = driveOf(drive);
    if (letter == '\0') throw RuntimeError(ErrorCode::InvalidCall, "Invalid procedure call or argument");
    if (!m_files.directoryExists(rootOfDrive(letter)))
        throw RuntimeError(ErrorCode::DeviceUnavailable, "Device unavailable");
    m_directories.try_emplace(letter, rootOfDrive(letter));
    m_drive = letter;
}

void CurrentDirectory::ChDir(std::string_view directory)
{
    const std::string full = withoutEnd(fullPath(directory));
    if (directory.empty() || !m_files.directoryExists(full))
        throw RuntimeError(ErrorCode::PathNotFound, "Path not found");
    m_directories[driveOf(full)] = full;
}

void changeToRootOf(CurrentDirectory& current, const std::string& path, const Steps& step)
{
    const std::string drive(Left(path, 1));
    step([&] { current.ChDrive(drive); });
    step([&] { current.ChDir(drive + ":\\"); });
}

void changeToFolderOf(CurrentDirectory& current, const std::string& path, const Steps& step)
{
    changeToRootOf(current, path, step);
    step([&] { current.ChDir(directoryOf(path)); });
}

} // namespace tarvex
