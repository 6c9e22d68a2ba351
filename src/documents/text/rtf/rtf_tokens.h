#pragma once

#include <cstddef>
#include <string_view>

namespace tarvex {

/// One piece of RTF.
struct RtfToken {
    enum class Kind {
        End,
        Open,   ///< "{"
        Close,  ///< "}"
        Word,   ///< "\word" or "\word123"
        Symbol, ///< "\" and one character that is no letter
        Byte,   ///< "\'xx", in `value`
        Text    ///< characters that stand for themselves; line ends are left out
    };
    Kind kind = Kind::End;
    std::string_view text; ///< name of the word, the symbol, or the characters
    int value = 0;         ///< number behind the word; numbers that an int can't hold become the nearest that it can
    bool hasValue = false;
};

/// Cuts any bytes into tokens. Binary data ("\bin") is passed over.
class RtfTokens {
public:
    explicit RtfTokens(std::string_view rtf) : m_rtf(rtf) {}
    RtfToken next();

private:
    RtfToken control();
    RtfToken word();
    RtfToken byte();
    void number(RtfToken& token);
    void passBinary(int length);

    std::string_view m_rtf;
    std::size_t m_at = 0;
};

} // namespace tarvex
