#include "platform/posix/safe_writer.h"

#include "platform/posix/open_file.h"
#include "platform/posix/own_names.h"
#include "platform/posix/system_error.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr mode_t permissions = 07777;

/// Errors of a folder that takes no new file, or of a file that can't be replaced (a mount point, say), though it may
/// well be writable in place.
bool maySucceedDirectly(int error)
{
    return error == EACCES || error == EPERM || error == EBUSY || error == EXDEV || error == EROFS;
}

std::string directoryPart(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

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

void overwrite(OpenFile& file, std::string_view bytes)
{
    file.writeAll(bytes);
    file.truncate(bytes.size());
    file.sync();
    file.close();
}

} // namespace

SafeWriter::SafeWriter(std::string recoveryDirectory, SystemCalls& calls)
    : m_recoveryDirectory(std::move(recoveryDirectory)), m_calls(calls)
{
    if (!m_recoveryDirectory.ends_with('/')) m_recoveryDirectory += '/';
    ::clock_gettime(CLOCK_REALTIME, &m_started);
}

void SafeWriter::save(const std::string& path, std::string_view bytes)
{
    if (path.empty() || path.find('\0') != std::string::npos) throw systemError(EINVAL);
    const Target target = resolve(path);
    checkWritable(target);
    if (m_swept.insert(target.directory).second) sweep(target.directory);

    const std::string temporary = target.directory + temporaryName();
    try {
        writeBeside(target, temporary, bytes);
    } catch (const RuntimeError& error) {
        m_calls.unlink(temporary);
        if (!target.exists || !maySucceedDirectly(error.lastDllError())) throw;
        writeDirectly(target, bytes);
        return;
    }
    syncDirectory(target.directory);
}

SafeWriter::Target SafeWriter::resolve(std::string path) const
{
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        Target target;
        target.path = path;
        target.directory = directoryPart(path);
        target.name = path.substr(target.directory.size());
        target.exists = m_calls.lstat(path, target.status) == 0;
        if (!target.exists && errno != ENOENT) throwSystemError();
        if (!target.exists || !S_ISLNK(target.status.st_mode)) return target;

        char text[PATH_MAX];
        const ssize_t size = m_calls.readlink(path, text, sizeof text);
        if (size < 0) throwSystemError();
        const std::string next(text, static_cast<std::size_t>(size));
        path = next.starts_with('/') ? next : target.directory + next;
    }
    throw systemError(ELOOP);
}

void SafeWriter::checkWritable(const Target& target) const
{
    if (target.name.empty()) throw systemError(EISDIR);
    if (!target.exists) return;
    if (S_ISDIR(target.status.st_mode)) throw systemError(EISDIR);
    if (!S_ISREG(target.status.st_mode)) {
        throw RuntimeError(ErrorCode::PathFileAccess, "Not a regular file: " + target.path, EINVAL);
    }
    const bool nobodyMayWrite = (target.status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    if (nobodyMayWrite) throw systemError(EACCES);
    if (m_calls.access(target.path, W_OK) < 0) throwSystemError();
}

void SafeWriter::writeBeside(const Target& target, const std::string& temporary, std::string_view bytes)
{
    // A group or others that may not read the old contents don't get to see the new ones, not even for a moment.
    const mode_t mode = target.exists ? target.status.st_mode & 0777U : 0666;
    OpenFile file(m_calls, temporary, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode | S_IWUSR);
    file.writeAll(bytes);
    if (target.exists) keepOwnerAndMode(target, file.descriptor());
    file.sync();
    file.close();
    if (m_calls.rename(temporary, target.path) < 0) throwSystemError();
}

void SafeWriter::keepOwnerAndMode(const Target& target, int file) const
{
    struct stat made = {};
    if (m_calls.fstat(file, made) < 0) throwSystemError();
    const struct stat& old = target.status;
    bool kept = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (!kept) kept = m_calls.fchown(file, old.st_uid, old.st_gid) == 0;
    if (!kept) m_calls.fchown(file, static_cast<uid_t>(-1), old.st_gid);   // the group alone is often allowed
    const mode_t mode = old.st_mode & (kept ? permissions : mode_t{0777}); // no set-user-id for another owner
    // Some file systems know no permissions; contents that are safe are worth more than their mode.
    if ((made.st_mode & permissions) != mode || !kept) m_calls.fchmod(file, mode);
}

void SafeWriter::syncDirectory(const std::string& directory)
{
    const std::string path = directory.empty() ? "." : directory;
    const int folder = m_calls.open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (folder < 0) return m_calls.sync(); // a folder that may be written but not read
    const int result = m_calls.fsync(folder);
    const int error = result < 0 ? errno : 0;
    m_calls.close(folder);                                                            // nothing was written through it
    if (error == EINTR || error == EINVAL || error == ENOTSUP) return m_calls.sync(); // not every file system can
    if (error != 0) throw systemError(error);
}

void SafeWriter::writeDirectly(const Target& target, std::string_view bytes)
{
    OpenFile file(m_calls, target.path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK); // no copy of a file that takes nothing
    const std::string old = OpenFile(m_calls, target.path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK).readAll();
    const std::string copy = makeCopy(target, old);
    try {
        overwrite(file, bytes);
    } catch (const RuntimeError& error) {
        putBack(target, old, copy, error);
        throw;
    }
    m_calls.unlink(copy);
}

/// Throws an error of its own when the old contents can't be put back; `error` is what went wrong before.
void SafeWriter::putBack(const Target& target, std::string_view old, const std::string& copy, const RuntimeError& error)
{
    try {
        OpenFile file(m_calls, target.path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
        overwrite(file, old);
    } catch (const RuntimeError&) {
        const std::string text = std::string(error.what()) + ". The file is damaged; a copy of it is " + copy;
        throw RuntimeError(error.code(), text, error.lastDllError());
    }
    m_calls.unlink(copy);
}

std::string SafeWriter::makeCopy(const Target& target, std::string_view old)
{
    if (m_calls.mkdir(m_recoveryDirectory, 0700) < 0 && errno != EEXIST) throwSystemError();
    if (m_swept.insert(m_recoveryDirectory).second) sweep(m_recoveryDirectory);
    Target copy;
    copy.directory = m_recoveryDirectory;
    copy.name = copyName(target.name);
    copy.path = copy.directory + copy.name;
    const std::string temporary = copy.directory + temporaryName();
    try {
        writeBeside(copy, temporary, old);
        syncDirectory(copy.directory);
    } catch (const RuntimeError&) {
        m_calls.unlink(temporary);
        m_calls.unlink(copy.path);
        throw;
    }
    return copy.path;
}

void SafeWriter::sweep(const std::string& directory) const
{
    const std::string folder = directory.empty() || directory.ends_with('/') ? directory : directory + '/';
    for (const std::string& name : namesIn(folder)) {
        const auto process = processOfTemporary(name);
        struct stat status = {};
        if (!process || isOtherLivingProcess(*process) || m_calls.lstat(folder + name, status) < 0) continue;
        if (S_ISREG(status.st_mode) && isOlder(status.st_mtim, m_started)) m_calls.unlink(folder + name);
    }
}

std::vector<std::string> SafeWriter::leftCopies() const
{
    std::vector<std::string> paths;
    for (const std::string& name : namesIn(m_recoveryDirectory)) {
        const auto process = processOfCopy(name);
        if (process && !isOtherLivingProcess(*process)) paths.push_back(m_recoveryDirectory + name);
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace tarvex
