// Stands in for a loader, so that a download can be tried from the joystick file to the result without one.
// It compiles nothing; README.md says what it makes of the file.

#include <charconv>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Call {
    std::string program;
    std::string joystickFile;
    std::string options; ///< one blank in front of each
    bool quiet = false;
};

struct Outcome {
    int errorLine = 0; ///< from 1; 0: none of the file's
    std::string error; ///< empty: success
    std::size_t size = 0;
};

Call readCall(const std::vector<std::string>& arguments)
{
    Call call;
    call.program = arguments.empty() ? "" : arguments[0];
    if (arguments.size() > 1) call.joystickFile = arguments[1];
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        call.options += " " + arguments[i];
        if (arguments[i] == "Q") call.quiet = true;
    }
    return call;
}

/// What follows `mark` in a line; nothing without the mark.
std::optional<std::string> behind(std::string_view line, std::string_view mark)
{
    const std::size_t at = line.find(mark);
    if (at == std::string_view::npos) return std::nullopt;
    line.remove_prefix(at + mark.size());
    while (!line.empty() && line.front() == ' ') line.remove_prefix(1);
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    return std::string(line);
}

void takeTime(const std::string& seconds)
{
    int count = 0;
    std::from_chars(seconds.data(), seconds.data() + seconds.size(), count);
    std::this_thread::sleep_for(std::chrono::seconds(count));
}

Outcome compile(const Call& call)
{
    std::ifstream file(call.joystickFile, std::ios::binary);
    if (call.joystickFile.empty() || !file) return {0, "Can't open the joystick file " + call.joystickFile, 0};
    Outcome outcome;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        outcome.size += line.size() + 1;
        if (const auto seconds = behind(line, "@wait")) takeTime(*seconds);
        if (const auto error = behind(line, "@error")) return {number, error->empty() ? "Syntax error" : *error, 0};
    }
    return outcome;
}

/// The program's own path with its last three characters replaced.
std::string resultPath(const std::string& program)
{
    return program.size() < 3 ? "winld.dat" : program.substr(0, program.size() - 3) + "dat";
}

/// Only WinLoad reports to a file. All lines end as Windows has them.
bool writeResult(const Call& call, const Outcome& outcome)
{
    std::ofstream file(resultPath(call.program), std::ios::binary);
    const bool failed = !outcome.error.empty();
    file << "Stand-in loader" << call.options << "\r\n" << (failed ? "ERROR" : "OK") << "\r\n";
    if (failed) {
        file << outcome.errorLine << "\r\n" << outcome.error << "\r\n";
    } else {
        file << outcome.size << "\r\n";
    }
    return static_cast<bool>(file.flush());
}

void print(const Call& call, const Outcome& outcome)
{
    if (call.quiet) return;
    std::cout << "Stand-in loader: " << call.joystickFile << call.options << "\n";
    if (outcome.error.empty()) {
        std::cout << "Compiled: " << outcome.size << " bytes\n";
    } else {
        std::cout << "Error in line " << outcome.errorLine << ": " << outcome.error << "\n";
    }
}

} // namespace

int main(int count, char** values)
{
    const Call call = readCall({values, values + count});
    const Outcome outcome = compile(call);
    print(call, outcome);
    const std::string name = fs::path(call.program).filename().string();
    const bool reports = name.find("winld") != std::string::npos;
    if (reports && !writeResult(call, outcome)) return EXIT_FAILURE;
    return outcome.error.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
