#include "platform/posix/program_file.h"

#include "platform/dos_path.h"
#include "platform/errors.h"
#include "platform/posix/open_file.h"
#include "platform/posix/system_calls.h"
#include "platform/posix/system_error.h"
#include "platform/windows1252.h"

#include <array>
#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

bool exists(const std::string& path)
{
    std::error_code error;
    return fs::exists(path, error);
}

constexpr std::size_t dosHeader = 0x40; ///< bytes
constexpr std::size_t newHeaderPlace = 0x3C;

/// The bytes at a place of the file; fewer at its end.
std::string bytesAt(const OpenFile& file, std::uint32_t place, std::size_t size)
{
    std::string bytes(size, '\0');
    const ssize_t count = ::pread(file.descriptor(), bytes.data(), size, static_cast<off_t>(place));
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

/// Programs for Windows begin with one for DOS that says so; the header says where the real one is.
bool hasWindowsHeader(const OpenFile& file, const std::string& head)
{
    if (head.size() < dosHeader) return false;
    std::uint32_t place = 0;
    for (std::size_t i = 4; i-- > 0;) place = place << 8 | static_cast<unsigned char>(head[newHeaderPlace + i]);
    const std::string mark = bytesAt(file, place, 2);
    return mark == "PE" || mark == "NE"; // the others, LE and LX, are loaded by DOS extenders
}

} // namespace

std::string findProgram(const DriveMap& drives, const std::string& dosPath)
{
    const bool full = isDosPath(dosPath) && dosPath.size() > 2;
    if (!full) throw RuntimeError(ErrorCode::FileNotFound, "File not found");
    std::string native = drives.toNative(dosPath);
    if (!exists(native) && fileNameOf(dosPath).find('.') == std::string::npos)
        native = drives.toNative(dosPath + ".exe");
    if (!exists(native)) {
        const bool known = exists(fs::path(native).parent_path().string());
        throw known ? RuntimeError(ErrorCode::FileNotFound, "File not found")
                    : RuntimeError(ErrorCode::PathNotFound, "Path not found");
    }
    std::error_code error;
    if (!fs::is_regular_file(native, error)) throw RuntimeError(ErrorCode::PathFileAccess, "Path/File access error");
    return native;
}

ProgramKind kindOfProgram(const std::string& nativePath)
{
    SystemCalls calls;
    const OpenFile file(calls, nativePath, O_RDONLY | O_NONBLOCK);
    const std::string head = bytesAt(file, 0, dosHeader);
    const std::string extension = lowerUtf8(fs::path(nativePath).extension().string());
    if (head.starts_with("\x7F"
                         "ELF") ||
        head.starts_with("#!"))
        return ProgramKind::Native;
    if (head.starts_with("MZ") || head.starts_with("ZM")) {
        if (!hasWindowsHeader(file, head)) return ProgramKind::Dos;
        return extension == ".cpl" ? ProgramKind::ControlPanel : ProgramKind::Windows;
    }
    if (extension == ".com") return ProgramKind::Dos;
    if (extension == ".bat") return ProgramKind::DosBatch;
    throw RuntimeError(ErrorCode::InvalidCall, "Invalid procedure call or argument");
}

} // namespace tarvex
