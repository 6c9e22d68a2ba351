#include "documents/text/pane.h"
#include "platform/errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

constexpr Colour red = 255;
constexpr Colour blue = 0xFF0000;

std::string allBytes()
{
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    return bytes;
}

/// A pane whose first `length` characters are selected from `start` on.
void select(Pane& pane, std::int64_t start, std::int64_t length)
{
    pane.setSelStart(start);
    pane.setSelLength(length);
}

void paint(Pane& pane, std::int64_t start, std::int64_t length, Colour colour)
{
    select(pane, start, length);
    pane.setSelColor(colour);
}

std::vector<Colour> colours(const Pane& pane)
{
    std::vector<Colour> all;
    for (std::size_t i = 0; i < pane.TextLength(); ++i) all.push_back(pane.formatAt(i).colour);
    return all;
}

/// Keeps what the pane reported, in order.
struct EventLog {
    explicit EventLog(Pane& pane)
    {
        connections.push_back(pane.edited.connect([this](const Pane::Edit& edit) {
            log.push_back("edited " + std::to_string(edit.position) + " " + std::to_string(edit.removed) + " " +
                          std::to_string(edit.inserted));
        }));
        connections.push_back(pane.reformatted.connect([this](std::int64_t position, std::int64_t length) {
            log.push_back("reformatted " + std::to_string(position) + " " + std::to_string(length));
        }));
        connections.push_back(pane.selectionChanged.connect([this] { log.emplace_back("selection"); }));
        connections.push_back(pane.fontChanged.connect([this] { log.emplace_back("font"); }));
        pane.Change = [this] { log.emplace_back("Change"); };
    }
    std::vector<std::string> log;
    std::vector<Connection> connections;
};

} // namespace

// ---- SelStart and SelLength ----

TEST(PaneSelStart, WritingItPutsACaretThere)
{
    Pane pane;
    pane.setText("BTN S1");
    select(pane, 0, 3);
    pane.setSelStart(1);
    EXPECT_EQ(pane.SelStart(), 1);
    EXPECT_EQ(pane.SelLength(), 0);
}

TEST(PaneSelStart, NegativeValueIsRefusedAndTheSelectionStays)
{
    Pane pane;
    pane.setText("BTN S1");
    select(pane, 2, 3);
    try {
        pane.setSelStart(-1);
        FAIL() << "not refused";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::InvalidPropertyValue);
    }
    EXPECT_EQ(pane.SelStart(), 2);
    EXPECT_EQ(pane.SelLength(), 3);
}

TEST(PaneSelStart, PastTheEndIsCutToTheEnd)
{
    Pane pane;
    pane.setText("abc");
    pane.setSelStart(3);
    EXPECT_EQ(pane.SelStart(), 3);
    pane.setSelStart(4);
    EXPECT_EQ(pane.SelStart(), 3);
    pane.setSelStart(INT64_MAX);
    EXPECT_EQ(pane.SelStart(), 3);
}

TEST(PaneSelLength, PastTheEndIsCutToTheEnd)
{
    Pane pane;
    pane.setText("abcd");
    pane.setSelStart(1);
    pane.setSelLength(3);
    EXPECT_EQ(pane.SelLength(), 3);
    pane.setSelLength(4);
    EXPECT_EQ(pane.SelLength(), 3);
    EXPECT_EQ(pane.SelText(), "bcd");
}

TEST(PaneSelLength, NegativeValueIsRefusedAndTheSelectionStays)
{
    Pane pane;
    pane.setText("abcd");
    select(pane, 1, 2);
    try {
        pane.setSelLength(-1);
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::InvalidPropertyValue);
        EXPECT_STREQ(error.what(), "Invalid property value");
    }
    EXPECT_EQ(pane.SelText(), "bc");
}

// ---- lines ----

TEST(PaneGetLineFromChar, EachPositionOfAPairBelongsToTheLineThatItEnds)
{
    Pane pane;
    pane.setText("a\r\nb\r\n");
    EXPECT_EQ(pane.lineCount(), 3);
    std::vector<std::int64_t> lines;
    for (std::int64_t position = 0; position <= 7; ++position) lines.push_back(pane.GetLineFromChar(position));
    EXPECT_THAT(lines, ElementsAre(0, 0, 0, 1, 1, 1, 2, 2));
}

TEST(PaneGetLineFromChar, NegativePositionGivesTheLineOfTheSelectionStart)
{
    Pane pane;
    pane.setText("a\r\nb\r\nc");
    select(pane, 4, 3);
    EXPECT_EQ(pane.GetLineFromChar(-1), 1);
    EXPECT_EQ(pane.GetLineFromChar(INT64_MIN), 1);
}

TEST(PaneGetLineFromChar, EmptyTextHasOneLine)
{
    const Pane pane;
    EXPECT_EQ(pane.lineCount(), 1);
    EXPECT_EQ(pane.GetLineFromChar(5), 0);
    EXPECT_EQ(pane.lineStart(0), 0);
}

// ---- text ----

TEST(PaneText, EveryWriteMakesLoneLineEndsPairs)
{
    Pane pane;
    pane.setText("a\rb\nc\r\nd");
    EXPECT_EQ(pane.Text(), "a\r\nb\r\nc\r\nd");
    pane.setText("");
    pane.setSelText("\n\r");
    EXPECT_EQ(pane.Text(), "\r\n\r\n");
    EXPECT_EQ(pane.SelStart(), 4);
    pane.userEdit(0, 4, "x\n");
    EXPECT_EQ(pane.Text(), "x\r\n");
    const auto formats = pane.formats();
    pane.setSelRTF(RichText(formats, "\r\r", {{2, 0}}));
    EXPECT_EQ(pane.Text(), "x\r\n\r\n\r\n");
    pane.setTextRTF(RichText(formats, "y\n", {{2, 0}}));
    EXPECT_EQ(pane.Text(), "y\r\n");
}

TEST(PaneText, LineEndPutBehindTheSameTextIsMadeAPairToo)
{
    Pane pane;
    pane.setText("ab\r\ncd");
    pane.setTextRTF(RichText(pane.formats(), "ab\rcd", {{5, 0}}));
    EXPECT_EQ(pane.Text(), "ab\r\ncd");
    pane.setTextRTF(RichText(pane.formats(), "ab\ncd", {{5, 0}}));
    EXPECT_EQ(pane.Text(), "ab\r\ncd");
}

TEST(PaneText, HoldsEveryByteValue)
{
    Pane pane;
    std::string expected = allBytes();
    expected.replace(13, 1, "\r\n");
    expected.replace(10, 1, "\r\n");
    pane.setText(allBytes());
    EXPECT_EQ(pane.Text(), expected);
    EXPECT_EQ(pane.TextRTF().text(), expected);
    EXPECT_EQ(pane.Find(std::string(1, '\0'), 0), 0);
    EXPECT_EQ(pane.lineCount(), 3);
}

TEST(PaneText, WritingItPutsTheCaretToTheStartInTheFormatOfTheFirstCharacter)
{
    Pane pane;
    pane.setText("abc");
    paint(pane, 0, 1, red);
    pane.setText("xyz");
    EXPECT_EQ(pane.SelStart(), 0);
    EXPECT_EQ(pane.SelLength(), 0);
    EXPECT_THAT(colours(pane), ElementsAre(red, red, red));
}

TEST(PaneText, EmptyPaneWritesInTheFormatChosenForItsCaret)
{
    Pane pane;
    pane.setSelColor(blue);
    pane.setText("ab");
    EXPECT_THAT(colours(pane), ElementsAre(blue, blue));
}

TEST(PaneText, TenMegabytesAreEditedInTheMiddle)
{
    std::string text;
    for (int i = 0; i < 500'000; ++i) text += "BTN S1 /P RAW (#5B)\r\n";
    Pane pane;
    pane.setText(text);
    const RichText before = pane.TextRTF();
    pane.userEdit(5'250'000, 0, "x\r\n");
    text.insert(5'250'000, "x\r\n");
    EXPECT_EQ(pane.Text(), text);
    EXPECT_EQ(pane.lineCount(), 500'002);
    EXPECT_EQ(pane.TextRTF().text(), text);
    EXPECT_EQ(before.size() + 3, text.size());
    EXPECT_EQ(pane.Find("X\r\n", 0, Pane::toEnd), 5'250'000);
}

// ---- edits and pairs ----

TEST(PaneSelText, InsertionInsideAPairGoesBeforeIt)
{
    Pane pane;
    pane.setText("a\r\nb");
    pane.setSelStart(2);
    pane.setSelText("x");
    EXPECT_EQ(pane.Text(), "ax\r\nb");
    EXPECT_EQ(pane.SelStart(), 2);
}

TEST(PaneSelText, ReplacementThatBeginsInsideAPairLeavesThePair)
{
    Pane pane;
    pane.setText("a\r\nbc");
    select(pane, 2, 2);
    pane.setSelText("x");
    EXPECT_EQ(pane.Text(), "a\r\nxc");
    EXPECT_EQ(pane.SelStart(), 4);
}

TEST(PaneSelText, ReplacementThatEndsInsideAPairLeavesThePair)
{
    Pane pane;
    pane.setText("ab\r\nc");
    select(pane, 1, 2);
    pane.setSelText("");
    EXPECT_EQ(pane.Text(), "a\r\nc");
    EXPECT_EQ(pane.SelStart(), 1);
}

TEST(PaneSelText, ReplacementOfAWholePairRemovesIt)
{
    Pane pane;
    pane.setText("a\r\nb");
    select(pane, 1, 2);
    pane.setSelText("");
    EXPECT_EQ(pane.Text(), "ab");
    EXPECT_EQ(pane.lineCount(), 1);
}

TEST(PaneSelText, ReplacesTheSelectionAndLeavesTheCaretBehind)
{
    Pane pane;
    pane.setText("BTN S1");
    select(pane, 4, 2);
    pane.setSelText("TG1");
    EXPECT_EQ(pane.Text(), "BTN TG1");
    EXPECT_EQ(pane.SelStart(), 7);
    EXPECT_EQ(pane.SelLength(), 0);
}

// ---- insertion format ----

TEST(PaneInsertionFormat, ChosenColourHoldsForTheNextTextOnly)
{
    Pane pane;
    pane.setText("ab");
    pane.setSelStart(1);
    pane.setSelColor(red);
    EXPECT_EQ(pane.SelColor(), red);
    pane.setSelText("x");
    pane.setSelStart(0);
    pane.setSelText("y");
    EXPECT_EQ(pane.Text(), "yaxb");
    EXPECT_THAT(colours(pane), ElementsAre(0, 0, red, 0));
}

TEST(PaneInsertionFormat, ChosenColourIsLostWhenTheCaretMovesAndComesBack)
{
    Pane pane;
    pane.setText("ab");
    pane.setSelStart(1);
    pane.setSelColor(red);
    pane.setSelStart(1); // where it is already
    EXPECT_EQ(pane.SelColor(), red);
    pane.setSelStart(0);
    pane.setSelStart(1);
    EXPECT_EQ(pane.SelColor(), 0);
}

TEST(PaneInsertionFormat, TakesTheCharacterBeforeElseBehindElseTheLineEndBefore)
{
    Pane pane;
    pane.setText("ab\r\ncd\r\n");
    paint(pane, 0, 2, red);  // ab
    paint(pane, 2, 2, 1);    // its line end
    paint(pane, 4, 2, blue); // cd
    paint(pane, 6, 2, 2);
    const auto colourAt = [&](std::int64_t position) {
        pane.setSelStart(position);
        return pane.SelColor();
    };
    EXPECT_EQ(colourAt(0), red);
    EXPECT_EQ(colourAt(2), red);
    EXPECT_EQ(colourAt(4), blue);
    EXPECT_EQ(colourAt(6), blue);
    EXPECT_EQ(colourAt(8), 2);
}

TEST(PaneInsertionFormat, PaneWithoutTextTakesItsFontColourZeroAndTheIndentLastSet)
{
    Pane pane;
    pane.setFont({"Courier New", 12, true});
    pane.setSelIndent(20);
    pane.setSelText("a");
    CharacterFormat expected;
    expected.fontName = "Courier New";
    expected.fontSize = 12;
    expected.bold = true;
    expected.indent = 20;
    EXPECT_EQ(pane.formatAt(0), expected);
}

TEST(PaneInsertionFormat, ReplacingTextTakesTheFormatOfTheFirstCharacterReplaced)
{
    Pane pane;
    pane.setText("abc");
    paint(pane, 1, 1, red);
    select(pane, 1, 2);
    EXPECT_EQ(pane.SelColor(), red);
    pane.setSelText("xyz");
    EXPECT_THAT(colours(pane), ElementsAre(0, red, red, red));
}

TEST(PaneFont, ChangesNoCharacterAndNotifiesOnce)
{
    Pane pane;
    pane.setText("abc");
    EventLog events(pane);
    const CharacterFormat before = pane.formatAt(0);
    pane.setFont({"Fixed", 9, false});
    pane.setFont({"Fixed", 9, false});
    EXPECT_EQ(pane.formatAt(0), before);
    EXPECT_THAT(events.log, ElementsAre("font"));
}

// ---- look ----

TEST(PaneSelFont, EachPropertyIsWrittenOnTheSelectionAlone)
{
    Pane pane;
    pane.setText("abc");
    const CharacterFormat before = pane.formatAt(0);
    select(pane, 1, 1);
    pane.setSelFontName("Fixed");
    pane.setSelFontSize(8.25F);
    pane.setSelBold(true);
    pane.setSelItalic(true);
    pane.setSelUnderline(true);
    EXPECT_EQ(pane.formatAt(0), before);
    EXPECT_EQ(pane.formatAt(1), (CharacterFormat{0, "Fixed", 8.25F, true, true, true, 0}));
    EXPECT_EQ(pane.formatAt(2), before);
    EXPECT_EQ(pane.runs().size(), 3U);
}

TEST(PaneSelIndent, WritesTheWholeParagraphsThatTheSelectionTouchesAndRunsNoChange)
{
    Pane pane;
    pane.setText("a\r\nbc\r\nd");
    select(pane, 1, 3); // from the first line end into the second line
    EventLog events(pane);
    pane.setSelIndent(20);
    std::vector<int> indents;
    for (std::size_t i = 0; i < pane.TextLength(); ++i) indents.push_back(pane.formatAt(i).indent);
    EXPECT_THAT(indents, ElementsAre(20, 20, 20, 20, 20, 20, 20, 0));
    EXPECT_THAT(events.log, ElementsAre("reformatted 0 7"));
    EXPECT_EQ(pane.SelIndent(), 20);
}

TEST(PaneSelIndent, LineWithoutCharactersKeepsItForTheNextText)
{
    Pane pane;
    pane.setText("a\r\n");
    pane.setSelStart(3);
    pane.setSelIndent(20);
    pane.setSelText("b");
    EXPECT_EQ(pane.formatAt(0).indent, 0);
    EXPECT_EQ(pane.formatAt(3).indent, 20);
}

// ---- signals ----

TEST(PaneSignals, EditReportsTextThenSelectionThenChange)
{
    Pane pane;
    pane.setText("abc");
    select(pane, 1, 1);
    EventLog events(pane);
    pane.setSelText("xyz");
    EXPECT_THAT(events.log, ElementsAre("edited 1 1 3", "selection", "Change"));
}

TEST(PaneSignals, ColourReportsOnlyWhatChangedButAlwaysRunsChange)
{
    Pane pane;
    pane.setText("abcdef");
    paint(pane, 2, 2, red);
    select(pane, 1, 5);
    EventLog events(pane);
    pane.setSelColor(red);
    EXPECT_THAT(events.log, ElementsAre("reformatted 1 5", "Change"));
    events.log.clear();
    pane.setSelColor(red);
    EXPECT_THAT(events.log, ElementsAre("Change"));
}

TEST(PaneSignals, ColourOfACaretReportsNothing)
{
    Pane pane;
    pane.setText("abc");
    EventLog events(pane);
    pane.setSelColor(red);
    EXPECT_THAT(events.log, ElementsAre());
}

TEST(PaneSignals, SameTextWrittenAgainRunsChangeAlone)
{
    Pane pane;
    pane.setText("abc");
    EventLog events(pane);
    pane.setText("abc");
    EXPECT_THAT(events.log, ElementsAre("Change"));
}

TEST(PaneSignals, SnapshotPutBackReportsTheSmallestChange)
{
    Pane pane;
    pane.setText("one two three");
    paint(pane, 0, 3, red);
    const RichText before = pane.TextRTF();
    paint(pane, 0, 3, blue);
    paint(pane, 12, 1, blue);
    select(pane, 4, 3);
    pane.setSelText("2");
    pane.setSelStart(0);
    EventLog events(pane);
    pane.setTextRTF(before);
    EXPECT_THAT(events.log, ElementsAre("edited 4 1 3", "reformatted 0 3", "reformatted 12 1", "Change"));
    EXPECT_EQ(pane.TextRTF(), before);
}

TEST(PaneSignals, ChangeMayWriteToThePane)
{
    Pane pane;
    int runs = 0;
    pane.Change = [&] {
        if (++runs == 1) pane.setText("second");
    };
    pane.setText("first");
    EXPECT_EQ(runs, 2);
    EXPECT_EQ(pane.Text(), "second");
}

// ---- the user's edits ----

TEST(PaneUserEdit, ReplacesWithTheCaretBehindAndRunsChange)
{
    Pane pane;
    pane.setText("BTN S1");
    EventLog events(pane);
    pane.userEdit(4, 2, "TG");
    EXPECT_EQ(pane.Text(), "BTN TG");
    EXPECT_EQ(pane.SelStart(), 6);
    EXPECT_THAT(events.log, ElementsAre("edited 4 2 2", "selection", "Change"));
}

TEST(PaneUserEdit, LockedPaneStaysAsItIs)
{
    Pane pane;
    pane.setText("abc");
    pane.Locked = true;
    EventLog events(pane);
    pane.userEdit(0, 1, "x");
    EXPECT_EQ(pane.Text(), "abc");
    EXPECT_THAT(events.log, ElementsAre());
    pane.setSelText("x"); // the program still may
    EXPECT_EQ(pane.Text(), "xabc");
}

TEST(PaneUserEdit, NothingToDoDoesNothing)
{
    Pane pane;
    pane.setText("abc");
    pane.setSelStart(2);
    EventLog events(pane);
    pane.userEdit(0, 0, "");
    EXPECT_THAT(events.log, ElementsAre());
    EXPECT_EQ(pane.SelStart(), 2);
}

TEST(PaneUserEdit, RangeOutsideTheTextIsCut)
{
    Pane pane;
    pane.setText("abc");
    pane.userEdit(-5, 1, "x");
    EXPECT_EQ(pane.Text(), "xbc");
    pane.userEdit(2, INT64_MAX, "y");
    EXPECT_EQ(pane.Text(), "xby");
    pane.userEdit(99, 1, "z");
    EXPECT_EQ(pane.Text(), "xbyz");
}

TEST(PaneUserEdit, TypingGoesOnInTheColourOfTheWord)
{
    Pane pane;
    pane.setText("ab");
    paint(pane, 0, 1, red);
    pane.userEdit(1, 0, "x");
    pane.userEdit(2, 0, "y");
    EXPECT_THAT(colours(pane), ElementsAre(red, red, red, 0));
}

} // namespace tarvex
