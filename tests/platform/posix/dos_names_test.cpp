#include "platform/posix/dos_names.h"

#include "platform/windows1252.h"

#include <gtest/gtest.h>

namespace tarvex {

namespace {

/// Every name leads back to its own file, as it is and lower-cased.
void checkAll(const std::vector<std::string>& natives)
{
    const DosNames names(natives);
    for (const std::string& native : natives) {
        const std::string dosName = names.nameOf(native);
        EXPECT_TRUE(isValidUtf8(dosName)) << dosName;
        EXPECT_EQ(dosName.find_first_of("\\:\n"), std::string::npos) << dosName;
        EXPECT_EQ(names.find(dosName), native) << dosName;
        EXPECT_EQ(names.find(lowerUtf8(dosName)), native) << dosName;
    }
}

TEST(DosNames, TheDeleteCharacterMovesAndTheNextOneStays)
{
    EXPECT_EQ(dosNameFromNative("a\x7F"), "a\xEF\x81\xBF");
    EXPECT_EQ(nativeNameFromDos("a\xEF\x81\xBF"), "a\x7F");
    EXPECT_EQ(dosNameFromNative("a\xC2\x80"), "a\xC2\x80");
    EXPECT_EQ(nativeNameFromDos("a\xEF\x82\x80"), "a\xEF\x82\x80");
}

} // namespace

TEST(DosNames, NameMatchesInAnyCase)
{
    const DosNames names({"Mig.b50"});
    EXPECT_EQ(names.find("mig.B50"), "Mig.b50");
    EXPECT_EQ(names.find("mig.b5"), std::nullopt);
    EXPECT_EQ(names.nameOf("Mig.b50"), "Mig.b50");
}

TEST(DosNames, ExactSpellingWins)
{
    const DosNames names({"MIG.b50", "Mig.b50", "mig.b50"});
    EXPECT_EQ(names.find("Mig.b50"), "Mig.b50");
    EXPECT_EQ(names.find("mig.b50"), "mig.b50");
    EXPECT_EQ(names.find("mIG.b50"), "MIG.b50") << "otherwise the first in byte order";
}

TEST(DosNames, FileHiddenByCaseGetsItsRankAsAlias)
{
    const DosNames names({"mig.b50", "Mig.b50", "MIG.b50"});
    EXPECT_EQ(names.nameOf("mig.b50"), "mig.b50");
    EXPECT_EQ(names.nameOf("MIG.b50"), "mig~1.b50");
    EXPECT_EQ(names.nameOf("Mig.b50"), "mig~2.b50");
    EXPECT_EQ(names.find("mig~2.b50"), "Mig.b50");
    EXPECT_EQ(names.find("MIG~1.B50"), "MIG.b50");
    EXPECT_EQ(names.find("mig~0.b50"), std::nullopt);
    EXPECT_EQ(names.find("mig~4.b50"), std::nullopt);
    EXPECT_EQ(names.find("mig~.b50"), std::nullopt);
    EXPECT_EQ(names.find("mig~2x.b50"), std::nullopt);
    EXPECT_EQ(names.find("mig~99999999999999999999999.b50"), std::nullopt);
}

TEST(DosNames, FileThatIsReallyCalledLikeAnAliasWins)
{
    const DosNames names({"Mig.b50", "mig.b50", "mig~1.b50"});
    EXPECT_EQ(names.find("mig~1.b50"), "mig~1.b50");
    EXPECT_EQ(names.nameOf("Mig.b50"), "mig~01.b50");
    EXPECT_EQ(names.find("mig~01.b50"), "Mig.b50");
    checkAll({"Mig.b50", "mig.b50", "mig~1.b50", "MIG~1.b50", "mig~01.b50"});
}

TEST(DosNames, NamesWithoutOrWithOnlyAnExtensionHaveAliasesToo)
{
    checkAll({"README", "readme", ".Profile", ".profile", "a.", "A.", "x~", "X~", "a.b.C", "a.b.c"});
}

TEST(DosNames, BytesThatAreNoUtf8CountAsWindows1252)
{
    const DosNames names({"M\xC4rz.b50"});
    EXPECT_EQ(names.nameOf("M\xC4rz.b50"), "M\u00C4rz.b50");
    EXPECT_EQ(names.find("m\u00E4rz.b50"), "M\xC4rz.b50");
    checkAll({"M\xC4rz.b50", "M\u00C4rz.b50", "m\xE4rz.b50"});
}

TEST(DosNames, NamesThatADosPathCantHoldLeadToTheirFile)
{
    const std::string moved = dosNameFromNative("a\\b:c\n ");
    EXPECT_EQ(moved, "a\uF05Cb\uF03Ac\uF00A\uF020");
    EXPECT_EQ(nativeNameFromDos(moved), "a\\b:c\n ");
    EXPECT_EQ(dosNameFromNative("a b"), "a b") << "a blank inside is no harm";
    checkAll({"a\\b", "c:", "A\\B", "a\uF05Cb", "line\nbreak", "blank ", "blank", "..\\..\\etc"});
}

TEST(DosNames, NativeNameNeverBecomesASeparatorOrNul)
{
    EXPECT_EQ(nativeNameFromDos("a\uF02Fb\uF000"), "a\uF02Fb\uF000");
    EXPECT_EQ(nativeNameFromDos("a\uF020b"), "a\uF020b") << "only a blank at the end is moved";
}

TEST(DosNames, UnknownFileKeepsItsPlainName)
{
    const DosNames names({"mig.b50"});
    EXPECT_EQ(names.nameOf("Other.b50"), "Other.b50");
    EXPECT_EQ(names.nameOf("MIG.b50"), "MIG.b50");
}

} // namespace tarvex
