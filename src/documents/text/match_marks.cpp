#include "documents/text/match_marks.h"

#include "documents/text/byte_search.h"
#include "platform/windows1252.h"

#include <algorithm>

namespace tarvex {

MatchMarks::MatchMarks(Pane& pane)
    : m_pane(pane), m_edited(pane.edited.connect([this](const Pane::Edit& edit) { followEdit(edit); }))
{
}

void MatchMarks::show(std::string_view text, int options)
{
    std::string wanted = (options & find::matchCase) != 0 ? std::string(text) : lowerWindows1252(text);
    if (wanted == m_wanted && options == m_options) return;
    m_wanted = std::move(wanted);
    m_options = options;
    m_positions.clear();
    collect(0, static_cast<std::int64_t>(m_pane.TextLength()), m_positions);
    changed();
}

std::optional<std::size_t> MatchMarks::selected() const
{
    if (m_wanted.empty() || m_pane.SelLength() != length()) return std::nullopt;
    const auto place = std::ranges::lower_bound(m_positions, m_pane.SelStart());
    if (place == m_positions.end() || *place != m_pane.SelStart()) return std::nullopt;
    return static_cast<std::size_t>(place - m_positions.begin());
}

/// Whether whole words, if only those are wanted, begin and end where the text found does.
bool MatchMarks::isMatch(std::size_t begin) const
{
    if ((m_options & find::wholeWord) == 0) return true;
    const std::string& text = m_pane.Text();
    const auto insideWord = [&](std::size_t edge) {
        const auto isWord = [&](std::size_t at) { return windows1252IsWord[static_cast<unsigned char>(text[at])]; };
        return edge > 0 && edge < text.size() && isWord(edge - 1) && isWord(edge);
    };
    return !insideWord(begin) && !insideWord(begin + m_wanted.size());
}

/// Appends the matches that begin in `from`..`lastStart`. Returns where the next search begins: behind the last of
/// them, or behind `lastStart` if that is further.
std::int64_t MatchMarks::collect(std::int64_t from, std::int64_t lastStart, std::vector<std::int64_t>& found) const
{
    if (m_wanted.empty() || from > lastStart) return from;
    std::string stretch = m_pane.Text().substr(static_cast<std::size_t>(from),
                                               static_cast<std::size_t>(lastStart - from) + m_wanted.size());
    if ((m_options & find::matchCase) == 0) stretch = lowerWindows1252(stretch);
    std::int64_t next = from;
    std::size_t at = findBytes(stretch, m_wanted, 0);
    while (at != std::string::npos) {
        const bool matches = isMatch(static_cast<std::size_t>(from) + at);
        if (matches) found.push_back(from + static_cast<std::int64_t>(at));
        at += matches ? m_wanted.size() : 1;
        if (matches) next = from + static_cast<std::int64_t>(at);
        at = findBytes(stretch, m_wanted, at);
    }
    return std::max(next, lastStart + 1);
}

/// Searches anew only where matches touch the edit or its neighbour characters, and behind it until the old ones fit
/// again, so that a key in a long text doesn't search all of it.
void MatchMarks::followEdit(const Pane::Edit& edit)
{
    if (m_wanted.empty()) return;
    const std::int64_t delta = edit.inserted - edit.removed;
    const auto before =
        std::ranges::partition_point(m_positions, [&](auto at) { return at + length() < edit.position; });
    auto behind =
        std::partition_point(before, m_positions.end(), [&](auto at) { return at <= edit.position + edit.removed; });
    std::int64_t lastStart = edit.position + edit.inserted;
    if (behind != before) lastStart = std::max(lastStart, *(behind - 1) + length() + delta - 1);
    std::for_each(behind, m_positions.end(), [&](auto& at) { at += delta; });

    const std::int64_t sought = std::max<std::int64_t>(edit.position - length(), 0);
    std::int64_t from = before == m_positions.begin() ? sought : std::max(sought, *(before - 1) + length());
    std::vector<std::int64_t> found;
    const auto firstBehind = behind;
    while (from <= lastStart) {
        from = collect(from, lastStart, found);
        for (; behind != m_positions.end() && *behind < from; ++behind) lastStart = *behind + length() - 1;
    }
    const auto isFoundAgain = [&](std::int64_t at, std::int64_t foundAt) {
        return (at >= edit.position + edit.removed ? at + delta : at) == foundAt;
    };
    const bool moved = firstBehind == behind && std::equal(before, behind, found.begin(), found.end(), isFoundAgain);
    if (before == behind && found.empty()) return;
    const auto place = m_positions.erase(before, behind);
    m_positions.insert(place, found.begin(), found.end());
    if (!moved) changed();
}

} // namespace tarvex
