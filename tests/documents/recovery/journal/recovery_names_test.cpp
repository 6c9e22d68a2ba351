#include "documents/recovery/journal/recovery_names.h"

#include "documents/recovery/journal/recovery_journal.h"

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

TEST(FileNameFor, ControlCharactersAreReplacedAndTheirNeighboursStay)
{
    EXPECT_EQ(fileNameFor("a\x1F"
                          "b\x7F"
                          "c ~.b50"),
              "a_b_c ~.b50");
}

TEST(JournalNumber, IsTheWholeNameInFrontOfItsEnd)
{
    EXPECT_EQ(journalNumber("7.journal"), 7U);
    EXPECT_EQ(journalNumber("4611686018427387903.journal"), 4611686018427387903U);
    for (const char* name : {".journal", "7x.journal", "x7.journal", "-7.journal", "7.journal.txt", "7.damaged", "7",
                             "4611686018427387904.journal", "18446744073709551616.journal", ""})
        EXPECT_EQ(journalNumber(name), 0U) << name;
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
    EXPECT_EQ(fileNameFor(std::string(96, 'x') + "yz.b50"), std::string(96, 'x') + ".b50");
    EXPECT_EQ(fileNameFor(std::string(5000, 'x') + ".b50"), std::string(96, 'x') + ".b50");
}

} // namespace
} // namespace tarvex
