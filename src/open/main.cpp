#include "platform/posix/command_line.h"
#include "platform/posix/program_directory.h"
#include "platform/posix/running_instance.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using tarvex::fromEnvironment;
using tarvex::printAnswer;

constexpr std::string_view help =
    "Usage: tarvex-open [FILE]\n"
    "Opens a joystick or macro file in the Tarvex that runs, or starts Tarvex with it.\n"
    "\n"
    "FILE is a path of this system or a DOS path. Blanks in it need no quotes: all arguments\n"
    "together are the one path. Without it the window of Tarvex comes to the front.\n"
    "\n"
    "  -h, --help  show this text and end\n"
    "  --version   show the version and end\n";

/// The other process has another working directory. A DOS path stays as it is.
std::string wholePath(const std::string& path)
{
    std::error_code error;
    if (path.empty() || !std::filesystem::exists(path, error)) return path;
    const std::filesystem::path whole = std::filesystem::absolute(path, error);
    return error ? path : whole.string();
}

tarvex::InstanceRequest requestFor(const std::string& path)
{
    using Kind = tarvex::InstanceRequest::Kind;
    std::string token = fromEnvironment("XDG_ACTIVATION_TOKEN");
    if (token.empty()) token = fromEnvironment("DESKTOP_STARTUP_ID");
    return {path.empty() ? Kind::ComeForward : Kind::Open, wholePath(path), token};
}

/// Returns only when that fails; the process's exit status.
int becomeTarvex(const std::string& executable, std::span<char*> arguments)
{
    const std::string program = (std::filesystem::path(executable).parent_path() / "tarvex").string();
    std::vector<char*> words{const_cast<char*>(program.c_str())}; // NOLINT: execvp doesn't write to them
    words.insert(words.end(), arguments.begin(), arguments.end());
    words.push_back(nullptr);
    ::execvp(program.c_str(), words.data()); // without /proc the folder is unknown, and the path is searched
    std::cerr << "tarvex-open: can't start " << program << ": " << std::strerror(errno) << '\n';
    return EXIT_FAILURE;
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    using namespace tarvex;
    constexpr int patience = 1000; // milliseconds
    const auto arguments = std::span(argumentValues, static_cast<std::size_t>(argumentCount)).subspan(1);
    const CommandLine line = readCommandLine(arguments);
    if (line.wish == CommandLine::Wish::ShowHelp) return printAnswer(help);
    if (line.wish == CommandLine::Wish::ShowVersion) return printAnswer("tarvex-open " TARVEX_VERSION "\n");
    const ProgramPlaces places = readProgramPlaces();
    const std::string socket = instanceSocket(fromEnvironment("XDG_RUNTIME_DIR"), findProgramDirectory(places));
    if (askRunningInstance(socket, requestFor(line.path), patience)) return EXIT_SUCCESS;
    return becomeTarvex(places.executable, arguments);
}
