#include "documents/printing/print_commands.h"

#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct PrintCommandsTest : testing::Test {
    TestProgram t;
    FakePrinter& printer = t.printers.printer;

    PrintCommandsTest()
    {
        t.files.addFile("c:\\tm\\b50progs\\mig.b50", "USE MDEF mig\r\nBTN S1 fire\r\n");
        t.files.addFile("c:\\tm\\b50progs\\mig.m50", "fire = f\r\n");
        t.openBoth("c:\\tm\\b50progs\\mig.b50");
    }
    std::string longText(int lines)
    {
        std::string text;
        for (int line = 0; line < lines; ++line) text += "Rem\r\n";
        return text;
    }
};

TEST_F(PrintCommandsTest, TheJoystickFileIsPrintedBelowItsNameAndTheDate)
{
    t.menus().mnuFilePrintJoystick.Click();
    ASSERT_EQ(printer.pages.size(), 1U);
    EXPECT_THAT(printer.pages[0].lines, ElementsAre("", "*mig.b50", "*Date printed: 21 November 2026", "", " "));
    EXPECT_EQ(printer.pages[0].text, "USE MDEF mig\r\nBTN S1 fire\r\n");
    EXPECT_THAT(printer.pages[0].centred, IsEmpty());
    EXPECT_EQ(printer.ended, 1);
    EXPECT_EQ(t.status(), "Finished printing mig.b50");
    EXPECT_THAT(t.dialogues.boxes, IsEmpty());
}

TEST_F(PrintCommandsTest, TheMacroFileIsPrintedUnderItsOwnName)
{
    t.menus().mnuFilePrintMacro.Click();
    ASSERT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(printer.pages[0].lines.at(1), "*mig.m50");
    EXPECT_EQ(printer.pages[0].text, "fire = f\r\n");
    EXPECT_EQ(t.status(), "Finished printing mig.m50");
}

TEST_F(PrintCommandsTest, AnEmptyPaneIsNotPrintedAndIsNoError)
{
    t.editor().JoystickText.setText("");
    t.program().shared.errors.ErrorProcedure.clear();
    const std::string before = t.status();
    t.printers.count = 0;
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_THAT(printer.pages, IsEmpty());
    EXPECT_THAT(t.dialogues.boxes, IsEmpty());
    EXPECT_EQ(t.status(), before);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "");
}

TEST_F(PrintCommandsTest, WithoutAPrinterABoxSaysSoAndNothingElseChanges)
{
    t.printers.count = 0;
    const std::string before = t.status();
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(t.lastBox().title, "No printer to print to");
    EXPECT_EQ(t.lastBox().text,
              "I couldn't detect a printer connected to your system. Please check your printer settings.");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_THAT(printer.pages, IsEmpty());
    EXPECT_EQ(t.status(), before);
}

TEST_F(PrintCommandsTest, YesTurnsALandscapePrinterToPortraitWhichStays)
{
    printer.orientation = orientation::landscape;
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(t.lastBox().title, "Change orientation to Portrait?");
    EXPECT_EQ(t.lastBox().text, "Your printer is setup to print in Landscape. Would you like me to set it up to print "
                                "your file in Portrait first before I print this file?");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Question);
    EXPECT_EQ(printer.orientation, orientation::portrait);
    EXPECT_EQ(printer.pages.size(), 1U);
}

TEST_F(PrintCommandsTest, NoPrintsInLandscape)
{
    printer.orientation = orientation::landscape;
    t.dialogues.answers = {Answer::No};
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(printer.orientation, orientation::landscape);
    EXPECT_EQ(printer.pages.size(), 1U);
}

TEST_F(PrintCommandsTest, PrintingChangesNeitherTheChangedStateNorTheCaret)
{
    t.typeJoystick("Rem ");
    t.editor().JoystickText.setSelStart(5);
    t.editor().JoystickText.setSelLength(3);
    const std::int16_t changedBefore = t.editor().joystick.Changed;
    const std::size_t levels = t.editor().joystick.Undo.Levels.size();
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(t.editor().joystick.Changed, changedBefore);
    EXPECT_EQ(t.editor().joystick.Undo.Levels.size(), levels);
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 5);
    EXPECT_EQ(t.editor().JoystickText.SelLength(), 3);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
}

TEST_F(PrintCommandsTest, APrinterThatFailsHalfWayIsReportedAndTheDocumentGivenUp)
{
    t.editor().JoystickText.setText(longText(200));
    printer.failsAtPage = 2;
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(printer.ended, 0);
    EXPECT_EQ(printer.killed, 1);
    EXPECT_EQ(printer.released, 1) << "the printer would lay out the next text in the look of this one";
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "MODULE PrintRTF");
    EXPECT_EQ(t.program().shared.errors.ErrorDescription, "Out of paper");
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text, "Printing mig.b50 went wrong: Out of paper");
    EXPECT_EQ(t.status(), "Printing mig.b50 failed");
}

TEST_F(PrintCommandsTest, PaperSmallerThanTheMarginsIsReported)
{
    printer.width = printer.height = 2835; // 5 cm
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_EQ(t.lastBox().text, "Printing mig.b50 went wrong: The margins leave no room for the text on this paper.");
    EXPECT_EQ(printer.killed, 1);
}

TEST_F(PrintCommandsTest, TheFootHasWhatIsTicked)
{
    Extras& extras = t.program().shared.extras;
    t.editor().JoystickText.setText(longText(60));
    extras.set(extraKey::printPageNumbers, true);
    t.menus().mnuFilePrintJoystick.Click();
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_THAT(printer.pages[0].centred, ElementsAre("Page 1"));
    EXPECT_THAT(printer.pages[1].centred, ElementsAre("Page 2"));
    extras.set(extraKey::printFileName, true);
    printer.pages.clear();
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_THAT(printer.pages.at(1).centred, ElementsAre("mig.b50 - page 2"));
    extras.set(extraKey::printPageNumbers, false);
    printer.pages.clear();
    t.menus().mnuFilePrintJoystick.Click();
    EXPECT_THAT(printer.pages.at(1).centred, ElementsAre("mig.b50"));
}

TEST_F(PrintCommandsTest, PrinterSetupShowsTheSystemsDialogue)
{
    t.menus().mnuFilePrinterSetup.Click();
    EXPECT_EQ(t.printers.setUps, 1);
}

TEST_F(PrintCommandsTest, ThePreviewShowsTheSelectedFileAlsoWithoutAPrinter)
{
    t.printers.count = 0;
    t.editor().TabStrip1.Select(2);
    t.menus().mnuFilePrintPreview.Click();
    EXPECT_THAT(t.printers.previews, ElementsAre("Print preview - mig.m50"));
    EXPECT_EQ(t.printers.other.pages.at(0).text, "fire = f\r\n");
    EXPECT_THAT(printer.pages, IsEmpty());
}

TEST_F(PrintCommandsTest, AnEmptyFileHasNoPreview)
{
    t.editor().JoystickText.setText("");
    t.menus().mnuFilePrintPreview.Click();
    EXPECT_THAT(t.printers.previews, IsEmpty());
    EXPECT_EQ(t.status(), "There is nothing to print in mig.b50");
}

TEST_F(PrintCommandsTest, SaveAsPdfWritesTheFileThatTheUserChooses)
{
    t.dialogues.filesToSave = {"c:\\tm\\mig.pdf"};
    t.menus().mnuFilePrintPdf.Click();
    EXPECT_EQ(t.dialogues.saveRequests.at(0).suggestedName, "mig.pdf");
    EXPECT_EQ(t.dialogues.saveRequests.at(0).directory, "c:\\tm\\b50progs\\");
    EXPECT_EQ(t.fileText("c:\\tm\\mig.pdf"), "PDF of mig.b50, pages: 1");
    EXPECT_EQ(t.status(), "mig.pdf saved");
}

TEST_F(PrintCommandsTest, APdfFileIsOverwrittenOnlyOnYes)
{
    t.files.addFile("c:\\tm\\mig.pdf", "old");
    t.dialogues.filesToSave = {"c:\\tm\\mig.pdf", "c:\\tm\\mig.pdf"};
    t.dialogues.answers = {Answer::No, Answer::Yes};
    t.menus().mnuFilePrintPdf.Click();
    EXPECT_EQ(t.lastBox().title, "OK to overwrite?");
    EXPECT_EQ(t.lastBox().text, "mig.pdf already exists. Do you want me to overwrite this file?");
    EXPECT_EQ(t.fileText("c:\\tm\\mig.pdf"), "old");
    t.menus().mnuFilePrintPdf.Click();
    EXPECT_EQ(t.fileText("c:\\tm\\mig.pdf"), "PDF of mig.b50, pages: 1");
}

TEST_F(PrintCommandsTest, APdfFileThatCannotBeWrittenIsReported)
{
    t.files.failWrites("c:\\tm\\mig.pdf", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.filesToSave = {"c:\\tm\\mig.pdf"};
    t.menus().mnuFilePrintPdf.Click();
    EXPECT_EQ(t.lastBox().text, "Saving mig.pdf went wrong: Disk full");
    EXPECT_EQ(t.status(), "Saving mig.pdf failed");
    const FileRequest& request = t.dialogues.saveRequests.at(0);
    EXPECT_EQ(request.title, "Save as PDF");
    EXPECT_EQ(request.filter, "PDF file (*.pdf)|*.pdf|All files (*.*)|*.*");
    EXPECT_EQ(request.defaultExtension, "pdf");
}

} // namespace
} // namespace tarvex
