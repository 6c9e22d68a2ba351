#pragma once

#include "platform/posix/dosbox/dosbox_folder.h"
#include "platform/posix/dosbox/dosbox_links.h"
#include "platform/posix/dosbox/dosbox_names.h"
#include "platform/posix/drive_map.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// How the files are called inside DOSBox, whose drives it puts together: those of the drive map, and further letters
/// for folders whose path DOS can't have. A file whose own name DOS can't have gets another one in a folder of links,
/// where its neighbours are, too; what a program makes there is lost with it.
class DosboxPaths {
public:
    /// Both outlive this.
    DosboxPaths(const DriveMap& drives, const DosboxFolder& folder);

    /// A directory, with "\" at the end of a root only. Throws RuntimeError when it doesn't exist, or there are no
    /// letters left.
    std::string directory(const std::string& dosPath);
    /// A file, which needs to exist only if DOS can't have its name.
    std::string file(const std::string& dosPath);
    /// The tail of a command line, with those paths in it changed that are called otherwise inside: Windows-1252. Of
    /// the readings of a path with blanks, the longest that exists counts.
    std::string tail(const std::string& text);

    struct Mount {
        char letter;
        std::string place; ///< native; nothing in it means anything to DOSBox
    };
    const std::vector<Mount>& mounts() const { return m_mounts; }
    /// Where the program's own files are.
    char ownLetter() const { return m_own; }

private:
    std::string insidePath(const std::string& dosPath);
    std::string letterFor(const std::string& nativeDirectory);
    std::string aliasFor(const std::string& nativeFile);
    void mountDrive(const DriveMap::Drive& drive);
    bool isPlainPath(const std::string& root, std::string_view below) const;
    bool exists(const std::string& dosPath) const;
    std::size_t pathEnd(std::string_view text, std::size_t start) const;
    std::string wordInside(const std::string& word);
    char freeLetter() const;

    const DriveMap& m_drives;
    const DosboxFolder& m_folder;
    std::vector<Mount> m_mounts;
    std::map<std::string, std::string> m_letters; ///< by native directory
    std::map<std::string, DosboxLinks> m_links;   ///< by native directory
    char m_own;
};

} // namespace tarvex
