#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>

struct aiocb;

namespace tarvex {

/// The calls of the operating system that saving a file takes. They do what their namesakes do: -1 and errno when they
/// fail. A test puts its own in their place and lets them fail.
class SystemCalls {
public:
    virtual ~SystemCalls() = default;

    virtual int open(const std::string& path, int flags, mode_t mode);
    virtual ssize_t read(int file, void* bytes, std::size_t size);
    virtual ssize_t write(int file, const void* bytes, std::size_t size);
    virtual int ftruncate(int file, off_t size);
    virtual int fstat(int file, struct stat& status);
    virtual int fchown(int file, uid_t user, gid_t group);
    virtual int fchmod(int file, mode_t mode);
    virtual int fsync(int file);
    virtual int flock(int file, int operation);
    virtual int fsetxattr(int file, const char* name, const void* value, std::size_t size);
    virtual int fremovexattr(int file, const char* name);
    /// Has the system sync the file of the request in the background.
    virtual int startSync(aiocb& request);
    virtual int close(int file);

    virtual int lstat(const std::string& path, struct stat& status);
    virtual ssize_t readlink(const std::string& path, char* target, std::size_t size);
    virtual ssize_t lgetxattr(const std::string& path, const char* name, void* value, std::size_t size);
    virtual ssize_t llistxattr(const std::string& path, char* names, std::size_t size);
    virtual int access(const std::string& path, int mode);
    virtual int rename(const std::string& from, const std::string& to);
    virtual int unlink(const std::string& path);
    virtual int mkdir(const std::string& path, mode_t mode);
    virtual void sync();

    /// For names that nobody else has; never fails.
    virtual std::uint64_t randomBits();
};

} // namespace tarvex
