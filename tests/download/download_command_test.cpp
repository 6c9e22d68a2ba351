#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// A program with a saved joystick file and a loader; what the loader does is the test's to say.
struct Loaded : TestProgram {
    explicit Loaded(const std::string& loader = "c:\\tm\\b50load.exe", const std::string& file = "c:\\tm\\mig.b50")
        : TestProgram(false)
    {
        files.addFile(file, "BTN S1 a\r\nBTN S2 b\r\nBTN S3 c\r\n");
        files.addFile(file.substr(0, file.size() - 3) + "m50", "");
        setIni("FileLocations", "B50LoadPath", loader);
        start();
        openBoth(file);
        dialogues.boxes.clear();
        program().mum.form.State = WindowState::Normal;
        program().mum.StatusBar.Panels(panel::progress).Text = "old text";
    }
    void download() { menus().mnuSendToJoystick.Click(); }
    std::string command() { return processes.starts.empty() ? "(nothing)" : processes.starts.back().commandLine; }
};

struct WithWinLoad : Loaded {
    explicit WithWinLoad(const std::string& file = "c:\\tm\\mig.b50") : Loaded("c:\\tm\\winld.exe", file) {}
    static constexpr const char* resultPath = "c:\\tm\\winld.dat";
    void reports(const std::string& result)
    {
        processes.whileRunning = [this, result] { files.write(resultPath, result); };
    }
};

// ---- checks before the run ----

TEST(SendToJoystick, AnEmptyPaneIsReportedAndNothingStarts)
{
    Loaded t;
    t.editor().JoystickText.setText("");
    t.download();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Nothing to transfer ...");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(t.lastBox().text,
              "The Joystick file is empty, so there's not much point in me sending that off to your joystick. Load up "
              "a joystick file, or create one, or just put your feet up and watch TV.");
    EXPECT_EQ(t.command(), "(nothing)");
}

TEST(SendToJoystick, SavesAModifiedFileFirst)
{
    Loaded t;
    t.typeJoystick("Rem new\r\n");
    std::string seen;
    t.processes.whileRunning = [&] { seen = t.fileText("c:\\tm\\mig.b50"); };
    t.download();
    EXPECT_EQ(seen.substr(0, 9), "Rem new\r\n");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50");
}

TEST(SendToJoystick, AFileThatIsNotSavedIsAskedAboutAndNoStops)
{
    Loaded t;
    t.typeJoystick("x");
    t.files.setReadOnly("c:\\tm\\mig.b50");
    t.dialogues.filesToSave = {std::nullopt};
    t.dialogues.answers = {Answer::No};
    t.download();
    EXPECT_EQ(t.lastBox().title, "Hang on a minute ...");
    EXPECT_EQ(t.lastBox().text,
              "The joystick file isn't saved, so you won't be sending the currently edited file to your Thrustmaster "
              "hardware. Do you want to continue anyway?");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNo);
    EXPECT_TRUE(t.lastBox().secondButtonIsDefault);
    EXPECT_EQ(t.command(), "(nothing)");
}

TEST(SendToJoystick, YesGoesOnWithTheVersionOnDisk)
{
    Loaded t;
    t.typeJoystick("x");
    t.files.setReadOnly("c:\\tm\\mig.b50");
    t.dialogues.filesToSave = {std::nullopt};
    t.dialogues.answers = {Answer::Yes};
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50");
    EXPECT_EQ(t.fileText("c:\\tm\\mig.b50").substr(0, 3), "BTN");
}

TEST(SendToJoystick, WithTheMacroTabSelectedTheJoystickFileIsSavedAllTheSame)
{
    Loaded t;
    t.typeJoystick("Rem ");
    t.typeMacro("Rem ");
    t.editor().TabStrip1.Select(2);
    int during = 0;
    t.processes.whileRunning = [&] { during = t.editor().TabStrip1.SelectedItem; };
    t.download();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.fileText("c:\\tm\\mig.b50").substr(0, 7), "Rem BTN");
    EXPECT_EQ(t.fileText("c:\\tm\\mig.m50"), "") << "the macro file isn't sent";
    EXPECT_EQ(during, 2) << "and its tab comes back";
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50");
}

TEST(SendToJoystick, ANameOfTwelveCharactersPasses)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\a folder of a very long name\\longname.b50");
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\a folder of a very long name\\longname.b50");
}

TEST(SendToJoystick, ANameOfThirteenCharactersIsRefusedAndLedToSaveAs)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\longnames.b50");
    t.editor().TabStrip1.Select(2);
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {"c:\\short.b50"};
    t.download();
    EXPECT_EQ(t.lastBox().title, "Unable to download - filename too long");
    EXPECT_EQ(t.lastBox().text,
              "The joystick file's name is too long - it must be 8 characters or less (excluding the extension .f22, "
              ".b50.adv). You must resave it with a different (ie. shorter) name.");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNo);
    EXPECT_TRUE(t.lastBox().secondButtonIsDefault);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\short.b50");
    EXPECT_EQ(t.command(), "(nothing)") << "the command doesn't go on after the new save";
}

TEST(SendToJoystick, TheAnswerAboutTheLongNameIsIgnored)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\longnames.b50");
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToSave = {std::nullopt};
    t.download();
    EXPECT_EQ(t.dialogues.saveRequests.size(), 1U);
    EXPECT_EQ(t.command(), "(nothing)");
}

TEST(SendToJoystick, TheLengthIsInCharactersAndNotInBytes)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6.b50");
    t.download();
    EXPECT_EQ(t.processes.starts.size(), 1U);
}

TEST(SendToJoystick, AnUnsavedFileWithALongNameIsSavedFirstAndOnlyThenRefused)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\longnames.b50");
    t.typeJoystick("Rem ");
    t.dialogues.answers = {Answer::No};
    t.dialogues.filesToSave = {std::nullopt};
    t.download();
    EXPECT_EQ(t.fileText("c:\\longnames.b50").substr(0, 7), "Rem BTN");
    EXPECT_EQ(t.lastBox().title, "Unable to download - filename too long");
}

// ---- the command line ----

TEST(SendToJoystick, RunsInTheLoadersFolderAndStaysThere)
{
    Loaded t;
    t.download();
    ASSERT_EQ(t.processes.starts.size(), 1U);
    EXPECT_EQ(t.processes.starts[0].directory, "c:\\tm");
    EXPECT_EQ(t.processes.starts[0].style, 1);
    EXPECT_TRUE(t.processes.starts[0].waitedFor);
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "c:\\tm");
}

TEST(SendToJoystick, ALoaderPathWithABlankIsPassedUnquoted)
{
    Loaded t("c:\\my tm\\b50load.exe", "c:\\my files\\mig.b50");
    t.files.addDirectory("c:\\my tm");
    t.download();
    EXPECT_EQ(t.command(), "c:\\my tm\\b50load.exe c:\\my files\\mig.b50");
    EXPECT_EQ(t.processes.starts[0].directory, "c:\\my tm");
}

TEST(SendToJoystick, ShellMetacharactersInPathsArePassedUnchanged)
{
    const std::string odd = "c:\\a;b$(c)'d%e&f\\-x`y`.b50";
    Loaded t("c:\\tm\\b50load.exe", odd);
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe " + odd);
}

TEST(SendToJoystick, QuietModeAddsQ)
{
    Loaded t;
    t.menus().mnuAppsQuiet.Enabled = true;
    t.menus().mnuAppsQuiet.Checked = true;
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50 Q");
}

TEST(SendToJoystick, QuietModeHiddenOrDisabledAddsNoQEvenIfItIsChecked)
{
    Loaded t;
    t.menus().mnuAppsQuiet.Checked = true;
    t.menus().mnuAppsQuiet.Enabled = false;
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50");
    t.menus().mnuAppsQuiet.Enabled = true;
    t.menus().mnuAppsQuiet.Visible = false;
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\tm\\mig.b50");
}

TEST(SendToJoystick, WinLoadGetsItsOptionStringWhenItIsInUseAndNeverTheQ)
{
    WithWinLoad t;
    t.menus().mnuAppsQuiet.Enabled = true;
    t.menus().mnuAppsQuiet.Checked = true;
    t.settings().WinLoadString = " /TQS /B6 ";
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\winld.exe c:\\tm\\mig.b50");
    t.settings().WinLoadUse = 1;
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\winld.exe c:\\tm\\mig.b50  /TQS /B6 ");
}

TEST(SendToJoystick, AJoystickPathThatHoldsTheLettersMakesAnyLoaderWinLoad)
{
    Loaded t("c:\\tm\\b50load.exe", "c:\\winld\\mig.b50");
    t.menus().mnuAppsQuiet.Enabled = true;
    t.menus().mnuAppsQuiet.Checked = true;
    t.processes.whileRunning = [&] { t.files.write("c:\\tm\\b50load.dat", "a\r\nb\r\n77\r\n"); };
    t.download();
    EXPECT_EQ(t.command(), "c:\\tm\\b50load.exe c:\\winld\\mig.b50") << "no Q";
    EXPECT_EQ(t.status(), "Compiled and downloaded successfully! (File size: 77 bytes)");
}

TEST(SendToJoystick, WinLoadInCapitalsIsNoWinLoad)
{
    Loaded t("c:\\tm\\WINLD.EXE");
    t.processes.whileRunning = [&] { t.files.write("c:\\tm\\WINLD.dat", "a\r\nb\r\n77\r\n"); };
    t.download();
    EXPECT_EQ(t.status(), "old text");
}

// ---- the run ----

TEST(SendToJoystick, TheFrameIsMinimisedWhileTheLoaderRunsAndComesBackAsItWas)
{
    for (const WindowState before : {WindowState::Normal, WindowState::Maximised}) {
        Loaded t;
        t.program().mum.form.State = before;
        WindowState during = before;
        t.processes.whileRunning = [&] { during = t.program().mum.form.State; };
        t.download();
        EXPECT_EQ(during, WindowState::Minimised);
        EXPECT_EQ(t.program().mum.form.State, before);
    }
}

TEST(SendToJoystick, KeysThatWaitDoNotStartItInsideItself)
{
    WithWinLoad t;
    int pressed = 0;
    t.desktop.whileHandlingEvents = [&] {
        if (++pressed < 50) t.download(); // a key that is held down
    };
    t.reports("a\r\nb\r\n77\r\n");
    t.download();
    EXPECT_EQ(t.processes.starts.size(), 1U);
    EXPECT_GT(pressed, 1);
    EXPECT_EQ(t.status(), "Compiled and downloaded successfully! (File size: 77 bytes)");
    t.desktop.whileHandlingEvents = {};
    t.download();
    EXPECT_EQ(t.processes.starts.size(), 2U) << "the next one is a new one";
}

TEST(SendToJoystick, AMenuOfTheDesktopsDoesNotStartItWhileTheLoaderRuns)
{
    Loaded t;
    t.processes.whileRunning = [&] { t.download(); };
    t.download();
    EXPECT_EQ(t.processes.starts.size(), 1U);
}

TEST(SendToJoystick, AResultThatAppearsBeforeTheLoaderStartsIsNotItsOwn)
{
    WithWinLoad t;
    t.desktop.whileHandlingEvents = [&] {
        if (t.processes.starts.empty()) t.files.write(WithWinLoad::resultPath, "a\r\nb\r\n1\r\n");
    };
    t.download();
    EXPECT_EQ(t.status(), "old text");
}

TEST(SendToJoystick, GivesTheKeyboardBackToThePane)
{
    Loaded t;
    int focused = 0;
    const Connection connection = t.editor().JoystickText.focusWanted.connect([&] { ++focused; });
    t.download();
    EXPECT_EQ(focused, 1);
}

TEST(SendToJoystick, WakeUpWarningAsksAndNoStops)
{
    Loaded t;
    t.menus().mnuUseWakeWarning.Checked = true;
    t.dialogues.answers = {Answer::No};
    t.download();
    EXPECT_EQ(t.lastBox().title, "Shall I download your joystick file now?");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNo);
    EXPECT_EQ(
        t.lastBox().text,
        "Wake up your joystick now to ensure that the download will be successful. To do this, press button S1 on "
        "the side of the joystick a few times.\n\nIt's a good idea as well just to press a few keys on your "
        "keyboard, and if you have any other devices inline with the keyboard, such as a MasterPilot, to check "
        "that these are connected and working properly.\n\nPress Yes to proceed with the download.");
    EXPECT_EQ(t.command(), "(nothing)");
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "c:\\tm") << "the directory stays changed";
    EXPECT_EQ(t.program().mum.form.State, WindowState::Normal);

    t.dialogues.answers = {Answer::Yes};
    t.download();
    EXPECT_EQ(t.processes.starts.size(), 1U);
}

TEST(SendToJoystick, ALoaderThatDoesNotStartRestoresTheFrameAndShowsNothing)
{
    WithWinLoad t;
    t.processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
    t.download();
    EXPECT_EQ(t.program().mum.form.State, WindowState::Normal);
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.status(), "old text");
}

TEST(SendToJoystick, AnEmptyLoaderPathIsRecordedUnderTheCommandsNameAndShowsNothing)
{
    Loaded t("");
    t.program().shared.errors = {};
    t.download();
    EXPECT_EQ(t.command(), " c:\\tm\\mig.b50") << "which starts nothing: no program is named";
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "mnuSendToJoystick_Click");
}

TEST(SendToJoystick, TheContextMenuCommandDoesTheSame)
{
    Loaded t;
    t.menus().mnuRHMDownload.Click();
    EXPECT_EQ(t.processes.starts.size(), 1U);
}

// ---- WinLoad's result file ----

TEST(SendToJoystick, ASuccessIsShownWithItsSize)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nmig.b50\r\n1234\r\n");
    t.download();
    EXPECT_EQ(t.status(), "Compiled and downloaded successfully! (File size: 1234 bytes)");
}

TEST(SendToJoystick, AnErrorIsShownAndItsLineIsSelectedInTheJoystickFile)
{
    WithWinLoad t;
    t.editor().TabStrip1.Select(2);
    t.reports("WinLoad\r\nERROR\r\n2\r\nUnknown key b\r\n");
    t.download();
    EXPECT_EQ(t.status(), "Compiler reported an error at line 2: Unknown key b");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.editor().JoystickText.SelText(), "BTN S2 b");
}

TEST(SendToJoystick, AnErrorWithoutALineSelectsNothing)
{
    for (const std::string third : {"0", "no number"}) {
        WithWinLoad t;
        const auto caret = t.editor().JoystickText.SelStart();
        t.reports("WinLoad\r\nERROR\r\n" + third + "\r\nNo macro file\r\n");
        t.download();
        EXPECT_EQ(t.status(), "Compiler reported the following error: No macro file");
        EXPECT_EQ(t.editor().JoystickText.SelStart(), caret);
        EXPECT_EQ(t.editor().JoystickText.SelLength(), 0);
    }
}

TEST(SendToJoystick, ALineThatTheFileDoesNotHaveIsReported)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nERROR\r\n99\r\nWhere?\r\n");
    t.download();
    EXPECT_EQ(t.status(), "Compiler reported an error at line 99: Where?");
    EXPECT_EQ(t.lastBox().text, "The line number is invalid");
}

TEST(SendToJoystick, ALineNumberAbove32767HighlightsNothing)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nERROR\r\n40000\r\nFar out\r\n");
    t.download();
    EXPECT_EQ(t.status(), "Compiler reported the following error: Far out");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(SendToJoystick, TheLineOfAnErrorStaysMarkedUntilADownloadSucceeds)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nERROR\r\n2\r\nUnknown key b\r\n");
    t.download();
    EXPECT_EQ(t.editor().joystick.ErrorLine.line(), 1);
    t.editor().JoystickText.userEdit(0, 0, "REM\r\n");
    EXPECT_EQ(t.editor().joystick.ErrorLine.line(), 2);
    t.reports("WinLoad\r\nmig.b50\r\n1234\r\n");
    t.download();
    EXPECT_FALSE(t.editor().joystick.ErrorLine.line());
}

TEST(SendToJoystick, OnlyTheLineOfTheLastErrorIsMarked)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nERROR\r\n2\r\nUnknown key b\r\n");
    t.download();
    t.reports("WinLoad\r\nERROR\r\n3\r\nUnknown key c\r\n");
    t.download();
    EXPECT_EQ(t.editor().joystick.ErrorLine.line(), 2);
    t.reports("WinLoad\r\nERROR\r\n0\r\nNo macro file\r\n");
    t.download();
    EXPECT_FALSE(t.editor().joystick.ErrorLine.line());
    t.reports("WinLoad\r\nERROR\r\n99\r\nWhere?\r\n");
    t.download();
    EXPECT_FALSE(t.editor().joystick.ErrorLine.line());
}

TEST(SendToJoystick, TheMarkOfAnErrorGoesWithItsLineAndItsFile)
{
    WithWinLoad t;
    t.reports("WinLoad\r\nERROR\r\n2\r\nUnknown key b\r\n");
    t.download();
    t.editor().JoystickText.userEdit(t.editor().JoystickText.lineStart(1), 0, "REM ");
    EXPECT_FALSE(t.editor().joystick.ErrorLine.line());
    t.download();
    ASSERT_TRUE(t.editor().joystick.ErrorLine.line());
    t.files.addFile("c:\\tm\\twin.b50", t.editor().JoystickText.Text());
    t.files.addFile("c:\\tm\\twin.m50", "");
    t.openBoth("c:\\tm\\twin.b50");
    EXPECT_FALSE(t.editor().joystick.ErrorLine.line());
}

TEST(SendToJoystick, NoResultFileKeepsTheOldStatus)
{
    WithWinLoad t;
    t.download();
    EXPECT_EQ(t.status(), "old text");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(SendToJoystick, AStaleResultFileNeverSurvivesIntoARun)
{
    WithWinLoad t;
    t.files.addFile(WithWinLoad::resultPath, "a\r\nb\r\n1\r\n");
    bool there = true;
    t.processes.whileRunning = [&] { there = t.files.fileExists(WithWinLoad::resultPath); };
    t.download();
    EXPECT_FALSE(there);
    EXPECT_EQ(t.status(), "old text");
}

TEST(SendToJoystick, AStaleResultFileThatCannotBeRemovedIsNotTakenForANewOne)
{
    WithWinLoad t;
    t.files.addFile(WithWinLoad::resultPath, "a\r\nb\r\n1\r\n");
    t.files.setReadOnly(WithWinLoad::resultPath);
    t.download();
    EXPECT_EQ(t.status(), "old text");
}

TEST(SendToJoystick, TheStatusBarOptionIsKeptAndChangesNothing)
{
    for (const std::int16_t option : {0, 1}) {
        WithWinLoad t;
        t.settings().WinLoadStatusBarErrors = option;
        t.reports("a\r\nERROR\r\n0\r\nOops\r\n");
        t.download();
        EXPECT_EQ(t.status(), "Compiler reported the following error: Oops");
    }
}

TEST(SendToJoystick, AResultFileThatCannotBeReadIsRecordedAndNoSuccess)
{
    WithWinLoad t;
    t.processes.whileRunning = [&] {
        t.files.write(WithWinLoad::resultPath, "a\r\nb\r\n1\r\n");
        t.files.failReads(WithWinLoad::resultPath, RuntimeError(ErrorCode::PathFileAccess, "Path/File access error"));
    };
    t.download();
    EXPECT_EQ(t.status(), "old text");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "mnuSendToJoystick_Click");
    EXPECT_EQ(t.program().shared.errors.ErrorNumber, 75);
}

// ---- the options ----

TEST(DownloadOptions, QuietModeTogglesItsMarkAndIsStored)
{
    TestProgram t;
    t.menus().mnuAppsQuiet.Click();
    EXPECT_TRUE(t.menus().mnuAppsQuiet.Checked);
    EXPECT_EQ(t.ini("Miscellaneous", "UseQonDownload"), "1");
    t.menus().mnuAppsQuiet.Click();
    EXPECT_FALSE(t.menus().mnuAppsQuiet.Checked);
    EXPECT_EQ(t.ini("Miscellaneous", "UseQonDownload"), "0");
}

TEST(DownloadOptions, WakeUpWarningTogglesItsMarkAndIsStored)
{
    TestProgram t;
    t.menus().mnuUseWakeWarning.Click();
    EXPECT_TRUE(t.menus().mnuUseWakeWarning.Checked);
    EXPECT_EQ(t.ini("Miscellaneous", "WakeUpWarning"), "1");
    t.menus().mnuUseWakeWarning.Click();
    EXPECT_EQ(t.ini("Miscellaneous", "WakeUpWarning"), "0");
}

TEST(DownloadOptions, DownloadFirstTogglesItsMarkAndIsStored)
{
    TestProgram t;
    t.menus().mnuGamesDownloadFirst.Click();
    EXPECT_TRUE(t.menus().mnuGamesDownloadFirst.Checked);
    EXPECT_EQ(t.settings().GameDownloadOption, 1);
    EXPECT_EQ(t.ini("Games", "GameDownloadOption"), "1");
}

// ---- long paths and large files ----

TEST(SendToJoystick, ALoaderWhosePathTheSettingsCutIsStartedWholeInItsFolder)
{
    const std::string folder = "c:\\" + std::string(110, 'x');
    const std::string loader = folder + "\\b50load.exe";
    Loaded t(loader);
    ASSERT_TRUE(t.settings().B50LoadPath.isCut());
    t.files.addFile(loader, "");
    t.files.addFile(loader.substr(0, 99), "another program");
    t.download();
    EXPECT_EQ(t.command(), loader + " c:\\tm\\mig.b50");
    EXPECT_EQ(t.processes.starts.back().directory, folder);
}

TEST(SendToJoystick, AResultFileIsReadUpToOneMegabyte)
{
    for (const bool within : {true, false}) {
        WithWinLoad t;
        std::string result = "a\r\nb\r\n30\r\n";
        result.resize((std::size_t{1} << 20) - (within ? 5 : 4), 'x');
        t.reports(result + "ERROR");
        t.download();
        EXPECT_EQ(t.status().starts_with("Compiler reported"), within) << t.status();
    }
}

} // namespace
} // namespace tarvex
