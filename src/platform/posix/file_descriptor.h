#pragma once

#include <utility>

namespace tarvex {

/// Owns the number of an open file and closes it at the end of its life; -1 is no file. Code that needs the result of
/// closing releases the number and closes it itself.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_number(other.release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        if (this != &other) reset(other.release());
        return *this;
    }
    ~FileDescriptor() { reset(); }

    int get() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }
    /// Gives up the ownership.
    int release() { return std::exchange(m_number, -1); }
    /// Keeps errno, so that an error can be reported after the file was closed.
    void reset(int number = -1);

private:
    int m_number = -1;
};

} // namespace tarvex
