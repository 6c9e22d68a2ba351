#include "documents/files/line_differences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace tarvex {
namespace {

using Hunks = std::vector<LineHunk>;

Hunks differences(std::string_view left, std::string_view right)
{
    return differingLines(linesWithEnds(left), linesWithEnds(right));
}

/// The left text with its differing lines replaced by those of the right one.
std::string patched(std::string_view left, std::string_view right)
{
    const auto old = linesWithEnds(left);
    const auto now = linesWithEnds(right);
    std::string text;
    std::size_t line = 0;
    for (const LineHunk& hunk : differingLines(old, now)) {
        for (; line < hunk.leftBegin; ++line) text += old[line];
        for (std::size_t i = hunk.rightBegin; i < hunk.rightEnd; ++i) text += now[i];
        line = hunk.leftEnd;
    }
    for (; line < old.size(); ++line) text += old[line];
    return text;
}

TEST(LinesWithEnds, JoinToTheText)
{
    EXPECT_EQ(linesWithEnds("a\r\n\r\nb"), (std::vector<std::string_view>{"a\r\n", "\r\n", "b"}));
    EXPECT_EQ(linesWithEnds("a\r\n"), (std::vector<std::string_view>{"a\r\n"}));
    EXPECT_TRUE(linesWithEnds("").empty());
}

TEST(DifferingLines, EqualTextsHaveNone)
{
    EXPECT_TRUE(differences("a\nb\n", "a\nb\n").empty());
    EXPECT_TRUE(differences("", "").empty());
}

TEST(DifferingLines, AChangedLineIsOne) { EXPECT_EQ(differences("a\nb\nc\n", "a\nX\nc\n"), (Hunks{{1, 2, 1, 2}})); }

TEST(DifferingLines, LinesThatCameOrWentAreRangesBesideAnEmptyOne)
{
    EXPECT_EQ(differences("a\nc\n", "a\nb\nc\n"), (Hunks{{1, 1, 1, 2}}));
    EXPECT_EQ(differences("a\nb\nc\n", "a\nc\n"), (Hunks{{1, 2, 1, 1}}));
    EXPECT_EQ(differences("", "a\n"), (Hunks{{0, 0, 0, 1}}));
    EXPECT_EQ(differences("a\n", ""), (Hunks{{0, 1, 0, 0}}));
}

TEST(DifferingLines, EqualLinesBetweenDifferencesPartThem)
{
    EXPECT_EQ(differences("1\n2\n3\n4\n5\n", "1\nX\n3\n4\nY\nZ\n"), (Hunks{{1, 2, 1, 2}, {4, 5, 4, 6}}));
}

TEST(DifferingLines, ALastLineWithoutItsEndDiffers) { EXPECT_EQ(differences("a\nb\n", "a\nb"), (Hunks{{1, 2, 1, 2}})); }

TEST(DifferingLines, TextsWithLittleInCommonDifferInOnePiece)
{
    std::string left = "same\n";
    std::string right = "same\n";
    for (int i = 0; i < 5000; ++i) {
        left += "left " + std::to_string(i) + "\nshared\n";
        right += "right " + std::to_string(i) + "\nshared\n";
    }
    EXPECT_EQ(differences(left, right).size(), 1U);
    EXPECT_EQ(patched(left, right), right);
}

TEST(DifferingLines, MakeTheOneTextTheOtherWhateverTheyHold)
{
    std::mt19937 random(1);
    const auto text = [&] {
        std::string lines;
        for (auto count = random() % 12; count > 0; --count) lines += std::string(1, "abc"[random() % 3]) + "\n";
        if (random() % 4 == 0) lines += "end";
        return lines;
    };
    for (int round = 0; round < 3000; ++round) {
        const std::string left = text();
        const std::string right = text();
        ASSERT_EQ(patched(left, right), right) << left << "---\n" << right;
        for (const LineHunk& hunk : differences(left, right))
            ASSERT_TRUE(hunk.leftBegin < hunk.leftEnd || hunk.rightBegin < hunk.rightEnd);
    }
}

/// Lines that two texts have in common, in their order: as many as there can be.
std::size_t mostInCommon(const std::vector<std::string_view>& left, const std::vector<std::string_view>& right)
{
    std::vector<std::vector<std::size_t>> best(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
    for (std::size_t i = 0; i < left.size(); ++i) {
        for (std::size_t j = 0; j < right.size(); ++j)
            best[i + 1][j + 1] = left[i] == right[j] ? best[i][j] + 1 : std::max(best[i][j + 1], best[i + 1][j]);
    }
    return best[left.size()][right.size()];
}

TEST(DifferingLines, AreAsFewAsPossible)
{
    std::mt19937 random(2);
    const auto text = [&] {
        std::string lines;
        for (auto count = random() % 30; count > 0; --count) lines += std::string(1, "abcd"[random() % 4]) + "\n";
        return lines;
    };
    for (int round = 0; round < 2000; ++round) {
        const std::string left = text();
        const std::string right = text();
        const auto old = linesWithEnds(left);
        const auto now = linesWithEnds(right);
        std::size_t differing = 0;
        for (const LineHunk& hunk : differingLines(old, now))
            differing += hunk.leftEnd - hunk.leftBegin + hunk.rightEnd - hunk.rightBegin;
        ASSERT_EQ(differing, old.size() + now.size() - 2 * mostInCommon(old, now)) << left << "---\n" << right;
    }
}

TEST(DifferingLines, UpTo800AreFoundOneByOneAndMoreAreOnePiece)
{
    std::string left;
    std::string right;
    for (int i = 0; i < 400; ++i) {
        const std::string number = std::to_string(i) + "\n";
        left += "left " + number + "shared " + number;
        right += "right " + number + "shared " + number;
    }
    EXPECT_EQ(differences(left, right).size(), 400U);
    EXPECT_EQ(differences("one more\n" + left, right), (Hunks{{0, 800, 0, 799}}));
}

TEST(RowsSideBySide, HaveEachLineOfBothTextsOnce)
{
    EXPECT_TRUE(rowsSideBySide(0, 0, {}).empty());
    const std::vector<LineRow> added{{{}, 0, 0}, {0, 1, {}}, {{}, 2, 1}};
    EXPECT_EQ(rowsSideBySide(1, 3, {{0, 0, 0, 1}, {1, 1, 2, 3}}), added);
    const std::vector<LineRow> equal{{0, 0, {}}, {1, 1, {}}};
    EXPECT_EQ(rowsSideBySide(2, 2, {}), equal);
}

TEST(RowsSideBySide, PairChangedLinesAndLeaveGapsBesideOthers)
{
    const auto rows = rowsSideBySide(4, 3, {{1, 3, 1, 2}});
    const std::vector<LineRow> expected{{0, 0, {}}, {1, 1, 0}, {2, {}, 0}, {3, 2, {}}};
    EXPECT_EQ(rows, expected);
}

} // namespace
} // namespace tarvex
