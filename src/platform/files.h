#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// Tells two states of a file apart; equal stamps mean that the file hasn't changed. A missing file has its own stamp.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modifiedNanoseconds = 0;
    std::uint64_t identity = 0; ///< 0: no such file
    bool operator==(const FileStamp&) const = default;
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
    /// One level; the parent must exist. An existing directory is an error.
    virtual void createDirectory(const std::string& path) = 0;
    virtual void removeFile(const std::string& path) = 0;
    /// Names (not paths) of the files and directories in a directory, in no particular order.
    virtual std::vector<std::string> list(const std::string& path) const = 0;
};

} // namespace tarvex
