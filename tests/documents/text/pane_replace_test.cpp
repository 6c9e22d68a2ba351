#include "documents/text/pane.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvex {
namespace {

bool always(std::int64_t) { return true; }

/// The same by turns, as the contract has it.
Pane::Replaced inTurn(Pane& pane, std::string_view text, std::string_view replacement, std::int64_t start, int options,
                      const std::function<bool(std::int64_t)>& mayReplace)
{
    Pane::Replaced result{.count = 0, .found = -1, .caret = start};
    while ((result.found = pane.Find(text, result.caret, Pane::toEnd, options)) >= 0 && mayReplace(result.found)) {
        pane.setSelText(replacement);
        result.caret = pane.SelStart();
        ++result.count;
    }
    return result;
}

TEST(ReplaceEach, WritesOneEditAndOneChange)
{
    Pane pane;
    pane.setText("ab cd ab cd ab");
    int changes = 0;
    std::vector<Pane::Edit> edits;
    pane.Change = [&] { ++changes; };
    const auto listening = pane.edited.connect([&](const Pane::Edit& edit) { edits.push_back(edit); });
    const Pane::Replaced replaced = pane.replaceEach("ab", "xyz", 1, 0, always);
    EXPECT_EQ(pane.Text(), "ab cd xyz cd xyz");
    EXPECT_EQ(replaced.count, 2);
    EXPECT_EQ(replaced.found, -1);
    EXPECT_EQ(replaced.caret, 16);
    EXPECT_EQ(pane.SelStart(), 16);
    EXPECT_EQ(changes, 1);
    ASSERT_EQ(edits.size(), 1U);
    EXPECT_EQ(edits[0].position, 6);
    EXPECT_EQ(edits[0].removed, 8);
    EXPECT_EQ(edits[0].inserted, 10);
}

TEST(ReplaceEach, WithoutAMatchLeavesTextAndSelectionAlone)
{
    Pane pane;
    pane.setText("abab");
    pane.setSelStart(1);
    pane.setSelLength(2);
    pane.Change = [] { ADD_FAILURE(); };
    EXPECT_EQ(pane.replaceEach("x", "y", 0, 0, always).count, 0);
    EXPECT_EQ(pane.replaceEach("", "y", 0, 0, always).count, 0);
    EXPECT_EQ(pane.replaceEach("ab", "y", 99, 0, always).count, 0);
    EXPECT_EQ(pane.SelStart(), 1);
    EXPECT_EQ(pane.SelLength(), 2);
}

TEST(ReplaceEach, EndsAtTheFirstMatchThatMayNotBeReplacedAndReturnsItsPositionThen)
{
    Pane pane;
    pane.setText("a a a a");
    const Pane::Replaced replaced =
        pane.replaceEach("a", "xx", 0, 0, [](std::int64_t position) { return position != 6; });
    EXPECT_EQ(pane.Text(), "xx xx a a");
    EXPECT_EQ(replaced.count, 2);
    EXPECT_EQ(replaced.found, 6);
    EXPECT_EQ(replaced.caret, 5);
}

TEST(ReplaceEach, TextsThatWouldPartALineEndHaveNoMatch)
{
    Pane pane;
    pane.setText("a\r\nb\r\nc");
    EXPECT_EQ(pane.replaceEach("\r", "x", 0, 0, always).count, 0);
    EXPECT_EQ(pane.replaceEach("\nb", "x", 0, 0, always).count, 0);
    EXPECT_EQ(pane.replaceEach("\r\n", "; ", 0, 0, always).count, 2);
    EXPECT_EQ(pane.Text(), "a; b; c");
    EXPECT_EQ(pane.lineCount(), 1);
}

TEST(ReplaceEach, AWordThatAReplacementEndsBesideIsntWholeAnyMore)
{
    Pane pane;
    pane.setText("-a");
    EXPECT_EQ(pane.replaceEach("-", "x", 0, 0, always).count, 1);
    pane.setText("--ab");
    const auto replaced = pane.replaceEach("-", "x", 0, find::wholeWord, always);
    Pane other;
    other.setText("--ab");
    EXPECT_EQ(inTurn(other, "-", "x", 0, find::wholeWord, always).count, replaced.count);
    EXPECT_EQ(pane.Text(), other.Text());
}

TEST(ReplaceEach, AMatchBehindAReplacementIsWholeOrNotByWhatStandsThereNow)
{
    const auto replaced = [](std::string_view text, std::string_view replacement) {
        Pane pane;
        pane.setText(text);
        pane.replaceEach("a-", replacement, 0, find::wholeWord, always);
        return pane.Text();
    };
    EXPECT_EQ(replaced("a-a-", "x"), "xa-") << "the second stands behind a letter now";
    EXPECT_EQ(replaced("a-a-", "+"), "++");
    EXPECT_EQ(replaced(" a-a-", ""), " ");
    EXPECT_EQ(replaced("b a-a-", "x"), "b xa-");
    EXPECT_EQ(replaced("a- a-", "x"), "x x");
}

/// A text of few characters, so that matches meet, with runs of colour.
void fillRandom(Pane& pane, Pane& twin, std::mt19937& chance)
{
    constexpr const char* pieces[] = {"a", "A", "b", "-", " ", "aa", "\r\n"};
    std::string text;
    for (int i = 0; i < 40; ++i) text += pieces[chance() % std::size(pieces)];
    for (Pane* each : {&pane, &twin}) each->setText(text);
    for (int i = 0; i < 6; ++i) {
        const auto start = static_cast<std::int64_t>(chance() % text.size());
        const auto length = static_cast<std::int64_t>(chance() % 9);
        for (Pane* each : {&pane, &twin}) {
            each->setSelStart(start);
            each->setSelLength(length);
            each->setSelColor(static_cast<Colour>(i + 1));
        }
    }
}

TEST(ReplaceEach, IsTheSameAsFindAndSetSelTextByTurns)
{
    constexpr const char* sought[] = {"a", "ab", "aa", "-", "a-", "-a", "a-a", "b\r\na", "A", " "};
    constexpr const char* replacements[] = {"", "a", "xx", "-", "a\r\nb", "aab"};
    std::mt19937 chance(7);
    int replacedInAll = 0;
    for (int round = 0; round < 3'000; ++round) {
        const auto formats = std::make_shared<FormatTable>();
        Pane pane(formats);
        Pane twin(formats);
        fillRandom(pane, twin, chance);
        const std::string text = sought[chance() % std::size(sought)];
        const std::string replacement = replacements[chance() % std::size(replacements)];
        const int options = static_cast<int>(chance() % 4) * 2;
        const auto start = static_cast<std::int64_t>(chance() % 5);
        const auto refused = static_cast<std::int64_t>(chance() % 200);
        const auto mayReplace = [refused](std::int64_t position) { return position != refused; };
        const Pane::Replaced whole = pane.replaceEach(text, replacement, start, options, mayReplace);
        const Pane::Replaced turns = inTurn(twin, text, replacement, start, options, mayReplace);
        ASSERT_EQ(pane.Text(), twin.Text()) << "round " << round;
        ASSERT_EQ(pane.TextRTF(), twin.TextRTF()) << "round " << round;
        ASSERT_EQ(whole.count, turns.count) << "round " << round;
        ASSERT_EQ(whole.found, turns.found) << "round " << round;
        ASSERT_EQ(whole.caret, turns.caret) << "round " << round;
        for (std::int64_t line = 0; line < twin.lineCount(); ++line)
            ASSERT_EQ(pane.lineStart(line), twin.lineStart(line));
        ASSERT_EQ(pane.Find("B", 0), twin.Find("B", 0)) << "the copy that is searched";
        replacedInAll += static_cast<int>(whole.count);
    }
    EXPECT_GT(replacedInAll, 3'000);
}

} // namespace
} // namespace tarvex
