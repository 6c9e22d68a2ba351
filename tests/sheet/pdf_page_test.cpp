#include "sheet/pdf_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr SheetPaper paper{200, 100};

/// The operators of a drawing of these elements, without those that place it.
std::string operatorsOf(const std::string& elements)
{
    PdfPage page(paper);
    page.draw(readArt("<svg>" + elements + "</svg>"), {.x = 0, .y = 0, .scale = 1, .labelSize = 20});
    const std::string begin = "q 1.000 0.000 0.000 -1.000 0.000 100.000 cm 1 J 1 j\n";
    EXPECT_TRUE(page.stream().starts_with(begin));
    EXPECT_TRUE(page.stream().ends_with("Q\n"));
    return page.stream().substr(begin.size(), page.stream().size() - begin.size() - 2);
}

TEST(PdfNumber, HasThreeDecimalsAndABlank)
{
    EXPECT_EQ(pdfNumber(1.5), "1.500 ");
    EXPECT_EQ(pdfNumber(-0.25), "-0.250 ");
}

TEST(PdfString, IsWindows1252WithEscapedBrackets)
{
    EXPECT_EQ(pdfString("a (b) \\c"), "(a \\(b\\) \\\\c)");
    EXPECT_EQ(pdfString("ä€"), "(\xE4\x80)");
    EXPECT_EQ(pdfString("tab\tend\x1F"), "(tab end )") << "no control characters";
    EXPECT_EQ(pdfString(""), "()");
}

TEST(PdfPage, TextsStandOnTheirBaselineFromTheBottomInOneOfTwoFonts)
{
    PdfPage page(paper);
    page(SheetText{.x = 10, .baseline = 30, .size = 12, .bold = false, .colour = 0x33669A, .text = "Fire"});
    page(SheetText{.x = 11, .baseline = 31, .size = 13, .bold = true, .colour = 0, .text = "Gear"});
    EXPECT_EQ(page.stream(),
              "BT 0.200 0.400 0.604 rg /F1 12.000 Tf 1.000 0.000 0.000 1.000 10.000 70.000 Tm (Fire) Tj ET\n"
              "BT 0.000 0.000 0.000 rg /F2 13.000 Tf 1.000 0.000 0.000 1.000 11.000 69.000 Tm (Gear) Tj ET\n");
}

TEST(PdfPage, BoxesAreFilledFromTheirLowerEdge)
{
    PdfPage page(paper);
    page(SheetBox{.x = 10, .y = 20, .width = 30, .height = 5, .fill = 0xFF00FF});
    EXPECT_EQ(page.stream(), "1.000 0.000 1.000 rg 10.000 75.000 30.000 5.000 re f\n");
}

TEST(PdfPage, ADrawingIsPlacedScaledAndTurnedUpsideDown)
{
    PdfPage page(paper);
    page.draw({}, {.x = 7, .y = 9, .scale = 0.5});
    EXPECT_EQ(page.stream(), "q 0.500 0.000 0.000 -0.500 7.000 91.000 cm 1 J 1 j\nQ\n");
}

TEST(PdfPage, EachPictureIsDrawn)
{
    for (const Picture& one : allPictures()) {
        PdfPage page(paper);
        page(SheetPicture{.picture = static_cast<PictureOf>(&one - allPictures().data())});
        EXPECT_THAT(page.stream(), testing::HasSubstr("(" + std::string(one.controls[0].name) + ") Tj")) << one.file;
        EXPECT_THAT(page.resources(), testing::HasSubstr("/ShadingType 2")) << one.file;
    }
}

TEST(PdfPage, APathIsFilledAndItsLineDrawnOverIt)
{
    EXPECT_EQ(operatorsOf("<path d=\"M1 2 L3 4 5,6 C1 2 3 4 5 6 z\" fill=\"#ff0000\" stroke=\"#00f\" "
                          "stroke-width=\"2\" stroke-opacity=\"0.25\"/>"),
              "1.000 0.000 0.000 rg\n"
              "1.000 2.000 m\n3.000 4.000 l\n5.000 6.000 l\n1.000 2.000 3.000 4.000 5.000 6.000 c\nh\nf\n"
              "q /O25 gs 0.000 0.000 1.000 RG 2.000 w\n"
              "1.000 2.000 m\n3.000 4.000 l\n5.000 6.000 l\n1.000 2.000 3.000 4.000 5.000 6.000 c\nh\nS Q\n");
}

TEST(PdfPage, AQuadraticCurveBecomesACubicOneFromWhereThePathIs)
{
    EXPECT_EQ(operatorsOf("<path d=\"M0 3 Q3 0 6 9 9 12 12 0\" fill=\"#000\"/>"),
              "0.000 0.000 0.000 rg\n"
              "0.000 3.000 m\n"
              "2.000 1.000 4.000 3.000 6.000 9.000 c\n"
              "8.000 11.000 10.000 8.000 12.000 0.000 c\nf\n");
}

TEST(PdfPage, NumbersTooFewForASegmentAndForeignSignsArePassedOver)
{
    EXPECT_EQ(operatorsOf("<path d=\"M1 2 L3 ? C1 2 3 4 5\" fill=\"#000\"/>"),
              "0.000 0.000 0.000 rg\n1.000 2.000 m\nf\n");
    EXPECT_EQ(operatorsOf("<path d=\"M1 2 z z\" fill=\"#000\"/>"), "0.000 0.000 0.000 rg\n1.000 2.000 m\nh\nh\nf\n");
}

TEST(PdfPage, AShapeWithoutPaintLeavesNothing)
{
    EXPECT_EQ(operatorsOf("<path d=\"M1 2 L3 4\" fill=\"none\"/>"), "");
    EXPECT_EQ(operatorsOf("<path d=\"M1 2 L3 4\"/>"), "");
}

TEST(PdfPage, TextsOfADrawingStandByTheirAnchorInBold)
{
    const auto text = [](const std::string& anchor) {
        return operatorsOf("<text x=\"50\" y=\"60\" font-size=\"10\" text-anchor=\"" + anchor +
                           "\" fill=\"#ffffff\">A</text>");
    };
    const std::string before = "BT 1.000 1.000 1.000 rg /F2 10.000 Tf 1.000 0.000 0.000 -1.000 ";
    EXPECT_EQ(text("start"), before + "50.000 60.000 Tm (A) Tj ET\n");
    EXPECT_EQ(text("middle"), before + "46.390 60.000 Tm (A) Tj ET\n") << "half of 7.22";
    EXPECT_EQ(text("end"), before + "42.780 60.000 Tm (A) Tj ET\n");
}

TEST(PdfPage, LabelsBesideTheDrawingHaveTheSizeOfThePlace)
{
    EXPECT_EQ(
        operatorsOf("<text x=\"5\" y=\"6\" font-size=\"15\" text-anchor=\"start\" fill=\"currentColor\">A</text>"),
        "BT 0.133 0.133 0.133 rg /F2 20.000 Tf 1.000 0.000 0.000 -1.000 5.000 6.000 Tm (A) Tj ET\n");
}

const std::string gradient = "<linearGradient id=\"g7\" x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\">"
                             "<stop offset=\"0\" stop-color=\"#ff0000\"/><stop offset=\"0.4\" stop-color=\"#00ff00\"/>"
                             "<stop offset=\"1\" stop-color=\"#0000ff\"/></linearGradient>";

TEST(PdfPage, AGradientIsAShadingThatThePathCutsOut)
{
    PdfPage page(paper);
    page.draw(readArt("<svg>" + gradient + "<path d=\"M1 2 L3 4\" fill=\"url(#g7)\"/></svg>"), {});
    EXPECT_THAT(page.stream(), testing::HasSubstr("\nq\n1.000 2.000 m\n3.000 4.000 l\nW n /g7 sh Q\nQ\n"));
    EXPECT_EQ(page.resources(),
              "<< /Font << /F1 3 0 R /F2 4 0 R >> /ExtGState << >> /Shading << /g7 "
              "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [1.000 2.000 3.000 4.000 ] /Function "
              "<< /FunctionType 3 /Domain [0 1] /Functions ["
              "<< /FunctionType 2 /Domain [0 1] /N 1 /C0 [1.000 0.000 0.000 ] /C1 [0.000 1.000 0.000 ] >> "
              "<< /FunctionType 2 /Domain [0 1] /N 1 /C0 [0.000 1.000 0.000 ] /C1 [0.000 0.000 1.000 ] >> "
              "] /Bounds [0.400 ] /Encode [0 1 0 1 ] >> /Extend [true true] >> >> >>");
}

TEST(PdfPage, GradientsThatAreMissingOrTranslucentOrOfOneColourAreLeftOut)
{
    const std::string path = "<path d=\"M1 2 L3 4\" fill=\"url(#g7)\"/>";
    EXPECT_EQ(operatorsOf(path), "");
    EXPECT_EQ(operatorsOf("<linearGradient id=\"g7\"><stop offset=\"0\" stop-color=\"#f00\"/></linearGradient>" + path),
              "");
    EXPECT_EQ(operatorsOf("<linearGradient id=\"g7\"><stop offset=\"0\" stop-color=\"#f00\" stop-opacity=\"0.5\"/>"
                          "<stop offset=\"1\" stop-color=\"#0f0\"/></linearGradient>" +
                          path),
              "");
    EXPECT_NE(operatorsOf("<linearGradient id=\"g7\"><stop offset=\"0\" stop-color=\"#f00\"/>"
                          "<stop offset=\"1\" stop-color=\"#0f0\"/></linearGradient>" +
                          path),
              "");
}

TEST(PdfPage, EachOpacityOfALineIsAResourceOnce)
{
    PdfPage page(paper);
    const std::string line = "<path d=\"M1 2 L3 4\" stroke=\"#000\" stroke-opacity=\"";
    page.draw(readArt("<svg>" + line + "0.555\"/>" + line + "1\"/>" + line + "0.56\"/></svg>"), {});
    EXPECT_EQ(page.resources(), "<< /Font << /F1 3 0 R /F2 4 0 R >> /ExtGState << /O56 << /CA 0.560 >> "
                                "/O100 << /CA 1.000 >> >> /Shading << >> >>");
}

} // namespace
} // namespace tarvex
