#pragma once

#include "platform/posix/file_descriptor.h"
#include "platform/posix/system_calls.h"

#include <string>
#include <string_view>

namespace tarvex {

/// Throws RuntimeError for a directory, pipe, device or other special file.
void requireRegular(const struct stat& status);

/// A file that is open through SystemCalls; what fails throws RuntimeError.
class OpenFile {
public:
    OpenFile(SystemCalls& calls, const std::string& path, int flags, mode_t mode = 0);

    int descriptor() const { return m_file.get(); }
    struct stat status();
    std::string readAll();
    /// Up to `size` bytes from where the last one ended; 0 at the end of the file.
    std::size_t readSome(char* bytes, std::size_t size);
    void writeAll(std::string_view bytes);
    void truncate(std::size_t size);
    void sync();
    /// Closes and throws when that fails, which the destructor can't.
    void close();

private:
    SystemCalls& m_calls;
    FileDescriptor m_file;
};

} // namespace tarvex
