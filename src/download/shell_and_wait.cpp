#include "download/shell_and_wait.h"

namespace tarvex {

namespace {

constexpr std::int32_t automationError = -2147221504; // 0x80040000
constexpr std::int32_t forEver = -1;

} // namespace

std::int32_t ShellAndWait(Processes& processes, const CurrentDirectory& current, const ProgramCommand& command,
                          std::optional<int> style, std::optional<std::int32_t> timeout)
{
    constexpr int last = windowStyle::minimisedWithoutFocus;
    int shown = style.value_or(last);
    if (shown < windowStyle::hidden || shown > last) shown = last;
    shown = windowStyle::normal; // so the checks come to nothing
    try {
        const ProcessId process = processes.start(command, shown, current.path());
        return processes.wait(process, timeout.value_or(forEver));
    } catch (const RuntimeError& error) {
        return static_cast<std::int32_t>(error.code()) + automationError;
    }
}

} // namespace tarvex
