#pragma once

#include "platform/errors.h"
#include "platform/files.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// A disk in memory. Names keep the case in which they were made and match in any; "/" counts as "\". Drive "c:" is
/// there from the start. Nothing is written below a directory that doesn't exist.
class MemoryFiles final : public FileSystem {
public:
    MemoryFiles();

    // What a test sets up; directories on the way are made, and neither the log nor the failures take part.
    void addFile(const std::string& path, const std::string& bytes);
    void addDirectory(const std::string& path);
    /// Other bytes of the same number, under the time and identity that the file had.
    void changeSecretly(const std::string& path, const std::string& bytes);
    /// The file or directory, which must be there, is a link to somewhere outside of all directories above it.
    void makeLinkOutside(const std::string& path);
    void removeDirectory(const std::string& path);
    void setReadOnly(const std::string& path, bool readOnly = true);
    /// Every write (read) of the path fails with the error from now on, or no longer.
    void failWrites(const std::string& path, std::optional<RuntimeError> error);
    void failReads(const std::string& path, std::optional<RuntimeError> error);

    /// Every file that grows fails to from now on, or no longer; `after` more bytes still get through.
    void failAppends(std::optional<RuntimeError> error, std::size_t after = 0);

    // What a test looks at.
    struct Write {
        std::string path; ///< as it was given
        std::string bytes;
    };
    /// The writes that succeeded, in order.
    const std::vector<Write>& writes() const { return m_writes; }
    void clearWrites() { m_writes.clear(); }
    /// How often bytes were appended to a growing file.
    int appends() const { return m_appends; }
    /// How often a growing file was synced.
    int syncs() const { return m_syncs; }
    /// Each sync of a growing file stays under way from now on, or no longer.
    void holdSyncs(bool held) { m_syncsHeld = held; }
    /// Each sync of a growing file fails in the end from now on, or no longer.
    void failSyncs(std::optional<RuntimeError> error) { m_syncError = std::move(error); }
    /// Growing files that are open.
    int growing() const { return m_growing; }
    /// The bytes of a file; nothing when there is none.
    std::optional<std::string> contents(const std::string& path) const;
    /// The path in the case in which its file or directory was made, or the path itself.
    std::string spelling(const std::string& path) const;

    bool fileExists(const std::string& path) const override;
    bool directoryExists(const std::string& path) const override;
    bool isReadOnly(const std::string& path) const override;
    FileStamp stamp(const std::string& path) const override;
    std::string read(const std::string& path) const override;
    void write(const std::string& path, const std::string& bytes) override;
    void createDirectory(const std::string& path) override;
    std::unique_ptr<AppendFile> createAppendFile(const std::string& path) override;
    void removeFile(const std::string& path) override;
    void renameFile(const std::string& path, const std::string& newPath) override;
    bool liesWithin(const std::string& path, const std::string& directory) const override;
    std::vector<std::string> list(const std::string& path) const override;

private:
    class GrowingFile;
    struct Entry {
        std::string path;
        bool isDirectory = false;
        bool readOnly = false;
        std::string bytes;
        FileStamp stamp;
        std::optional<RuntimeError> readError;
    };
    const Entry* find(const std::string& path) const;
    Entry& fileAt(const std::string& path);
    void put(const std::string& path, const std::string& bytes);

    std::map<std::string, Entry> m_entries;            ///< by key(path)
    std::map<std::string, RuntimeError> m_writeErrors; ///< by key(path), also of files that don't exist
    std::vector<Write> m_writes;
    std::vector<std::string> m_linksOutside; ///< key(path)
    std::uint64_t m_clock = 0;
    std::optional<RuntimeError> m_appendError;
    std::size_t m_appendRoom = 0; ///< bytes until the error
    int m_appends = 0;
    int m_syncs = 0;
    bool m_syncsHeld = false;
    std::optional<RuntimeError> m_syncError;
    int m_growing = 0;
};

} // namespace tarvex
