#include "support/test_program.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

namespace tarvex {
namespace {

/// A program with one game on its menu, at 1.
struct WithGame : TestProgram {
    explicit WithGame(const std::string& directory = "d:\\f22", const std::string& loader = "c:\\tm\\b50load.exe")
        : TestProgram(false)
    {
        files.addDirectory("d:\\f22");
        files.addFile("c:\\tm\\b50load.exe", "");
        setIni("FileLocations", "B50LoadPath", loader);
        setIni("Games", "GameArrayNum", "1");
        setIni("Games", "GameName1", "F22 ADF");
        setIni("Games", "GamePath1", "d:\\f22\\f22.exe -full");
        setIni("Games", "GameDIRPath1", directory);
        setIni("Games", "GameJF1", "c:\\tm\\f22adf.b50");
        start();
        dialogues.boxes.clear();
        program().mum.form.State = WindowState::Normal;
    }
    void launch() { menus().mnuGameArray[1].Click(); }
    std::string started(std::size_t index)
    {
        if (index >= processes.starts.size()) return "(nothing)";
        const FakeProcesses::Start& start = processes.starts[index];
        return start.commandLine + "|" + std::to_string(start.style) + "|" + start.directory;
    }
};

constexpr const char* confused = "Ooopps ! I'm confused buddy!";
constexpr const char* notFound =
    "I don't think you've setup everything for this game properly. I couldn't find one of your files - this usually "
    "occurs becuase the path to the game isn't correct. Please go back and check it. No, don't look at me like that. "
    "I'm just a computer ... I'm stupid ...I only do what I'm told to do ... and then that's not always !! :) ";
constexpr const char* notRun = "Sorry, but I couldn't run your game .... please check how you've setup Tarvex to run "
                               "this game ... there may be an error there";

TEST(LaunchGame, StartsItInItsDirectoryAndEndsTheProgram)
{
    WithGame t;
    t.launch();
    EXPECT_EQ(t.started(0), "d:\\f22\\f22.exe -full|1|d:\\f22");
    EXPECT_EQ(t.processes.starts.size(), 1U);
    EXPECT_FALSE(t.processes.starts[0].waitedFor);
    EXPECT_EQ(t.desktop.quits, 1);
    EXPECT_FALSE(t.program().mum.form.Visible);
}

TEST(LaunchGame, DownloadsTheGamesFileFirstWhenThatIsChecked)
{
    WithGame t;
    t.menus().mnuGamesDownloadFirst.Checked = true;
    WindowState during = WindowState::Normal;
    t.processes.whileRunning = [&] { during = t.program().mum.form.State; };
    t.launch();
    EXPECT_EQ(t.started(0), "c:\\tm\\b50load.exe c:\\tm\\f22adf.b50|1|c:\\tm");
    EXPECT_TRUE(t.processes.starts[0].waitedFor);
    EXPECT_EQ(during, WindowState::Minimised);
    EXPECT_EQ(t.started(1), "d:\\f22\\f22.exe -full|1|d:\\f22");
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST(LaunchGame, TheQuietSwitchGoesWithTheDownloadAndWinLoadsStringNever)
{
    WithGame t("d:\\f22", "c:\\tm\\winld.exe");
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.menus().mnuAppsQuiet.Enabled = true;
    t.menus().mnuAppsQuiet.Checked = true;
    t.settings().WinLoadUse = 1;
    t.settings().WinLoadString = " /TQS ";
    t.processes.whileRunning = [&] { t.files.write("c:\\tm\\winld.dat", "a\r\nERROR\r\n1\r\nOops\r\n"); };
    t.launch();
    EXPECT_EQ(t.started(0), "c:\\tm\\winld.exe c:\\tm\\f22adf.b50 Q|1|c:\\tm");
    EXPECT_EQ(t.started(1).substr(0, 14), "d:\\f22\\f22.exe") << "no result is read";
}

TEST(LaunchGame, NoAtTheWakeUpQuestionStartsNoGameAndTarvexStaysOpen)
{
    WithGame t;
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.menus().mnuUseWakeWarning.Checked = true;
    t.dialogues.answers = {Answer::No};
    t.launch();
    EXPECT_EQ(t.lastBox().title, "Shall I download your joystick file now?");
    EXPECT_EQ(t.started(0), "(nothing)");
    EXPECT_EQ(t.desktop.quits, 0);
}

TEST(LaunchGame, WithoutTheDownloadNobodyIsAskedToWakeUpTheJoystick)
{
    WithGame t;
    t.menus().mnuUseWakeWarning.Checked = true;
    t.launch();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST(LaunchGame, AnEmptyWorkingDirectoryFailsAtTheDriveAndGetsTheSecondMessage)
{
    WithGame t("");
    t.launch();
    EXPECT_EQ(t.lastBox().title, confused);
    EXPECT_EQ(t.lastBox().text, notRun);
    EXPECT_EQ(t.started(0), "(nothing)");
    EXPECT_EQ(t.desktop.quits, 0);
}

TEST(LaunchGame, AFolderThatIsGoneGetsTheFirstMessage)
{
    WithGame t("d:\\gone");
    t.launch();
    EXPECT_EQ(t.lastBox().title, confused);
    EXPECT_EQ(t.lastBox().text, notFound);
    EXPECT_EQ(t.desktop.quits, 0);
}

TEST(LaunchGame, AProgramThatIsNotFoundGetsTheFirstMessageAndOneThatMayNotRunTheSecond)
{
    WithGame t;
    t.processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
    t.launch();
    EXPECT_EQ(t.lastBox().text, notFound);
    t.processes.failure = RuntimeError(ErrorCode::PermissionDenied, "Permission denied");
    t.launch();
    EXPECT_EQ(t.lastBox().text, notRun);
    EXPECT_EQ(t.desktop.quits, 0);
}

TEST(LaunchGame, ALoaderThatDoesNotStartDoesNotKeepTheGame)
{
    WithGame t;
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.processes.result = waitResult::failed;
    t.launch();
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST(LaunchGame, TheSystemsOwnWordsForAMissingFileGetTheFirstMessageToo)
{
    WithGame t;
    t.processes.failure = RuntimeError(ErrorCode::FileNotFound, "No such file or directory", 2);
    t.launch();
    EXPECT_EQ(t.lastBox().text, notFound);
}

TEST(LaunchGame, AGameWhosePathHoldsTheWordGetsTheSecondMessageWhenItMayNotRun)
{
    WithGame t("d:\\found");
    t.files.addDirectory("d:\\found");
    t.processes.failure = RuntimeError(ErrorCode::PermissionDenied, "Permission denied");
    t.launch();
    EXPECT_EQ(t.lastBox().text, notRun);
}

TEST(LaunchGame, AnotherOneThatIsChosenMeanwhileIsNotStarted)
{
    WithGame t;
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.processes.whileRunning = [&] { t.launch(); };
    t.launch();
    EXPECT_EQ(t.processes.starts.size(), 2U) << "one loader, one game";
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST(LaunchGame, ALoaderWhoseFolderIsGoneEndsTheLaunch)
{
    WithGame t("d:\\f22", "c:\\gone\\b50load.exe");
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.launch();
    EXPECT_EQ(t.lastBox().text, notFound);
    EXPECT_EQ(t.started(0), "(nothing)");
}

TEST(LaunchGame, ModifiedFilesAreSavedBeforeTheGameStarts)
{
    WithGame t;
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 a");
    t.files.addFile("c:\\tm\\mig.m50", "");
    t.openBoth("c:\\tm\\mig.b50");
    t.typeJoystick("Rem ");
    t.launch();
    EXPECT_EQ(t.fileText("c:\\tm\\mig.b50"), "Rem BTN S1 a");
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST(LaunchGame, SwitchesAndPathsThatTheSettingsCutAreUsedWhole)
{
    WithGame t;
    const std::string command = "d:\\f22\\f22.exe " + std::string(120, '-');
    const std::string folder = "d:\\" + std::string(120, 'x');
    const std::string file = folder + "\\mig.b50";
    t.setIni("Games", "GamePath1", command);
    t.setIni("Games", "GameDIRPath1", folder);
    t.setIni("Games", "GameJF1", file);
    t.start();
    ASSERT_EQ(t.settings().GamePath[0], command.substr(0, 99));
    t.files.addDirectory(folder);
    t.menus().mnuGamesDownloadFirst.Checked = true;
    t.launch();
    EXPECT_EQ(t.started(0), "c:\\tm\\b50load.exe " + file + "|1|c:\\tm");
    EXPECT_EQ(t.started(1), command + "|1|" + folder);
    const std::string ini = t.fileText(TestMachine::iniPath);
    for (const std::string& line : {"GamePath1=" + command, "GameDIRPath1=" + folder, "GameJF1=" + file})
        EXPECT_NE(ini.find(line + "\r\n"), std::string::npos) << line << " is not in\n" << ini;
}

TEST(LaunchGame, WhatIsMissingGetsTheFirstMessageByItsNumberOrItsWords)
{
    const std::pair<RuntimeError, const char*> failures[] = {
        {RuntimeError(ErrorCode::PathNotFound, "No such directory"), notFound},
        {RuntimeError(ErrorCode::PermissionDenied, "A library was not found"), notFound},
        {RuntimeError(ErrorCode::PermissionDenied, "Permission denied"), notRun},
    };
    for (const auto& [failure, text] : failures) {
        WithGame t;
        t.processes.failure = failure;
        t.launch();
        EXPECT_EQ(t.lastBox().title, confused);
        EXPECT_EQ(t.lastBox().text, text) << failure.what();
    }
}

TEST(LaunchGame, AFailureOfAnotherKindGetsTheSecondMessage)
{
    WithGame t;
    t.menus().mnuFileExit.handler = [] { throw std::runtime_error("not found"); };
    t.launch();
    EXPECT_EQ(t.lastBox().text, notRun);
}

TEST(LaunchGame, AFolderThatIsGoneLeavesTheRootOfItsDrive)
{
    WithGame t("d:\\gone");
    t.program().shared.currentDirectory.ChDir("d:\\f22");
    t.launch();
    EXPECT_EQ(t.lastBox().text, notFound);
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "d:\\");
}

} // namespace
} // namespace tarvex
