#pragma once

#include <fcntl.h>
#include <fstream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

// A real disk of 64 KB for a child process, which must end without returning to the test.

namespace tarvex {

inline bool writeTo(const char* file, const std::string& text)
{
    std::ofstream stream(file);
    stream << text;
    return stream.flush().good();
}

/// A name space of mounts; an ordinary user gets one as the root of a name space of users.
inline bool enterNameSpace()
{
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (user == "0") return ::unshare(CLONE_NEWNS) == 0;
    return ::unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && writeTo("/proc/self/uid_map", "0 " + user + " 1") &&
           writeTo("/proc/self/setgroups", "deny") && writeTo("/proc/self/gid_map", "0 " + group + " 1");
}

/// Mounts it for this process only. False: the machine allows no mount.
inline bool mountSmallDisk(const std::string& place)
{
    return enterNameSpace() && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("tmpfs", place.c_str(), "tmpfs", 0, "size=64k") == 0;
}

/// Writes until nothing more fits.
inline void fill(const std::string& path)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const std::string block(4096, 'f');
    while (::write(file, block.data(), block.size()) > 0) {
    }
    ::close(file);
}

} // namespace tarvex
