#include "platform/posix/own_names.h"

#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <unistd.h>

namespace tarvex {

namespace {

constexpr std::string_view temporaryStart = ".tarvex-save-";
constexpr std::string_view copyMark = ".tarvex-copy-";

std::string uniqueEnd()
{
    static std::atomic<unsigned> count = 0;
    return std::to_string(::getpid()) + "-" + std::to_string(++count);
}

/// "process-count" and nothing else.
std::optional<pid_t> processOfEnd(std::string_view end)
{
    pid_t process = 0;
    unsigned count = 0;
    const char* const last = end.data() + end.size();
    auto result = std::from_chars(end.data(), last, process);
    if (result.ec != std::errc() || process <= 0 || result.ptr == last || *result.ptr != '-') return std::nullopt;
    result = std::from_chars(result.ptr + 1, last, count);
    if (result.ec != std::errc() || result.ptr != last) return std::nullopt;
    return process;
}

} // namespace

std::string temporaryName() { return std::string(temporaryStart) + uniqueEnd(); }

std::string copyName(std::string_view name)
{
    constexpr std::size_t longest = 200; // leaves room for the end within the 255 bytes of a name
    return std::string(name.substr(0, longest)).append(copyMark) + uniqueEnd();
}

std::optional<pid_t> processOfTemporary(std::string_view name)
{
    if (!name.starts_with(temporaryStart)) return std::nullopt;
    return processOfEnd(name.substr(temporaryStart.size()));
}

std::optional<pid_t> processOfCopy(std::string_view name)
{
    const std::size_t mark = name.rfind(copyMark);
    if (mark == std::string_view::npos) return std::nullopt;
    return processOfEnd(name.substr(mark + copyMark.size()));
}

bool isOtherLivingProcess(pid_t process)
{
    return process != ::getpid() && (::kill(process, 0) == 0 || errno == EPERM);
}

} // namespace tarvex
