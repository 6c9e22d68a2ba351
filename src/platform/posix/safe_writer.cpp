#include "platform/posix/safe_writer.h"

#include "platform/posix/file_rights.h"
#include "platform/posix/left_overs.h"
#include "platform/posix/open_file.h"
#include "platform/posix/own_names.h"
#include "platform/posix/system_error.h"

#include <array>
#include <cerrno>
#include <climits>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr mode_t privateMode = 0600;

/// Errors of a folder that takes no new file, or of a file that can't be replaced (a mount point, say), though it may
/// well be writable in place.
bool maySucceedDirectly(int error)
{
    return error == EACCES || error == EPERM || error == EBUSY || error == EXDEV || error == EROFS;
}

std::string directoryPart(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

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

void SafeWriter::save(const std::string& path, std::string_view bytes) { save(path, bytes, Rights::AsBefore); }
void SafeWriter::savePrivate(const std::string& path, std::string_view bytes) { save(path, bytes, Rights::Private); }

void SafeWriter::save(const std::string& path, std::string_view bytes, Rights rights)
{
    if (path.empty() || path.find('\0') != std::string::npos) throw systemError(EINVAL);
    const Target target = resolve(path);
    checkWritable(target);
    if (m_swept.insert(target.directory).second) sweep(target.directory);
    try {
        writeBeside(target, bytes, rights);
    } catch (const RuntimeError& error) {
        if (!target.exists || !maySucceedDirectly(error.lastDllError())) throw;
        writeDirectly(target, bytes, rights);
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

void SafeWriter::writeBeside(const Target& target, std::string_view bytes, Rights rights)
{
    // Until it has the old file's rights, nobody else may access the new one.
    const bool isPrivate = target.exists || rights == Rights::Private;
    TemporaryFile temporary(m_calls, target.directory, isPrivate ? privateMode : 0666);
    OpenFile& file = temporary.file();
    file.writeAll(bytes);
    if (target.exists && rights == Rights::AsBefore) copyRights(m_calls, file.descriptor(), target.path, target.status);
    file.sync();
    file.close();
    temporary.renameTo(target.path);
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

void SafeWriter::writeDirectly(const Target& target, std::string_view bytes, Rights rights)
{
    OpenFile file(m_calls, target.path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK); // no copy of a file that takes nothing
    if (rights == Rights::Private && m_calls.fchmod(file.descriptor(), privateMode) < 0) throwSystemError();
    const std::string old = OpenFile(m_calls, target.path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK).readAll();
    prepareRecoveryDirectory();
    TemporaryFile copy(m_calls, m_recoveryDirectory, privateMode); // locked, and so in use, for as long as it is here
    completeCopy(copy, target.name, old);
    try {
        overwrite(file, bytes);
    } catch (const RuntimeError& error) {
        putBack(target, old, copy, error);
        throw;
    }
    copy.remove();
}

void SafeWriter::prepareRecoveryDirectory()
{
    if (m_calls.mkdir(m_recoveryDirectory, 0700) < 0 && errno != EEXIST) throwSystemError();
    if (m_swept.insert(m_recoveryDirectory).second) sweep(m_recoveryDirectory);
}

/// Only complete copies have the name of one.
void SafeWriter::completeCopy(TemporaryFile& copy, const std::string& name, std::string_view old)
{
    copy.file().writeAll(old);
    copy.file().sync();
    copy.renameTo(m_recoveryDirectory + copyName(name, m_calls.randomBits()));
    try {
        syncDirectory(m_recoveryDirectory);
    } catch (const RuntimeError&) {
        copy.remove();
        throw;
    }
}

/// Throws an error of its own when the old contents can't be put back; `error` is what went wrong before.
void SafeWriter::putBack(const Target& target, std::string_view old, TemporaryFile& copy, const RuntimeError& error)
{
    try {
        OpenFile file(m_calls, target.path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
        overwrite(file, old);
    } catch (const RuntimeError&) {
        const std::string text = std::string(error.what()) + ". The file is damaged; a copy of it is " + copy.path();
        throw RuntimeError(error.code(), text, error.lastDllError());
    }
    copy.remove();
}

void SafeWriter::copyPrivate(const std::string& from, const std::string& to)
{
    OpenFile source(m_calls, from, O_RDONLY | O_NONBLOCK); // a pipe without a writer opens at once
    requireRegular(source.status());
    // Under its own name at once: a copy that is cut short by a kill is no loss, since the original is still there.
    OpenFile copy(m_calls, to, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, privateMode);
    try {
        std::array<char, 1 << 16> piece;
        while (const std::size_t size = source.readSome(piece.data(), piece.size()))
            copy.writeAll({piece.data(), size});
        copy.sync();
        copy.close();
        syncDirectory(directoryPart(to));
    } catch (const RuntimeError&) {
        m_calls.unlink(to);
        throw;
    }
}

void SafeWriter::sweep(const std::string& directory) const
{
    const bool isComplete = directory.empty() || directory.ends_with('/');
    removeTemporaryFiles(m_calls, isComplete ? directory : directory + '/', m_started);
}

std::vector<std::string> SafeWriter::leftCopies() const { return unlockedCopies(m_calls, m_recoveryDirectory); }

} // namespace tarvex
