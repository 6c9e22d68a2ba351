#include "safein/keys/raw_decoder.h"

#include "safein/keys/key_table.h"

#include <algorithm>
#include <array>

namespace tarvex {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// Whether the bracket at `open` is that of a RAW block.
bool followsRaw(std::string_view text, std::size_t open)
{
    constexpr std::string_view word = "RAW";
    std::size_t end = open;
    while (end > 0 && text[end - 1] == ' ') --end;
    if (end < word.size()) return false;
    const std::string_view before = text.substr(end - word.size(), word.size());
    const auto sameLetter = [](char a, char b) { return (a & ~0x20) == b; };
    if (!std::ranges::equal(before, word, sameLetter)) return false;
    return end == word.size() || !isLetter(text[end - word.size() - 1]);
}

class Decoder {
public:
    explicit Decoder(std::string_view text) : m_text(text) {}

    DecodedRaw decode()
    {
        bool anyBlock = false;
        for (std::size_t open = m_text.find('('); open != std::string_view::npos; open = m_text.find('(', open + 1)) {
            if (!followsRaw(m_text, open)) continue;
            anyBlock = true;
            const std::size_t close = std::min(m_text.find(')', open), m_text.size());
            words(open + 1, close);
            if (close == m_text.size()) break;
            open = close;
        }
        if (!anyBlock) words(0, m_text.size());
        dropPending();
        listLeftDown();
        return std::move(m_result);
    }

private:
    static constexpr std::size_t bytePlaces = 3; // "#1C"

    void words(std::size_t at, std::size_t end)
    {
        while (at < end) {
            if (isBlank(m_text[at])) {
                ++at;
                continue;
            }
            std::size_t wordEnd = at;
            while (wordEnd < end && !isBlank(m_text[wordEnd])) ++wordEnd;
            word(at, wordEnd - at);
            at = wordEnd;
        }
    }

    void word(std::size_t at, std::size_t length)
    {
        const int high = length == bytePlaces ? hexDigit(m_text[at + 1]) : -1;
        const int low = length == bytePlaces ? hexDigit(m_text[at + 2]) : -1;
        if (m_text[at] != '#' || high < 0 || low < 0) {
            dropPending();
            m_result.unknown.push_back({at, length});
            return;
        }
        byte(static_cast<std::uint8_t>(high * 16 + low), at);
    }

    void byte(std::uint8_t value, std::size_t at)
    {
        if (m_pauseBytes > 0 ? value != pauseBytes[m_pauseBytes] : !continues(value)) dropPending();
        if (!m_pending) m_pendingStart = at;
        m_pending = true;
        m_pendingEnd = at + bytePlaces;
        if (m_pauseBytes > 0 || value == pauseBytes[0]) {
            pauseByte();
        } else if (value == extendedPrefix) {
            m_extended = true;
        } else if (value == breakPrefix) {
            m_break = true;
        } else {
            code(value);
        }
    }

    /// Prefixes come in their order, at most one of each.
    bool continues(std::uint8_t value) const
    {
        if (value == extendedPrefix || value == pauseBytes[0]) return !m_pending;
        return value != breakPrefix || !m_break;
    }

    void pauseByte()
    {
        if (++m_pauseBytes < pauseBytes.size()) return;
        event(keyIndex::pause, true); // Pause sends everything at once
        event(keyIndex::pause, false);
        clearPending();
    }

    void code(std::uint8_t value)
    {
        const Key* const key = keyOfCode(value, m_extended);
        if (key != nullptr) {
            event(key->index, !m_break);
        } else if (!m_extended || !isFakeShift(value)) {
            return dropPending();
        }
        clearPending();
    }

    void event(int index, bool down)
    {
        m_result.events.push_back({static_cast<std::int16_t>(index), down});
        std::size_t& since = m_downSince[static_cast<std::size_t>(index)];
        if (!down)
            since = 0;
        else if (since == 0)
            since = m_result.events.size();
    }

    /// What was begun isn't a code.
    void dropPending()
    {
        if (m_pending) m_result.unknown.push_back({m_pendingStart, m_pendingEnd - m_pendingStart});
        clearPending();
    }

    void clearPending()
    {
        m_pending = m_extended = m_break = false;
        m_pauseBytes = 0;
    }

    void listLeftDown()
    {
        for (int index = 0; index <= keyIndex::last; ++index)
            if (since(index) > 0) m_result.leftDown.push_back(static_cast<std::int16_t>(index));
        std::ranges::sort(m_result.leftDown, {}, [this](std::int16_t index) { return since(index); });
    }
    std::size_t since(int index) const { return m_downSince[static_cast<std::size_t>(index)]; }

    std::string_view m_text;
    DecodedRaw m_result;
    std::array<std::size_t, keyIndex::last + 1> m_downSince{}; ///< number of the event, from 1; 0: the key is up
    bool m_pending = false;                                    ///< inside a code
    bool m_extended = false;
    bool m_break = false;
    std::size_t m_pauseBytes = 0; ///< of Pause's code
    std::size_t m_pendingStart = 0;
    std::size_t m_pendingEnd = 0;
};

std::string_view nameOf(std::int16_t index) { return keyAt(index)->distinctName(); }

void append(std::string& line, std::string_view separator, std::string_view piece)
{
    if (!line.empty()) line += separator;
    line += piece;
}

constexpr std::size_t mostNames = 12; // of keys that stay down, in a line

} // namespace

DecodedRaw decodeRaw(std::string_view text) { return Decoder(text).decode(); }

std::string rawSummary(std::string_view text, std::size_t mostEvents)
{
    const DecodedRaw raw = decodeRaw(text);
    std::string line;
    for (std::size_t i = 0; i < std::min(mostEvents, raw.events.size()); ++i) {
        append(line, ", ", nameOf(raw.events[i].key));
        line += raw.events[i].down ? " down" : " up";
    }
    if (raw.events.size() > mostEvents) line += ", ...";
    if (!raw.leftDown.empty()) append(line, "; ", "stays down: ");
    for (std::size_t i = 0; i < std::min(mostNames, raw.leftDown.size()); ++i) {
        if (i > 0) line += ' ';
        line += nameOf(raw.leftDown[i]);
    }
    if (raw.leftDown.size() > mostNames) line += " ...";
    if (!raw.unknown.empty()) {
        constexpr std::size_t longest = 24;
        append(line, "; ", "not a key: ");
        line += text.substr(raw.unknown.front().position, std::min(longest, raw.unknown.front().length));
    }
    return line;
}

} // namespace tarvex
