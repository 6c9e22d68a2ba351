#include "platform/utf16.h"

#include "platform/windows1252.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

using namespace std::string_literals;
using enum Utf16Order;

} // namespace

TEST(Utf16OrderOf, MarkAtTheStartDecidesIt)
{
    EXPECT_EQ(utf16OrderOf("\xFF\xFE"), LittleEndian);
    EXPECT_EQ(utf16OrderOf("\xFE\xFF\0["s), BigEndian);
    EXPECT_EQ(utf16OrderOf(""), std::nullopt);
    EXPECT_EQ(utf16OrderOf("\xFF"), std::nullopt);
    EXPECT_EQ(utf16OrderOf("[\0"s), std::nullopt);
    EXPECT_EQ(utf16OrderOf("\xEF\xBB\xBF"), std::nullopt);
}

TEST(Utf8FromUtf16, UnitsAndPairsBecomeCharacters)
{
    EXPECT_EQ(utf8FromUtf16("\xFF\xFE"
                            "A\0\xE9\0\xAC\x20"s,
                            LittleEndian),
              "\xEF\xBB\xBF"
              "A\u00E9\u20AC");
    EXPECT_EQ(utf8FromUtf16("\xFE\xFF\0A\0\xE9\x20\xAC"s, BigEndian), "\xEF\xBB\xBF"
                                                                      "A\u00E9\u20AC");
    EXPECT_EQ(utf8FromUtf16("\x3D\xD8\x00\xDE"s, LittleEndian), "\U0001F600");
    EXPECT_EQ(utf8FromUtf16("\xD8\x00\xDC\x00\xDB\xFF\xDF\xFF"s, BigEndian), "\U00010000\U0010FFFF");
}

TEST(Utf8FromUtf16, OddByteAtTheEndIsLeftOut)
{
    EXPECT_EQ(utf8FromUtf16("A\0B"s, LittleEndian), "A");
    EXPECT_EQ(utf8FromUtf16("A", LittleEndian), "");
}

TEST(Utf16FromUtf8, EveryUnitComesBackHalfPairsToo)
{
    for (const Utf16Order order : {LittleEndian, BigEndian}) {
        std::string bytes;
        for (int unit = 0xFFFF; unit >= 0; --unit) { // downwards, so that no two halves make a pair
            const auto low = static_cast<char>(unit & 0xFF);
            const auto high = static_cast<char>(unit >> 8);
            bytes += order == LittleEndian ? std::string{low, high} : std::string{high, low};
        }
        const std::string pair = bytes.substr(2 * (0xFFFF - 0xD800), 2) + bytes.substr(2 * (0xFFFF - 0xDC00), 2);
        bytes += pair + pair;
        EXPECT_TRUE(utf16FromUtf8(utf8FromUtf16(bytes, order), order) == bytes);
    }
}

TEST(Utf16FromUtf8, OtherBytesBecomeTheReplacementCharacter)
{
    EXPECT_EQ(utf16FromUtf8("\xE9x", BigEndian), "\xFF\xFD\0x"s);
    EXPECT_EQ(utf16FromUtf8("\xED\xA0", BigEndian), "\xFF\xFD\xFF\xFD");
}

TEST(Utf8FromUtf16, WholeCharactersGiveValidUtf8AndHalfPairsDoNot)
{
    EXPECT_TRUE(isValidUtf8(utf8FromUtf16("\x3D\xD8\x00\xDE"s, LittleEndian)));
    EXPECT_FALSE(isValidUtf8(utf8FromUtf16("\x3D\xD8"s, LittleEndian)));
}

TEST(TextOfFile, Utf16IsDecodedWithoutItsMark)
{
    EXPECT_EQ(textOfFile("\xFF\xFE"
                         "B\0\xE9\0\xAC\x20"s),
              "B\xE9\x80");
    EXPECT_EQ(textOfFile("\xFE\xFF\0B\0\xE9"s), "B\xE9");
    EXPECT_EQ(textOfFile("\xFF\xFE"), "");
}

TEST(TextOfFile, AnyOtherFileIsItsText)
{
    for (const std::string& bytes : {""s, "\xFF"s,
                                     "\xEF\xBB\xBF"
                                     "a"s,
                                     "a\0b"s, "x\xFF\xFE"s}) {
        EXPECT_EQ(textOfFile(bytes), bytes);
        EXPECT_EQ(charactersLostFromFile(bytes), 0U);
    }
}

TEST(TextOfFile, CharactersThatTheCodePageLacksAreQuestionMarksAndCounted)
{
    const std::string bytes = "\xFF\xFE"
                              "?\0\x16\x04\x17\x04"s;
    EXPECT_EQ(textOfFile(bytes), "???");
    EXPECT_EQ(charactersLostFromFile(bytes), 2U);
}

} // namespace tarvex
