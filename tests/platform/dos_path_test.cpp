#include "platform/dos_path.h"

#include <gtest/gtest.h>

namespace tarvex {

TEST(FileNameOf, TakesWhatFollowsTheLastSeparator)
{
    EXPECT_EQ(fileNameOf("c:\\tm\\Mig.b50"), "Mig.b50");
    EXPECT_EQ(fileNameOf("Mig.b50"), "Mig.b50");
    EXPECT_EQ(fileNameOf("c:\\tm\\"), "");
    EXPECT_EQ(fileNameOf(""), "");
}

TEST(DirectoryOf, KeepsTheLastSeparator)
{
    EXPECT_EQ(directoryOf("c:\\tm\\Mig.b50"), "c:\\tm\\");
    EXPECT_EQ(directoryOf("Mig.b50"), "");
    EXPECT_EQ(directoryOf("c:\\tm\\"), "c:\\tm\\");
}

TEST(RootOf, OnlyAPathWithADriveHasOne)
{
    EXPECT_EQ(rootOf("c:\\tm\\Mig.b50"), "c:\\");
    EXPECT_EQ(rootOf("C:mig"), "C:\\");
    EXPECT_EQ(rootOf("c:"), "c:\\");
    EXPECT_EQ(rootOf("\\tm"), "");
    EXPECT_EQ(rootOf("1:\\tm"), "");
    EXPECT_EQ(rootOf("c"), "");
    EXPECT_EQ(rootOf(""), "");
}

TEST(LastThree, AreLowerCasedCharacters)
{
    EXPECT_EQ(lastThree("c:\\MIG.B50"), "b50");
    EXPECT_EQ(lastThree("x.\u00C4\u20AC1"), "\u00E4\u20AC1");
    EXPECT_EQ(lastThree("AB"), "ab");
    EXPECT_EQ(lastThree(""), "");
}

TEST(WithLastThree, ReplacesThreeCharactersWhateverTheyAre)
{
    EXPECT_EQ(withLastThree("c:\\mig.b50", "m50"), "c:\\mig.m50");
    EXPECT_EQ(withLastThree("x.\u00C4\u20AC1", "m50"), "x.m50");
    EXPECT_EQ(withLastThree("ab", "m50"), "m50");
}

} // namespace tarvex
