#include "sheet/commands/print_controls.h"

#include "shell/paper_extras.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct PrintControlsTest : testing::Test {
    TestProgram t;
    PrintControlsTest()
    {
        t.files.addFile("c:\\tm\\b50progs\\mig.b50", "USE TQS\r\nUSE MDEF mig\r\nBTN S1 fire\r\nBTN T1 gear\r\n");
        t.files.addFile("c:\\tm\\b50progs\\mig.m50", "fire = SPC\r\n");
        t.openBoth("c:\\tm\\b50progs\\mig.b50");
    }
};

TEST_F(PrintControlsTest, SeeAndPrintShowsAPageForEachControllerOnItsLongSide)
{
    t.dialogues.answers = {Answer::Yes};
    t.printers.other.orientation = orientation::portrait;
    t.menus().mnuFilePrintControls.Click();
    EXPECT_EQ(t.lastBox().title, "Print the controls");
    EXPECT_EQ(
        t.lastBox().text,
        "I can draw a sheet of what is on which button of mig.b50, a page for each controller. Do you want to see "
        "and print it, or shall I save it as a file (PDF, SVG or a web page)?");
    EXPECT_THAT(t.lastBox().captions, ElementsAre("See and &print...", "&Save as a file..."));
    EXPECT_THAT(t.printers.previews, ElementsAre("Print preview - the controls of mig.b50"));
    ASSERT_EQ(t.printers.other.pages.size(), 2U);
    EXPECT_THAT(t.printers.other.pages[0].drawings.at(0), HasSubstr(">fire<"));
    EXPECT_THAT(t.printers.other.pages[0].drawings.at(0), HasSubstr(">Spacebar<"));
    EXPECT_THAT(t.printers.other.pages[1].drawings.at(0), HasSubstr(">gear<"));
    EXPECT_EQ(t.printers.printer.orientation, orientation::portrait) << "as it was before";
}

TEST_F(PrintControlsTest, SaveWritesTheFormOfTheExtension)
{
    for (const auto& [path, start] : {std::pair("c:\\tm\\mig.pdf", "%PDF"), std::pair("c:\\tm\\mig.svg", "<svg"),
                                      std::pair("c:\\tm\\mig.html", "<!DOCTYPE html>")}) {
        t.dialogues.answers = {Answer::No};
        t.dialogues.filesToSave = {path};
        t.menus().mnuFilePrintControls.Click();
        EXPECT_THAT(t.fileText(path), StartsWith(start));
    }
    EXPECT_EQ(t.dialogues.saveRequests.at(0).suggestedName, "mig controls.pdf");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).title, "Save the controls");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).directory, "c:\\tm\\b50progs\\");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).defaultExtension, "pdf");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).filter,
              "PDF file (*.pdf)|*.pdf|SVG drawing (*.svg)|*.svg|Web page (*.html)|*.html");
    EXPECT_EQ(t.status(), "mig.html saved");
}

TEST_F(PrintControlsTest, ATickKeepsACrowdedControllerOnOnePage)
{
    std::string text = "USE TQS\r\n";
    for (const char* hat : {"H1", "H2", "H3", "H4"}) {
        for (const char* way : {"U", "D", "L", "R", "M", "UL", "UR"})
            text += std::string("BTN ") + hat + way +
                    " /U /I Look_Left /O Look_Right /M Look_Back /D /I Gear_Up /O Gear_Down\r\n";
    }
    t.editor().JoystickText.setText(text);
    for (const bool onePage : {false, true}) {
        t.program().shared.extras.set(extraKey::sheetOnOnePage, onePage);
        t.dialogues.answers = {Answer::Yes};
        t.menus().mnuFilePrintControls.Click();
        EXPECT_EQ(t.printers.other.pages.size(), onePage ? 2U : 3U);
        t.printers.other.pages.clear();
    }
}

TEST_F(PrintControlsTest, TheSheetNamesBothFilesAndTheDate)
{
    t.dialogues.answers = {Answer::Yes, Answer::Yes};
    t.menus().mnuFilePrintControls.Click();
    EXPECT_THAT(t.printers.other.pages.at(0).drawings.at(0),
                HasSubstr(">with the macros of mig.m50, 21 November 2026<"));
    t.editor().MacroText.setText("");
    t.menus().mnuFilePrintControls.Click();
    EXPECT_THAT(t.printers.other.pages.at(0).drawings.at(0), HasSubstr(">21 November 2026<"));
}

TEST_F(PrintControlsTest, AFailureIsReported)
{
    t.printers.other.failsAtPage = 1;
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToSave = {"c:\\tm\\mig.svg"};
    t.files.failWrites("c:\\tm\\mig.svg", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.menus().mnuFilePrintControls.Click();
    EXPECT_EQ(t.lastBox().text, "Saving mig.svg went wrong: Disk full");
}

TEST_F(PrintControlsTest, CancelDoesNothing)
{
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuFilePrintControls.Click();
    EXPECT_THAT(t.printers.previews, IsEmpty());
    EXPECT_THAT(t.dialogues.saveRequests, IsEmpty());
}

TEST_F(PrintControlsTest, NeitherFileIsChanged)
{
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFilePrintControls.Click();
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
}

TEST(SheetPaper, IsLetterOnlyOnPaperOfItsProportions)
{
    FakePrinter printer;
    EXPECT_EQ(sheetPaper(printer).width, sheetA4.width);
    printer.width = 12240;
    printer.height = 15840;
    EXPECT_EQ(sheetPaper(printer).width, sheetLetter.width);
    std::swap(printer.width, printer.height);
    EXPECT_EQ(sheetPaper(printer).width, sheetLetter.width);
}

// ---- on paper -------------------------------------------------------------------------------------------------------

/// Keeps where drawings are painted. Edges of 240 twips at the sides and 360 above and below.
struct DrawingPrinter final : Printer {
    int width = 16838;
    int height = 11906;
    std::vector<PaperRectangle> places;
    int newPages = 0;

    int Orientation() const override { return orientation::landscape; }
    void setOrientation(int) override {}
    int Width() const override { return width; }
    int Height() const override { return height; }
    int physicalOffsetX() const override { return 100; }
    int physicalOffsetY() const override { return 150; }
    float twipsPerPixelX() const override { return 2.4F; }
    float twipsPerPixelY() const override { return 2.4F; }
    void setFontBold(bool) override {}
    void Print(const std::string&) override {}
    void PrintCentred(const std::string&, int, int, int) override {}
    void NewPage() override { ++newPages; }
    void EndDoc() override {}
    void KillDoc() override {}
    std::size_t formatRange(const StyledText&, const FormatRange& range) override { return range.end; }
    void releaseFormat() override {}
    void PaintPicture(const LoadedPicture&, const PaperRectangle&) override {}
    void PaintDrawing(const std::string&, const PaperRectangle& place) override { places.push_back(place); }
};

TEST(PrintSheet, EachPageIsAsLargeAsThePrintableAreaAllowsInItsProportions)
{
    const std::vector<LaidOutPage> pages(2, LaidOutPage{.paper = sheetA4, .items = {}});
    DrawingPrinter printer;
    printSheet(printer, pages);
    const PaperRectangle asHighAsThePaper{.right = 15830, .bottom = 11186};
    EXPECT_THAT(printer.places, testing::ElementsAre(asHighAsThePaper, asHighAsThePaper));
    EXPECT_EQ(printer.newPages, 1);
    DrawingPrinter narrow;
    narrow.width = 10000;
    printSheet(narrow, {pages.front()});
    EXPECT_THAT(narrow.places, testing::ElementsAre(PaperRectangle{.right = 9520, .bottom = 6727}));
    EXPECT_EQ(narrow.newPages, 0);
    DrawingPrinter tiny;
    tiny.width = 100;
    printSheet(tiny, {pages.front()});
    EXPECT_THAT(tiny.places, testing::ElementsAre(PaperRectangle{}));
}

} // namespace
} // namespace tarvex
