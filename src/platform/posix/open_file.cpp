#include "platform/posix/open_file.h"

#include "platform/posix/system_error.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace tarvex {

namespace {

/// A call that a signal has interrupted is made again.
template <typename Call> auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    if (result < 0) throwSystemError();
    return result;
}

/// How many bytes to ask for behind the first `size`. Where the end is expected, one is enough to meet it: room for
/// more would be cleared for nothing. Beyond that the room doubles.
std::size_t nextStep(std::size_t size, std::size_t expected)
{
    constexpr std::size_t smallest = 1 << 12;
    constexpr std::size_t largest = 1 << 20;
    if (size <= expected) return std::min(expected - size + 1, largest);
    return std::clamp(size, smallest, largest);
}

} // namespace

void requireRegular(const struct stat& status)
{
    if (S_ISDIR(status.st_mode)) throw systemError(EISDIR);
    if (!S_ISREG(status.st_mode)) throw RuntimeError(ErrorCode::PathFileAccess, "Not a regular file", EINVAL);
}

OpenFile::OpenFile(SystemCalls& calls, const std::string& path, int flags, mode_t mode)
    : m_calls(calls), m_file(uninterrupted([&] { return calls.open(path, flags | O_CLOEXEC | O_NOCTTY, mode); }))
{
}

struct stat OpenFile::status()
{
    struct stat status = {};
    uninterrupted([&] { return m_calls.fstat(m_file.get(), status); });
    return status;
}

std::string OpenFile::readAll()
{
    const auto expected = static_cast<std::size_t>(std::max<off_t>(status().st_size, 0));
    std::string bytes;
    for (;;) {
        const std::size_t size = bytes.size();
        const std::size_t step = nextStep(size, expected);
        bytes.resize(size + step);
        const std::size_t count = readSome(bytes.data() + size, step);
        bytes.resize(size + count);
        if (count == 0) return bytes;
    }
}

std::size_t OpenFile::readSome(char* bytes, std::size_t size)
{
    return static_cast<std::size_t>(uninterrupted([&] { return m_calls.read(m_file.get(), bytes, size); }));
}

void OpenFile::writeAll(std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto count = uninterrupted([&] { return m_calls.write(m_file.get(), bytes.data(), bytes.size()); });
        if (count == 0) throw systemError(EIO); // no progress and no reason: don't try for ever
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void OpenFile::truncate(std::size_t size)
{
    uninterrupted([&] { return m_calls.ftruncate(m_file.get(), static_cast<off_t>(size)); });
}

void OpenFile::sync()
{
    uninterrupted([&] { return m_calls.fsync(m_file.get()); });
}

void OpenFile::close()
{
    const int file = m_file.release(); // gone even when the call fails
    if (m_calls.close(file) < 0 && errno != EINTR) throwSystemError();
}

} // namespace tarvex
