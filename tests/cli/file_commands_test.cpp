#include "cli/tarvexctl.h"
#include "platform/windows1252.h"
#include "support/test_program.h"

namespace tarvex {
namespace {

using Names = std::vector<std::string>;

const std::string macros = "First = a\r\n"
                           "Rem -----\r\nRem   weapons\r\nRem -----\r\n"
                           "Fire   = f\r\n= x\r\n// a = b\r\n~ c = d\r\nA B = x\r\n";

struct FileCommandsTest : CliTest {
    std::string macroFile = directory.put("a.m50", macros);
};

// ---- macros ---------------------------------------------------------------------------------------------------------

TEST_F(FileCommandsTest, MacrosAsJsonListsThemByHeading)
{
    const CliResult result = tarvexctl({"macros", macroFile, "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, R"({"headings":["All","Weapons"],"lists":[["First","Fire","","// a","A B"],)"
                          R"(["Fire","","// a","A B"]]})"
                          "\n");
}

TEST_F(FileCommandsTest, MacrosAsTextStandUnderTheirHeadings)
{
    EXPECT_EQ(tarvexctl({"macros", macroFile}).out,
              "All\n    First\n    Fire\n    \n    // a\n    A B\nWeapons\n    Fire\n    \n    // a\n    A B\n");
}

TEST_F(FileCommandsTest, MacrosOfAnEmptyFileAreNone)
{
    EXPECT_EQ(tarvexctl({"macros", "-", "--json"}).out, "{\"headings\":[\"All\"],\"lists\":[[]]}\n");
}

TEST_F(FileCommandsTest, NamesOfEveryByteAreUtf8AndShowNoControlCharacters)
{
    std::string text;
    for (int byte = 1; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n' && byte != '=' && byte != '~' && byte != ' ')
            text += static_cast<char>(byte) + std::string("x = y\r\n");
    }
    const CliResult json = tarvexctl({"macros", "-", "--json"}, text);
    EXPECT_EQ(json.json().at("lists")[0].size(), 250U);
    EXPECT_EQ(json.json().at("lists")[0][0], "\x01x");
    const std::string shown = tarvexctl({"macros", "-"}, text).out;
    EXPECT_TRUE(isValidUtf8(shown));
    EXPECT_EQ(shown.find('\x1b'), std::string::npos);
    EXPECT_NE(shown.find("\xC3\xBFx\n"), std::string::npos) << "the letter y with a diaeresis, code 255";
}

TEST_F(FileCommandsTest, AHundredThousandHeadingsAreListed)
{
    std::string text;
    for (int i = 0; i < 100'000; ++i) text += "rem --\r\nrem h\r\nrem --\r\n";
    const CliResult result = tarvexctl({"macros", "-", "--json"}, text + "a = b\r\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.json().at("headings").size(), 100'001U);
    EXPECT_EQ(result.json().at("lists").back().dump(), R"(["a"])");
}

// ---- used -----------------------------------------------------------------------------------------------------------

TEST_F(FileCommandsTest, UsedAsJsonHasAListOfPairsForEachHeading)
{
    const std::string joystick = directory.put("a.b50", "BTN S1 fire \r\nRem used First\r\n");
    const CliResult result = tarvexctl({"used", joystick, macroFile, "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, R"([[["First",true],["Fire",true],["",false],["// a",false],["A B",false]],)"
                          R"([["Fire",true],["",false],["// a",false],["A B",false]]])"
                          "\n");
}

TEST_F(FileCommandsTest, UsedAsTextTicksTheMacros)
{
    const CliResult result = tarvexctl({"used", "-", macroFile}, "BTN S1 Fire \r\n");
    EXPECT_EQ(result.out.substr(0, result.out.find("[ ] \n")), "All\n[ ] First\n[x] Fire\n");
}

TEST_F(FileCommandsTest, UsedWithNothingToAnalyseSaysSoInTheProgramsWords)
{
    for (const auto& [joystick, macro] : std::vector<std::pair<std::string, std::string>>{
             {"BTN S1 x\r\n", macros}, {"", macros}, {"BTN S1 Fire\r\n", ""}}) {
        const CliResult result = tarvexctl({"used", directory.put("j", joystick), directory.put("m", macro)});
        EXPECT_EQ(result.status, 4);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.find("Oh come off it ... what's there to analyse?"), 0U) << result.err;
    }
}

TEST_F(FileCommandsTest, UsedTakesStandardInputForOneFileOnly)
{
    const CliResult result = tarvexctl({"used", "-", "-"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "tarvexctl: only one file can be standard input\n");
}

TEST_F(FileCommandsTest, UsedAgreesWithTheProgramOnTheExamples)
{
    for (const auto& [joystick, macro] : std::vector<std::pair<std::string, std::string>>{
             {"lance.f22", "lance.m22"}, {"kestrel.b50", "kestrel.m50"}, {"contrail.adv", "contrail.mdf"}}) {
        const std::string examples = TARVEX_SOURCE_DIRECTORY "/examples/";
        TestProgram t;
        t.files.addFile("c:\\tm\\" + joystick, bytesOf(examples + joystick));
        t.files.addFile("c:\\tm\\" + macro, bytesOf(examples + macro));
        t.openBoth("c:\\tm\\" + joystick);
        t.menus().mnuViewIdentify.Click();
        auto expected = nlohmann::ordered_json::array();
        for (const CheckListBox& list : t.editor().FrameMacros.List1) {
            auto pairs = nlohmann::ordered_json::array();
            for (const CheckListBox::Item& item : list.Items.get())
                pairs.push_back(nlohmann::ordered_json::array({item.Text, item.Selected}));
            expected.push_back(pairs);
        }
        EXPECT_EQ(tarvexctl({"used", examples + joystick, examples + macro, "--json"}).json(), expected) << joystick;
    }
}

// ---- align ----------------------------------------------------------------------------------------------------------

TEST_F(FileCommandsTest, AlignPrintsTheBytesWithWindowsLineEnds)
{
    const CliResult result = tarvexctl({"align", "-"}, "BTN S1  /I \xC4\n/O b\nrem  x");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "BTN S1 /I \xC4\r\n       /O b\r\nrem  x\r\n");
}

TEST_F(FileCommandsTest, AlignIndentsAllButComments)
{
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "2"}, "x\r\n~y\r\n").out, "  x\r\n~y\r\n");
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "-1"}).status, 2);
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "many"}).status, 2);
}

TEST_F(FileCommandsTest, AlignLeavesNothingOfAnEmptyFile) { EXPECT_EQ(tarvexctl({"align", "-"}).out, ""); }

TEST_F(FileCommandsTest, AlignAgreesWithTheProgramOnAnExample)
{
    const std::string path = TARVEX_SOURCE_DIRECTORY "/examples/kestrel.b50";
    TestProgram t;
    t.editor().JoystickText.setText(bytesOf(path));
    t.settings().IndentAsWell = 1;
    t.settings().IndentSpaces = 3;
    t.menus().mnuViewAlignSlashes.Click();
    EXPECT_EQ(tarvexctl({"align", path, "--indent", "3"}).out, t.editor().JoystickText.Text());
}

// ---- statement ------------------------------------------------------------------------------------------------------

TEST_F(FileCommandsTest, StatementEndsBeforeTheNextOne)
{
    const std::string file = directory.put("a.b50", "BTN S1 /I \xC4\n  /O b\r\n\r\nRem c\r\nBTN S2 d\r\n");
    const CliResult result = tarvexctl({"statement", file, "S1", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "{\"start\":4,\"length\":24,\"text\":\"S1 /I \xC3\x84\\r\\n  /O b\\r\\n\\r\\nRem c\"}\n");
    EXPECT_EQ(tarvexctl({"statement", file, "BTN S2"}).out, "BTN S2 d\n");
}

TEST_F(FileCommandsTest, AMissingStatementIsReported)
{
    const CliResult result = tarvexctl({"statement", "-", "S9"}, "BTN S1 x");
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "tarvexctl: there is no statement S9 in standard input\n");
}

TEST_F(FileCommandsTest, BinaryInputIsTextToEveryCommand)
{
    std::string bytes;
    for (int i = 0; i < 200'000; ++i) bytes += static_cast<char>(i * 7919 % 256);
    const std::string file = directory.put("a", bytes);
    EXPECT_EQ(tarvexctl({"macros", file, "--json"}).status, 0);
    EXPECT_EQ(tarvexctl({"macros", file}).status, 0);
    EXPECT_EQ(tarvexctl({"used", file, file, "--json"}).status, 0);
    EXPECT_EQ(tarvexctl({"align", file}).status, 0);
    EXPECT_EQ(tarvexctl({"statement", file, "x"}).status, 4);
}

} // namespace
} // namespace tarvex
