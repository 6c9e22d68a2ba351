#include "printed_pages.h"

#include "desktop/platform/qt_printers.h"
#include "platform/errors.h"
#include "sheet/commands/print_controls.h"
#include "sheet/sheet_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarvex {
namespace {

using testing::IsSupersetOf;

struct Hardware {
    const char* file;
    const char* throttle;
    std::size_t pages;
};

ControlSheet sheetFor(const Hardware& hardware)
{
    return controlSheet({.joystickName = hardware.file,
                         .joystickText = std::string("USE ") + hardware.throttle +
                                         "\r\nBTN S1 /U Fire /M Gear\r\nBTN TG Fire\r\nBTN T1 Flaps\r\nBTN 1 Flaps\r\n",
                         .macroName = "mig.m50",
                         .macroText = "Fire = SPC\r\n"},
                        "21 November 2026");
}

std::vector<std::string> wordsOf(const PrintedPages& printed)
{
    std::vector<std::string> words;
    for (const QStringList& page : printed.text) {
        for (const QString& line : page)
            for (const QString& word : line.split(u' ', Qt::SkipEmptyParts)) words.push_back(word.toStdString());
    }
    return words;
}

/// Each picture has been drawn: the paper's left half has more dark than a text leaves.
void expectPicture(const QImage& page)
{
    int dark = 0;
    for (int y = page.height() / 5; y < page.height(); ++y)
        for (int x = 0; x < page.width() / 2; ++x) dark += page.pixelColor(x, y).lightness() < 128 ? 1 : 0;
    EXPECT_GT(dark, page.width() * page.height() / 50);
}

class PrintedSheet : public testing::TestWithParam<Hardware> {
protected:
    void expectPages(const PrintedPages& printed)
    {
        ASSERT_EQ(printed.pages.size(), GetParam().pages);
        for (const QImage& page : printed.pages) {
            EXPECT_GT(page.width(), page.height());
            expectPicture(page);
        }
    }
};

TEST_P(PrintedSheet, AsAFileHasAPictureAndTheTextsOfEachController)
{
    const PrintedPages printed(sheetFile(sheetFor(GetParam()), SheetForm::Pdf, sheetA4, SheetSpread::MorePages));
    expectPages(printed);
    EXPECT_THAT(wordsOf(printed), IsSupersetOf({"Fire", "Spacebar", "Flaps", GetParam().file}));
}

TEST_P(PrintedSheet, OnThePrinterHasAPictureAndFillsThePaper)
{
    const PrintedPages printed(QtPrinters("").pdf("sheet", [](Printer& printer) {
        printer.setOrientation(orientation::landscape);
        printSheet(printer, layOut(sheetFor(GetParam()), sheetA4, SheetSpread::MorePages));
    }));
    expectPages(printed);
    for (std::size_t page = 0; page < printed.pages.size(); ++page)
        EXPECT_GT(printed.ink(page).width(), printed.pages[page].width() * 3 / 4) << "texts are drawn as outlines";
}

INSTANTIATE_TEST_SUITE_P(OfEachHardware, PrintedSheet,
                         testing::Values(Hardware{"mig.f22", "TQS", 2}, Hardware{"mig.b50", "WCS", 2},
                                         Hardware{"mig.adv", "WCS", 2}));

TEST(PrintedDrawing, ThatIsNoneIsAnInvalidPicture)
{
    std::string message;
    QtPrinters("").pdf("drawing", [&](Printer& printer) {
        try {
            printer.PaintDrawing("<svg", {0, 0, 1000, 1000});
        } catch (const RuntimeError& error) {
            message = error.what();
        }
    });
    EXPECT_EQ(message, "Invalid picture: the drawing can't be read");
}

} // namespace
} // namespace tarvex
