#include "platform/posix/command_line.h"

#include "support/temporary_directory.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using Wish = CommandLine::Wish;

/// In a working directory of its own, so that names without a path lead nowhere unless a test makes the file.
struct CommandLineTest : testing::Test {
    TemporaryDirectory disk;
    const std::filesystem::path before = std::filesystem::current_path();

    CommandLineTest() { std::filesystem::current_path(disk.path()); }
    ~CommandLineTest() override { std::filesystem::current_path(before); }

    static CommandLine read(const std::vector<const char*>& arguments) { return readCommandLine(arguments); }
    static void expectPath(const std::vector<const char*>& arguments, const std::string& path)
    {
        const CommandLine line = read(arguments);
        EXPECT_EQ(line.wish, Wish::Start) << path;
        EXPECT_EQ(line.path, path);
    }
};

TEST_F(CommandLineTest, NoArgumentsAreNoPath) { expectPath({}, ""); }
TEST_F(CommandLineTest, OneArgumentIsThePath) { expectPath({"/games/mig.b50"}, "/games/mig.b50"); }

TEST_F(CommandLineTest, SeveralArgumentsAreOnePathWithSingleBlanksBetweenThem)
{
    expectPath({"my", "fine", "mig.b50"}, "my fine mig.b50");
    expectPath({"my  fine", "mig.b50"}, "my  fine mig.b50");
    expectPath({"same", "same"}, "same same");
    expectPath({"a", "", "b"}, "a  b");
}

TEST_F(CommandLineTest, NoQuotesAreRemoved) { expectPath({"\"my mig.b50\""}, "\"my mig.b50\""); }

TEST_F(CommandLineTest, ThereAreNoSwitches)
{
    expectPath({"-style"}, "-style");
    expectPath({"--", "a.b50"}, "-- a.b50");
    expectPath({"-platform", "offscreen", "a.b50"}, "-platform offscreen a.b50");
    expectPath({"--HELP"}, "--HELP");
    expectPath({"-v"}, "-v");
}

TEST_F(CommandLineTest, BytesThatAreNoTextStayAsTheyAre) { expectPath({"m\xe9ouse.b50"}, "m\xe9ouse.b50"); }

TEST_F(CommandLineTest, OnlyALoneHelpOrVersionIsAnswered)
{
    EXPECT_EQ(read({"--help"}).wish, Wish::ShowHelp);
    EXPECT_EQ(read({"-h"}).wish, Wish::ShowHelp);
    EXPECT_EQ(read({"--version"}).wish, Wish::ShowVersion);
    EXPECT_EQ(read({"--version"}).path, "");
    expectPath({"--help", "me"}, "--help me");
    expectPath({"a.b50", "--version"}, "a.b50 --version");
}

TEST_F(CommandLineTest, AFileOfThatNameIsOpenedInstead)
{
    for (const char* name : {"--help", "-h", "--version"}) {
        disk.put(name, "BTN S1 a\r\n");
        expectPath({name}, name);
    }
}

TEST_F(CommandLineTest, AFolderOfThatNameIsNoFile)
{
    disk.makeDirectory("--version");
    EXPECT_EQ(read({"--version"}).wish, Wish::ShowVersion);
}

TEST(FromEnvironment, GivesTheValueAndNothingForANameThatIsNotSet)
{
    ::setenv("TARVEX_NAME_OF_A_TEST", "its value", 1);
    EXPECT_EQ(fromEnvironment("TARVEX_NAME_OF_A_TEST"), "its value");
    ::unsetenv("TARVEX_NAME_OF_A_TEST");
    EXPECT_EQ(fromEnvironment("TARVEX_NAME_OF_A_TEST"), "");
}

} // namespace
} // namespace tarvex
