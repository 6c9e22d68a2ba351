#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* reallyNeeded =
    " program is in this path and I really do need to know where to find it. I could be really intelligent here and go "
    "and find the file myself, but let's face facts, I'm just a humble lazy computer, and I'd rather be on a beach "
    "somewhere than running this Tarvex rubbish.";
constexpr const char* pathNeeded = "You need to enter the path in preferences for the Thrustmaster Control Centre";

struct Tools : TestProgram {
    explicit Tools(const std::string& controlCentre = "c:\\tm\\tm.bat")
    {
        settings().CandCCPath = controlCentre;
        dialogues.boxes.clear();
    }
    std::string started()
    {
        if (processes.starts.empty()) return "(nothing)";
        const FakeProcesses::Start& start = processes.starts.back();
        EXPECT_FALSE(start.waitedFor);
        return start.commandLine + "|" + std::to_string(start.style) + "|" + start.directory;
    }
    std::string directory() { return program().shared.currentDirectory.path(); }
    ErrorRecord& errors() { return program().shared.errors; }
};

TEST(ControlCentreTools, AreStartedInTheirFolderWithANormalWindow)
{
    const std::pair<MenuItem Menus::*, std::string> tools[] = {
        {&Menus::mnuAppsCandCC, "c:\\tm\\tm.bat"},     {&Menus::mnuF22Setup, "c:\\tm\\f22setup.exe"},
        {&Menus::mnuF22Clear, "c:\\tm\\f22clear.exe"}, {&Menus::mnuF22Reset, "c:\\tm\\f22reset.exe"},
        {&Menus::mnuF22Delay, "c:\\tm\\f22dly2.exe"},
    };
    for (const auto& [item, path] : tools) {
        Tools t;
        (t.menus().*item).Click();
        EXPECT_EQ(t.started(), path + "|1|c:\\tm");
        EXPECT_EQ(t.directory(), "c:\\tm") << "the current directory stays changed after each launch";
        EXPECT_TRUE(t.dialogues.boxes.empty());
    }
}

TEST(ControlCentreTools, WithoutAPathSayWhatTheyNeed)
{
    const std::pair<MenuItem Menus::*, std::string> tools[] = {
        {&Menus::mnuAppsCandCC, pathNeeded},
        {&Menus::mnuAppsTMScope, pathNeeded},
        {&Menus::mnuF22Setup, std::string(pathNeeded) + ", as the Setup" + reallyNeeded},
        {&Menus::mnuF22Clear, std::string(pathNeeded) + ", as the f22clear" + reallyNeeded},
        {&Menus::mnuF22Reset, std::string(pathNeeded) + ", as the F22Reset" + reallyNeeded},
        {&Menus::mnuF22Delay, std::string(pathNeeded) + ", as the F22dly2" + reallyNeeded},
    };
    for (const auto& [item, text] : tools) {
        Tools t("");
        const std::string before = t.directory();
        (t.menus().*item).Click();
        EXPECT_EQ(t.started(), "(nothing)");
        EXPECT_EQ(t.lastBox().title, "Where is it?");
        EXPECT_EQ(t.lastBox().text, text);
        EXPECT_EQ(t.directory(), before);
    }
}

TEST(ControlCentreTools, APathThatIsSetButWrongStartsNothingAndShowsNothing)
{
    const std::pair<MenuItem Menus::*, std::string> tools[] = {
        {&Menus::mnuAppsCandCC, "ED_mnuAppsCandCC_Click"}, {&Menus::mnuF22Setup, "mnuF22Setup_Click"},
        {&Menus::mnuF22Clear, "ED_mnuF22Clear_Click"},     {&Menus::mnuF22Reset, "ED_mnuF22Reset_Click"},
        {&Menus::mnuF22Delay, "ED_mnuF22Delay_Click"},
    };
    for (const auto& [item, tag] : tools) {
        Tools t("c:\\gone\\tm.bat");
        t.processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
        (t.menus().*item).Click();
        EXPECT_TRUE(t.dialogues.boxes.empty()) << tag;
        EXPECT_EQ(t.errors().ErrorProcedure, tag);
        EXPECT_EQ(t.errors().ErrorNumber, 53);
    }
}

TEST(TMScope, IsStartedMaximisedUnderEitherName)
{
    Tools t;
    t.files.addFile("c:\\tm\\tms.exe", "");
    t.menus().mnuAppsTMScope.Click();
    EXPECT_EQ(t.started(), "c:\\tm\\tms.exe|3|c:\\tm");
    t.files.addFile("c:\\tm\\tmscope.exe", "");
    t.menus().mnuAppsTMScope.Click();
    EXPECT_EQ(t.started(), "c:\\tm\\tmscope.exe|3|c:\\tm");
}

TEST(TMScope, WhenMissingIsReportedWithTheFolderWhereItWasExpected)
{
    Tools t("c:\\gone\\tm.bat");
    t.menus().mnuAppsTMScope.Click();
    EXPECT_EQ(t.started(), "(nothing)");
    EXPECT_EQ(t.lastBox().title, "Couldn't find TMScope");
    EXPECT_EQ(
        t.lastBox().text,
        "I couldn't find TMScope which should be located here: c:\\gone\\. Goto your preferences and make sure "
        "you've entered the correct path for the Thrustmaster Control Centre because tms.exe should be in the same "
        "directory. You've told me that this is: c:\\gone\\tm.bat");
}

TEST(TMScope, ThatDoesNotStartIsRecordedAndShowsNothing)
{
    Tools t;
    t.files.addFile("c:\\tm\\tms.exe", "");
    t.processes.failure = RuntimeError(ErrorCode::PermissionDenied, "Permission denied");
    t.menus().mnuAppsTMScope.Click();
    EXPECT_EQ(t.errors().ErrorProcedure, "ED_mnuAppsTMScope_Click");
    EXPECT_EQ(t.errors().ErrorNumber, 70);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(ProPanel, TheMakersAppletComesBeforeThatOfTheSystem)
{
    Tools t;
    t.files.addFile("c:\\windows\\system\\joy.cpl", "");
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "c:\\windows\\control.exe c:\\windows\\system\\joy.cpl|1|c:\\");
    t.files.addFile("c:\\windows\\system\\tm.cpl", "");
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "c:\\windows\\control.exe c:\\windows\\system\\tm.cpl|1|c:\\");
    EXPECT_EQ(t.directory(), "c:\\");
}

TEST(ProPanel, OnANewerSystemItsAppletsAreInTheOtherFolder)
{
    Tools t;
    t.files.addFile("c:\\windows\\system32\\joy.cpl", "");
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "c:\\windows\\control.exe c:\\windows\\system32\\joy.cpl|1|c:\\");
    t.files.addFile("c:\\windows\\system32\\tm.cpl", "");
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "c:\\windows\\control.exe c:\\windows\\system32\\tm.cpl|1|c:\\");
    t.files.addFile("c:\\windows\\system\\tm.cpl", "");
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "c:\\windows\\control.exe c:\\windows\\system\\tm.cpl|1|c:\\");
}

TEST(ProPanel, WithoutAnAppletReportsWhereItWasExpected)
{
    Tools t;
    t.menus().mnuAppsProPanel.Click();
    EXPECT_EQ(t.started(), "(nothing)");
    EXPECT_EQ(t.lastBox().title, "Couldn't find ProPanel or Game Controllers");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(t.lastBox().text,
              "I'm afraid I couldn't find Thrustmaster's ProPanel or Windows Game Controllers on your system. The "
              "latter should be located here: c:\\windows\\system\\joy.cpl. If you haven't done so already, I suggest "
              "you download ProPanel from the Thrustmaster website and install it.");
}

TEST(Ctfj, WithoutAPathSaysSoAndOpensThePreferences)
{
    Tools t;
    int opened = 0;
    t.menus().mnuPreferencesEdit.handler = [&] { ++opened; };
    t.menus().mnuAppsCTFJ.Click();
    EXPECT_EQ(t.lastBox().title, "Where is CTFJ on your hard disk?");
    EXPECT_EQ(t.lastBox().text,
              "You need to enter the path in preferences for whichever version of CTFJ you have on your system. I'll "
              "take you there now.");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(t.started(), "(nothing)");
}

TEST(Ctfj, AtAWrongPathSaysSoAndOpensThePreferences)
{
    Tools t;
    int opened = 0;
    t.menus().mnuPreferencesEdit.handler = [&] { ++opened; };
    t.settings().CTFJPath = "c:\\gone\\ctfj.exe";
    t.menus().mnuAppsCTFJ.Click();
    EXPECT_EQ(t.lastBox().title, "Where is CTFJ on your hard disk?");
    EXPECT_EQ(
        t.lastBox().text,
        "You need to enter the correct path in preferences for whichever version of CTFJ you have on your system. "
        "At the moment, you have told me it is located here: c:\\gone\\ctfj.exe, and I can't find it there! I'll "
        "take you to the Preferences window now.");
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(t.started(), "(nothing)");
}

TEST(Ctfj, IsStartedInTheRootOfItsDrive)
{
    Tools t;
    t.files.addFile("d:\\ctfj\\ctfj.exe", "");
    t.settings().CTFJPath = "d:\\ctfj\\ctfj.exe";
    t.menus().mnuAppsCTFJ.Click();
    EXPECT_EQ(t.started(), "d:\\ctfj\\ctfj.exe|1|d:\\");
}

TEST(Launcher, IsStartedInTheProgramsFolder)
{
    Tools t;
    t.files.addFile("c:\\tarvex\\Launcher.exe", "");
    t.program().shared.currentDirectory.ChDir("c:\\tm");
    t.menus().mnuLauncher.Click();
    EXPECT_EQ(t.started(), "c:\\tarvex\\Launcher.exe|1|c:\\tarvex");
}

TEST(Launcher, WhenMissingIsReported)
{
    Tools t;
    t.menus().mnuLauncher.Click();
    EXPECT_EQ(t.started(), "(nothing)");
    EXPECT_EQ(t.lastBox().title, "Where is it?");
    EXPECT_EQ(t.lastBox().text, "I couldn't find the Launcher - it should be in the same directory as Tarvex.exe. What "
                                "have you done with it? ");
}

TEST(CustomApp, IsStartedAsItStandsInTheRootOfItsDrive)
{
    Tools t;
    t.settings().CustomAppPath = {"c:\\one.exe", "c:\\tools\\two.exe -x", "", ""};
    t.menus().mnuCustomApp[1].Click();
    EXPECT_EQ(t.started(), "c:\\tools\\two.exe -x|1|c:\\");
}

TEST(CustomApp, ThatDoesNotStartIsRecordedAndShowsNothing)
{
    Tools t;
    t.settings().CustomAppPath = {"c:\\one.exe", "", "", ""};
    t.processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
    t.menus().mnuCustomApp[0].Click();
    EXPECT_EQ(t.errors().ErrorProcedure, "ED_mnuCustomApp_Click");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(AppsEdit, OpensThePreferencesAtTheirPage)
{
    Tools t;
    int opened = 0;
    t.menus().mnuPreferencesEdit.handler = [&] { ++opened; };
    t.menus().mnuAppsEdit.Click();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(t.program().shared.PreferencesPage, 2);
}

} // namespace
} // namespace tarvex
