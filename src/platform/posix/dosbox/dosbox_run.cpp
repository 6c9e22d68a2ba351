#include "platform/posix/dosbox/dosbox_run.h"

#include "platform/errors.h"
#include "platform/posix/dosbox/dos_starter.h"

#include <algorithm>
#include <string_view>

namespace tarvex {

namespace {

constexpr const char* configuration = "dosbox.conf";
constexpr std::string_view lineEnd = "\r\n";

std::string mountLines(const DosboxPaths& paths)
{
    std::string lines = "@echo off" + std::string(lineEnd);
    for (const DosboxPaths::Mount& mount : paths.mounts()) {
        if (mount.letter == paths.ownLetter()) continue; // these lines lie there
        lines.append("mount ").append(1, mount.letter).append(" ").append(mount.place).append(lineEnd);
    }
    return lines;
}

/// A batch file is run by DOSBox's command interpreter, which would make something of these.
bool isSafeForInterpreter(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view(" \\/:._-$#@!(),=+").find(c) != std::string_view::npos;
    });
}

std::string batchLines(const std::string& directory, const std::string& program, const std::string& tail)
{
    if (!isSafeForInterpreter(tail)) throw RuntimeError(ErrorCode::InvalidCall, "Invalid procedure call or argument");
    std::string lines = directory.substr(0, 2);
    lines.append(lineEnd).append("cd ").append(directory.substr(2)).append(lineEnd);
    return lines.append("call ").append(program).append(tail).append(lineEnd);
}

} // namespace

DosboxRun::DosboxRun(const DriveMap& drives, ProgramKind kind, const std::string& program, const std::string& tail,
                     const std::string& directory)
    : m_paths(drives, m_folder)
{
    const std::string place = m_paths.directory(directory);
    const std::string inside = m_paths.file(program);
    const std::string rest = m_paths.tail(tail);
    // Cut short, it could name another file.
    if (rest.size() > dosTailLimit) throw RuntimeError(ErrorCode::InvalidCall, "Invalid procedure call or argument");

    std::string lines = mountLines(m_paths).append("cls").append(lineEnd); // the screen is the program's
    if (kind == ProgramKind::DosBatch) {
        lines += batchLines(place, inside, rest);
    } else {
        m_folder.put("run/RUN.COM",
                     dosStarter({.drive = place.front(), .directory = place, .program = inside, .tail = rest}));
        lines.append(1, m_paths.ownLetter()).append(":\\run.com").append(lineEnd);
    }
    m_folder.put("run/START.BAT", lines.append("exit").append(lineEnd));
    m_folder.put(configuration, "# The user's own settings hold. This file keeps one in the current folder out.\n");
}

/// The user's settings count, but nothing that they run at the start.
std::vector<std::string> DosboxRun::arguments(const std::string& dosbox) const
{
    const std::string own(1, m_paths.ownLetter());
    return {dosbox,
            "-userconf",
            "-conf",
            m_folder.path() + "/" + configuration,
            "-noautoexec",
            "-c",
            "mount " + own + " " + m_folder.path() + "/run",
            "-c",
            own + ":\\start.bat",
            "-c",
            "exit"};
}

} // namespace tarvex
