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

TEST_F(WrongCallTest, HelpAndVersionAreNoWrongCalls)
{
    const CliResult help = tarvexctl({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("Examples:"), std::string::npos);
    EXPECT_EQ(help.err, "");
    const CliResult ofCommand = tarvexctl({"colour", "--help"});
    EXPECT_EQ(ofCommand.status, 0);
    EXPECT_NE(ofCommand.out.find("tarvexctl colour"), std::string::npos);
    EXPECT_EQ(tarvexctl({"--version"}).out.find("tarvexctl "), 0U);
}

} // namespace
} // namespace tarvex
