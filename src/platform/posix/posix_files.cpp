#include "platform/posix/posix_files.h"

#include "platform/posix/open_file.h"
#include "platform/posix/posix_append_file.h"
#include "platform/posix/system_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {

namespace {

std::optional<struct stat> statusOf(const std::string& native)
{
    struct stat status = {};
    if (::stat(native.c_str(), &status) < 0) return std::nullopt;
    return status;
}

/// For the queries, which never throw: a path that can't be mapped names nothing.
std::optional<struct stat> statusOf(const DriveMap& drives, const std::string& path)
{
    try {
        return statusOf(drives.toNative(path));
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

bool isReadOnlyFile(const std::string& native, const struct stat& status)
{
    const bool nobodyMayWrite = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    return nobodyMayWrite || ::faccessat(AT_FDCWD, native.c_str(), W_OK, AT_EACCESS) < 0;
}

/// Runs a call on a native path; "not found" says whether the file or its directory is missing.
template <typename Call> auto withErrorsOf(const std::string& native, Call call)
{
    try {
        return call();
    } catch (const RuntimeError& error) {
        const std::string directory = native.substr(0, native.rfind('/') + 1);
        if (error.code() != ErrorCode::FileNotFound || statusOf(directory)) throw;
        throw RuntimeError(ErrorCode::PathNotFound, error.what(), error.lastDllError());
    }
}

} // namespace

bool PosixFiles::fileExists(const std::string& path) const
{
    const auto status = statusOf(m_drives, path);
    return status && !S_ISDIR(status->st_mode);
}

bool PosixFiles::directoryExists(const std::string& path) const
{
    const auto status = statusOf(m_drives, path);
    return status && S_ISDIR(status->st_mode);
}

bool PosixFiles::isReadOnly(const std::string& path) const
{
    const auto status = statusOf(m_drives, path);
    return status && !S_ISDIR(status->st_mode) && isReadOnlyFile(m_drives.toNative(path), *status);
}

FileStamp PosixFiles::stamp(const std::string& path) const
{
    const auto status = statusOf(m_drives, path);
    if (!status) return {};
    const auto& time = status->st_mtim;
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15U; // keeps equal inodes of two disks apart
    const std::uint64_t identity = status->st_ino + status->st_dev * spread;
    return {static_cast<std::uint64_t>(status->st_size), time.tv_sec * std::int64_t{1'000'000'000} + time.tv_nsec,
            identity == 0 ? 1 : identity};
}

std::string PosixFiles::read(const std::string& path) const
{
    const std::string native = m_drives.toNative(path);
    return withErrorsOf(native, [&] {
        SystemCalls calls;
        OpenFile file(calls, native, O_RDONLY | O_NONBLOCK); // a pipe without a writer opens at once
        requireRegular(file.status());
        return file.readAll();
    });
}

void PosixFiles::readPieces(const std::string& path, const std::function<bool(std::string_view)>& take) const
{
    const std::string native = m_drives.toNative(path);
    withErrorsOf(native, [&] {
        SystemCalls calls;
        OpenFile file(calls, native, O_RDONLY | O_NONBLOCK);
        const struct stat status = file.status();
        requireRegular(status);
        std::array<char, 1 << 16> piece;
        auto left = static_cast<std::size_t>(status.st_size); // a file that still grows is read up to here
        while (left > 0) {
            const std::size_t count = file.readSome(piece.data(), std::min(left, piece.size()));
            if (count == 0 || !take({piece.data(), count})) return;
            left -= count;
        }
    });
}

void PosixFiles::write(const std::string& path, const std::string& bytes)
{
    const std::string native = m_drives.toNative(path);
    withErrorsOf(native, [&] { m_writer.save(native, bytes); });
}

void PosixFiles::writePrivate(const std::string& path, const std::string& bytes)
{
    const std::string native = m_drives.toNative(path);
    withErrorsOf(native, [&] { m_writer.savePrivate(native, bytes); });
}

void PosixFiles::copyPrivate(const std::string& from, const std::string& to)
{
    const std::string source = m_drives.toNative(from);
    const std::string copy = m_drives.toNative(to);
    withErrorsOf(copy, [&] { m_writer.copyPrivate(source, copy); });
}

void PosixFiles::createDirectory(const std::string& path)
{
    const std::string native = m_drives.toNative(path);
    withErrorsOf(native, [&] {
        if (::mkdir(native.c_str(), 0700) == 0) return;
        const int error = errno;
        if (error == EEXIST) throw RuntimeError(ErrorCode::PathFileAccess, systemError(error).what(), error);
        throw systemError(error);
    });
}

std::unique_ptr<AppendFile> PosixFiles::createAppendFile(const std::string& path)
{
    const std::string native = m_drives.toNative(path);
    return withErrorsOf(native, [&] { return std::make_unique<PosixAppendFile>(m_calls, native); });
}

void PosixFiles::removeFile(const std::string& path)
{
    const std::string native = m_drives.toNative(path);
    withErrorsOf(native, [&] {
        const auto status = statusOf(native);
        if (status && S_ISDIR(status->st_mode)) throw systemError(EISDIR);
        if (status && isReadOnlyFile(native, *status)) throw systemError(EACCES);
        if (::unlink(native.c_str()) < 0) throwSystemError();
    });
}

/// By a link where there are any, because a rename would replace a file that gets the new name meanwhile.
void PosixFiles::renameFile(const std::string& path, const std::string& newPath)
{
    const std::string native = m_drives.toNative(path);
    const std::string newNative = m_drives.toNative(newPath);
    withErrorsOf(native, [&] {
        if (::link(native.c_str(), newNative.c_str()) == 0) {
            if (::unlink(native.c_str()) < 0) throwSystemError();
            return;
        }
        // A directory has no links, and neither has any file of some file systems.
        if (errno == EEXIST || statusOf(newNative)) throw systemError(EEXIST);
        if (::rename(native.c_str(), newNative.c_str()) < 0) throwSystemError();
    });
}

bool PosixFiles::liesWithin(const std::string& path, const std::string& directory) const
{
    try {
        const std::filesystem::path inner = std::filesystem::canonical(m_drives.toNative(path));
        const std::filesystem::path outer = std::filesystem::canonical(m_drives.toNative(directory));
        return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
    } catch (const std::exception&) {
        return false;
    }
}

std::vector<std::string> PosixFiles::list(const std::string& path) const
{
    try {
        return m_drives.list(path);
    } catch (const RuntimeError& error) {
        if (error.code() != ErrorCode::FileNotFound) throw;
        throw RuntimeError(ErrorCode::PathNotFound, error.what(), error.lastDllError());
    }
}

} // namespace tarvex
