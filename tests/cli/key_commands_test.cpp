#include "cli/tarvexctl.h"

namespace tarvex {
namespace {

using KeyCommandTest = CliTest;
using RawCommandTest = CliTest;

TEST_F(KeyCommandTest, PrintsTheFourTextsAsJson)
{
    const CliResult result = tarvexctl({"key", "20", "--shift", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, R"({"index":20,"name":"a","syntax":"SHF a","make":"#12 #1C","break":"#F0 #1C #F0 #12",)"
                          R"("combined":"#12 #1C #F0 #1C #F0 #12"})"
                          "\n");
}

TEST_F(KeyCommandTest, PrintsTheFourTexts)
{
    EXPECT_EQ(tarvexctl({"key", "DEL", "--ctrl", "--alt"}).out,
              "syntax    CTL ALT DEL\n"
              "make      #14 #11 #E0 #71\n"
              "break     #E0 #F0 #71 #F0 #11 #F0 #14\n"
              "combined  #14 #11 #E0 #71 #E0 #F0 #71 #F0 #11 #F0 #14\n");
}

TEST_F(KeyCommandTest, NamesAreThoseOfTheFlcsAndNumbersAreIndexes)
{
    EXPECT_EQ(tarvexctl({"key", "KP5", "--json"}).json().at("index"), 15);
    EXPECT_EQ(tarvexctl({"key", "a", "--json"}).json().at("index"), 20);
    EXPECT_EQ(tarvexctl({"key", "5", "--json"}).json().at("syntax"), "5");
    EXPECT_EQ(tarvexctl({"key", "84", "--json"}).json().at("name"), "INS");
    EXPECT_EQ(tarvexctl({"key", "Brk", "--json"}).json().at("index"), 99);
}

TEST_F(KeyCommandTest, TheJoystickDecidesTheNames)
{
    EXPECT_EQ(tarvexctl({"key", "DEL", "--joystick", "f22", "--json"}).json().at("syntax"), "AUXDEL");
    for (const char* other : {"flcs", "pfcs", "topgun", "fcs"})
        EXPECT_EQ(tarvexctl({"key", "DEL", "--joystick", other, "--json"}).json().at("syntax"), "DEL") << other;
}

TEST_F(KeyCommandTest, NoShfTakesTheCaptionOfThePad)
{
    EXPECT_EQ(tarvexctl({"key", "1", "--shift", "--no-shf", "--json"}).json().at("syntax"), "!");
    EXPECT_EQ(tarvexctl({"key", "1", "--no-shf", "--json"}).json().at("syntax"), "1");
    EXPECT_EQ(tarvexctl({"key", "7", "--no-shf", "--json"}).json().at("syntax"), "&");
}

TEST_F(KeyCommandTest, NumLockCountsOnlyWithTheExtendedCodes)
{
    EXPECT_EQ(tarvexctl({"key", "INS", "--numlock", "--json"}).json().at("make"), "#E0 #70");
    EXPECT_EQ(tarvexctl({"key", "INS", "--numlock", "--extended", "--json"}).json().at("make"), "#E0 #12 #E0 #70");
    EXPECT_EQ(tarvexctl({"key", "INS", "--shift", "--extended", "--json"}).json().at("make"), "#E0 #F0 #12 #E0 #70");
}

TEST_F(KeyCommandTest, AllListsEveryRow)
{
    const auto json = tarvexctl({"key", "--all", "--json"}).json();
    ASSERT_EQ(json.size(), 101U);
    EXPECT_EQ(json[0].at("index"), 0);
    EXPECT_EQ(json[100].at("name"), "BSP");
    for (const auto& row : json) EXPECT_NE(row.at("index"), 54);
    const CliResult text = tarvexctl({"key", "--all"});
    EXPECT_EQ(std::ranges::count(text.out, '\n'), 101);
    EXPECT_NE(text.out.find("20\ta\ta\t#1C\t#F0 #1C\n"), std::string::npos);
}

TEST_F(KeyCommandTest, AnIndexWithoutAKeyHasEmptyTextsAndIsReported)
{
    for (const char* index : {"54", "102", "32767"}) {
        const CliResult result = tarvexctl({"key", index, "--json"});
        EXPECT_EQ(result.status, 4) << index;
        EXPECT_EQ(result.json().at("make"), "");
        EXPECT_EQ(result.err, std::string("tarvexctl: there is no key ") + index + "\n");
    }
    EXPECT_EQ(tarvexctl({"key", "54", "--shift", "--json"}).json().at("syntax"), "SHF ");
}

TEST_F(KeyCommandTest, AnUnknownNameIsReported)
{
    for (const std::string name : {"del", "AUXDEL", "99999", "\x1b[2J"}) {
        const CliResult result = tarvexctl({"key", name});
        EXPECT_EQ(result.status, 4) << name;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.find('\x1b'), std::string::npos);
    }
}

TEST_F(KeyCommandTest, NeedsEitherAKeyOrAll)
{
    EXPECT_EQ(tarvexctl({"key"}).status, 2);
    EXPECT_EQ(tarvexctl({"key", "a", "--all"}).status, 2);
    EXPECT_EQ(tarvexctl({"key", "a", "--joystick", "x"}).status, 2);
}

// ---- raw ----------------------------------------------------------------------------------------------------------

TEST_F(RawCommandTest, PrintsEventsAsJson)
{
    const CliResult result = tarvexctl({"raw", "RAW (#12 #1C #F0 #1C)", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, R"({"events":[{"key":"LSFT","down":true},{"key":"a","down":true},{"key":"a","down":false}],)"
                          R"("left_down":["LSFT"],"unknown":[]})"
                          "\n");
}

TEST_F(RawCommandTest, PrintsALineForEachEventAndWhatStaysDown)
{
    EXPECT_EQ(tarvexctl({"raw", "#12 #1C #F0 #1C"}).out, "LSFT down\na down\na up\nleft down: LSFT\n");
    EXPECT_EQ(tarvexctl({"raw", "#1C #F0 #1C"}).out, "a down\na up\n");
}

TEST_F(RawCommandTest, ADashReadsStandardInput)
{
    EXPECT_EQ(tarvexctl({"raw", "-"}, "BTN S1 RAW (#1C #F0 #1C)\r\n").out, "a down\na up\n");
}

TEST_F(RawCommandTest, UnknownBytesAreReportedWithTheirPosition)
{
    const CliResult result = tarvexctl({"raw", "#1C #02 #F0 #1C xyz", "--json"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.json().at("events").size(), 2U);
    EXPECT_EQ(result.json().at("unknown").dump(), R"([{"position":4,"text":"#02"},{"position":16,"text":"xyz"}])");
    EXPECT_EQ(result.err, "tarvexctl: no key has the code #02 at position 4\n"
                          "tarvexctl: no key has the code xyz at position 16\n");
}

TEST_F(RawCommandTest, AMegabyteOfAnythingEndsWithAReport)
{
    std::string input;
    for (std::size_t i = 0; i < 1'000'000; ++i) input += static_cast<char>(i * 7 % 256);
    const CliResult result = tarvexctl({"raw", "-", "--json"}, input);
    EXPECT_EQ(result.status, 3);
    EXPECT_FALSE(result.json().at("unknown").empty());
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 21);
}

} // namespace
} // namespace tarvex
