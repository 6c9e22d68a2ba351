#include "viewer/view_image.h"

#include "support/menu_text.h"
#include "support/test_program.h"
#include "viewer/image_commands.h"
#include "viewer/image_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct ViewImageTest : testing::Test {
    TestProgram t;
    ViewImage& window = t.program().imageViewer;

    ViewImageTest()
    {
        t.files.addFile("c:\\pictures\\keys.bmp", "PICTURE 640 480");
        t.files.addFile("c:\\pictures\\small.png", "PICTURE 60 40");
        window.ScaleWidth = 400;
        window.ScaleHeight = 300;
    }
    void open(const std::string& path)
    {
        t.dialogues.whileModal = [this, path] {
            window.select.Path = path;
            window.select.Form.Visible = false;
        };
        window.mnuImageLoad.Click();
        t.dialogues.whileModal = {};
    }
};

TEST_F(ViewImageTest, OpensWithTheImageLastUsed)
{
    t.settings().ImageFilePath = "c:\\pictures\\small.png";
    t.menus().mnuAppsImageViewer.Click();
    EXPECT_TRUE(window.form.Visible);
    ASSERT_NE(window.Picture3.get(), nullptr);
    EXPECT_EQ(window.Picture3.get()->width(), 60);
}

TEST_F(ViewImageTest, ItsMenusHaveTheirCommandsAndKeys)
{
    EXPECT_EQ(window.form.Caption.get(), "Image viewer");
    EXPECT_EQ(menuText(window.menuBar()), "&File\n"
                                          " &Save as bitmap...: Ctrl+S\n"
                                          " &Print: Ctrl+P\n"
                                          " -\n"
                                          " &Close\n"
                                          " E&xit\n"
                                          "&Image\n"
                                          " &Open...: Ctrl+O\n"
                                          " &Refresh: F5\n"
                                          " -\n"
                                          " &Show size\n"
                                          " &Edit: Ctrl+E\n"
                                          "&View\n"
                                          " Zoom &in: Ctrl++\n"
                                          " Zoom &out: Ctrl+-\n"
                                          " &Fit the window: Ctrl+9\n"
                                          " &Actual size: Ctrl+0\n"
                                          "&Help\n"
                                          " &Tarvex help topics\n");
}

TEST_F(ViewImageTest, ItsHelpMenuOpensTheHandbook)
{
    int opened = 0;
    t.menus().mnuHelpContents.handler = [&opened] { ++opened; };
    window.mnuHelpContents.Click();
    EXPECT_EQ(opened, 1);
}

TEST_F(ViewImageTest, OpensEmptyWhenTheImageLastUsedIsGone)
{
    t.settings().ImageFilePath = "c:\\pictures\\gone.bmp";
    t.program().shared.errors.ErrorProcedure.clear();
    t.menus().mnuAppsImageViewer.Click();
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.Picture3.get(), nullptr);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "");
}

TEST_F(ViewImageTest, AnOpenedImageIsRememberedForTheNextStart)
{
    open("c:\\pictures\\keys.bmp");
    EXPECT_EQ(window.Picture3.get()->height(), 480);
    EXPECT_EQ(t.status(), "c:\\pictures\\keys.bmp successfully opened");
    EXPECT_EQ(t.ini("Apps", "ImageFilePath"), "c:\\pictures\\keys.bmp");
}

TEST_F(ViewImageTest, NoPathFromTheChooserLeavesEverythingAsItIs)
{
    open("c:\\pictures\\keys.bmp");
    const std::string before = t.status();
    open("");
    EXPECT_EQ(window.Picture3.get()->height(), 480);
    EXPECT_EQ(t.status(), before);
}

TEST_F(ViewImageTest, APathThatDoesNotExistIsReportedInABox)
{
    open("c:\\pictures\\gone.bmp");
    EXPECT_EQ(t.lastBox().title, "Image file not found");
    EXPECT_EQ(t.lastBox().text, "c:\\pictures\\gone.bmp does not exist. Select Open from the Image menu to ensure the "
                                "correct path to the image file.");
}

TEST_F(ViewImageTest, AFileThatIsNoPictureLeavesTheOneThatIsShown)
{
    open("c:\\pictures\\keys.bmp");
    t.files.addFile("c:\\pictures\\text.bmp", "Rem");
    open("c:\\pictures\\text.bmp");
    EXPECT_EQ(window.Picture3.get()->height(), 480);
    EXPECT_EQ(t.ini("Apps", "ImageFilePath"), "c:\\pictures\\keys.bmp");
    EXPECT_THAT(t.status(),
                testing::StartsWith("c:\\pictures\\text.bmp is no picture that I can read (Invalid picture"));
}

TEST_F(ViewImageTest, APictureSmallerThanTheWindowHasNoScrollBars)
{
    open("c:\\pictures\\small.png");
    EXPECT_FALSE(window.HScroll1.Visible);
    EXPECT_FALSE(window.VScroll1.Visible);
    EXPECT_EQ(window.Picture2.get(), (Placement{0, 0, 400, 300}));
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 60, 40}));
}

TEST_F(ViewImageTest, APictureOfTheWindowsSizeHasNoScrollBars)
{
    t.files.addFile("c:\\pictures\\same.bmp", "PICTURE 400 300");
    open("c:\\pictures\\same.bmp");
    EXPECT_FALSE(window.HScroll1.Visible);
    EXPECT_FALSE(window.VScroll1.Visible);
}

TEST_F(ViewImageTest, ALargerPictureScrollsByTheDifferenceOfTheSizes)
{
    open("c:\\pictures\\keys.bmp");
    EXPECT_TRUE(window.HScroll1.Visible);
    EXPECT_TRUE(window.VScroll1.Visible);
    EXPECT_EQ(window.Picture2.get(), (Placement{0, 0, 400 - 17, 300 - 17}));
    EXPECT_EQ(window.HScroll1.Max, 640 - (400 - 17));
    EXPECT_EQ(window.VScroll1.Max, 480 - (300 - 17));
    EXPECT_EQ(window.HScroll1.LargeChange, (640 - 383) / 10);
    EXPECT_EQ(window.HScroll1.SmallChange, (640 - 383) / 50);
    window.HScroll1.Value = 100;
    window.HScroll1.Change();
    window.VScroll1.Value = 50;
    window.VScroll1.Change();
    EXPECT_EQ(window.Picture3Place.get(), (Placement{-100, -50, 640, 480}));
    RepositionControls(window);
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 640, 480}));
}

TEST_F(ViewImageTest, ABarThatTakesRoomCanMakeTheOtherOneNecessary)
{
    t.files.addFile("c:\\pictures\\tall.bmp", "PICTURE 390 1000");
    open("c:\\pictures\\tall.bmp");
    EXPECT_TRUE(window.VScroll1.Visible);
    EXPECT_TRUE(window.HScroll1.Visible) << "390 is more than what is left beside the bar";
    t.files.addFile("c:\\pictures\\wide.bmp", "PICTURE 1000 290");
    open("c:\\pictures\\wide.bmp");
    EXPECT_TRUE(window.HScroll1.Visible);
    EXPECT_TRUE(window.VScroll1.Visible);
}

TEST_F(ViewImageTest, RefreshReadsTheFileAnewAndReportsAFailureUnderItsTag)
{
    open("c:\\pictures\\keys.bmp");
    t.files.addFile("c:\\pictures\\keys.bmp", "PICTURE 10 20");
    window.mnuImageRefresh.Click();
    EXPECT_EQ(window.Picture3.get()->height(), 20);
    t.files.addFile("c:\\pictures\\keys.bmp", "");
    window.mnuImageRefresh.Click();
    EXPECT_EQ(window.Picture3.get()->height(), 20);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "IMAGE mnuImageRefresh_Click");
}

TEST_F(ViewImageTest, ShowSizeNamesTheSize)
{
    open("c:\\pictures\\keys.bmp");
    window.mnuShowSize.Click();
    EXPECT_EQ(t.lastBox().title, "Image size");
    EXPECT_EQ(t.lastBox().text, "Current image size is: 640 by 480.");
}

TEST_F(ViewImageTest, EditHandsTheFileToTheSystem)
{
    open("c:\\pictures\\keys.bmp");
    window.mnuImageEdit.Click();
    EXPECT_THAT(t.pictures.openedOutside, ElementsAre("c:\\pictures\\keys.bmp"));
}

TEST_F(ViewImageTest, SaveWritesABitmap)
{
    open("c:\\pictures\\small.png");
    t.dialogues.filesToSave = {"c:\\pictures\\copy.bmp"};
    window.mnuFileSave.Click();
    EXPECT_EQ(t.fileText("c:\\pictures\\copy.bmp"), "BITMAP 60 40");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).filter, "Picture file (*.bmp)|*.bmp");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).defaultExtension, "bmp");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).suggestedName, "small.bmp");
}

TEST_F(ViewImageTest, SaveStartsFromTheLastNameUntilAnotherImageIsOpened)
{
    open("c:\\pictures\\small.png");
    t.dialogues.filesToSave = {"c:\\pictures\\mine\\copy.bmp", "c:\\pictures\\b.bmp", "c:\\pictures\\c.bmp"};
    t.files.addDirectory("c:\\pictures\\mine");
    window.mnuFileSave.Click();
    window.mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.saveRequests.at(1).suggestedName, "copy.bmp");
    EXPECT_EQ(t.dialogues.saveRequests.at(1).directory, "c:\\pictures\\mine\\");
    open("c:\\pictures\\small.png");
    window.mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.saveRequests.at(2).suggestedName, "small.bmp");
}

TEST_F(ViewImageTest, SaveOverAFileAsksFirst)
{
    open("c:\\pictures\\small.png");
    t.dialogues.filesToSave = {"c:\\pictures\\keys.bmp", "c:\\pictures\\keys.bmp"};
    t.dialogues.answers = {Answer::No, Answer::Yes};
    window.mnuFileSave.Click();
    EXPECT_EQ(t.lastBox().title, "OK to overwrite exisiting file?");
    EXPECT_EQ(t.lastBox().text, "keys.bmp already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(t.fileText("c:\\pictures\\keys.bmp"), "PICTURE 640 480");
    window.mnuFileSave.Click();
    EXPECT_EQ(t.fileText("c:\\pictures\\keys.bmp"), "BITMAP 60 40");
}

TEST_F(ViewImageTest, PrintWithoutAPrinterSaysSo)
{
    open("c:\\pictures\\small.png");
    t.printers.count = 0;
    window.mnuPrint.Click();
    EXPECT_EQ(t.lastBox().title, "No printer detected");
    EXPECT_THAT(t.lastBox().text, StartsWith("Sorry - I couldn't detect a printer connected to your system, so I can't "
                                             "print out this image."));
    EXPECT_EQ(t.dialogues.boxes.size(), 1U) << "nothing is tried without a printer";
    EXPECT_TRUE(t.printers.printer.pages.empty());
}

TEST_F(ViewImageTest, PrintPaintsThePictureAtThePagesOrigin)
{
    open("c:\\pictures\\small.png");
    window.mnuPrint.Click();
    ASSERT_EQ(t.printers.printer.pages.size(), 1U);
    EXPECT_THAT(t.printers.printer.pages[0].pictures, ElementsAre(PaperRectangle{0, 0, 900, 600}));
    EXPECT_EQ(t.printers.printer.ended, 1);
    EXPECT_EQ(t.status(), "Printing complete");
}

TEST_F(ViewImageTest, APictureLargerThanThePaperIsPrintedOnlyOnYes)
{
    t.files.addFile("c:\\pictures\\poster.bmp", "PICTURE 794 100"); // 11,910 twips
    open("c:\\pictures\\poster.bmp");
    t.dialogues.answers = {Answer::No, Answer::Yes};
    window.mnuPrint.Click();
    EXPECT_EQ(t.lastBox().title, "OK to print?");
    EXPECT_EQ(t.lastBox().text,
              "Warning: The image size is greater than the Printer's page size settings (8.27 by 11.69). Do you still "
              "want me to try and print out the layout? This may result in a problem for your printer, or a lot of "
              "extra paper being churned out.");
    EXPECT_THAT(t.printers.printer.pages, IsEmpty());
    window.mnuPrint.Click();
    EXPECT_EQ(t.printers.printer.pages.size(), 1U);
}

TEST_F(ViewImageTest, APictureOfThePapersSizeIsPrintedWithoutAQuestion)
{
    t.printers.printer.width = 794 * twipsPerPixel;
    t.files.addFile("c:\\pictures\\poster.bmp", "PICTURE 794 100");
    open("c:\\pictures\\poster.bmp");
    window.mnuPrint.Click();
    EXPECT_EQ(t.printers.printer.pages.size(), 1U);
}

TEST_F(ViewImageTest, APrinterThatFailsIsReported)
{
    open("c:\\pictures\\small.png");
    t.printers.printer.failsAtPage = 1;
    window.mnuPrint.Click();
    EXPECT_THAT(t.lastBox().text, HasSubstr("Out of paper"));
    EXPECT_EQ(t.printers.printer.killed, 1);
}

TEST_F(ViewImageTest, FailuresAreReportedUnderTheirProceduresAndSaidInTheStatus)
{
    open("c:\\pictures\\small.png");
    const auto reported = [this] { return t.program().shared.errors.ErrorProcedure; };
    t.files.failWrites("c:\\pictures\\copy.bmp", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.filesToSave = {"c:\\pictures\\copy.bmp"};
    window.mnuFileSave.Click();
    EXPECT_EQ(reported(), "IMAGE mnuFileSave_Click");
    EXPECT_EQ(t.lastBox().text, "Saving the image went wrong: Disk full");
    EXPECT_EQ(t.status(), "Saving the image failed");
    t.printers.printer.failsAtPage = 1;
    window.mnuPrint.Click();
    EXPECT_EQ(reported(), "IMAGE mnuPrint_Click");
    EXPECT_EQ(t.lastBox().text, "Printing the image went wrong: Out of paper");
    EXPECT_EQ(t.status(), "Printing the image failed");
    t.files.addFile("c:\\pictures\\text.bmp", "Rem");
    open("c:\\pictures\\text.bmp");
    EXPECT_EQ(reported(), "IMAGE mnuImageLoad_Click");
    t.files.addFile("c:\\pictures\\small.png", "");
    window.mnuImageRefresh.Click();
    EXPECT_EQ(reported(), "IMAGE mnuImageRefresh_Click");
    EXPECT_EQ(t.status(), "c:\\pictures\\small.png couldn't be read again (Invalid picture)");
    window.mnuFileClose.Click();
    t.menus().mnuAppsImageViewer.Click();
    EXPECT_EQ(reported(), "IMAGE Form_Load");
    EXPECT_TRUE(window.form.Visible);
}

TEST_F(ViewImageTest, WhatIsUnderWayIsSaidInTheStatus)
{
    std::vector<std::string> texts;
    const auto listening =
        t.program().mum.StatusBar.Panels(1).Text.changed.connect([&] { texts.push_back(t.status()); });
    open("c:\\pictures\\small.png");
    window.mnuPrint.Click();
    t.dialogues.filesToSave = {"c:\\pictures\\copy.bmp"};
    window.mnuFileSave.Click();
    EXPECT_THAT(texts, ElementsAre("Opening c:\\pictures\\small.png", "c:\\pictures\\small.png successfully opened",
                                   "Printing image ... hang on .... this may take a while.", "Printing complete",
                                   "copy.bmp saved"));
}

TEST_F(ViewImageTest, WithoutAnImageThereIsNothingToSaveOrPrintAndItsSizeIsNothing)
{
    window.mnuFileSave.Click();
    window.mnuPrint.Click();
    EXPECT_THAT(t.dialogues.saveRequests, IsEmpty());
    EXPECT_THAT(t.printers.printer.pages, IsEmpty());
    window.mnuShowSize.Click();
    EXPECT_EQ(t.lastBox().text, "Current image size is: 0 by 0.");
    window.mnuZoomFit.Click();
    EXPECT_EQ(window.Zoom, 1);
}

TEST_F(ViewImageTest, PaperSizesAreWrittenInInchesWithoutZerosAtTheEnd)
{
    t.files.addFile("c:\\pictures\\poster.bmp", "PICTURE 5000 5000");
    open("c:\\pictures\\poster.bmp");
    t.printers.printer.width = 12240;
    t.printers.printer.height = 15840;
    t.dialogues.answers = {Answer::No, Answer::No};
    window.mnuPrint.Click();
    EXPECT_THAT(t.lastBox().text, HasSubstr("settings (8.5 by 11). "));
    t.printers.printer.width = 72;
    t.printers.printer.height = 14400;
    window.mnuPrint.Click();
    EXPECT_THAT(t.lastBox().text, HasSubstr("settings (0.05 by 10). "));
}

TEST_F(ViewImageTest, APictureThatIsTooHighForThePaperIsAskedAboutToo)
{
    t.files.addFile("c:\\pictures\\tower.bmp", "PICTURE 10 1123"); // 16,845 twips
    open("c:\\pictures\\tower.bmp");
    t.dialogues.answers = {Answer::No};
    window.mnuPrint.Click();
    EXPECT_THAT(t.printers.printer.pages, IsEmpty());
}

TEST_F(ViewImageTest, ScrollBarsOfAFewPixelsMoveByOne)
{
    t.files.addFile("c:\\pictures\\edge.bmp", "PICTURE 388 305");
    open("c:\\pictures\\edge.bmp");
    EXPECT_EQ(window.VScroll1.Max, 305 - (300 - 17));
    EXPECT_EQ(window.HScroll1.Max, 388 - (400 - 17));
    EXPECT_EQ(window.HScroll1.LargeChange, 1);
    EXPECT_EQ(window.HScroll1.SmallChange, 1);
}

TEST_F(ViewImageTest, ABarThatTheOtherOneMakesNecessaryTakesItsRoom)
{
    t.files.addFile("c:\\pictures\\wide.bmp", "PICTURE 1000 290");
    open("c:\\pictures\\wide.bmp");
    EXPECT_EQ(window.Picture2.get(), (Placement{0, 0, 400 - 17, 300 - 17}));
    t.files.addFile("c:\\pictures\\flat.bmp", "PICTURE 1000 283");
    open("c:\\pictures\\flat.bmp");
    EXPECT_EQ(window.Picture2.get(), (Placement{0, 0, 400, 300 - 17}));
    EXPECT_FALSE(window.VScroll1.Visible);
}

TEST_F(ViewImageTest, ZoomOfTheMenuKeepsTheMiddleAndAnotherImageHasItsOwnSize)
{
    t.files.addFile("c:\\pictures\\large.bmp", "PICTURE 1600 1200");
    open("c:\\pictures\\large.bmp");
    window.HScroll1.Value = 300;
    window.VScroll1.Value = 200;
    const double middle = (300 + 383 / 2) * zoomStep;
    const double middleDown = (200 + 283 / 2) * zoomStep;
    window.mnuZoomIn.Click();
    EXPECT_NEAR(window.HScroll1.Value + 383 / 2, middle, 1);
    EXPECT_NEAR(window.VScroll1.Value + 283 / 2, middleDown, 1);
    window.mnuZoomOut.Click();
    EXPECT_NEAR(window.HScroll1.Value, 300, 1);
    window.mnuZoomIn.Click();
    open("c:\\pictures\\small.png");
    EXPECT_EQ(window.Zoom, 1);
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 60, 40}));
}

TEST_F(ViewImageTest, ZoomKeepsThePointUnderThePointer)
{
    open("c:\\pictures\\keys.bmp");
    zoomAt(window, 2, 100, 50);
    EXPECT_EQ(window.Picture3Place.get(), (Placement{-100, -50, 1280, 960}));
    zoomAt(window, 0.5, 100, 50);
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 640, 480}));
}

TEST_F(ViewImageTest, ZoomHasBoundsAndNeedsAPicture)
{
    zoomAt(window, 2, 0, 0);
    EXPECT_EQ(window.Zoom, 1);
    open("c:\\pictures\\small.png");
    for (int turn = 0; turn < 100; ++turn) window.mnuZoomIn.Click();
    EXPECT_EQ(window.Zoom, 16);
    for (int turn = 0; turn < 100; ++turn) window.mnuZoomOut.Click();
    EXPECT_EQ(window.Picture3Place.get().Width, 2);
}

TEST_F(ViewImageTest, FitShowsALargePictureWholeAndASmallOneInItsSize)
{
    open("c:\\pictures\\keys.bmp");
    window.mnuZoomFit.Click();
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 400, 300}));
    EXPECT_FALSE(window.HScroll1.Visible);
    window.mnuZoomActual.Click();
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 640, 480}));
    open("c:\\pictures\\small.png");
    window.mnuZoomFit.Click();
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 60, 40}));
}

TEST_F(ViewImageTest, CloseAndExitTakeTheWindowDown)
{
    for (MenuItem* item : {&window.mnuFileClose, &window.mnuFileExit}) {
        t.menus().mnuAppsImageViewer.Click();
        item->Click();
        EXPECT_FALSE(window.form.Visible);
        EXPECT_EQ(window.WindowOpen, 0);
    }
}

TEST_F(ViewImageTest, TheImageLastUsedIsPlacedAndScrolledToItsBeginning)
{
    t.settings().ImageFilePath = "c:\\pictures\\keys.bmp";
    t.menus().mnuAppsImageViewer.Click();
    EXPECT_TRUE(window.form.isLoaded());
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 640, 480}));
    window.HScroll1.Value = 100;
    RepositionControls(window);
    EXPECT_EQ(window.HScroll1.Value, 0);
    window.form.unload();
    EXPECT_FALSE(window.form.isLoaded());
}

TEST_F(ViewImageTest, ZoomOfTheMenuKeepsTheMiddleOfWhatIsScrolled)
{
    open("c:\\pictures\\keys.bmp");
    window.HScroll1.Value = 100;
    window.HScroll1.Change();
    window.VScroll1.Value = 50;
    window.VScroll1.Change();
    window.mnuZoomIn.Click();
    EXPECT_GT(window.Zoom, 1);
    EXPECT_NEAR(window.HScroll1.Value.get(), (100 + 191) * window.Zoom - 191, 1);
    EXPECT_NEAR(window.VScroll1.Value.get(), (50 + 141) * window.Zoom - 141, 1);
}

TEST_F(ViewImageTest, APictureOfOnePixelIsShownAsOne)
{
    t.files.addFile("c:\\pictures\\dot.bmp", "PICTURE 1 1");
    open("c:\\pictures\\dot.bmp");
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 1, 1}));
    window.mnuZoomOut.Click();
    EXPECT_EQ(window.Picture3Place.get(), (Placement{0, 0, 1, 1}));
}

TEST_F(ViewImageTest, APictureAsHighAsThePaperIsPrintedWithoutAQuestion)
{
    t.printers.printer.height = 1123 * twipsPerPixel;
    t.files.addFile("c:\\pictures\\tower.bmp", "PICTURE 10 1123");
    open("c:\\pictures\\tower.bmp");
    window.mnuPrint.Click();
    EXPECT_EQ(t.printers.printer.pages.size(), 1U);
}

} // namespace
} // namespace tarvex
