#include "generators/comment_texts.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

std::size_t blanksBefore(const std::string& text)
{
    const std::string line = centredTitleLine(text);
    EXPECT_TRUE(line.starts_with("Rem "));
    EXPECT_TRUE(line.ends_with(text));
    return line.size() - 4 - text.size();
}

TEST(CentredTitleLine, ATextOfEvenLengthHasHalfOfTheRestBeforeIt)
{
    EXPECT_EQ(centredTitleLine("by Ned"), "Rem " + std::string(23, ' ') + "by Ned");
    EXPECT_EQ(blanksBefore(""), 26U);
}

TEST(CentredTitleLine, AHalfBlankIsRoundedToTheEvenNumber)
{
    EXPECT_EQ(blanksBefore("abc"), 24U);       // of 24.5
    EXPECT_EQ(blanksBefore("abcde"), 24U);     // of 23.5
    EXPECT_EQ(blanksBefore("abcdefg"), 22U);   // of 22.5
    EXPECT_EQ(blanksBefore("abcdefghi"), 22U); // of 21.5
}

TEST(CentredTitleLine, ATextOf45CharactersIsCentred)
{
    EXPECT_EQ(blanksBefore(std::string(45, 'x')), 4U); // of 3.5
}

TEST(CentredTitleLine, ATextOf46CharactersStandsDirectlyAfterRem) { EXPECT_EQ(blanksBefore(std::string(46, 'x')), 0U); }

TEST(CentredTitleLine, ATextBeyondTheBorderIsNotCut)
{
    EXPECT_EQ(centredTitleLine(std::string(200, 'x')), "Rem " + std::string(200, 'x'));
}

TEST(HeadingRule, AHeadingOf4CharactersHas24Dashes) { EXPECT_EQ(headingRule("Harm"), "Rem " + std::string(24, '-')); }

TEST(HeadingRule, OfNoHeadingHas20Dashes) { EXPECT_EQ(headingRule(""), "Rem " + std::string(20, '-')); }

TEST(HeadingNames, Are56InTheirOrderEachOnce)
{
    const auto names = headingNames();
    ASSERT_EQ(names.size(), 56U);
    EXPECT_EQ(names.front(), "Game control");
    EXPECT_EQ(names[3], "Aircraft Control");
    EXPECT_EQ(names[28], "Lantirn");
    EXPECT_EQ(names.back(), "Wingman commands");
    EXPECT_EQ(std::set<std::string_view>(names.begin(), names.end()).size(), names.size());
}

} // namespace
} // namespace tarvex
