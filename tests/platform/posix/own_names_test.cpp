#include "platform/posix/own_names.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr std::uint64_t random = 0x0123456789ABCDEF;

TEST(TemporaryName, IsHiddenAndEndsInSixteenHexadecimalDigits)
{
    EXPECT_EQ(temporaryName(random), ".tarvex-save-0123456789abcdef");
    EXPECT_EQ(temporaryName(0), ".tarvex-save-0000000000000000");
    EXPECT_EQ(temporaryName(UINT64_MAX), ".tarvex-save-ffffffffffffffff");
}

TEST(CopyName, BeginsLikeTheFileUpToTwoHundredBytes)
{
    EXPECT_EQ(copyName("mig.b50", random), "mig.b50.tarvex-copy-0123456789abcdef");
    EXPECT_EQ(copyName(std::string(200, 'x'), 0), std::string(200, 'x') + ".tarvex-copy-0000000000000000");
    EXPECT_EQ(copyName(std::string(201, 'x'), 0), copyName(std::string(200, 'x'), 0));
    EXPECT_LE(copyName(std::string(255, 'x'), 0).size(), 255U);
}

TEST(IsTemporaryName, KnowsThoseOfThisVersionAndOfEarlierOnes)
{
    EXPECT_TRUE(isTemporaryName(temporaryName(random)));
    for (const char* end : {"12-3", "0-0", "9999999999-99"})
        EXPECT_TRUE(isTemporaryName(".tarvex-save-" + std::string(end))) << end;
    for (const char* end : {"", "-", "12-", "-3", "12", "1a-3", "12-3a", "12-3-4", "0123456789abcde",
                            "0123456789abcdef0", "0123456789ABCDEF", "0123456789abcdeg", "0123456789abcde/"})
        EXPECT_FALSE(isTemporaryName(".tarvex-save-" + std::string(end))) << end;
    EXPECT_FALSE(isTemporaryName("x.tarvex-save-0123456789abcdef"));
    EXPECT_FALSE(isTemporaryName(".tarvex-copy-0123456789abcdef"));
    EXPECT_FALSE(isTemporaryName(""));
}

TEST(IsCopyName, KnowsItsEndBehindAnyName)
{
    EXPECT_TRUE(isCopyName(copyName("mig.b50", random)));
    EXPECT_TRUE(isCopyName(copyName("", 0)));
    EXPECT_TRUE(isCopyName("mig.b50.tarvex-copy-12-3"));
    EXPECT_TRUE(isCopyName(copyName(copyName("mig.b50", 0), 0))) << "a copy of a copy";
    EXPECT_FALSE(isCopyName("mig.b50.tarvex-copy-"));
    EXPECT_FALSE(isCopyName("mig.b50.tarvex-copy-0123456789abcdef.b50"));
    EXPECT_FALSE(isCopyName("mig.b50"));
}

} // namespace
} // namespace tarvex
