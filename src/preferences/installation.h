#pragma once

#include "platform/files.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

// An old installation on any disk: what it holds, and copying it. The disk isn't trusted: links that lead out of the
// folder are left out, and so is what exceeds the bounds.

enum class ImportPart { Settings, Lists, Templates, Backups };
constexpr std::size_t importParts = 4;

namespace importBound {
constexpr std::uint64_t fileBytes = std::uint64_t{16} << 20;  ///< of one file
constexpr std::uint64_t partBytes = std::uint64_t{256} << 20; ///< of all files of a part
constexpr std::size_t files = 10'000;                         ///< of a part
constexpr std::size_t folders = 2'000;                        ///< that are searched
} // namespace importBound

struct FoundPart {
    std::string folder;             ///< with "\" at its end
    std::vector<std::string> files; ///< names in it
    std::uint64_t bytes = 0;
    std::string leftOut; ///< files that aren't taken and why, "\n" before each; empty: none
    std::string whyNot;  ///< why nothing can be taken; empty: there are files to take
};

struct Installation {
    std::string folder; ///< without "\" at its end
    std::array<FoundPart, importParts> parts;
    FoundPart& operator[](ImportPart part) { return parts[static_cast<std::size_t>(part)]; }
    const FoundPart& operator[](ImportPart part) const { return parts[static_cast<std::size_t>(part)]; }
    bool isEmpty() const;
};

/// The folder, or the first one below it, nearest first, that holds a Tarvex.ini; the folder itself when none does.
std::string findInstallation(const FileSystem& files, const std::string& folder);
/// Looks at names and sizes, and into the INI files.
Installation examine(FileSystem& files, const std::string& folder);
/// "12 files, 140 KB"
std::string sizeText(const FoundPart& part);

struct ImportReport {
    std::string keptIn;   ///< folder with the copy of the settings as they were
    std::string problems; ///< "\n" before each; empty: none
    std::size_t copied = 0;
};

/// Copies the settings as they are now into a new folder in the program directory, then the parts that are ticked.
/// Files of one name and other contents are kept beside each other, except for the INI files, of which a part comes
/// whole or not at all. Throws RuntimeError when the first copy fails; nothing has changed then.
ImportReport import(FileSystem& files, const Installation& from, const std::array<bool, importParts>& ticked,
                    const std::string& programDirectory);

} // namespace tarvex
