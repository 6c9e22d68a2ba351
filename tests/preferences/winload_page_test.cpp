#include "preferences_fixture.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct WinLoadPageTest : testing::Test, PreferencesProgram {
    WinLoadPageTest() { settings().B50LoadPath = "c:\\tm\\winld.exe"; }
    WinLoadPage& page() { return preferences().winLoadPage; }
    std::string shown() { return page().WinLoadLabel.Caption; }
    void chooseMouse(int kind, int entry)
    {
        page().OptionMouse.at(static_cast<std::size_t>(kind)).Click();
        ListBox& list = page().MouseList.at(static_cast<std::size_t>(kind));
        list.ListIndex = entry;
        list.Click();
    }
};

TEST_F(WinLoadPageTest, WithoutAnyOptionTheStringIsOneBlank)
{
    inPreferences([this] { EXPECT_EQ(shown(), " "); });
    EXPECT_EQ(settings().WinLoadString, " ");
}

TEST_F(WinLoadPageTest, ThePiecesStandInTheirOrderEachBehindOneBlank)
{
    inPreferences([this] {
        page().ExtraText.Text = "/X";
        page().CheckUseBlanker.Value = true;
        page().CheckUseBlanker.Click();
        chooseMouse(1, 5);
        page().WinLoadThrottle[0].Click();
        EXPECT_EQ(shown(), " /TQS /B6 /NB /X");
    });
    EXPECT_EQ(ini("WinLoad", "WinLoadString"), "/TQS /B6 /NB /X") << "the profile call drops the blank before it";
    EXPECT_EQ(ini("WinLoad", "WinLoadExtra"), "/X") << "without its blank";
    EXPECT_EQ(ini("WinLoad", "WinLoadMouse"), "1");
    EXPECT_EQ(ini("WinLoad", "WinLoadMouseType"), "5");
    EXPECT_EQ(ini("WinLoad", "WinLoadBlanker"), "1");
    EXPECT_EQ(ini("WinLoad", "WinLoadThr"), "0");
}

TEST_F(WinLoadPageTest, EveryMouseNamesTheStatementsOfItsButtons)
{
    const char* const expected[3][10] = {{"T1 n/a T6", "T6 n/a T1", "T1 n/a n/a", "T6 n/a n/a", "n/a n/a n/a"},
                                         {"T1 T6 n/a", "T6 T1 n/a", "T1 n/a n/a", "T6 n/a n/a", "n/a n/a n/a",
                                          "T1 T6 T3", "T6 T1 T3", "T1 n/a T3", "T6 n/a T3", "n/a n/a T3"},
                                         {"T1 T6 n/a", "T6 T1 n/a", "T1 n/a n/a", "T6 n/a n/a", "n/a n/a n/a",
                                          "T1 T6 T3", "T6 T1 T3", "T1 n/a T3", "T6 n/a T3", "n/a n/a T3"}};
    inPreferences([&] {
        for (int kind = 0; kind < 3; ++kind) {
            const auto names = page().MouseList.at(static_cast<std::size_t>(kind)).Items.get();
            ASSERT_EQ(names.size(), kind == 0 ? 5U : 10U);
            for (std::size_t entry = 0; entry < names.size(); ++entry) {
                chooseMouse(kind, static_cast<int>(entry));
                const auto& labels = page().Label5;
                EXPECT_EQ(labels[0].Caption.get() + " " + labels[1].Caption.get() + " " + labels[2].Caption.get(),
                          expected[kind][entry])
                    << names[entry];
                EXPECT_EQ(shown(), " /" + names[entry] + " ");
            }
        }
    });
}

TEST_F(WinLoadPageTest, NoMouseHidesTheListsAndDropsThePiece)
{
    inPreferences([this] {
        chooseMouse(0, 2);
        EXPECT_TRUE(page().FrameMouseVisible);
        page().OptionMouse[3].Click();
        EXPECT_FALSE(page().FrameMouseVisible);
        EXPECT_EQ(shown(), " ");
    });
}

TEST_F(WinLoadPageTest, AMouseTypeBeyondItsListLeavesThePieceAsItWas)
{
    setIni("WinLoad", "WinLoadMouse", "0");
    setIni("WinLoad", "WinLoadMouseType", "12");
    inPreferences([this] {
        EXPECT_EQ(shown(), " ");
        EXPECT_TRUE(page().OptionMouse[0].Value);
        EXPECT_EQ(page().MouseList[0].ListIndex, -1);
    });
    EXPECT_EQ(ini("WinLoad", "WinLoadMouseType"), "12") << "nothing was chosen in its place";
}

TEST_F(WinLoadPageTest, TheTypesOfAMouseEndWithItsList)
{
    const auto chosenAtStart = [this](const char* mouse, const char* type) {
        setIni("WinLoad", "WinLoadMouse", mouse);
        setIni("WinLoad", "WinLoadMouseType", type);
        start();
        int chosen = -2;
        inPreferences([&] { chosen = page().MouseList[static_cast<std::size_t>(*mouse - '0')].ListIndex; });
        return chosen;
    };
    EXPECT_EQ(chosenAtStart("0", "4"), 4);
    EXPECT_EQ(chosenAtStart("0", "5"), -1);
    EXPECT_EQ(program().shared.errors.ErrorDescription, "Invalid property value");
    EXPECT_EQ(chosenAtStart("1", "9"), 9);
    EXPECT_EQ(chosenAtStart("1", "10"), -1);
    EXPECT_EQ(chosenAtStart("2", "0"), 0);
    EXPECT_EQ(chosenAtStart("2", "-1"), -1);
}

TEST_F(WinLoadPageTest, OptionsComeBackAsTheyWereLeft)
{
    inPreferences([this] {
        chooseMouse(2, 9);
        page().WinLoadThrottle[1].Click();
        page().CheckApplyWinLoad.Value = true;
        page().CheckApplyWinLoad.Click();
        EXPECT_EQ(settings().WinLoadUse, 1) << "at once";
    });
    start();
    inPreferences([this] {
        EXPECT_EQ(shown(), " /WCS /C10 ");
        EXPECT_TRUE(page().CheckApplyWinLoad.Value);
        EXPECT_TRUE(page().MouseList[2].Visible);
        EXPECT_FALSE(page().MouseList[1].Visible);
    });
}

TEST_F(WinLoadPageTest, NothingIsWrittenWithoutALoader)
{
    settings().B50LoadPath = "";
    inPreferences([this] { page().WinLoadThrottle[0].Click(); });
    EXPECT_EQ(ini("WinLoad", "WinLoadThr"), "(none)");
}

TEST_F(WinLoadPageTest, ThePageIsForWinLoadOnlyWithRegardToCase)
{
    inPreferences([this] {
        SSTab::Page& sticky = preferences().SSTab1.Pages(Preferences::winLoad);
        EXPECT_TRUE(sticky.Enabled);
        EXPECT_EQ(preferences().fileLocationsPage.LoaderLabel.Caption.get(), "Compiler (do not add the /CO)");
        preferences().fileLocationsPage.Text1.Text = "c:\\tm\\WINLD.EXE";
        EXPECT_FALSE(sticky.Enabled);
        EXPECT_EQ(preferences().fileLocationsPage.LoaderLabel.Caption.get(), "Compiler");
    });
}

TEST_F(WinLoadPageTest, HelpOnThePageShowsWinLoadsOwnHelpWhereThereIsSuchAFile)
{
    files.write("c:\\tarvex\\sticky.hlp", "?");
    inPreferences([this] {
        preferences().SSTab1.Tab = Preferences::winLoad;
        preferences().Command6.Click();
        ASSERT_EQ(processes.starts.size(), 1U);
        EXPECT_EQ(processes.starts[0].commandLine, "c:\\windows\\winhlp32.exe c:\\tarvex\\sticky.hlp");
        EXPECT_TRUE(dialogues.boxes.empty());
        processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
        preferences().Command6.Click();
        EXPECT_EQ(lastBox().title, "See Ned's ReadMe.txt file");
    });
}

TEST_F(WinLoadPageTest, HelpOnThePageSendsTheUserToTheReadMe)
{
    inPreferences([this] {
        preferences().SSTab1.Tab = Preferences::winLoad;
        preferences().Command6.Click();
    });
    EXPECT_EQ(lastBox().title, "See Ned's ReadMe.txt file");
    EXPECT_EQ(lastBox().text,
              "There is no help in the help file for the Sticky tab. You should instead refer to the "
              "ReadMe.txt file distributed with WinLoad for an explaination of the options on this tab.");
}

// ---- loaders used before
// ------------------------------------------------------------------------------------------------

struct PreviousLoadersTest : testing::Test, PreferencesProgram {
    FileLocationsPage& page() { return preferences().fileLocationsPage; }
    std::string stored(const std::string& key)
    {
        return ProfileFile(files, "c:\\tarvex\\Lists.ini").readString("Loaders", key, "(none)");
    }
    void browseTo(const std::string& path)
    {
        dialogues.filesToOpen.emplace_back(path);
        page().Command1.Click();
    }
};

TEST_F(PreviousLoadersTest, ALoaderChosenTwiceIsListedOnce)
{
    settings().B50LoadPath = "c:\\tm\\b50load.exe";
    inPreferences([this] {
        browseTo("c:\\tm\\winld.exe");
        browseTo("c:\\tm\\b50load.exe");
        browseTo("c:\\tm\\winld.exe");
        EXPECT_EQ(page().Text1.Items.get(), (std::vector<std::string>{"c:\\tm\\b50load.exe", "c:\\tm\\winld.exe"}));
    });
    EXPECT_EQ(stored("NumPreviousLoaders"), "2");
    EXPECT_EQ(stored("Loader2"), "c:\\tm\\winld.exe");
}

TEST_F(PreviousLoadersTest, TheSamePathInAnotherCaseIsListedTwice)
{
    settings().B50LoadPath = "c:\\tm\\b50load.exe";
    inPreferences([this] { browseTo("C:\\TM\\B50LOAD.EXE"); });
    EXPECT_EQ(stored("Loader1"), "c:\\tm\\b50load.exe");
    EXPECT_EQ(stored("Loader2"), "C:\\TM\\B50LOAD.EXE");
    EXPECT_EQ(settings().B50LoadPath, "c:\\tm\\b50load.exe") << "in lower case when the dialogue closes";
}

TEST_F(PreviousLoadersTest, TheDialogueIsNamedInTheStatusAndStartsInTheLoadersFolder)
{
    settings().B50LoadPath = "c:\\tm\\b50load.exe";
    inPreferences([this] {
        dialogues.filesToOpen.emplace_back(std::nullopt);
        page().Command1.Click();
        EXPECT_EQ(page().Text1.Text.get(), "c:\\tm\\b50load.exe") << "a cancel changes nothing";
        EXPECT_EQ(status(), "Locate Thrustmaster file");
    });
    const FileRequest& request = dialogues.openRequests.back();
    EXPECT_EQ(request.title, "Locate Thrustmaster file");
    EXPECT_EQ(request.filter, "Executables (*.exe)|*.exe|All files (*.*)|*.*");
    EXPECT_EQ(request.directory, "c:\\tm\\");
}

TEST_F(PreviousLoadersTest, WithoutALoaderThereIsNothingToList)
{
    settings().B50LoadPath = "";
    inPreferences([] {});
    EXPECT_EQ(stored("NumPreviousLoaders"), "(none)");
}

TEST_F(WinLoadPageTest, TheFirstTypeOfAMouseIsKeptInPlaceOfAnother)
{
    inPreferences([this] { chooseMouse(0, 3); });
    inPreferences([this] { chooseMouse(0, 0); });
    EXPECT_EQ(settings().WinLoadMouseType, 0);
    EXPECT_EQ(ini("WinLoad", "WinLoadMouseType"), "0");
}

TEST_F(WinLoadPageTest, AMouseThatIsChosenAgainBringsItsTypeBack)
{
    inPreferences([this] {
        chooseMouse(0, 1);
        const std::string first = shown();
        chooseMouse(1, 2);
        EXPECT_NE(shown(), first);
        page().OptionMouse[0].Click();
        EXPECT_EQ(shown(), first);
        chooseMouse(0, 0);
        const std::string firstType = shown();
        page().OptionMouse[1].Click();
        EXPECT_NE(shown(), firstType);
        page().OptionMouse[0].Click();
        EXPECT_EQ(shown(), firstType);
    });
}

TEST_F(PreviousLoadersTest, ALoaderThatIsNotInTheListComesIntoItWhenTheDialogueCloses)
{
    ProfileFile lists(files, "c:\\tarvex\\Lists.ini");
    lists.writeString("Loaders", "NumPreviousLoaders", "1");
    lists.writeString("Loaders", "Loader1", "c:\\other.exe");
    start();
    settings().B50LoadPath = "c:\\tm\\b50load.exe";
    inPreferences([this] { EXPECT_EQ(page().Text1.Items.get(), std::vector<std::string>{"c:\\other.exe"}); });
    EXPECT_EQ(stored("Loader2"), "c:\\tm\\b50load.exe");
}

} // namespace
} // namespace tarvex
