#include "platform/machine_settings.h"

namespace tarvex {

namespace {

constexpr std::string_view programs = "Programs";
constexpr std::string_view driveSection = "Drives";
constexpr std::size_t longestPath = 4096; ///< that systems take

} // namespace

std::string platformIniPath(const std::string& programDirectory) { return programDirectory + "\\Platform.ini"; }

std::string MachineSettings::runner(Runner which) const
{
    return m_ini.readString(programs, nameOf(which), "", longestPath);
}

void MachineSettings::setRunner(Runner which, const std::string& path)
{
    if (path != runner(which)) m_ini.writeString(programs, nameOf(which), path);
}

DriveChoices MachineSettings::drives() const
{
    DriveChoices drives;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::string folder = m_ini.readString(driveSection, std::string(1, letter), "", longestPath);
        if (folder.starts_with('/')) drives[letter] = folder;
    }
    return drives;
}

void MachineSettings::setDrive(char letter, const std::string& folder)
{
    const std::string key(1, letter);
    if (folder != m_ini.readString(driveSection, key, "", longestPath)) m_ini.writeString(driveSection, key, folder);
}

const char* nameOf(Runner which) { return which == Runner::Wine ? "Wine" : "DOSBox"; }

} // namespace tarvex
