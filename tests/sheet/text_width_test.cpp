#include "sheet/text_width.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvex {
namespace {

std::string printableLetters()
{
    std::string letters;
    for (char letter = ' '; letter <= '~'; ++letter) letters += letter;
    return letters;
}

TEST(TextWidth, OfAllPrintableLettersIsThatOfHelvetica)
{
    EXPECT_EQ(textWidth(printableLetters(), 1000, false), 50058);
    EXPECT_EQ(textWidth(printableLetters(), 1000, true), 52367);
}

TEST(TextWidth, OfALetterIsThatOfItsFont)
{
    EXPECT_EQ(textWidth(" ", 1000, false), 278);
    EXPECT_EQ(textWidth("~", 1000, false), 584);
    EXPECT_EQ(textWidth("A", 1000, false), 667);
    EXPECT_EQ(textWidth("A", 1000, true), 722);
    EXPECT_EQ(textWidth("i", 1000, false), 222);
    EXPECT_EQ(textWidth("i", 1000, true), 278);
    EXPECT_EQ(textWidth("@", 1000, true), 975);
    EXPECT_EQ(textWidth("", 1000, false), 0);
}

TEST(TextWidth, GrowsWithTheSize)
{
    EXPECT_DOUBLE_EQ(textWidth("AA", 10, false), 13.34);
    EXPECT_DOUBLE_EQ(textWidth("AA", 5, false), 6.67);
}

TEST(TextWidth, OfLettersBeyondAsciiIsOneForEach)
{
    for (const char* letter : {"\x1F", "\x7F", "\u00E9", "\u0416", "\u20AC", "\U0001F600"}) {
        EXPECT_EQ(textWidth(letter, 1000, false), 611) << letter;
        EXPECT_EQ(textWidth(letter, 1000, true), 611) << letter;
    }
    EXPECT_EQ(textWidth("\u2026", 1000, false), 1000) << "the dots of a text that is cut";
    EXPECT_EQ(textWidth("\u2025\u2027", 1000, false), 2 * 611);
}

TEST(TextWidth, OfALetterThatIsCutIsThatOfOne)
{
    for (const char* cut : {"\xC3", "\xE2\x82", "\xF0\x9F\x98"}) EXPECT_EQ(textWidth(cut, 1000, false), 611);
}

} // namespace
} // namespace tarvex
