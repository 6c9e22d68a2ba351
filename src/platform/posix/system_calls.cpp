#include "platform/posix/system_calls.h"

#include <aio.h>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tarvex {

int SystemCalls::open(const std::string& path, int flags, mode_t mode) { return ::open(path.c_str(), flags, mode); }
ssize_t SystemCalls::read(int file, void* bytes, std::size_t size) { return ::read(file, bytes, size); }
ssize_t SystemCalls::write(int file, const void* bytes, std::size_t size) { return ::write(file, bytes, size); }
int SystemCalls::ftruncate(int file, off_t size) { return ::ftruncate(file, size); }
int SystemCalls::fstat(int file, struct stat& status) { return ::fstat(file, &status); }
int SystemCalls::fchown(int file, uid_t user, gid_t group) { return ::fchown(file, user, group); }
int SystemCalls::fchmod(int file, mode_t mode) { return ::fchmod(file, mode); }
int SystemCalls::fsync(int file) { return ::fsync(file); }
int SystemCalls::flock(int file, int operation) { return ::flock(file, operation); }
int SystemCalls::fsetxattr(int file, const char* name, const void* value, std::size_t size)
{
    return ::fsetxattr(file, name, value, size, 0);
}
int SystemCalls::fremovexattr(int file, const char* name) { return ::fremovexattr(file, name); }
int SystemCalls::startSync(aiocb& request) { return ::aio_fsync(O_DSYNC, &request); }
int SystemCalls::close(int file) { return ::close(file); }

int SystemCalls::lstat(const std::string& path, struct stat& status) { return ::lstat(path.c_str(), &status); }
ssize_t SystemCalls::readlink(const std::string& path, char* target, std::size_t size)
{
    return ::readlink(path.c_str(), target, size);
}
ssize_t SystemCalls::lgetxattr(const std::string& path, const char* name, void* value, std::size_t size)
{
    return ::lgetxattr(path.c_str(), name, value, size);
}
ssize_t SystemCalls::llistxattr(const std::string& path, char* names, std::size_t size)
{
    return ::llistxattr(path.c_str(), names, size);
}
int SystemCalls::access(const std::string& path, int mode)
{
    return ::faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS);
}
int SystemCalls::rename(const std::string& from, const std::string& to)
{
    return std::rename(from.c_str(), to.c_str());
}
int SystemCalls::unlink(const std::string& path) { return ::unlink(path.c_str()); }
int SystemCalls::mkdir(const std::string& path, mode_t mode) { return ::mkdir(path.c_str(), mode); }
void SystemCalls::sync() { ::sync(); }

std::uint64_t SystemCalls::randomBits()
{
    std::uint64_t bits = 0;
    if (::getrandom(&bits, sizeof bits, GRND_NONBLOCK) == static_cast<ssize_t>(sizeof bits)) return bits;
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count(); // early at boot, or an old kernel
    return static_cast<std::uint64_t>(now) * 0x9E3779B97F4A7C15U ^ static_cast<std::uint64_t>(::getpid());
}

} // namespace tarvex
