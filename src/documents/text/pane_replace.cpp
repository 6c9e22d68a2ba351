#include "documents/text/byte_search.h"
#include "documents/text/pane.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {
namespace {

bool isWord(char character) { return windows1252IsWord[static_cast<unsigned char>(character)]; }

/// The stretch of a text from its first match to its last, as it becomes with each replaced.
class Rewriting {
public:
    Rewriting(std::string_view text, const FormatId* formats, std::string_view replacement)
        : m_text(text), m_formats(formats), m_replacement(replacement)
    {
    }

    /// The match from `begin` up to `end` gives way to the replacement, in the format of its first character.
    void replace(std::size_t begin, std::size_t end)
    {
        if (m_count++ == 0) m_begin = m_end = begin;
        m_new += m_text.substr(m_end, begin - m_end);
        m_newFormats.insert(m_newFormats.end(), m_formats + m_end, m_formats + begin);
        m_new += m_replacement;
        m_newFormats.insert(m_newFormats.end(), m_replacement.size(), m_formats[begin]);
        m_end = end;
    }
    /// Where a position behind all matches so far comes to stand.
    std::int64_t newPosition(std::size_t position) const
    {
        return static_cast<std::int64_t>(m_begin + m_new.size() + position - m_end);
    }
    /// Whether the character at a position, behind all matches so far, and the one that stands before it by then are
    /// both of a word.
    bool insideWord(std::size_t edge) const
    {
        if (edge >= m_text.size() || !isWord(m_text[edge])) return false;
        const bool behindReplacement = m_count > 0 && edge == m_end && !m_new.empty();
        if (behindReplacement) return isWord(m_new.back());
        const std::size_t before = m_count > 0 && edge == m_end ? m_begin : edge;
        return before > 0 && isWord(m_text[before - 1]);
    }

    std::size_t begin() const { return m_begin; }
    std::size_t end() const { return m_end; }
    std::int64_t count() const { return m_count; }
    const std::string& text() const { return m_new; }
    const std::vector<FormatId>& formats() const { return m_newFormats; }

private:
    std::string_view m_text;
    const FormatId* m_formats;
    std::string_view m_replacement;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    std::int64_t m_count = 0;
    std::string m_new;
    std::vector<FormatId> m_newFormats;
};

} // namespace

Pane::Replaced Pane::replaceEach(std::string_view text, std::string_view replacement, std::int64_t start, int options,
                                 const std::function<bool(std::int64_t position)>& mayReplace)
{
    Replaced result{.count = 0, .found = -1, .caret = start};
    const bool partsPairs = text.starts_with('\n') || text.ends_with('\r');
    if (text.empty() || partsPairs || start > static_cast<std::int64_t>(m_text.size())) return result;

    const bool matchCase = (options & find::matchCase) != 0;
    const bool wholeWord = (options & find::wholeWord) != 0;
    const std::string wanted = matchCase ? std::string(text) : lowerWindows1252(text);
    const std::string_view sought = matchCase ? m_text : foldedText();
    Rewriting rewriting(m_text, m_format.data(), replacement);
    std::size_t at = findBytes(sought, wanted, static_cast<std::size_t>(start));
    while (at != sought.npos) {
        const std::size_t end = at + wanted.size();
        if (wholeWord && (rewriting.insideWord(at) || rewriting.insideWord(end))) {
            at = findBytes(sought, wanted, at + 1);
            continue;
        }
        result.found = rewriting.newPosition(at);
        if (!mayReplace(result.found)) break;
        rewriting.replace(at, end);
        at = findBytes(sought, wanted, end);
        result.found = -1;
    }
    result.count = rewriting.count();
    if (result.count == 0) return result;
    replace({rewriting.begin(), rewriting.end()}, rewriting.text(), rewriting.formats());
    result.caret = m_selStart;
    changed();
    return result;
}

} // namespace tarvex
