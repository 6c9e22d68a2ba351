#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace tarvex {

/// The text of a setting. It reads as its buffer takes it, and keeps the whole text of the file beside that, so that a
/// cut value is neither written back cut nor started or opened under a cut name.
class SettingText : public std::string {
public:
    SettingText() = default;
    SettingText(std::string text) : std::string(std::move(text)) {}
    explicit SettingText(std::string_view text) : std::string(text) {}
    SettingText(const char* text) : std::string(text) {}

    /// A text of the file whose buffer takes that many characters of it.
    static SettingText cutTo(std::size_t characters, std::string whole);

    /// A text that was read and comes back as it was shown is unchanged, and keeps what the buffer cut off. Any other
    /// is whole.
    SettingText& operator=(std::string_view text);
    SettingText& operator=(const std::string& text) { return *this = std::string_view(text); }
    SettingText& operator=(const char* text) { return *this = std::string_view(text); }

    /// What belongs into the file, and what is started or opened.
    const std::string& whole() const;
    bool isCut() const { return whole().size() != size(); }
    /// Both texts in lower case.
    SettingText lower() const;

private:
    std::string m_whole;         ///< only of a text that was cut
    std::size_t m_shownSize = 0; ///< bytes of it that the buffer took
};

} // namespace tarvex
