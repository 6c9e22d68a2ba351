#pragma once

#include "documents/text/pane.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// All places of a pane's text where a text is found, kept up to date while the pane is edited. They are those that
/// Pane::Find finds one after the other from the beginning, each search going on behind the last match.
class MatchMarks {
public:
    /// The pane outlives the marks.
    explicit MatchMarks(Pane& pane);

    /// `options` are those of Pane::Find. An empty text has no matches.
    void show(std::string_view text, int options);
    void clear() { show({}, 0); }

    /// First positions of the matches, in order.
    const std::vector<std::int64_t>& positions() const { return m_positions; }
    std::int64_t length() const { return static_cast<std::int64_t>(m_wanted.size()); }
    /// Index, from 0, of the match that is the pane's selection.
    std::optional<std::size_t> selected() const;

    /// Matches came or went. Not emitted when they only move with the text.
    Signal<> changed;

private:
    std::int64_t collect(std::int64_t from, std::int64_t lastStart, std::vector<std::int64_t>& found) const;
    bool isMatch(std::size_t begin) const;
    void followEdit(const Pane::Edit& edit);

    const Pane& m_pane;
    std::string m_wanted; ///< in lower case unless case counts
    int m_options = 0;
    std::vector<std::int64_t> m_positions;
    Connection m_edited;
};

} // namespace tarvex
