#include "documents/files/line_differences.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tarvex {

namespace {

using Numbers = std::vector<int>;
/// Indices of two equal lines.
using Pairs = std::vector<std::pair<int, int>>;

/// Equal lines get equal numbers: they are compared often.
class LineNumbers {
public:
    Numbers of(const std::vector<std::string_view>& lines, std::size_t begin, std::size_t end)
    {
        Numbers numbers;
        for (std::size_t i = begin; i < end; ++i)
            numbers.push_back(m_known.try_emplace(lines[i], static_cast<int>(m_known.size())).first->second);
        return numbers;
    }

private:
    std::unordered_map<std::string_view, int> m_known;
};

/// The shortest way from one sequence to the other by removals and insertions, found by Myers' greedy search: how far
/// each diagonal gets with 0, 1, 2 ... of them. Memory and time grow with the square of that number.
class ShortestEdit {
public:
    ShortestEdit(const Numbers& left, const Numbers& right) : m_left(left), m_right(right) {}

    /// The lines that stay; nothing when more than `most` come or go.
    std::optional<Pairs> kept(int most)
    {
        m_centre = most + 1;
        m_reach.assign(static_cast<std::size_t>(2 * m_centre + 1), 0);
        for (int edits = 0; edits <= most; ++edits) {
            m_before.push_back(m_reach);
            if (advance(edits)) return goBack(edits);
        }
        return std::nullopt;
    }

private:
    int leftSize() const { return static_cast<int>(m_left.size()); }
    int rightSize() const { return static_cast<int>(m_right.size()); }
    static int reachOf(const Numbers& reach, int index) { return reach[static_cast<std::size_t>(index)]; }

    /// Whether the best way onto a diagonal inserts a line, and so comes from the next one.
    bool inserts(const Numbers& reach, int diagonal, int edits) const
    {
        const int at = m_centre + diagonal;
        return diagonal == -edits || (diagonal != edits && reachOf(reach, at - 1) < reachOf(reach, at + 1));
    }

    bool areEqual(int x, int y) const
    {
        return x < leftSize() && y < rightSize() &&
               m_left[static_cast<std::size_t>(x)] == m_right[static_cast<std::size_t>(y)];
    }

    bool advance(int edits)
    {
        for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
            const int at = m_centre + diagonal;
            int x = inserts(m_reach, diagonal, edits) ? reachOf(m_reach, at + 1) : reachOf(m_reach, at - 1) + 1;
            while (areEqual(x, x - diagonal)) ++x;
            m_reach[static_cast<std::size_t>(at)] = x;
            if (x >= leftSize() && x - diagonal >= rightSize()) return true;
        }
        return false;
    }

    Pairs goBack(int edits) const
    {
        Pairs pairs;
        int x = leftSize();
        int y = rightSize();
        for (; edits >= 0; --edits) {
            const Numbers& reach = m_before[static_cast<std::size_t>(edits)];
            const int diagonal = x - y;
            const int from = inserts(reach, diagonal, edits) ? diagonal + 1 : diagonal - 1;
            const int fromX = edits == 0 ? 0 : reachOf(reach, m_centre + from);
            const int fromY = edits == 0 ? 0 : fromX - from;
            while (x > fromX && y > fromY) pairs.emplace_back(--x, --y);
            x = fromX;
            y = fromY;
        }
        std::ranges::reverse(pairs);
        return pairs;
    }

    const Numbers& m_left;
    const Numbers& m_right;
    int m_centre = 0;              ///< index of the main diagonal
    Numbers m_reach;               ///< lines of the left text that each diagonal has got past
    std::vector<Numbers> m_before; ///< the same before each round
};

/// What lies between the lines that stay.
std::vector<LineHunk> between(const Pairs& kept, std::size_t offset, std::size_t leftEnd, std::size_t rightEnd)
{
    std::vector<LineHunk> hunks;
    std::size_t left = offset;
    std::size_t right = offset;
    const auto close = [&](std::size_t toLeft, std::size_t toRight) {
        if (left < toLeft || right < toRight) hunks.push_back({left, toLeft, right, toRight});
        left = toLeft + 1;
        right = toRight + 1;
    };
    for (const auto& [x, y] : kept) close(offset + static_cast<std::size_t>(x), offset + static_cast<std::size_t>(y));
    close(leftEnd, rightEnd);
    return hunks;
}

} // namespace

std::vector<std::string_view> linesWithEnds(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

std::vector<LineHunk> differingLines(const std::vector<std::string_view>& left,
                                     const std::vector<std::string_view>& right)
{
    constexpr int most = 800;
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t head = 0;
    while (head < shorter && left[head] == right[head]) ++head;
    std::size_t tail = 0;
    while (tail < shorter - head && left[left.size() - 1 - tail] == right[right.size() - 1 - tail]) ++tail;
    LineNumbers numbers;
    const Numbers leftNumbers = numbers.of(left, head, left.size() - tail);
    const Numbers rightNumbers = numbers.of(right, head, right.size() - tail);
    const Pairs kept = ShortestEdit(leftNumbers, rightNumbers).kept(most).value_or(Pairs{});
    return between(kept, head, left.size() - tail, right.size() - tail);
}

std::vector<LineRow> rowsSideBySide(std::size_t leftLines, std::size_t rightLines, const std::vector<LineHunk>& hunks)
{
    std::vector<LineRow> rows;
    std::size_t left = 0;
    std::size_t right = 0;
    const auto equalUpTo = [&](std::size_t end) {
        while (left < end) rows.push_back({left++, right++, std::nullopt});
    };
    for (std::size_t i = 0; i < hunks.size(); ++i) {
        equalUpTo(hunks[i].leftBegin);
        while (left < hunks[i].leftEnd || right < hunks[i].rightEnd) {
            LineRow& row = rows.emplace_back();
            row.hunk = i;
            if (left < hunks[i].leftEnd) row.left = left++;
            if (right < hunks[i].rightEnd) row.right = right++;
        }
    }
    equalUpTo(std::min(leftLines, left + (rightLines - right)));
    return rows;
}

} // namespace tarvex
