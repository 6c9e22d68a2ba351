#include "wizards/wizard_pages.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

using Kind = WizardBlock::Kind;
using Blocks = std::vector<WizardBlock>;

Blocks blocksOf(const std::string& text)
{
    const auto pages = readWizardPages("= T\n" + text);
    EXPECT_EQ(pages.size(), 1U);
    return pages.empty() ? Blocks() : pages[0].blocks;
}

TEST(ReadWizardPages, EachTitleBeginsAPage)
{
    const auto pages = readWizardPages("ignored\n= One\na\n= Two\nb\n");
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].title, "One");
    EXPECT_EQ(pages[0].blocks, (Blocks{{Kind::Paragraph, "a"}}));
    EXPECT_EQ(pages[1].title, "Two");
}

TEST(ReadWizardPages, LinesGoOnUntilABlankOne)
{
    EXPECT_EQ(blocksOf("a\nb\n\nc"), (Blocks{{Kind::Paragraph, "a b"}, {Kind::Paragraph, "c"}}));
    EXPECT_EQ(blocksOf("* a\nb\n* c"), (Blocks{{Kind::Item, "a b"}, {Kind::Item, "c"}}));
}

TEST(ReadWizardPages, IndentedNeighboursAreOneExample)
{
    EXPECT_EQ(blocksOf("a\n    BTN S1 x\n       /O y\n\n    BTN S2 z"),
              (Blocks{{Kind::Paragraph, "a"}, {Kind::Example, "BTN S1 x\n   /O y"}, {Kind::Example, "BTN S2 z"}}));
}

TEST(ReadWizardPages, BracketsNameTheOtherPieces)
{
    EXPECT_EQ(blocksOf("[button 4]\n[picture tqs]\n[macro]\n[headings]\nwords"), (Blocks{{Kind::Button, "", 4},
                                                                                         {Kind::Picture, "tqs"},
                                                                                         {Kind::Macro, ""},
                                                                                         {Kind::Headings, ""},
                                                                                         {Kind::Paragraph, "words"}}));
}

TEST(ReadWizardPages, UnknownBracketsAreWords)
{
    EXPECT_EQ(blocksOf("[nothing]"), (Blocks{{Kind::Paragraph, "[nothing]"}}));
}

TEST(ReadWizardPages, NoTextHasNoPages) { EXPECT_TRUE(readWizardPages("").empty()); }

TEST(ReadWizardPages, BracketsThatAreNotClosedOrNotOpenedAreWords)
{
    for (const std::string line : {"[macrox", "xmacro]", "[headings1", "macro]", "[macro"})
        EXPECT_EQ(blocksOf(line), (Blocks{{Kind::Paragraph, line}})) << line;
}

TEST(ReadWizardPages, AnExampleOrWordsMayFollowATitleAtOnce)
{
    const auto pages = readWizardPages("= One\n    BTN S1 a\n= Two\nwords\n");
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].blocks, (Blocks{{Kind::Example, "BTN S1 a"}}));
    EXPECT_EQ(pages[1].blocks, (Blocks{{Kind::Paragraph, "words"}}));
}

} // namespace
} // namespace tarvex
