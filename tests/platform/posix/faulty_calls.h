#pragma once

#include "platform/posix/system_calls.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// The real calls, some of which fail as a test wants it.
class FaultyCalls final : public SystemCalls {
public:
    struct Fault {
        std::size_t at; ///< number of the call, from 0
        int error;
        bool lasting = false; ///< all later calls of the same name fail, too
    };
    std::optional<Fault> fault;
    std::string lockedFolder; ///< with "/" at its end: takes no new file
    std::size_t mostPerWrite = static_cast<std::size_t>(-1);
    std::size_t room = static_cast<std::size_t>(-1); ///< bytes until the disk is full
    bool backgroundSyncs = true;                     ///< the system has them

    std::deque<std::uint64_t> randomNumbers; ///< the next ones; real ones behind them
    std::function<void()> beforeEach;        ///< looks at the disk as it is before each call, and so after each

    std::vector<std::string> made; ///< names of the calls so far
    std::vector<int> openedWith;   ///< flags of the files that were asked for so far

    int open(const std::string& path, int flags, mode_t mode) override
    {
        openedWith.push_back(flags);
        if (fails("open")) return -1;
        if ((flags & O_CREAT) != 0 && isLocked(path)) return refuse(EACCES);
        return SystemCalls::open(path, flags, mode);
    }
    ssize_t read(int file, void* bytes, std::size_t size) override
    {
        return fails("read") ? -1 : SystemCalls::read(file, bytes, size);
    }
    ssize_t write(int file, const void* bytes, std::size_t size) override
    {
        if (fails("write")) return -1;
        if (room == 0) return refuse(ENOSPC);
        const ssize_t count = SystemCalls::write(file, bytes, std::min({size, mostPerWrite, room}));
        if (count > 0) room -= static_cast<std::size_t>(count);
        return count;
    }
    int ftruncate(int file, off_t size) override
    {
        return fails("ftruncate") ? -1 : SystemCalls::ftruncate(file, size);
    }
    int fstat(int file, struct stat& status) override { return fails("fstat") ? -1 : SystemCalls::fstat(file, status); }
    int fchown(int file, uid_t user, gid_t group) override
    {
        return fails("fchown") ? -1 : SystemCalls::fchown(file, user, group);
    }
    int fchmod(int file, mode_t mode) override { return fails("fchmod") ? -1 : SystemCalls::fchmod(file, mode); }
    int startSync(aiocb& request) override
    {
        return backgroundSyncs ? SystemCalls::startSync(request) : refuse(ENOSYS);
    }
    int flock(int file, int operation) override { return fails("flock") ? -1 : SystemCalls::flock(file, operation); }
    int fsetxattr(int file, const char* name, const void* value, std::size_t size) override
    {
        return fails("fsetxattr") ? -1 : SystemCalls::fsetxattr(file, name, value, size);
    }
    int fremovexattr(int file, const char* name) override
    {
        return fails("fremovexattr") ? -1 : SystemCalls::fremovexattr(file, name);
    }
    ssize_t lgetxattr(const std::string& path, const char* name, void* value, std::size_t size) override
    {
        return fails("lgetxattr") ? -1 : SystemCalls::lgetxattr(path, name, value, size);
    }
    ssize_t llistxattr(const std::string& path, char* names, std::size_t size) override
    {
        return fails("llistxattr") ? -1 : SystemCalls::llistxattr(path, names, size);
    }
    std::uint64_t randomBits() override
    {
        if (randomNumbers.empty()) return SystemCalls::randomBits();
        const std::uint64_t next = randomNumbers.front();
        randomNumbers.pop_front();
        return next;
    }
    int fsync(int file) override { return fails("fsync") ? -1 : SystemCalls::fsync(file); }
    int close(int file) override
    {
        const int result = SystemCalls::close(file); // a close that fails has closed
        return fails("close") ? -1 : result;
    }
    int lstat(const std::string& path, struct stat& status) override
    {
        return fails("lstat") ? -1 : SystemCalls::lstat(path, status);
    }
    ssize_t readlink(const std::string& path, char* target, std::size_t size) override
    {
        return fails("readlink") ? -1 : SystemCalls::readlink(path, target, size);
    }
    int access(const std::string& path, int mode) override
    {
        return fails("access") ? -1 : SystemCalls::access(path, mode);
    }
    int rename(const std::string& from, const std::string& to) override
    {
        return fails("rename") ? -1 : SystemCalls::rename(from, to);
    }
    int unlink(const std::string& path) override { return fails("unlink") ? -1 : SystemCalls::unlink(path); }
    int mkdir(const std::string& path, mode_t mode) override
    {
        return fails("mkdir") ? -1 : SystemCalls::mkdir(path, mode);
    }
    void sync() override { made.emplace_back("sync"); } // the whole machine needn't wait for a test

private:
    static int refuse(int error)
    {
        errno = error;
        return -1;
    }
    bool isLocked(const std::string& path) const
    {
        return !lockedFolder.empty() && path.substr(0, path.rfind('/') + 1) == lockedFolder;
    }
    bool fails(const char* name)
    {
        const std::size_t number = made.size();
        made.emplace_back(name);
        if (beforeEach) beforeEach();
        if (!fault || number < fault->at) return false;
        if (number > fault->at && !(fault->lasting && made[fault->at] == name)) return false;
        errno = fault->error;
        return true;
    }
};

} // namespace tarvex
