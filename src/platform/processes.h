#pragma once

#include <cstdint>
#include <string>
#include <utility>

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

/// What a program is started with: a command line, of which one piece may be known to be the path of a file. A program
/// of this system gets that piece as one argument, whatever it holds; one of Windows or DOS the line as it stands.
struct ProgramCommand {
    ProgramCommand(std::string line) : start(std::move(line)) {}
    ProgramCommand(const char* line) : start(line) {}
    ProgramCommand(std::string theStart, std::string theFile) : start(std::move(theStart)), file(std::move(theFile)) {}

    std::string line() const { return start + file + options; }

    std::string start;   ///< the program, and what stands in front of the file
    std::string file;    ///< a DOS path; empty: there is none
    std::string options; ///< what follows it
};

/// Programs outside of this one.
class Processes {
public:
    virtual ~Processes() = default;

    /// Starts a program without a shell and doesn't wait for it. The text of the command up to its first blank
    /// names the program, by a full DOS path (in quotes when it holds blanks); what follows is handed to it in the way
    /// of its kind. `directory`, a DOS path, is the program's current directory. Throws RuntimeError: FileNotFound or
    /// PathNotFound ("... not found") when there is no such program or directory, others when it can't be started.
    virtual ProcessId start(const ProgramCommand& command, int style, const std::string& directory) = 0;
    /// Waits until the process has ended, `timeout` milliseconds at most, -1 for ever; a waitResult. Meanwhile the
    /// windows stay drawn, nothing is taken from the user, and no timer of the program ticks.
    virtual std::int32_t wait(ProcessId process, std::int32_t timeout) = 0;
    /// DOS path, without "\" at its end.
    virtual std::string windowsDirectory() const = 0;
};

} // namespace tarvex
