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

std::string fromHex(std::string_view digits)
{
    const auto value = [](char digit) { return digit <= '9' ? digit - '0' : digit - 'a' + 10; };
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(value(digits[i]) * 16 + value(digits[i + 1]));
    return bytes;
}

TEST(ReadJournal, FilesOfEarlierRunsKeepTheirMeaningByteByByte)
{
    const std::string bytes =
        fromHex("546172766578206a6f75726e616c20311a0a538b00000000000000a45ac0ed9ea190ba01000000000000000700000000"
                "0000000d00000000000000633a5c746d5c6d69672e62353007000000000000006d69672e6235300d0000000000000063"
                "3a5c746d5c6d69672e6d3530010000000000000009000000000000008877665544332211090000000000000042544e20"
                "533120610a07000000000000000100000000000000010000000000000062451c000000000000005162efee77d0934800"
                "000000000000000000000000000000040000000000000052656d20501000000000000000d63d1c9dc46efdcb08000000"
                "00000000633a5c782e6d3530");
    const JournalStart start{.tab = 1,
                             .replaces = 7,
                             .path = "c:\\tm\\mig.b50",
                             .name = "mig.b50",
                             .partnerPath = "c:\\tm\\mig.m50",
                             .file = FileSum{9, 0x1122334455667788U},
                             .base = "BTN S1 a\n",
                             .edit = {7, 1, "b"}};
    std::uint64_t chain = 0;
    std::string written = journalStart(start, chain);
    written += journalEdit({0, 0, "Rem "}, chain);
    written += journalPartner("c:\\x.m50", chain);
    EXPECT_EQ(written, bytes);
    Journal journal;
    ASSERT_EQ(readJournal(bytes, journal), JournalState::Readable);
    EXPECT_FALSE(journal.damaged);
    EXPECT_EQ(journal.text, "Rem BTN S1 b\n");
    EXPECT_EQ(journal.start.file, start.file);
    EXPECT_EQ(journal.start.partnerPath, "c:\\x.m50");
}

TEST(CheckSum, IsTheSameInEachVersion)
{
    EXPECT_EQ(checkSum(""), 0x0U);
    EXPECT_EQ(checkSum("abc"), 0xeca477d3edc4ece3U);
    EXPECT_EQ(checkSum("12345678x", 5), 0xac1e3d2f6315872fU);
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
        EXPECT_TRUE(isDamaged(written.bytes)) << kind;
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
    const std::pair<TextEdit, const char*> edits[] = {{{4, 0, "!"}, "axyc!"}, {{5, 0, "!"}, "axyc"},
                                                      {{2, 2, "!"}, "ax!"},   {{2, 3, "!"}, "axyc"},
                                                      {{0, 4, ""}, ""},       {{0, 5, ""}, "axyc"}};
    for (const auto& [edit, text] : edits) {
        Written one;
        one.edit(edit);
        EXPECT_EQ(textOf(one.bytes), text) << edit.removed << " at " << edit.position;
        EXPECT_EQ(isDamaged(one.bytes), textOf(one.bytes) == "axyc");
    }
}

TEST(ReadJournal, ADamagedMarkIsRememberedBeforeATornEnd)
{
    Written written;
    written.edit({0, 0, "1"});
    const std::string torn = written.bytes.substr(0, written.bytes.size() - 1);
    EXPECT_FALSE(isDamaged(torn));
    std::string marked = torn;
    marked[0] ^= 1;
    EXPECT_TRUE(isDamaged(marked));
    EXPECT_EQ(textOf(marked), "axyc");
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
