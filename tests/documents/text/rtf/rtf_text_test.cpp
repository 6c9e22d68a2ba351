#include "documents/text/rtf/rtf_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct RtfTextTest : testing::Test {
    std::shared_ptr<FormatTable> formats = std::make_shared<FormatTable>();
    FormatId plain = formats->idOf(CharacterFormat{});
    FormatId bold = formats->idOf([] {
        CharacterFormat format;
        format.bold = true;
        return format;
    }());
    RtfText text;
};

} // namespace

TEST_F(RtfTextTest, PairOfLineEndBytesIsOneLineEnd)
{
    for (const char byte : {'\r', '\n', '\r', '\r', '\n', '\n'}) text.addLineEndByte(byte, plain);
    EXPECT_EQ(text.take(formats).text(), "\r\n\r\n\r\n\r\n");
}

TEST_F(RtfTextTest, LineFeedBehindACharacterIsALineEndOfItsOwn)
{
    text.addLineEndByte('\r', plain);
    text.add("a", plain);
    text.addLineEndByte('\n', plain);
    EXPECT_EQ(text.take(formats).text(), "\r\na\r\n");
}

TEST_F(RtfTextTest, OnlyTheLastParagraphEndIsLeftOut)
{
    text.add("a", plain);
    text.endParagraph(plain);
    text.endParagraph(plain);
    EXPECT_EQ(text.take(formats).text(), "a\r\n");
}

TEST_F(RtfTextTest, LineEndAtTheEndStays)
{
    text.endParagraph(plain);
    text.endLine(plain);
    EXPECT_EQ(text.take(formats).text(), "\r\n\r\n");
}

TEST_F(RtfTextTest, FormatOfTheCrHoldsForOneLineEnd)
{
    text.setCrFormat(bold);
    text.endLine(plain);
    text.endLine(plain);
    const RichText read = text.take(formats);
    EXPECT_EQ(flattened(read.runs(), read.size()), (std::vector<FormatId>{bold, plain, plain, plain}));
}

} // namespace tarvex
