#pragma once

#include <string>
#include <string_view>

namespace tarvex {

/// Lines up the slash modifiers of a statement's continuation lines under those of its BTN line. Columns count from 1;
/// 0 stands for none. Texts are bytes.
class SlashColumns {
public:
    /// `indent` blanks go in front of each line that isn't a comment; below 0 none.
    explicit SlashColumns(int indent = 0) : m_indent(indent) {}

    /// The next line as it is to stand. A comment line ("rem", "~") stays as it is.
    std::string aligned(std::string_view line);

private:
    void rememberStatement(std::string_view line);
    std::size_t columnFor(std::string_view line) const;

    int m_indent;
    std::size_t m_dogfight = 0; ///< columns of the last BTN line that had such a modifier
    std::size_t m_s3 = 0;
    std::size_t m_press = 0;
    std::size_t m_toggle = 0;
    std::string m_lastWithSlash;
};

/// A whole text, its lines ended by CR LF.
std::string alignedText(std::string_view text, int indent = 0);

} // namespace tarvex
