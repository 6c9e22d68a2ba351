#include "documents/text/rtf/rtf_tokens.h"

#include <algorithm>
#include <climits>
#include <cstdint>

namespace tarvex {
namespace {

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isIgnored(char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; }
bool isText(char c) { return c != '\\' && c != '{' && c != '}' && !isIgnored(c); }

int hexValue(char c)
{
    if (isDigit(c)) return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

RtfToken RtfTokens::next()
{
    while (m_at < m_rtf.size() && isIgnored(m_rtf[m_at])) ++m_at;
    if (m_at == m_rtf.size()) return {};
    const std::size_t start = m_at++;
    switch (m_rtf[start]) {
    case '{':
        return {RtfToken::Kind::Open, {}};
    case '}':
        return {RtfToken::Kind::Close, {}};
    case '\\':
        return control();
    default:
        break;
    }
    while (m_at < m_rtf.size() && isText(m_rtf[m_at])) ++m_at;
    return {RtfToken::Kind::Text, m_rtf.substr(start, m_at - start)};
}

RtfToken RtfTokens::control()
{
    if (m_at == m_rtf.size()) return {};
    if (isLetter(m_rtf[m_at])) return word();
    if (m_rtf[m_at] == '\'') return byte();
    return {RtfToken::Kind::Symbol, m_rtf.substr(m_at++, 1)};
}

RtfToken RtfTokens::byte()
{
    ++m_at;
    const int high = m_at < m_rtf.size() ? hexValue(m_rtf[m_at]) : -1;
    const int low = high >= 0 && m_at + 1 < m_rtf.size() ? hexValue(m_rtf[m_at + 1]) : -1;
    if (low < 0) return {RtfToken::Kind::Symbol, m_rtf.substr(m_at - 1, 1)};
    m_at += 2;
    return {RtfToken::Kind::Byte, {}, high * 16 + low, true};
}

RtfToken RtfTokens::word()
{
    const std::size_t start = m_at;
    while (m_at < m_rtf.size() && isLetter(m_rtf[m_at])) ++m_at;
    RtfToken token{RtfToken::Kind::Word, m_rtf.substr(start, m_at - start)};
    number(token);
    if (m_at < m_rtf.size() && m_rtf[m_at] == ' ') ++m_at;
    if (token.text == "bin") passBinary(token.value);
    return token;
}

void RtfTokens::number(RtfToken& token)
{
    const bool negative = m_at + 1 < m_rtf.size() && m_rtf[m_at] == '-' && isDigit(m_rtf[m_at + 1]);
    if (negative) ++m_at;
    constexpr std::int64_t tooMuch = std::int64_t{1} << 40;
    std::int64_t value = 0;
    for (; m_at < m_rtf.size() && isDigit(m_rtf[m_at]); ++m_at) {
        value = std::min(value * 10 + (m_rtf[m_at] - '0'), tooMuch);
        token.hasValue = true;
    }
    token.value = static_cast<int>(std::clamp<std::int64_t>(negative ? -value : value, INT_MIN, INT_MAX));
}

void RtfTokens::passBinary(int length)
{
    if (length > 0) m_at += std::min(static_cast<std::size_t>(length), m_rtf.size() - m_at);
}

} // namespace tarvex
