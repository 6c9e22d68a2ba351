#pragma once

#include <string>

namespace tarvex {

/// What the program directory depends on; native paths, empty for what there is not.
struct ProgramPlaces {
    std::string executable;     ///< the running program, behind all symbolic links
    std::string installedFiles; ///< directory of the files that came with an installed package
    std::string dataHome;       ///< $XDG_DATA_HOME
    std::string home;           ///< $HOME
};

/// The directory ../share/tarvex, seen from an executable's; empty where there is none.
std::string installedFilesOf(const std::string& executable);

/// The real ones of this process.
ProgramPlaces readProgramPlaces();

/// The directory with the settings, native, no "/" at its end: the executable's. Where that isn't writable or the
/// program is an installed package, it is tarvex in the data home (by default ~/.local/share); that is made and filled
/// from the installed files as a whole when it doesn't exist. Where even this can't be had, the executable's again.
std::string findProgramDirectory(const ProgramPlaces& places);

} // namespace tarvex
