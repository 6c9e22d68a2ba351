#include "cli/tarvexctl.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace tarvex {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

struct SheetCommandTest : CliTest {
    std::string file =
        directory.put("mig.f22", "USE MDEF Keys\r\nUSE TQS\r\nBTN S1 /U Fire /M Flare\r\nRNG 1 5 a b\r\n");
    std::string keys = directory.put("KEYS.M22", "Fire = SPC\r\n");

    std::string made(const std::string& name) { return bytesOf(directory / name); }
};

TEST_F(SheetCommandTest, WritesTheFormOfTheExtension)
{
    for (const auto& [name, start] :
         {std::pair("a.pdf", "%PDF-"), std::pair("a.svg", "<svg "), std::pair("a.html", "<!DOCTYPE html>")}) {
        const CliResult result = tarvexctl({"sheet", file, "-o", directory / name});
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(made(name), StartsWith(start));
    }
}

TEST_F(SheetCommandTest, TakesTheMacrosOfTheFileThatMdefNamesInAnyCase)
{
    EXPECT_EQ(tarvexctl({"sheet", file, "-o", directory / "a.svg"}).status, 0);
    EXPECT_THAT(made("a.svg"), HasSubstr(">Spacebar<"));
    EXPECT_THAT(made("a.svg"), HasSubstr("KEYS.M22"));
}

TEST_F(SheetCommandTest, WithoutMdefTakesTheMacrosOfItsOwnName)
{
    const std::string other = directory.put("su27.f22", "BTN S1 Fire");
    directory.put("su27.m22", "Fire = ENT\r\n");
    EXPECT_EQ(tarvexctl({"sheet", other, "-o", directory / "a.svg"}).status, 0);
    EXPECT_THAT(made("a.svg"), HasSubstr(">Enter<"));
}

TEST_F(SheetCommandTest, AGivenMacroFileCounts)
{
    const std::string mine = directory.put("mine.m22", "Fire = x\r\n");
    EXPECT_EQ(tarvexctl({"sheet", file, mine, "-o", directory / "a.svg"}).status, 0);
    EXPECT_THAT(made("a.svg"), HasSubstr(">x<"));
}

TEST_F(SheetCommandTest, StandardInputHasNoMacrosOfItsOwn)
{
    EXPECT_EQ(tarvexctl({"sheet", "-", "-o", directory / "a.svg"}, "BTN S1 Fire").status, 0);
    EXPECT_THAT(made("a.svg"), HasSubstr(">Fire<"));
    EXPECT_THAT(made("a.svg"), Not(HasSubstr("with the macros")));
}

TEST_F(SheetCommandTest, LetterIsAnotherPaper)
{
    EXPECT_EQ(tarvexctl({"sheet", file, "--letter", "-o", directory / "a.pdf"}).status, 0);
    EXPECT_THAT(made("a.pdf"), HasSubstr("/MediaBox [0 0 792.000 612.000 ]"));
}

TEST_F(SheetCommandTest, ACrowdedControllerHasFurtherPagesUnlessOneIsAskedFor)
{
    std::string text = "USE TQS\r\n";
    for (const char* hat : {"H1", "H2", "H3", "H4"}) {
        for (const char* way : {"U", "D", "L", "R", "M", "UL", "UR"})
            text += std::string("BTN ") + hat + way +
                    " /U /I Look_Left /O Look_Right /M Look_Back /D /I Gear_Up /O Gear_Down\r\n";
    }
    const std::string full = directory.put("full.b50", text);
    const auto pages = [&](const std::vector<std::string>& more) {
        std::vector<std::string> call{"sheet", full, "-o", directory / "full.pdf"};
        call.insert(call.end(), more.begin(), more.end());
        EXPECT_EQ(tarvexctl(call).status, 0);
        const std::string pdf = made("full.pdf");
        const std::size_t at = pdf.find("/Count ");
        return std::stoi(pdf.substr(at + 7));
    };
    EXPECT_EQ(pages({"--one-page"}), 2);
    EXPECT_EQ(pages({}), 3);
}

TEST_F(SheetCommandTest, AnotherExtensionOrNoOutputIsAWrongCall)
{
    EXPECT_EQ(tarvexctl({"sheet", file, "-o", directory / "a.png"}).status, 2);
    EXPECT_FALSE(std::filesystem::exists(directory / "a.png"));
    EXPECT_EQ(tarvexctl({"sheet", file}).status, 2);
}

TEST_F(SheetCommandTest, AFolderThatIsNotThereIsReported)
{
    const CliResult result = tarvexctl({"sheet", file, "-o", directory / "none/a.pdf"});
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err, HasSubstr("can't write"));
}

} // namespace
} // namespace tarvex
