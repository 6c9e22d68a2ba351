#include "cli/input.h"

#include "platform/utf16.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace tarvex::cli {

namespace {

constexpr std::size_t mostBytes = std::size_t{256} << 20;

/// A descriptor that is closed behind the reader; standard input stays open.
class Input {
public:
    explicit Input(const std::string& path) : m_name(displayName(path)), m_isStandard(path == "-")
    {
        if (!m_isStandard) m_descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (m_descriptor < 0) fail();
    }
    ~Input()
    {
        if (!m_isStandard) close(m_descriptor);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    /// False at the end.
    bool readInto(std::string& bytes)
    {
        const std::size_t before = bytes.size();
        if (before > mostBytes) throw CallError("can't read " + m_name + ": it is larger than 256 MB");
        bytes.resize(before + std::max<std::size_t>(before, 1 << 16));
        ssize_t count = -1;
        do {
            count = read(m_descriptor, bytes.data() + before, bytes.size() - before);
        } while (count < 0 && errno == EINTR);
        if (count < 0) fail();
        bytes.resize(before + static_cast<std::size_t>(count));
        return count > 0;
    }

private:
    [[noreturn]] void fail() const { throw CallError("can't read " + m_name + ": " + std::strerror(errno)); }

    std::string m_name;
    bool m_isStandard;
    int m_descriptor = STDIN_FILENO;
};

} // namespace

std::string displayName(const std::string& path) { return path == "-" ? "standard input" : path; }

std::string readInput(const std::string& path)
{
    Input input(path);
    std::string bytes;
    while (input.readInto(bytes)) continue;
    return textOfFile(std::move(bytes));
}

void print(const std::string& bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t count = write(STDOUT_FILENO, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw CallError(std::string("can't write the result: ") + std::strerror(errno));
        done += static_cast<std::size_t>(count);
    }
}

} // namespace tarvex::cli
