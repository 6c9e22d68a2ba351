#include "documents/recovery/journal/recovery_names.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(FileNameFor, AnOrdinaryNameIsItself)
{
    for (const std::string name : {"mig.b50", "untitled.m50", "-x.b50", "two words.b50", "\xC3\xA4.b50", "a..b"})
        EXPECT_EQ(fileNameFor(name), name);
}

TEST(FileNameFor, NothingLeadsOutOfAFolder)
{
    EXPECT_EQ(fileNameFor("../../etc/passwd"), "passwd");
    EXPECT_EQ(fileNameFor("..\\..\\mig.b50"), "mig.b50");
    EXPECT_EQ(fileNameFor("c:mig.b50"), "mig.b50");
    EXPECT_EQ(fileNameFor(".."), "_.");
    EXPECT_EQ(fileNameFor("."), "_");
    EXPECT_EQ(fileNameFor(""), "untitled");
    EXPECT_EQ(fileNameFor("mig/"), "untitled");
    EXPECT_EQ(fileNameFor(std::string("a\0b\n.b50", 8)), "a_b_.b50");
}

TEST(FileNameFor, IsNeitherHiddenNorAJournal)
{
    EXPECT_EQ(fileNameFor(".tarvex-save-1-1"), "_tarvex-save-1-1");
    EXPECT_EQ(fileNameFor("7.journal"), "7.journal.txt");
    EXPECT_EQ(fileNameFor("7.DAMAGED"), "7.DAMAGED.txt");
}

TEST(FileNameFor, ALongOneIsShortenedBeforeItsExtension)
{
    EXPECT_EQ(fileNameFor(std::string(96, 'x') + ".b50"), std::string(96, 'x') + ".b50");
    EXPECT_EQ(fileNameFor(std::string(97, 'x') + ".b50"), std::string(96, 'x') + ".b50");
    EXPECT_EQ(fileNameFor(std::string(5000, 'x') + ".b50"), std::string(96, 'x') + ".b50");
}

} // namespace
} // namespace tarvex
