#include "platform/profile_file.h"

#include "platform/profile_lines.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <iterator>
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

/// The value as it is read: without blanks or quotes around it, UTF-8.
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

std::string entryLine(std::string_view key, std::string_view value, bool onlyUtf8, std::string_view lineEnd)
{
    std::string entry = encodeProfileText(key, onlyUtf8);
    entry += '=';
    entry += encodeProfileText(value, onlyUtf8);
    entry += lineEnd;
    return entry;
}

/// Puts new entries, whole lines, behind the last of their section, which is made when it isn't there.
void insertEntries(ProfileLines& lines, std::optional<std::size_t> header, std::size_t insertAt,
                   std::string_view section, ProfileLines entries)
{
    const std::string lineEnd(prevailingLineEnd(lines));
    if (!header || insertAt == lines.size()) endLastLine(lines, lineEnd);
    if (!header) {
        lines.push_back("[" + encodeProfileText(section, hasUtf8Mark(lines)) + "]" + lineEnd);
        insertAt = lines.size();
    }
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(insertAt), std::make_move_iterator(entries.begin()),
                 std::make_move_iterator(entries.end()));
}

/// Returns whether the line has changed.
bool changeEntry(std::string& line, std::string_view value, bool onlyUtf8, const ProfileFile::Says& says = {})
{
    const ProfileEntry old = splitProfileEntry(line);
    const std::string stored = readable(old.value);
    if (stored == readable(value) || (says && says(stored))) return false;
    line = std::string(old.before) + encodeProfileText(value, onlyUtf8) + std::string(old.lineEnd);
    return true;
}

/// Returns whether the lines have changed.
bool setValue(ProfileLines& lines, const Names& names, std::string_view value, const ProfileFile::Says& says)
{
    const bool onlyUtf8 = hasUtf8Mark(lines);
    const ProfilePlace place = findProfileEntry(lines, names.section, names.key);
    if (place.entry) return changeEntry(lines[*place.entry], value, onlyUtf8, says);
    insertEntries(lines, place.header, place.insertAt, names.section,
                  {entryLine(names.key, value, onlyUtf8, prevailingLineEnd(lines))});
    return true;
}

/// Returns whether the lines have changed.
bool setValues(ProfileLines& lines, const Names& names, const std::vector<std::string>& values)
{
    const bool onlyUtf8 = hasUtf8Mark(lines);
    const std::string lineEnd(prevailingLineEnd(lines));
    const ProfileFamily family = findProfileFamily(lines, names.section, names.key, values.size());
    ProfileLines missing;
    bool changed = false;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string_view value = cutProfileValue(values[i]);
        if (family.entries[i])
            changed = changeEntry(lines[*family.entries[i]], value, onlyUtf8) || changed;
        else
            missing.push_back(entryLine(std::string(names.key) + std::to_string(i + 1), value, onlyUtf8, lineEnd));
    }
    if (missing.empty()) return changed;
    insertEntries(lines, family.header, family.insertAt, names.section, std::move(missing));
    return true;
}

} // namespace

int profileInt(std::string_view value)
{
    value.remove_prefix(std::min(value.find_first_not_of(" \t"), value.size()));
    const bool negative = value.starts_with('-');
    if (negative || value.starts_with('+')) value.remove_prefix(1);
    std::uint32_t number = 0;
    for (const char c : value) {
        if (c < '0' || c > '9') break;
        number = number * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return static_cast<int>(negative ? 0U - number : number);
}

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
    return !value || value->empty() ? defaultValue : profileInt(*value);
}

void ProfileFile::writeString(std::string_view section, std::string_view key, std::string_view value, const Says& says)
{
    refresh();
    const Names names = cleanNames(section, key);
    if (!m_readable || !names.usable()) return;
    if (setValue(m_lines, names, cutProfileValue(value), says)) m_dirty = true;
    if (m_batches == 0) flush();
}

std::vector<std::string> ProfileFile::readStrings(std::string_view section, std::string_view stem, std::size_t count,
                                                  std::string_view defaultValue, std::size_t buffer) const
{
    refresh();
    const Names names = cleanNames(section, stem);
    const std::size_t characters = buffer == 0 ? 0 : buffer - 1;
    std::vector<std::string> values(count, std::string(utf8Left(readable(defaultValue), characters)));
    if (!names.usable()) return values;
    const ProfileFamily family = findProfileFamily(m_lines, names.section, names.key, count);
    for (std::size_t i = 0; i < count; ++i) {
        if (!family.entries[i]) continue;
        values[i] = readable(splitProfileEntry(m_lines[*family.entries[i]]).value);
        values[i].resize(utf8Left(values[i], characters).size());
    }
    return values;
}

void ProfileFile::writeStrings(std::string_view section, std::string_view stem, const std::vector<std::string>& values)
{
    refresh();
    const Names names = cleanNames(section, stem);
    if (!m_readable || !names.usable() || values.empty()) return;
    if (setValues(m_lines, names, values)) m_dirty = true;
    if (m_batches == 0) flush();
}

void ProfileFile::refresh() const
{
    if (m_dirty) return; // the lines are newer than the file
    const FileStamp stamp = m_files.stamp(m_path);
    if (m_loaded && stamp == m_stamp) return;
    m_stamp = stamp;
    m_loaded = true;
    m_readable = stamp.size <= largestProfile;
    m_lines.clear();
    m_utf16.reset();
    if (!m_readable) return;
    if (stamp.identity == 0) return;
    try {
        const std::string bytes = m_files.read(m_path);
        m_utf16 = utf16OrderOf(bytes);
        m_lines = splitProfileLines(m_utf16 ? utf8FromUtf16(bytes, *m_utf16) : bytes);
    } catch (const std::exception&) {
        m_readable = false;
        m_loaded = false; // it may be readable the next time
    }
}

void ProfileFile::flush() noexcept
{
    m_whyNotWritten.clear();
    if (!m_dirty) return;
    m_dirty = false;
    m_loaded = m_loaded && m_files.stamp(m_path).size <= largestProfile; // it may have grown meanwhile
    if (!m_loaded) return;
    try {
        std::string bytes;
        for (const std::string& line : m_lines) bytes += line;
        m_files.write(m_path, m_utf16 ? utf16FromUtf8(bytes, *m_utf16) : bytes);
        m_stamp = m_files.stamp(m_path);
    } catch (const std::exception& error) {
        m_whyNotWritten = error.what();
        m_loaded = false; // the next read is from the file
    }
}

} // namespace tarvex
