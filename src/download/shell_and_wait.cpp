#include "download/shell_and_wait.h"

namespace tarvex {

namespace {

constexpr std::int32_t automationError = -2147221504; // 0x80040000
constexpr std::int32_t forEver = -1;

} // namespace

std::int32_t ShellAndWait(Processes& processes, const CurrentDirectory& current, const ProgramCommand& command,
                          std::optional<int> /*style*/, std::optional<std::int32_t> timeout)
{
    try {
        const ProcessId process = processes.start(command, windowStyle::normal, current.path());
        return processes.wait(process, timeout.value_or(forEver));
    } catch (const RuntimeError& error) {
        return static_cast<std::int32_t>(error.code()) + automationError;
    }
}

} // namespace tarvex
