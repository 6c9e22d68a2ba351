#include "lists/favourites.h"

#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Pairs of files in c:\tm, and a user who answers the name dialogue.
struct Fav : TestProgram {
    static constexpr const char* joystick = "c:\\tm\\mig.b50";
    static constexpr const char* macro = "c:\\tm\\mig.m50";

    explicit Fav(bool startIt = true) : TestProgram(false)
    {
        for (const char* name : {"mig", "su27"}) {
            files.addFile(std::string("c:\\tm\\") + name + ".b50", "Rem " + std::string(name));
            files.addFile(std::string("c:\\tm\\") + name + ".m50", "Fire = f");
        }
        if (startIt) start();
    }
    Favourites& favourites() { return program().lists.favourites; }
    EnterFavouritename& form() { return favourites().form; }

    /// Names the first `count` favourites n1, n2, ...; their files are those of mig.
    void store(int count)
    {
        setIni("Favourites", "FavArrayNum", std::to_string(count));
        for (int i = 1; i <= count; ++i) {
            setIni("Favourites", "FavName" + std::to_string(i), std::string("n").append(std::to_string(i)));
            setIni("Favourites", "FavJFPath" + std::to_string(i), joystick);
            setIni("Favourites", "FavMFPath" + std::to_string(i), macro);
        }
    }
    /// Adds the present files; an empty name is a cancelled dialogue.
    void add(const std::string& name)
    {
        dialogues.whileModal = [this, name] {
            if (name.empty()) return form().Command2.Click();
            form().Text1.Text = name;
            form().Command1.Click();
        };
        menus().mnuFavouritesAddCurrent.Click();
    }
    std::vector<std::string> captions()
    {
        std::vector<std::string> texts;
        for (int i = 1; i <= menus().mnuFavArray.UBound(); ++i) texts.push_back(menus().mnuFavArray[i].Caption);
        return texts;
    }
    std::string stored(const std::string& key) { return ini("Favourites", key); }
};

TEST(GetFavourites, WithoutFavouritesThePatternIsSeenAndTheMenuStaysEnabled)
{
    Fav t;
    EXPECT_TRUE(t.menus().mnuFavourites.Enabled);
    EXPECT_TRUE(t.menus().mnuFavArray[0].Visible);
    EXPECT_FALSE(t.menus().mnuFavArray[0].Enabled);
    EXPECT_EQ(t.menus().mnuFavArray[0].Caption.get(), "(no favourites yet)");
}

TEST(GetFavourites, TheNamesStandOnTheMenu)
{
    Fav t(false);
    t.store(3);
    t.start();
    EXPECT_THAT(t.captions(), ElementsAre("n1", "n2", "n3"));
    EXPECT_FALSE(t.menus().mnuFavArray[0].Visible);
}

// ---- adding ---------------------------------------------------------------------------------------------------------

TEST(AddFavourite, TwoNewDocumentsAreNothingToAdd)
{
    Fav t;
    t.menus().mnuFavouritesAddCurrent.Click();
    EXPECT_EQ(t.lastBox().title, "Nothing to add!");
    EXPECT_EQ(t.lastBox().text, "Both files have no text!");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_TRUE(t.dialogues.modalForms.empty());
}

TEST(AddFavourite, AJoystickFileThatIsNotOnDiskMustBeSavedFirst)
{
    Fav t;
    t.typeJoystick("Rem");
    t.menus().mnuFavouritesAddCurrent.Click();
    EXPECT_EQ(t.lastBox().title, "Your joystick file isn't saved");
    EXPECT_EQ(t.lastBox().text, "Please save the joystick file first before adding to Favourites");
    EXPECT_TRUE(t.dialogues.modalForms.empty());
}

TEST(AddFavourite, AMacroFileThatIsNotOnDiskMustBeSavedFirst)
{
    Fav t;
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(Fav::joystick);
    t.menus().mnuFavouritesAddCurrent.Click();
    EXPECT_EQ(t.lastBox().title, "Your macro file isn't saved");
    EXPECT_EQ(t.lastBox().text, "Please save the macro file first before adding to Favourites");
    EXPECT_TRUE(t.dialogues.modalForms.empty());
}

TEST(AddFavourite, TheDialogueShowsBothPathsAndAProposal)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.dialogues.whileModal = [&] {
        EXPECT_EQ(t.form().Form.Caption.get(), "Enter a name to add to favourites");
        EXPECT_TRUE(t.form().Form.TopMost);
        EXPECT_EQ(t.form().Label3.Caption.get(), Fav::joystick);
        EXPECT_EQ(t.form().Label5.Caption.get(), Fav::macro);
        EXPECT_EQ(t.form().Text1.Text.get(), "Mig");
        EXPECT_TRUE(t.form().Command1.Enabled);
    };
    t.menus().mnuFavouritesAddCurrent.Click();
    EXPECT_THAT(t.dialogues.modalForms, ElementsAre("EnterFavouritename"));
}

TEST(AddFavourite, TheNameTakenStandsOnTheMenuAndIsStoredAtOnce)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.add(" My Mig ");
    EXPECT_THAT(t.captions(), ElementsAre(" My Mig ")) << "nothing is trimmed";
    EXPECT_EQ(t.stored("FavArrayNum"), "1");
    EXPECT_EQ(t.stored("FavJFPath1"), Fav::joystick);
    EXPECT_EQ(t.stored("FavMFPath1"), Fav::macro);
}

TEST(AddFavourite, AnEmptyNameIsNotTaken)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.dialogues.whileModal = [&] {
        t.form().Form.Visible = true;
        t.form().Text1.Text = "";
        EXPECT_FALSE(t.form().Command1.Enabled);
        t.form().Command1.Click();
        EXPECT_TRUE(t.form().Form.Visible);
        t.form().Text1.Text = "x";
        EXPECT_TRUE(t.form().Command1.Enabled);
        t.form().Command1.Click();
        EXPECT_FALSE(t.form().Form.Visible);
    };
    t.menus().mnuFavouritesAddCurrent.Click();
    EXPECT_THAT(t.captions(), ElementsAre("x"));
}

TEST(AddFavourite, ACancelledDialogueChangesNothingWhenNoFavouriteWasAddedOrOpenedSinceTheStart)
{
    Fav t(false);
    t.store(2);
    t.start();
    t.openBoth("c:\\tm\\su27.b50");
    t.files.clearWrites();
    t.add("");
    EXPECT_THAT(t.captions(), ElementsAre("n1", "n2"));
    EXPECT_THAT(t.settings().FavJFPath, ElementsAre(Fav::joystick, Fav::joystick));
    EXPECT_TRUE(t.files.writes().empty());
}

TEST(AddFavourite, ACancelledDialogueRewritesTheFavouriteAddedEarlierWithThePresentPaths)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.add("Test");
    t.openBoth("c:\\tm\\su27.b50");
    t.add("");
    EXPECT_THAT(t.captions(), ElementsAre("Test"));
    EXPECT_EQ(t.stored("FavJFPath1"), "c:\\tm\\su27.b50");
    EXPECT_EQ(t.stored("FavMFPath1"), "c:\\tm\\su27.m50");
}

TEST(AddFavourite, ACancelledDialogueRewritesTheFavouriteOpenedEarlierWithThePresentPaths)
{
    Fav t(false);
    t.store(3);
    t.start();
    t.menus().mnuFavArray[2].Click();
    t.openBoth("c:\\tm\\su27.b50");
    t.add("");
    EXPECT_THAT(t.captions(), ElementsAre("n2", "n1", "n3"));
    EXPECT_THAT(t.settings().FavJFPath, ElementsAre("c:\\tm\\su27.b50", Fav::joystick, Fav::joystick));
}

TEST(AddFavourite, AddingANameTwiceReplacesTheEntrysFilesAndMovesItToTheTop)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.add("a");
    t.add("b");
    t.openBoth("c:\\tm\\su27.b50");
    t.add("a");
    EXPECT_THAT(t.captions(), ElementsAre("a", "b"));
    EXPECT_THAT(t.settings().FavJFPath, ElementsAre("c:\\tm\\su27.b50", Fav::joystick));
    EXPECT_THAT(t.settings().FavMFPath, ElementsAre("c:\\tm\\su27.m50", Fav::macro));
}

TEST(AddFavourite, WithThirtyEntriesANewNameDropsEntryThirty)
{
    Fav t(false);
    t.store(30);
    t.start();
    t.openBoth(Fav::joystick);
    t.add("new");
    EXPECT_EQ(t.captions().size(), 30U);
    EXPECT_EQ(t.captions().front(), "new");
    EXPECT_EQ(t.captions().back(), "n29");
    EXPECT_EQ(t.stored("FavArrayNum"), "30");
    EXPECT_EQ(t.stored("FavName30"), "n29");
}

TEST(AddFavourite, WithTwentyNineEntriesANewNameStillFits)
{
    Fav t(false);
    t.store(29);
    t.start();
    t.openBoth(Fav::joystick);
    t.add("new");
    EXPECT_EQ(t.captions().size(), 30U);
    EXPECT_EQ(t.captions().back(), "n29");
}

TEST(AddFavourite, NamesAreComparedExactlySoTestAndtestAreTwoFavourites)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.add("Test");
    t.add("test");
    EXPECT_THAT(t.captions(), ElementsAre("test", "Test"));
    EXPECT_EQ(IsFavOnMenuAlready(t.favourites(), "Test"), -1);
    EXPECT_EQ(IsFavOnMenuAlready(t.favourites(), "TEST"), 0);
}

TEST(AddFavourite, ThePathsAreStoredInLowerCase)
{
    Fav t;
    t.favourites().current = {"Name", "C:\\TM\\MIG.B50", "C:\\TM\\MIG.M50"};
    UpdateFavouritesMenu(t.favourites());
    EXPECT_EQ(t.stored("FavName1"), "Name");
    EXPECT_EQ(t.stored("FavJFPath1"), Fav::joystick);
    EXPECT_EQ(t.favourites().current.macroPath, Fav::macro);
}

TEST(AddFavourite, OfSeveralOfANameTheLastTakesThePaths)
{
    Fav t(false);
    t.store(4);
    t.setIni("Favourites", "FavName4", "n2");
    t.start();
    t.openBoth("c:\\tm\\su27.b50");
    t.add("n2");
    EXPECT_THAT(t.captions(), ElementsAre("n2", "n1", "n2", "n3"));
    EXPECT_EQ(t.settings().FavJFPath[0], "c:\\tm\\su27.b50");
    EXPECT_EQ(t.settings().FavJFPath[2], Fav::joystick);
}

TEST(AddFavourite, ANameWithLineBreaksDoesNotBreakTheSettings)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.add("odd\r\n[Evil]\r\nx=1");
    EXPECT_EQ(t.ini("Evil", "x"), "(none)");
    EXPECT_EQ(t.stored("FavName1"), "odd");
    EXPECT_EQ(t.stored("FavJFPath1"), Fav::joystick);
}

TEST(AddFavourite, WithSettingsThatCannotBeWrittenTheMenuStillFollows)
{
    Fav t;
    t.openBoth(Fav::joystick);
    t.files.setReadOnly(TestMachine::iniPath);
    t.add("Test");
    EXPECT_THAT(t.captions(), ElementsAre("Test"));
    EXPECT_EQ(t.stored("FavName1"), "(none)");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(ProposedName, IsTheBareFileNameWithACapital)
{
    EXPECT_EQ(proposedName("c:\\tm\\f22adf.f22"), "F22adf");
    EXPECT_EQ(proposedName("c:\\tm\\MIG.B50"), "Mig");
    EXPECT_EQ(proposedName("c:\\tm\\\u00E4\u00D6.b50"), "\u00C4\u00F6");
    EXPECT_EQ(proposedName("mig.b50"), "Mig");
}

TEST(ProposedName, AFileNameShorterThanFourCharactersGivesAnEmptyOrCutProposal)
{
    EXPECT_EQ(proposedName("c:\\tm\\a.b"), "");
    EXPECT_EQ(proposedName("c:\\tm\\.b50"), "");
    EXPECT_EQ(proposedName("c:\\tm\\mig.f"), "M");
    EXPECT_EQ(proposedName("c:\\tm\\"), "");
    EXPECT_EQ(proposedName(""), "");
}

// ---- opening --------------------------------------------------------------------------------------------------------

TEST(OpenFavourite, BothFilesAreOpenedTheMacroFileFirst)
{
    Fav t(false);
    t.store(1);
    t.start();
    std::vector<std::string> opened;
    t.program().operations.NoteLatestMacroFile = [&](const std::string& path) { opened.push_back(path); };
    t.program().operations.NoteLatestJoystickFile = [&](const std::string& path) { opened.push_back(path); };
    t.menus().mnuFavArray[1].Click();
    EXPECT_THAT(opened, ElementsAre(Fav::macro, Fav::joystick));
    EXPECT_EQ(t.editor().joystick.FilePath, Fav::joystick);
    EXPECT_EQ(t.editor().macro.FilePath, Fav::macro);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.editor().OpeningWithoutAsking, 0);
    EXPECT_TRUE(t.dialogues.openRequests.empty());
}

TEST(OpenFavourite, ItMovesToTheTopAndTheChangeIsWrittenAtOnce)
{
    Fav t(false);
    t.store(3);
    t.start();
    t.menus().mnuFavArray[3].Click();
    EXPECT_THAT(t.captions(), ElementsAre("n3", "n1", "n2"));
    EXPECT_EQ(t.stored("FavName1"), "n3");
    EXPECT_EQ(t.stored("FavName3"), "n2");
}

TEST(OpenFavourite, TheArrayDecidesAndNotTheCaption)
{
    Fav t(false);
    t.store(2);
    t.start();
    t.settings().FavName[1] = "renamed";
    t.menus().mnuFavArray[2].Click();
    EXPECT_EQ(t.favourites().current.name, "renamed");
}

TEST(OpenFavourite, MacrosUsedAreIdentifiedOnlyWhenTheOptionIsOn)
{
    Fav t(false);
    t.store(1);
    t.start();
    int identified = 0;
    t.program().operations.IdentifyMacrosUsed = [&] { ++identified; };
    t.menus().mnuFavArray[1].Click();
    EXPECT_EQ(identified, 1);
    t.settings().CheckIdentifyOK = 0;
    t.menus().mnuFavArray[1].Click();
    EXPECT_EQ(identified, 1);
}

TEST(OpenFavourite, ExtensionsAreCaseSensitiveSoAMacroFileNamedXM22OpensAsAJoystickFile)
{
    Fav t;
    t.files.addFile("c:\\tm\\X.M22", "Fire = f");
    OpenFavouriteFile(t.favourites(), "c:\\tm\\X.M22");
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\x.m22");
    EXPECT_EQ(t.editor().macro.FileName, "untitled.m50");
    OpenFavouriteFile(t.favourites(), "c:\\tm\\x.m22");
    EXPECT_EQ(t.editor().macro.FilePath, "c:\\tm\\x.m22");
}

TEST(OpenFavourite, AllThreeMacroExtensionsOpenAsMacroFiles)
{
    Fav t;
    for (const std::string name : {"c:\\tm\\a.m22", "c:\\tm\\a.m50", "c:\\tm\\a.mdf"}) {
        t.files.addFile(name, "Fire = f");
        OpenFavouriteFile(t.favourites(), name);
        EXPECT_EQ(t.editor().macro.FilePath, name);
    }
    OpenFavouriteFile(t.favourites(), Fav::joystick);
    EXPECT_EQ(t.editor().joystick.FilePath, Fav::joystick);
}

TEST(OpenFavourite, AFavouriteWhoseFilesAreGoneIsReportedForEachAndTheDocumentsStay)
{
    Fav t(false);
    t.store(1);
    t.start();
    t.files.removeFile(Fav::joystick);
    t.files.removeFile(Fav::macro);
    t.menus().mnuFavArray[1].Click();
    ASSERT_GE(t.dialogues.boxes.size(), 2U);
    EXPECT_NE(t.dialogues.boxes[0].text.find("mig.m50"), std::string::npos);
    EXPECT_NE(t.dialogues.boxes[1].text.find("mig.b50"), std::string::npos);
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.editor().OpeningWithoutAsking, 0);
}

TEST(OpenFavourite, UnsavedTextIsAskedAboutFirst)
{
    Fav t(false);
    t.store(1);
    t.start();
    t.typeMacro("x");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuFavArray[1].Click();
    EXPECT_EQ(t.editor().macro.FileName, "untitled.m50");
    EXPECT_EQ(t.editor().joystick.FilePath, Fav::joystick);
}

TEST(OpenFavourite, AtTheStartTheMarkedOneIsOpenedTheLastOfItsName)
{
    Fav t(false);
    t.store(3);
    t.setIni("Favourites", "FavName3", "n1");
    t.setIni("Favourites", "FavJFPath3", "c:\\tm\\su27.b50");
    t.setIni("Favourites", "FavLoadOnStart", "1");
    t.setIni("Favourites", "FavNameToLoad", "n1");
    t.start();
    EXPECT_EQ(t.editor().joystick.FilePath, "c:\\tm\\su27.b50");
    EXPECT_EQ(t.editor().macro.FilePath, Fav::macro);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST(EditFavourites, AsksThePreferencesForTheirPage)
{
    Fav t;
    int page = -1;
    t.menus().mnuPreferencesEdit.handler = [&] { page = t.program().shared.PreferencesPage; };
    t.menus().mnuFavsEdit.Click();
    EXPECT_EQ(page, 3);
}

/// Two favourites whose paths are cut alike; their files are on a disk that comes and goes.
struct LongFav : Fav {
    LongFav() : Fav(false)
    {
        store(2);
        for (const std::string n : {"1", "2"}) {
            setIni("Favourites", "FavJFPath" + n, path(n, "b50"));
            setIni("Favourites", "FavMFPath" + n, path(n, "m50"));
        }
    }
    static std::string path(const std::string& name, const std::string& extension)
    {
        return "d:\\" + std::string(110, 'x') + "\\" + name + "." + extension;
    }
    void mount(const std::string& name)
    {
        files.addFile(path(name, "b50"), "Rem " + name);
        files.addFile(path(name, "m50"), "Fire = f");
    }
};

TEST(OpenFavourite, WithPathsThatWereCutKeepsThemWholeInTheSettings)
{
    LongFav t;
    t.start();
    t.menus().mnuFavArray[2].Click();
    EXPECT_THAT(t.captions(), ElementsAre("n2", "n1"));
    EXPECT_EQ(t.stored("FavJFPath1"), LongFav::path("2", "b50"));
    EXPECT_EQ(t.stored("FavMFPath1"), LongFav::path("2", "m50"));
    EXPECT_EQ(t.stored("FavJFPath2"), LongFav::path("1", "b50"));
    EXPECT_EQ(t.stored("FavMFPath2"), LongFav::path("1", "m50"));
}

TEST(OpenFavourite, WithPathsThatWereCutOpensTheWholeOnes)
{
    LongFav t;
    t.start();
    t.mount("2");
    t.files.addFile(LongFav::path("2", "b50").substr(0, 99), "wrong");
    t.menus().mnuFavArray[2].Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "Rem 2");
    EXPECT_EQ(t.editor().joystick.FilePath, LongFav::path("2", "b50"));
    EXPECT_EQ(t.editor().macro.FilePath, LongFav::path("2", "m50"));
}

TEST(FavouriteForm, WithoutANameItCannotBeAdded)
{
    Fav t;
    FAV_Form_Load(t.form(), "Mig");
    EXPECT_TRUE(t.form().Command1.Enabled);
    FAV_Form_Load(t.form(), "");
    EXPECT_FALSE(t.form().Command1.Enabled);
    t.form().Text1.Text = "x";
    EXPECT_TRUE(t.form().Command1.Enabled);
    int selected = 0;
    const Connection whole = t.form().Text1.selectAllWanted.connect([&selected] { ++selected; });
    t.form().Text1.GotFocus();
    EXPECT_EQ(selected, 1);
}

TEST(FavouriteMenus, AreThereAsSoonAsThereIsAnEntry)
{
    Fav t;
    t.menus().mnuFavourites.Enabled = false;
    t.menus().mnuGames.Enabled = false;
    t.favourites().current = {"mig", Fav::joystick, Fav::macro};
    UpdateFavouritesMenu(t.favourites());
    EXPECT_TRUE(t.menus().mnuFavourites.Enabled);
    t.program().lists.games.current.name = "f22";
    UpdateGamesMenu(t.program().lists.games);
    EXPECT_TRUE(t.menus().mnuGames.Enabled);
}

TEST(FavouriteMenus, HaveAnEntryForEachOneThatIsCounted)
{
    Fav t;
    t.settings().FavArrayNum = 3;
    AddmnuFavouritesArray(t.favourites());
    EXPECT_EQ(t.settings().FavMFPath.size(), 3U);
    EXPECT_EQ(t.menus().mnuFavArray.UBound(), 3);
    t.settings().GameArrayNum = 2;
    AddmnuGamesArray(t.program().lists.games);
    EXPECT_EQ(t.settings().GamePath.size(), 2U);
    EXPECT_EQ(t.menus().mnuGameArray.UBound(), 2);
}

TEST(FavouriteForm, ThatComesUpWithoutAProposalWaitsForAName)
{
    ErrorRecord errors;
    Favourite current;
    EnterFavouritename form(errors, current);
    FAV_Form_Load(form, "");
    EXPECT_FALSE(form.Command1.Enabled);
    form.Text1.Text = "m";
    EXPECT_TRUE(form.Command1.Enabled);
}

} // namespace
} // namespace tarvex
