#include "safein/keys/raw_decoder.h"

#include "safein/keys/key_strings.h"
#include "safein/keys/key_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "a+" for a key that goes down, "a-" for one that comes up.
std::vector<std::string> eventsOf(std::string_view text)
{
    std::vector<std::string> events;
    for (const KeyEvent& event : decodeRaw(text).events)
        events.push_back(std::string(keyAt(event.key)->distinctName()) + (event.down ? "+" : "-"));
    return events;
}

std::vector<std::string> leftDownOf(std::string_view text)
{
    std::vector<std::string> names;
    for (const std::int16_t index : decodeRaw(text).leftDown) names.emplace_back(keyAt(index)->distinctName());
    return names;
}

/// The pieces that are no codes, as the text has them.
std::vector<std::string> unknownIn(std::string_view text)
{
    std::vector<std::string> pieces;
    for (const UnknownCode& code : decodeRaw(text).unknown)
        pieces.push_back(std::to_string(code.position) + " " + std::string(text.substr(code.position, code.length)));
    return pieces;
}

TEST(DecodeRaw, ReadsKeysInTheOrderOfTheirCodes)
{
    const std::string_view text = "RAW (#12 #1C #F0 #1C #F0 #12)";
    EXPECT_THAT(eventsOf(text), ElementsAre("LSFT+", "a+", "a-", "LSFT-"));
    EXPECT_THAT(leftDownOf(text), IsEmpty());
    EXPECT_THAT(unknownIn(text), IsEmpty());
}

TEST(DecodeRaw, TakesBytesWithoutTheWordRaw)
{
    EXPECT_THAT(eventsOf(" #E0 #70\r\n#E0 #F0 #70\t"), ElementsAre("INS+", "INS-"));
}

TEST(DecodeRaw, NamesWhatStaysDownInTheOrderOfPressing)
{
    EXPECT_THAT(leftDownOf("#1C #12 #14 #F0 #12 #12"), ElementsAre("a", "LCTL", "LSFT"));
    EXPECT_THAT(leftDownOf("#1C #1C #F0 #1C"), IsEmpty()) << "a repeated make is one press";
}

TEST(DecodeRaw, ReadsAllBlocksOfAStatementAsOneStream)
{
    const std::string_view text = "BTN T4 /P RAW (#5B) /R raw(#F0 #5B) rem (tail) right";
    EXPECT_THAT(eventsOf(text), ElementsAre("]+", "]-"));
    EXPECT_THAT(leftDownOf(text), IsEmpty());
    EXPECT_THAT(unknownIn(text), IsEmpty());
}

TEST(DecodeRaw, ABracketThatIsNeverClosedEndsWithTheText)
{
    EXPECT_THAT(eventsOf("RAW (#1C #F0 #1C"), ElementsAre("a+", "a-"));
    EXPECT_THAT(eventsOf("RAW ("), IsEmpty());
    EXPECT_THAT(unknownIn("DRAW (#1C"), ElementsAre("0 DRAW", "5 (#1C"));
}

TEST(DecodeRaw, FakeShiftsAreNoEvents)
{
    EXPECT_THAT(eventsOf("#E0 #12 #E0 #70 #E0 #F0 #70 #E0 #F0 #12"), ElementsAre("INS+", "INS-"));
    EXPECT_THAT(eventsOf("#12 #E0 #F0 #12 #E0 #71 #E0 #F0 #71 #E0 #12 #F0 #12"),
                ElementsAre("LSFT+", "DEL+", "DEL-", "LSFT-"));
}

TEST(DecodeRaw, PauseGoesDownAndUpAtOnce)
{
    const std::string_view text = "#E1 #14 #77 #E1 #F0 #14 #F0 #77";
    EXPECT_THAT(eventsOf(text), ElementsAre("Brk+", "Brk-"));
    EXPECT_THAT(leftDownOf(text), IsEmpty());
}

TEST(DecodeRaw, PrintScreenIsOneKey)
{
    EXPECT_THAT(eventsOf("#E0 #12 #E0 #7C #E0 #F0 #7C #E0 #F0 #12"), ElementsAre("Prt+", "Prt-"));
}

TEST(DecodeRaw, LowerCaseDigitsCount) { EXPECT_THAT(eventsOf("#1c #f0 #1C"), ElementsAre("a+", "a-")); }

TEST(DecodeRaw, UnknownBytesAreReportedWithTheirPosition)
{
    EXPECT_THAT(unknownIn("#1C #00 #F0 #1C"), ElementsAre("4 #00"));
    EXPECT_THAT(unknownIn("RAW (#1C #E0 #1C #F0 #1C)"), ElementsAre("9 #E0 #1C"));
    EXPECT_THAT(unknownIn("#F0 #FF"), ElementsAre("0 #F0 #FF"));
}

TEST(DecodeRaw, WhatIsNoByteIsReportedAndTheRestRead)
{
    const std::string_view text = "1C #1 #123 #1G # #1C#1C abc #1C";
    EXPECT_THAT(unknownIn(text), ElementsAre("0 1C", "3 #1", "6 #123", "11 #1G", "15 #", "17 #1C#1C", "24 abc"));
    EXPECT_THAT(eventsOf(text), ElementsAre("a+"));
}

TEST(DecodeRaw, ACodeThatBreaksOffIsReported)
{
    EXPECT_THAT(unknownIn("#1C #E0 #F0"), ElementsAre("4 #E0 #F0"));
    EXPECT_THAT(unknownIn("#F0 x #1C"), ElementsAre("0 #F0", "4 x"));
    EXPECT_THAT(unknownIn("#E1 #14 #77 #E1"), ElementsAre("0 #E1 #14 #77 #E1"));
}

TEST(DecodeRaw, PrefixesOutOfOrderBeginACodeAnew)
{
    EXPECT_THAT(unknownIn("#F0 #E0 #70"), ElementsAre("0 #F0"));
    EXPECT_THAT(eventsOf("#F0 #E0 #70"), ElementsAre("INS+"));
    EXPECT_THAT(eventsOf("#E0 #E0 #70"), ElementsAre("INS+"));
    EXPECT_THAT(eventsOf("#E1 #14 #1C"), ElementsAre("a+"));
    EXPECT_THAT(unknownIn("#E1 #14 #1C"), ElementsAre("0 #E1 #14"));
}

TEST(DecodeRaw, EmptyTextHasNothing)
{
    const DecodedRaw raw = decodeRaw("");
    EXPECT_TRUE(raw.events.empty() && raw.leftDown.empty() && raw.unknown.empty());
}

TEST(DecodeRaw, AMegabyteIsReadToItsEnd)
{
    std::string text;
    while (text.size() < 1'000'000) text += "#1C #F0 #1C ";
    const DecodedRaw raw = decodeRaw(text);
    EXPECT_EQ(raw.events.size(), text.size() / 6);
    EXPECT_TRUE(raw.leftDown.empty() && raw.unknown.empty());
}

TEST(DecodeRaw, ReadsBackWhatEveryKeySendsInEveryState)
{
    for (const Key& key : keyTable()) {
        if (key.index >= keyIndex::leftShift && key.index <= keyIndex::rightAlt) continue; // themselves what is held
        for (unsigned held = 0; held < 32; ++held) {
            KeyStrings strings;
            strings.LastKeyIndex = static_cast<std::int16_t>(key.index);
            GetKeystrings(strings, {.shift = (held & 1U) != 0,
                                    .ctrl = (held & 2U) != 0,
                                    .alt = (held & 4U) != 0,
                                    .numLock = (held & 8U) != 0,
                                    .ApplyRAWTMnotes = static_cast<std::int16_t>((held & 16U) != 0)});
            const DecodedRaw raw = decodeRaw(strings.KeyCombined);
            EXPECT_TRUE(raw.unknown.empty()) << strings.KeyCombined;
            EXPECT_TRUE(raw.leftDown.empty()) << strings.KeyCombined;
            EXPECT_THAT(raw.events, testing::Contains(KeyEvent{static_cast<std::int16_t>(key.index), true}));
        }
    }
}

// ---- in one line --------------------------------------------------------------------------------------------------

TEST(RawSummary, SaysKeyByKeyWhatHappens)
{
    EXPECT_EQ(rawSummary("RAW (#12 #1C #F0 #1C #F0 #12)"), "LSFT down, a down, a up, LSFT up");
    EXPECT_EQ(rawSummary("#12 #1C #F0 #1C"), "LSFT down, a down, a up; stays down: LSFT");
    EXPECT_EQ(rawSummary("#12 #zz"), "LSFT down; stays down: LSFT; not a key: #zz");
    EXPECT_EQ(rawSummary(""), "");
}

TEST(RawSummary, ShowsTwentyFourCharactersOfWhatIsNoKey)
{
    EXPECT_EQ(rawSummary(std::string(24, 'x')), "not a key: " + std::string(24, 'x'));
    EXPECT_EQ(rawSummary(std::string(25, 'x')), "not a key: " + std::string(24, 'x'));
    EXPECT_EQ(rawSummary("#1C #F0 #1C x y"), "a down, a up; not a key: x") << "the first";
}

TEST(DecodeRaw, OnlyBracketsBehindTheWordRawHoldCodes)
{
    EXPECT_THAT(eventsOf("(#1C) RAW  (#32) XRAW (#21) rAw(#23)"), ElementsAre("b+", "d+"));
    EXPECT_THAT(eventsOf("AW (#1C)RAW(#32)"), ElementsAre("b+"));
    EXPECT_THAT(eventsOf("RAW(#1C (#32) RAW (#21)"), ElementsAre("a+", "c+")) << "the bracket inside is a word";
    EXPECT_THAT(unknownIn("RAW(#1C (#32)"), ElementsAre("8 (#32"));
    EXPECT_THAT(eventsOf("1RAW (#1C)"), ElementsAre("a+")) << "a digit is no letter";
}

TEST(DecodeRaw, ALetterBeforeRawMakesAnotherWordOfIt)
{
    for (const char* before : {"A", "Z", "a", "z"})
        EXPECT_THAT(eventsOf(std::string(before) + "RAW (#32) RAW (#1C)"), ElementsAre("a+")) << before;
    for (const char* before : {"@", "[", "`", "{", "/"})
        EXPECT_THAT(eventsOf(std::string(before) + "RAW (#32) RAW (#1C)"), ElementsAre("b+", "a+")) << before;
}

TEST(DecodeRaw, AWordOfThreeCharactersIsACodeOnlyWithItsSignAndTwoDigits)
{
    EXPECT_THAT(eventsOf("x1C #1C"), ElementsAre("a+"));
    EXPECT_THAT(unknownIn("x1C #1C"), ElementsAre("0 x1C"));
    EXPECT_THAT(eventsOf("#G0 #1C"), ElementsAre("a+")) << "no prefix of a break";
}

TEST(DecodeRaw, EachKeyThatIsOnlyPressedStaysDown)
{
    for (const Key& key : keyTable()) {
        if (key.index == keyIndex::pause) continue; // comes up by itself
        EXPECT_THAT(leftDownOf(key.make), ElementsAre(std::string(key.distinctName()))) << key.index;
    }
}

TEST(DecodeRaw, DigitsAreHexadecimalOnly)
{
    EXPECT_EQ(unknownIn("#/0 #0/ #:0 #0: #@0 #0@ #G0 #0G #`0 #0` #g0 #0g").size(), 12U);
    EXPECT_THAT(eventsOf("#1a #1A"), ElementsAre("z+", "z+"));
}

TEST(RawSummary, NamesTwelveOfTheKeysThatStayDown)
{
    const std::string twelve = "#1C #32 #21 #23 #24 #2B #34 #33 #43 #3B #42 #4B";
    EXPECT_TRUE(rawSummary(twelve).ends_with("; stays down: a b c d e f g h i j k l")) << rawSummary(twelve);
    EXPECT_TRUE(rawSummary(twelve + " #3A").ends_with("; stays down: a b c d e f g h i j k l ..."));
}

TEST(RawSummary, BreaksOffAfterTheGivenNumberOfEvents)
{
    EXPECT_EQ(rawSummary("#1C #F0 #1C #32 #F0 #32", 2), "a down, a up, ...");
    EXPECT_EQ(rawSummary("#1C #F0 #1C", 2), "a down, a up");
    std::string everything;
    for (const Key& key : keyTable()) everything += std::string(key.make) + " ";
    EXPECT_LT(rawSummary(everything).size(), 600U);
}

} // namespace
} // namespace tarvex
