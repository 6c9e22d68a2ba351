#include "documents/text/rtf/rtf.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

RichText read(const std::string& rtf) { return readRtf(rtf, std::make_shared<FormatTable>()); }
/// Reads the inside of a file.
RichText body(const std::string& rtf) { return read("{\\rtf1 " + rtf + "}"); }
std::string textOf(const std::string& rtf) { return body(rtf).text(); }

CharacterFormat formatAt(const RichText& text, std::size_t position)
{
    return (*text.formats())[flattened(text.runs(), text.size())[position]];
}

std::string repeated(std::string_view part, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) all += part;
    return all;
}

TEST(ReadRtf, AFontsNameEndsWithItsGroupToo)
{
    const RichText text = read("{\\rtf1{\\fonttbl{\\f0 One}{\\f1 Two}}\\f0 a\\f1 b}");
    EXPECT_EQ(formatAt(text, 0).fontName, "One");
    EXPECT_EQ(formatAt(text, 1).fontName, "Two");
}

TEST(ReadRtf, TheLastComponentOfAColourCounts)
{
    const RichText text = body("{\\colortbl;\\red255\\green255\\blue255;\\red255\\red1;}\\cf1 a\\cf2 b\\cf3 c");
    EXPECT_EQ(formatAt(text, 0).colour, 0xFFFFFF);
    EXPECT_EQ(formatAt(text, 1).colour, 1);
    EXPECT_EQ(formatAt(text, 2).colour, 0) << "not in the table";
}

} // namespace

TEST(ReadRtf, TheLastOfEachComponentOfAColourCounts)
{
    const RichText text = read("{\\rtf1{\\colortbl;\\red1\\green2\\blue3\\green9\\blue4\\red8;}\\cf1 a}");
    ASSERT_EQ(text.runs().size(), 1U);
    EXPECT_EQ((*text.formats())[text.runs().front().format].colour, 8 | 9 << 8 | 4 << 16);
}

TEST(LooksLikeRtf, OnlyTheSignatureAtTheStartCounts)
{
    EXPECT_TRUE(looksLikeRtf("{\\rtf1 x}"));
    EXPECT_TRUE(looksLikeRtf("{\\rtf"));
    EXPECT_FALSE(looksLikeRtf("{\\rt"));
    EXPECT_FALSE(looksLikeRtf(" {\\rtf1 x}"));
    EXPECT_FALSE(looksLikeRtf(""));
}

TEST(ReadRtf, OtherBytesGiveAnEmptyText)
{
    EXPECT_TRUE(read("BTN S1").empty());
    EXPECT_TRUE(read("").empty());
}

TEST(ReadRtf, LineEndsOfTheFileAreNoText) { EXPECT_EQ(textOf("a\r\nb\rc\nd"), "abcd"); }

TEST(ReadRtf, EachLetterAndNothingElseIsPartOfAWord)
{
    for (char c = 'a'; c <= 'z'; ++c) {
        for (const char letter : {c, static_cast<char>(c - 'a' + 'A')}) {
            EXPECT_EQ(textOf(std::string("x\\") + letter + "zz y"), "xy") << letter;
            EXPECT_EQ(textOf(std::string("x\\zz") + letter + " y"), "xy") << letter;
        }
    }
    for (const char sign : std::string("@[`")) {
        EXPECT_EQ(textOf(std::string("x\\") + sign + "zz y"), "xzz y") << sign;
        EXPECT_EQ(textOf(std::string("x\\zz") + sign + " y"), std::string("x") + sign + " y") << sign;
    }
}

TEST(ReadRtf, EachHexadecimalDigitAndNothingElseWritesAByte)
{
    const std::string digits = "0123456789abcdef0123456789ABCDEF";
    for (char c = ' '; c <= '~'; ++c) {
        if (c == '\\' || c == '{' || c == '}') continue;
        const std::size_t value = digits.find(c);
        const std::string expected =
            value == std::string::npos ? std::string("4") + c : std::string(1, static_cast<char>('@' + value % 16));
        EXPECT_EQ(textOf(std::string("x\\'4") + c + " y"), "x" + expected + " y") << c;
    }
}

TEST(ReadRtf, ParagraphsAndLinesEndInCrLf)
{
    EXPECT_EQ(textOf("a\\par b\\line c\\\r\nd\\\ne"), "a\r\nb\r\nc\r\nd\r\ne");
}

TEST(ReadRtf, LastParagraphMarkEndsTheLastLineAndBeginsNone)
{
    EXPECT_EQ(textOf("a\\par"), "a");
    EXPECT_EQ(textOf("a\\par\\par"), "a\r\n");
    EXPECT_EQ(textOf("a\\par}{"), "a");
    EXPECT_EQ(textOf("{a\\par}"), "a");
    EXPECT_EQ(textOf("a\\line"), "a\r\n");
    EXPECT_EQ(textOf("\\par"), "");
}

TEST(ReadRtf, SpecialCharactersAreThoseOfTheCodePage)
{
    EXPECT_EQ(textOf("\\tab\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet\\~\\_"),
              "\t\x97\x96\x91\x92\x93\x94\x95\xA0-");
    EXPECT_EQ(textOf("\\{\\}\\\\"), "{}\\");
    EXPECT_EQ(textOf("\\'e9\\'E9\\'00x"), std::string("\xE9\xE9\0x", 4));
    EXPECT_EQ(textOf("raw \xE9\ttab"), "raw \xE9\ttab");
}

TEST(ReadRtf, EscapedLineEndBytesAreLineEnds)
{
    EXPECT_EQ(textOf("a\\'0d\\'0ab"), "a\r\nb");
    EXPECT_EQ(textOf("a\\'0ab\\'0dc"), "a\r\nb\r\nc");
    EXPECT_EQ(textOf("a\\'0a\\'0ab"), "a\r\n\r\nb");
}

TEST(ReadRtf, UnicodeCharactersTakeTheirReplacementAway)
{
    EXPECT_EQ(textOf("\\u8364?x"), "\x80x");
    EXPECT_EQ(textOf("\\u8364\\'80x"), "\x80x");
    EXPECT_EQ(textOf("\\u8364 ?x"), "\x80x");
    EXPECT_EQ(textOf("\\uc0\\u233 x"), "\xE9x");
    EXPECT_EQ(textOf("\\uc2\\u233 abx"), "\xE9x");
    EXPECT_EQ(textOf("{\\uc2\\u233 ab}\\u233 cx"), "\xE9\xE9x");
}

TEST(ReadRtf, ReplacementEndsWithItsGroup)
{
    EXPECT_EQ(textOf("{\\uc5\\u233 ab}cd"), "\xE9"
                                            "cd");
}

TEST(ReadRtf, CharactersThatTheCodePageLacksBecomeAQuestionMark)
{
    EXPECT_EQ(textOf("\\u1046x y"), "? y");
    EXPECT_EQ(textOf("\\u-3913x y"), "? y");
    EXPECT_EQ(textOf("\\u-10179x\\u-8704x y"), "? y"); // one character in two halves
    EXPECT_EQ(textOf("\\u-10179x\\b\\u-8704x y"), "? y");
}

TEST(ReadRtf, UnpairedSurrogateBecomesOneQuestionMark)
{
    EXPECT_EQ(textOf("a\\u-10179?b"), "a?b");
    EXPECT_EQ(textOf("a\\u-8704?b"), "a?b");
    EXPECT_EQ(textOf("\\u-10179?x\\u-8704?y"), "?x?y");
    EXPECT_EQ(textOf("\\u-10179?\\par\\u-8704?"), "?\r\n?");
    EXPECT_EQ(textOf("\\u-10179?\\u-10179?\\u-8704?\\u-8704?"), "???"); // alone, a pair, alone
    EXPECT_EQ(textOf("\\u55357?\\u56832?\\u128512?x"), "??x");
}

TEST(ReadRtf, ReplacementIsCountedInCharactersAndWords)
{
    EXPECT_EQ(textOf("\\uc2\\u26085\\'93\\'fax"), "?x");
    EXPECT_EQ(textOf("\\uc1\\u233\\tab x"), "\xE9x");
    EXPECT_EQ(textOf("\\uc3\\u233\\'e9\\b abc"), "\xE9"
                                                 "bc");
    EXPECT_EQ(textOf("\\uc-1\\u233 x"), "\xE9x");
    EXPECT_EQ(textOf("{\\uc0 {\\u233 x}}\\u233 yz"), "\xE9x\xE9z");
}

TEST(ReadRtf, BytesAreOfTheCodePageOfTheFile)
{
    EXPECT_EQ(textOf("\\ansicpg1251 \\'88\\'cf\xCF\xAB"), "\x80??\xAB");
    EXPECT_EQ(textOf("\\mac \\'8e\x8E\\'d2"), "\xE9\xE9\x93");
    EXPECT_EQ(textOf("\\pc \\'81\\'9b"), "\xFC\xA2");
    EXPECT_EQ(textOf("\\pca \\'81\\'9b"), "\xFC\xF8");
    EXPECT_EQ(textOf("\\ansi \\'81\\'9b"), "\x81\x9B");
    EXPECT_EQ(textOf("\\mac\\ansicpg1252 \\'8e"), "\x8E");
    EXPECT_EQ(textOf("{\\*\\unknown\\mac}\\'8e"), "\x8E") << "no word of a group that is skipped";
    EXPECT_EQ(textOf("\\ansicpg0 \\'8e"), "\x8E");
}

TEST(ReadRtf, NamedCharactersAreOfNoCodePage)
{
    EXPECT_EQ(textOf("\\mac \\emdash\\lquote\\bullet\\~\\u233?"), "\x97\x91\x95\xA0\xE9");
}

TEST(ReadRtf, BytesAreOfTheCodePageOfTheirFont)
{
    const std::string fonts = "\\ansicpg1251\\deff3{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset204 Arial CYR;}"
                              "{\\f2\\fcharset77 Geneva;}{\\f3 Plain;}{\\f4\\fcharset2 Symbol;}{\\f5\\fcharset1 Any;}"
                              "{\\f6\\fcharset0\\cpg850 Dos;}{\\f7\\fcharset204{\\*\\panose 02}{\\*\\falt X}Y;}}";
    EXPECT_EQ(textOf(fonts + "\\'88\\f0\\'88\\f1\\'88\\f2\\'88\\f3\\'88\\f4\\'88\\f5\\'88\\f6\\'88\\f7\\'88"),
              "\x80\x88\x80\xE0\x80\x88\x80\xEA\x80");
    EXPECT_EQ(textOf(fonts + "{\\f2\\'88}\\'88\\f2\\plain\\'88"), "\xE0\x80\x80");
    EXPECT_EQ(textOf("\\ansicpg1252{\\fonttbl{\\f0\\fcharset204 Arial CYR;}}\\f0\\'88"), "\x80");
}

TEST(ReadRtf, EastAsianCharacterOfTwoBytesIsOneQuestionMark)
{
    const std::string fonts = "{\\fonttbl{\\f0\\fcharset128 Mincho;}{\\f1\\fcharset134 Song;}}\\f0 ";
    EXPECT_EQ(textOf(fonts + "a\\'93\\'fa\\'96\\'7bb"), "a??b");
    EXPECT_EQ(textOf(fonts + "\\'83Ab\\f1\\'c4\\'e3c"), "?b?c");
    EXPECT_EQ(textOf(fonts + "\\'83\\b A{\\'83}A"), "?A?A");
}

TEST(ReadRtf, LookFollowsTheWordsAndTheGroups)
{
    const RichText text =
        read("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f3\\fmodern Courier New;}}"
             "{\\colortbl;\\red1\\green2\\blue3;}\\fs20 a{\\b\\i\\ul\\f3\\fs17\\cf1 b}c\\b d\\b0\\cf1 e}");
    EXPECT_EQ(text.text(), "abcde");
    EXPECT_EQ(formatAt(text, 0), (CharacterFormat{0, "Arial", 10, false, false, false, 0}));
    EXPECT_EQ(formatAt(text, 1), (CharacterFormat{0x030201, "Courier New", 8.5F, true, true, true, 0}));
    EXPECT_EQ(formatAt(text, 2), formatAt(text, 0));
    EXPECT_TRUE(formatAt(text, 3).bold);
    EXPECT_FALSE(formatAt(text, 4).bold);
    EXPECT_EQ(formatAt(text, 4).colour, 0x030201);
}

TEST(ReadRtf, PlainTakesTheCharacterFormatBackAndPardTheIndent)
{
    const RichText text = body("\\li20\\b\\fs40\\ul a\\plain b\\pard c\\ul d\\ulnone e");
    EXPECT_EQ(formatAt(text, 0).indent, 20);
    EXPECT_TRUE(formatAt(text, 0).bold);
    EXPECT_EQ(formatAt(text, 1), (CharacterFormat{0, "Arial", 12, false, false, false, 20}));
    EXPECT_EQ(formatAt(text, 2).indent, 0);
    EXPECT_TRUE(formatAt(text, 3).underline);
    EXPECT_FALSE(formatAt(text, 4).underline);
}

TEST(ReadRtf, DefaultFontIsTheOneThatDeffNames)
{
    const RichText text =
        read("{\\rtf1\\deff2{\\fonttbl{\\f1 One;}{\\f2 Two{\\*\\falt Other};}}a\\f1 b\\plain c\\f9 d}");
    EXPECT_EQ(formatAt(text, 0).fontName, "Two");
    EXPECT_EQ(formatAt(text, 1).fontName, "One");
    EXPECT_EQ(formatAt(text, 2).fontName, "Two");
    EXPECT_EQ(formatAt(text, 3).fontName, "Two");
}

TEST(ReadRtf, FontTableWithoutGroupsIsRead)
{
    const RichText text = read("{\\rtf1{\\fonttbl\\f1 One;\\f2 T\\'3bo;}\\f2 a\\f1 b}");
    EXPECT_EQ(formatAt(text, 0).fontName, "T;o");
    EXPECT_EQ(formatAt(text, 1).fontName, "One");
}

TEST(ReadRtf, ColourOutsideTheTableIsBlack)
{
    const RichText text = body("{\\colortbl;\\red9\\green999\\blue-9;}\\cf2 a\\cf-1 b\\cf1 c");
    EXPECT_EQ(formatAt(text, 0).colour, 0);
    EXPECT_EQ(formatAt(text, 1).colour, 0);
    EXPECT_EQ(formatAt(text, 2).colour, 0x00FF09);
}

TEST(ReadRtf, GroupsThatHoldNoTextAreSkipped)
{
    EXPECT_EQ(textOf("a{\\stylesheet{\\s0 Normal;}}{\\info{\\title t}}{\\pict 0102}{\\*\\unknown x{y}}{\\footnote f}b"),
              "ab");
}

TEST(ReadRtf, EveryDestinationThatIsNotTheTextIsSkipped)
{
    for (const char* name :
         {"stylesheet", "pntext",   "listtext", "info",     "pict",    "nonshppict", "shprslt",
          "objdata",    "fldinst",  "header",   "headerf",  "headerl", "headerr",    "footer",
          "footerf",    "footerl",  "footerr",  "footnote", "ftnsep",  "ftnsepc",    "ftncn",
          "aftnsep",    "aftnsepc", "aftncn",   "filetbl",  "revtbl",  "listtable",  "listoverridetable",
          "template",   "private",  "tc",       "xe",       "rxe",     "txe"})
        EXPECT_EQ(textOf("a{\\" + std::string(name) + " b\\tab{\\b c}}d"), "ad") << name;
}

TEST(ReadRtf, EveryKindOfUnderlineIsOne)
{
    for (const char* name : {"ul", "uld", "uldb", "uldash", "ulth", "ulw", "ulwave"}) {
        const RichText text = body("\\" + std::string(name) + " a\\" + name + "0 b");
        EXPECT_TRUE(formatAt(text, 0).underline) << name;
        EXPECT_FALSE(formatAt(text, 1).underline) << name;
    }
}

TEST(ReadRtf, WideBlanksAreBlanksAndBreaksAreLineEnds)
{
    EXPECT_EQ(textOf("a\\emspace b\\enspace c\\qmspace d"), "a b c d");
    EXPECT_EQ(textOf("a\\row b\\page c\\sect d"), "a\r\nb\r\nc\r\nd");
}

TEST(ReadRtf, SignsThatMeanNothingAreLeftOut) { EXPECT_EQ(textOf("a\\-b\\:c\\|d\\\te"), "abcd\te"); }

TEST(ReadRtf, HalvesOfACharacterAreThoseOfTheirRanges)
{
    EXPECT_EQ(textOf("\\u55296?\\u56320?"), "?") << "the first of both";
    EXPECT_EQ(textOf("\\u56319?\\u57343?"), "?") << "the last of both";
    EXPECT_EQ(textOf("\\u55295?\\u56320?"), "??");
    EXPECT_EQ(textOf("\\u56319?\\u57344?"), "??");
    EXPECT_EQ(textOf("\\u55296?\\line\\u56320?"), "?\r\n?");
}

TEST(ReadRtf, SizesOfFontsHaveTheirBounds)
{
    const RichText text = body("\\fs1 a\\fs32767 b\\fs32768 c");
    EXPECT_EQ(formatAt(text, 0).fontSize, 0.5F);
    EXPECT_EQ(formatAt(text, 1).fontSize, 16383.5F);
    EXPECT_EQ(formatAt(text, 2).fontSize, 16383.5F) << "out of bounds: the one before";
}

TEST(ReadRtf, StarOnlyCountsAtTheStartOfItsGroup)
{
    EXPECT_EQ(read("{\\rtf1 A {\\loch\\*\\cs7 BTN S1} B}").text(), "A BTN S1 B");
    EXPECT_EQ(textOf("a\\*\\zork b"), "ab");
    EXPECT_EQ(textOf("a{b\\*\\zork c}"), "abc");
    EXPECT_EQ(textOf("a{{}\\*\\zork b}"), "ab");
    EXPECT_EQ(textOf("a{\r\n\\*\r\n\\zork b}c"), "ac");
}

TEST(ReadRtf, StarOnlyCountsForTheWordBehindIt)
{
    EXPECT_EQ(textOf("{\\*{\\b a}\\zork b}"), "ab");
    EXPECT_EQ(textOf("{\\* a\\zork b}"), " ab");
}

TEST(ReadRtf, HiddenAndDeletedTextIsLeftOut)
{
    EXPECT_EQ(textOf("a{\\v b\\par c\\u233?\\'e9\\tab}d"), "ad");
    EXPECT_EQ(textOf("a\\v b\\v0 c"), "ac");
    EXPECT_EQ(textOf("a\\v b\\plain c"), "ac");
    EXPECT_EQ(textOf("a{\\deleted b{\\b c}\\line}d"), "ad");
    EXPECT_EQ(textOf("a\\deleted b\\deleted0 c"), "ac");
    EXPECT_EQ(textOf("a{\\v\\deleted b\\v0 c\\deleted0 d}e"), "ade");
    EXPECT_EQ(textOf("a\\par{\\v b\\par}"), "a");
}

TEST(ReadRtf, BulletsAndNumbersOfListsAreNoText)
{
    EXPECT_EQ(textOf("{\\pntext\\f3\\'b7\\tab}one\\par{\\listtext\\pard\\plain 2.\\tab}two"), "one\r\ntwo");
}

TEST(ReadRtf, CellsAreSeparatedByTabsInNestedTablesToo)
{
    EXPECT_EQ(textOf("a\\cell b\\cell\\row"), "a\tb\t\r\n");
    EXPECT_EQ(textOf("a\\nestcell b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}c\\cell\\row"),
              "a\tb\t\r\nc\t\r\n");
}

TEST(ReadRtf, UnknownWordsAreSkippedAndTheirGroupsRead) { EXPECT_EQ(textOf("a\\zork12 b{\\zork c}"), "abc"); }

TEST(ReadRtf, BinaryDataIsSkippedByItsLength)
{
    EXPECT_EQ(textOf("a\\bin4 {}\\}b"), "ab");
    EXPECT_EQ(textOf("a{\\pict\\bin3 }}}}b"), "ab");
    EXPECT_EQ(textOf("a\\bin99999999999 b"), "a");
    EXPECT_EQ(textOf("a\\bin-5 b"), "ab");
}

TEST(ReadRtf, TextBehindTheLastGroupIsNotRead) { EXPECT_EQ(read("{\\rtf1 a}b{c}").text(), "a"); }

TEST(ReadRtf, FileThatBreaksOffGivesWhatItHeld)
{
    EXPECT_EQ(read("{\\rtf1 a{\\b b").text(), "ab");
    EXPECT_EQ(read("{\\rtf1 a\\").text(), "a");
    EXPECT_EQ(read("{\\rtf1 a\\'").text(), "a");
    EXPECT_EQ(read("{\\rtf1 a\\'e").text(), "ae");
    EXPECT_EQ(read("{\\rtf1 a\\'zz").text(), "azz");
    EXPECT_EQ(read("{\\rtf").text(), "");
}

TEST(ReadRtf, DigitsOfAByteAreHexadecimalInBothCases)
{
    EXPECT_EQ(textOf("\\'aF\\'Fa\\'09\\'90"), "\xAF\xFA\t\x90");
    EXPECT_EQ(textOf("\\'ag\\'ga\\'`a\\'a`"), "agga`aa`");
    EXPECT_EQ(textOf("\\'/0\\'0:"), "/00:");
}

TEST(ReadRtf, AWordEndsAtItsNumberAndTakesOneBlankWithIt)
{
    EXPECT_EQ(textOf("\\b0x\\b  y\\b-z\\b-1w"), "x y-zw");
    EXPECT_EQ(textOf("\\B a\\TAB b"), "ab") << "words have lower-case letters";
}

TEST(ReadRtf, NumbersThatNoWordCanMeanAreBounded)
{
    const RichText text = body("\\fs99999999999\\li99999999999999999999 a\\fs-4 b\\li-99999999999 c\\fs0 d");
    EXPECT_EQ(text.text(), "abcd");
    EXPECT_EQ(formatAt(text, 0).fontSize, 12);
    EXPECT_EQ(formatAt(text, 1).fontSize, 12);
    EXPECT_EQ(formatAt(text, 3).fontSize, 12);
    EXPECT_EQ(formatAt(text, 0).indent, INT32_MAX);
    EXPECT_EQ(formatAt(text, 2).indent, INT32_MIN);
}

TEST(ReadRtf, BehindGroupsThatAreTooDeepTheLookIsThatInFrontOfThem)
{
    const RichText text = read("{\\rtf1 {\\b a" + repeated("{", 3000) + "b" + repeated("}", 3000) + "}c}");
    EXPECT_EQ(text.text(), "ac");
    EXPECT_TRUE(formatAt(text, 0).bold);
    EXPECT_FALSE(formatAt(text, 1).bold);
}

TEST(ReadRtf, GroupsDeeperThanAThousandAreSkipped)
{
    const auto nested = [](int depth) {
        return "{\\rtf1 " + repeated("{", depth - 1) + "x" + repeated("}", depth - 1) + "y}";
    };
    EXPECT_EQ(read(nested(1000)).text(), "xy");
    EXPECT_EQ(read(nested(1001)).text(), "y");
    EXPECT_EQ(read(nested(1'000'000)).text(), "y");
}

TEST(ReadRtf, MoreFormatsThanTheTableHoldsStillGiveTheText)
{
    std::string rtf;
    for (int i = 0; i < 70'000; ++i) rtf += "\\li" + std::to_string(i + 1) + " x";
    const RichText text = body(rtf);
    EXPECT_EQ(text.size(), 70'000U);
    EXPECT_EQ(text.formats()->size(), 65536U);
}

} // namespace tarvex
