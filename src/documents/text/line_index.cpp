#include "documents/text/line_index.h"

#include <algorithm>

namespace tarvex {

void LineIndex::edited(std::size_t position, std::size_t removed, std::string_view inserted)
{
    m_added.clear();
    for (std::size_t lf = inserted.find('\n'); lf != inserted.npos; lf = inserted.find('\n', lf + 1)) {
        m_added.push_back(static_cast<std::int64_t>(position + lf + 1));
    }
    const auto begin = static_cast<std::int64_t>(position);
    const auto firstGone = std::upper_bound(m_starts.begin() + 1, m_starts.end(), begin);
    const auto firstKept = std::upper_bound(firstGone, m_starts.end(), begin + static_cast<std::int64_t>(removed));
    const std::int64_t shift = static_cast<std::int64_t>(inserted.size()) - static_cast<std::int64_t>(removed);
    for (auto start = firstKept; start != m_starts.end(); ++start) *start += shift;

    const auto reused = std::min(firstKept - firstGone, static_cast<std::ptrdiff_t>(m_added.size()));
    const auto rest = std::copy_n(m_added.begin(), reused, firstGone);
    if (rest != firstKept) {
        m_starts.erase(rest, firstKept);
    } else {
        m_starts.insert(rest, m_added.begin() + reused, m_added.end());
    }
}

std::int64_t LineIndex::lineOf(std::int64_t position) const
{
    return std::upper_bound(m_starts.begin() + 1, m_starts.end(), position) - m_starts.begin() - 1;
}

} // namespace tarvex
