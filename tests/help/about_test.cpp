#include "help/about.h"

#include "help_program.h"

#include <fstream>

namespace tarvex {
namespace {

struct AboutBox : HelpTest {
    static constexpr const char* toolKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
    static constexpr const char* folderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
    AboutWindow& window = help.frmAbout;
};

TEST_F(AboutBox, ShowsThePictureOfTheProgramDirectory)
{
    t.files.addFile("c:\\tarvex\\AboutTarvy.bmp", "BM...");
    window.Form.Visible = true;
    EXPECT_EQ(window.Picture, "BM...");
}

TEST_F(AboutBox, ComesUpWithoutThePictureToo)
{
    window.Form.Visible = true;
    EXPECT_EQ(window.Picture, "");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(AboutBox, ShowsTheVersionOfTheSources)
{
    std::ifstream file(TARVEX_SOURCE_DIRECTORY "/VERSION");
    std::string version;
    ASSERT_TRUE(std::getline(file, version));
    EXPECT_EQ(window.lblVersion.Caption.get(), "Version " + version);
}

TEST_F(AboutBox, SystemInfoIsTheToolThatTheRegistryNames)
{
    system.registry[{toolKey, "PATH"}] = "c:\\tools\\msinfo32.exe";
    t.files.addFile("c:\\tools\\msinfo32.exe", "MZ");
    window.cmdSysInfo.Click();
    ASSERT_EQ(t.processes.starts.size(), 1U);
    EXPECT_EQ(t.processes.starts[0].commandLine, "c:\\tools\\msinfo32.exe");
    EXPECT_EQ(t.processes.starts[0].directory, "c:\\tools\\");
    EXPECT_EQ(t.processes.starts[0].style, windowStyle::normal);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(AboutBox, SystemInfoThatDoesNotStartIsSaidToBeUnavailable)
{
    system.registry[{toolKey, "PATH"}] = "c:\\tools\\msinfo32.exe";
    t.files.addFile("c:\\tools\\msinfo32.exe", "MZ");
    t.processes.failure = RuntimeError(ErrorCode::PermissionDenied, "Permission denied");
    window.cmdSysInfo.Click();
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().text, "System Information Is Unavailable At This Time");
}

TEST_F(AboutBox, APictureThatIsGoneIsNotShownAgain)
{
    t.files.addFile("c:\\tarvex\\AboutTarvy.bmp", "BM...");
    window.Form.Visible = true;
    window.cmdOK.Click();
    EXPECT_FALSE(window.Form.Visible);
    t.files.removeFile("c:\\tarvex\\AboutTarvy.bmp");
    window.Form.Visible = true;
    EXPECT_EQ(window.Picture, "");
}

TEST_F(AboutBox, SystemInfoIsLookedForInTheFolderOfTheToolsNext)
{
    system.registry[{folderKey, "MSINFO"}] = "c:\\shared";
    t.files.addFile("c:\\shared\\MSINFO32.EXE", "MZ");
    window.cmdSysInfo.Click();
    ASSERT_EQ(t.processes.starts.size(), 1U);
    EXPECT_EQ(t.processes.starts[0].commandLine, "c:\\shared\\MSINFO32.EXE");
}

TEST_F(AboutBox, SystemInfoThatIsNotThereIsSaidToBeUnavailable)
{
    window.cmdSysInfo.Click();
    EXPECT_EQ(t.lastBox().text, "System Information Is Unavailable At This Time");
    system.registry[{toolKey, "PATH"}] = "c:\\tools\\msinfo32.exe";
    window.cmdSysInfo.Click();
    EXPECT_EQ(t.dialogues.boxes.size(), 2U) << "the registry names a file that is gone";
    EXPECT_TRUE(t.processes.starts.empty());
}

TEST_F(AboutBox, GetKeyValueLeavesTheValueWithoutAnEntry)
{
    std::string value = "before";
    EXPECT_FALSE(GetKeyValue(&system, toolKey, "PATH", value));
    EXPECT_EQ(value, "before");
    system.registry[{toolKey, "PATH"}] = "there";
    EXPECT_TRUE(GetKeyValue(&system, toolKey, "PATH", value));
    EXPECT_EQ(value, "there");
}

TEST_F(AboutBox, TheHelpMenuShowsIt)
{
    t.menus().mnuHelpAbout.Click();
    EXPECT_THAT(t.dialogues.modalForms, testing::Contains("frmAbout"));
}

TEST_F(AboutBox, APictureThatIsGoneIsNoneWhenItComesUpAgain)
{
    t.files.addFile("c:\\tarvex\\AboutTarvy.bmp", "BM...");
    window.Form.Visible = true;
    window.Form.Visible = false;
    t.files.removeFile("c:\\tarvex\\AboutTarvy.bmp");
    window.Form.Visible = true;
    EXPECT_EQ(window.Picture, "");
}

TEST_F(AboutBox, WithoutARegistryNoKeyHasAText)
{
    std::string value = "before";
    EXPECT_FALSE(GetKeyValue(nullptr, toolKey, "PATH", value));
    EXPECT_EQ(value, "before");
}

} // namespace
} // namespace tarvex
