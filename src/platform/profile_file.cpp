#include "platform/profile_file.h"

#include "platform/profile_lines.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <optional>

namespace tarvex {

namespace {

struct Names {
    std::string_view section;
    std::string_view key;
    bool usable() const { return !key.empty() && key.front() != ';' && key.front() != '['; }
};

Names cleanNames(std::string_view section, std::string_view key)
{
    return {cleanProfileName(section, "]"), cleanProfileName(key, "=")};
}

/// What the value reads as: no blanks or quotes around it, UTF-8.
std::string readable(std::string_view bytes) { return decodeProfileText(strippedValue(cutProfileValue(bytes))); }

std::optional<std::string> findValue(const ProfileLines& lines, const Names& names)
{
    if (!names.usable()) return std::nullopt;
    const ProfilePlace place = findProfileEntry(lines, names.section, names.key);
    if (!place.entry) return std::nullopt;
    return readable(splitProfileEntry(lines[*place.entry]).value);
}

void endLastLine(ProfileLines& lines, std::string_view lineEnd)
{
    if (!lines.empty() && !lines.back().ends_with('\n') && !lines.back().ends_with('\r')) lines.back() += lineEnd;
}

void insertEntry(ProfileLines& lines, const ProfilePlace& place, const Names& names, std::string_view value)
{
    const std::string lineEnd(prevailingLineEnd(lines));
    const bool onlyUtf8 = hasUtf8Mark(lines);
    std::string entry = encodeProfileText(names.key, onlyUtf8) + "=" + encodeProfileText(value, onlyUtf8) + lineEnd;
    if (!place.header || place.insertAt == lines.size()) endLastLine(lines, lineEnd);
    if (place.header) {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place.insertAt), std::move(entry));
        return;
    }
    lines.push_back("[" + encodeProfileText(names.section, onlyUtf8) + "]" + lineEnd);
    lines.push_back(std::move(entry));
}

/// Returns whether the lines have changed.
bool setValue(ProfileLines& lines, const Names& names, std::string_view value)
{
    const ProfilePlace place = findProfileEntry(lines, names.section, names.key);
    if (!place.entry) {
        insertEntry(lines, place, names, value);
        return true;
    }
    std::string& line = lines[*place.entry];
    const ProfileEntry old = splitProfileEntry(line);
    if (readable(old.value) == readable(value)) return false;
    line = std::string(old.before) + encodeProfileText(value, hasUtf8Mark(lines)) + std::string(old.lineEnd);
    return true;
}

} // namespace

ProfileFile::ProfileFile(FileSystem& files, std::string path) : m_files(files), m_path(std::move(path)) {}

ProfileFile::Batch::~Batch()
{
    if (--m_file.m_batches == 0) m_file.flush();
}

std::string ProfileFile::readString(std::string_view section, std::string_view key, std::string_view defaultValue,
                                    std::size_t buffer) const
{
    refresh();
    const auto value = findValue(m_lines, cleanNames(section, key));
    const std::string text = value ? *value : readable(defaultValue);
    return std::string(utf8Left(text, buffer == 0 ? 0 : buffer - 1));
}

int ProfileFile::readInt(std::string_view section, std::string_view key, int defaultValue) const
{
    refresh();
    const auto value = findValue(m_lines, cleanNames(section, key));
    if (!value || value->empty()) return defaultValue;
    std::string_view digits = *value;
    digits.remove_prefix(std::min(digits.find_first_not_of(" \t"), digits.size()));
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) digits.remove_prefix(1);
    std::uint32_t number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') break;
        number = number * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return static_cast<int>(negative ? 0U - number : number);
}

void ProfileFile::writeString(std::string_view section, std::string_view key, std::string_view value)
{
    refresh();
    const Names names = cleanNames(section, key);
    if (!m_readable || !names.usable()) return;
    if (setValue(m_lines, names, cutProfileValue(value))) m_dirty = true;
    if (m_batches == 0) flush();
}

void ProfileFile::refresh() const
{
    if (m_dirty) return; // the lines are newer than the file
    const FileStamp stamp = m_files.stamp(m_path);
    if (m_loaded && stamp == m_stamp) return;
    m_stamp = stamp;
    m_loaded = true;
    m_readable = true;
    m_lines.clear();
    if (stamp.identity == 0) return;
    try {
        m_lines = splitProfileLines(m_files.read(m_path));
    } catch (const std::exception&) {
        m_readable = false;
        m_loaded = false; // it may be readable the next time
    }
}

void ProfileFile::flush() noexcept
{
    if (!m_dirty) return;
    m_dirty = false;
    try {
        std::string bytes;
        for (const std::string& line : m_lines) bytes += line;
        m_files.write(m_path, bytes);
        m_stamp = m_files.stamp(m_path);
    } catch (const std::exception&) {
        m_loaded = false; // what the file holds counts
    }
}

} // namespace tarvex
