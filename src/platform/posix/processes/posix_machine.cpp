#include "platform/posix/processes/posix_machine.h"

#include "platform/posix/processes/runners.h"

#include <filesystem>

namespace tarvex {

namespace {

constexpr int patience = 10000; ///< milliseconds that a runner gets to say its version

DriveFolder::Origin originOf(const DriveMap::Drive& drive)
{
    if (drive.isChosen) return DriveFolder::Origin::User;
    return drive.isOwn || drive.makeRoot ? DriveFolder::Origin::Tarvex : DriveFolder::Origin::Wine;
}

std::vector<DriveFolder> foldersOf(const DriveMap& drives)
{
    std::vector<DriveFolder> folders;
    for (const DriveMap::Drive& drive : drives.drives()) {
        const std::string& root = drive.roots.front();
        folders.push_back({drive.letter, root.empty() ? "/" : root, originOf(drive)});
    }
    return folders;
}

} // namespace

std::vector<DriveFolder> PosixMachine::drives() const { return foldersOf(m_drives); }

std::vector<DriveFolder> PosixMachine::drivesWith(const DriveChoices& chosen) const
{
    DriveMap drives = m_drives;
    drives.forgetChoices();
    for (const auto& [letter, folder] : chosen) drives.choose(letter, folder);
    return foldersOf(drives);
}

void PosixMachine::setDrive(char letter, const std::string& folder) { m_drives.choose(letter, folder); }

bool PosixMachine::folderExists(const std::string& path) const
{
    std::error_code error;
    return path.starts_with('/') && std::filesystem::is_directory(path, error);
}

std::string PosixMachine::nativePath(const std::string& dosPath) const { return m_drives.toNative(dosPath); }

std::string PosixMachine::findRunner(Runner which) const { return findRunnerInPath(which); }

ProgramOutput PosixMachine::askForVersion(const std::string& path)
{
    return m_processes.run({path, "--version"}, patience);
}

bool PosixMachine::showFolder(const std::string& /*path*/) { return false; }

} // namespace tarvex
