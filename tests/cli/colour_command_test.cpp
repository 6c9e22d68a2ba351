#include "cli/tarvexctl.h"
#include "documents/text/rtf/rtf.h"
#include "support/test_program.h"

namespace tarvex {
namespace {

// The factory's colours.
constexpr Colour btn = 16711680;
constexpr Colour slash = 255;
constexpr Colour raw = 32768;
constexpr Colour misc = 12615680;
constexpr Colour rem = 8421504;

using Runs = std::vector<std::array<std::int64_t, 3>>;

struct ColourCommandTest : CliTest {
    Runs runsOf(const CliResult& result) { return result.json().at("runs").get<Runs>(); }
    Runs runsOfFile(const std::string& name, const std::string& text)
    {
        return runsOf(tarvexctl({"colour", directory.put(name, text)}));
    }
    /// Whether the runs cover the text without a gap, and neighbours differ.
    static void expectWhole(const CliResult& result, std::int64_t length)
    {
        const auto json = result.json();
        EXPECT_EQ(json.at("length"), length);
        std::int64_t end = 0;
        std::int64_t colour = -1;
        for (const auto& run : json.at("runs").get<Runs>()) {
            ASSERT_EQ(run[0], end);
            ASSERT_GT(run[1], 0);
            ASSERT_NE(run[2], colour);
            end += run[1];
            colour = run[2];
        }
        EXPECT_EQ(end, length);
    }
};

TEST_F(ColourCommandTest, PrintsTheRunsOfAJoystickFileAsJson)
{
    const CliResult result = tarvexctl({"colour", directory.put("a.b50", "BTN S1 /P RAW (#5B)\r\nUSE TQS rem x\r\n")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(runsOf(result), (Runs{{0, 6, btn},
                                    {6, 1, 0},
                                    {7, 2, slash},
                                    {9, 1, 0},
                                    {10, 5, raw},
                                    {15, 3, 0},
                                    {18, 1, raw},
                                    {19, 2, 0},
                                    {21, 3, misc},
                                    {24, 5, 0},
                                    {29, 5, rem},
                                    {34, 2, 0}}));
    EXPECT_EQ(result.json().at("length"), 36);
    EXPECT_EQ(result.json().at("held").dump(), "[]");
}

TEST_F(ColourCommandTest, TheExtensionInAnyCaseMarksAMacroFile)
{
    const std::string text = "ant 1\r\n"; // coloured in a joystick file only
    for (const std::string extension : {"m22", "m50", "mdf", "M50"})
        EXPECT_EQ(runsOfFile("a." + extension, text).size(), 1U) << extension;
    for (const std::string extension : {"f22", "b50", "adv", "txt", "m51"})
        EXPECT_EQ(runsOfFile("a." + extension, text).size(), 2U) << extension;
}

TEST_F(ColourCommandTest, AsOverrulesTheExtension)
{
    const std::string path = directory.put("a.b50", "ant 1 DEF X1 a");
    EXPECT_EQ(runsOf(tarvexctl({"colour", path})), (Runs{{0, 3, misc}, {3, 3, 0}, {6, 6, btn}, {12, 2, 0}}));
    EXPECT_EQ(runsOf(tarvexctl({"colour", path, "--as", "macro"})), (Runs{{0, 6, 0}, {6, 6, btn}, {12, 2, 0}}));
    EXPECT_EQ(runsOf(tarvexctl({"colour", path, "--as", "template"})),
              (Runs{{0, 3, misc}, {3, 3, 0}, {6, 4, misc}, {10, 2, btn}, {12, 2, 0}}));
}

TEST_F(ColourCommandTest, ADashReadsStandardInputAsAJoystickFileByDefault)
{
    EXPECT_EQ(runsOf(tarvexctl({"colour", "-"}, "ant 1")), (Runs{{0, 3, misc}, {3, 2, 0}}));
    EXPECT_EQ(runsOf(tarvexctl({"colour", "-", "--as", "macro"}, "ant 1")), (Runs{{0, 5, 0}}));
}

TEST_F(ColourCommandTest, AFileInUtf16IsReadAsItsText)
{
    const std::string bytes("\xFF\xFEr\0e\0m\0 \0y\0\n\0z\0", 16);
    EXPECT_EQ(runsOfFile("a.b50", bytes), (Runs{{0, 5, rem}, {5, 3, 0}}));
}

TEST_F(ColourCommandTest, AnEmptyTextHasNoRuns)
{
    const CliResult result = tarvexctl({"colour", "-"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "{\"length\": 0, \"runs\": [], \"held\": []}\n");
}

TEST_F(ColourCommandTest, ALoneLineFeedCountsAsTwoCharacters)
{
    EXPECT_EQ(runsOf(tarvexctl({"colour", "-"}, "x\nrem y\nz")), (Runs{{0, 3, 0}, {3, 5, rem}, {8, 3, 0}}));
}

TEST_F(ColourCommandTest, IniGivesTheSchemeAndItsMissingKeysCountAsInTheProgram)
{
    const std::string ini = directory.put("my.ini", "[Colours]\r\nBTNColour=66\r\n");
    const CliResult result = tarvexctl({"colour", "-", "--ini", ini}, "BTN S1 /P");
    EXPECT_EQ(runsOf(result), (Runs{{0, 6, 66}, {6, 1, 0}, {7, 2, 16744448}}));
}

TEST_F(ColourCommandTest, TheExamplesAreColouredAsTheProgramColoursThem)
{
    for (const std::string name : {"lance.f22", "lance.m22", "kestrel.b50", "kestrel.m50", "contrail.adv"}) {
        const std::string path = TARVEX_SOURCE_DIRECTORY "/examples/" + name;
        TestProgram t;
        t.program().shared.store.ColoursSortOut();
        Side& side = name.find(".m") != name.npos ? t.editor().macro : t.editor().joystick;
        side.pane.setText(bytesOf(path));
        side.ApplyColours();
        Runs expected;
        for (std::size_t i = 0; i < side.pane.TextLength(); ++i) {
            const Colour colour = side.pane.formatAt(i).colour;
            if (expected.empty() || expected.back()[2] != colour)
                expected.push_back({static_cast<std::int64_t>(i), 0, colour});
            ++expected.back()[1];
        }
        EXPECT_EQ(runsOf(tarvexctl({"colour", path})), expected) << name;
    }
}

// ---- the other forms ------------------------------------------------------------------------------------------------

TEST_F(ColourCommandTest, AnsiIsTheTextWithEscapes)
{
    const CliResult result = tarvexctl({"colour", "-", "--ansi"}, "BTN S1 x\r\n\x84~\xC9");
    EXPECT_EQ(result.out, "\x1b[38;2;0;0;255mBTN S1\x1b[0m x\n\xE2\x80\x9E\x1b[38;2;128;128;128m~\xC3\x89\x1b[0m\n");
}

TEST_F(ColourCommandTest, AnsiLetsNoControlCharacterThrough)
{
    using namespace std::string_literals;
    const CliResult result = tarvexctl({"colour", "-", "--ansi"}, "a\x1b]0;b\x07\x00\x7f\x9d\tc"s);
    EXPECT_EQ(result.out, "a\xE2\x90\x9B]0;b\xE2\x90\x87\xE2\x90\x80\xE2\x90\xA1\xEF\xBF\xBD\tc\n");
}

TEST_F(ColourCommandTest, HtmlIsAPageWithItsCharactersEscaped)
{
    const std::string path = directory.put("<a>.b50", "BTN S1 <&> \"x\"");
    const CliResult result = tarvexctl({"colour", path, "--html"});
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("<span style=\"color: #0000ff\">BTN S1</span> &lt;&amp;&gt; &quot;x&quot;</pre>"),
              std::string::npos)
        << result.out;
    EXPECT_NE(result.out.find("/&lt;a&gt;.b50</title>"), std::string::npos) << result.out;
    EXPECT_NE(result.out.find("background: #fdfad9"), std::string::npos) << "14285565 is the joystick file's";
}

TEST_F(ColourCommandTest, RtfBringsTextAndColours)
{
    const CliResult result = tarvexctl({"colour", "-", "--rtf"}, "BTN S1 x\r\ny");
    const auto formats = std::make_shared<FormatTable>();
    const RichText text = readRtf(result.out, formats);
    EXPECT_EQ(text.text(), "BTN S1 x\r\ny");
    ASSERT_FALSE(text.runs().empty());
    EXPECT_EQ(text.runs()[0].length, 6U);
    EXPECT_EQ((*formats)[text.runs()[0].format].colour, btn);
}

// ---- holds and bad input --------------------------------------------------------------------------------------------

TEST_F(ColourCommandTest, AHeldPassIsReportedAndTheResultIsPrintedAllTheSame)
{
    const std::string path = directory.put("a.b50", "x\r\nRAW(#5B\r\nrem y");
    const CliResult result = tarvexctl({"colour", path});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(runsOf(result), (Runs{{0, 3, 0}, {3, 4, raw}, {7, 5, 0}, {12, 5, rem}}));
    EXPECT_EQ(result.json().at("held").dump(), R"([{"word":"RAW(","line":2}])");
    EXPECT_EQ(result.err, "tarvexctl: " + path + ":2: the search for \"RAW(\" comes back here and would never end\n");
    EXPECT_EQ(tarvexctl({"colour", path, "--ansi"}).status, 3);
}

TEST_F(ColourCommandTest, UnclosedBracketsEverywhereEndWithEachWordHeldOnce)
{
    std::string text;
    for (int i = 0; i < 5000; ++i) text += "RAW (#5B RAW(#5B DLY(6 RPT(2\r\n";
    const CliResult result = tarvexctl({"colour", "-"}, text);
    EXPECT_EQ(result.status, 3);
    expectWhole(result, static_cast<std::int64_t>(text.size()));
    EXPECT_EQ(result.json().at("held").dump(), R"([{"word":"RAW (","line":1},{"word":"RAW(","line":1},)"
                                               R"({"word":"DLY(","line":1},{"word":"RPT(","line":1}])");
}

TEST_F(ColourCommandTest, EveryByteValueIsText)
{
    std::string bytes;
    for (int i = 0; i < 60'000; ++i) bytes += static_cast<char>(i * 7919 % 256);
    std::size_t length = bytes.size(); // lone CR and LF count as two
    for (std::size_t i = 0; i < bytes.size(); ++i) length += bytes[i] == '\r' || bytes[i] == '\n' ? 1 : 0;
    const CliResult result = tarvexctl({"colour", directory.put("a.b50", bytes)});
    EXPECT_EQ(result.status, 0) << result.err;
    expectWhole(result, static_cast<std::int64_t>(length));
}

TEST_F(ColourCommandTest, NulBytesAreText)
{
    using namespace std::string_literals;
    EXPECT_EQ(runsOf(tarvexctl({"colour", "-"}, "\0BTN\0S1 \0~\0"s)),
              (Runs{{0, 1, 0}, {1, 6, btn}, {7, 2, 0}, {9, 2, rem}}));
}

TEST_F(ColourCommandTest, ALineOfFiveMegabytesEnds)
{
    std::string text;
    while (text.size() < 5'000'000) text += "BTN S1 /P RAW (#5B) DLY(60) rem ";
    const CliResult result = tarvexctl({"colour", "-"}, text);
    EXPECT_EQ(result.status, 3) << "beyond 65,535 characters a pass comes back";
    expectWhole(result, static_cast<std::int64_t>(text.size()));
    EXPECT_EQ(tarvexctl({"colour", "-"}, std::string(5'000'000, 'x')).status, 0);
}

} // namespace
} // namespace tarvex
