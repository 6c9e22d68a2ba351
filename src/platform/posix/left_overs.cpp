#include "platform/posix/left_overs.h"

#include "platform/posix/file_descriptor.h"
#include "platform/posix/own_names.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>

namespace tarvex {

namespace {

enum class Use { None, Locked, Unknown };

Use useOf(SystemCalls& calls, const std::string& path)
{
    constexpr int flags = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor file(calls.open(path, flags, 0));
    if (!file) return Use::Unknown;
    if (calls.flock(file.get(), LOCK_EX | LOCK_NB) == 0) return Use::None;
    return errno == EWOULDBLOCK ? Use::Locked : Use::Unknown;
}

bool isOlder(const timespec& time, const timespec& than)
{
    return time.tv_sec != than.tv_sec ? time.tv_sec < than.tv_sec : time.tv_nsec < than.tv_nsec;
}

std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(directory.empty() ? "." : directory, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    return names;
}

} // namespace

void removeTemporaryFiles(SystemCalls& calls, const std::string& directory, const timespec& olderThan)
{
    for (const std::string& name : namesIn(directory)) {
        if (!isTemporaryName(name)) continue;
        const std::string path = directory + name;
        struct stat status = {};
        if (calls.lstat(path, status) < 0 || !S_ISREG(status.st_mode)) continue;
        // A young one may have been made just now, and not be locked yet.
        if (isOlder(status.st_mtim, olderThan) && useOf(calls, path) == Use::None) calls.unlink(path);
    }
}

std::vector<std::string> unlockedCopies(SystemCalls& calls, const std::string& directory)
{
    std::vector<std::string> paths;
    for (const std::string& name : namesIn(directory)) {
        if (isCopyName(name) && useOf(calls, directory + name) != Use::Locked) paths.push_back(directory + name);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace tarvex
