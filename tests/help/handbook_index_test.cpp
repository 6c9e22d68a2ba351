#include "help/handbook_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string text = "chapter\tLanguage\n"
                         "page\tbtn.html\tThe BTN statement\tGives a button its macros. Mind the slash.\n"
                         "page\tslash.html\tSlash modifiers\tA slash and a letter. /U is up. The slash slash.\n"
                         "chapter\tWindows\n"
                         "page\tsafein.html\tSafein\tKnows each button and slash of the keyboard.\n"
                         "keyword\tBTN\tbtn.html\n"
                         "keyword\tBTN S1\tbtn.html#s1\n"
                         "keyword\t/U\tslash.html#u\n"
                         "keyword\tRAW\tsafein.html#raw\n"
                         "keyword\traw code\tsafein.html#code\n"
                         "topic\t2500\tsafein.html\n";

struct Index : testing::Test {
    HandbookIndex index{text};
    std::string lookUp(const std::string& words) const { return index.lookUp(words).value_or("(none)"); }
    std::vector<std::string> found(const std::string& words) const
    {
        std::vector<std::string> files;
        for (const auto& hit : index.search(words)) files.push_back(index.pages()[hit.page].file);
        return files;
    }
};

TEST_F(Index, HasTheChaptersWithTheirPagesInOrder)
{
    ASSERT_EQ(index.chapters().size(), 2U);
    EXPECT_EQ(index.chapters()[0].title, "Language");
    EXPECT_THAT(index.chapters()[0].pages, ElementsAre(0, 1));
    EXPECT_EQ(index.pages()[2].title, "Safein");
}

TEST_F(Index, FindsThePageOfATargetWithAnAnchor)
{
    EXPECT_EQ(index.pageOf("slash.html#u"), &index.pages()[1]);
    EXPECT_EQ(index.pageOf("nowhere.html"), nullptr);
    EXPECT_EQ(index.pageOf(""), nullptr);
}

TEST_F(Index, LookUpTakesAKeywordInAnyCaseAndWithBlanksAround)
{
    EXPECT_EQ(lookUp("btn"), "btn.html");
    EXPECT_EQ(lookUp("  /u\r\n"), "slash.html#u");
    EXPECT_EQ(lookUp("Raw \t Code"), "safein.html#code");
}

TEST_F(Index, LookUpTakesTheLongestKeywordAtTheStart)
{
    EXPECT_EQ(lookUp("BTN S1 /U fire"), "btn.html#s1");
    EXPECT_EQ(lookUp("BTN S2 /U fire"), "btn.html");
    EXPECT_EQ(lookUp("RAW (#1C)"), "safein.html#raw");
}

TEST_F(Index, LookUpTakesTheLongestKeywordInsideWhenNoneIsAtTheStart)
{
    EXPECT_EQ(lookUp("fire /U"), "slash.html#u");
    EXPECT_EQ(lookUp("what is a raw code?"), "safein.html#code");
}

TEST_F(Index, LookUpTakesNoPartOfAWord)
{
    EXPECT_EQ(lookUp("BTNX"), "(none)");
    EXPECT_EQ(lookUp("DRAW"), "(none)");
    EXPECT_EQ(lookUp("BTN S12"), "btn.html");
    EXPECT_EQ(lookUp("/UP"), "(none)");
}

TEST_F(Index, DigitsUnderscoresAndLettersWithAccentsBelongToAWord)
{
    for (const char* word : {"BTN_", "BTN9", "BTN0", "BTNz", "BTNA", "BTNZ", "BTN\xC3\xA9", "a BTN_", "_BTN", "9BTN"})
        EXPECT_EQ(lookUp(word), "(none)") << word;
    for (const char* word : {"BTN-", "BTN(", "-BTN", "BTN@", "BTN[", "BTN`", "BTN{", "BTN/", "BTN:"})
        EXPECT_EQ(lookUp(word), "btn.html") << word;
}

TEST_F(Index, AWordInsideIsFoundBehindAnotherThatOnlyBeginsLikeIt)
{
    EXPECT_EQ(lookUp("xbtnx BTN"), "btn.html");
    EXPECT_EQ(lookUp("see /ux and /u"), "slash.html#u");
}

TEST_F(Index, LookUpLooksAtFourHundredLetters)
{
    const std::string before(396, '.');
    EXPECT_EQ(lookUp(before + " BTN"), "btn.html");
    EXPECT_EQ(lookUp(before + ". BTN"), "(none)");
}

TEST_F(Index, LookUpOfNothingFindsNothing)
{
    EXPECT_EQ(lookUp(""), "(none)");
    EXPECT_EQ(lookUp(" \r\n"), "(none)");
    EXPECT_EQ(HandbookIndex().lookUp("BTN"), std::nullopt);
}

TEST_F(Index, LookUpOfAWholeFileLooksAtItsBeginning)
{
    EXPECT_EQ(lookUp("BTN S1 " + std::string(1'000'000, 'x')), "btn.html#s1");
}

TEST_F(Index, SearchShowsPagesWithAllTheWords)
{
    EXPECT_THAT(found("button slash"), ElementsAre("btn.html", "safein.html"));
    EXPECT_THAT(found("button nothing"), ElementsAre());
    EXPECT_THAT(found(" "), ElementsAre());
}

TEST_F(Index, AWordMayStandInTheTitleAndTheOtherInTheText)
{
    EXPECT_THAT(found("modifiers letter"), ElementsAre("slash.html"));
    EXPECT_THAT(found("statement keyboard"), ElementsAre());
}

TEST_F(Index, PagesWithTheWordEquallyOftenStandInTheirOrder)
{
    EXPECT_THAT(found("button"), ElementsAre("btn.html", "safein.html"));
    const HandbookIndex three(
        "chapter\tc\npage\ta.html\tA\tone one\npage\tb.html\tB\tone\npage\tc.html\tC\tone one one\n");
    std::vector<std::size_t> pages;
    for (const auto& hit : three.search("one")) pages.push_back(hit.page);
    EXPECT_THAT(pages, ElementsAre(2, 0, 1));
}

TEST_F(Index, MatchesOfAWordDoNotOverlap)
{
    const HandbookIndex two("chapter\tc\npage\ta.html\tA\taaaa\npage\tb.html\tB\taa aa aa\n");
    EXPECT_EQ(two.search("aa").at(0).page, 1U) << "three times, and the other one twice";
}

TEST_F(Index, TheFirstOfTwoKeywordsOfOneNameCounts)
{
    const HandbookIndex twice("chapter\tc\npage\ta.html\tA\tx\nkeyword\tRaw\ta.html#1\nkeyword\tRAW\ta.html#2\n"
                              "topic\t1\ta.html#3\ntopic\t1\ta.html#4\n");
    EXPECT_EQ(twice.lookUp("raw"), "a.html#1");
    ASSERT_EQ(twice.keywords().size(), 1U);
    EXPECT_EQ(twice.keywords()[0].word, "Raw");
    EXPECT_EQ(twice.keywords()[0].target, "a.html#1");
    EXPECT_EQ(twice.topics().at(1), "a.html#3");
}

TEST_F(Index, SearchPutsTitlesFirstAndThenThePagesThatHaveTheWordMoreOften)
{
    EXPECT_THAT(found("SLASH"), ElementsAre("slash.html", "btn.html", "safein.html"));
    EXPECT_THAT(found("safein"), ElementsAre("safein.html"));
}

TEST_F(Index, AWordInTheTitleCountsMoreThanAnyNumberInTheText)
{
    const HandbookIndex two("chapter\tc\npage\ta.html\tA\tone one one\npage\tb.html\tOne\tnothing\n");
    std::vector<std::size_t> pages;
    for (const auto& hit : two.search("one")) pages.push_back(hit.page);
    EXPECT_THAT(pages, ElementsAre(1, 0));
}

TEST_F(Index, AnExcerptShowsThePlaceBetweenWholeWords)
{
    std::string words;
    for (int i = 0; i < 100; ++i) words += "word" + std::to_string(i) + " ";
    const HandbookIndex long_("chapter\tc\npage\ta.html\tA\t" + words + "needle " + words + "\n");
    const std::string excerpt = long_.search("needle").at(0).excerpt;
    EXPECT_THAT(excerpt, HasSubstr(" word99 needle word0 "));
    EXPECT_TRUE(excerpt.starts_with("… word9")) << excerpt;
    EXPECT_TRUE(excerpt.ends_with(" …")) << excerpt;
    EXPECT_LT(excerpt.size(), 200U);
}

std::string excerptOf(const std::string& shown, const std::string& word)
{
    return HandbookIndex("chapter\tc\npage\ta.html\tA\t" + shown + "\n").search(word).at(0).excerpt;
}

TEST_F(Index, AnExcerptIsTheWholeTextWhereItIsShort)
{
    EXPECT_EQ(excerptOf("needle", "needle"), "needle");
    EXPECT_EQ(excerptOf(std::string(50, 'x') + "needle", "needle"), std::string(50, 'x') + "needle");
    EXPECT_EQ(excerptOf("needle" + std::string(154, 'x'), "needle"), "needle" + std::string(154, 'x')) << "160";
    EXPECT_EQ(excerptOf("needle" + std::string(155, 'x'), "needle"), "needle" + std::string(154, 'x') + " …");
}

TEST_F(Index, AnExcerptBeginsFiftyLettersBeforeItsPlaceAtTheNextWord)
{
    EXPECT_EQ(excerptOf(std::string(51, 'x') + "needle", "needle"), "… " + std::string(50, 'x') + "needle");
    EXPECT_EQ(excerptOf("aa bb " + std::string(47, 'x') + " needle", "needle"), "… " + std::string(47, 'x') + " needle")
        << "the blank before that word is the fiftieth letter";
    EXPECT_EQ(excerptOf("ab " + std::string(49, 'x') + " needle", "needle"), "… needle");
}

TEST_F(Index, AnExcerptEndsAtTheLastWordThatHasRoom)
{
    const std::string first = "needle " + std::string(150, 'x');
    EXPECT_EQ(excerptOf(first + " yy zz", "needle"), first + " yy …") << "160 letters and a blank";
    EXPECT_EQ(excerptOf(first + " yyy", "needle"), first + " …");
    EXPECT_EQ(excerptOf("x needle" + std::string(160, 'y'), "needle"), "x needle" + std::string(152, 'y') + " …")
        << "not before its own place";
}

TEST_F(Index, AnExcerptCutsNoCharacterInTwo)
{
    std::string letters;
    for (int i = 0; i < 300; ++i) letters += "\xC3\xA9";
    const HandbookIndex index2("chapter\tc\npage\ta.html\tA\t" + letters + "x" + letters + "\n");
    const std::string excerpt = index2.search("x").at(0).excerpt;
    std::size_t continued = 0;
    for (const char c : excerpt.substr(4)) continued += (static_cast<unsigned char>(c) & 0xC0) == 0x80 ? 1 : 0;
    EXPECT_NE(static_cast<unsigned char>(excerpt[4]) & 0xC0, 0x80) << "starts in the middle of a character";
    EXPECT_GT(continued, 0U);
}

TEST_F(Index, TopicsLeadToTheirPages)
{
    ASSERT_EQ(index.topics().size(), 1U);
    EXPECT_EQ(index.topics().at(2500), "safein.html");
}

TEST_F(Index, DamagedLinesArePassedOver)
{
    const HandbookIndex damaged("page\tlost.html\tNo chapter\ttext\nchapter\n\tx\nchapter\tc\textra\nchapter\tc\n"
                                "page\ta.html\tA\nkeyword\tx\ntopic\tzwei\ta.html\ntopic\t3x\ta.html\n"
                                "topic\t99999999999\ta.html\nnoise\npage\ta.html\tA\ttext\n");
    EXPECT_EQ(damaged.pages().size(), 1U);
    EXPECT_EQ(damaged.chapters().size(), 1U);
    EXPECT_TRUE(damaged.keywords().empty());
    EXPECT_TRUE(damaged.topics().empty());
    EXPECT_TRUE(HandbookIndex("").pages().empty());
}

TEST_F(Index, LinesAndTabsBetweenWordsAreBlanks)
{
    for (const char* words : {"raw\ncode", "raw\rcode", "raw\tcode", "raw\r\n\tcode", "RAW CODE\r\n"})
        EXPECT_EQ(lookUp(words), "safein.html#code") << words;
    EXPECT_THAT(found("button\r\nslash\r\n"), ElementsAre("btn.html", "safein.html"));
}

TEST_F(Index, LookUpPrefersAKeywordAtTheStartAndThenTheLongest)
{
    const HandbookIndex words("chapter\tc\npage\tp.html\tP\tx\n"
                              "keyword\taa\taa\nkeyword\tbb\tbb\nkeyword\talpha beta\talpha beta\n"
                              "keyword\tgamma\tgamma\nkeyword\tzzzz\tzzzz\nkeyword\tzz\tzz\n");
    const std::pair<const char*, const char*> lookUps[] = {
        {"x alpha beta gamma", "alpha beta"}, // the longest inside, whatever comes behind it in the alphabet
        {"x gamma alpha beta", "alpha beta"},
        {"x aa bb", "aa"}, // of two alike the first of the alphabet
        {"x bb aa", "aa"},
        {"bb zzzz", "bb"}, // at the start before a longer one inside
        {"zz alpha beta", "zz"},
        {"zz aa", "zz"},
        {"ZzZz", "zzzz"},
    };
    for (const auto& [wanted, keyword] : lookUps) EXPECT_EQ(words.lookUp(wanted), keyword) << wanted;
}

TEST_F(Index, AnExcerptOfManyWordsThatAllHaveRoomIsCutNowhere)
{
    EXPECT_EQ(excerptOf("needle aa bb", "needle"), "needle aa bb");
    EXPECT_EQ(excerptOf("aa bb needle", "needle"), "aa bb needle");
}

TEST_F(Index, AnExcerptOfLettersWithAccentsBeginsAndEndsBetweenThem)
{
    const auto accents = [](int count) {
        std::string letters;
        for (int i = 0; i < count; ++i) letters += "\xC3\xA9";
        return letters;
    };
    EXPECT_EQ(excerptOf(accents(300) + "ax" + accents(300), "x"), "… " + accents(24) + "ax" + accents(55) + " …");
    EXPECT_EQ(excerptOf(accents(300) + "x" + accents(300), "x"), "… " + accents(25) + "x" + accents(55) + " …");
}

TEST_F(Index, LinesOfAnotherKindAreNothingHoweverManyFieldsTheyHave)
{
    const HandbookIndex noise("chapter\tc\npage\ta.html\tA\tx\nnoise\t7\ta.html\nnoise\tb\nnoise\tb.html\tB\ty\n");
    EXPECT_TRUE(noise.topics().empty());
    EXPECT_TRUE(noise.keywords().empty());
    EXPECT_EQ(noise.chapters().size(), 1U);
    EXPECT_EQ(noise.pages().size(), 1U);
}

TEST_F(Index, AnExcerptOfAPlaceBehindFiftyOneLettersBeginsAtTheNextWord)
{
    EXPECT_EQ(excerptOf("a bb " + std::string(45, 'x') + " needle", "needle"),
              "… bb " + std::string(45, 'x') + " needle");
}

TEST_F(Index, AnyLetterBeyondAsciiBelongsToAWord)
{
    EXPECT_EQ(lookUp("\xC3\x80"
                     "BTN"),
              "(none)");
    EXPECT_EQ(lookUp("BTN\xC3\x80"), "(none)");
}

TEST_F(Index, APageWithoutAnyTextIsAPage)
{
    const HandbookIndex empty("chapter\tc\npage\ta.html\tA\t\npage\tb.html\tB\t\n");
    EXPECT_EQ(empty.pages().size(), 2U);
    EXPECT_EQ(empty.search("b").at(0).excerpt, "");
}

TEST_F(Index, AllWordsCountInTheTitlesAndInTheTexts)
{
    const auto order = [](const std::string& pages) {
        std::vector<std::size_t> found;
        for (const auto& hit : HandbookIndex("chapter\tc\n" + pages).search("one two")) found.push_back(hit.page);
        return found;
    };
    EXPECT_THAT(order("page\ta.html\tTwo\tone two two two\npage\tb.html\tOne two\tx\n"), ElementsAre(1, 0));
    EXPECT_THAT(order("page\ta.html\tA\tone two two\npage\tb.html\tB\tone one one two\n"), ElementsAre(1, 0));
}

} // namespace
} // namespace tarvex
