#include "scan_code_balance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace examples;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(RawFormProblems, OnlyBytesWithSingleBlanksAreFine)
{
    EXPECT_THAT(rawFormProblems({"#1C", "#E0 #F0 #70"}), IsEmpty());
    for (const char* group : {"", " #1C", "#1C ", "#1C  #1D", "1C", "#1c", "#1CF", "#1C,#1D"})
        EXPECT_THAT(rawFormProblems({group}), SizeIs(1)) << group;
}

TEST(ScanCodeProblems, KeysThatGoDownAndUpAreFine)
{
    EXPECT_THAT(scanCodeProblems({"#14 #12 #05 #F0 #05 #F0 #12 #F0 #14"}), IsEmpty());
    EXPECT_THAT(scanCodeProblems({"#E0 #70", "#E0 #F0 #70"}), IsEmpty());
    EXPECT_THAT(scanCodeProblems({"#E0 #12 #E0 #7C #E0 #F0 #7C #E0 #F0 #12"}), IsEmpty());
}

TEST(ScanCodeProblems, PauseHasNoBreak)
{
    EXPECT_THAT(scanCodeProblems({"#E1 #14 #77 #E1 #F0 #14 #F0 #77"}), IsEmpty());
}

TEST(ScanCodeProblems, AKeyLeftDownIsReported)
{
    EXPECT_THAT(scanCodeProblems({"#5B"}), ElementsAre("left down: 5B"));
    EXPECT_THAT(scanCodeProblems({"#E0 #70 #F0 #70"}), ElementsAre("broken but not down: 70", "left down: E0 70"));
}

TEST(ScanCodeProblems, ACodeOfNoKeyIsReported)
{
    EXPECT_THAT(scanCodeProblems({"#02 #F0 #02"}), ElementsAre("no key: 02", "no key: 02"));
    EXPECT_THAT(scanCodeProblems({"#E0 #1C #E0 #F0 #1C"}), SizeIs(2));
}

TEST(ScanCodeProblems, AKeyMadeTwiceAndAnOpenPrefixAreReported)
{
    EXPECT_THAT(scanCodeProblems({"#1C #1C #F0 #1C"}), ElementsAre("made twice: 1C"));
    EXPECT_THAT(scanCodeProblems({"#1C #F0 #1C #F0"}), ElementsAre("ends inside a code"));
}
