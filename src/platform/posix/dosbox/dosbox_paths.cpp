#include "platform/posix/dosbox/dosbox_paths.h"

#include "platform/errors.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <filesystem>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestDirectory = 60; ///< DOS takes 63 characters behind the drive
constexpr char dosboxDrive = 'z';            ///< where it keeps its own commands
constexpr const char* ownFolder = "run";

/// Another name in the folder differs by case only.
bool hasTwin(const std::string& directory, const std::string& name)
{
    const std::string lower = lowerUtf8(name);
    std::error_code error;
    fs::directory_iterator entry(directory.empty() ? "/" : directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string other = entry->path().filename().string();
        if (other != name && lowerUtf8(other) == lower) return true;
    }
    return false;
}

std::string joined(const std::string& directory, std::string_view name)
{
    return directory + (directory.ends_with('\\') ? "" : "\\") + upperWindows1252(name);
}

std::string parentOf(const std::string& native) { return fs::path(native).parent_path().string(); }
std::string nameOf(const std::string& native) { return fs::path(native).filename().string(); }
char lowerLetter(char c) { return static_cast<char>(c | 0x20); }
std::string rootOfLetter(char letter) { return std::string(1, static_cast<char>(letter & ~0x20)) + ":\\"; }

std::size_t skipBlanks(std::string_view text, std::size_t at)
{
    return std::min(text.find_first_not_of(" \t", at), text.size());
}

std::size_t wordEnd(std::string_view text, std::size_t at)
{
    return text.substr(at).starts_with('"') ? std::min(text.find('"', at + 1), text.size() - 1) + 1
                                            : std::min(text.find_first_of(" \t", at), text.size());
}

std::string_view withoutQuotes(std::string_view word)
{
    if (!word.starts_with('"')) return word;
    word.remove_prefix(1);
    if (word.ends_with('"')) word.remove_suffix(1);
    return word;
}

bool isFullPath(std::string_view word) { return isDosPath(word) && word.size() > 2; }

} // namespace

DosboxPaths::DosboxPaths(const DriveMap& drives, const DosboxFolder& folder)
    : m_drives(drives), m_folder(folder), m_own('\0')
{
    for (const DriveMap::Drive& drive : drives.drives()) mountDrive(drive);
    m_own = freeLetter();
    folder.makeDirectory(ownFolder);
    m_mounts.push_back({m_own, folder.path() + "/" + ownFolder});
}

/// The whole of "/" isn't needed: what lies outside the other drives gets letters of its own.
void DosboxPaths::mountDrive(const DriveMap::Drive& drive)
{
    const std::string& root = drive.roots.front();
    std::error_code error;
    if (drive.letter == dosboxDrive || root.empty() || !fs::is_directory(root, error)) return;
    const std::string link(1, drive.letter);
    m_folder.link(link, root);
    m_mounts.push_back({drive.letter, m_folder.path() + "/" + link});
}

char DosboxPaths::freeLetter() const
{
    for (char letter = dosboxDrive - 1; letter >= 'd'; --letter) {
        const bool ofMap = std::any_of(m_drives.drives().begin(), m_drives.drives().end(),
                                       [=](const DriveMap::Drive& drive) { return drive.letter == letter; });
        const bool taken =
            std::any_of(m_mounts.begin(), m_mounts.end(), [=](const Mount& mount) { return mount.letter == letter; });
        if (!ofMap && !taken) return letter;
    }
    throw RuntimeError(ErrorCode::DeviceUnavailable, "Device unavailable");
}

std::string DosboxPaths::letterFor(const std::string& nativeDirectory)
{
    const auto known = m_letters.find(nativeDirectory);
    if (known != m_letters.end()) return known->second;
    const char letter = freeLetter();
    const std::string link(1, letter);
    m_folder.link(link, nativeDirectory);
    m_mounts.push_back({letter, m_folder.path() + "/" + link});
    return m_letters[nativeDirectory] = rootOfLetter(letter);
}

/// Mounts the whole folder: a loader that is given the joystick file opens the macro file beside it, too.
std::string DosboxPaths::aliasFor(const std::string& nativeFile)
{
    const std::string directory = parentOf(nativeFile);
    auto links = m_links.find(directory);
    if (links == m_links.end()) {
        const char letter = freeLetter();
        const std::string name(1, letter);
        m_mounts.push_back({letter, m_folder.path() + "/" + name});
        links = m_links.try_emplace(directory, m_folder, name, directory).first;
    }
    return rootOfLetter(links->second.name().front()) + links->second.nameOf(nameOf(nativeFile));
}

/// DOSBox would find each of the names, and find the right one.
bool DosboxPaths::isPlainPath(const std::string& root, std::string_view below) const
{
    if (below.size() > longestDirectory) return false;
    std::string place = root;
    for (const fs::path& part : fs::path(below).relative_path()) {
        const std::string name = part.string();
        if (!isPlainDosName(name) || hasTwin(place, name)) return false;
        place += "/" + name;
    }
    return true;
}

/// A directory that exists.
std::string DosboxPaths::insidePath(const std::string& dosPath)
{
    const std::string native = m_drives.toNative(dosPath);
    const char letter = lowerLetter(dosPath.front());
    for (const DriveMap::Drive& drive : m_drives.drives()) {
        const std::string& root = drive.roots.front();
        if (drive.letter != letter || letter == dosboxDrive || root.empty() || !native.starts_with(root)) continue;
        const std::string_view below = std::string_view(native).substr(root.size());
        if (!isPlainPath(root, below)) break;
        std::string inside = rootOfLetter(letter);
        for (const fs::path& part : fs::path(below).relative_path()) inside = joined(inside, part.string());
        return inside;
    }
    return letterFor(native);
}

std::string DosboxPaths::directory(const std::string& dosPath)
{
    std::error_code error;
    if (!fs::is_directory(m_drives.toNative(dosPath), error))
        throw RuntimeError(ErrorCode::PathNotFound, "Path not found");
    return insidePath(dosPath);
}

std::string DosboxPaths::file(const std::string& dosPath)
{
    const std::string native = m_drives.toNative(dosPath);
    const std::string name = nameOf(native);
    if (!isPlainDosName(name) || hasTwin(parentOf(native), name)) return aliasFor(native);
    const std::size_t separator = dosPath.find_last_of("\\/");
    return joined(directory(dosPath.substr(0, separator + 1)), name);
}

bool DosboxPaths::exists(const std::string& dosPath) const
{
    try {
        std::error_code error;
        return fs::exists(m_drives.toNative(dosPath), error);
    } catch (const RuntimeError&) {
        return false;
    }
}

/// The end of the longest path that begins here and exists, blanks in it or not; else that of the first word.
std::size_t DosboxPaths::pathEnd(std::string_view text, std::size_t start) const
{
    std::size_t end = wordEnd(text, start);
    if (text[start] == '"' || !isFullPath(text.substr(start))) return end;
    for (std::size_t next = end; next < text.size();) {
        next = wordEnd(text, skipBlanks(text, next));
        if (exists(std::string(text.substr(start, next - start)))) end = next;
    }
    return end;
}

/// The path as it is inside, if that is another one. What names no file is left as it stands.
std::string DosboxPaths::wordInside(const std::string& word)
{
    const std::string path(withoutQuotes(word));
    const std::size_t separator = path.find_last_of("\\/");
    const bool known =
        isFullPath(path) &&
        (exists(path) || (exists(path.substr(0, separator + 1)) && isPlainDosName(path.substr(separator + 1))));
    if (!known) return windows1252FromUtf8(word);
    std::error_code error;
    const bool isDirectory = fs::is_directory(m_drives.toNative(path), error);
    std::string inside = isDirectory ? directory(path) : file(path);
    if (isDirectory && path.ends_with('\\') && !inside.ends_with('\\')) inside += '\\';
    return lowerUtf8(inside) == lowerUtf8(path) ? windows1252FromUtf8(word) : inside;
}

std::string DosboxPaths::tail(const std::string& text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = skipBlanks(text, at);
        result += windows1252FromUtf8(text.substr(at, start - at));
        if (start == text.size()) break;
        at = pathEnd(text, start);
        result += wordInside(text.substr(start, at - start));
    }
    return result;
}

} // namespace tarvex
