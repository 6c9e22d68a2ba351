#include "documents/text/pane.h"
#include "documents/text/rtf/rtf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace tarvex {
namespace {

using testing::HasSubstr;

CharacterFormat format(Colour colour, const std::string& font = "Arial", float size = 10)
{
    CharacterFormat format;
    format.colour = colour;
    format.fontName = font;
    format.fontSize = size;
    return format;
}

/// A text whose characters have the formats in turn.
RichText textIn(std::string_view text, const std::vector<CharacterFormat>& formats)
{
    const auto table = std::make_shared<FormatTable>();
    std::vector<FormatRun> runs;
    for (std::size_t i = 0; i < text.size(); ++i) appendRun(runs, 1, table->idOf(formats[i % formats.size()]));
    return RichText(table, text, runs);
}

RichText thereAndBack(const RichText& text) { return readRtf(writeRtf(text), std::make_shared<FormatTable>()); }

} // namespace

TEST(WriteRtf, NamesFontsAndColoursOnceInItsTables)
{
    const std::string rtf = writeRtf(textIn("abab", {format(255), format(0xFF0000, "Courier New")}));
    EXPECT_TRUE(looksLikeRtf(rtf));
    EXPECT_THAT(rtf, HasSubstr("{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\fnil Courier New;}}"));
    EXPECT_THAT(rtf, HasSubstr("{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}"));
}

TEST(WriteRtf, TextBeginsInThePlainLookWhateverStoodBefore)
{
    const std::string rtf = writeRtf(textIn("one", {format(0)}));
    EXPECT_THAT(rtf, HasSubstr("}\r\n\\pard\\plain\\uc1\\f0\\fs20 one"));
    const RichText pasted = readRtf("{\\rtf1\\b\\i\\ul\\fs60\\li99 " + rtf + "}", std::make_shared<FormatTable>());
    EXPECT_EQ(pasted.text(), "one");
    EXPECT_EQ((*pasted.formats())[pasted.runs().front().format], format(0));
}

TEST(WriteRtf, SaysOfEachCharacterWhatDiffersFromTheOneBefore)
{
    CharacterFormat rich = format(0x030201, "Courier New", 8.5F);
    rich.bold = true;
    rich.italic = true;
    rich.underline = true;
    rich.indent = 20;
    EXPECT_EQ(writeRtf(textIn("a1a", {format(0), rich})),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\fnil Courier New;}}\r\n"
              "{\\colortbl ;\\red1\\green2\\blue3;}\r\n"
              "\\pard\\plain\\uc1\\f0\\fs20 a\\li20\\f1\\fs17\\b\\i\\ul\\cf1 1"
              "\\li0\\f0\\fs20\\b0\\i0\\ul0\\cf0 a\\par\r\n}\r\n");
}

TEST(WriteRtf, AnEmptyTextHasTheUsualFontAndNoColour)
{
    EXPECT_EQ(writeRtf(RichText()), "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil Arial;}}\r\n"
                                    "{\\colortbl ;}\r\n\\pard\\plain\\uc1\\par\r\n}\r\n");
}

TEST(WriteRtf, ABlankStandsBehindAWordOnlyBeforeACharacter)
{
    EXPECT_THAT(writeRtf(textIn("\t a\t{b", {format(0)})), HasSubstr("\\fs20\\tab  a\\tab\\{b\\par"));
    EXPECT_THAT(writeRtf(textIn("\xE9x", {format(0)})), HasSubstr("\\fs20\\'e9x\\par"));
    EXPECT_THAT(writeRtf(textIn("\r\nx", {format(0)})), HasSubstr("\\fs20\\par\r\nx\\par"));
}

TEST(WriteRtf, EachLineIsAParagraph)
{
    const std::string rtf = writeRtf(textIn("one\r\ntwo", {format(0)}));
    EXPECT_THAT(rtf, HasSubstr(" one\\par\r\ntwo\\par\r\n}"));
}

TEST(WriteRtf, BytesThatOthersCouldMistakeAreEscaped)
{
    const std::string rtf = writeRtf(textIn("a\\{}\t\xE9z", {format(0)}));
    EXPECT_THAT(rtf, HasSubstr(" a\\\\\\{\\}\\tab\\'e9z\\par"));
}

TEST(WriteRtf, IsSevenBitForEveryByte)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    for (const char c : writeRtf(textIn(bytes, {format(0, "\xC9\n;")}))) {
        const auto byte = static_cast<unsigned char>(c);
        ASSERT_TRUE((byte >= ' ' && byte < 127) || byte == '\r' || byte == '\n') << int{byte};
    }
}

TEST(WriteRtf, IndentIsOfTheParagraph)
{
    CharacterFormat indented = format(0);
    indented.indent = 20;
    EXPECT_THAT(writeRtf(textIn("a", {indented})), HasSubstr("\\li20"));
}

TEST(WriteRtfReadRtf, EmptyTextStaysEmpty)
{
    EXPECT_EQ(thereAndBack(RichText()).size(), 0U);
    EXPECT_EQ(thereAndBack(textIn("", {format(0)})).size(), 0U);
}

TEST(WriteRtfReadRtf, LineEndsAtTheEndAreNeitherAddedNorLost)
{
    for (const std::string_view text : {"\r\n", "\r\n\r\n", "a", "a\r\n", "a\r\n\r\n", "\r\na"}) {
        EXPECT_EQ(thereAndBack(textIn(text, {format(0)})).text(), text);
    }
}

TEST(WriteRtfReadRtf, EveryByteValueComesBack)
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        if (i != '\r' && i != '\n') bytes += static_cast<char>(i);
    }
    const RichText text = textIn(bytes, {format(0), format(255)});
    EXPECT_EQ(thereAndBack(text), text);
}

TEST(WriteRtfReadRtf, LoneLineEndsComeBackAsPairs)
{
    const RichText text = textIn("a\rb\nc\r", {format(0), format(255)});
    EXPECT_EQ(thereAndBack(text), withWindowsLineEnds(text));
}

TEST(WriteRtfReadRtf, CrAndLfOfDifferentFormatsComeBack)
{
    const RichText text = textIn("a\r\nb\r\n", {format(0), format(255)});
    EXPECT_EQ(thereAndBack(text), text);
}

TEST(WriteRtfReadRtf, SizesThatAreNoWholeHalfPointsComeBack)
{
    const RichText text = textIn("abcdef", {format(0, "Arial", 8.25F), format(0), format(0, "Arial", 0),
                                            format(0, "Arial", -3), format(0, "Arial", 1e9F), format(0)});
    EXPECT_EQ(thereAndBack(text), text);
}

TEST(WriteRtfReadRtf, ColoursBeyond24BitsComeBack)
{
    const RichText text = textIn("abcd", {format(INT32_MIN + 8), format(0), format(-1), format(0x1000000)});
    EXPECT_EQ(thereAndBack(text), text);
}

TEST(WriteRtfReadRtf, FontNamesOfAnyBytesComeBack)
{
    const RichText text =
        textIn("abcdef", {format(0, ""), format(0, " x "), format(0, "a;b\\{c}\r\n"),
                          format(0, std::string("\0\xFF", 2)), format(0, "12"), format(0, std::string(255, '\xE9'))});
    EXPECT_EQ(thereAndBack(text), text);
}

TEST(WriteRtfReadRtf, RandomTextsInRandomFormatsComeBack)
{
    constexpr unsigned seed = 3001;
    std::cout << "seed " << seed << '\n';
    std::mt19937 chance(seed);
    const auto number = [&](unsigned below) { return static_cast<int>(chance() % below); };
    for (int round = 0; round < 400; ++round) {
        std::vector<CharacterFormat> formats;
        for (int i = 0; i < 12; ++i) {
            CharacterFormat next = format(number(2) * number(0x1000000), "Font " + std::to_string(number(4)));
            next.fontSize = static_cast<float>(number(80)) / 4;
            next.bold = number(2) == 1;
            next.italic = number(2) == 1;
            next.underline = number(2) == 1;
            next.indent = number(3) == 0 ? number(4000) - 2000 : 0;
            formats.push_back(next);
        }
        const auto table = std::make_shared<FormatTable>();
        std::string text;
        std::vector<FormatRun> runs;
        for (int i = number(300); i > 0; --i) {
            const int kind = number(10);
            const std::string word = kind == 0   ? "\r\n"
                                     : kind == 1 ? std::string(1, static_cast<char>(number(256)))
                                                 : "b1 ";
            text += word;
            appendRun(runs, word.size(), table->idOf(formats[static_cast<std::size_t>(number(12))]));
        }
        const RichText rich = withWindowsLineEnds(RichText(table, text, runs));
        ASSERT_EQ(thereAndBack(rich), rich) << "round " << round;
    }
}

} // namespace tarvex
