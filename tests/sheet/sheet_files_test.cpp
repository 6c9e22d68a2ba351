#include "sheet/sheet_files.h"

#include "expected_file.h"
#include "sheet/hardware_art.h"
#include "sheet/html_sheet.h"
#include "sheet/pdf_sheet.h"
#include "sheet/svg_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

ControlSheet twoPages()
{
    return controlSheet({.joystickName = "mig & co.b50",
                         .joystickText = "USE TQS\r\nBTN S1 <Fire> (a) \\b\r\nBTN T1 Gear\r\n",
                         .macroName = "mig.m50",
                         .macroText = "Gear = g"},
                        "today");
}

std::size_t countOf(const std::string& text, std::string_view what)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
    return count;
}

TEST(SheetForm, IsThatOfTheExtensionInAnyCase)
{
    EXPECT_EQ(sheetForm("a.PDF"), SheetForm::Pdf);
    EXPECT_EQ(sheetForm("a.svg"), SheetForm::Svg);
    EXPECT_EQ(sheetForm("a.html"), SheetForm::Html);
    EXPECT_EQ(sheetForm("a.htm"), SheetForm::Html);
    EXPECT_EQ(sheetForm("a.png"), std::nullopt);
    EXPECT_EQ(sheetForm(""), std::nullopt);
}

TEST(SheetSvg, HasBothPagesBelowEachOtherAndEscapesTexts)
{
    const std::string svg = sheetFile(twoPages(), SheetForm::Svg, sheetA4, SheetSpread::MorePages);
    EXPECT_THAT(svg, StartsWith("<svg xmlns="));
    EXPECT_THAT(svg, HasSubstr("height=\"1190.00pt\""));
    EXPECT_THAT(svg, HasSubstr("mig &amp; co.b50"));
    EXPECT_THAT(svg, HasSubstr("&lt;Fire&gt;"));
    EXPECT_THAT(svg, Not(HasSubstr("currentColor")));
}

TEST(SheetSvg, EveryTextKeepsItsWidthInAFontThatIsWider)
{
    const std::string svg = sheetFile(twoPages(), SheetForm::Svg, sheetA4, SheetSpread::MorePages);
    EXPECT_GT(countOf(svg, " textLength=\""), 10U);
    EXPECT_EQ(countOf(svg, " textLength=\""), countOf(svg, " lengthAdjust=\"spacingAndGlyphs\""));
    EXPECT_EQ(countOf(svg, " textLength=\"0.00\""), 0U);
}

TEST(SheetSvg, IdsAreUniqueAndEveryReferenceLeadsToOne)
{
    const std::string svg = sheetFile(twoPages(), SheetForm::Svg, sheetA4, SheetSpread::MorePages);
    std::set<std::string> ids;
    for (std::size_t at = svg.find(" id=\""); at != std::string::npos; at = svg.find(" id=\"", at + 1)) {
        const std::string id = svg.substr(at + 5, svg.find('"', at + 5) - at - 5);
        EXPECT_TRUE(ids.insert(id).second) << id;
    }
    std::size_t references = 0;
    for (std::size_t at = svg.find("url(#"); at != std::string::npos; at = svg.find("url(#", at + 1), ++references)
        EXPECT_TRUE(ids.contains(svg.substr(at + 5, svg.find(')', at) - at - 5)));
    EXPECT_GT(references, 50U);
}

TEST(SheetHtml, IsOnePageOfTheWebWithADrawingForEachController)
{
    const std::string html = sheetFile(twoPages(), SheetForm::Html, sheetLetter, SheetSpread::MorePages);
    EXPECT_THAT(html, StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(html, HasSubstr("<title>mig &amp; co.b50</title>"));
    EXPECT_EQ(countOf(html, "<svg "), 2U);
    EXPECT_EQ(countOf(html, "</svg>"), 2U);
}

TEST(SheetPdf, HasAPageForEachControllerAndATableThatFits)
{
    const std::string pdf = sheetFile(twoPages(), SheetForm::Pdf, sheetA4, SheetSpread::MorePages);
    EXPECT_THAT(pdf, StartsWith("%PDF-1.4"));
    EXPECT_EQ(countOf(pdf, "/Type /Page "), 2U);
    EXPECT_THAT(pdf, HasSubstr("/MediaBox [0 0 842.000 595.000 ]"));
    const std::size_t table = std::stoul(pdf.substr(pdf.rfind("startxref") + 10));
    EXPECT_EQ(pdf.substr(table, 4), "xref");
    std::size_t row = pdf.find("0000000000 65535 f \n") + 20;
    for (int number = 1; pdf[row] != 't'; ++number, row += 20) {
        const std::string head = std::to_string(number) + " 0 obj";
        EXPECT_EQ(pdf.substr(std::stoul(pdf.substr(row, 10)), head.size()), head);
    }
}

TEST(SheetPdf, BracketsAndBackslashesAreEscaped)
{
    const std::string pdf = sheetFile(twoPages(), SheetForm::Pdf, sheetA4, SheetSpread::MorePages);
    EXPECT_THAT(pdf, HasSubstr("(\\(a\\))"));
    EXPECT_THAT(pdf, HasSubstr("(\\\\b)"));
}

/// Without pictures.
std::vector<LaidOutPage> smallPages()
{
    const SheetText name{
        .x = 10.5, .baseline = 30.25, .size = 12, .bold = true, .colour = 0x23405F, .text = "S1 & <b>"};
    const SheetText fire{.x = 60, .baseline = 30, .size = 9.5, .bold = false, .colour = 0, .text = "Fire \"1\" ä"};
    const SheetBox stripe{.x = 10, .y = 40, .width = 180, .height = 20.125, .fill = 0xEEF1F5};
    return {{.paper = {200, 100}, .items = {name, fire}}, {.paper = {150.5, 120}, .items = {stripe, fire}}};
}

TEST(SheetForms, OfTwoSmallPagesAreTheFiles)
{
    expectFile(testData("sheet_forms/two_pages.svg"), svgSheet(smallPages()));
    expectFile(testData("sheet_forms/two_pages.html"), htmlSheet(smallPages(), "mig & co"));
    expectFile(testData("sheet_forms/two_pages.pdf"), pdfSheet(smallPages(), "mig (co)"));
}

TEST(SheetSvg, ADrawingIsPlacedAndKeepsItsElementsWithoutTheirIds)
{
    const SheetPicture wcs{.picture = PictureOf::Wcs, .x = 10, .y = 20, .scale = 0.123456, .labelSize = 18};
    const std::string svg = svgPage({.paper = {200, 100}, .items = {wcs}}, "x");
    const std::string_view drawing = hardwareDrawing(PictureOf::Wcs);
    EXPECT_THAT(svg, HasSubstr("<g transform=\"translate(10.00 20.00) scale(0.12346)\">"));
    EXPECT_THAT(svg, testing::EndsWith("</g>\n</svg>\n"));
    for (const char* element : {"<path ", "<circle ", "<g", "<text ", "<linearGradient ", "<radialGradient "})
        EXPECT_EQ(countOf(svg, element),
                  countOf(std::string(drawing), element) + (element == std::string("<g") ? 1 : 0))
            << element;
    EXPECT_EQ(countOf(svg, " id=\""), countOf(svg, "Gradient id=\"xg"));
    EXPECT_EQ(countOf(svg, "url(#xg"), countOf(std::string(drawing), "url(#g"));
    EXPECT_EQ(countOf(svg, "font-size=\"18.00\""), countOf(std::string(drawing), "font-size=\"15\""));
    EXPECT_EQ(countOf(svg, "\"#222222\""), countOf(std::string(drawing), "\"currentColor\"")) << "ink of contours";
}

TEST(SheetXml, HasNoSignsOfMarkupAndNoControlCharacters)
{
    EXPECT_EQ(escapedForXml("a<b>&\"c\" ä\t\x01\x1F "), "a&lt;b&gt;&amp;&quot;c&quot; ä    ");
}

TEST(HardwareArt, EveryPictureHasADrawingThatIsRead)
{
    for (const Picture& one : allPictures()) {
        const auto what = static_cast<PictureOf>(&one - allPictures().data());
        const std::string_view svg = hardwareDrawing(what);
        ASSERT_FALSE(svg.empty()) << one.file;
        const Art art = readArt(svg);
        EXPECT_GT(art.shapes.size(), 50U) << one.file;
        EXPECT_GT(art.gradients.size(), 10U) << one.file;
        std::set<std::string> texts;
        for (const ArtShape& shape : art.shapes) {
            EXPECT_NE(shape.path.empty(), shape.text.empty()) << one.file;
            texts.insert(shape.text);
        }
        EXPECT_TRUE(texts.contains(std::string(one.controls[0].name))) << one.file;
    }
}

TEST(HardwareArt, ReadsColoursGradientsAndCircles)
{
    const Art art =
        readArt("<svg><linearGradient id=\"g1\" x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\"><stop offset=\"0.5\" "
                "stop-color=\"#abc\"/></linearGradient><radialGradient id=\"g2\"/>"
                "<circle cx=\"5\" cy=\"6\" r=\"2\" fill=\"url(#g1)\" stroke=\"#102030\" stroke-width=\"3\"/>"
                "<text x=\"7\" y=\"8\" font-size=\"9\" text-anchor=\"end\" fill=\"currentColor\">S1</text></svg>");
    ASSERT_EQ(art.gradients.size(), 2U);
    EXPECT_TRUE(art.gradients[0].solid);
    EXPECT_FALSE(art.gradients[1].solid);
    EXPECT_EQ(art.gradients[0].stops.at(0).colour, 0xAABBCCU);
    ASSERT_EQ(art.shapes.size(), 2U);
    EXPECT_EQ(art.shapes[0].fill.gradient, "g1");
    EXPECT_EQ(art.shapes[0].stroke.colour, 0x102030U);
    EXPECT_THAT(art.shapes[0].path, StartsWith("M7.00 6.00 C"));
    EXPECT_EQ(art.shapes[1].text, "S1");
    EXPECT_EQ(art.shapes[1].anchor, "end");
    EXPECT_TRUE(art.shapes[1].isLabel);
    EXPECT_FALSE(art.shapes[0].isLabel);
}

TEST(HardwareArt, AnEllipseIsFourCurvesFromItsRightEdge)
{
    const Art art =
        readArt("<svg><ellipse cx=\"10\" cy=\"20\" rx=\"4\" ry=\"2\"/><circle cx=\"1\" cy=\"2\" r=\"1\"/></svg>");
    ASSERT_EQ(art.shapes.size(), 2U);
    EXPECT_EQ(art.shapes[0].path, "M14.00 20.00 "
                                  "C14.00 21.10 12.21 22.00 10.00 22.00 "
                                  "C7.79 22.00 6.00 21.10 6.00 20.00 "
                                  "C6.00 18.90 7.79 18.00 10.00 18.00 "
                                  "C12.21 18.00 14.00 18.90 14.00 20.00 z");
    EXPECT_THAT(art.shapes[1].path, StartsWith("M2.00 2.00 C2.00 2.55 1.55 3.00 1.00 3.00 "));
}

TEST(HardwareArt, WhatAShapeDoesNotSayIsAPlainLineWithoutPaint)
{
    const Art art = readArt("<svg><path d=\"M1 2\"/><path d=\"M3 4\" fill=\"none\" stroke=\"#0a0B0c\" "
                            "stroke-width=\"2.5\" stroke-opacity=\"0.4\"/><rect x=\"1\"/>\n</svg>");
    ASSERT_EQ(art.shapes.size(), 2U);
    EXPECT_EQ(art.shapes[0].path, "M1 2");
    EXPECT_EQ(art.shapes[0].fill.kind, ArtPaint::Kind::None);
    EXPECT_EQ(art.shapes[0].stroke.kind, ArtPaint::Kind::None);
    EXPECT_EQ(art.shapes[0].strokeWidth, 1);
    EXPECT_EQ(art.shapes[0].strokeOpacity, 1);
    EXPECT_EQ(art.shapes[1].fill.kind, ArtPaint::Kind::None);
    EXPECT_EQ(art.shapes[1].stroke.kind, ArtPaint::Kind::Colour);
    EXPECT_EQ(art.shapes[1].stroke.colour, 0x0A0B0CU);
    EXPECT_EQ(art.shapes[1].strokeWidth, 2.5);
    EXPECT_EQ(art.shapes[1].strokeOpacity, 0.4);
}

TEST(HardwareArt, AStopThatLetsThroughMakesItsGradientTranslucent)
{
    const Art art = readArt("<svg><stop offset=\"1\"/><linearGradient id=\"g1\" x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\">"
                            "<stop offset=\"0.25\" stop-color=\"#123\" stop-opacity=\"0.5\"/></linearGradient></svg>");
    ASSERT_EQ(art.gradients.size(), 1U);
    EXPECT_EQ(art.gradients[0].id, "g1");
    EXPECT_EQ(art.gradients[0].line, (std::array<double, 4>{1, 2, 3, 4}));
    EXPECT_FALSE(art.gradients[0].solid);
    ASSERT_EQ(art.gradients[0].stops.size(), 1U);
    EXPECT_EQ(art.gradients[0].stops[0].offset, 0.25);
    EXPECT_EQ(art.gradients[0].stops[0].colour, 0x112233U);
}

TEST(HardwareArt, ATextHasItsPlaceAndSizeAndTheWordsUpToTheNextElement)
{
    const Art art =
        readArt("<svg><text x=\"7\" y=\"8\" font-size=\"9\" text-anchor=\"middle\" fill=\"#fff\">H1 U</text></svg>");
    ASSERT_EQ(art.shapes.size(), 1U);
    EXPECT_EQ(art.shapes[0].text, "H1 U");
    EXPECT_EQ(art.shapes[0].x, 7);
    EXPECT_EQ(art.shapes[0].y, 8);
    EXPECT_EQ(art.shapes[0].size, 9);
    EXPECT_EQ(art.shapes[0].fill.colour, 0xFFFFFFU);
    EXPECT_FALSE(art.shapes[0].isLabel);
}

TEST(HardwareArt, LabelsBesideTheDrawingsAreOfTheSizeThatTheSheetEnlarges)
{
    for (const HardwareDrawing& drawing : hardwareDrawings) {
        for (const ArtShape& shape : readArt(drawing.svg).shapes)
            EXPECT_EQ(shape.isLabel, shape.size == SheetPicture().labelSize) << drawing.file << ' ' << shape.text;
    }
}

TEST(HardwareArt, DamagedDrawingsAreReadAsFarAsTheyGo)
{
    EXPECT_TRUE(readArt("").shapes.empty());
    EXPECT_TRUE(readArt("<").shapes.empty());
    EXPECT_TRUE(readArt("<path d=\"M1").shapes.empty());
    EXPECT_EQ(readArt("<path d=\"M1 2\"/><path").shapes.size(), 1U);
}

} // namespace
} // namespace tarvex
