#include "cli/tarvexctl.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

struct ControlsCommandTest : CliTest {
    std::string file =
        directory.put("mig.f22", "Rem mine\r\nBTN S1 /U Fire\r\n  /M Flare\r\nUSE TQS\r\nRNG 1 5 a b\r\n");

    nlohmann::ordered_json entry(const std::string& control)
    {
        for (const auto& one : tarvexctl({"controls", file, "--json"}).json()) {
            if (one.at("control") == control) return one;
        }
        return nullptr;
    }
};

TEST_F(ControlsCommandTest, AsJsonListsEveryControlInTheOrderOfThePictures)
{
    const CliResult result = tarvexctl({"controls", file, "--json"});
    EXPECT_EQ(result.status, 0);
    std::vector<std::string> names;
    for (const auto& one : result.json()) names.push_back(one.at("control"));
    EXPECT_EQ(names.front(), "S2");
    EXPECT_EQ(names[1], "H1U");
    EXPECT_THAT(names, testing::IsSupersetOf({"S1", "TG1", "PortB4", "RDDR", "RNG", "T14", "THR"}));
}

TEST_F(ControlsCommandTest, AControlHasItsStatementAndLine)
{
    EXPECT_EQ(entry("S1").dump(), R"({"control":"S1","statement":"BTN S1 /U Fire\r\n  /M Flare","line":2})");
    EXPECT_EQ(entry("RNG").dump(), R"({"control":"RNG","statement":"RNG 1 5 a b","line":5})");
}

TEST_F(ControlsCommandTest, AControlWithoutAStatementHasNull)
{
    EXPECT_EQ(entry("S2").dump(), R"({"control":"S2","statement":null,"line":null})");
}

TEST_F(ControlsCommandTest, AsTextListsNamesLinesAndStatementsInColumns)
{
    const CliResult result = tarvexctl({"controls", file});
    EXPECT_EQ(result.out.substr(0, 7), "S2\nH1U\n");
    EXPECT_THAT(result.out, testing::HasSubstr("\nS1          2  BTN S1 /U Fire\n                 /M Flare\n"));
}

TEST_F(ControlsCommandTest, StandardInputIsAFileOfTheF22)
{
    const CliResult result = tarvexctl({"controls", "-"}, "BTN TG2 x");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, testing::HasSubstr("TG2         1  BTN TG2 x\n"));
}

TEST_F(ControlsCommandTest, AFileThatIsNotThereIsAWrongCall)
{
    EXPECT_EQ(tarvexctl({"controls", file + "x"}).status, 2);
}

} // namespace
} // namespace tarvex
