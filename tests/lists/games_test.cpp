#include "lists/games.h"

#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Games g1, g2, ... in the settings, and a record of what was launched.
struct Play : TestProgram {
    explicit Play(int count = 0) : TestProgram(false)
    {
        setIni("Games", "GameArrayNum", std::to_string(count));
        for (int i = 1; i <= count; ++i) {
            const std::string number = std::to_string(i);
            setIni("Games", "GameName" + number, std::string("g").append(number));
            setIni("Games", "GamePath" + number, "D:\\G" + number + "\\g.exe +Fast");
            setIni("Games", "GameDIRPath" + number, "D:\\G" + number);
            setIni("Games", "GameJF" + number, "c:\\tm\\g" + number + ".b50");
        }
        start();
        games().LaunchGame = [this](const Game& game) { launched.push_back(game.name); };
    }
    Games& games() { return program().lists.games; }
    EnterGameName& form() { return games().form; }
    MenuArray& array() { return menus().mnuGameArray; }
    std::vector<std::string> captions()
    {
        std::vector<std::string> texts;
        for (int i = 1; i <= array().UBound(); ++i) texts.push_back(array()[i].Caption);
        return texts;
    }
    /// Where a joystick text goes that couldn't be saved.
    std::string asideCopy() { return "c:\\tarvex\\Recover\\" + editor().joystick.FileName; }
    std::string stored(const std::string& key) { return ini("Games", key); }
    void add(const Game& game)
    {
        dialogues.whileModal = [this, game] {
            form().Text1.Text = game.name;
            form().Text2.Text = game.command;
            form().Text3.Text = game.workingDirectory;
            form().Text4.Text = game.joystickFile;
            form().Command3.Click();
        };
        menus().mnuGamesAdd.Click();
    }

    std::vector<std::string> launched;
};

TEST(GetGames, WithoutGamesThePatternIsSeenAndTheMenuStaysEnabled)
{
    Play t;
    EXPECT_TRUE(t.menus().mnuGames.Enabled);
    EXPECT_TRUE(t.array()[0].Visible);
    EXPECT_FALSE(t.array()[0].Enabled);
    EXPECT_EQ(t.array()[0].Caption.get(), "(no games yet)");
}

TEST(GetGames, TheNamesStandOnTheMenuAndTheTickIsAsItWasLeft)
{
    Play t(2);
    EXPECT_THAT(t.captions(), ElementsAre("g1", "g2"));
    EXPECT_FALSE(t.array()[0].Visible);
    EXPECT_FALSE(t.menus().mnuGamesDownloadFirst.Checked);
    t.menus().mnuGamesDownloadFirst.Click();
    EXPECT_TRUE(t.menus().mnuGamesDownloadFirst.Checked);
    EXPECT_EQ(t.stored("GameDownloadOption"), "1") << "stored at once";
    EXPECT_EQ(t.settings().GameDownloadOption, 1);
    t.start();
    EXPECT_TRUE(t.menus().mnuGamesDownloadFirst.Checked);
    t.menus().mnuGamesDownloadFirst.Click();
    EXPECT_EQ(t.stored("GameDownloadOption"), "0");
    EXPECT_FALSE(t.menus().mnuGamesDownloadFirst.Checked);
}

// ---- adding ---------------------------------------------------------------------------------------------------------

TEST(AddGame, OkAddsItAtTheTopWithItsDetailsAsTheyStand)
{
    Play t(1);
    t.add({"New", "D:\\Quake2\\Quake2.exe +set BaseDir D:\\Q", "D:\\Quake2", "C:\\TM\\Q.B50"});
    EXPECT_THAT(t.dialogues.modalForms, ElementsAre("EnterGameName"));
    EXPECT_THAT(t.captions(), ElementsAre("New", "g1"));
    EXPECT_EQ(t.stored("GameArrayNum"), "2");
    EXPECT_EQ(t.stored("GamePath1"), "D:\\Quake2\\Quake2.exe +set BaseDir D:\\Q");
    EXPECT_EQ(t.stored("GameDIRPath1"), "D:\\Quake2");
    EXPECT_EQ(t.stored("GameJF1"), "C:\\TM\\Q.B50");
    EXPECT_EQ(t.stored("GameName2"), "g1");
}

TEST(AddGame, ACancelAddsNothingAlsoAfterAnOk)
{
    Play t;
    t.add({"a", "", "", ""});
    t.dialogues.whileModal = [&] { t.form().Command4.Click(); };
    t.settings().GameName[0] = "kept";
    t.menus().mnuGamesAdd.Click();
    EXPECT_EQ(t.settings().GameName[0], "kept");
    EXPECT_FALSE(t.form().Form.Visible);
}

TEST(AddGame, ANameThatExistsReplacesTheEntrysDetailsAndMovesItToTheTop)
{
    Play t(3);
    t.add({"g2", "c:\\other.exe", "c:\\", "c:\\other.b50"});
    EXPECT_THAT(t.captions(), ElementsAre("g2", "g1", "g3"));
    EXPECT_EQ(t.settings().GamePath[0], "c:\\other.exe");
    EXPECT_EQ(t.settings().GameDIRPath[0], "c:\\");
    EXPECT_EQ(t.settings().GameJF[0], "c:\\other.b50");
    EXPECT_EQ(t.settings().GamePath[2], "D:\\G3\\g.exe +Fast");
    EXPECT_EQ(t.stored("GameArrayNum"), "3");
}

TEST(AddGame, The31stGameDropsTheOldest)
{
    Play t(30);
    t.add({"new", "", "", ""});
    EXPECT_EQ(t.captions().size(), 30U);
    EXPECT_EQ(t.captions().front(), "new");
    EXPECT_EQ(t.captions().back(), "g29");
    EXPECT_EQ(t.stored("GameArrayNum"), "30");
}

TEST(AddGame, The30thGameStillFits)
{
    Play t(29);
    t.add({"new", "", "", ""});
    EXPECT_EQ(t.captions().size(), 30U);
    EXPECT_EQ(t.captions().back(), "g29");
}

TEST(AddGame, NamesAreComparedExactly)
{
    Play t(1);
    EXPECT_EQ(IsGameOnMenuAlready(t.games(), "g1"), -1);
    EXPECT_EQ(IsGameOnMenuAlready(t.games(), "G1"), 0);
    t.add({"G1", "", "", ""});
    EXPECT_THAT(t.captions(), ElementsAre("G1", "g1"));
}

TEST(AddGame, DetailsWithLineBreaksDoNotBreakTheSettings)
{
    Play t;
    t.add({"odd\n[Evil]\nx=1", "a\r\nGameArrayNum=9", "b", "c"});
    EXPECT_EQ(t.ini("Evil", "x"), "(none)");
    EXPECT_EQ(t.stored("GameArrayNum"), "1");
    EXPECT_EQ(t.stored("GameName1"), "odd");
}

// ---- the dialogue ---------------------------------------------------------------------------------------------------

TEST(EnterGameName, ComesUpWithASampleInEachBoxEachTime)
{
    Play t;
    t.add({"a", "b", "c", "d"});
    t.dialogues.whileModal = [&] {
        EXPECT_EQ(t.form().Form.Caption.get(), "Enter game details - click on the help buttons for information");
        EXPECT_EQ(t.form().Text1.Text.get(), "eg. F22 ADF");
        EXPECT_EQ(t.form().Text2.Text.get(), "eg. d:\\f22\\program\\_f22.exe");
        EXPECT_EQ(t.form().Text3.Text.get(), "eg. d:\\f22\\program");
        EXPECT_EQ(t.form().Text4.Text.get(), "eg. c:\\tm\\f22\\f22progs\\f22adf.f22");
        EXPECT_TRUE(t.form().Command3.Enabled);
    };
    t.menus().mnuGamesAdd.Click();
}

TEST(EnterGameName, OkIsEnabledOnlyWhileThereIsAName)
{
    Play t;
    GAME_Form_Load(t.form());
    t.form().Text1.Text = "";
    EXPECT_FALSE(t.form().Command3.Enabled);
    t.form().Text1.Text = " ";
    EXPECT_TRUE(t.form().Command3.Enabled);
}

TEST(EnterGameName, BrowsingForTheGameFillsItsPathInLowerCaseAndProposesItsFolder)
{
    Play t;
    GAME_Form_Load(t.form());
    t.dialogues.filesToOpen = {"D:\\F22\\Program\\_F22.EXE"};
    t.form().Command1[0].Click();
    EXPECT_EQ(t.form().Text2.Text.get(), "d:\\f22\\program\\_f22.exe");
    EXPECT_EQ(t.form().Text3.Text.get(), "d:\\f22\\program\\");
    EXPECT_EQ(t.dialogues.openRequests[0].filter, "Executables (*.exe)|*.exe|All files (*.*)|*.*");
}

TEST(EnterGameName, AWorkingDirectoryThatIsNoSampleStays)
{
    Play t;
    GAME_Form_Load(t.form());
    t.form().Text3.Text = "d:\\mine";
    t.dialogues.filesToOpen = {"d:\\f22\\_f22.exe"};
    t.form().Command1[0].Click();
    EXPECT_EQ(t.form().Text3.Text.get(), "d:\\mine");
    t.form().Text3.Text = "eggs"; // by its first two characters a sample
    t.dialogues.filesToOpen = {"d:\\f22\\_f22.exe"};
    t.form().Command1[0].Click();
    EXPECT_EQ(t.form().Text3.Text.get(), "d:\\f22\\");
}

TEST(EnterGameName, ACancelledBrowseChangesNothing)
{
    Play t;
    GAME_Form_Load(t.form());
    t.dialogues.filesToOpen = {std::nullopt, std::nullopt};
    t.dialogues.folders = {std::nullopt};
    t.program().shared.errors.ErrorProcedure.clear();
    t.form().Command1[0].Click();
    t.form().Command1[1].Click();
    t.form().Command2.Click();
    EXPECT_EQ(t.form().Text2.Text.get(), "eg. d:\\f22\\program\\_f22.exe");
    EXPECT_EQ(t.form().Text3.Text.get(), "eg. d:\\f22\\program");
    EXPECT_EQ(t.form().Text4.Text.get(), "eg. c:\\tm\\f22\\f22progs\\f22adf.f22");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "");
}

TEST(EnterGameName, BrowsingForTheJoystickFileStartsInTheProgramsFolder)
{
    Play t;
    t.settings().JoystickExtension = "f22";
    t.dialogues.filesToOpen = {"c:\\tm\\b50progs\\Mig.f22"};
    t.form().Command1[1].Click();
    EXPECT_EQ(t.form().Text4.Text.get(), "c:\\tm\\b50progs\\Mig.f22");
    EXPECT_EQ(t.dialogues.openRequests[0].filter, "Joystick file (*.f22)|*.f22|All files (*.*)|*.*");
    EXPECT_EQ(t.dialogues.openRequests[0].directory, "c:\\tm\\b50progs\\");
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "c:\\") << "the root of its drive";
}

TEST(EnterGameName, SelectTakesAFolder)
{
    Play t;
    t.form().Text3.Text = "d:\\games";
    t.dialogues.folders = {"d:\\f22"};
    t.form().Command2.Click();
    EXPECT_EQ(t.form().Text3.Text.get(), "d:\\f22");
    EXPECT_EQ(t.dialogues.folderRequests[0].title, "Select your game's working directory");
    EXPECT_EQ(t.dialogues.folderRequests[0].directory, "d:\\games");
}

TEST(EnterGameName, TheHelpButtonsExplain)
{
    Play t;
    t.form().Command5.Click();
    EXPECT_EQ(t.lastBox().title, "Important information ... ");
    EXPECT_TRUE(t.lastBox().text.starts_with("Make sure you have any command line switches in here"));
    EXPECT_TRUE(
        t.lastBox().text.ends_with("D:\\Quake2\\quake2.exe +set cddir J:\\install\\data +set basedir d:\\QUAKE2"));
    t.form().Command6.Click();
    EXPECT_EQ(t.lastBox().title, "About the working directory ... ");
    EXPECT_TRUE(t.lastBox().text.ends_with("Copy the string from Start in to this text box."));
}

TEST(EnterGameName, ABoxThatGetsTheKeyboardIsSelected)
{
    Play t;
    int selected = 0;
    std::vector<Connection> kept;
    for (TextBox* box : {&t.form().Text1, &t.form().Text2, &t.form().Text3, &t.form().Text4}) {
        kept.push_back(box->selectAllWanted.connect([&] { ++selected; }));
        box->GotFocus();
    }
    EXPECT_EQ(selected, 4);
}

// ---- the click ------------------------------------------------------------------------------------------------------

TEST(GameClick, MovesTheGameToTheTopAndLaunchesIt)
{
    Play t(3);
    std::string first;
    t.games().LaunchGame = [&](const Game& game) {
        EXPECT_EQ(game.command, "D:\\G3\\g.exe +Fast");
        EXPECT_EQ(game.workingDirectory, "D:\\G3");
        EXPECT_EQ(game.joystickFile, "c:\\tm\\g3.b50");
        first = t.stored("GameName1");
    };
    t.array()[3].Click();
    EXPECT_EQ(first, "g3") << "stored before the game starts";
    EXPECT_THAT(t.captions(), ElementsAre("g3", "g1", "g2"));
}

TEST(GameClick, SavesTheModifiedDocumentsEachByItself)
{
    Play t(1);
    t.files.addFile("c:\\tm\\mig.b50", "Rem a");
    t.files.addFile("c:\\tm\\mig.m50", "Fire = f");
    t.openBoth("c:\\tm\\mig.b50");
    t.typeJoystick("Rem b ");
    t.typeMacro("Go = g ");
    t.editor().TabStrip1.Select(2);
    t.array()[1].Click();
    EXPECT_EQ(t.fileText("c:\\tm\\mig.b50"), "Rem b Rem a");
    EXPECT_EQ(t.fileText("c:\\tm\\mig.m50"), "Go = g Fire = f");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
    EXPECT_THAT(t.launched, ElementsAre("g1"));
}

TEST(GameClick, SavesOnlyWhatIsModified)
{
    Play t(1);
    t.files.clearWrites();
    t.array()[1].Click();
    for (const auto& write : t.files.writes()) EXPECT_EQ(write.path, TestMachine::iniPath);
    EXPECT_TRUE(t.dialogues.saveRequests.empty());
    EXPECT_THAT(t.launched, ElementsAre("g1"));
}

TEST(GameClick, TheMarksAreClearedWhateverBecameOfTheSaving)
{
    Play t(1);
    t.typeJoystick("Rem");
    t.dialogues.filesToSave = {std::nullopt};
    int launches = 0;
    t.games().LaunchGame = [&](const Game&) {
        ++launches;
        EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
        EXPECT_EQ(t.editor().macro.Changed, changed::saved);
        EXPECT_EQ(t.program().mum.StatusBar.Panels(panel::savedState).Picture, changed::saved + 2);
    };
    t.array()[1].Click();
    EXPECT_EQ(launches, 1);
}

TEST(GameClick, ATextThatCouldNotBeSavedIsPutAsideAndTheUserLearnsWhere)
{
    Play t(1);
    t.typeJoystick("Rem");
    t.dialogues.filesToSave = {std::nullopt};
    t.array()[1].Click();
    const std::string copy = t.asideCopy();
    EXPECT_EQ(t.fileText(copy), "Rem");
    EXPECT_EQ(t.dialogues.boxes.back().title, "Just in case ...");
    EXPECT_EQ(t.dialogues.boxes.back().text,
              "untitled.b50 isn't saved, and once the game is running I won't be here to "
              "ask. So I've put a copy of it here:\n\n    " +
                  copy);
}

TEST(GameClick, ATextThatWasPutAsideIsModifiedAgainWhenTheProgramStaysOpen)
{
    Play t(1);
    t.typeJoystick("Rem");
    t.typeMacro("Fire = f");
    t.dialogues.filesToSave = {std::nullopt, "c:\\tm\\kept.m50"};
    t.array()[1].Click(); // the launch fails
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved) << "this one was saved";
    EXPECT_EQ(t.program().mum.StatusBar.Panels(panel::savedState).Picture, changed::modified + 2);
}

TEST(GameClick, WithoutACopyTheUserMayStayAndNothingIsLaunched)
{
    Play t(2);
    t.typeJoystick("Rem");
    t.dialogues.filesToSave = {std::nullopt};
    t.files.failWrites(t.asideCopy(), RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.answers = {Answer::No};
    t.array()[2].Click();
    EXPECT_TRUE(t.launched.empty());
    EXPECT_THAT(t.captions(), ElementsAre("g1", "g2"));
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.dialogues.boxes.back().title, "Hang on a minute ...");
    EXPECT_EQ(
        t.dialogues.boxes.back().text,
        "untitled.b50 isn't saved, and once the game is running I won't be here to ask. I tried to put a copy of "
        "it into c:\\tarvex\\Recover, but that didn't work either: Disk full\n\nShall I start the game and lose your "
        "text?");
    EXPECT_TRUE(t.dialogues.boxes.back().secondButtonIsDefault);
}

TEST(GameClick, WithoutACopyTheUserMayStartTheGameAllTheSame)
{
    Play t(1);
    t.typeJoystick("Rem");
    t.dialogues.filesToSave = {std::nullopt};
    t.files.failWrites(t.asideCopy(), RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.answers = {Answer::Yes};
    t.array()[1].Click();
    EXPECT_THAT(t.launched, ElementsAre("g1"));
}

TEST(GameClick, AnItemThatIsNoGameDoesNothing)
{
    Play t(1);
    t.typeJoystick("Rem");
    t.array()[0].Click();
    EXPECT_TRUE(t.launched.empty());
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST(EditGames, AsksThePreferencesForTheirPage)
{
    Play t;
    int page = -1;
    t.menus().mnuPreferencesEdit.handler = [&] { page = t.program().shared.PreferencesPage; };
    t.menus().mnuGamesEdit.Click();
    EXPECT_EQ(page, 4);
}

} // namespace
} // namespace tarvex
