#pragma once

#include "platform/posix/open_file.h"

#include <string>

namespace tarvex {

/// A new hidden file in a directory, open for writing and locked, that gets its real name when it is complete. It is
/// removed at the end of its life unless it got that name.
class TemporaryFile {
public:
    /// `directory` ends with "/" or is empty. When a name is taken, another one is tried. `calls` outlives this.
    TemporaryFile(SystemCalls& calls, const std::string& directory, mode_t mode);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    OpenFile& file() { return m_file; }
    /// The present name.
    const std::string& path() const { return m_path; }
    /// Replaces what has that name; the file stays open if it was.
    void renameTo(const std::string& path);
    /// For a file that already has its real name.
    void remove();

private:
    SystemCalls& m_calls;
    std::string m_path;
    OpenFile m_file;
    bool m_isComplete = false;
};

} // namespace tarvex
