#include "documents/text/rtf/rtf_code_pages.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::string decode(std::string_view bytes, RtfCodePage page) { return RtfDecoder().decode(bytes, page); }

std::string upperHalf()
{
    std::string bytes;
    for (int i = 0x80; i < 0x100; ++i) bytes += static_cast<char>(i);
    return bytes;
}

} // namespace

TEST(RtfDecoder, LettersOfBothPagesKeepTheirMeaning)
{
    EXPECT_EQ(decode("\x81\x84\xE1\xFF", 437), "\xFC\xE4\xDF\xA0");
    EXPECT_EQ(decode("\x9B\x9D\xB5\xE1\xEF\xFF", 850), "\xF8\xD8\xC1\xDF\xB4\xA0");
    EXPECT_EQ(decode("\x80\xE9\xFD", 1250), "\x80\xE9\xFD");
    EXPECT_EQ(decode("\x88\xAB\xBB", 1251), "\x80\xAB\xBB");
    EXPECT_EQ(decode("\x80\xA2\xBD", 1253), "\x80?\xBD");
    EXPECT_EQ(decode("\xC7\xD6\xFC", 1254), "\xC7\xD6\xFC");
    EXPECT_EQ(decode("\xAA\xBA", 1255), "\xD7\xF7");
    EXPECT_EQ(decode("\xE0\xE9", 1256), "\xE0\xE9");
    EXPECT_EQ(decode("\xA8\xAF\xD0\xDE\xFE", 1257), "\xD8\xC6\x8A\x8E\x9E");
    EXPECT_EQ(decode("\xC0\xD6", 1258), "\xC0\xD6");
    EXPECT_EQ(decode("\x80\x85\x91\xA0", 874), "\x80\x85\x91\xA0");
    EXPECT_EQ(decode("\x80\x8E\xA5\xCA\xD2\xDB\xF5\xF8", 10000), "\xC4\xE9\x95\xA0\x93\x80?\xAF");
}

TEST(RtfDecoder, CharactersThatWindows1252LacksBecomeQuestionMarks)
{
    EXPECT_EQ(decode("\xCF\xF0\xE8", 1251), "???");
    EXPECT_EQ(decode("\xC1\xE1", 1253), "??");
    EXPECT_EQ(decode("\x8C\xC8\xF8", 1250), "???");
    EXPECT_EQ(decode("\xD0\xFD", 1254), "??");
    EXPECT_EQ(decode("\xB0\xDB", 437), "??");
    EXPECT_EQ(decode("\xE0\xFA", 1255), "??");
}

TEST(RtfDecoder, AsciiStaysInEveryPage)
{
    for (const RtfCodePage page : {437, 850, 874, 932, 936, 949, 950, 1250, 1251, 1252, 1361, 10000})
        EXPECT_EQ(decode("BTN S1 ~\\?", page), "BTN S1 ~\\?") << page;
}

TEST(RtfDecoder, OwnAndUnknownPagesLeaveTheBytes)
{
    for (const RtfCodePage page : {0, 1252, 65001, -1}) EXPECT_EQ(decode(upperHalf(), page), upperHalf()) << page;
}

TEST(RtfDecoder, CharacterOfTwoBytesBecomesOneQuestionMark)
{
    EXPECT_EQ(decode("a\x93\xFA\x96{b", 932), "a??b");
    EXPECT_EQ(decode("\xB1\xB2\x93\xFA", 932), "???"); // two of one byte, one of two
    EXPECT_EQ(decode("\xC4\xE3x", 936), "?x");
    EXPECT_EQ(decode("\xB0\xA1x", 949), "?x");
    EXPECT_EQ(decode("\xA7\x41x", 950), "?x");
    EXPECT_EQ(decode("\x80x", 936), "?x");
}

TEST(RtfDecoder, CharacterOfTwoBytesMayComeInTwoPieces)
{
    RtfDecoder decoder;
    EXPECT_EQ(decoder.decode("\x93", 932), "?");
    EXPECT_EQ(decoder.decode("\xFAx", 932), "x");
    EXPECT_EQ(decoder.decode("\x93", 932), "?");
    decoder.interrupt();
    EXPECT_EQ(decoder.decode("Ax", 932), "Ax");
}

TEST(RtfDecoder, OnlyFirstBytesOfAPairTakeTheNextOneWithThem)
{
    for (const RtfCodePage page : {932, 936, 949, 950, 1361}) {
        EXPECT_EQ(decode("\x80x", page), "?x") << page;
        EXPECT_EQ(decode("\x81xy", page), "?y") << page;
        EXPECT_EQ(decode("\xFExy", page), "?y") << page;
        EXPECT_EQ(decode("\xFFx", page), "?x") << page;
        EXPECT_EQ(decode("\x7Fx", page), "\x7Fx") << page;
    }
    EXPECT_EQ(decode("\x9Fxy", 932), "?y");
    EXPECT_EQ(decode("\xA0x", 932), "?x") << "half as wide, of one byte";
    EXPECT_EQ(decode("\xDFx", 932), "?x");
    EXPECT_EQ(decode("\xE0xy", 932), "?y");
    EXPECT_EQ(decode("\xA0xy", 936), "?y");
    EXPECT_EQ(decode("\xDFxy", 949), "?y");
}

TEST(CodePageOfCharset, CharsetsBesideThoseWithAPageAreOfTheFile)
{
    for (const int charset : {-1,  1,   3,   76,  78,  127, 131, 133, 135, 137, 160, 164,
                              176, 179, 185, 187, 203, 205, 221, 223, 237, 239, 253, 256})
        EXPECT_EQ(codePageOfCharset(charset), rtfCodePage::ofFile) << charset;
}

TEST(CodePageOfCharset, CharsetsHaveTheirPages)
{
    EXPECT_EQ(codePageOfCharset(129), 949);
    EXPECT_EQ(codePageOfCharset(130), 1361);
    EXPECT_EQ(codePageOfCharset(134), 936);
    EXPECT_EQ(codePageOfCharset(136), 950);
    EXPECT_EQ(codePageOfCharset(163), 1258);
    EXPECT_EQ(codePageOfCharset(177), 1255);
    EXPECT_EQ(codePageOfCharset(178), 1256);
    EXPECT_EQ(codePageOfCharset(222), 874);
    EXPECT_EQ(codePageOfCharset(0), 1252);
    EXPECT_EQ(codePageOfCharset(1), rtfCodePage::ofFile);
    EXPECT_EQ(codePageOfCharset(2), 1252);
    EXPECT_EQ(codePageOfCharset(77), 10000);
    EXPECT_EQ(codePageOfCharset(128), 932);
    EXPECT_EQ(codePageOfCharset(161), 1253);
    EXPECT_EQ(codePageOfCharset(162), 1254);
    EXPECT_EQ(codePageOfCharset(186), 1257);
    EXPECT_EQ(codePageOfCharset(204), 1251);
    EXPECT_EQ(codePageOfCharset(238), 1250);
    EXPECT_EQ(codePageOfCharset(254), 437);
    EXPECT_EQ(codePageOfCharset(255), 850);
    EXPECT_EQ(codePageOfCharset(99), rtfCodePage::ofFile);
}

} // namespace tarvex
