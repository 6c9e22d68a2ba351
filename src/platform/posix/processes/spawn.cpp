#include "platform/posix/processes/spawn.h"

#include "platform/errors.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/system_error.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tarvex {

namespace {

void check(int error)
{
    if (error != 0) throw systemError(error);
}

/// Steps that the child runs before the program takes over.
class FileActions {
public:
    FileActions(const std::string& directory, int kept, int output)
    {
        check(::posix_spawn_file_actions_init(&m_actions));
        check(::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        if (output >= 0) {
            for (const int standard : {STDOUT_FILENO, STDERR_FILENO})
                check(::posix_spawn_file_actions_adddup2(&m_actions, output, standard));
        }
        int first = STDERR_FILENO + 1;
        if (kept >= 0) check(::posix_spawn_file_actions_adddup2(&m_actions, kept, first++));
        check(::posix_spawn_file_actions_addclosefrom_np(&m_actions, first));
        check(::posix_spawn_file_actions_addchdir_np(&m_actions, directory.c_str()));
    }
    ~FileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    const posix_spawn_file_actions_t* get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions;
};

/// A session of its own, so that what hits this program's process group or terminal doesn't hit that one, nor the other
/// way round; and signals as a program expects them.
class Attributes {
public:
    Attributes()
    {
        check(::posix_spawnattr_init(&m_attributes));
        sigset_t signals;
        ::sigemptyset(&signals);
        check(::posix_spawnattr_setsigmask(&m_attributes, &signals));
        ::sigfillset(&signals);
        check(::posix_spawnattr_setsigdefault(&m_attributes, &signals));
        constexpr int flags = POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        check(::posix_spawnattr_setflags(&m_attributes, static_cast<short>(flags)));
    }
    ~Attributes() { ::posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    const posix_spawnattr_t* get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes;
};

RuntimeError startError(int error)
{
    switch (error) {
    case ENOENT:
        return {ErrorCode::FileNotFound, "File not found", error};
    case EACCES:
        return {ErrorCode::PermissionDenied, "Permission denied", error};
    case ENOEXEC:
        return {ErrorCode::InvalidCall, "Invalid procedure call or argument", error};
    default:
        return systemError(error);
    }
}

} // namespace

pid_t spawn(const std::vector<std::string>& arguments, const std::string& directory, int kept, int output)
{
    const FileActions actions(directory, kept, output);
    const Attributes attributes;
    std::vector<std::string> texts = arguments;
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    pid_t process = -1;
    const int error =
        ::posix_spawn(&process, texts.front().c_str(), actions.get(), attributes.get(), pointers.data(), environ);
    if (error != 0) throw startError(error);
    return process;
}

void fillStandardFiles()
{
    FileDescriptor file;
    do {
        file.release();                          // a standard file now, and stays open
        file.reset(::open("/dev/null", O_RDWR)); // the lowest number that is free
    } while (file && file.get() <= STDERR_FILENO);
}

int openProcess(pid_t process) { return static_cast<int>(::syscall(SYS_pidfd_open, process, 0)); }

} // namespace tarvex
