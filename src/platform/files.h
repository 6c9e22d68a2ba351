#pragma once

#include "platform/errors.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Distinguishes two states of a file; equal stamps mean that the file hasn't changed. A missing file has its own
/// stamp.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modifiedNanoseconds = 0;
    std::uint64_t identity = 0; ///< 0: no such file
    bool operator==(const FileStamp&) const = default;
};

/// A file that only grows. Made by FileSystem::createAppendFile.
class AppendFile {
public:
    virtual ~AppendFile() = default;
    /// Appended bytes survive a crash of the process at once, and a power failure after the next sync. Throws
    /// RuntimeError; a part of the bytes may be in the file then.
    virtual void append(std::string_view bytes) = 0;
    /// Has everything appended so far put onto the disk, without waiting for that. False: the disk is still busy with
    /// an earlier call, ask again. Throws RuntimeError when the disk didn't take what an earlier call gave it.
    virtual bool sync() = 0;
    /// The disk has all that the calls of sync gave it. False: it is still busy. Throws as sync does; each failure is
    /// reported once.
    virtual bool isSynced() = 0;
};

/// The files of the world, by DOS path: drive letter, ":", "\", names in any case (the exact spelling wins). Paths are
/// UTF-8, contents are bytes. What fails throws RuntimeError; the queries never throw.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual bool fileExists(const std::string& path) const = 0;
    virtual bool directoryExists(const std::string& path) const = 0;
    /// The file exists and can't be written by its attributes.
    virtual bool isReadOnly(const std::string& path) const = 0;
    virtual FileStamp stamp(const std::string& path) const = 0;

    /// The whole file.
    virtual std::string read(const std::string& path) const = 0;
    /// Hands the file's bytes to `take`, one piece after the other, until it returns false or the file ends: for files
    /// of any size.
    virtual void readPieces(const std::string& path, const std::function<bool(std::string_view)>& take) const
    {
        take(read(path));
    }
    /// Replaces or creates the whole file: afterwards, whatever happens, the old or the new contents are there.
    virtual void write(const std::string& path, const std::string& bytes) = 0;
    /// As write, for contents that nobody but the owner may access, whatever rights the file had before.
    virtual void writePrivate(const std::string& path, const std::string& bytes) { write(path, bytes); }
    /// Copies a file of any size; nobody but the owner may access the copy. An existing file `to` is an error.
    virtual void copyPrivate(const std::string& from, const std::string& to)
    {
        if (fileExists(to)) throw RuntimeError(ErrorCode::FileExists, "File already exists: " + to);
        writePrivate(to, read(from));
    }
    /// One level, private to the owner; the parent must exist. An existing directory is an error.
    virtual void createDirectory(const std::string& path) = 0;
    /// A new file that nobody but its owner may look into; its directory is made (one level), likewise private, when it
    /// isn't there. An existing file is an error. A disk that is only read from has no such files.
    virtual std::unique_ptr<AppendFile> createAppendFile(const std::string& path)
    {
        throw RuntimeError(ErrorCode::PermissionDenied, "Permission denied: " + path);
    }
    virtual void removeFile(const std::string& path) = 0;
    /// Gives a file another name in its directory. An existing file of that name is an error. A disk that is only read
    /// from renames nothing.
    virtual void renameFile(const std::string& path, const std::string& newPath)
    {
        throw RuntimeError(ErrorCode::PermissionDenied, "Permission denied: " + path + " to " + newPath);
    }
    /// The file or directory lies in the directory, behind all symbolic links too; false when one of them isn't there.
    /// A disk without directories has nothing in them.
    virtual bool liesWithin(const std::string& path, const std::string& directory) const
    {
        static_cast<void>(path);
        static_cast<void>(directory);
        return false;
    }
    /// Names (not paths) of the files and directories in a directory, in no particular order.
    virtual std::vector<std::string> list(const std::string& path) const = 0;
};

} // namespace tarvex
