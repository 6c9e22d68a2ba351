// The panes through Qt to PDF, read back with other programs.

#include "printed_pages.h"

#include "desktop/platform/qt_paper.h"
#include "desktop/platform/qt_printers.h"
#include "documents/printing/print_pane.h"
#include "documents/printing/print_rtf.h"
#include "shell/paper_extras.h"
#include "support/test_program.h"

#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QPdfWriter>
#include <QTimer>

namespace tarvex {
namespace {

struct PrintedTextTest : testing::Test {
    TestProgram t;
    QtPrinters printers;
    Pane& pane = t.editor().JoystickText;

    PrintedPages print(const std::string& text)
    {
        pane.setText(text);
        return print();
    }
    PrintedPages print() { return PrintedPages(printers.pdf("mig.b50", printJob(t.editor(), pane, "mig.b50"))); }
    void look(std::int64_t start, std::int64_t length)
    {
        pane.setSelStart(start);
        pane.setSelLength(length);
    }
    /// The lines of all pages, without the head of the first.
    static QStringList lines(const PrintedPages& printed)
    {
        QStringList all;
        for (const QStringList& page : printed.text) all += page;
        return all.mid(2);
    }
};

constexpr int twipsPerInch = 1440;

std::string numberedLines(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line) text += "BTN S1 line" + std::to_string(line) + "\r\n";
    return text;
}

/// Lines of the pane's font on the paper of pdf().
int linesOfOnePage(PrintedTextTest& test)
{
    const PrintedPages printed = test.print(numberedLines(200));
    return static_cast<int>(printed.text.at(0).size()) - 2;
}

TEST_F(PrintedTextTest, NameDateAndTextComeInOrder)
{
    const PrintedPages printed = print("USE MDEF mig\r\n\r\nBTN S1 fire\r\nBTN S2 gear\r\n");
    ASSERT_EQ(printed.pages.size(), 1U);
    ASSERT_EQ(printed.text[0].size(), 5);
    EXPECT_EQ(printed.text[0][0].trimmed(), "mig.b50");
    EXPECT_EQ(printed.text[0][1].trimmed(), "Date printed: 21 November 2026");
    EXPECT_EQ(printed.text[0][2].trimmed(), "USE MDEF mig");
    EXPECT_EQ(printed.text[0][3].trimmed(), "BTN S1 fire");
    EXPECT_EQ(printed.text[0][4].trimmed(), "BTN S2 gear");
}

TEST_F(PrintedTextTest, ColoursAreThoseOfThePane)
{
    pane.setText("BTN S1 fire\r\nRem green\r\n");
    look(0, 11);
    pane.setSelColor(0x0000FF); // red
    pane.setSelFontSize(30);
    look(13, 9);
    pane.setSelColor(0x008000);
    pane.setSelFontSize(30);
    const PrintedPages printed = print();
    EXPECT_TRUE(printed.has(0, QColor(255, 0, 0)));
    EXPECT_TRUE(printed.has(0, QColor(0, 128, 0)));
    EXPECT_FALSE(printed.has(0, QColor(0, 0, 255)));
}

TEST_F(PrintedTextTest, LightLettersOfADarkWindowArePrintedDarkerUnlessTheTickIsOff)
{
    pane.setText("BTN S1 fire\r\n");
    look(0, 11);
    pane.setSelColor(0x80FFFF); // pale yellow
    pane.setSelFontSize(30);
    const QColor pale(255, 255, 128);
    EXPECT_TRUE(print().has(0, pale)) << "the window is light";
    pane.BackColor = 0x202020;
    EXPECT_FALSE(print().has(0, pale));
    t.program().shared.extras.set(extraKey::darkenedPaper, false);
    EXPECT_TRUE(print().has(0, pale));
}

TEST_F(PrintedTextTest, TheTextStandsWithinItsMarginsAndNothingAtTheEdge)
{
    const PrintedPages printed = print(numberedLines(300));
    ASSERT_GT(printed.pages.size(), 2U);
    constexpr int inch = PrintedPages::dotsPerInch;
    for (std::size_t page = 1; page < printed.pages.size(); ++page) { // the first has its head in the margin
        const QRect ink = printed.ink(page);
        EXPECT_GE(ink.left(), inch - 1) << page;
        EXPECT_GE(ink.top(), inch - 1) << page;
        EXPECT_LE(ink.right(), printed.pages[page].width() - inch) << page;
        EXPECT_LE(ink.bottom(), printed.pages[page].height() - inch) << page;
    }
    EXPECT_GT(printed.ink(0).top(), 5) << "the head";
}

TEST_F(PrintedTextTest, AFileOfExactlyOnePageHasOnePageAndALineMoreHasTwo)
{
    const int fits = linesOfOnePage(*this);
    ASSERT_GT(fits, 30);
    EXPECT_EQ(print(numberedLines(fits)).pages.size(), 1U);
    EXPECT_EQ(print(numberedLines(fits + 1)).pages.size(), 2U);
}

TEST_F(PrintedTextTest, LongLinesAreWrappedAndNothingOfThemIsLost)
{
    std::string words;
    for (int word = 0; word < 60; ++word) words += "macro" + std::to_string(word) + " ";
    const PrintedPages printed = print(words + "\r\n" + std::string(300, 'M') + "\r\nend");
    const QStringList all = lines(printed);
    EXPECT_EQ(all.join(u' ').split(u' ', Qt::SkipEmptyParts).filter("macro").size(), 60);
    EXPECT_EQ(all.join(QString()).count(u'M'), 300);
    EXPECT_EQ(all.last().trimmed(), "end");
    EXPECT_LE(printed.ink(0).right(), printed.pages[0].width() - PrintedPages::dotsPerInch);
}

TEST_F(PrintedTextTest, AnIndentedParagraphIsWrappedAtTheSameMargin)
{
    pane.setText(std::string(300, 'M'));
    look(0, 300);
    pane.setSelIndent(twipsPerInch);
    const PrintedPages printed = print();
    constexpr int inch = PrintedPages::dotsPerInch;
    EXPECT_GE(printed.ink(0).right(), printed.pages[0].width() - 3 * inch / 2) << "as far as there is room";
    EXPECT_LE(printed.ink(0).right(), printed.pages[0].width() - inch);
    EXPECT_EQ(lines(printed).join(QString()).count(u'M'), 300);
}

TEST_F(PrintedTextTest, AWrappedLineGoesOnOverThePageBreak)
{
    std::string text;
    for (int word = 1; word <= 3000; ++word) text += "m" + std::to_string(word) + " ";
    const QStringList words = lines(print(text)).join(u' ').split(u' ', Qt::SkipEmptyParts);
    ASSERT_EQ(words.size(), 3000);
    for (int word = 1; word <= 3000; ++word) ASSERT_EQ(words[word - 1], "m" + QString::number(word));
}

TEST_F(PrintedTextTest, TabsLineUpAtTheirStops)
{
    const QStringList all = lines(print("S1\tfire\r\nH1U\tgear\r\n"));
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].indexOf("fire"), all[1].indexOf("gear"));
    EXPECT_GT(all[0].indexOf("fire"), all[0].indexOf("S1") + 2);
}

TEST_F(PrintedTextTest, AHundredPagesHaveEveryLineOnce)
{
    const int fits = linesOfOnePage(*this);
    const PrintedPages printed = print(numberedLines(100 * fits));
    EXPECT_EQ(printed.pages.size(), 100U);
    const QStringList all = lines(printed);
    ASSERT_EQ(all.size(), 100 * fits);
    for (int line = 0; line < all.size(); ++line)
        ASSERT_EQ(all[line].trimmed(), "BTN S1 line" + QString::number(line + 1));
}

TEST_F(PrintedTextTest, LettersOfTheCodePageArePrinted)
{
    const PrintedPages printed = print("Rem \x80 \xE4 \xDF \x96");
    EXPECT_EQ(lines(printed).at(0).trimmed(), QString::fromUtf8("Rem € ä ß –"));
}

TEST_F(PrintedTextTest, TheFootStandsInTheMiddleBelowTheText)
{
    t.program().shared.extras.set(extraKey::printPageNumbers, true);
    t.program().shared.extras.set(extraKey::printFileName, true);
    const PrintedPages printed = print(numberedLines(100));
    ASSERT_EQ(printed.pages.size(), 2U);
    EXPECT_EQ(printed.text[0].last().trimmed(), "mig.b50 - page 1");
    EXPECT_EQ(printed.text[1].last().trimmed(), "mig.b50 - page 2");
    const QRect ink = printed.ink(1);
    const QImage& page = printed.pages[1];
    EXPECT_GT(ink.bottom(), page.height() - PrintedPages::dotsPerInch);
    EXPECT_LT(ink.bottom(), page.height() - PrintedPages::dotsPerInch / 3);
}

TEST_F(PrintedTextTest, PaperOfFiveCentimetresHasNoRoomBetweenTheMarginsAndSaysSo)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(50, 50), QPageSize::Millimeter));
    writer.setPageMargins({});
    QtPaper paper(writer);
    pane.setText("BTN S1 fire");
    EXPECT_THROW(printJob(t.editor(), pane, "mig.b50")(paper), RuntimeError);
    paper.KillDoc();
}

TEST_F(PrintedTextTest, SmallMarginsLeaveRoomOnPaperOfFiveCentimetres)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(50, 50), QPageSize::Millimeter));
    writer.setPageMargins({});
    QtPaper paper(writer);
    EXPECT_NEAR(paper.Width(), 2835, 20);
    pane.setText(numberedLines(30));
    PrintRTF(paper, pane, 500, 500, 500, 500);
    paper.EndDoc();
    const PrintedPages printed(buffer.data().toStdString());
    EXPECT_GT(printed.pages.size(), 1U);
    QStringList all;
    for (const QStringList& page : printed.text) all += page;
    EXPECT_EQ(all.size(), 30);
}

// ---- the system's printers ------------------------------------------------------------------------------------------

TEST(SystemPrinters, AreFoundInTheirLibrary)
{
    QtPrinters printers;
    EXPECT_GE(printers.Count(), 0);
    Printer& printer = printers.current();
    EXPECT_GT(printer.Width(), 0);
    EXPECT_GT(printer.physicalOffsetX(), 0);
    printer.setOrientation(orientation::landscape);
    EXPECT_EQ(printer.Orientation(), orientation::landscape);
    EXPECT_GT(printer.Width(), printer.Height());
    printer.setOrientation(orientation::portrait);
    EXPECT_LT(printer.Width(), printer.Height());
}

TEST(SystemPrinters, WithoutTheirLibraryThereAreNoneAndPdfFilesAreMadeAllTheSame)
{
    QtPrinters printers("/nowhere/printing.so");
    EXPECT_EQ(printers.Count(), 0);
    EXPECT_THROW(printers.current(), RuntimeError);
    EXPECT_THROW(printers.setUp(), RuntimeError);
    const PrintedPages printed(printers.pdf("a", [](Printer& paper) { paper.Print("one line"); }));
    EXPECT_EQ(printed.text.at(0).at(0).trimmed(), "one line");
}

TEST(SystemPrinters, ThePreviewShowsThePagesOfTheJob)
{
    QtPrinters printers;
    int painted = 0;
    QTimer::singleShot(0, [] {
        auto* dialogue = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogue, nullptr);
        EXPECT_EQ(dialogue->windowTitle(), "Print preview - mig.b50");
        dialogue->reject();
    });
    printers.preview("Print preview - mig.b50", [&](Printer& paper) {
        paper.Print("one line");
        ++painted;
    });
    EXPECT_GE(painted, 1);
}

TEST(SystemPrinters, AJobThatFailsClosesThePreviewAndIsReported)
{
    QtPrinters printers;
    EXPECT_THROW(printers.preview("a", [](Printer&) { throw RuntimeError(ErrorCode::PrinterError, "no room"); }),
                 RuntimeError);
}

} // namespace
} // namespace tarvex
