#include "sheet/sheet_layout.h"

#include "sheet/text_width.h"
#include "sheet/word_wrap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

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
                for (int i = 0; i < layers; ++i)
                    text +=
                        (i == 0 ? " /I Look_Around_Corner_" : " /O Select_Next_Weapon_") + std::string(dogfight + 1);
            }
            text += "\r\n";
        }
    }
    return text;
}

std::vector<LaidOutPage> laidOut(const std::string& text, const SheetPaper& paper = sheetA4,
                                 SheetSpread spread = SheetSpread::MorePages)
{
    return layOut(
        controlSheet({.joystickName = "mig.b50", .joystickText = text, .macroName = {}, .macroText = {}}, "today"),
        paper, spread);
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

double smallestMacro(const LaidOutPage& page)
{
    double smallest = 100;
    for (const SheetItem& item : page.items) {
        const auto* text = std::get_if<SheetText>(&item);
        if (text != nullptr && text->text.starts_with("Look")) smallest = std::min(smallest, text->size);
    }
    return smallest;
}

std::size_t picturesOn(const LaidOutPage& page)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        page.items, [](const SheetItem& item) { return std::holds_alternative<SheetPicture>(item); }));
}

TEST(SheetLayout, AFewControlsArePrintedInTheLargestText)
{
    const LaidOutPage page = laidOut("BTN S1 Fire\r\nBTN S2 Gear\r\n").at(0);
    EXPECT_EQ(page.textSize, 18);
    EXPECT_EQ(page.left, 0U);
    EXPECT_THAT(textsOf(page), testing::IsSupersetOf({"mig.b50", "S1", "Fire", "S2", "Gear", "Control", "does"}));
    expectTidy(page);
}

TEST(SheetLayout, EveryControlInEveryLayerGoesOnOnFurtherPagesInLegibleLetters)
{
    for (const SheetPaper& paper : {sheetA4, sheetLetter}) {
        const std::vector<LaidOutPage> pages = laidOut(joystickText(2), paper);
        ASSERT_GT(pages.size(), 2U) << "the throttle's is the last one";
        for (const LaidOutPage& page : pages) {
            EXPECT_EQ(page.left, 0U);
            EXPECT_GE(page.textSize, legibleText);
            EXPECT_GE(smallestMacro(page), legibleText);
            expectTidy(page);
        }
        EXPECT_EQ(picturesOn(pages[0]), 1U);
        EXPECT_EQ(picturesOn(pages[1]), 0U);
        EXPECT_THAT(textsOf(pages[0]),
                    testing::Contains(testing::EndsWith(", 1 of " + std::to_string(pages.size() - 1))));
        for (const char* hat : {"H1U", "H4DR"}) {
            const auto has = [hat](const LaidOutPage& page) { return std::ranges::count(textsOf(page), hat) > 0; };
            EXPECT_EQ(std::ranges::count_if(pages, has), 1) << hat;
        }
    }
}

TEST(SheetLayout, AControllerGetsFourPagesAndThenSmallerLetters)
{
    std::set<std::size_t> counts;
    std::size_t fewest = 100;
    for (int words = 1; words <= 30; words += 1) {
        std::string text = "USE TQS\r\n";
        for (const char* hat : {"H1", "H2", "H3", "H4"}) {
            for (const char* position : {"U", "D", "L", "R", "M", "UL", "DL", "UR", "DR"}) {
                text += std::string("BTN ") + hat + position;
                for (int i = 0; i < words; ++i) text += " Look_Around_Corner";
                text += "\r\n";
            }
        }
        const std::vector<LaidOutPage> pages = laidOut(text);
        counts.insert(pages.size() - 1); // the throttle's is the last one
        if (pages[0].textSize < legibleText) fewest = std::min(fewest, pages.size() - 1);
    }
    EXPECT_EQ(*counts.rbegin(), 4U);
    EXPECT_EQ(fewest, 4U) << "not before there are four pages";
}

TEST(SheetLayout, OnOnePageTheLettersGetSmallerInstead)
{
    for (const SheetPaper& paper : {sheetA4, sheetLetter}) {
        const std::vector<LaidOutPage> pages = laidOut(joystickText(2), paper, SheetSpread::OnePage);
        ASSERT_EQ(pages.size(), 2U) << "one page for each controller";
        EXPECT_EQ(pages[0].left, 0U);
        EXPECT_LT(pages[0].textSize, legibleText);
        for (const LaidOutPage& page : pages) expectTidy(page);
    }
}

TEST(SheetLayout, WhatFitsInLegibleLettersStaysOnOnePage)
{
    std::string text = "USE TQS\r\n";
    for (const char* name : {"S1", "S2", "S4", "TG1", "TG2", "H1U", "H1D", "H1L", "H1R", "H2U", "H2D", "H2L", "H2R"})
        text += std::string("BTN ") + name + " /U Look_Left /M Look_Right /D Gear\r\n";
    const std::vector<LaidOutPage> pages = laidOut(text);
    EXPECT_EQ(pages.size(), 2U);
    EXPECT_GE(pages[0].textSize, legibleText);
}

TEST(SheetLayout, LettersAreLargerThanUsualOnlyWhereNoWordIsParted)
{
    const LaidOutPage page = laidOut("BTN S1 /U Look_Around_The_Corner /M b /D c").at(0);
    EXPECT_LE(page.textSize, 14);
    EXPECT_GT(laidOut("BTN S1 /U Look /M b /D c").at(0).textSize, 14);
}

TEST(SheetLayout, WhatFindsNoRoomIsCounted)
{
    std::string text;
    for (const char* name : {"S1", "S2", "S3", "S4", "TG1", "TG2"}) {
        text += std::string("BTN ") + name;
        for (int word = 0; word < 2000; ++word) text += " macro";
        text += "\r\n";
    }
    const LaidOutPage page = laidOut(text, sheetA4, SheetSpread::OnePage).at(0);
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

TEST(SheetLayout, ASwitchThatNoControlComparesMakesNoColumns)
{
    const auto texts = textsOf(laidOut("BTN S1 /D c\r\nBTN S2 /I a").at(0));
    EXPECT_THAT(texts, testing::IsSupersetOf({"does", "/D", "c", "/I", "a"}));
    EXPECT_THAT(texts, testing::Not(testing::Contains("/U dogfight up")));
}

TEST(SheetLayout, AControlOfOnePositionHasTheWholeWidthAndNamesIt)
{
    const auto texts = textsOf(laidOut("BTN S1 /U a /M b /D c\r\nBTN S2 /D /I d /O e").at(0));
    EXPECT_THAT(texts, testing::IsSupersetOf({"/D down", "/D /I", "d", "/D /O", "e"}));
}

TEST(SheetLayout, NeighbouringColumnsThatDoTheSameShareACell)
{
    EXPECT_THAT(textsOf(laidOut("BTN S1 /U a /M b /D b").at(0)), testing::IsSupersetOf({"a", "/M /D", "b"}));
    EXPECT_EQ(std::ranges::count(textsOf(laidOut("BTN S1 /U a /M b /D b").at(0)), "b"), 1);
}

TEST(SheetLayout, KeysAreSmallerThanTheMacroThatSendsThem)
{
    const auto pages = layOut(controlSheet({.joystickName = "mig.b50",
                                            .joystickText = "BTN S1 Fire",
                                            .macroName = "mig.m50",
                                            .macroText = "Fire = SHF F6"},
                                           ""),
                              sheetA4, SheetSpread::MorePages);
    double macro = 0;
    double keys = 0;
    for (const SheetItem& item : pages.at(0).items) {
        if (const auto* text = std::get_if<SheetText>(&item)) {
            if (text->text == "Fire") macro = text->size;
            if (text->text == "Shift+F6") keys = text->size;
        }
    }
    EXPECT_EQ(macro, 18);
    EXPECT_EQ(keys, 13.5);
}

TEST(SheetLayout, AWordOfThirtyThousandLettersIsLaidOut)
{
    const std::string text = "BTN S1 " + std::string(30'000, 'x');
    EXPECT_EQ(laidOut(text, sheetA4, SheetSpread::OnePage).at(0).left, 1U);
}

TEST(SheetLayout, S3WithinAColumnIsNamedByItsModifier)
{
    EXPECT_THAT(textsOf(laidOut("BTN S1 /U /I a /O b /M c").at(0)), testing::IsSupersetOf({"/I", "a", "/O", "b"}));
}

TEST(SheetLayout, ASharedCellNamesItsColumnsOnceAndEachLayerItsOwnModifier)
{
    const auto texts = textsOf(laidOut("BTN S1 /U a /M /I b /O c /D /I b /O c").at(0));
    EXPECT_THAT(texts, testing::IsSupersetOf({"/M /D /I", "b", "/O", "c"}));
    EXPECT_EQ(std::ranges::count(texts, "/M /D /O"), 0);
}

TEST(SheetLayout, LayersOfOneColumnAloneAreNamedByBothModifiers)
{
    const auto texts = textsOf(laidOut("BTN S1 /U /I a /O b\r\nBTN S2 /U x /M y").at(0));
    EXPECT_THAT(texts, testing::IsSupersetOf({"/U /I", "a", "/U /O", "b", "x", "y"}));
}

TEST(SheetLayout, ALongFileNameIsCut)
{
    const auto pages = layOut(
        controlSheet(
            {.joystickName = std::string(200, 'x') + ".b50", .joystickText = "", .macroName = {}, .macroText = {}}, ""),
        sheetA4, SheetSpread::MorePages);
    expectTidy(pages.at(0));
}

TEST(WordWrap, BreaksBetweenWordsAndInWordsThatAreTooWide)
{
    const double width = textWidth("one two", 10, false);
    const auto lines = wrapWords({{"one"}, {"two"}, {"three"}}, width, 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.size(), 2U);
    EXPECT_FALSE(lines[0].parted);
    EXPECT_EQ(lines[1].words.at(0).text, "three");
    const auto pieces = wrapWords({{"abcdefghijklmnop"}}, width, 10);
    EXPECT_TRUE(pieces.at(0).parted);
    EXPECT_FALSE(pieces.back().parted);
    std::string all;
    for (const PlacedLine& line : pieces) {
        for (const PlacedWord& word : line.words) {
            EXPECT_LE(word.x + textWidth(word.text, 10, false), width);
            all += word.text;
        }
    }
    EXPECT_EQ(all, "abcdefghijklmnop");
    EXPECT_TRUE(wrapWords({}, width, 10).empty());
    EXPECT_EQ(wrapWords({{"ä"}}, 0.1, 10).size(), 1U) << "a letter is never parted";
}

TEST(WordWrap, AWordThatIsTooWideIsPartedBehindAnUnderscore)
{
    const auto lines = wrapWords({{"Look_Around_Corner"}}, textWidth("Look_Around_Cor", 10, false), 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.at(0).text, "Look_Around_");
    EXPECT_EQ(lines[1].words.at(0).text, "Corner");
}

TEST(WordWrap, KeysStayTogetherWhereALineHoldsThem)
{
    using Kind = SheetWord::Kind;
    const std::vector<SheetWord> words{
        {"Zoom_In", Kind::Macro}, {"Page", Kind::Keys}, {"up", Kind::Keys}, {"or", Kind::Keys}};
    const auto lines = wrapWords(words, textWidth("Zoom_In Page", 10, true), 10, 3);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.size(), 1U);
    EXPECT_EQ(lines[1].words.size(), 3U);
    EXPECT_EQ(lines[1].words[0].x, 3) << "hanging";
    EXPECT_EQ(lines[1].size, 7.5);
}

TEST(WordWrap, AModifierIsNotLeftAloneBeforeAWordThatHasToBeParted)
{
    const auto lines =
        wrapWords({{"/I", SheetWord::Kind::Modifier}, {"Look_Around"}}, textWidth("/I Look_Ar", 10, false), 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.size(), 2U);
    EXPECT_EQ(lines[0].words[1].text, "Look_");
}

TEST(WordWrap, AWordThatFillsTheLineExactlyIsNotParted)
{
    const double width = textWidth("one two", 10, false);
    EXPECT_EQ(wrapWords({{"one"}, {"two"}}, width, 10).size(), 1U);
    EXPECT_EQ(wrapWords({{"one"}, {"two"}}, width - 0.01, 10).size(), 2U);
    const auto whole = wrapWords({{"abcdef"}}, textWidth("abcdef", 10, false), 10);
    ASSERT_EQ(whole.size(), 1U);
    EXPECT_FALSE(whole[0].parted);
}

TEST(WordWrap, WordsStandABlankApartAndFurtherLinesHang)
{
    const auto lines = wrapWords({{"one"}, {"two"}, {"six"}}, textWidth("one two", 10, false), 10, 4);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.at(0).x, 0);
    EXPECT_DOUBLE_EQ(lines[0].words.at(1).x, textWidth("one ", 10, false));
    EXPECT_EQ(lines[1].words.at(0).x, 4);
    EXPECT_EQ(lines[1].size, 10);
}

TEST(WordWrap, AWordThatBeginsWithAnUnderscoreIsPartedBetweenLetters)
{
    const auto lines = wrapWords({{"_abcdef"}}, textWidth("_abc", 10, false), 10);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].words.at(0).text, "_abc");
    EXPECT_EQ(lines[1].words.at(0).text, "def");
}

TEST(WordWrap, WhatFollowsAPartedWordStandsBehindItsRest)
{
    const auto lines = wrapWords({{"abcdefgh"}, {"i"}}, textWidth("abcdef", 10, false), 10);
    ASSERT_EQ(lines.size(), 2U);
    ASSERT_EQ(lines[1].words.size(), 2U);
    EXPECT_EQ(lines[1].words[0].text, "gh");
    EXPECT_DOUBLE_EQ(lines[1].words[1].x, textWidth("gh ", 10, false));
}

TEST(WordWrap, AWordThatIsTooWideIsPartedOnAnyLine)
{
    const auto lines = wrapWords({{"one"}, {"abcdefghijkl"}}, textWidth("abcdef", 10, false), 10);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].words.size(), 1U);
    EXPECT_EQ(lines[1].words.at(0).text, "abcdef");
    EXPECT_EQ(lines[2].words.at(0).text, "ghijkl");
}

TEST(WordWrap, KeysThatNoLineHoldsAreNotKeptTogether)
{
    using Kind = SheetWord::Kind;
    const std::vector<SheetWord> words{{"Zoom", Kind::Macro}, {"one", Kind::Keys}, {"two", Kind::Keys}};
    const double twoKeys = textWidth("one two", 7.5, false);
    const double zoom = textWidth("Zoom ", 10, true);
    const auto kept = wrapWords(words, std::max(zoom, 3 + twoKeys), 10, 3);
    ASSERT_EQ(kept.size(), 2U);
    EXPECT_EQ(kept[0].words.size(), 1U);
    const auto apart = wrapWords(words, zoom + textWidth("one", 7.5, false), 10, 30);
    ASSERT_GE(apart.size(), 2U);
    EXPECT_EQ(apart[0].words.size(), 2U) << "the first key stands behind its macro";
}

TEST(TextWidth, IsThatOfHelvetica)
{
    EXPECT_DOUBLE_EQ(textWidth("Tarvex", 1000, false), 611 + 556 + 333 + 500 + 556 + 500);
    EXPECT_DOUBLE_EQ(textWidth("A", 1000, true), 722);
    EXPECT_DOUBLE_EQ(textWidth("", 1000, true), 0);
    EXPECT_DOUBLE_EQ(textWidth("ä…", 1000, false), 611 + 1000);
    EXPECT_DOUBLE_EQ(textWidth("\x1F\x7F", 1000, false), 2 * 611) << "beside the printable ones";
    EXPECT_DOUBLE_EQ(textWidth("ß€😀", 1000, true), 3 * 611) << "letters of two to four bytes";
    EXPECT_DOUBLE_EQ(textWidth("…\xE2\x80", 1000, false), 1000 + 611) << "a letter that is cut off";
}

TEST(TextWidth, OfAllPrintableLettersIsThatOfLiberationSans)
{
    std::string all;
    for (char letter = ' '; letter <= '~'; ++letter) all += letter;
    EXPECT_DOUBLE_EQ(textWidth(all, 1000, false), 50058);
    EXPECT_DOUBLE_EQ(textWidth(all, 1000, true), 52367);
}

TEST(CutText, ThatFitsStaysAndALongerOneEndsInAnEllipsis)
{
    const double width = textWidth("Tarvex", 10, true);
    EXPECT_EQ(cutTo("Tarvex", width, 10, true), "Tarvex");
    EXPECT_EQ(cutTo("Tarvex", width - 0.1, 10, true), "Tarv…");
    EXPECT_EQ(cutTo("Tarvex", 0, 10, true), "T…") << "one letter at least";
}

} // namespace
} // namespace tarvex
