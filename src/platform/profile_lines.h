#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text of an INI file as lines, each with its own line end (CR LF, LF, CR, or none for the last).

namespace tarvex {

using ProfileLines = std::vector<std::string>;

ProfileLines splitProfileLines(std::string_view bytes);
/// The line end that most lines have; CR LF in a file without one, or where it is as frequent as another.
std::string_view prevailingLineEnd(const ProfileLines& lines);
bool hasUtf8Mark(const ProfileLines& lines);

/// Blanks around the text, then one pair of single or double quotes, are removed.
std::string_view strippedValue(std::string_view value);
/// A name as the calls take it: cut at the first of `ends`, a line break or NUL, without blanks around it.
std::string_view cleanProfileName(std::string_view name, std::string_view ends);
/// The value up to its first line break or NUL.
std::string_view cutProfileValue(std::string_view value);
/// The text of bytes in the file, as UTF-8.
std::string decodeProfileText(std::string_view bytes);
/// The bytes for a text in the file; decoding them gives the text again.
std::string encodeProfileText(std::string_view text, bool onlyUtf8);

/// Where a key is, or where it would be put.
struct ProfilePlace {
    std::optional<std::size_t> header; ///< line of the section's header
    std::optional<std::size_t> entry;  ///< line of the key
    std::size_t insertAt = 0;          ///< before this line a new key belongs, if there is a header
};
/// The names are clean; the key isn't empty.
ProfilePlace findProfileEntry(const ProfileLines& lines, std::string_view section, std::string_view key);

/// The same for the keys STEM1, STEM2 and so on, for all of them at the price of one.
struct ProfileFamily {
    std::optional<std::size_t> header;
    std::vector<std::optional<std::size_t>> entries; ///< line of key i + 1
    std::size_t insertAt = 0;
};
/// The names are clean; the stem isn't empty and doesn't end in a digit.
ProfileFamily findProfileFamily(const ProfileLines& lines, std::string_view section, std::string_view stem,
                                std::size_t count);

/// The part of an entry's line up to its value, blanks behind "=" included; the value; the line end.
struct ProfileEntry {
    std::string_view before;
    std::string_view value;
    std::string_view lineEnd;
};
ProfileEntry splitProfileEntry(std::string_view line);

} // namespace tarvex
