#include "platform/profile_lines.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <charconv>

namespace tarvex {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\v\f";
constexpr std::string_view valueEnds = "\r\n\0"sv;

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view withoutLineEnd(std::string_view line)
{
    if (line.ends_with('\n')) line.remove_suffix(1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Compares names without regard to case; the wanted one is in lower case already.
class NameMatcher {
public:
    explicit NameMatcher(std::string_view wanted) : m_lower(lowerUtf8(decodeProfileText(wanted))) {}

    bool operator()(std::string_view bytes) const
    {
        if (!isAscii(bytes)) return lowerUtf8(decodeProfileText(bytes)) == m_lower;
        return std::equal(bytes.begin(), bytes.end(), m_lower.begin(), m_lower.end(), [](char c, char lower) {
            return windows1252Lower[static_cast<unsigned char>(c)] == static_cast<unsigned char>(lower);
        });
    }

private:
    std::string m_lower;
};

/// The name in a section's header. One that lacks its "]" counts, too: its keys are then still found.
std::optional<std::string_view> sectionName(std::string_view content)
{
    if (!content.starts_with('[')) return std::nullopt;
    return trimmed(content.substr(1, content.find(']') - 1));
}

std::optional<std::string_view> keyName(std::string_view content)
{
    const std::size_t equals = content.find('=');
    if (content.starts_with(';') || equals == std::string_view::npos) return std::nullopt;
    return trimmed(content.substr(0, equals));
}

/// Hands each key of the section, with its line, to `take` until that returns false. Where a new key belongs, and the
/// header, go to `place`, which is a ProfilePlace or a ProfileFamily.
template <typename Place, typename Take>
void walkSection(const ProfileLines& lines, std::string_view section, Place& place, Take take)
{
    const NameMatcher isSection(section);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string_view content = lines[i];
        if (i == 0 && content.starts_with(utf8Mark)) content.remove_prefix(utf8Mark.size());
        content = trimmed(withoutLineEnd(content));
        if (const auto name = sectionName(content)) {
            if (place.header) break;
            if (isSection(*name)) place.header = i;
        } else if (const auto key = keyName(content); place.header && key && !take(*key, i)) {
            break;
        }
        if (place.header && !content.empty()) place.insertAt = i + 1;
    }
}

/// The decimal number, without leading zeros, at the end of a key; nothing when it has none or one too large.
std::optional<std::size_t> indexAtEnd(std::string_view digits)
{
    std::size_t index = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (read.ec != std::errc() || digits.front() == '0') return std::nullopt;
    return index;
}

} // namespace

ProfileLines splitProfileLines(std::string_view bytes)
{
    ProfileLines lines;
    while (!bytes.empty()) {
        std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        if (end < bytes.size()) end += bytes.substr(end, 2) == "\r\n" ? 2 : 1;
        lines.emplace_back(bytes.substr(0, end));
        bytes.remove_prefix(end);
    }
    return lines;
}

std::string_view prevailingLineEnd(const ProfileLines& lines)
{
    constexpr std::string_view lineEnds[] = {"\r\n", "\n", "\r"};
    std::size_t counts[] = {0, 0, 0};
    for (const std::string& line : lines) {
        const std::string_view end = std::string_view(line).substr(withoutLineEnd(line).size());
        const auto* found = std::find(std::begin(lineEnds), std::end(lineEnds), end);
        if (found != std::end(lineEnds)) ++counts[found - lineEnds];
    }
    return lineEnds[std::max_element(std::begin(counts), std::end(counts)) - counts];
}

bool hasUtf8Mark(const ProfileLines& lines) { return !lines.empty() && lines.front().starts_with(utf8Mark); }

std::string_view strippedValue(std::string_view value)
{
    value = trimmed(value);
    const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view cleanProfileName(std::string_view name, std::string_view ends)
{
    return trimmed(cutProfileValue(name.substr(0, name.find_first_of(ends))));
}

std::string_view cutProfileValue(std::string_view value) { return value.substr(0, value.find_first_of(valueEnds)); }

std::string decodeProfileText(std::string_view bytes)
{
    return isValidUtf8(bytes) ? std::string(bytes) : utf8FromWindows1252(bytes);
}

std::string encodeProfileText(std::string_view text, bool onlyUtf8)
{
    std::string utf8 = decodeProfileText(text);
    if (onlyUtf8) return utf8;
    std::string bytes = windows1252FromUtf8(utf8);
    return decodeProfileText(bytes) == utf8 ? bytes : utf8;
}

ProfilePlace findProfileEntry(const ProfileLines& lines, std::string_view section, std::string_view key)
{
    const NameMatcher isKey(key);
    ProfilePlace place;
    walkSection(lines, section, place, [&](std::string_view found, std::size_t line) {
        if (!isKey(found)) return true;
        place.entry = line;
        return false;
    });
    return place;
}

ProfileFamily findProfileFamily(const ProfileLines& lines, std::string_view section, std::string_view stem,
                                std::size_t count)
{
    const NameMatcher isStem(stem);
    ProfileFamily family;
    family.entries.resize(count);
    walkSection(lines, section, family, [&](std::string_view key, std::size_t line) {
        const std::size_t digits = key.find_last_not_of("0123456789") + 1;
        if (digits == key.size() || !isStem(key.substr(0, digits))) return true;
        const auto index = indexAtEnd(key.substr(digits));
        if (index && *index <= count && !family.entries[*index - 1]) family.entries[*index - 1] = line;
        return true;
    });
    return family;
}

ProfileEntry splitProfileEntry(std::string_view line)
{
    const std::string_view content = withoutLineEnd(line);
    const std::size_t equals = content.find('=');
    const std::size_t value = std::min(content.find_first_not_of(blanks, equals + 1), content.size());
    return {content.substr(0, value), content.substr(value), line.substr(content.size())};
}

} // namespace tarvex
