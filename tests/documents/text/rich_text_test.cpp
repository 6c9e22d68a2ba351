#include "documents/text/pane.h"
#include "documents/text/rich_text.h"
#include "platform/text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::shared_ptr<FormatTable> tableWith(std::initializer_list<Colour> colours)
{
    auto table = std::make_shared<FormatTable>();
    for (const Colour colour : colours) table->withColour(0, colour);
    return table;
}

std::size_t sharedChunks(const RichText& a, const RichText& b)
{
    std::size_t shared = 0;
    for (const ChunkPointer& chunk : a.chunks()) {
        for (const ChunkPointer& other : b.chunks()) shared += chunk == other ? 1 : 0;
    }
    return shared;
}

bool hasOnlyPairsByCharacter(const std::string& text, char before, char after)
{
    const std::string whole = before + text + after;
    for (std::size_t i = 1; i < whole.size(); ++i) {
        if ((whole[i - 1] == '\r') != (whole[i] == '\n')) return false;
    }
    return true;
}

/// All texts of the characters up to a length.
std::vector<std::string> textsOf(std::string_view characters, std::size_t length)
{
    std::vector<std::string> texts{""};
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string begin = texts[i];
        if (begin.size() == length) break;
        for (const char character : characters) texts.push_back(begin + character);
    }
    return texts;
}

} // namespace

TEST(FormatTable, KeepsEachFormatOnce)
{
    FormatTable table;
    CharacterFormat format;
    EXPECT_EQ(table.idOf(format), 0);
    format.bold = true;
    EXPECT_EQ(table.idOf(format), 1);
    EXPECT_EQ(table.idOf(format), 1);
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(table[1], format);
}

TEST(FormatTable, GivesFormatZeroWhenItIsFull)
{
    FormatTable table;
    CharacterFormat format;
    for (int i = 1; i < 65536; ++i) {
        format.indent = i;
        ASSERT_EQ(table.idOf(format), i);
    }
    format.indent = 65536;
    EXPECT_EQ(table.idOf(format), 0);
    format.indent = 65535;
    EXPECT_EQ(table.idOf(format), 65535);
}

TEST(FormatTable, CutsFontNamesTo255Bytes)
{
    FormatTable table;
    CharacterFormat format;
    format.fontName = std::string(255, 'x');
    const FormatId id = table.idOf(format);
    EXPECT_EQ(table[id].fontName.size(), 255U);
    format.fontName += 'x';
    EXPECT_EQ(table.idOf(format), id);
}

TEST(FormatTable, WithColourChangesTheColourAlone)
{
    FormatTable table;
    CharacterFormat format;
    format.italic = true;
    const FormatId id = table.idOf(format);
    format.colour = 255;
    EXPECT_EQ(table[table.withColour(id, 255)], format);
    EXPECT_EQ(table.withColour(id, 255), table.idOf(format));
    EXPECT_EQ(table.withColour(id, 0), id);
}

TEST(RichText, GivesBackItsTextAndRuns)
{
    std::string text;
    std::vector<FormatRun> runs;
    for (std::uint32_t i = 0; i < 700; ++i) {
        text += "word" + std::string(i % 5, '.');
        appendRun(runs, 4 + i % 5, static_cast<FormatId>(i % 2));
    }
    const RichText rich(tableWith({255}), text, runs);
    EXPECT_EQ(rich.size(), text.size());
    EXPECT_EQ(rich.text(), text);
    EXPECT_EQ(rich.runs(), runs);
    EXPECT_GT(rich.chunks().size(), 1U);
}

TEST(RichText, EqualByLookWhenTheNumbersDiffer)
{
    const RichText one(tableWith({1, 2}), "ab", {{1, 1}, {1, 2}});
    const RichText same(tableWith({2, 1}), "ab", {{1, 2}, {1, 1}});
    const RichText other(tableWith({2, 1}), "ab", {{1, 1}, {1, 2}});
    EXPECT_EQ(one, same);
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one == RichText(one.formats(), "aB", {{1, 1}, {1, 2}}));
    EXPECT_FALSE(one == RichText(one.formats(), "abc", {{1, 1}, {2, 2}}));
    EXPECT_EQ(RichText(), RichText(one.formats(), "", {}));
}

TEST(RichText, RunsThatDoNotCoverTheTextAreCutOrFilled)
{
    const auto table = tableWith({255});
    EXPECT_EQ(RichText(table, "abc", {{1, 1}}), RichText(table, "abc", {{1, 1}, {2, 0}}));
    EXPECT_EQ(RichText(table, "abc", {{9, 1}}), RichText(table, "abc", {{3, 1}}));
}

TEST(RichTextWithWindowsLineEnds, LoneLineEndsBecomePairsInTheirOwnFormat)
{
    const auto table = tableWith({255});
    const RichText lone(table, "a\rb\n\r\n", {{1, 0}, {1, 1}, {1, 0}, {1, 1}, {2, 0}});
    const RichText pairs(table, "a\r\nb\r\n\r\n", {{1, 0}, {2, 1}, {1, 0}, {2, 1}, {2, 0}});
    EXPECT_EQ(withWindowsLineEnds(lone), pairs);
}

TEST(RichTextWithWindowsLineEnds, EveryShortTextBecomesWhatItsCharactersBecome)
{
    for (const std::string& text : textsOf("a\r\n", 5)) {
        const RichText made = withWindowsLineEnds(RichText(tableWith({255}), text, {{2, 1}, {9, 0}}));
        ASSERT_EQ(made.text(), withWindowsLineEnds(text));
        std::size_t first = 0;
        for (const FormatRun& run : made.runs()) first += run.format == 1 ? run.length : 0;
        ASSERT_GE(first, std::min<std::size_t>(text.size(), 2));
    }
}

TEST(PaneTextRTF, KeystrokeCopiesOneChunkAlone)
{
    Pane pane;
    pane.setText(std::string(20000, 'x'));
    const RichText before = pane.TextRTF();
    pane.userEdit(10000, 0, "y");
    const RichText after = pane.TextRTF();
    EXPECT_EQ(after.size(), 20001U);
    EXPECT_EQ(sharedChunks(before, after), before.chunks().size() - 1);
    EXPECT_EQ(before.text(), std::string(20000, 'x'));
}

TEST(PaneTextRTF, SecondSnapshotWithoutAnEditIsTheSame)
{
    Pane pane;
    pane.setText("abc");
    EXPECT_EQ(&pane.TextRTF().chunks(), &pane.TextRTF().chunks());
}

TEST(PaneTextRTF, SnapshotPutBackIsSharedByTheNextOne)
{
    Pane pane;
    pane.setText(std::string(5000, 'x'));
    const RichText before = pane.TextRTF();
    pane.setText("other");
    pane.setTextRTF(before);
    EXPECT_EQ(&pane.TextRTF().chunks(), &before.chunks());
}

TEST(PaneTextRTF, ColouringAnewInTheSameColoursSharesAllChunks)
{
    Pane pane;
    pane.setText(std::string(9000, 'x'));
    const RichText before = pane.TextRTF();
    for (const Colour colour : {255, 0}) {
        pane.setSelStart(0);
        pane.setSelLength(9000);
        pane.setSelColor(colour);
    }
    EXPECT_EQ(sharedChunks(before, pane.TextRTF()), before.chunks().size());
}

TEST(PaneTextRTF, ThousandsOfEditsKeepTheChunksWithinBounds)
{
    Pane pane;
    for (int i = 0; i < 5000; ++i) {
        pane.userEdit(i % 7 == 0 ? i / 2 : i, i % 3 == 0 ? 1 : 0, "word ");
        pane.TextRTF();
    }
    const RichText text = pane.TextRTF();
    EXPECT_EQ(text.text(), pane.Text());
    for (const ChunkPointer& chunk : text.chunks()) {
        EXPECT_GE(chunk->size(), 256U);
        EXPECT_LE(chunk->size(), 2 * chunkSizeFor(text.size()));
    }
}

TEST(PaneTextRTF, SnapshotOfAnotherTableKeepsItsLook)
{
    Pane pane(tableWith({1, 2, 3}));
    const RichText foreign(tableWith({3, 255}), "ab", {{1, 1}, {1, 2}});
    pane.setTextRTF(foreign);
    EXPECT_EQ(pane.formatAt(0).colour, 3);
    EXPECT_EQ(pane.formatAt(1).colour, 255);
    EXPECT_EQ(pane.TextRTF(), foreign);
    pane.setSelStart(1);
    pane.setSelRTF(foreign);
    EXPECT_EQ(pane.Text(), "aabb");
    EXPECT_EQ(pane.formatAt(2).colour, 255);
}

TEST(PaneSelRTF, HoldsTheSelectionWithItsFormats)
{
    Pane pane;
    pane.setText("one two");
    pane.setSelStart(2);
    pane.setSelLength(3);
    pane.setSelColor(255);
    pane.setSelStart(1);
    pane.setSelLength(3);
    const RichText selection = pane.SelRTF();
    EXPECT_EQ(selection.text(), "ne ");
    EXPECT_EQ(selection.runs().size(), 2U);
    pane.setSelStart(7);
    pane.setSelRTF(selection);
    EXPECT_EQ(pane.Text(), "one twone ");
    EXPECT_EQ(pane.SelStart(), 10);
    EXPECT_EQ(pane.formatAt(7).colour, 0);
    EXPECT_EQ(pane.formatAt(8).colour, 255);
}

TEST(HasOnlyPairs, EveryShortTextInEveryNeighbourhoodIsAsItsCharactersSay)
{
    for (const std::string& text : textsOf("a\r\n", 6)) {
        for (const char before : {' ', '\r', '\n'}) {
            for (const char after : {' ', '\r', '\n'}) {
                const bool expected = hasOnlyPairsByCharacter(text, before, after);
                EXPECT_EQ(hasOnlyPairs(text, before, after), expected)
                    << testing::PrintToString(text) << " between " << int{before} << " and " << int{after};
            }
        }
    }
}

} // namespace tarvex
