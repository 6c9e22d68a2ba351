#include "platform/posix/processes/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SplitCommandLine, TheTextUpToTheFirstBlankNamesTheProgram)
{
    const CommandLine line = splitCommandLine("c:\\tm\\load.exe  c:\\a.b50 Q");
    EXPECT_EQ(line.program, "c:\\tm\\load.exe");
    EXPECT_EQ(line.tail, "  c:\\a.b50 Q");
    EXPECT_EQ(splitCommandLine("c:\\my tm\\load.exe x").program, "c:\\my");
    EXPECT_EQ(splitCommandLine("c:\\a.exe\tx").program, "c:\\a.exe");
}

TEST(SplitCommandLine, ALineThatBeginsWithABlankNamesNoProgram)
{
    EXPECT_EQ(splitCommandLine(" c:\\a.b50").program, "");
    EXPECT_EQ(splitCommandLine("").program, "");
}

TEST(SplitCommandLine, AProgramInQuotesMayHoldBlanks)
{
    const CommandLine line = splitCommandLine("\"c:\\my tm\\load.exe\" -x");
    EXPECT_EQ(line.program, "c:\\my tm\\load.exe");
    EXPECT_EQ(line.tail, " -x");
    EXPECT_EQ(splitCommandLine("\"c:\\open").program, "c:\\open");
    EXPECT_EQ(splitCommandLine("\"").program, "");
}

TEST(WindowsArguments, AreSeparatedByBlanksAndTabs)
{
    EXPECT_THAT(windowsArguments(" a  b\tc "), ElementsAre("a", "b", "c"));
    EXPECT_THAT(windowsArguments("   "), IsEmpty());
    EXPECT_THAT(windowsArguments("a\nb"), ElementsAre("a\nb")) << "a line end separates nothing";
}

TEST(WindowsArguments, QuotesHoldTogether)
{
    EXPECT_THAT(windowsArguments("\"a b\" c\"d e\"f \"\""), ElementsAre("a b", "cd ef", ""));
    EXPECT_THAT(windowsArguments("\"open to the end"), ElementsAre("open to the end"));
    EXPECT_THAT(windowsArguments("\"a\"\"b\""), ElementsAre("a\"b"));
}

TEST(WindowsArguments, BackslashesStandForThemselvesButInFrontOfAQuote)
{
    EXPECT_THAT(windowsArguments("c:\\a\\\\b\\"), ElementsAre("c:\\a\\\\b\\"));
    EXPECT_THAT(windowsArguments("\\\"a"), ElementsAre("\"a"));
    EXPECT_THAT(windowsArguments("\"c:\\dir\\\\\" b"), ElementsAre("c:\\dir\\", "b"));
    EXPECT_THAT(windowsArguments("\\\\\\\"x"), ElementsAre("\\\"x"));
    EXPECT_THAT(windowsArguments("c:\\dir\\ b"), ElementsAre("c:\\dir\\", "b"));
}

} // namespace
} // namespace tarvex
