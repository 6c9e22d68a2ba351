#include "documents/printing/print_rtf.h"

#include "platform/errors.h"
#include "support/fake_printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Lines between margins of 1440 twips on the paper of FakePrinter.
constexpr int linesPerPage = (16838 - 2 * 1440) / FakePrinter::lineHeight;

std::string linesOfText(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line)
        text += (line == 1 ? "" : "\r\n") + std::string("Rem ") + std::to_string(line);
    return text;
}

struct PrintRtfTest : testing::Test {
    FakePrinter printer;
    Pane pane;

    void print(const std::string& text)
    {
        pane.setText(text);
        PrintRTF(printer, pane, printMargin, printMargin, printMargin, printMargin);
    }
    std::string allText() const
    {
        std::string text;
        for (const FakePrinter::Page& page : printer.pages) text += page.text;
        return text;
    }
};

TEST_F(PrintRtfTest, TheRectanglesAreSeenFromThePrintableArea)
{
    pane.setText("BTN S1 fire");
    PrintRTF(printer, pane, 1000, 1100, 1200, 1300);
    ASSERT_EQ(printer.pages.size(), 1U);
    const FormatRange& range = printer.pages[0].ranges.at(0);
    EXPECT_EQ(range.rectangle, (PaperRectangle{1000 - 240, 1100 - 360, 11906 - 1200 - 240, 16838 - 1300 - 360}));
    EXPECT_EQ(range.page, (PaperRectangle{-240, -360, 11906 - 240, 16838 - 360}));
    EXPECT_EQ(range.start, 0U);
    EXPECT_EQ(range.end, 11U);
}

TEST_F(PrintRtfTest, EachPageBeginsWithABlankAndTheFirstCharacterNotYetPrinted)
{
    const std::string text = linesOfText(3 * linesPerPage - 1);
    print(text);
    ASSERT_EQ(printer.pages.size(), 3U);
    for (const FakePrinter::Page& page : printer.pages) EXPECT_THAT(page.lines, ElementsAre(" "));
    EXPECT_EQ(printer.pages[1].ranges.at(0).start, printer.pages[0].text.size());
    EXPECT_EQ(printer.pages[2].ranges.at(0).start, printer.pages[0].text.size() + printer.pages[1].text.size());
    EXPECT_EQ(allText(), text);
    EXPECT_EQ(printer.released, 1);
}

TEST_F(PrintRtfTest, ATextOfExactlyOnePageHasNoBlankSecondPage)
{
    print(linesOfText(linesPerPage));
    EXPECT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(printer.pages[0].ranges.size(), 1U);
}

TEST_F(PrintRtfTest, OneLineMoreThanAPageHasASecondPage)
{
    print(linesOfText(linesPerPage + 1));
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_EQ(printer.pages[1].text, "Rem " + std::to_string(linesPerPage + 1));
}

TEST_F(PrintRtfTest, AHundredPagesHaveTheWholeText)
{
    const std::string text = linesOfText(100 * linesPerPage);
    print(text);
    EXPECT_EQ(printer.pages.size(), 100U);
    EXPECT_EQ(allText(), text);
}

TEST_F(PrintRtfTest, MarginsLargerThanThePaperAreAnErrorAfterTheFirstPage)
{
    printer.width = printer.height = 2835; // 5 cm
    EXPECT_THROW(print("BTN S1 fire"), RuntimeError);
    EXPECT_EQ(printer.pages.size(), 1U);
}

TEST_F(PrintRtfTest, PaperOfFiveCentimetresHasRoomBetweenSmallMargins)
{
    printer.width = printer.height = 2835;
    pane.setText(linesOfText(20));
    PrintRTF(printer, pane, 400, 400, 400, 400);
    EXPECT_EQ(printer.pages.size(), 3U);
    EXPECT_EQ(allText(), linesOfText(20));
}

TEST_F(PrintRtfTest, TheEndOfEachPageIsReportedWithItsNumber)
{
    std::vector<int> ends;
    pane.setText(linesOfText(linesPerPage + 1));
    PrintRTF(printer, pane, printMargin, printMargin, printMargin, printMargin,
             [&](int page, const PaperRectangle&) { ends.push_back(page); });
    EXPECT_THAT(ends, ElementsAre(1, 2));
}

TEST_F(PrintRtfTest, TheTextHasTheLookOfItsCharacters)
{
    pane.setText("BTN S1");
    pane.setSelStart(4);
    pane.setSelLength(2);
    pane.setSelColor(0xFF0000);
    pane.setSelBold(true);
    pane.setSelIndent(300);
    const StyledText text = styledText(pane);
    EXPECT_EQ(text.text, "BTN S1");
    ASSERT_EQ(text.runs.size(), 2U);
    EXPECT_EQ(text.runs[0].length, 4U);
    EXPECT_EQ(text.runs[0].colour, 0);
    EXPECT_EQ(text.runs[1].length, 2U);
    EXPECT_EQ(text.runs[1].colour, 0xFF0000);
    EXPECT_TRUE(text.runs[1].bold);
    EXPECT_EQ(text.runs[1].indent, 300);
}

TEST(StyledText, HasTheColoursThatTheInkMakesOfThem)
{
    Pane pane;
    pane.setText("ab");
    pane.setSelLength(1);
    pane.setSelColor(255);
    const auto coloursWith = [&](const PaperInk& ink) {
        std::vector<Colour> colours;
        for (const auto& run : styledText(pane, ink).runs) colours.push_back(run.colour);
        return colours;
    };
    EXPECT_EQ(coloursWith({}), (std::vector<Colour>{255, 0}));
    EXPECT_EQ(coloursWith([](Colour colour) { return colour + 7; }), (std::vector<Colour>{262, 7}));
}

} // namespace
} // namespace tarvex
