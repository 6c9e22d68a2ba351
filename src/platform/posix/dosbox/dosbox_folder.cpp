#include "platform/posix/dosbox/dosbox_folder.h"

#include "platform/errors.h"
#include "platform/posix/system_error.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = "tarvex-dos-";
constexpr const char* lockName = "lock";

/// Nothing in it means anything to DOSBox, and what is made below stays short enough.
bool isFit(const std::string& path)
{
    const auto isPlain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' || c == '_' ||
               c == '-';
    };
    return path.starts_with('/') && path.size() < 80 && std::all_of(path.begin(), path.end(), isPlain) &&
           ::access(path.c_str(), W_OK | X_OK) == 0;
}

std::string parentFolder()
{
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    return runtime != nullptr && isFit(runtime) ? runtime : "/tmp";
}

FileDescriptor openDirectory(const std::string& path)
{
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

FileDescriptor openLock(const FileDescriptor& folder, int flags)
{
    constexpr int always = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    return FileDescriptor(::openat(folder.get(), lockName, always | flags, 0600));
}

/// Owned by this user and closed to all others. In a shared folder the name proves nothing.
bool isOurs(const FileDescriptor& folder)
{
    struct stat state {};
    return folder && ::fstat(folder.get(), &state) == 0 && state.st_uid == ::geteuid() &&
           (state.st_mode & 0777) == 0700;
}

/// Removes a folder whose lock nobody holds any more.
void sweep(const std::string& path)
{
    const FileDescriptor folder = openDirectory(path);
    if (!isOurs(folder)) return;
    const FileDescriptor lock = openLock(folder, 0);
    if (!lock || ::flock(lock.get(), LOCK_EX | LOCK_NB) < 0) return;
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

void sweepAll(const std::string& parent)
{
    std::error_code error;
    fs::directory_iterator entry(parent, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (entry->path().filename().string().starts_with(prefix)) sweep(entry->path().string());
    }
}

} // namespace

DosboxFolder::DosboxFolder()
{
    const std::string parent = parentFolder();
    sweepAll(parent);
    std::string unlocked = parent + "/tarvex-new-XXXXXX"; // a name that nobody sweeps
    if (::mkdtemp(unlocked.data()) == nullptr) throwSystemError();
    const FileDescriptor folder = openDirectory(unlocked);
    if (folder) m_lock = openLock(folder, O_CREAT | O_EXCL);
    constexpr std::size_t randomPart = 6;
    m_path = parent + "/" + std::string(prefix) + unlocked.substr(unlocked.size() - randomPart);
    if (m_lock && ::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0 && ::rename(unlocked.c_str(), m_path.c_str()) == 0)
        return;
    const int error = errno;
    std::error_code ignored;
    for (const std::string& made : {unlocked + "/" + lockName, unlocked}) fs::remove(made, ignored); // opens no file
    throw systemError(error);
}

DosboxFolder::~DosboxFolder()
{
    std::error_code ignored;
    if (!m_path.empty()) fs::remove_all(m_path, ignored);
}

void DosboxFolder::put(const std::string& name, const std::string& bytes) const
{
    std::ofstream file(m_path + "/" + name, std::ios::binary);
    file << bytes;
    if (!file.flush()) throw RuntimeError(ErrorCode::DeviceInputOutput, "Device I/O error");
}

void DosboxFolder::link(const std::string& name, const std::string& target) const
{
    if (::symlink(target.c_str(), (m_path + "/" + name).c_str()) < 0) throwSystemError();
}

void DosboxFolder::makeDirectory(const std::string& name) const
{
    std::error_code error;
    fs::create_directory(m_path + "/" + name, error);
    if (error) throw systemError(error.value());
}

} // namespace tarvex
