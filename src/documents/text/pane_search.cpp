#include "documents/text/byte_search.h"
#include "documents/text/pane.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <array>

namespace tarvex {
namespace {

/// The characters that a Span or UpTo is about.
class CharacterSet {
public:
    CharacterSet(std::string_view set, bool negate) : m_negate(negate)
    {
        for (const char character : set) m_holds[static_cast<unsigned char>(character)] = true;
    }
    bool operator()(char character) const { return m_holds[static_cast<unsigned char>(character)] != m_negate; }

private:
    std::array<bool, 256> m_holds{};
    bool m_negate;
};

/// Position up to which all characters from `at` on are wanted (or, backward, down to which all before it are).
template <typename Wanted> std::size_t walk(std::string_view text, std::size_t at, bool forward, Wanted wanted)
{
    if (forward) {
        while (at < text.size() && wanted(text[at])) ++at;
    } else {
        while (at > 0 && wanted(text[at - 1])) --at;
    }
    return at;
}

bool isWord(char character) { return windows1252IsWord[static_cast<unsigned char>(character)]; }

} // namespace

const std::string& Pane::foldedText() const
{
    if (!m_folded) m_folded = lowerWindows1252(m_text);
    return *m_folded;
}

bool Pane::wholeWordAt(std::size_t begin, std::size_t end) const
{
    const auto insideWord = [&](std::size_t edge) {
        return edge > 0 && edge < m_text.size() && isWord(m_text[edge - 1]) && isWord(m_text[edge]);
    };
    return !insideWord(begin) && !insideWord(end);
}

std::int64_t Pane::Find(std::string_view text, std::int64_t start, std::int64_t end, int options)
{
    constexpr std::int64_t notFound = -1;
    constexpr std::int64_t startRange = 65536;
    if (start < 0) start = std::max<std::int64_t>(start + startRange, 0);
    end = std::min(end, static_cast<std::int64_t>(m_text.size()));
    if (text.empty() || end < start) return notFound;

    const bool matchCase = (options & find::matchCase) != 0;
    const std::string wanted = matchCase ? std::string(text) : lowerWindows1252(text);
    const std::string_view sought =
        std::string_view(matchCase ? m_text : foldedText()).substr(0, static_cast<std::size_t>(end));
    std::size_t at = findBytes(sought, wanted, static_cast<std::size_t>(start));
    if ((options & find::wholeWord) != 0) {
        while (at != sought.npos && !wholeWordAt(at, at + wanted.size())) at = findBytes(sought, wanted, at + 1);
    }
    if (at == sought.npos) return notFound;

    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;
    select(at, wanted.size());
    reportSelection(oldStart, oldLength);
    return m_selStart;
}

void Pane::Span(std::string_view set, bool forward, bool negate)
{
    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;
    const auto [begin, end] = selection();
    const std::size_t reached = walk(m_text, forward ? end : begin, forward, CharacterSet(set, negate));
    if (forward) {
        select(begin, reached - begin);
    } else {
        select(reached, end - reached);
    }
    reportSelection(oldStart, oldLength);
}

void Pane::UpTo(std::string_view set, bool forward, bool negate)
{
    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;
    const auto [begin, end] = selection();
    const CharacterSet goal(set, negate);
    select(walk(m_text, forward ? end : begin, forward, [&](char character) { return !goal(character); }), 0);
    reportSelection(oldStart, oldLength);
}

std::int64_t Pane::GetLineFromChar(std::int64_t position) const
{
    return m_lines.lineOf(position < 0 ? m_selStart : position);
}

} // namespace tarvex
