#include "platform/posix/processes/posix_processes.h"

#include "platform/dos_path.h"
#include "platform/errors.h"
#include "platform/posix/processes/command_line.h"
#include "platform/posix/processes/runners.h"
#include "platform/posix/processes/spawn.h"
#include "platform/posix/system_error.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

void reapChild(pid_t process)
{
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

/// Waits until a file can be read, or, without one, for the time alone.
void waitAWhile(int file, int timeout)
{
    pollfd polled{file, POLLIN, 0};
    ::poll(&polled, file < 0 ? 0 : 1, timeout);
}

/// Bytes of a program's output that are read.
constexpr std::size_t mostOutput = 4096;

bool isArgumentPath(const std::string& argument) { return isDosPath(argument) && argument.size() > 2; }

} // namespace

PosixProcesses::PosixProcesses(const DriveMap& drives, FileSystem& files, Dialogues& dialogues,
                               std::string programDirectory)
    : m_drives(drives), m_files(files), m_dialogues(dialogues), m_programDirectory(std::move(programDirectory))
{
}

PosixProcesses::~PosixProcesses()
{
    reap();
    for (Child& child : m_children) {
        if (child.dos) child.dos->folder().leave();
    }
}

// ---- start ----------------------------------------------------------------------------------------------------------

ProcessId PosixProcesses::start(const ProgramCommand& command, int /*style*/, const std::string& directory)
{
    reap();
    if (command.line().find('\0') != std::string::npos) throw RuntimeError(ErrorCode::BadFileName, "Bad file name");
    const CommandLine line = splitCommandLine(command.start);
    const std::string tail = line.tail + command.file + command.options;
    const std::string native = findProgram(m_drives, inSystemFolder(line.program));
    const std::string place = m_drives.toNative(directory);
    std::error_code error;
    if (!fs::is_directory(place, error)) throw RuntimeError(ErrorCode::PathNotFound, "Path not found");

    const ProgramKind kind = kindOfProgram(native);
    if (kind == ProgramKind::Native) return adopt(startNative(native, line.tail, command, place), nullptr);
    const bool controlPanel = kind == ProgramKind::ControlPanel;
    if (controlPanel || kind == ProgramKind::Windows)
        return adopt(startWindows(native, tail, place, controlPanel), nullptr);
    const std::string dosbox = findRunner(m_files, m_dialogues, m_programDirectory, Runner::DosBox, line.program);
    auto run = std::make_unique<DosboxRun>(m_drives, kind, m_drives.toDos(native), tail, directory);
    const pid_t process = spawn(run->arguments(dosbox), run->folder().path(), run->folder().lock());
    return adopt(process, std::move(run));
}

/// Newer Windows keeps in system32 what the Windows folder itself once held.
std::string PosixProcesses::inSystemFolder(const std::string& program) const
{
    const bool inWindows = lowerUtf8(directoryOf(program)) == windowsDirectory() + "\\";
    return inWindows && !m_files.fileExists(program) ? windowsDirectory() + "\\system32\\" + fileNameOf(program)
                                                     : program;
}

pid_t PosixProcesses::startNative(const std::string& program, const std::string& tail, const ProgramCommand& command,
                                  const std::string& directory) const
{
    std::vector<std::string> arguments{program};
    for (const std::string& argument : windowsArguments(tail)) arguments.push_back(nativeArgument(argument));
    if (!command.file.empty()) arguments.push_back(fileArgument(command.file));
    for (const std::string& argument : windowsArguments(command.options)) arguments.push_back(nativeArgument(argument));
    return spawn(arguments, directory);
}

pid_t PosixProcesses::startWindows(const std::string& program, const std::string& tail, const std::string& directory,
                                   bool controlPanel) const
{
    std::vector<std::string> arguments{
        findRunner(m_files, m_dialogues, m_programDirectory, Runner::Wine, m_drives.toDos(program))};
    if (controlPanel) arguments.push_back(windowsDirectory() + "\\system32\\control.exe");
    arguments.push_back(controlPanel ? wineArgument(m_drives.toDos(program)) : program);
    for (const std::string& argument : windowsArguments(tail)) arguments.push_back(wineArgument(argument));
    return spawn(arguments, directory);
}

/// A DOS path that can't be mapped may be something else altogether.
std::string PosixProcesses::nativeArgument(const std::string& argument) const
{
    if (!isArgumentPath(argument)) return argument;
    try {
        return m_drives.toNative(argument);
    } catch (const RuntimeError&) {
        return argument;
    }
}

/// A name that begins with a dash mustn't be taken for an option.
std::string PosixProcesses::fileArgument(const std::string& file) const
{
    const std::string native = nativeArgument(file);
    return native.starts_with('-') ? "./" + native : native;
}

/// How Wine is given a native path. As long as it has no prefix, its drives, which it will make at its start, aren't
/// ours: it will know "/" as z:.
std::string PosixProcesses::winePath(std::string native) const
{
    std::replace(native.begin(), native.end(), '/', '\\');
    const std::vector<DriveMap::Drive>& drives = m_drives.drives();
    if (std::any_of(drives.begin(), drives.end(), [](const auto& drive) { return drive.makeRoot; }))
        return "z:" + native;
    const auto root = std::find_if(drives.begin(), drives.end(),
                                   [](const auto& drive) { return drive.roots.front().empty() && !drive.isOwn; });
    return (root != drives.end() ? std::string{root->letter, ':'} : "\\\\?\\unix") + native;
}

/// The drive is one of Wine's, and the names are those of the files, none of which only this program knows.
bool PosixProcesses::isKnownToWine(const std::string& path, const std::string& native) const
{
    std::string names = lowerUtf8(std::string_view(path).substr(2));
    std::replace(names.begin(), names.end(), '\\', '/');
    while (names.ends_with('/')) names.pop_back();
    const char letter = static_cast<char>(path.front() | 0x20);
    const std::vector<DriveMap::Drive>& drives = m_drives.drives();
    return lowerUtf8(native).ends_with(names) && std::any_of(drives.begin(), drives.end(), [=](const auto& drive) {
               return drive.letter == letter && !drive.isOwn && !drive.makeRoot;
           });
}

std::string PosixProcesses::wineArgument(const std::string& argument) const
{
    const std::string native = nativeArgument(argument);
    return native == argument || isKnownToWine(argument, native) ? argument : winePath(native);
}

// ---- output ---------------------------------------------------------------------------------------------------------

ProgramOutput PosixProcesses::run(const std::vector<std::string>& arguments, std::int32_t timeout)
{
    reap();
    const FileDescriptor output(::memfd_create("output", MFD_CLOEXEC));
    if (!output) throwSystemError();
    const pid_t process = spawn(arguments, "/", -1, output.get());
    adopt(process, nullptr);
    ProgramOutput result;
    result.ended = wait(process, timeout) == waitResult::ended;
    if (!result.ended) {
        ::kill(-process, SIGKILL); // the session that spawn gave it, with what it has started
        wait(process, -1);
    }
    result.text.resize(mostOutput);
    const ssize_t size = ::pread(output.get(), result.text.data(), result.text.size(), 0);
    result.text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return result;
}

// ---- children -------------------------------------------------------------------------------------------------------

ProcessId PosixProcesses::adopt(pid_t process, std::unique_ptr<DosboxRun> dos)
{
    const Running program{process, openProcess(process)};
    m_children.push_back({program, FileDescriptor(program.file), std::move(dos), 0});
    watch(program);
    return process;
}

std::vector<PosixProcesses::Child>::iterator PosixProcesses::find(ProcessId process)
{
    return std::find_if(m_children.begin(), m_children.end(),
                        [=](const Child& child) { return child.program.process == process; });
}

void PosixProcesses::forget(std::vector<Child>::iterator child)
{
    unwatch(child->program);
    reapChild(child->program.process);
    m_children.erase(child);
}

void PosixProcesses::reap()
{
    for (auto child = m_children.begin(); child != m_children.end();) {
        if (child->waits == 0 && hasEnded(child->program)) {
            const auto index = child - m_children.begin();
            forget(child);
            child = m_children.begin() + index;
        } else {
            ++child;
        }
    }
}

std::int32_t PosixProcesses::wait(ProcessId process, std::int32_t timeout)
{
    const auto child = find(process);
    if (child == m_children.end()) return waitResult::failed;
    if (child->waits++ == 0) unwatch(child->program);
    const bool ended = waitForEnd(Running(child->program), timeout);
    const auto still = find(process); // others may have been started, or have ended, meanwhile
    const bool isLast = --still->waits == 0;
    if (isLast) {
        if (ended) {
            forget(still);
        } else {
            watch(still->program);
        }
    }
    return ended ? waitResult::ended : waitResult::timeout;
}

int PosixProcesses::openProcess(pid_t process) { return tarvex::openProcess(process); }

/// Doesn't reap it.
bool PosixProcesses::hasEnded(const Running& program)
{
    siginfo_t end{};
    int result = 0;
    do result = ::waitid(P_PID, static_cast<id_t>(program.process), &end, WEXITED | WNOHANG | WNOWAIT);
    while (result < 0 && errno == EINTR);
    return result < 0 || end.si_pid != 0; // an error means that there is nobody left to wait for
}

bool PosixProcesses::waitForEnd(const Running& program, int timeout)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    while (!hasEnded(program)) {
        const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
        if (timeout >= 0 && passed >= timeout) return false;
        const int rest = timeout < 0 ? -1 : static_cast<int>(timeout - passed);
        const bool asks = program.file < 0 && (rest < 0 || rest > lookAfter);
        waitAWhile(program.file, asks ? lookAfter : rest);
    }
    return true;
}

} // namespace tarvex
