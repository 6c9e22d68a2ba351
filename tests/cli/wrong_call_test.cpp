#include "cli/tarvexctl.h"

namespace tarvex {
namespace {

struct WrongCallTest : CliTest {
    void expectRefused(const std::vector<std::string>& arguments, const std::string& reason)
    {
        const CliResult result = tarvexctl(arguments);
        EXPECT_EQ(result.status, 2) << reason;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.find("tarvexctl: "), 0U) << result.err;
        EXPECT_NE(result.err.find(reason), std::string::npos) << result.err;
        EXPECT_EQ(std::ranges::count(result.err, '\n'), 1) << result.err;
    }
};

TEST_F(WrongCallTest, WithoutACommand) { expectRefused({}, "what to do"); }
TEST_F(WrongCallTest, AnUnknownCommand) { expectRefused({"color", "x"}, "no command color"); }
TEST_F(WrongCallTest, ACommandWithoutItsFile) { expectRefused({"colour"}, "FILE"); }
TEST_F(WrongCallTest, AnUnknownOption) { expectRefused({"colour", "-", "--pdf"}, "--pdf"); }
TEST_F(WrongCallTest, TwoForms) { expectRefused({"colour", "-", "--json", "--rtf"}, "--json"); }
TEST_F(WrongCallTest, AnUnknownKind) { expectRefused({"colour", "-", "--as", "text"}, "--as"); }
TEST_F(WrongCallTest, AMissingFile)
{
    expectRefused({"colour", directory / "none.b50"}, "none.b50: No such file or directory");
}
TEST_F(WrongCallTest, ADirectory) { expectRefused({"colour", directory.path()}, "Is a directory"); }
TEST_F(WrongCallTest, AMissingSettingsFile)
{
    expectRefused({"colour", "-", "--ini", directory / "none.ini"}, "none.ini: No such file or directory");
}

TEST_F(WrongCallTest, AResultThatCantBeWrittenIsReported)
{
    const CliResult result = tarvexctl({"colour", "-"}, "x", "/dev/full");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, "tarvexctl: can't write the result: No space left on device\n");
}

TEST_F(WrongCallTest, AWrongCallIsReferredToTheHelp)
{
    EXPECT_EQ(tarvexctl({}).err, "tarvexctl: no command says what to do (see tarvexctl --help)\n");
    EXPECT_EQ(tarvexctl({"color", "x"}).err, "tarvexctl: there is no command color (see tarvexctl --help)\n");
    EXPECT_EQ(tarvexctl({"sheet", "-", "-o", directory / "sheet.txt"}).err,
              "tarvexctl: the sheet's name must end in .pdf, .svg or .html: " + directory / "sheet.txt" + "\n");
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "-1"}).status, 2);
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "32767"}).status, 0);
    EXPECT_EQ(tarvexctl({"align", "-", "--indent", "32768"}).status, 2);
}

/// Each is compared with a file of its name. With TARVEX_UPDATE_HELP in the environment the files are written instead;
/// read the difference before committing it.
TEST_F(WrongCallTest, HelpIsThatOfItsFileForEachCommandAndNoWrongCall)
{
    for (const std::string command :
         {"", "colour", "macros", "used", "align", "statement", "controls", "sheet", "key", "raw", "previous"}) {
        const CliResult help =
            command.empty() ? tarvexctl({"--help"}) : tarvexctl(std::vector<std::string>{command, "--help"});
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_EQ(help.err, "") << command;
        const std::string path =
            TARVEX_SOURCE_DIRECTORY "/tests/data/cli_help/" + (command.empty() ? "tarvexctl" : command) + ".txt";
        if (std::getenv("TARVEX_UPDATE_HELP") != nullptr) std::ofstream(path) << help.out;
        EXPECT_EQ(help.out, bytesOf(path)) << path;
    }
}

TEST_F(WrongCallTest, TheVersionIsNoWrongCall)
{
    const CliResult version = tarvexctl({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out.find("tarvexctl "), 0U);
}

} // namespace
} // namespace tarvex
