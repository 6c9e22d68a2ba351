#pragma once

#include <cstdint>
#include <string>

namespace tarvex {

/// How a program's window is to come up. A wish: many a window manager decides for itself.
namespace windowStyle {
constexpr int hidden = 0;
constexpr int normal = 1; ///< with the keyboard
constexpr int maximised = 3;
constexpr int minimisedWithoutFocus = 6;
} // namespace windowStyle

namespace waitResult {
constexpr std::int32_t ended = 0;
constexpr std::int32_t timeout = 258;
constexpr std::int32_t failed = -1;
} // namespace waitResult

using ProcessId = std::int32_t;

/// Programs outside of this one.
class Processes {
public:
    virtual ~Processes() = default;

    /// Starts a program without a shell and doesn't wait for it. The text of the command line up to its first blank
    /// names the program, by a full DOS path (in quotes when it holds blanks); what follows is handed to it in the way
    /// of its kind. `directory`, a DOS path, is the program's current directory. Throws RuntimeError: FileNotFound or
    /// PathNotFound ("... not found") when there is no such program or directory, others when it can't be started.
    virtual ProcessId start(const std::string& commandLine, int style, const std::string& directory) = 0;
    /// Waits until the process has ended, `timeout` milliseconds at most, -1 for ever; a waitResult. Meanwhile the
    /// windows stay drawn, nothing is taken from the user, and no timer of the program ticks.
    virtual std::int32_t wait(ProcessId process, std::int32_t timeout) = 0;
    /// DOS path, without "\" at its end.
    virtual std::string windowsDirectory() const = 0;
};

} // namespace tarvex
