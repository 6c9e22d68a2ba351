#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvex {

/// Lines [leftBegin, leftEnd) of the one text stand in the other as lines [rightBegin, rightEnd). Lines count from 0;
/// one of the two ranges may be empty.
struct LineHunk {
    std::size_t leftBegin = 0;
    std::size_t leftEnd = 0;
    std::size_t rightBegin = 0;
    std::size_t rightEnd = 0;
    bool operator==(const LineHunk&) const = default;
};

/// The lines of a text, each with its line end; joined they are the text. An empty text has none.
std::vector<std::string_view> linesWithEnds(std::string_view text);

/// Where two texts differ, in the order of their lines, with as few lines as possible; texts that have little in common
/// differ in one piece instead, so that the time stays within bounds.
std::vector<LineHunk> differingLines(const std::vector<std::string_view>& left,
                                     const std::vector<std::string_view>& right);

/// A row of two texts side by side: a line of each, or a line and a gap.
struct LineRow {
    std::optional<std::size_t> left;
    std::optional<std::size_t> right;
    std::optional<std::size_t> hunk; ///< index of the difference that it is part of; none: the lines are equal
    bool operator==(const LineRow&) const = default;
};
/// All lines of texts of so many lines.
std::vector<LineRow> rowsSideBySide(std::size_t leftLines, std::size_t rightLines, const std::vector<LineHunk>& hunks);

} // namespace tarvex
