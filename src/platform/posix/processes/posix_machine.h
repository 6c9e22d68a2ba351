#pragma once

#include "platform/machine.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/processes/posix_processes.h"

namespace tarvex {

/// This machine's drives and runners. It has no file manager.
class PosixMachine : public Machine {
public:
    /// Both outlive this.
    PosixMachine(DriveMap& drives, PosixProcesses& processes) : m_drives(drives), m_processes(processes) {}

    std::vector<DriveFolder> drives() const override;
    std::vector<DriveFolder> drivesWith(const DriveChoices& chosen) const override;
    void setDrive(char letter, const std::string& folder) override;
    bool folderExists(const std::string& path) const override;
    std::string nativePath(const std::string& dosPath) const override;
    std::string findRunner(Runner which) const override;
    ProgramOutput askForVersion(const std::string& path) override;
    bool showFolder(const std::string& path) override;

private:
    DriveMap& m_drives;
    PosixProcesses& m_processes;
};

} // namespace tarvex
