#include "platform/text.h"

#include "platform/errors.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace tarvex {

namespace {

const std::map<int, std::string> descriptions{
    {5, "Invalid procedure call or argument"}, {6, "Overflow"}, {13, "Type mismatch"}};

template <typename Call> int codeOf(Call call)
{
    try {
        call();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.what(), descriptions.at(static_cast<int>(error.code())));
        return static_cast<int>(error.code());
    }
    return 0;
}

constexpr int typeMismatch = 13;
constexpr int overflow = 6;

} // namespace

TEST(Mid, CountsFromOneAndLeavesOutWhatLiesBeyond)
{
    EXPECT_EQ(Mid("abc", 1, 2), "ab");
    EXPECT_EQ(Mid("abc", 3, 2), "c");
    EXPECT_EQ(Mid("abc", 4, 1), "");
    EXPECT_EQ(Mid("abc", 99, 1), "");
    EXPECT_EQ(Mid("abc", 2, 0), "");
    EXPECT_EQ(Mid("abc", 2, static_cast<std::size_t>(-1)), "bc");
}

TEST(Mid, StartBelowOneIsAnInvalidCall)
{
    EXPECT_EQ(codeOf([] { Mid("abc", 0, 1); }), 5);
    EXPECT_EQ(codeOf([] { Mid("abc", -1, 1); }), 5);
}

TEST(RightAndLeft, LongerThanTheTextGiveAllOfIt)
{
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Right("abc", 3), "abc");
    EXPECT_EQ(Right("abc", 4), "abc");
    EXPECT_EQ(Right("abc", 0), "");
    EXPECT_EQ(Left("abc", 2), "ab");
    EXPECT_EQ(Left("abc", 4), "abc");
    EXPECT_EQ(Left("", 1), "");
}

TEST(ToNumber, BlanksSignFractionAndExponentAreTaken)
{
    EXPECT_EQ(toNumber(" 12 "), 12);
    EXPECT_EQ(toNumber("\t-1.5"), -1.5);
    EXPECT_EQ(toNumber("+.5"), 0.5);
    EXPECT_EQ(toNumber("5."), 5);
    EXPECT_EQ(toNumber("2e3"), 2000);
    EXPECT_EQ(toNumber("2E-1"), 0.2);
}

TEST(ToNumber, AnythingElseIsATypeMismatch)
{
    for (const char* text :
         {"", " ", "abc", "12x", "1 2", "--1", "+-1", "- 1", ".", "e5", "1e", "inf", "nan", "0x10", "1,5"}) {
        EXPECT_EQ(codeOf([&] { toNumber(text); }), typeMismatch) << text;
    }
}

TEST(ToNumber, BeginsWithAnyDigitAndNothingBesideThem)
{
    for (int digit = 0; digit <= 9; ++digit) {
        const std::string text(1, static_cast<char>('0' + digit));
        EXPECT_EQ(toNumber(text), digit);
        EXPECT_EQ(toNumber("-" + text), -digit);
        EXPECT_EQ(Val(text), digit);
        EXPECT_EQ(Val("-" + text), -digit);
    }
    for (const char* text : {"/1", ":1", "*1"}) {
        EXPECT_EQ(codeOf([&] { toNumber(text); }), typeMismatch) << text;
        EXPECT_EQ(Val(text), 0) << text;
    }
}

TEST(ToNumber, BeyondTheRangeOverflows)
{
    EXPECT_EQ(codeOf([] { toNumber("1e999"); }), overflow);
}

TEST(ToInteger, HalvesRoundToTheEvenNeighbour)
{
    EXPECT_EQ(toInteger("0.5"), 0);
    EXPECT_EQ(toInteger("1.5"), 2);
    EXPECT_EQ(toInteger("2.5"), 2);
    EXPECT_EQ(toInteger("-1.5"), -2);
    EXPECT_EQ(toInteger("2.51"), 3);
}

TEST(ToInteger, BeyondSixteenBitsOverflows)
{
    EXPECT_EQ(toInteger("32767"), 32767);
    EXPECT_EQ(toInteger("32767.4"), 32767);
    EXPECT_EQ(codeOf([] { toInteger("32767.5"); }), overflow);
    EXPECT_EQ(codeOf([] { toInteger("32768"); }), overflow);
    EXPECT_EQ(toInteger("-32768"), -32768);
    EXPECT_EQ(codeOf([] { toInteger("-32769"); }), overflow);
    EXPECT_EQ(codeOf([] { toInteger("x"); }), typeMismatch);
}

TEST(ToLong, BeyondThirtyTwoBitsOverflows)
{
    EXPECT_EQ(toLong("2147483647"), 2147483647);
    EXPECT_EQ(codeOf([] { toLong("2147483648"); }), overflow);
    EXPECT_EQ(toLong("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(codeOf([] { toLong("-2147483649"); }), overflow);
}

TEST(WithWindowsLineEnds, LoneOnesBecomePairsAndPairsStay)
{
    EXPECT_EQ(withWindowsLineEnds("a\rb\nc\r\nd"), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(withWindowsLineEnds("\n\r"), "\r\n\r\n");
    EXPECT_EQ(withWindowsLineEnds("\r\r\n"), "\r\n\r\n");
    EXPECT_EQ(withWindowsLineEnds(""), "");
}

TEST(Val, TakesTheNumberThatTheTextBeginsWith)
{
    EXPECT_EQ(Val("12"), 12);
    EXPECT_EQ(Val("  3.7 lines"), 3.7);
    EXPECT_EQ(Val("-4x"), -4);
    EXPECT_EQ(Val("+5"), 5);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1 2\t3"), 123) << "blanks don't count";
    EXPECT_EQ(Val("2e3"), 2000);
    EXPECT_EQ(Val("2d3"), 2000);
    EXPECT_EQ(Val("2D-1"), 0.2);
    EXPECT_EQ(Val("1\r\n2"), 12) << "nor do line ends";
    EXPECT_EQ(Val("2elf"), 2);
    EXPECT_EQ(Val("1.2.3"), 1.2);
}

TEST(Val, IsZeroWithoutANumber)
{
    for (const char* text : {"", "line", "x1", "-", ".", "--1", "inf", "nan", "\xE4"}) EXPECT_EQ(Val(text), 0) << text;
}

TEST(Val, BeyondAllNumbersIsInfiniteOrZero)
{
    EXPECT_GT(Val("1e999"), 1e300);
    EXPECT_LT(Val("-1e999"), -1e300);
    EXPECT_GT(Val(std::string(500, '9')), 1e300);
    EXPECT_EQ(Val("1e-999"), 0);
    EXPECT_EQ(Val("0." + std::string(500, '0') + "1"), 0);
    EXPECT_EQ(Val("." + std::string(500, '0') + "1"), 0);
    EXPECT_EQ(Val("000." + std::string(500, '0') + "1"), 0);
    EXPECT_GT(Val("00" + std::string(500, '9') + ".5"), 1e300);
    EXPECT_GT(Val("1E+999"), 1e300);
    EXPECT_EQ(Val("9D-999"), 0);
}

} // namespace tarvex
