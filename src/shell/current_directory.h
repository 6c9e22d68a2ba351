#pragma once

#include "platform/files.h"
#include "shell/errors.h"

#include <map>
#include <string>
#include <string_view>

namespace tarvex {

/// The current drive and the current directory of each drive. They are the program's own and belong to no process:
/// programs are started in them, and relative paths go from them.
class CurrentDirectory {
public:
    /// `files` outlives this; `start` is a full DOS path.
    CurrentDirectory(const FileSystem& files, const std::string& start);

    /// The current directory of the current drive; "\" at the end of a root only.
    const std::string& path() const { return m_directories.at(m_drive); }
    /// A path as seen from here, as a full one. "." and ".." are left to the file system.
    std::string fullPath(std::string_view path) const;

    /// Makes the letter that the text begins with the current drive. Throws RuntimeError: InvalidCall when it begins
    /// with no letter, DeviceUnavailable without such a drive.
    void ChDrive(std::string_view drive);
    /// Makes a directory the current one of its drive, which needn't be the current drive. Throws RuntimeError:
    /// PathNotFound when it doesn't exist.
    void ChDir(std::string_view directory);

private:
    const FileSystem& m_files;
    char m_drive; ///< lower case
    std::map<char, std::string> m_directories;
};

/// Changes to a path's drive and to the root of that drive; a step each.
void changeToRootOf(CurrentDirectory& current, const std::string& path, const Steps& step);
/// The same, and then to the folder of the file that the path names.
void changeToFolderOf(CurrentDirectory& current, const std::string& path, const Steps& step);

} // namespace tarvex
