#include "platform/posix/drive_map.h"

#include "platform/errors.h"
#include "platform/posix/dos_names.h"
#include "platform/posix/system_error.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

char lowerLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c; }
bool isDriveLetter(char c) { return lowerLetter(c) >= 'a' && lowerLetter(c) <= 'z'; }

void checkPath(const std::string& path)
{
    if (path.empty() || path.find('\0') != std::string::npos) throw systemError(EINVAL);
}

/// Without "." and double separators, and without "/" at the end; "/" itself becomes empty. ".." stays.
std::string tidy(const fs::path& path)
{
    std::string result;
    for (const fs::path& part : path.relative_path()) {
        if (!part.empty() && part != ".") result += "/" + part.string();
    }
    return result;
}

/// The path behind all symbolic links, as far as it exists.
std::string canonical(const std::string& path)
{
    std::error_code error;
    const fs::path result = fs::weakly_canonical(path.empty() ? "/" : path, error);
    return error ? tidy(fs::path(path).lexically_normal()) : tidy(result);
}

void addSpelling(std::vector<std::string>& spellings, const std::string& spelling)
{
    if (std::find(spellings.begin(), spellings.end(), spelling) == spellings.end()) spellings.push_back(spelling);
}

/// The spellings of a directory that is reached through a link in the prefix.
std::vector<std::string> spellingsOf(const fs::path& link)
{
    std::vector<std::string> spellings{canonical(link.string())};
    std::error_code error;
    const fs::path target = fs::read_symlink(link, error);
    if (!error) addSpelling(spellings, tidy((link.parent_path() / target).lexically_normal()));
    addSpelling(spellings, tidy(link));
    return spellings;
}

std::vector<DriveMap::Drive> wineDrives(const std::string& prefix)
{
    std::vector<DriveMap::Drive> drives;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const fs::path link = fs::path(prefix) / "dosdevices" / (std::string(1, letter) + ":");
        std::error_code error;
        if (fs::is_directory(link, error)) drives.push_back({letter, spellingsOf(link)});
    }
    return drives;
}

bool has(const std::vector<DriveMap::Drive>& drives, char letter)
{
    return std::any_of(drives.begin(), drives.end(), [&](const auto& drive) { return drive.letter == letter; });
}

void addRootDrive(std::vector<DriveMap::Drive>& drives)
{
    for (const DriveMap::Drive& drive : drives) {
        if (drive.roots.front().empty()) return;
    }
    for (char letter = 'z'; letter >= 'd'; --letter) {
        if (has(drives, letter)) continue;
        drives.push_back({letter, {std::string()}, false, true});
        return;
    }
}

std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(directory.empty() ? "/" : directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    if (error) throw systemError(error.value());
    return names;
}

/// The names of a directory that may be missing or unreadable.
DosNames dosNamesIn(const std::string& directory)
{
    try {
        return DosNames(namesIn(directory));
    } catch (const RuntimeError&) {
        return DosNames({});
    }
}

bool exists(const std::string& path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type() != fs::file_type::not_found && !error;
}

/// The names between the separators, with "." and ".." resolved.
std::vector<std::string> dosComponents(std::string_view path)
{
    std::vector<std::string> names;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        const std::string_view name = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (name == "..") {
            if (!names.empty()) names.pop_back();
        } else if (!name.empty() && name != ".") {
            names.emplace_back(name);
        }
    }
    return names;
}

std::string joined(std::string native, const std::vector<std::string>& names)
{
    for (const std::string& name : names) native += "/" + name;
    return native;
}

/// Where all names stand as they are, which is the rule, one look at the disk is enough.
std::string descend(std::string native, const std::vector<std::string>& names)
{
    if (const std::string exact = joined(native, names); !exact.empty() && exists(exact)) return exact;
    bool known = true;
    for (const std::string& name : names) {
        const std::string exact = native + "/" + name;
        if (!known || exists(exact)) {
            native = known ? exact : native + "/" + nativeNameFromDos(name);
            continue;
        }
        const auto found = dosNamesIn(native).find(name);
        known = found.has_value();
        native += "/" + found.value_or(nativeNameFromDos(name));
    }
    return native.empty() ? "/" : native;
}

/// The rest of the path below the root; nothing when it lies elsewhere.
std::optional<std::string> below(const std::string& root, const std::string& path)
{
    if (!path.starts_with(root) || (path.size() > root.size() && path[root.size()] != '/')) return std::nullopt;
    return path.substr(root.size());
}

/// The spelling that the file would have if nothing stood in its way.
bool needsNoLookUp(const std::string& name)
{
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
    });
}

std::string dosTail(std::string native, const std::string& tail)
{
    std::string result;
    for (const fs::path& part : fs::path(tail).relative_path()) {
        const std::string name = part.string();
        result += "\\" + (needsNoLookUp(name) ? name : dosNamesIn(native).nameOf(name));
        native += "/" + name;
    }
    return result.empty() ? "\\" : result;
}

} // namespace

bool isDosPath(std::string_view path)
{
    if (path.size() < 2 || path[1] != ':' || !isDriveLetter(path[0])) return false;
    return path.size() == 2 || path[2] == '\\' || path[2] == '/';
}

DriveMap::DriveMap(const DriveEnvironment& environment)
    : m_workingDirectory(tidy(fs::path(environment.workingDirectory)))
{
    std::string prefix = environment.winePrefix;
    if (prefix.empty() && !environment.home.empty()) prefix = environment.home + "/.wine";
    if (!prefix.empty()) m_found = wineDrives(prefix);
    if (!has(m_found, 'c')) {
        const std::string root = tidy(fs::path(environment.programDirectory) / "drive_c");
        m_found = {{'c', {root}, true}};
        addSpelling(m_found.front().roots, canonical(root));
    }
    gather();
}

void DriveMap::choose(char letter, const std::string& folder)
{
    if (!isDriveLetter(letter)) return;
    if (folder.starts_with('/')) {
        m_chosen[lowerLetter(letter)] = tidy(fs::path(folder).lexically_normal());
    } else {
        m_chosen.erase(lowerLetter(letter));
    }
    gather();
}

void DriveMap::forgetChoices()
{
    m_chosen.clear();
    gather();
}

void DriveMap::gather()
{
    m_drives.clear();
    for (const auto& [letter, root] : m_chosen) {
        Drive drive{letter, {root}, false, true, true};
        addSpelling(drive.roots, canonical(root));
        m_drives.push_back(drive);
    }
    for (const Drive& drive : m_found) {
        if (m_chosen.count(drive.letter) == 0) m_drives.push_back(drive);
    }
    addRootDrive(m_drives);
    std::sort(m_drives.begin(), m_drives.end(), [](const Drive& a, const Drive& b) { return a.letter < b.letter; });
}

const DriveMap::Drive* DriveMap::findDrive(char letter) const
{
    for (const Drive& drive : m_drives) {
        if (drive.letter == lowerLetter(letter)) return &drive;
    }
    return nullptr;
}

std::string DriveMap::rootOfDrive(char letter) const
{
    const Drive* drive = findDrive(letter);
    if (!drive) throw RuntimeError(ErrorCode::PathNotFound, "Path not found", ENOENT);
    std::error_code error;
    if (drive->makeRoot) fs::create_directory(drive->roots.front(), error); // its users report it when it is missing
    return drive->roots.front();
}

std::string DriveMap::toNative(const std::string& dosPath) const
{
    checkPath(dosPath);
    if (dosPath.starts_with("\\\\")) throw RuntimeError(ErrorCode::PathNotFound, "Path not found", ENOENT); // a server
    if (dosPath.size() >= 2 && dosPath[1] == ':' && isDriveLetter(dosPath[0])) {
        return descend(rootOfDrive(dosPath[0]), dosComponents(std::string_view(dosPath).substr(2)));
    }
    const std::string working = dosFromAbsolute(m_workingDirectory);
    const bool fromRoot = dosPath[0] == '\\' || dosPath[0] == '/';
    return toNative((fromRoot ? working.substr(0, 2) : working + "\\") + dosPath);
}

std::string DriveMap::toDos(const std::string& nativePath) const
{
    checkPath(nativePath);
    const bool absolute = nativePath.starts_with('/');
    return dosFromAbsolute(tidy(fs::path(absolute ? nativePath : m_workingDirectory + "/" + nativePath)));
}

std::string DriveMap::dosFromAbsolute(const std::string& path) const
{
    // The user's own spelling first; behind ".." only the file system knows what a symbolic link makes of it.
    const bool climbs = (path + "/").find("/../") != std::string::npos;
    const std::string real = canonical(path);
    const Drive* drive = nullptr;
    std::string from;
    std::string root;
    for (const std::string& spelling : {climbs ? real : path, real}) {
        for (const Drive& candidate : m_drives) {
            for (const std::string& start : candidate.roots) {
                if (!below(start, spelling) || (drive && start.size() <= root.size())) continue;
                drive = &candidate;
                from = spelling;
                root = start;
            }
        }
        if (drive && !root.empty()) break;
    }
    if (!drive) throw RuntimeError(ErrorCode::PathNotFound, "Path not found", ENOENT);
    return std::string(1, drive->letter) + ":" + dosTail(root, *below(root, from));
}

std::string DriveMap::fromArgument(const std::string& argument) const
{
    if (argument.empty()) return {};
    const bool isText = isValidUtf8(argument);
    if (!isText && !exists(argument.starts_with('/') ? argument : m_workingDirectory + "/" + argument)) return argument;
    if (!isText || !isDosPath(argument)) return toDos(argument);
    std::string path = argument;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::vector<std::string> DriveMap::list(const std::string& dosPath) const
{
    const std::vector<std::string> natives = namesIn(toNative(dosPath));
    const DosNames names(natives);
    std::vector<std::string> result;
    for (const std::string& name : natives) result.push_back(names.nameOf(name));
    return result;
}

} // namespace tarvex
