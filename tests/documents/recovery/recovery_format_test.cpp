#include "documents/recovery/recovery_format.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

JournalStart someStart()
{
    return {.tab = 2,
            .replaces = 7,
            .path = "c:\\tm\\mig.m50",
            .name = "mig.m50",
            .partnerPath = "c:\\tm\\mig.b50",
            .file = FileSum{3, 99},
            .base = "abc",
            .edit = {1, 1, "xy"}};
}

struct Written {
    std::uint64_t chain = 0;
    std::string bytes = journalStart(someStart(), chain);
    void edit(const TextEdit& edit) { bytes += journalEdit(edit, chain); }
};

std::string textOf(const std::string& bytes)
{
    Journal journal;
    return readJournal(bytes, journal) == JournalState::Readable ? journal.text : "(none)";
}

JournalState stateOf(const std::string& bytes)
{
    Journal journal;
    return readJournal(bytes, journal);
}

/// Readable, but not to its end.
bool isDamaged(const std::string& bytes)
{
    Journal journal;
    return readJournal(bytes, journal) == JournalState::Readable && journal.damaged;
}

TEST(ReadJournal, GivesBackWhatWasWritten)
{
    Written written;
    Journal journal;
    ASSERT_EQ(readJournal(written.bytes, journal), JournalState::Readable);
    EXPECT_EQ(journal.start, someStart());
    EXPECT_EQ(journal.text, "axyc");
    written.edit({4, 0, "\r\n\xE9"});
    written.edit({0, 2, ""});
    EXPECT_EQ(textOf(written.bytes), "yc\r\n\xE9");
}

TEST(ReadJournal, TheLastPartnerCounts)
{
    Written written;
    written.bytes += journalPartner("c:\\tm\\other.b50", written.chain);
    written.edit({0, 0, "1"});
    Journal journal;
    ASSERT_EQ(readJournal(written.bytes, journal), JournalState::Readable);
    EXPECT_EQ(journal.start.partnerPath, "c:\\tm\\other.b50");
    EXPECT_EQ(journal.text, "1axyc");
}

TEST(ReadJournal, ARecordOfUnknownKindOrContentsEndsTheText)
{
    for (const auto& [kind, contents] : {std::pair{'X', ""}, {'E', "short"}, {'P', "longer than it says"}, {'S', ""}}) {
        Written written;
        written.bytes += journalRecord(kind, contents, written.chain);
        written.edit({0, 0, "behind it"});
        EXPECT_EQ(textOf(written.bytes), "axyc") << kind;
    }
}

TEST(ReadJournal, CutAnywhereGivesTheTextAfterTheLastWholeRecord)
{
    Written written;
    const std::size_t start = written.bytes.size();
    written.edit({4, 0, "1"});
    const std::size_t first = written.bytes.size();
    written.edit({5, 0, "2"});
    for (std::size_t size = 0; size <= written.bytes.size(); ++size) {
        const std::string expected = size < start                  ? "(none)"
                                     : size < first                ? "axyc"
                                     : size < written.bytes.size() ? "axyc1"
                                                                   : "axyc12";
        EXPECT_EQ(textOf(written.bytes.substr(0, size)), expected) << size;
        EXPECT_FALSE(isDamaged(written.bytes.substr(0, size))) << size << ": a crash is no damage";
    }
}

TEST(ReadJournal, AChangedByteEndsTheTextAtTheRecordBefore)
{
    Written written;
    const std::size_t start = written.bytes.size();
    written.edit({4, 0, "1"});
    written.edit({5, 0, "2"});
    for (std::size_t at = start; at < written.bytes.size(); ++at) {
        std::string damaged = written.bytes;
        damaged[at] ^= 0x10;
        const std::string text = textOf(damaged);
        EXPECT_TRUE(text == "axyc" || text == "axyc1") << at << ": " << text;
    }
}

TEST(ReadJournal, NoSingleBitIsDamagedUnnoticed)
{
    Written written;
    const std::size_t start = written.bytes.size();
    written.edit({4, 0, "1"});
    written.bytes += journalPartner("c:\\tm\\other.b50", written.chain);
    written.edit({5, 0, "2"});
    for (std::size_t at = 0; at < written.bytes.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            std::string damaged = written.bytes;
            damaged[at] = static_cast<char>(damaged[at] ^ 1 << bit);
            const bool inStart = at >= journalMark().size() && at < start;
            EXPECT_EQ(stateOf(damaged), inStart ? JournalState::Damaged : JournalState::Readable) << at;
            EXPECT_EQ(isDamaged(damaged), !inStart) << at << ", bit " << bit;
        }
    }
}

TEST(ReadJournal, ADamagedMarkCostsNothingOfTheText)
{
    Written written;
    written.edit({4, 0, "1"});
    for (const std::size_t at : {std::size_t{0}, journalMark().find('1'), journalMark().size() - 1}) {
        std::string damaged = written.bytes;
        damaged[at] = '7';
        EXPECT_EQ(textOf(damaged), "axyc1") << at;
        EXPECT_TRUE(isDamaged(damaged)) << at;
    }
}

TEST(ReadJournal, BytesBehindTheLastRecordThatAreNoneAreDamage)
{
    for (const std::string& tail : {std::string(1, '\0'), std::string(4096, '\0'), std::string("Dear diary")}) {
        Written written;
        written.edit({4, 0, "1"});
        EXPECT_EQ(textOf(written.bytes + tail), "axyc1");
        EXPECT_TRUE(isDamaged(written.bytes + tail));
    }
}

TEST(ReadJournal, ARecordOfAnotherTimeDoesNotFit)
{
    Written one;
    Written other;
    one.edit({4, 0, "1"});
    other.edit({4, 0, "2"});
    const std::size_t before = other.bytes.size();
    other.edit({5, 0, "3"});
    EXPECT_EQ(textOf(one.bytes + other.bytes.substr(before)), "axyc1");
}

TEST(ReadJournal, AnEditOutsideTheTextIsNotMade)
{
    Written written;
    written.edit({5, 0, "beyond"});
    written.edit({0, 0, "behind it"});
    EXPECT_EQ(textOf(written.bytes), "axyc");
    Written huge;
    huge.edit({1, UINT64_MAX, ""});
    EXPECT_EQ(textOf(huge.bytes), "axyc");
}

TEST(ReadJournal, AnotherVersionIsNotDamage)
{
    EXPECT_EQ(stateOf("Tarvex journal 2\x1A\nS"), JournalState::OtherVersion);
    EXPECT_EQ(stateOf("Tarvex journal 10\x1A\n"), JournalState::OtherVersion);
    EXPECT_EQ(stateOf("Tarvex journal \x1A\nSSSSSSSSSSSSSSSSSSS"), JournalState::Damaged);
    EXPECT_EQ(stateOf("Tarvex journal x\x1A\nSSSSSSSSSSSSSSSSSSS"), JournalState::Damaged);
}

TEST(ReadJournal, ForeignBytesAreDamage)
{
    EXPECT_EQ(stateOf("Dear diary"), JournalState::Damaged);
    EXPECT_EQ(stateOf(std::string(1000, '\0')), JournalState::Damaged);
}

TEST(ReadJournal, OneThatEndsBeforeItsFirstRecordHoldsAnythingIsUnbegun)
{
    const std::string mark(journalMark());
    EXPECT_EQ(stateOf(""), JournalState::Unbegun);
    EXPECT_EQ(stateOf(mark.substr(0, 5)), JournalState::Unbegun);
    EXPECT_EQ(stateOf(mark), JournalState::Unbegun);
    EXPECT_EQ(stateOf(mark + "S" + std::string(15, '\0')), JournalState::Unbegun);
}

TEST(ReadJournal, ACutFirstRecordIsDamage)
{
    const Written written;
    for (std::size_t size = journalMark().size() + 17; size < written.bytes.size(); ++size)
        EXPECT_EQ(stateOf(written.bytes.substr(0, size)), JournalState::Damaged) << size;
    std::uint64_t chain = 0;
    const std::string edit = journalEdit({0, 0, "x"}, chain);
    EXPECT_EQ(stateOf(std::string(journalMark()) + edit), JournalState::Damaged) << "no start at all";
}

TEST(ReadJournal, ALengthBeyondTheFileIsNoRecord)
{
    std::string bytes(journalMark());
    bytes += 'S' + std::string(16, '\xFF');
    EXPECT_EQ(stateOf(bytes), JournalState::Damaged);
}

TEST(DifferenceOf, IsTheSmallestEdit)
{
    EXPECT_EQ(differenceOf("abcd", "abXd"), (TextEdit{2, 1, "X"}));
    EXPECT_EQ(differenceOf("aa", "aaa"), (TextEdit{2, 0, "a"}));
    EXPECT_EQ(differenceOf("aaa", "aa"), (TextEdit{2, 1, ""}));
    EXPECT_EQ(differenceOf("same", "same"), (TextEdit{4, 0, ""}));
    EXPECT_EQ(differenceOf("", "new"), (TextEdit{0, 0, "new"}));
    EXPECT_EQ(differenceOf("old", ""), (TextEdit{0, 3, ""}));
}

TEST(CheckSum, DependsOnEachByteTheLengthAndTheSumBefore)
{
    const std::string text = "twenty-one characters";
    const std::uint64_t sum = checkSum(text);
    for (std::size_t at = 0; at < text.size(); ++at) {
        std::string other = text;
        other[at] ^= 1;
        EXPECT_NE(checkSum(other), sum) << at;
    }
    EXPECT_NE(checkSum(std::string(8, '\0')), checkSum(std::string(9, '\0')));
    EXPECT_NE(checkSum(""), checkSum(std::string(1, '\0')));
    EXPECT_NE(checkSum(text, 1), sum);
}

} // namespace
} // namespace tarvex
