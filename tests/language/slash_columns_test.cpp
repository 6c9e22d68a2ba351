#include "language/slash_columns.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tarvex {
namespace {

namespace fs = std::filesystem;

std::string bytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(AlignedText, EveryCaseComesOutAsExpected)
{
    int cases = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(TARVEX_SOURCE_DIRECTORY) / "tests/data/align")) {
        SCOPED_TRACE(entry.path().filename());
        const std::string expected = bytes(entry.path() / "expected.b50");
        EXPECT_EQ(alignedText(bytes(entry.path() / "input.b50")), expected);
        EXPECT_EQ(alignedText(expected), expected) << "what is aligned stays";
        ++cases;
    }
    EXPECT_GE(cases, 11);
}

TEST(AlignedText, AContinuationLineInLinesUpBelowTheOutAboveIt)
{
    EXPECT_EQ(alignedText("BTN S1 /P x /I a\r\n /U /O b\r\n/I c"), "BTN S1 /P x /I a\r\n/U /O b\r\n   /I c\r\n");
}

TEST(AlignedText, ABtnLineWithoutModifiersDoesntResetTheColumns)
{
    EXPECT_EQ(alignedText("BTN S1 /T a\r\nBTN S2 b\r\nBTN S3 /P c\r\n/T d"),
              "BTN S1 /T a\r\nBTN S2 b\r\nBTN S3 /P c\r\n       /T d\r\n");
}

TEST(AlignedText, OfTwoModifiersOfAKindTheFirstInTheListGivesTheColumn)
{
    EXPECT_EQ(alignedText("BTN S1 /D a /M b /U c\r\n/D d"), "BTN S1 /D a /M b /U c\r\n                 /D d\r\n");
}

TEST(AlignedText, Column0LeavesTheLineAsItStandsAtThatStep)
{
    EXPECT_EQ(alignedText("  /R   a\tb"), "/R ab\r\n");
    EXPECT_EQ(alignedText("  /R   a", 3), "   /R a\r\n");
}

TEST(AlignedText, IndentingPutsItsBlanksInFrontOfEveryLineButComments)
{
    EXPECT_EQ(alignedText("Rem x\r\nBTN T2 /I a\r\n/O b\r\n/I c\r\n", 5),
              "Rem x\r\n     BTN T2 /I a\r\n            /O b\r\n            /I c\r\n");
    EXPECT_EQ(alignedText("a", 0), "a\r\n");
    EXPECT_EQ(alignedText("a", -1), "a\r\n");
    EXPECT_EQ(alignedText("a", 1), " a\r\n");
}

TEST(AlignedText, BelowALineWithoutItsCounterpartAModifierGoesWhereTheStatementHadItsKind)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"/I", "/I", "/T"}, {"/I", "/O", "/T"}, {"/O", "/I", "/T"}, {"/O", "/O", "/T"}, {"/P", "/P", "/T"},
        {"/P", "/R", "/T"}, {"/R", "/P", "/T"}, {"/R", "/R", "/T"}, {"/T", "/T", "/H"}};
    for (const auto& [first, last, between] : cases) {
        const std::string middle = std::string(between) + " b\r\n";
        EXPECT_EQ(alignedText("BTN S1 " + std::string(first) + " a\r\n" + middle + last + " c"),
                  "BTN S1 " + std::string(first) + " a\r\n" + middle + "       " + last + " c\r\n");
    }
}

TEST(AlignedText, NoTextGivesNone) { EXPECT_EQ(alignedText(""), ""); }

} // namespace
} // namespace tarvex
