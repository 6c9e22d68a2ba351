#include "platform/posix/instance_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace tarvex {

namespace {

/// Closed by exec: a program that is started from here must not keep the lock.
FileDescriptor openLockFile(const std::string& path)
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NOCTTY | O_NONBLOCK;
    FileDescriptor file(::open(path.c_str(), flags | O_RDWR | O_CREAT, 0600));
    if (!file && errno == EACCES) file.reset(::open(path.c_str(), flags | O_RDONLY)); // is enough for the lock
    return file;
}

} // namespace

bool InstanceLock::take(const std::string& path)
{
    if (m_file) return true;
    FileDescriptor file = openLockFile(path);
    if (!file) return true;
    int result = 0;
    do result = ::flock(file.get(), LOCK_EX | LOCK_NB);
    while (result < 0 && errno == EINTR);
    if (result < 0) return errno != EWOULDBLOCK;
    m_file = std::move(file);
    return true;
}

} // namespace tarvex
