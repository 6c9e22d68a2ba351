#include "cli/tarvexctl.h"

namespace tarvex {
namespace {

struct PreviousCommandTest : CliTest {
    static constexpr const char* settings = "[PreviousJoystickFiles]\r\nJFArrayNum=2\r\n"
                                            "JFPath1=z:\\games\\m\xfcller's mig.b50\r\nJFPath2=c:\\tm\\lance.f22\r\n";
    std::string ini = directory.put("Tarvex.ini", settings);
};

TEST_F(PreviousCommandTest, ListsTheJoystickFilesNewestFirst)
{
    const CliResult result = tarvexctl({"previous", "--ini", ini});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "z:\\games\\m\xc3\xbcller's mig.b50\nc:\\tm\\lance.f22\n");
}

TEST_F(PreviousCommandTest, AsJsonItIsAListOfPaths)
{
    EXPECT_EQ(tarvexctl({"previous", "--ini", ini, "--json"}).out,
              "[\"z:\\\\games\\\\m\xc3\xbcller's mig.b50\",\"c:\\\\tm\\\\lance.f22\"]\n");
}

TEST_F(PreviousCommandTest, WithoutPreviousFilesItSaysSo)
{
    const CliResult result = tarvexctl({"previous", "--ini", directory.put("empty.ini", "")});
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "tarvexctl: there are no previous files\n");
}

TEST_F(PreviousCommandTest, ASettingsFileThatIsMissingIsAWrongCall)
{
    EXPECT_EQ(tarvexctl({"previous", "--ini", directory / "none.ini"}).status, 2);
}

} // namespace
} // namespace tarvex
