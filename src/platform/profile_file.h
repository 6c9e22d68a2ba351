#pragma once

#include "platform/files.h"
#include "platform/utf16.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The number that a value of an INI file stands for: its leading decimal digits, after blanks and a sign; 0 when it
/// starts with something else. Beyond 32 bits it wraps around.
int profileInt(std::string_view value);

/// Bytes of an INI file that are read. One that is larger gives the defaults and is never written.
constexpr std::uint64_t largestProfile = std::uint64_t{16} << 20;

/// One INI file and the three profile calls on it. Section and key names match without regard to case and surrounding
/// blanks; the first section of a name and the first key in it count. Nothing here throws: a missing or unreadable file
/// gives the defaults, and a write that fails only leaves its reason.
///
/// Values are UTF-8 here. In the file they are Windows-1252; a value that the code page can't hold, or whose bytes
/// would read as UTF-8, is written as UTF-8, and bytes that are valid UTF-8 are read as that. A file that begins with
/// the UTF-8 mark gets UTF-8 only, and one in UTF-16, with its mark, stays in UTF-16.
///
/// A value ends at its first line break or NUL, in the file and in what is written, so that no value can break the
/// file. A section name ends at "]" too, a key at "="; an empty key, or one that would make its line a comment or a
/// section, is neither found nor written.
class ProfileFile {
public:
    ProfileFile(FileSystem& files, std::string path);

    const std::string& path() const { return m_path; }
    /// Why the last write failed; empty when it didn't.
    const std::string& whyNotWritten() const { return m_whyNotWritten; }

    /// The value with blanks and one pair of quotes around it removed, cut to `buffer` - 1 characters; the default,
    /// treated alike, when there is no such key.
    std::string readString(std::string_view section, std::string_view key, std::string_view defaultValue,
                           std::size_t buffer = 100) const;
    /// The value as profileInt reads it; the default for a missing key or an empty value.
    int readInt(std::string_view section, std::string_view key, int defaultValue) const;
    /// Whether the value of the file, without blanks and quotes around it, says what is to be written.
    using Says = std::function<bool(const std::string& stored)>;
    /// Creates the file and the section when needed; keeps unknown keys, comments, order and line ends. A value that
    /// reads the same already, or says the same as `says` judges it, leaves the file untouched.
    void writeString(std::string_view section, std::string_view key, std::string_view value, const Says& says = {});

    /// The keys of an indexed family, STEM1 to STEM`count`, each as readString and writeString treat it. The cost grows
    /// with the section and not with its square, however many keys a damaged file asks for.
    std::vector<std::string> readStrings(std::string_view section, std::string_view stem, std::size_t count,
                                         std::string_view defaultValue, std::size_t buffer = 100) const;
    void writeStrings(std::string_view section, std::string_view stem, const std::vector<std::string>& values);

    /// Holds the writes of one procedure back until it ends, so that they reach the disk together, whole or not at
    /// all. Batches may nest.
    class Batch {
    public:
        explicit Batch(ProfileFile& file) : m_file(file) { ++m_file.m_batches; }
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        ProfileFile& m_file;
    };

private:
    void refresh() const;
    void flush() noexcept;

    FileSystem& m_files;
    std::string m_path;
    int m_batches = 0;
    bool m_dirty = false;
    std::string m_whyNotWritten;
    mutable bool m_loaded = false;
    mutable bool m_readable = false; ///< a file that is there but can't be read, or is too large, is never written over
    mutable FileStamp m_stamp;
    mutable std::optional<Utf16Order> m_utf16; ///< set for a file in UTF-16, whose lines are UTF-8 here
    mutable std::vector<std::string> m_lines;  ///< each with its line end
};

} // namespace tarvex
