#pragma once

#include "platform/files.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/safe_writer.h"

namespace tarvex {

/// The files of this machine, by DOS path. Errors carry the system's own text and number.
class PosixFiles final : public FileSystem {
public:
    /// Both outlive this.
    PosixFiles(const DriveMap& drives, SafeWriter& writer) : m_drives(drives), m_writer(writer) {}

    bool fileExists(const std::string& path) const override;
    bool directoryExists(const std::string& path) const override;
    bool isReadOnly(const std::string& path) const override;
    FileStamp stamp(const std::string& path) const override;

    /// Only regular files; a pipe or device is refused at once and never waited for.
    std::string read(const std::string& path) const override;
    void readPieces(const std::string& path, const std::function<bool(std::string_view)>& take) const override;
    void write(const std::string& path, const std::string& bytes) override;
    void writePrivate(const std::string& path, const std::string& bytes) override;
    void copyPrivate(const std::string& from, const std::string& to) override;
    void createDirectory(const std::string& path) override;
    std::unique_ptr<AppendFile> createAppendFile(const std::string& path) override;
    void removeFile(const std::string& path) override;
    void renameFile(const std::string& path, const std::string& newPath) override;
    bool liesWithin(const std::string& path, const std::string& directory) const override;
    std::vector<std::string> list(const std::string& path) const override;

private:
    const DriveMap& m_drives;
    SafeWriter& m_writer;
    SystemCalls m_calls; ///< of the files that grow
};

} // namespace tarvex
