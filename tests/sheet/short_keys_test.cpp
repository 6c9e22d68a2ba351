#include "sheet/short_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::vector<std::string_view> parted(std::string_view text)
{
    std::vector<std::string_view> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0) words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

std::string keys(std::string_view definition) { return shortKeys(parted(definition)); }

TEST(ShortKeys, PlainKeysStandAsTheyAre)
{
    EXPECT_EQ(keys("y"), "y");
    EXPECT_EQ(keys("KP7"), "KP7");
    EXPECT_EQ(keys("F12"), "F12");
    EXPECT_EQ(keys(""), "");
    EXPECT_EQ(keys("Unknown_Word"), "Unknown_Word");
}

TEST(ShortKeys, KeysHaveTheNamesOfTheirCapsAlsoThoseOfTheF22Pro)
{
    EXPECT_EQ(keys("SPC"), "Spacebar");
    EXPECT_EQ(keys("ESC"), "Escape");
    EXPECT_EQ(keys("UAROW"), "Up arrow");
    EXPECT_EQ(keys("AUXUAROW AUXLAROW"), "Up arrow Left arrow");
}

TEST(ShortKeys, HeldKeysStandBeforeTheirKey)
{
    EXPECT_EQ(keys("SHF F6"), "Shift+F6");
    EXPECT_EQ(keys("CTL ALT SHF TAB"), "Ctrl+Alt+Shift+Tab");
    EXPECT_EQ(keys("CTL"), "Ctrl") << "alone";
}

TEST(ShortKeys, DelaysAndHowAKeyIsHeldAreLeftOut)
{
    EXPECT_EQ(keys("ALT q DLY(80) 1"), "Alt+q 1");
    EXPECT_EQ(keys("/H KP0"), "KP0");
    EXPECT_EQ(keys("/N /Q /F /A a"), "a");
    EXPECT_EQ(keys("dly(80)"), "");
}

TEST(ShortKeys, AToggleHasABarBetweenItsKeys)
{
    EXPECT_EQ(keys("/T /N F1 /T /N SHF F1"), "F1 | Shift+F1");
    EXPECT_EQ(keys("/T /N 2 /T"), "2") << "a modifier without a key says nothing";
}

TEST(ShortKeys, WhatIsSentOnReleaseStandsBehindItsModifier)
{
    EXPECT_EQ(keys("/P F4 /R F1"), "F4 /R F1");
    EXPECT_EQ(keys("/R F1"), "/R F1");
}

TEST(ShortKeys, RawCodesAreRead)
{
    EXPECT_EQ(keys("RAW (#E1 #14 #77 #E1 #F0 #14 #F0 #77)"), "Pause");
    EXPECT_EQ(keys("RAW(#12 #1C #F0 #1C #F0 #12)"), "Shift+a");
    EXPECT_EQ(keys("/P RAW (#14) /R RAW (#F0 #14)"), "Left Ctrl");
    EXPECT_EQ(keys("/P RAW (#5B) /R RAW (#F0 #5B)"), "]") << "a release alone is no key";
    EXPECT_EQ(keys("RAW (#12 #F0 #12)"), "Left Shift");
}

TEST(ShortKeys, RawCodesThatCannotBeReadAreOnlyNamed)
{
    EXPECT_EQ(keys("RAW (#FF)"), "raw codes");
    EXPECT_EQ(keys("RAW (nonsense"), "raw codes");
    EXPECT_EQ(keys("RAW"), "RAW") << "no codes at all";
}

TEST(ShortKeys, AKeyThatIsPressedSeveralTimesRunningIsCounted)
{
    EXPECT_EQ(keys("DEL DLY(60) DEL DLY(60) DEL"), "Delete×3");
    EXPECT_EQ(keys("4 4 3 4"), "4×2 3 4");
    EXPECT_EQ(keys("/T a /T a"), "a | a");
    EXPECT_EQ(keys("SHF a a"), "Shift+a a");
}

TEST(ShortKeys, LongOnesAreCutBetweenKeys)
{
    EXPECT_EQ(keys("one two three four five six sev"), "one two three four five six …");
    EXPECT_EQ(keys("one two three four five six se"), "one two three four five six se");
    EXPECT_EQ(keys(std::string(40, 'k')), std::string(30, 'k') + " …");
}

TEST(ShortKeys, RawCodesOfSeveralKeysAreEachRead)
{
    EXPECT_EQ(keys("RAW (#1C #F0 #1C #32 #F0 #32)"), "a b");
    EXPECT_EQ(keys("RAW (#14 #12 #1C #F0 #1C #F0 #12 #F0 #14)"), "Ctrl+Shift+a") << "both are held";
    EXPECT_EQ(keys("RAW (#12 #1C #F0 #1C #F0 #12 #1C #F0 #1C)"), "Shift+a a") << "no longer held";
    EXPECT_EQ(keys("RAW (#12 #F0 #12 #14 #F0 #14)"), "Left Shift Left Ctrl");
}

TEST(ShortKeys, EachKeyThatIsHeldWithOthersStandsBeforeThem)
{
    EXPECT_EQ(keys("RAW (#12 #1C)"), "Shift+a");
    EXPECT_EQ(keys("RAW (#59 #1C)"), "Shift+a") << "the right one";
    EXPECT_EQ(keys("RAW (#14 #1C)"), "Ctrl+a");
    EXPECT_EQ(keys("RAW (#E0 #14 #1C)"), "Ctrl+a");
    EXPECT_EQ(keys("RAW (#11 #1C)"), "Alt+a");
    EXPECT_EQ(keys("RAW (#E0 #11 #1C)"), "Alt+a");
    EXPECT_EQ(keys("RAW (#58 #1C)"), "Caps Lock a") << "is pressed before it";
}

TEST(ShortKeys, OfHeldKeysWithoutAnotherTheLastIsTheKey)
{
    EXPECT_EQ(keys("RAW (#12 #14)"), "Left Ctrl");
    EXPECT_EQ(keys("RAW (#12 #14 #F0 #14 #F0 #12)"), "Left Ctrl");
    EXPECT_EQ(keys("RAW (#12 #1C #F0 #1C #14)"), "Shift+a Left Ctrl");
    EXPECT_EQ(keys("RAW (#F0 #12)"), "") << "a release alone is none";
}

TEST(ShortKeys, ARawStatementEndsAtItsBracket)
{
    EXPECT_EQ(keys("raw (#1C #F0 #1C) b"), "a b");
    EXPECT_EQ(keys("RAW(#1C) b"), "a b");
    EXPECT_EQ(keys("RAW b"), "RAW b") << "no bracket, no codes";
}

TEST(ShortKeys, ToggleAndReleaseAreReadInAnyCaseAndCountNothingAcross)
{
    EXPECT_EQ(keys("/t a /t b"), "a | b");
    EXPECT_EQ(keys("/p a /r a"), "a /R a");
    EXPECT_EQ(keys("ctl a"), "Ctrl+a");
    EXPECT_EQ(keys("a a /T a a"), "a×2 | a×2");
}

TEST(ShortWords, AMacroIsNeverCountedAndHasEachOfItsKeys)
{
    using Kind = SheetWord::Kind;
    EXPECT_EQ(shortWords(parted("Fire Fire"), {{"Fire", "x y"}}), (std::vector<SheetWord>{{"Fire", Kind::Macro},
                                                                                          {"x", Kind::Keys},
                                                                                          {"y", Kind::Keys},
                                                                                          {"Fire", Kind::Macro},
                                                                                          {"x", Kind::Keys},
                                                                                          {"y", Kind::Keys}}));
    EXPECT_EQ(shortWords(parted("Nil"), {{"Nil", ""}}), (std::vector<SheetWord>{{"Nil", Kind::Macro}}));
}

TEST(ShortWords, KeepTheirOrderAndNumber)
{
    const auto words = shortWords(parted("1 3 a a =  RAW (#1C #F0 #1C)"), {});
    EXPECT_EQ(words, (std::vector<SheetWord>{{"1"}, {"3"}, {"a"}, {"a"}, {"="}, {"a"}}));
}

TEST(ShortWords, AHeldKeyGoesWithTheMacroBehindIt)
{
    using Kind = SheetWord::Kind;
    EXPECT_EQ(shortWords(parted("SHF Fire"), {{"Fire", "x"}}),
              (std::vector<SheetWord>{{"Shift+Fire", Kind::Macro}, {"x", Kind::Keys}}));
}

} // namespace
} // namespace tarvex
