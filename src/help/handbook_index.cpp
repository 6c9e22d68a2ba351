#include "help/handbook_index.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tarvex {

namespace {

constexpr std::size_t excerptLength = 160;
constexpr std::size_t excerptBefore = 50; ///< of it in front of the place
constexpr std::size_t longestLookUp = 400;

char foldedCharacter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string folded(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(), foldedCharacter);
    return result;
}

/// Of folded text.
bool isWordCharacter(char c)
{
    const auto code = static_cast<unsigned char>(c);
    constexpr unsigned char firstBeyondAscii = 0x80;
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || code >= firstBeyondAscii;
}

std::vector<std::string_view> split(std::string_view text, char divider)
{
    std::vector<std::string_view> parts;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(divider, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

/// With single blanks between its words and none at its start, and not longer than a line.
std::string tidied(std::string_view words)
{
    std::string result;
    for (const char c : words.substr(0, longestLookUp)) {
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!blank)
            result += foldedCharacter(c);
        else if (!result.empty() && result.back() != ' ')
            result += ' ';
    }
    return result;
}

/// The stretch isn't cut out of a longer word at its ends.
bool standsAlone(std::string_view text, std::size_t at, std::size_t length)
{
    const std::size_t end = at + length;
    if (at > 0 && isWordCharacter(text[at - 1]) && isWordCharacter(text[at])) return false;
    return end == text.size() || !isWordCharacter(text[end]) || !isWordCharacter(text[end - 1]);
}

bool holdsWord(std::string_view text, std::string_view word)
{
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1))
        if (standsAlone(text, at, word.size())) return true;
    return false;
}

std::size_t countOf(std::string_view text, std::string_view word)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + word.size()))
        ++count;
    return count;
}

bool isInsideCharacter(const std::string& text, std::size_t at)
{
    constexpr unsigned char kind = 0xC0;
    constexpr unsigned char continuation = 0x80;
    return (static_cast<unsigned char>(text[at]) & kind) == continuation; // the text's end isn't
}

/// Cut between words, where there are any, with dots for what is left out.
std::string excerptAround(const std::string& text, std::size_t place)
{
    std::size_t start = place - std::min(place, excerptBefore);
    if (start > 0) {
        const std::size_t blank = text.find(' ', start);
        if (blank < place) start = blank + 1;
    }
    while (isInsideCharacter(text, start)) ++start;
    std::size_t end = std::min(start + excerptLength, text.size());
    if (end < text.size()) {
        const std::size_t blank = text.rfind(' ', end);
        if (blank != std::string::npos && blank > place) end = blank;
    }
    while (isInsideCharacter(text, end)) ++end;
    return (start > 0 ? "… " : "") + text.substr(start, end - start) + (end < text.size() ? " …" : "");
}

} // namespace

HandbookIndex::HandbookIndex(std::string_view text)
{
    for (const std::string_view line : split(text, '\n')) takeLine(split(line, '\t'));
}

void HandbookIndex::takeLine(const std::vector<std::string_view>& fields)
{
    const std::string_view kind = fields[0];
    if (kind == "chapter" && fields.size() == 2) {
        m_chapters.push_back({std::string(fields[1]), {}});
    } else if (kind == "page" && fields.size() == 4 && !m_chapters.empty()) {
        m_chapters.back().pages.push_back(m_pages.size());
        m_pages.push_back({std::string(fields[1]), std::string(fields[2]), std::string(fields[3])});
        m_foldedTitles.push_back(folded(fields[2]));
        m_foldedTexts.push_back(folded(fields[3]));
    } else if (kind == "keyword" && fields.size() == 3) {
        if (m_targets.emplace(folded(fields[1]), fields[2]).second)
            m_keywords.push_back({std::string(fields[1]), std::string(fields[2])});
    } else if (kind == "topic" && fields.size() == 3) {
        int number = 0;
        const char* const last = fields[1].data() + fields[1].size();
        const auto [end, error] = std::from_chars(fields[1].data(), last, number);
        if (error == std::errc() && end == last) m_topics.emplace(number, fields[2]);
    }
}

const HandbookIndex::Page* HandbookIndex::pageOf(std::string_view target) const
{
    const auto page = std::ranges::find(m_pages, target.substr(0, target.find('#')), &Page::file);
    return page == m_pages.end() ? nullptr : &*page;
}

std::optional<std::string> HandbookIndex::lookUp(std::string_view words) const
{
    const std::string wanted = tidied(words);
    if (wanted.empty()) return {};
    if (const auto exact = m_targets.find(wanted); exact != m_targets.end()) return exact->second;
    const std::pair<const std::string, std::string>* best = nullptr;
    bool bestBegins = false;
    for (const auto& entry : m_targets) {
        const std::string& word = entry.first;
        const bool begins = wanted.starts_with(word) && standsAlone(wanted, 0, word.size());
        if (!begins && (bestBegins || !holdsWord(wanted, word))) continue;
        const bool better = best == nullptr || begins != bestBegins || word.size() > best->first.size();
        if (!better) continue;
        best = &entry;
        bestBegins = begins;
    }
    return best != nullptr ? std::optional(best->second) : std::nullopt;
}

std::vector<HandbookIndex::Hit> HandbookIndex::search(std::string_view words) const
{
    const std::string tidy = tidied(words);
    std::vector<std::string_view> wanted = split(tidy, ' ');
    std::erase_if(wanted, [](std::string_view word) { return word.empty(); });
    if (wanted.empty()) return {};
    struct Found {
        Hit hit;
        std::size_t inTitle = 0;
        std::size_t inText = 0;
    };
    std::vector<Found> found;
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        Found one{{page, {}}};
        bool all = true;
        for (const std::string_view word : wanted) {
            const bool titled = m_foldedTitles[page].find(word) != std::string::npos;
            const std::size_t count = countOf(m_foldedTexts[page], word);
            one.inTitle += titled ? 1 : 0;
            one.inText += count;
            all = all && (titled || count > 0);
        }
        if (!all) continue;
        const std::size_t place = m_foldedTexts[page].find(wanted.front());
        one.hit.excerpt = excerptAround(m_pages[page].text, place == std::string::npos ? 0 : place);
        found.push_back(std::move(one));
    }
    std::ranges::stable_sort(found, [](const Found& a, const Found& b) {
        return std::pair(a.inTitle, a.inText) > std::pair(b.inTitle, b.inText);
    });
    std::vector<Hit> hits;
    for (Found& one : found) hits.push_back(std::move(one.hit));
    return hits;
}

} // namespace tarvex
