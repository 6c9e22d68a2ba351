#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarvex {

/// What runs the programs of other systems.
enum class Runner { Wine, DosBox };

/// A drive letter and the folder behind it.
struct DriveFolder {
    enum class Origin { Wine, Tarvex, User }; ///< who says so
    char letter = 'c';                        ///< 'a' to 'z'
    std::string folder;                       ///< native path
    Origin origin = Origin::Tarvex;
    bool operator==(const DriveFolder&) const = default;
};

/// Folders that the user puts behind letters, 'a' to 'z'.
using DriveChoices = std::map<char, std::string>;

/// What a program wrote when it was run to its end.
struct ProgramOutput {
    bool ended = false; ///< false: it was stopped because it took too long
    std::string text;   ///< its first bytes, output and errors
};

/// The machine as its user sets it up. Paths are native ones, UTF-8.
class Machine {
public:
    virtual ~Machine() = default;

    /// In the order of their letters.
    virtual std::vector<DriveFolder> drives() const = 0;
    /// How they are with these choices and no others.
    virtual std::vector<DriveFolder> drivesWith(const DriveChoices& chosen) const = 0;
    /// Puts a folder behind a letter from now on; an empty one: what the machine itself has there, which may be
    /// nothing.
    virtual void setDrive(char letter, const std::string& folder) = 0;
    virtual bool folderExists(const std::string& path) const = 0;
    /// The native path of a DOS path. Throws RuntimeError for a drive that isn't there.
    virtual std::string nativePath(const std::string& dosPath) const = 0;

    /// Where PATH has a runner; empty: nowhere.
    virtual std::string findRunner(Runner which) const = 0;
    /// Asks a runner for its version. Throws RuntimeError when it can't be started.
    virtual ProgramOutput askForVersion(const std::string& path) = 0;

    /// Shows a folder in the desktop's file manager. False: there is none.
    virtual bool showFolder(const std::string& path) = 0;
};

} // namespace tarvex
