#include "controller_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace examples;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(LineEndProblems, OnlyCrLfIsFine)
{
    EXPECT_THAT(lineEndProblems("a\r\nb\r\n"), IsEmpty());
    EXPECT_THAT(lineEndProblems("a\nb\r\n"), SizeIs(1));
    EXPECT_THAT(lineEndProblems("a\rb\r\n"), SizeIs(1));
    EXPECT_THAT(lineEndProblems("a\r\nb"), SizeIs(1));
}

TEST(ByteProblems, UnusedAndControlCodesAreReported)
{
    EXPECT_THAT(byteProblems("\xC9\xCD\xBA ~\r\n"), IsEmpty());
    EXPECT_THAT(byteProblems("\x81"), SizeIs(1));
    EXPECT_THAT(byteProblems("\t"), SizeIs(1));
    EXPECT_THAT(byteProblems("\x1F \x7F"), SizeIs(2));
}

TEST(WithoutComment, EachFormEndsTheCode)
{
    EXPECT_EQ(withoutComment("BTN S1 a  rem side"), "BTN S1 a");
    EXPECT_EQ(withoutComment("BTN S1 a ~ side"), "BTN S1 a");
    EXPECT_EQ(withoutComment("BTN S1 a // side"), "BTN S1 a");
    EXPECT_EQ(withoutComment("REM"), "");
}

TEST(WithoutComment, RemInsideAWordIsNoComment)
{
    EXPECT_EQ(withoutComment("Remark = a"), "Remark = a");
    EXPECT_EQ(withoutComment("BTN S1 The_Rem"), "BTN S1 The_Rem");
    EXPECT_EQ(withoutComment("BTN S1 /U a"), "BTN S1 /U a");
}

TEST(StatementsOf, LinesWithBlanksInFrontContinueTheStatement)
{
    EXPECT_THAT(statementsOf({"Rem x", "BTN H1U /I a", "   /O b ~ c", "", "USE TQS"}),
                ElementsAre("BTN H1U /I a /O b", "USE TQS"));
}

TEST(DefinitionProblems, OtherBlanksThanOneAroundTheEqualsSignAreReported)
{
    EXPECT_THAT(definitionProblems({"Fire = a", "Rem x = y", "~ x = y", "", "Fuel = ="}), IsEmpty());
    EXPECT_THAT(definitionProblems({"Fire  = a"}), SizeIs(1));
    EXPECT_THAT(definitionProblems({"Fire= a"}), SizeIs(1));
    EXPECT_THAT(definitionProblems({"Fire = Rem none"}), SizeIs(1));
    EXPECT_THAT(definitionProblems({"// Fire = a"}), SizeIs(1));
    EXPECT_THAT(definitionProblems({"Open Fire = a"}), SizeIs(1));
}

TEST(HeadingsOf, BothFormsAreFound)
{
    const std::vector<std::string> lines = {"Rem ----",
                                            "rem   Guns ",
                                            "REM ------",
                                            "a = b",
                                            "~\xC9\xCD\xCD\xCD\xCD\xBB",
                                            "~\xBA  Views   \xBA",
                                            "~\xC8\xCD\xCD\xCD\xCD",
                                            "c = d"};
    EXPECT_THAT(headingsOf(lines), ElementsAre("Guns", "Views"));
    EXPECT_THAT(headingProblems(lines), IsEmpty());
}

TEST(HeadingProblems, RuleLinesThatMakeNoHeadingAreReported)
{
    EXPECT_THAT(headingProblems({"Rem ----", "Rem Guns", "a = b", "c = d"}), SizeIs(1));
    EXPECT_THAT(headingProblems({"Rem ----", "Rem Guns", "Rem more", "Rem ----", "c = d"}), SizeIs(2));
    EXPECT_THAT(headingProblems({"~\xC9\xCD\xCD\xCD\xCD", "~\xBA Views", "c = d"}), SizeIs(1));
    EXPECT_THAT(headingProblems({"~\xC9\xCD\xCD\xCD\xCD", "~\xBA Views", "~\xC8\xCD\xCD\xCD\xCD"}), SizeIs(1));
}

TEST(HeadingProblems, ALongerBoxIsATitleAndNoHeading)
{
    const std::vector<std::string> box = {"~\xC9\xCD\xCD\xCD\xCD", "~\xBA a", "~\xBA b", "~\xC8\xCD\xCD\xCD\xCD",
                                          "c = d"};
    EXPECT_THAT(headingProblems(box), IsEmpty());
    EXPECT_THAT(headingsOf(box), IsEmpty());
}

TEST(BracketProblems, OpenEarlyAndEmptyBracketsAreReported)
{
    EXPECT_THAT(bracketProblems("RAW (#1C) DLY(60) (X1 OR (X2 AND X3))"), IsEmpty());
    EXPECT_THAT(bracketProblems("RAW (#1C"), SizeIs(1));
    EXPECT_THAT(bracketProblems(") ("), SizeIs(1));
    EXPECT_THAT(bracketProblems("DLY()"), SizeIs(1));
}

TEST(WordsOf, RawCodesAndTimedItemsAreNoWords)
{
    EXPECT_THAT(wordsOf("BTN S1 /P RAW (#1C #1D) /R RAW(#F0 #1C) a DLY(60) b RPT(2)"),
                ElementsAre("BTN", "S1", "/P", "/R", "a", "b"));
    EXPECT_THAT(rawGroupsOf("/P RAW (#1C #1D) /R RAW(#F0 #1C)"), ElementsAre("#1C #1D", "#F0 #1C"));
}
