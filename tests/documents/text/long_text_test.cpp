// Texts of many chunks: snapshots of them, what is reported when one is put back, and how they are cut.

#include "documents/text/format_runs.h"
#include "documents/text/pane.h"
#include "documents/text/text_chunk.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct LongText : testing::Test {
    Pane pane;
    std::vector<Pane::Edit> edits;
    std::vector<std::pair<std::int64_t, std::int64_t>> reformatted;
    Connection edited = pane.edited.connect([this](const Pane::Edit& edit) { edits.push_back(edit); });
    Connection painted = pane.reformatted.connect(
        [this](std::int64_t at, std::int64_t length) { reformatted.emplace_back(at, length); });

    LongText()
    {
        std::string text;
        for (int i = 0; i < 700; ++i) text += "line " + std::to_string(i) + "\r\n";
        pane.setText(text);
        for (int i = 0; i < 200; ++i) paint(40 * i, 1 + i % 7, i);
    }
    std::int64_t size() const { return static_cast<std::int64_t>(pane.TextLength()); }
    void paint(std::int64_t at, std::int64_t length, Colour colour)
    {
        pane.setSelStart(at);
        pane.setSelLength(length);
        pane.setSelColor(colour);
    }
    std::vector<std::int64_t> places() const
    {
        return {0, 1, pane.lineStart(80), pane.lineStart(350) + 2, pane.lineStart(690) + 1, size() - 3, size()};
    }
};

TEST_F(LongText, PutBackAfterAnEditAnywhereReportsThatEditAlone)
{
    const RichText before = pane.TextRTF();
    ASSERT_GT(before.chunks().size(), 4U);
    for (const std::int64_t at : places()) {
        SCOPED_TRACE(at);
        pane.userEdit(at, 0, "####");
        edits.clear();
        reformatted.clear();
        pane.setTextRTF(before);
        EXPECT_EQ(pane.Text(), before.text());
        EXPECT_EQ(pane.runs(), before.runs());
        EXPECT_EQ(pane.TextRTF(), before);
        ASSERT_EQ(edits.size(), 1U);
        EXPECT_EQ(edits[0].position, at);
        EXPECT_EQ(edits[0].removed, 4);
        EXPECT_EQ(edits[0].inserted, 0);
        EXPECT_TRUE(reformatted.empty());
    }
}

TEST_F(LongText, PutBackAfterTextWentAnywhereReportsThatTextAlone)
{
    pane.setText(pane.Text() + "0123456789");
    for (const std::int64_t at : {std::int64_t{0}, pane.lineStart(350), size() - 4}) {
        pane.userEdit(at, 0, "####");
        const RichText before = pane.TextRTF();
        pane.userEdit(at, 4, "");
        edits.clear();
        pane.setTextRTF(before);
        EXPECT_EQ(pane.TextRTF(), before);
        ASSERT_EQ(edits.size(), 1U) << at;
        EXPECT_EQ(edits[0].position, at);
        EXPECT_EQ(edits[0].removed, 0);
        EXPECT_EQ(edits[0].inserted, 4);
    }
}

TEST_F(LongText, PutBackAfterItWasPaintedAnywhereReportsThatStretchAlone)
{
    const RichText before = pane.TextRTF();
    for (const std::int64_t at : places()) {
        if (at > size() - 3) continue;
        SCOPED_TRACE(at);
        paint(at, 3, 77777);
        edits.clear();
        reformatted.clear();
        pane.setTextRTF(before);
        EXPECT_EQ(pane.runs(), before.runs());
        EXPECT_TRUE(edits.empty());
        ASSERT_EQ(reformatted.size(), 1U);
        EXPECT_EQ(reformatted[0], (std::pair<std::int64_t, std::int64_t>(at, 3)));
    }
}

TEST_F(LongText, ASnapshotHoldsEachEdit)
{
    RichText last = pane.TextRTF();
    for (const std::int64_t at : places()) {
        pane.userEdit(at, 2, "edit");
        paint(std::min(at, size() - 9), 9, 1000 + static_cast<Colour>(at));
        EXPECT_EQ(pane.TextRTF().text(), pane.Text()) << at;
        EXPECT_EQ(pane.TextRTF().runs(), pane.runs()) << at;
        EXPECT_FALSE(pane.TextRTF() == last);
        last = pane.TextRTF();
    }
}

TEST_F(LongText, TypedOnAtEitherEndStaysInFewChunks)
{
    for (const bool atEnd : {true, false}) {
        const std::size_t before = pane.TextRTF().chunks().size();
        for (int i = 0; i < 500; ++i) {
            pane.userEdit(atEnd ? size() : 0, 0, "x");
            pane.TextRTF();
        }
        EXPECT_LE(pane.TextRTF().chunks().size(), before + 4) << (atEnd ? "at the end" : "at the beginning");
    }
}

TEST_F(LongText, FormatsGivenReportTheOnesThatDiffer)
{
    std::vector<FormatId> formats;
    for (int i = 0; i < 30; ++i) formats.push_back(pane.formats()->withColour(0, 5000 + i));
    pane.setFormats(100, formats);
    for (const auto& [first, last] : {std::pair(0, 0), {7, 9}, {12, 12}, {29, 29}, {0, 29}}) {
        std::vector<FormatId> others = formats;
        others[static_cast<std::size_t>(first)] = others[static_cast<std::size_t>(last)] = 0;
        reformatted.clear();
        pane.setFormats(100, others);
        ASSERT_EQ(reformatted.size(), 1U);
        EXPECT_EQ(reformatted[0], (std::pair<std::int64_t, std::int64_t>(100 + first, last - first + 1)));
        pane.setFormats(100, formats);
        EXPECT_EQ(pane.formatIdAt(100 + static_cast<std::size_t>(first)), formats[static_cast<std::size_t>(first)]);
    }
}

// ---- chunks ---------------------------------------------------------------------------------------------------------

std::vector<std::size_t> chunkSizes(std::size_t size, std::size_t chunkSize)
{
    std::vector<ChunkPointer> chunks;
    appendChunks(chunks, std::string(size, 'x'), std::vector<FormatId>(size).data(), chunkSize);
    std::vector<std::size_t> sizes;
    for (const ChunkPointer& chunk : chunks) sizes.push_back(chunk->size());
    return sizes;
}

TEST(AppendChunks, CutsEvenly)
{
    using Sizes = std::vector<std::size_t>;
    EXPECT_EQ(chunkSizes(0, 10), Sizes{});
    EXPECT_EQ(chunkSizes(1, 10), Sizes{1});
    EXPECT_EQ(chunkSizes(20, 10), Sizes{20}) << "twice the size is left whole";
    EXPECT_EQ(chunkSizes(21, 10), (Sizes{7, 7, 7}));
    EXPECT_EQ(chunkSizes(30, 10), (Sizes{10, 10, 10}));
    EXPECT_EQ(chunkSizes(31, 10), (Sizes{7, 8, 8, 8}));
}

TEST(ChunkSizeFor, CostsLeastOfAllSizes)
{
    EXPECT_EQ(chunkSizeFor(0), 512U);
    EXPECT_EQ(chunkSizeFor(40'000), 512U);
    EXPECT_EQ(chunkSizeFor(100'000'000), 8192U);
    for (const double size : {100'000.0, 1'000'000.0, 10'000'000.0}) {
        const auto cost = [&](double chunk) { return 1.4 * chunk + 8 * size / chunk; };
        const auto chosen = static_cast<double>(chunkSizeFor(static_cast<std::size_t>(size)));
        EXPECT_LT(cost(chosen), cost(chosen * 0.95)) << size;
        EXPECT_LT(cost(chosen), cost(chosen * 1.05)) << size;
    }
}

} // namespace
} // namespace tarvex
