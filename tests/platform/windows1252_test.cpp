#include "platform/windows1252.h"

#include <gtest/gtest.h>

namespace tarvex {

namespace {

std::string everyByte()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

} // namespace

TEST(Windows1252, EveryByteSurvivesTheWayToUtf8AndBack)
{
    const std::string utf8 = utf8FromWindows1252(everyByte());
    EXPECT_TRUE(isValidUtf8(utf8));
    EXPECT_EQ(utf8Length(utf8), 256U);
    EXPECT_EQ(windows1252FromUtf8(utf8), everyByte());
}

TEST(Windows1252, OpenBytesStandForTheControlCharactersOfTheirNumber)
{
    for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
        EXPECT_EQ(windows1252ToUnicode[static_cast<std::size_t>(byte)], byte);
        EXPECT_EQ(windows1252FromUnicode(static_cast<char32_t>(byte)), byte);
    }
}

TEST(Windows1252FromUnicode, CodePointWithoutByteGivesMinusOne)
{
    EXPECT_EQ(windows1252FromUnicode(0x20AC), 0x80);
    for (const char32_t letter : {0x80, 0x9F}) EXPECT_EQ(windows1252FromUnicode(letter), -1);
    EXPECT_EQ(windows1252FromUnicode(0xA0), 0xA0);
    EXPECT_EQ(windows1252FromUnicode(0x100), -1);
    EXPECT_EQ(windows1252FromUnicode(0x1F600), -1);
}

TEST(Windows1252FromUtf8, CharactersOutsideTheCodePageBecomeQuestionMarks)
{
    EXPECT_EQ(windows1252FromUtf8("a\u0416b\U0001F600c\u20AC"), "a?b?c\x80");
}

TEST(Windows1252FromUtf8, MalformedBytesBecomeQuestionMarksAndTheRestStays)
{
    EXPECT_EQ(windows1252FromUtf8("a\xFF"
                                  "b\xC3"),
              "a?b?");
}

TEST(IsValidUtf8, BoundsOfEachLengthAreKept)
{
    EXPECT_TRUE(isValidUtf8(""));
    EXPECT_TRUE(isValidUtf8("\x7F"));
    EXPECT_TRUE(isValidUtf8("\xC2\x80\xDF\xBF"));
    EXPECT_TRUE(isValidUtf8("\xE0\xA0\x80\xEF\xBF\xBF"));
    EXPECT_TRUE(isValidUtf8("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"));
}

TEST(IsValidUtf8, OverlongSurrogateCutAndTooLargeFormsAreRefused)
{
    for (const char* text : {"\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
                             "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xFF"}) {
        EXPECT_FALSE(isValidUtf8(text)) << testing::PrintToString(text);
    }
    EXPECT_TRUE(isValidUtf8("\xED\x9F\xBF\xEE\x80\x80")) << "the neighbours of the surrogates";
}

TEST(Utf8Left, CountsCharactersNotBytes)
{
    EXPECT_EQ(utf8Left("\u00E9\u20ACx", 0), "");
    EXPECT_EQ(utf8Left("\u00E9\u20ACx", 2), "\u00E9\u20AC");
    EXPECT_EQ(utf8Left("\u00E9\u20ACx", 3), "\u00E9\u20ACx");
    EXPECT_EQ(utf8Left("\u00E9\u20ACx", 4), "\u00E9\u20ACx");
    EXPECT_EQ(utf8Length("\u00E9\u20ACx"), 3U);
}

TEST(LowerWindows1252, LettersWithAccentsFoldAndSignsStay)
{
    EXPECT_EQ(lowerWindows1252("AZ@[ \xC0\xD6\xD7\xD8\xDE\xDF\x8A\x8C\x8E\x9F"),
              "az@[ \xE0\xF6\xD7\xF8\xFE\xDF\x9A\x9C\x9E\xFF");
}

TEST(UpperWindows1252, IsTheReverseOfLower)
{
    EXPECT_EQ(upperWindows1252("az`{ \xE0\xF6\xF7\xF8\xFE\xDF\x9A\x9C\x9E\xFF"),
              "AZ`{ \xC0\xD6\xF7\xD8\xDE\xDF\x8A\x8C\x8E\x9F");
    for (const char c : everyByte()) {
        const std::string byte(1, c);
        EXPECT_EQ(lowerWindows1252(upperWindows1252(byte)), lowerWindows1252(byte));
    }
}

TEST(IsWord, LettersDigitsAndUnderscoreOnly)
{
    for (const unsigned char c : std::string_view("azAZ09_\xC0\xFF\xDF\x8A\x9F\x83\xAA\xB5\xBA")) {
        EXPECT_TRUE(windows1252IsWord[c]) << int(c);
    }
    for (const unsigned char c : std::string_view("/:@[`{ -(\xD7\xF7\x80\xA0\r\n")) {
        EXPECT_FALSE(windows1252IsWord[c]) << int(c);
    }
}

TEST(LowerUtf8, LettersOutsideTheCodePageAndMalformedBytesStay)
{
    EXPECT_EQ(lowerUtf8("AB\u00C4\u0178\u0160"), "ab\u00E4\u00FF\u0161");
    EXPECT_EQ(lowerUtf8("\u0416\U0001F600\u0100"), "\u0416\U0001F600\u0100");
    EXPECT_EQ(lowerUtf8("A\xC4"
                        "B"),
              "a\xC4"
              "b");
}

} // namespace tarvex
