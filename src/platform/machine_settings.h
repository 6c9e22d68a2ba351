#pragma once

#include "platform/machine.h"
#include "platform/profile_file.h"

#include <map>
#include <string>

namespace tarvex {

/// The file that keeps what belongs to this machine and isn't part of the settings that machines share.
std::string platformIniPath(const std::string& programDirectory);

/// What Platform.ini says about the machine: sections Programs (Wine, DOSBox: native paths) and Drives (c, d, ...:
/// native folders). Nothing is cached; an empty value is none.
class MachineSettings {
public:
    /// The file outlives this.
    explicit MachineSettings(ProfileFile& ini) : m_ini(ini) {}

    std::string runner(Runner which) const;
    void setRunner(Runner which, const std::string& path);
    /// The folders that the user chose for letters, 'a' to 'z': absolute paths only.
    DriveChoices drives() const;
    void setDrive(char letter, const std::string& folder);

private:
    ProfileFile& m_ini;
};

/// The runner's name in texts and in Platform.ini.
const char* nameOf(Runner which);

} // namespace tarvex
