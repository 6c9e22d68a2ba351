#pragma once

#include "platform/errors.h"
#include "platform/posix/system_calls.h"
#include "platform/posix/temporary_file.h"

#include <ctime>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The one writer through which every file goes. A crash, a full disk or a kill at any moment leaves the old contents
/// or the new ones under the name, never a mixture. Paths are native.
///
/// The new contents are written whole into a hidden file beside the target, synced, and renamed over it. Owner, group,
/// mode, access control list and user attributes are kept as far as the system allows, and nobody gets more rights than
/// before; symbolic links are followed; of several hard links only the one written to gets the new contents.
///
/// Where the folder takes no new file, the target is written directly after a copy of the old contents is safe in the
/// recovery directory. When direct writing fails the old contents are put back; when that fails too, the error's text
/// says where the copy is. A kill in the midst of direct writing leaves the copy, see leftCopies.
class SafeWriter {
public:
    /// The recovery directory is made when it is first needed; its parent must exist. `calls` outlives the writer.
    SafeWriter(std::string recoveryDirectory, SystemCalls& calls);

    /// Throws RuntimeError when the new contents aren't safely there. A directory, device or other special file, and a
    /// file that nobody may write, are refused untouched.
    void save(const std::string& path, std::string_view bytes);
    /// The same for contents that only the owner may access, whatever rights the old ones had.
    void savePrivate(const std::string& path, std::string_view bytes);
    /// Copies a regular file of any size to a path that doesn't exist yet, for the owner alone. Throws RuntimeError,
    /// and there is no copy then.
    void copyPrivate(const std::string& from, const std::string& to);

    /// Removes the hidden files that a killed process has left in the directory and that are older than this writer.
    /// Each save does this once for its folder.
    void sweep(const std::string& directory) const;

    /// Paths of the copies that nobody works with any more: their targets may be half written.
    std::vector<std::string> leftCopies() const;

private:
    struct Target {
        std::string path;      ///< behind all symbolic links
        std::string directory; ///< with "/" at its end, or empty
        std::string name;
        bool exists = false;
        struct stat status = {};
    };
    Target resolve(std::string path) const;
    void checkWritable(const Target& target) const;

    enum class Rights { AsBefore, Private };

    void save(const std::string& path, std::string_view bytes, Rights rights);
    void writeBeside(const Target& target, std::string_view bytes, Rights rights);
    void syncDirectory(const std::string& directory);

    void writeDirectly(const Target& target, std::string_view bytes, Rights rights);
    void prepareRecoveryDirectory();
    void completeCopy(TemporaryFile& copy, const std::string& name, std::string_view old);
    void putBack(const Target& target, std::string_view old, TemporaryFile& copy, const RuntimeError& error);

    std::string m_recoveryDirectory;
    SystemCalls& m_calls;
    timespec m_started;
    std::set<std::string> m_swept;
};

} // namespace tarvex
