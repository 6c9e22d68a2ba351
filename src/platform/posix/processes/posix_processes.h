#pragma once

#include "platform/dialogues.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/posix/dosbox/dosbox_run.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/file_descriptor.h"
#include "platform/processes.h"

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace tarvex {

/// Programs of three worlds, distinguished by the contents of their files. Those of this system run as they are; what
/// follows the program's name becomes the arguments that a program of Windows would see, DOS paths among them native,
/// and the command's file is one argument of its own. Those of Windows run in Wine, which puts the same arguments
/// together again, with quotes of its own. Those of DOS run in DOSBox and get it as it stands, but for paths that are
/// called otherwise there; one too long for DOS, or for a batch file one that its interpreter would make something of,
/// is refused. Which Wine and which DOSBox is set in Platform.ini; else they are looked for where PATH says, but never
/// in the current folder.
class PosixProcesses : public Processes {
public:
    /// All outlive this. `programDirectory` is the DOS path of the folder with Platform.ini. The user is informed in a
    /// box when Wine or DOSBox is missing.
    PosixProcesses(const DriveMap& drives, FileSystem& files, Dialogues& dialogues, std::string programDirectory);
    /// Programs that still run go on.
    ~PosixProcesses() override;
    PosixProcesses(const PosixProcesses&) = delete;
    PosixProcesses& operator=(const PosixProcesses&) = delete;

    ProcessId start(const ProgramCommand& command, int style, const std::string& directory) override;
    std::int32_t wait(ProcessId process, std::int32_t timeout) override;
    std::string windowsDirectory() const override { return "c:\\windows"; }

    /// Runs a program of this system, by its native path, to its end, and stops it after `timeout` milliseconds. Throws
    /// RuntimeError when it can't be started.
    ProgramOutput run(const std::vector<std::string>& arguments, std::int32_t timeout);

    /// Reaps the exited programs that nobody waits for.
    void reap();

protected:
    /// A program that was started. Its file can be read once it has ended; -1: the system has no such thing, and it is
    /// looked after from time to time.
    struct Running {
        pid_t process;
        int file;
    };
    static constexpr int lookAfter = 20; ///< milliseconds
    static bool hasEnded(const Running& program);

    virtual int openProcess(pid_t process);
    /// Waits until the program has ended, `timeout` milliseconds at most, -1 for ever. False: the time is over.
    virtual bool waitForEnd(const Running& program, int timeout);
    /// A program was started, or isn't waited for any more.
    virtual void watch(const Running& program) { static_cast<void>(program); }
    /// Somebody waits for it, or it is about to be forgotten.
    virtual void unwatch(const Running& program) { static_cast<void>(program); }

private:
    struct Child {
        Running program;
        FileDescriptor file;            ///< the one of `program`
        std::unique_ptr<DosboxRun> dos; ///< of a DOS program
        int waits = 0;                  ///< in progress: its file is theirs, and so is reaping it
    };
    ProcessId adopt(pid_t process, std::unique_ptr<DosboxRun> dos);
    std::vector<Child>::iterator find(ProcessId process);
    void forget(std::vector<Child>::iterator child);
    pid_t startNative(const std::string& program, const std::string& tail, const ProgramCommand& command,
                      const std::string& directory) const;
    pid_t startWindows(const std::string& program, const std::string& tail, const std::string& directory,
                       bool controlPanel) const;
    std::string inSystemFolder(const std::string& program) const;
    std::string nativeArgument(const std::string& argument) const;
    std::string fileArgument(const std::string& file) const;
    std::string wineArgument(const std::string& argument) const;
    std::string winePath(std::string native) const;
    bool isKnownToWine(const std::string& path, const std::string& native) const;

    const DriveMap& m_drives;
    FileSystem& m_files;
    Dialogues& m_dialogues;
    std::string m_programDirectory;
    std::vector<Child> m_children;
};

} // namespace tarvex
