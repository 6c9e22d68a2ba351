#include "sheet/sheet_layout.h"

#include "sheet/text_width.h"
#include "sheet/word_wrap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::string joystickText(int layers)
{
    std::string text = "USE TQS\r\n";
    for (const char* hat : {"H1", "H2", "H3", "H4"}) {
        for (const char* position : {"U", "D", "L", "R", "M", "UL", "DL", "UR", "DR"}) {
            text += std::string("BTN ") + hat + position;
            for (const char* dogfight : {"/U", "/M", "/D"}) {
                text += std::string(" ") + dogfight;
                for (int i = 0; i < layers; ++i) text += i == 0 ? " /I Look_Around_Corner" : " /O Select_Next_Weapon";
            }
            text += "\r\n";
        }
    }
    return text;
}

std::vector<LaidOutPage> laidOut(const std::string& text, const SheetPaper& paper = sheetA4)
{
    return layOut(
        controlSheet({.joystickName = "mig.b50", .joystickText = text, .macroName = {}, .macroText = {}}, "today"),
        paper);
}

std::vector<std::string> textsOf(const LaidOutPage& page)
{
    std::vector<std::string> texts;
    for (const SheetItem& item : page.items)
        if (const auto* text = std::get_if<SheetText>(&item)) texts.push_back(text->text);
    return texts;
}

/// Nothing leaves the paper, and no text meets another.
void expectTidy(const LaidOutPage& page)
{
    std::vector<SheetText> texts;
    for (const SheetItem& item : page.items) {
        if (const auto* text = std::get_if<SheetText>(&item)) texts.push_back(*text);
        const auto* box = std::get_if<SheetBox>(&item);
        EXPECT_LE(box != nullptr ? box->y + box->height : 0, page.paper.height);
    }
    for (const SheetText& text : texts) {
        EXPECT_GE(text.x, 0) << text.text;
        EXPECT_LE(text.x + textWidth(text.text, text.size, text.bold), page.paper.width) << text.text;
        EXPECT_LE(text.baseline, page.paper.height) << text.text;
        EXPECT_GE(text.baseline - text.size, 0) << text.text;
        for (const SheetText& other : texts) {
            const bool follows = std::abs(other.baseline - text.baseline) < 0.01 && other.x > text.x;
            const double end = text.x + textWidth(text.text, text.size, text.bold);
            EXPECT_TRUE(!follows || end <= other.x + 0.01) << text.text << " meets " << other.text;
        }
    }
}

TEST(SheetLayout, AFewControlsArePrintedInTheLargestText)
{
    const LaidOutPage page = laidOut("BTN S1 Fire\r\nBTN S2 Gear\r\n").at(0);
    EXPECT_EQ(page.textSize, 14);
    EXPECT_EQ(page.left, 0U);
    EXPECT_THAT(textsOf(page), testing::IsSupersetOf({"mig.b50", "S1", "Fire", "S2", "Gear", "Control", "does"}));
    expectTidy(page);
}

TEST(SheetLayout, EveryControlInEveryLayerStillHasRoomOnOnePage)
{
    for (const SheetPaper& paper : {sheetA4, sheetLetter}) {
        const std::vector<LaidOutPage> pages = laidOut(joystickText(2), paper);
        ASSERT_EQ(pages.size(), 2U) << "one page for each controller";
        EXPECT_EQ(pages[0].left, 0U);
        EXPECT_LT(pages[0].textSize, 14);
        for (const LaidOutPage& page : pages) expectTidy(page);
    }
}

TEST(SheetLayout, WhatFindsNoRoomIsCounted)
{
    std::string text;
    for (const char* name : {"S1", "S2", "S3", "S4", "TG1", "TG2"}) {
        text += std::string("BTN ") + name;
        for (int word = 0; word < 2000; ++word) text += " macro";
        text += "\r\n";
    }
    const LaidOutPage page = laidOut(text).at(0);
    EXPECT_GT(page.left, 0U);
    EXPECT_THAT(textsOf(page).back(), testing::StartsWith("No room for " + std::to_string(page.left) + " more. "));
}

TEST(SheetLayout, TheDogfightSwitchHasThreeColumnsAndS3Two)
{
    EXPECT_THAT(textsOf(laidOut("BTN S1 /U a /M b /D c").at(0)),
                testing::IsSupersetOf({"/U dogfight up", "/M middle", "/D down"}));
    const auto texts = textsOf(laidOut("BTN S1 /I a /O b").at(0));
    EXPECT_THAT(texts, testing::IsSupersetOf({"/I S3 held in", "/O S3 out"}));
    EXPECT_THAT(texts, testing::Not(testing::Contains("/U dogfight up")));
}

TEST(SheetLayout, S3WithinAColumnIsNamedByItsModifier)
{
    EXPECT_THAT(textsOf(laidOut("BTN S1 /U /I a /O b").at(0)), testing::IsSupersetOf({"/I", "a", "/O", "b"}));
}

TEST(SheetLayout, ALongFileNameIsCut)
{
    const auto pages = layOut(
        controlSheet(
            {.joystickName = std::string(200, 'x') + ".b50", .joystickText = "", .macroName = {}, .macroText = {}}, ""),
        sheetA4);
    expectTidy(pages.at(0));
}

TEST(WordWrap, BreaksBetweenWordsAndInWordsThatAreTooWide)
{
    const double width = textWidth("one two", 10, false);
    const auto lines = wrapWords({{"one"}, {"two"}, {"three"}}, width, 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].size(), 2U);
    EXPECT_EQ(lines[1].at(0).text, "three");
    const auto pieces = wrapWords({{"abcdefghijklmnop"}}, width, 10);
    std::string all;
    for (const PlacedLine& line : pieces) {
        for (const PlacedWord& word : line) {
            EXPECT_LE(word.x + textWidth(word.text, 10, false), width);
            all += word.text;
        }
    }
    EXPECT_EQ(all, "abcdefghijklmnop");
    EXPECT_TRUE(wrapWords({}, width, 10).empty());
    EXPECT_EQ(wrapWords({{"ä"}}, 0.1, 10).size(), 1U) << "a letter is never parted";
}

TEST(TextWidth, IsThatOfHelvetica)
{
    EXPECT_DOUBLE_EQ(textWidth("Tarvex", 1000, false), 611 + 556 + 333 + 500 + 556 + 500);
    EXPECT_DOUBLE_EQ(textWidth("A", 1000, true), 722);
    EXPECT_DOUBLE_EQ(textWidth("", 1000, true), 0);
    EXPECT_DOUBLE_EQ(textWidth("ä…", 1000, false), 611 + 1000);
}

} // namespace
} // namespace tarvex
