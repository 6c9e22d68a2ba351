#include "documents/text/match_marks.h"

#include "support/random_seed.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tarvex {
namespace {

using Positions = std::vector<std::int64_t>;

/// What Pane::Find finds, one after the other.
Positions foundOneByOne(const std::string& text, std::string_view wanted, int options)
{
    Pane pane;
    pane.setText(text);
    Positions found;
    std::int64_t at = pane.Find(wanted, 0, Pane::toEnd, options);
    while (at >= 0) {
        found.push_back(at);
        at = pane.Find(wanted, at + static_cast<std::int64_t>(wanted.size()), Pane::toEnd, options);
    }
    return found;
}

struct MatchMarksTest : testing::Test {
    Pane pane;
    MatchMarks marks{pane};
    int changes = 0;
    Connection connection = marks.changed.connect([this] { ++changes; });
};

TEST_F(MatchMarksTest, HasAllMatchesWithoutRegardToCase)
{
    pane.setText("BTN S1\r\nbtn S2 Btn\r\nBTX");
    marks.show("btn", 0);
    EXPECT_EQ(marks.positions(), (Positions{0, 8, 15}));
    marks.show("BTN", find::matchCase);
    EXPECT_EQ(marks.positions(), Positions{0});
    EXPECT_EQ(changes, 2);
}

TEST_F(MatchMarksTest, WholeWordsOnly)
{
    pane.setText("S1 S11 (S1) S1_");
    marks.show("S1", find::wholeWord);
    EXPECT_EQ(marks.positions(), (Positions{0, 8}));
    pane.userEdit(2, 1, ""); // "S1S11": not a word of its own any more
    EXPECT_EQ(marks.positions(), Positions{7});
}

TEST_F(MatchMarksTest, AnEmptyTextHasNone)
{
    pane.setText("abc");
    marks.show("b", 0);
    marks.clear();
    EXPECT_TRUE(marks.positions().empty());
    EXPECT_FALSE(marks.selected());
}

TEST_F(MatchMarksTest, KnowsWhichMatchIsSelected)
{
    pane.setText("a b a b a");
    marks.show("a", 0);
    pane.setSelStart(4);
    EXPECT_FALSE(marks.selected());
    pane.setSelLength(1);
    EXPECT_EQ(marks.selected(), 1U);
    pane.setSelStart(2);
    pane.setSelLength(1);
    EXPECT_FALSE(marks.selected());
}

TEST_F(MatchMarksTest, MovesWithTheTextAndReportsOnlyWhatCameOrWent)
{
    pane.setText("one two one");
    marks.show("one", 0);
    pane.userEdit(4, 3, "three");
    EXPECT_EQ(marks.positions(), (Positions{0, 10}));
    EXPECT_EQ(changes, 1);
    pane.userEdit(1, 1, "x");
    EXPECT_EQ(marks.positions(), Positions{10});
    EXPECT_EQ(changes, 2);
    pane.userEdit(1, 1, "n");
    EXPECT_EQ(marks.positions(), (Positions{0, 10}));
    EXPECT_EQ(changes, 3);
}

TEST_F(MatchMarksTest, AMatchThatAnotherOneCoveredComesToLightWhenThatGoes)
{
    pane.setText("ababab");
    marks.show("abab", 0);
    EXPECT_EQ(marks.positions(), Positions{0});
    pane.userEdit(0, 1, "x");
    EXPECT_EQ(marks.positions(), Positions{2});
}

TEST_F(MatchMarksTest, ATextOfTenThousandCharacters)
{
    const std::string wanted(10'000, 'x');
    pane.setText("abc " + wanted + " " + wanted);
    marks.show(wanted, 0);
    EXPECT_EQ(marks.positions(), (Positions{4, 10'005}));
    pane.userEdit(5'000, 1, "y");
    EXPECT_EQ(marks.positions(), Positions{10'005});
    marks.show(wanted + wanted + wanted, 0);
    EXPECT_TRUE(marks.positions().empty());
}

TEST(MatchMarks, AreThoseOfASearchFromTheBeginningAfterRandomEdits)
{
    std::mt19937 random(randomSeed());
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const auto word = [&](std::size_t longest) {
        std::string text;
        for (std::size_t i = below(longest + 1); i > 0; --i) text += "aaabB b"[below(7)];
        return below(12) == 0 ? text + "\r\n" : text;
    };
    for (int round = 0; round < 300; ++round) {
        Pane pane;
        MatchMarks marks(pane);
        pane.setText(word(200) + word(200));
        const std::string wanted = std::vector<std::string>{"a", "aa", "aba", "ab", "aab a", "b"}[below(6)];
        const int options = static_cast<int>(below(4)) * 2;
        marks.show(wanted, options);
        for (int edit = 0; edit < 40; ++edit) {
            pane.userEdit(static_cast<std::int64_t>(below(pane.TextLength() + 1)), static_cast<std::int64_t>(below(6)),
                          word(6));
            ASSERT_EQ(marks.positions(), foundOneByOne(pane.Text(), wanted, options))
                << "\"" << wanted << "\", " << options << " in " << pane.Text();
        }
    }
}

/// The word can't overlap itself, so a match that stays is found again at its place.
TEST(MatchMarks, ReportExactlyTheEditsAfterWhichOneCameOrWent)
{
    std::mt19937 random(randomSeed());
    const auto below = [&](std::size_t bound) { return static_cast<std::int64_t>(random() % bound); };
    for (int round = 0; round < 100; ++round) {
        Pane pane;
        MatchMarks marks(pane);
        pane.setText("ab ab b a abab x ab");
        marks.show("ab", round % 2 == 0 ? 0 : find::wholeWord);
        int changes = 0;
        const Connection changed = marks.changed.connect([&] { ++changes; });
        for (int edit = 0; edit < 30; ++edit) {
            std::string inserted;
            for (std::int64_t i = below(4); i > 0; --i) inserted += "ab x"[below(4)];
            const auto size = static_cast<std::int64_t>(pane.TextLength());
            const std::int64_t at = below(pane.TextLength() + 1);
            const std::int64_t removed = std::min(below(4), size - at);
            Positions expected;
            for (const std::int64_t match : marks.positions())
                expected.push_back(match >= at + removed ? match + static_cast<std::int64_t>(inserted.size()) - removed
                                                         : match);
            changes = 0;
            const std::string before = pane.Text();
            pane.userEdit(at, removed, inserted);
            ASSERT_EQ(changes, expected == marks.positions() ? 0 : 1)
                << "\"" << before << "\", " << removed << " at " << at << " by \"" << inserted << "\"";
        }
    }
}

} // namespace
} // namespace tarvex
