#include "documents/text/byte_search.h"
#include "documents/text/pane.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr int both = find::wholeWord | find::matchCase;

std::int64_t findIn(std::string_view text, std::string_view wanted, int options = 0)
{
    Pane pane;
    pane.setText(text);
    return pane.Find(wanted, 0, Pane::toEnd, options);
}

std::string spanned(std::string_view text, std::int64_t start, std::int64_t length, std::string_view set, bool forward,
                    bool negate)
{
    Pane pane;
    pane.setText(text);
    pane.setSelStart(start);
    pane.setSelLength(length);
    pane.Span(set, forward, negate);
    return pane.SelText();
}

std::int64_t caretAfter(std::string_view text, std::int64_t start, std::int64_t length, std::string_view set,
                        bool forward, bool negate)
{
    Pane pane;
    pane.setText(text);
    pane.setSelStart(start);
    pane.setSelLength(length);
    pane.UpTo(set, forward, negate);
    EXPECT_EQ(pane.SelLength(), 0);
    return pane.SelStart();
}

} // namespace

// ---- Find: words of the language ----

TEST(PaneFind, BTNInsideXBTNIsNoWholeWord)
{
    EXPECT_EQ(findIn("XBTN S1", "BTN", find::wholeWord), -1);
    EXPECT_EQ(findIn("XBTN S1", "BTN"), 1);
}

TEST(PaneFind, BtnInLowerCaseIsFoundBecauseCaseDoesNotCount)
{
    EXPECT_EQ(findIn("Rem\r\nbtn s1", "BTN", find::wholeWord), 5);
}

TEST(PaneFind, NotInOtherCaseIsNotFoundWhenCaseCounts)
{
    EXPECT_EQ(findIn("not S1", "NOT", both), -1);
    EXPECT_EQ(findIn("Not S1", "NOT", both), -1);
    EXPECT_EQ(findIn("NOT S1", "NOT", both), 0);
}

TEST(PaneFind, RemarkIsNoRem)
{
    EXPECT_EQ(findIn("Remark", "Rem", find::wholeWord), -1);
    EXPECT_EQ(findIn("BTN S1 rem tail", "Rem", find::wholeWord), 7);
    EXPECT_EQ(findIn("REM", "Rem", find::wholeWord), 0);
}

TEST(PaneFind, WordThatEndsInAnotherCharacterIsWholeWhateverFollowsIt)
{
    EXPECT_EQ(findIn("xRAW (#5B)", "RAW (", find::wholeWord), -1);
    EXPECT_EQ(findIn("RAW (5B)", "RAW (", find::wholeWord), 0);
    EXPECT_EQ(findIn("Zoom-Zoom", "Zoom-", find::wholeWord), 0);
    EXPECT_EQ(findIn("SensorZoom-", "Zoom-", find::wholeWord), -1);
}

TEST(PaneFind, WordThatBeginsWithAnotherCharacterIsWholeWhateverIsBeforeIt)
{
    EXPECT_EQ(findIn("use @digitalthrottle x", "@digitalthrottle", find::wholeWord), 4);
    EXPECT_EQ(findIn("x@digitalthrottle", "@digitalthrottle", find::wholeWord), 1);
    EXPECT_EQ(findIn("@digitalthrottles", "@digitalthrottle", find::wholeWord), -1);
}

TEST(PaneFind, LettersDigitsAndUnderlineAreWordCharacters)
{
    EXPECT_EQ(findIn("BTN1", "BTN", find::wholeWord), -1);
    EXPECT_EQ(findIn("BTN_", "BTN", find::wholeWord), -1);
    EXPECT_EQ(findIn("BTN\xE9", "BTN", find::wholeWord), -1);
    EXPECT_EQ(findIn("BTN-", "BTN", find::wholeWord), 0);
    EXPECT_EQ(findIn("BTN\xA4", "BTN", find::wholeWord), 0); // a currency sign
}

TEST(PaneFind, LaterMatchIsTakenWhenTheFirstIsNoWholeWord)
{
    EXPECT_EQ(findIn("ANTENNA ANT", "ant", find::wholeWord), 8);
}

// ---- Find: range ----

TEST(PaneFind, MatchMustLieWhollyInTheRange)
{
    Pane pane;
    pane.setText("xxBTNxx");
    EXPECT_EQ(pane.Find("BTN", 2, 5), 2);
    EXPECT_EQ(pane.Find("BTN", 2, 4), -1);
    EXPECT_EQ(pane.Find("BTN", 3, 7), -1);
}

TEST(PaneFind, CharactersOutsideTheRangeStillDecideWhatAWholeWordIs)
{
    Pane pane;
    pane.setText("xBTNx");
    EXPECT_EQ(pane.Find("BTN", 1, 4, find::wholeWord), -1);
}

TEST(PaneFind, EndPastTheTextIsCut)
{
    Pane pane;
    pane.setText("BTN");
    EXPECT_EQ(pane.Find("BTN", 0, 99), 0);
}

TEST(PaneFind, StartPastTheTextOrTheEndFindsNothing)
{
    Pane pane;
    pane.setText("BTN BTN");
    EXPECT_EQ(pane.Find("BTN", 8), -1);
    EXPECT_EQ(pane.Find("BTN", 4, 3), -1);
    EXPECT_EQ(pane.Find("BTN", 0, -1), -1);
}

TEST(PaneFind, NegativeStartStandsForThePosition65536AboveIt)
{
    Pane pane;
    pane.setText("BTN" + std::string(40000, '.') + "BTN" + std::string(40000, '.') + "BTN");
    EXPECT_EQ(pane.Find("BTN", -25532), 40003 + 40003);
    EXPECT_EQ(pane.Find("BTN", 40003 - 65536), 40003);
    EXPECT_EQ(pane.Find("BTN", 40004 - 65536), 80006);
    EXPECT_EQ(pane.Find("BTN", -65536), 0);
    EXPECT_EQ(pane.Find("BTN", -99999), 0);
}

TEST(PaneFind, EmptyTextIsNotFound)
{
    EXPECT_EQ(findIn("abc", ""), -1);
    EXPECT_EQ(findIn("", ""), -1);
    EXPECT_EQ(findIn("", "a"), -1);
}

TEST(PaneFind, MatchIsSelectedAndNoMatchLeavesTheSelection)
{
    Pane pane;
    pane.setText("one two");
    EXPECT_EQ(pane.Find("TWO", 0), 4);
    EXPECT_EQ(pane.SelText(), "two");
    EXPECT_EQ(pane.Find("three", 0), -1);
    EXPECT_EQ(pane.SelStart(), 4);
    EXPECT_EQ(pane.SelLength(), 3);
}

TEST(PaneFind, CaseIsFoldedAsInWindows1252)
{
    EXPECT_EQ(findIn("\xC9T\xC9", "\xE9t\xE9"), 0);
    EXPECT_EQ(findIn("\x8A", "\x9A"), 0);
    EXPECT_EQ(findIn("\xC9", "\xE9", find::matchCase), -1);
}

TEST(PaneFind, SeesWhatWasWrittenSinceTheLastSearch)
{
    Pane pane;
    pane.setText("alpha");
    EXPECT_EQ(pane.Find("ALPHA", 0), 0);
    pane.userEdit(2, 1, "XY");
    EXPECT_EQ(pane.Find("ALPHA", 0), -1);
    EXPECT_EQ(pane.Find("lxyh", 0), 1);
    pane.setText("Other");
    EXPECT_EQ(pane.Find("oTHER", 0), 0);
}

TEST(FindBytes, FindsTheFirstMatchWhereverItStandsAroundBlocks)
{
    for (const std::string_view wanted :
         {"q", "BT", "RAW (", "@digitalthrottle", "a word longer than two blocks of bytes"}) {
        for (std::size_t at = 0; at < 140; ++at) {
            for (const std::size_t behind : {0U, 1U, 17U, 70U}) {
                const std::string text = std::string(at, '.') + std::string(wanted) + std::string(behind, ' ');
                ASSERT_EQ(findBytes(text, wanted, 0), at);
                ASSERT_EQ(findBytes(text, wanted, at), at);
                ASSERT_EQ(findBytes(text, wanted, at + 1), std::string_view::npos);
                const std::string cut = text.substr(0, at + wanted.size() - 1);
                ASSERT_EQ(findBytes(cut, wanted, 0), std::string_view::npos);
            }
        }
    }
}

TEST(FindBytes, NearMissesArePassedOver)
{
    const std::string text = std::string(200, 'z') + "zqzqzqzzq" + std::string(100, 'q') + "zzqq";
    EXPECT_EQ(findBytes(text, "zzqq", 0), text.find("zzqq"));
    EXPECT_EQ(findBytes(text, "qz", 0), text.find("qz"));
}

// ---- Span and UpTo ----

TEST(PaneSpan, ForwardAndNegatedSelectsUpToTheFirstCharacterOfTheSet)
{
    EXPECT_EQ(spanned("BTN S1 x", 0, 4, " ", true, true), "BTN S1");
    EXPECT_EQ(spanned("Rem text\r\nBTN", 0, 3, "\r\n", true, true), "Rem text");
}

TEST(PaneSpan, ForwardWithoutTheSetGoesToTheEnd) { EXPECT_EQ(spanned("PortB up", 0, 5, "S", true, true), "PortB up"); }

TEST(PaneSpan, SetIsMatchedExactly) { EXPECT_EQ(spanned("PortB s S", 0, 5, "S", true, true), "PortB s "); }

TEST(PaneSpan, ForwardSelectsOverTheCharactersOfTheSet)
{
    EXPECT_EQ(spanned("a  b", 1, 0, " ", true, false), "  ");
    EXPECT_EQ(spanned("ab", 1, 0, " ", true, false), "");
}

TEST(PaneSpan, BackwardExtendsFromTheStart)
{
    EXPECT_EQ(spanned("one two", 6, 1, " ", false, true), "two");
    EXPECT_EQ(spanned("one two", 6, 1, "xyz", false, true), "one two");
    EXPECT_EQ(spanned("aab", 2, 1, "a", false, false), "aab");
}

TEST(PaneUpTo, ForwardPutsTheCaretBeforeTheFirstCharacterOfTheSet)
{
    EXPECT_EQ(caretAfter("one two", 0, 1, " ", true, false), 3);
    EXPECT_EQ(caretAfter("one two", 0, 0, "x", true, false), 7);
}

TEST(PaneUpTo, BackwardPutsTheCaretBehindTheCharacterOfTheSet)
{
    EXPECT_EQ(caretAfter("one two", 7, 0, " ", false, false), 4);
    EXPECT_EQ(caretAfter("one two", 7, 0, "x", false, false), 0);
}

TEST(PaneUpTo, NegatedStopsAtTheFirstCharacterOutsideTheSet)
{
    EXPECT_EQ(caretAfter("   x", 0, 0, " ", true, true), 3);
    EXPECT_EQ(caretAfter("x   ", 4, 0, " ", false, true), 1);
}

} // namespace tarvex
