#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// What the drives depend on; native paths. Empty: there is no such thing.
struct DriveEnvironment {
    std::string winePrefix; ///< $WINEPREFIX
    std::string home;       ///< $HOME; its .wine is the prefix when none is given
    std::string programDirectory;
    std::string workingDirectory;
};

/// The DOS drives of this machine: those of the Wine prefix when it has a c:, otherwise c: is drive_c in the program
/// directory; the user's own choices take their place. "/" is reachable in any case: as z:, or as the last free letter
/// where z: is used for something else.
class DriveMap {
public:
    struct Drive {
        char letter;                    ///< 'a' to 'z'
        std::vector<std::string> roots; ///< spellings of its native root, the one to use first; no "/" at the end
        bool makeRoot = false;          ///< the root is made when it is first needed
        bool isOwn = false;             ///< a choice of the program or its user: Wine doesn't know it
        bool isChosen = false;          ///< the user's
    };

    explicit DriveMap(const DriveEnvironment& environment);

    /// In the order of their letters.
    const std::vector<Drive>& drives() const { return m_drives; }

    /// Puts a folder, an absolute native path, behind a letter; an empty one takes the user's choice back. A folder
    /// that isn't there yet is taken all the same: its disk may be mounted later.
    void choose(char letter, const std::string& folder);
    /// As they were found.
    void forgetChoices();

    /// The native path of a DOS path; "/" separates, too. Names are looked up without regard to case, the exact one
    /// first; those that don't exist are kept as they are given. "." and ".." are resolved in the text and never leave
    /// the drive; a path without a drive goes from the working directory. Throws RuntimeError: PathNotFound for a drive
    /// that isn't there, BadFileName for a NUL or an empty path.
    std::string toNative(const std::string& dosPath) const;
    /// The DOS path of a native one, on the drive with the longest matching root. It leads to the same file even after
    /// it has been lower-cased. A relative path goes from the working directory. Throws RuntimeError: BadFileName for a
    /// NUL or an empty path.
    std::string toDos(const std::string& nativePath) const;
    /// The DOS path for an argument of the command line, which may be a DOS path already; an empty one stays empty,
    /// and one that neither is UTF-8 nor names a file stays as it is.
    std::string fromArgument(const std::string& argument) const;
    /// The names in an existing directory, as toDos would give them. Throws RuntimeError when it can't be read.
    std::vector<std::string> list(const std::string& dosPath) const;

private:
    const Drive* findDrive(char letter) const;
    std::string rootOfDrive(char letter) const;
    std::string dosFromAbsolute(const std::string& path) const;

    void gather();

    std::vector<Drive> m_found; ///< without the user's choices
    std::map<char, std::string> m_chosen;
    std::vector<Drive> m_drives;
    std::string m_workingDirectory;
};

/// A letter, ":", and "\", "/" or nothing.
bool isDosPath(std::string_view path);

} // namespace tarvex
