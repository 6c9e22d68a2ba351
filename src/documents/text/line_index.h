#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvex {

/// Where the lines of a text begin. Every CR LF ends a line; positions and lines count from 0.
class LineIndex {
public:
    /// Follows an edit that parts no CR LF: `removed` characters at `position` gave way to `inserted`.
    void edited(std::size_t position, std::size_t removed, std::string_view inserted);

    std::int64_t count() const { return static_cast<std::int64_t>(m_starts.size()); }
    /// First position of a line from 0 to count() - 1.
    std::int64_t start(std::int64_t line) const { return m_starts[static_cast<std::size_t>(line)]; }
    /// Line of a position from 0; past the end the last line.
    std::int64_t lineOf(std::int64_t position) const;

private:
    std::vector<std::int64_t> m_starts{0};
    std::vector<std::int64_t> m_added; // kept for its memory
};

} // namespace tarvex
