#include "program/program.h"

#include "documents/window/editor_window.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvex {
namespace {

// ---- start ----

TEST(Start, ASecondCopyShowsTheBoxAndLeavesTheSettingsUntouched)
{
    TestMachine machine;
    machine.files.addFile(TestMachine::iniPath, "[Miscellaneous]\r\nUndoMax=12\r\n");
    machine.desktop.otherInstance = true;
    Program program(machine.platform);
    EXPECT_FALSE(program.start());
    ASSERT_EQ(machine.dialogues.boxes.size(), 1U);
    EXPECT_EQ(machine.lastBox().title, "Exiting now ...");
    EXPECT_EQ(machine.lastBox().text, "Sorry, You can only have one instance of Tarvex running");
    EXPECT_EQ(machine.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(machine.lastBox().buttons, BoxButtons::Ok);
    EXPECT_EQ(machine.fileText(TestMachine::iniPath), "[Miscellaneous]\r\nUndoMax=12\r\n");
    EXPECT_TRUE(machine.files.writes().empty());
    EXPECT_FALSE(program.mum.form.Visible);
}

TEST(Start, BackupAndRtfDirectoriesExistAfterwards)
{
    TestProgram t;
    EXPECT_TRUE(t.files.directoryExists("c:\\tarvex\\Backup"));
    EXPECT_TRUE(t.files.directoryExists("c:\\tarvex\\Rtf"));
    EXPECT_EQ(t.program().shared.BackupDirectory, "c:\\tarvex\\Backup\\");
    EXPECT_EQ(t.program().shared.RtfDirectory, "c:\\tarvex\\Rtf\\");
}

TEST(Start, OnANewMachineSavesTheSettingsDetectsAndLeadsToThePreferences)
{
    TestMachine machine;
    machine.files.addFile("c:\\tqs\\b50load.exe", "");
    Program program(machine.platform);
    EXPECT_TRUE(program.start());
    EXPECT_EQ(machine.ini("FileLocations", "ProgramFilesPath"), "c:\\tqs\\programs");
    EXPECT_EQ(machine.ini("Apps", "ImageFilePath"), "c:\\tarvex\\abouttarvy.bmp")
        << "in lower case: the preferences have closed";
    EXPECT_EQ(machine.ini("Apps", "TextFilePath"), "c:\\tarvex\\readme.txt");
    EXPECT_EQ(machine.ini("Colours", "BTNColour"), "16711680");
    ASSERT_EQ(machine.dialogues.boxes.size(), 1U);
    EXPECT_EQ(machine.lastBox().title, "Tarvex initialising ...");
    EXPECT_EQ(machine.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(
        machine.lastBox().text,
        "Hi there buddy! Tarvex - all modular system checks passed OK.\n\n"
        "Welcome to Tarvex, the most complete programming interface available for Thrustmaster users. Now I'm "
        "going to need some information from you regarding what Thrustmaster equipment you have, and where your "
        "Thrustmaster files are on your hard disk. Remember, you must still have installed the Thrustmaster "
        "software to use parts of Tarvex. So let's go to the Preferences Window, and fill out all the sections on "
        "the first tab, the File Locations tab. If you get lost, press the Help button there.\n\n"
        "Please remember to ensure that your Windows Display Properties are set to use small fonts - if they're "
        "not the macro list and the Composer images are going to look pretty odd.\n\n"
        "Cheers, and enjoy Tarvex.");
    EXPECT_EQ(machine.dialogues.modalForms, (std::vector<std::string>{"Preferences", "frmTip"}));
    EXPECT_EQ(program.editor.joystick.FilePath, "c:\\tqs\\programsuntitled.b50")
        << "the detected folder has no closing backslash";
}

TEST(Start, TheFirstUseIsOverWhenThePreferencesHaveClosed)
{
    TestMachine machine;
    machine.dialogues.whileModal = [&] {
        const bool preferences = machine.dialogues.modalForms.back() == "Preferences"; // the tip follows
        EXPECT_EQ(machine.ini("FileLocations", "FirstTimeUsed"), preferences ? "1" : "0");
    };
    EXPECT_TRUE(Program(machine.platform).start());
    EXPECT_EQ(machine.ini("FileLocations", "FirstTimeUsed"), "0");
}

TEST(Start, DetectsNothingOnceAProgramsFolderIsSet)
{
    TestProgram t(false);
    t.files.addDirectory("c:\\tm\\f22");
    t.start();
    EXPECT_EQ(t.settings().JoystickExtension, "b50");
    EXPECT_EQ(t.ini("Colours", "BTNColour"), "(none)");
}

TEST(Start, ComesUpWithTwoEmptyDocuments)
{
    TestProgram t;
    EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex!");
    EXPECT_EQ(t.status(3), "Line no: 1");
    EXPECT_EQ(t.status(8), "No macro file analysed");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_TRUE(t.program().mum.form.Visible);
    EXPECT_TRUE(t.program().mum.Toolbar1.Visible);
    EXPECT_TRUE(t.editor().Visible);
    EXPECT_EQ(t.desktop.eventsHandled, 2);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_FALSE(t.menus().mnuEditUndo.Enabled);
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.editor().JoystickText.BackColor.get(), t.settings().BackgroundColour);
    EXPECT_EQ(t.editor().MacroText.BackColor.get(), t.settings().MacroBackgroundColour);
}

TEST(Start, TheMacroPathOfAnEmptyDocumentIsLowerCased)
{
    TestProgram t(false);
    t.setIni("FileLocations", "ProgramFilesPath", "C:\\TM\\B50Progs\\");
    t.start();
    EXPECT_EQ(t.editor().macro.FilePath, "c:\\tm\\b50progs\\untitled.m50");
    EXPECT_EQ(t.editor().joystick.FilePath, "C:\\TM\\B50Progs\\untitled.b50");
}

TEST(Start, TheFramesPlaceComesFromTheSettings)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "MumWindowstate", "0");
    t.setIni("Miscellaneous", "MumLeftAtStartup", "1500");
    t.setIni("Miscellaneous", "MumTopAtStartup", "750.5");
    t.start();
    EXPECT_EQ(t.program().mum.form.State.get(), WindowState::Normal);
    EXPECT_EQ(t.program().mum.form.Left.get(), 1500.0F);
    EXPECT_EQ(t.program().mum.form.Top.get(), 750.5F);
    EXPECT_EQ(t.program().mum.form.Width.get(), 13320.0F);
}

TEST(Start, WithoutAStoredStateTheFrameIsMaximised)
{
    TestProgram t;
    EXPECT_EQ(t.program().mum.form.State.get(), WindowState::Maximised);
}

TEST(Start, AFileOnTheCommandLineIsOpened)
{
    TestProgram t(false);
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.addFile("c:\\tm\\mig.m50", "Fire = f");
    t.platform.commandLine = "C:\\TM\\mig.b50";
    t.start();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 x");
    EXPECT_EQ(t.editor().MacroText.Text(), "Fire = f");
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\mig.b50");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(t.editor().OpeningWithoutAsking, 0);
}

TEST(Start, ACommandLineFileOpensAloneWhereSingleFilesAreWanted)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "OpenSingleFileOnly", "1");
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.addFile("c:\\tm\\mig.m50", "Fire = f");
    t.platform.commandLine = "c:\\tm\\mig.m50";
    t.start();
    EXPECT_EQ(t.editor().MacroText.Text(), "Fire = f");
    EXPECT_EQ(t.editor().JoystickText.Text(), "");
}

/// Favourites with their menu, and a record of which was opened.
struct Favourites : TestProgram {
    std::vector<int> opened;
    Favourites() : TestProgram(false)
    {
        setIni("Favourites", "FavArrayNum", "3");
        setIni("Favourites", "FavName1", "Mig");
        setIni("Favourites", "FavName2", "Other");
        setIni("Favourites", "FavName3", "Mig");
        setIni("Favourites", "FavLoadOnStart", "1");
        setIni("Favourites", "FavNameToLoad", "Mig");
    }
    /// Builds the menu as the favourites unit does once the list was read.
    void startWithMenu()
    {
        Program program(platform);
        program.operations.GetFavourites = [&] {
            program.shared.store.read(Access::GetFavourites, "MODULE GetFavourites");
            program.menus.mnuFavArray.setHandler([this](int index) { opened.push_back(index); });
            int index = 0;
            for (const std::string& name : program.shared.settings.FavName)
                program.menus.mnuFavArray.Load(++index)->Caption = name;
        };
        EXPECT_TRUE(program.start());
    }
};

TEST(Start, AMarkedFavouriteIsOpenedTheLastOfItsName)
{
    Favourites t;
    t.startWithMenu();
    EXPECT_EQ(t.opened, std::vector<int>{3});
}

TEST(Start, ACommandLineOfAMissingFileIsDroppedWithoutAMessageAndTheFavouriteIsOpenedInstead)
{
    Favourites t;
    t.platform.commandLine = "c:\\gone.b50";
    t.startWithMenu();
    EXPECT_EQ(t.opened, std::vector<int>{3});
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(Start, AMissingCommandLineFileLeavesTwoEmptyDocuments)
{
    TestProgram t(false);
    t.platform.commandLine = "c:\\gone.b50";
    t.start();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.program().shared.CommandLineFile, "");
}

TEST(Start, AFileOnTheCommandLineWinsOverAFavourite)
{
    Favourites t;
    t.files.addFile("c:\\tm\\mig.b50", "BTN S1 x");
    t.files.addFile("c:\\tm\\mig.m50", "");
    t.platform.commandLine = "c:\\tm\\mig.b50";
    t.startWithMenu();
    EXPECT_TRUE(t.opened.empty());
}

TEST(Start, AFavouriteThatIsNotMarkedStaysClosed)
{
    Favourites t;
    t.setIni("Favourites", "FavLoadOnStart", "0");
    t.startWithMenu();
    EXPECT_TRUE(t.opened.empty());
}

TEST(Start, WithNeitherSoundFileNothingIsPlayedWhateverTheSettingSays)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "PlayWavOnStartup", "1");
    t.start();
    EXPECT_TRUE(t.sound.played.empty());
    EXPECT_EQ(t.program().shared.StartupSoundAvailable, 0);
}

TEST(Start, TheBigSoundIsPreferredAndTheSmallOneTakenWithoutIt)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "PlayWavOnStartup", "1");
    t.files.addFile("c:\\tarvex\\tarvexsmall.wav", "RIFF");
    t.start();
    EXPECT_EQ(t.sound.played, std::vector<std::string>{"c:\\tarvex\\tarvexsmall.wav"});
    t.files.addFile("c:\\tarvex\\tarvexbig.wav", "RIFF");
    t.start();
    EXPECT_EQ(t.sound.played.back(), "c:\\tarvex\\tarvexbig.wav");
    EXPECT_EQ(t.program().shared.StartupSoundAvailable, 1);
    EXPECT_FALSE(t.desktop.hourglass);
}

TEST(Start, ASoundFileIsNotPlayedWithoutTheSetting)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\tarvexbig.wav", "RIFF");
    t.start();
    EXPECT_TRUE(t.sound.played.empty());
    EXPECT_EQ(t.program().shared.StartupSoundAvailable, 1);
}

TEST(Start, HideSeparatorsHidesTheFourButtons)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "HideSeparators", "1");
    t.start();
    for (const int number : {17, 19, 22, 39}) EXPECT_FALSE(t.program().mum.Toolbar1.Buttons(number).Visible) << number;
    EXPECT_TRUE(t.program().mum.Toolbar1.Buttons(18).Visible);
}

TEST(Start, DisableCalibrateMenuHidesCommandAndButton)
{
    TestProgram t(false);
    t.setIni("Miscellaneous", "DisableCalibrateMenu", "1");
    t.start();
    EXPECT_FALSE(t.menus().mnuAppsProPanel.Visible);
    EXPECT_FALSE(t.program().mum.Toolbar1.Buttons(37).Visible);
    t.setIni("Miscellaneous", "DisableCalibrateMenu", "0");
    t.start();
    EXPECT_TRUE(t.menus().mnuAppsProPanel.Visible);
}

TEST(Start, TicksAndCaptionsComeFromTheSettings)
{
    TestProgram t(false);
    t.setIni("Colours", "InsertWithColour", "0");
    t.setIni("FileLocations", "GamesCaption", "Fl&y");
    t.setIni("Miscellaneous", "WakeUpWarning", "1");
    t.setIni("Miscellaneous", "MacroSaveIdentifyJF", "0");
    t.start();
    EXPECT_FALSE(t.menus().mnuInsertWithColour.Checked);
    EXPECT_EQ(t.menus().mnuGames.Caption.get(), "Fl&y");
    EXPECT_TRUE(t.menus().mnuUseWakeWarning.Checked);
    EXPECT_TRUE(t.menus().mnuMacrosSaveOptions1.Checked);
    EXPECT_FALSE(t.menus().mnuMacrosSaveOptions2.Checked);
}

TEST(Start, TheAutomaticSaveRunsOnlyWhenItIsEnabled)
{
    TestProgram t(false);
    t.start();
    EXPECT_FALSE(t.editor().Timer1.Enabled);
    t.setIni("Miscellaneous", "AutoSaveEnabled", "1");
    t.start();
    EXPECT_TRUE(t.editor().Timer1.Enabled);
    EXPECT_EQ(t.editor().Timer1.Interval.get(), 60000);
}

TEST(Start, SaysWhatItIsDoingUntilItIsReady)
{
    TestMachine machine;
    Program program(machine.platform);
    std::vector<std::string> texts;
    Property<std::string>& panel = program.mum.StatusBar.Panels(1).Text;
    const Connection watching = panel.changed.connect([&] { texts.push_back(panel); });
    EXPECT_TRUE(program.start());
    EXPECT_EQ(texts.front(), "Loading up the main Tarvex Editor .... hang on ....");
    EXPECT_EQ(texts.back(), "Ready! Welcome to Tarvex!");
}

TEST(Start, AReadOnlyProgramFolderIsNoObstacle)
{
    TestMachine machine;
    machine.files.failWrites(TestMachine::iniPath, RuntimeError(ErrorCode::PermissionDenied, "no"));
    Program program(machine.platform);
    EXPECT_TRUE(program.start());
    EXPECT_EQ(program.mum.StatusBar.Panels(1).Text.get(), "Ready! Welcome to Tarvex!");
}

TEST(Start, ADamagedSettingsFileIsNoObstacle)
{
    const std::string damaged[] = {
        "",
        "no section at all\nUndoMax=3",
        std::string("[Misc\0ellaneous]\0\0UndoMax=\xFF\xFF", 28),
        "[Miscellaneous]\r\nUndoMax=" + std::string(1 << 20, '9') + "\r\nAutoSaveTime=abc\r\n",
        "[Colours]\r\nTextFontSize=huge\r\nTextFontName=\r\n[Miscellaneous]\r\nMumWidthAtStartup=wide\r\n",
        "[Favourites]\r\nFavArrayNum=32767\r\n[Games]\r\nGameArrayNum=-1\r\n",
        "[FileLocations]\r\nJoyName=77\r\nProgramFilesPath=\"c:\\a b\\\"\r\n",
    };
    for (const std::string& text : damaged) {
        TestMachine machine;
        machine.files.addFile(TestMachine::iniPath, text);
        Program program(machine.platform);
        EXPECT_TRUE(program.start()) << text.substr(0, 60);
        EXPECT_EQ(program.mum.StatusBar.Panels(1).Text.get(), "Ready! Welcome to Tarvex!");
    }
}

/// A printer system whose previews fail.
struct BrokenPrinters final : Printers {
    FakePrinter printer;
    int Count() override { return 1; }
    Printer& current() override { return printer; }
    void setUp() override {}
    void preview(const std::string&, const PrintJob&) override
    {
        EXPECT_TRUE(orientations.insert(printer.orientation).second);
        throw RuntimeError(ErrorCode::PrinterError, "Out of paper");
    }
    std::string pdf(const std::string&, const PrintJob&) override { return {}; }
    std::set<int> orientations; ///< of the paper at each preview
};

TEST(Preview, ThatFailsIsReportedAndLeavesThePaperAsItWas)
{
    TestMachine m;
    BrokenPrinters printers;
    Platform platform{m.files,     m.dialogues, m.desktop, m.sound,    m.clipboard,
                      m.processes, m.machine,   printers,  m.pictures, TestMachine::programDirectory,
                      {}};
    Program program(platform);
    EXPECT_TRUE(program.start());
    program.editor.JoystickText.setText("BTN S1 fire");
    program.menus.mnuFilePrintPreview.Click();
    EXPECT_EQ(m.lastBox().text, "The preview of untitled.f22 went wrong: Out of paper");
    m.dialogues.answers = {Answer::Yes};
    program.menus.mnuFilePrintControls.Click();
    EXPECT_EQ(m.lastBox().text, "The preview of the controls went wrong: Out of paper");
    EXPECT_EQ(printers.orientations, (std::set<int>{orientation::portrait, orientation::landscape}));
    EXPECT_EQ(printers.printer.orientation, orientation::portrait);
}

// ---- exit ----

TEST(Exit, WithNothingToSaveAsksNothing)
{
    TestProgram t;
    t.files.addFile("c:\\a\\x.b50", "BTN S1 fire");
    t.files.addFile("c:\\a\\x.m50", "A = a");
    t.openBoth("c:\\a\\x.b50");
    EXPECT_TRUE(t.program().exit());
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.desktop.quits, 1);
    EXPECT_FALSE(t.program().mum.form.Visible);
}

TEST(Exit, EmptyNewDocumentsAreNeverAskedAbout)
{
    TestProgram t;
    EXPECT_TRUE(t.program().exit());
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(Exit, AsksAboutTheMacroFileFirst)
{
    TestProgram t;
    t.typeJoystick("j");
    t.typeMacro("m");
    t.dialogues.answers = {Answer::No, Answer::No};
    EXPECT_TRUE(t.program().exit());
    ASSERT_EQ(t.dialogues.boxes.size(), 2U);
    EXPECT_EQ(t.dialogues.boxes[0].title, " Save untitled.m50 now?");
    EXPECT_EQ(t.dialogues.boxes[0].text,
              "untitled.m50 has changed and isn't saved. Do you want to save it before exiting?");
    EXPECT_EQ(t.dialogues.boxes[0].icon, BoxIcon::Question);
    EXPECT_EQ(t.dialogues.boxes[1].title, " Save untitled.b50 now?");
}

TEST(Exit, MacroAnsweredNoAndJoystickCancelKeepsTheProgramOpenAndBothUnchanged)
{
    TestProgram t;
    t.typeJoystick("j");
    t.typeMacro("m");
    t.dialogues.answers = {Answer::No, Answer::Cancel};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(t.desktop.quits, 0);
    EXPECT_EQ(t.editor().JoystickText.Text(), "j");
    EXPECT_EQ(t.editor().MacroText.Text(), "m");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.editor().macro.Changed, changed::modified);
    EXPECT_TRUE(t.program().mum.form.Visible);
}

TEST(Exit, YesForAnUntitledFileAndACancelledSaveAsKeepsTheProgramOpen)
{
    TestProgram t;
    t.typeJoystick("j");
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text, "untitled.b50 wasn't saved. Exit program aborted.");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST(Exit, YesSavesTheMacroFileWithoutAnalysingIt)
{
    TestProgram t;
    t.files.addFile("c:\\a\\x.b50", "BTN");
    t.files.addFile("c:\\a\\x.m50", "A = a");
    t.openBoth("c:\\a\\x.b50");
    t.typeMacro("B = b\r\n");
    bool analysed = false;
    t.menus().mnuEditUpdateMacros.handler = [&] { analysed = true; };
    t.dialogues.answers = {Answer::Yes};
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(t.fileText("c:\\a\\x.m50"), "B = b\r\nA = a");
    EXPECT_FALSE(analysed);
    EXPECT_EQ(t.editor().ExitInProgress, 0);
}

TEST(Exit, TheExitMarkGoesBackWhenTheSaveIsCancelled)
{
    TestProgram t;
    t.typeMacro("m");
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(t.editor().ExitInProgress, 0);
}

TEST(Exit, StoresTheFramesPlaceWithinTheScreen)
{
    TestProgram t;
    Form& form = t.program().mum.form;
    form.State = WindowState::Normal;
    form.Left = -150.0F;
    form.Top = 300.0F;
    form.Width = 99999.0F;
    form.Height = 9000.0F;
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(t.ini("Miscellaneous", "MumLeftAtStartup"), "0");
    EXPECT_EQ(t.ini("Miscellaneous", "MumTopAtStartup"), "300");
    EXPECT_EQ(t.ini("Miscellaneous", "MumWidthAtStartup"), "19200");
    EXPECT_EQ(t.ini("Miscellaneous", "MumHeightAtStartup"), "9000");
    EXPECT_EQ(t.ini("Miscellaneous", "MumWindowstate"), "0");
}

TEST(Exit, AMinimisedFrameKeepsThePlaceStoredBefore)
{
    TestProgram t;
    t.setIni("Miscellaneous", "MumLeftAtStartup", "77");
    t.program().mum.form.State = WindowState::Minimised;
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(t.ini("Miscellaneous", "MumLeftAtStartup"), "77");
    EXPECT_EQ(t.ini("Miscellaneous", "MumWindowstate"), "(none)");
}

TEST(Exit, StoresTheTicksOfTheMenus)
{
    TestProgram t;
    t.menus().mnuJoyPopUpSingleFile.Click();
    t.menus().mnuMacrosSaveOptions2.Click();
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(t.ini("Miscellaneous", "OpenSingleFileOnly"), "1");
    EXPECT_EQ(t.ini("Miscellaneous", "MacroSaveIdentifyJF"), "0");
    EXPECT_EQ(t.ini("Miscellaneous", "MacroSaveUpdateMacros"), "1");
}

TEST(Exit, GivesTheGradientBackWhenTheFrameUnloadsAndTheFramesOwnCommandAlsoBefore)
{
    enum class By { Frame, Menu, FrameMenu };
    for (const By way : {By::Frame, By::Menu, By::FrameMenu}) {
        TestProgram t;
        std::string order;
        t.program().operations.ReleaseGradient = [&] { order += "gradient "; };
        t.program().operations.UnloadEditor = [&] { order += "editor "; };
        switch (way) {
        case By::Frame:
            EXPECT_TRUE(t.program().exit());
            break;
        case By::Menu:
            t.menus().mnuFileExit.Click();
            break;
        case By::FrameMenu:
            t.menus().mnuMumFileExit.Click();
            break;
        }
        EXPECT_EQ(order, way == By::FrameMenu ? "gradient editor gradient " : "editor gradient ");
        EXPECT_EQ(t.desktop.quits, 1);
    }
}

TEST(Exit, AUserWhoStaysKeepsTheGradient)
{
    TestProgram t;
    t.setIni("Miscellaneous", "GradientEffect", "1");
    t.start();
    t.editor().JoystickText.setSelText("BTN S1 a");
    t.dialogues.answers = {Answer::Cancel};
    EXPECT_FALSE(t.program().exit());
    EXPECT_TRUE(t.program().mum.Gradient);
    t.dialogues.answers = {Answer::No};
    EXPECT_TRUE(t.program().exit());
    EXPECT_FALSE(t.program().mum.Gradient);
}

TEST(Exit, TakesTheToolWindowsDownInOrder)
{
    TestProgram t;
    std::string unloaded;
    t.program().operations.UnloadForm = [&](const std::string& name) { unloaded += name + " "; };
    EXPECT_TRUE(t.program().exit());
    EXPECT_EQ(unloaded, "FindAndReplace InsertOptions Heading KeyTestForm InfoWindow RAWform MacroWizard JoystickWiz "
                        "SlashWizard JoyPlot TCAform Speedy Handbook ColourSelector KeyTestForm ");
}

TEST(ReportError, AnEmergencyExitUnloadsTheToolWindowsAndEnds)
{
    TestProgram t;
    std::vector<std::string> unloaded;
    t.program().operations.UnloadForm = [&](const std::string& name) { unloaded.push_back(name); };
    t.program().mum.Gradient = true;
    ErrorRecord& errors = t.program().shared.errors;
    errors.reportWindow = [&] { errors.ExitRequestedByError = 1; };
    errors.report("MODULE Test", std::runtime_error("x"));
    EXPECT_FALSE(t.program().mum.Gradient);
    ASSERT_GE(unloaded.size(), 20U);
    EXPECT_EQ(unloaded.front(), "ColourSelector");
    EXPECT_EQ(unloaded[19], "ViewImage");
    EXPECT_GE(t.desktop.quits, 1);
}

TEST(Form_Activate, GivesTheFocusToTheSelectedPane)
{
    TestProgram t;
    t.editor().TabStrip1.Select(2);
    int focused = 0;
    int fontChanges = 0;
    const auto listening = t.editor().MacroText.focusWanted.connect([&] { ++focused; });
    t.program().operations.DamnFontWasChanged = [&] { ++fontChanges; };
    Form_Activate(t.editor());
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(fontChanges, 0);
    t.program().shared.FontChanged = 1;
    Form_Activate(t.editor());
    EXPECT_EQ(fontChanges, 1);
}

} // namespace
} // namespace tarvex
