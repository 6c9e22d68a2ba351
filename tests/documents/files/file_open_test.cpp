#include "documents/files/file_open.h"

#include "documents/files/open_fixture.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

using testing::Contains;

TEST_F(OpenTest, OpenJoystickAsksInTheProgramsFolderWithItsFilter)
{
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().mnuFileJoystickLoad.Click();
    ASSERT_EQ(t.dialogues.openRequests.size(), 1U);
    const FileRequest& request = t.dialogues.openRequests[0];
    EXPECT_EQ(request.title, "Opening joystick file");
    EXPECT_EQ(request.directory, "c:\\tm\\b50progs\\");
    EXPECT_EQ(request.filter, "Joystick file (*.b50)|*.b50|F-22 PRO files |*.f22|F-16 FLCS files |*.b50|FCS files "
                              "|*.adv|All Joystick file types (*.f22,*.b50,*.adv) |*.f22;*.b50;*.adv");
}

TEST_F(OpenTest, OpenMacroAsksWithItsFilter)
{
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().MnuFileMacroLoad.Click();
    ASSERT_EQ(t.dialogues.openRequests.size(), 1U);
    const FileRequest& request = t.dialogues.openRequests[0];
    EXPECT_EQ(request.title, "Opening file");
    EXPECT_EQ(request.filter, "Macro file (*.m50)|*.m50|F-22 PRO files |*.m22|F-16 FLCS files |*.m50|FCS files |*.mdf|"
                              "All Macro file types (*.m22,*.m50,*.mdf) |*.m22;*.m50;*.mdf");
}

TEST_F(OpenTest, SaysInTheFirstPanelWhatItDoes)
{
    addPair();
    std::vector<std::string> texts;
    Property<std::string>& panel = t.program().mum.StatusBar.Panels(panel::progress).Text;
    const Connection connection = panel.changed.connect([&] { texts.push_back(panel); });
    t.dialogues.filesToOpen = {mig};
    t.menus().mnuFileOpen.Click();
    EXPECT_THAT(texts, Contains("Looking for associated macro file"));
    texts.clear();
    t.dialogues.filesToOpen = {migMacros};
    t.menus().mnuFileOpen.Click();
    EXPECT_THAT(texts, Contains("Finished opening up macro file and extracting macros from it"));
    texts.clear();
    t.dialogues.filesToOpen = {migMacros};
    t.menus().MnuFileMacroLoad.Click();
    EXPECT_EQ(panel.get(), "Finished opening up macro file and extracting macros from it");
}

TEST_F(OpenTest, SaysThatTheExtensionsMayNeedAdjustingForAFileOfAnUnknownKind)
{
    t.files.addFile("c:\\tm\\notes.txt", "notes");
    std::vector<std::string> texts;
    Property<std::string>& panel = t.program().mum.StatusBar.Panels(panel::progress).Text;
    const Connection connection = panel.changed.connect([&] { texts.push_back(panel); });
    t.dialogues.filesToOpen = {"c:\\tm\\notes.txt"};
    t.menus().mnuFileOpen.Click();
    EXPECT_THAT(texts, Contains("Your file extensions may need adjusting in Preferences"));
}

TEST_F(OpenTest, ACancelledDialogueChangesNothing)
{
    t.typeJoystick("mine");
    t.editor().joystick.Changed = changed::saved;
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(joystickText(), "mine");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(OpenTest, DialoguesStartInTheProgramsFolderWithItsRootAsTheCurrentDirectory)
{
    CurrentDirectory& current = t.program().shared.currentDirectory;
    const std::pair<MenuItem*, bool> commands[] = {{&t.menus().mnuFileJoystickLoad, true},
                                                   {&t.menus().MnuFileMacroLoad, true},
                                                   {&t.menus().mnuFileOpen, true},
                                                   {&t.menus().mnuFileSaveAs, false}};
    for (const auto& [command, opens] : commands) {
        current.ChDir("c:\\tarvex");
        (opens ? t.dialogues.filesToOpen : t.dialogues.filesToSave) = {std::nullopt};
        command->Click();
        const auto& requests = opens ? t.dialogues.openRequests : t.dialogues.saveRequests;
        EXPECT_EQ(requests.at(requests.size() - 1).directory, "c:\\tm\\b50progs\\") << command->Name;
        EXPECT_EQ(current.path(), "c:\\") << command->Name;
    }
    current.ChDir("c:\\tarvex");
    addPair();
    t.openBoth(mig);
    EXPECT_EQ(current.path(), "c:\\tarvex") << "without a dialogue it stays";
}

TEST_F(OpenTest, ACancelledDialogueSelectsNoOtherTabAndReportsNothing)
{
    t.editor().TabStrip1.Select(t.editor().macro.tab);
    t.dialogues.filesToOpen = {std::nullopt, std::nullopt};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(t.editor().selected().tab, t.editor().macro.tab);
    EXPECT_NE(t.status(), "Done");
    t.editor().TabStrip1.Select(t.editor().joystick.tab);
    t.menus().MnuFileMacroLoad.Click();
    EXPECT_EQ(t.editor().selected().tab, t.editor().joystick.tab);
    EXPECT_NE(t.status(), "Finished opening up macro file and extracting macros from it");
}

TEST_F(OpenTest, OpenJoystickLowerCasesPathAndNameAndIsSaved)
{
    addPair();
    t.dialogues.filesToOpen = {"C:\\TM\\B50PROGS\\MIG.B50"};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.editor().joystick.FileName, "mig.b50");
    EXPECT_EQ(t.editor().TabStrip1.Tabs(1).Caption.get(), "mig.b50");
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 0);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_EQ(macroText(), "") << "only one file was asked for";
}

TEST_F(OpenTest, OpenMacroShowsTheMacroFrameAndItsTab)
{
    addPair();
    t.dialogues.filesToOpen = {migMacros};
    t.menus().MnuFileMacroLoad.Click();
    EXPECT_EQ(t.dialogues.openRequests[0].title, "Opening file");
    EXPECT_EQ(macroText(), "Fire = f\r\n");
    EXPECT_TRUE(t.menus().mnuViewMacros.Checked);
    EXPECT_TRUE(t.editor().FrameMacros.Visible);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
    EXPECT_EQ(t.status(8), "mig.m50");
}

TEST_F(OpenTest, OpenBothFromTheJoystickFileFindsTheMacroFileOfTheSameName)
{
    addPair();
    t.dialogues.filesToOpen = {mig};
    t.menus().mnuFileOpen.Click();
    EXPECT_EQ(t.dialogues.openRequests[0].title, "Select the joystick file or the macro file - I'll open both of them");
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(macroText(), "Fire = f\r\n");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 0);
    EXPECT_EQ(t.status(), "Finished analysing the macros assigned in your joystick file...phew!...fancy a beer?");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(OpenTest, OpenBothListsTheMacrosAndTicksTheOnesUsed)
{
    addPair();
    t.openBoth(mig);
    const auto& items = t.editor().FrameMacros.List1.front().Items.get();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0], (CheckListBox::Item{"Fire", true}));
}

TEST_F(OpenTest, OpenBothWithoutCheckIdentifyOKLeavesTheTicksOutAndSaysDone)
{
    addPair();
    t.settings().CheckIdentifyOK = 0;
    t.openBoth(mig);
    EXPECT_EQ(t.status(), "Done");
    EXPECT_EQ(t.editor().FrameMacros.List1.front().Items.get(), (std::vector<CheckListBox::Item>{{"Fire", false}}));
}

TEST_F(OpenTest, OpenBothFromTheMacroFileFindsTheJoystickFile)
{
    addPair();
    t.dialogues.filesToOpen = {migMacros};
    t.menus().mnuFileOpen.Click();
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(macroText(), "Fire = f\r\n");
    EXPECT_EQ(t.status(), "Finished analysing the macros assigned in your joystick file...phew!...fancy a beer?");
}

TEST_F(OpenTest, OpenBothFiltersBothKinds)
{
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().mnuFileOpen.Click();
    EXPECT_EQ(t.dialogues.openRequests[0].filter,
              "Thrustmaster files for your hardware |*.b50;*.m50|Joystick file for your hardware (*.b50)|*.b50|Macro "
              "file for your hardware (*.m50)|*.m50|All Thrustmaster files |*.f22;*.b50;*.adv;*.m22;*.m50;*.mdf|F-22 "
              "PRO files |*.f22;*.m22|F-16 FLCS files |*.b50;*.m50|FCS files |*.adv;*.mdf");
}

TEST_F(OpenTest, TheFamilyOfTheFileDecidesThePartnerNotTheHardware)
{
    t.files.addFile("c:\\tm\\a.f22", "x");
    t.files.addFile("c:\\tm\\a.m22", "Y = y");
    t.openBoth("c:\\tm\\a.f22");
    EXPECT_EQ(macroText(), "Y = y");
    t.files.addFile("c:\\tm\\b.adv", "adv");
    t.files.addFile("c:\\tm\\b.mdf", "Z = z");
    t.openBoth("c:\\tm\\b.mdf");
    EXPECT_EQ(joystickText(), "adv");
}

TEST_F(OpenTest, ATextWithSeveralMdefLinesUsesTheFileOfTheLastOne)
{
    t.files.addFile(mig, "MDEF one\r\nMDEF two\r\n");
    t.files.addFile("c:\\tm\\b50progs\\one.m50", "One = 1");
    t.files.addFile("c:\\tm\\b50progs\\two.m50", "Two = 2");
    t.openBoth(mig);
    EXPECT_EQ(macroText(), "Two = 2");
    EXPECT_EQ(t.editor().macro.FileName, "two.m50");
}

TEST_F(OpenTest, AnMdefLineNamingAMissingFileFallsBackToTheOwnName)
{
    addPair();
    t.files.addFile(mig, "MDEF gone\r\n");
    t.openBoth(mig);
    EXPECT_EQ(macroText(), "Fire = f\r\n");
}

TEST_F(OpenTest, AnMdefNamesAMacroFileOfTheJoystickFilesFamilyWhateverTheHardware)
{
    t.files.addFile("c:\\a\\x.f22", "MDEF foo\r\n");
    t.files.addFile("c:\\a\\foo.m22", "Right = r");
    t.files.addFile("c:\\a\\foo.m50", "Wrong = w");
    t.openBoth("c:\\a\\x.f22");
    EXPECT_EQ(macroText(), "Right = r");
}

TEST_F(OpenTest, AnMdefNameEndsAtABlankAndIsLowerCased)
{
    t.files.addFile(mig, "mdef LONGBOW rem my macros\r\n");
    t.files.addFile("c:\\tm\\b50progs\\longbow.m50", "Hover = h");
    t.openBoth(mig);
    EXPECT_EQ(t.editor().macro.FilePath, "c:\\tm\\b50progs\\longbow.m50");
}

TEST_F(OpenTest, AnMdefAtTheVeryEndOfTheTextFallsBack)
{
    addPair();
    t.files.addFile(mig, "MDEF");
    t.openBoth(mig);
    EXPECT_EQ(macroText(), "Fire = f\r\n");
}

TEST_F(OpenTest, WithoutAMacroFileTheJoystickFileStaysOpenAndTheBoxSaysSo)
{
    t.files.addFile(mig, "BTN S1 x");
    t.openBoth(mig);
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Couldn't find associated macro file");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Information);
    EXPECT_EQ(t.lastBox().text,
              "I couldn't find a macro file associated with this joystick file. Either this is because it has a "
              "different name, is located in a different directory, or it does not exist. If you know that this "
              "joystick file doesn't use a macro file, next time, open up the single file on its own. And whilst I've "
              "got your attention, how 'bout spending some of that beer money on me for once. I want some RAM .... and "
              "a beer ... ");
    EXPECT_EQ(joystickText(), "BTN S1 x");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(OpenTest, AMacroFileWithoutPartnerStaysOpenWithTheBoxAndTheJoystickDocumentStaysEmpty)
{
    t.files.addFile(migMacros, "Fire = f");
    t.openBoth(migMacros);
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Couldn't find associated joystick file");
    EXPECT_EQ(t.lastBox().text,
              "I couldn't find a joystick file associated with this macro file. Either this is because "
              "it has a different name, is located in a different directory,or it does not exist.");
    EXPECT_EQ(macroText(), "Fire = f");
    EXPECT_EQ(joystickText(), "");
    EXPECT_EQ(t.editor().joystick.Changed, changed::noText);
    EXPECT_EQ(t.status(), "Joystick file not opened");
}

TEST_F(OpenTest, AnUnknownExtensionLeadsToThePreferences)
{
    t.files.addFile("c:\\notes.txt", "x");
    t.dialogues.filesToOpen = {"c:\\notes.txt"};
    t.menus().mnuFileOpen.Click();
    EXPECT_EQ(t.lastBox().icon, BoxIcon::None);
    EXPECT_EQ(t.lastBox().text,
              "The file you opened isn't recognised as either a .b50 or a .m50 file. This is probably because you need "
              "to set the preferences to display what the default extensions you will be using for your hardware. I'll "
              "take you there now. And don't start on me ... I'm just the computer ... not the programmer.");
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Preferences"});
    EXPECT_EQ(t.status(), "Files not opened");
    EXPECT_EQ(joystickText(), "");
}

TEST_F(OpenTest, AskingComesFirstAndNoGoesOn)
{
    addPair();
    t.typeJoystick("unsaved");
    t.dialogues.answers = {Answer::No};
    t.openBoth(mig);
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, " Save untitled.b50 now?");
    EXPECT_EQ(t.lastBox().text, "untitled.b50 has changed and isn't saved. Do you want to save it before opening a "
                                "different joystick file?");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Question);
    EXPECT_EQ(t.lastBox().buttons, BoxButtons::YesNoCancel);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
}

TEST_F(OpenTest, AskingAboutTheMacroFileAndCancellingStops)
{
    addPair();
    t.typeMacro("A = a");
    t.dialogues.answers = {Answer::Cancel};
    t.openBoth(mig);
    EXPECT_EQ(t.lastBox().text, "untitled.m50 has changed and isn't saved. Do you want to save it before opening a "
                                "different macro file?");
    EXPECT_EQ(joystickText(), "");
    EXPECT_EQ(macroText(), "A = a");
}

TEST_F(OpenTest, YesAndThenCancellingTheSaveStopsWithTheBox)
{
    addPair();
    t.typeJoystick("unsaved");
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    t.openBoth(mig);
    EXPECT_EQ(t.lastBox().title, "Hmmm...let me think...");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(t.lastBox().text, "untitled.b50 wasn't saved, so I won't continue to load up a new joystick file just in "
                                "case you pressed the cancel button by accident.");
    EXPECT_EQ(joystickText(), "unsaved");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
}

TEST_F(OpenTest, TheMacroQuestionHasItsOwnWords)
{
    addPair();
    t.typeMacro("A = a");
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    t.dialogues.filesToOpen = {};
    t.menus().MnuFileMacroLoad.Click();
    EXPECT_EQ(t.lastBox().text,
              "untitled.m50 wasn't saved, so I won't continue to load up a new macro file just in case "
              "you pressed the cancel button by accident.");
    EXPECT_TRUE(t.dialogues.openRequests.empty());
}

TEST_F(OpenTest, AFileThatCantBeReadEndsItsCommandWithoutAPartner)
{
    addPair();
    int cleared = 0;
    t.program().operations.ClearMacroTicks = [&] { ++cleared; };
    const auto open = [&](MenuItem& command, const char* path) {
        t.files.failReads(path, RuntimeError(ErrorCode::PermissionDenied, "no"));
        t.dialogues.boxes.clear();
        t.dialogues.filesToOpen = {path};
        const int tab = path == std::string(mig) ? t.editor().macro.tab : t.editor().joystick.tab;
        t.editor().TabStrip1.Select(tab);
        command.Click();
        t.files.failReads(path, std::nullopt);
        EXPECT_EQ(t.editor().TabStrip1.SelectedItem, tab) << "the other document stays in front";
        EXPECT_EQ(t.dialogues.boxes.size(), 1U);
        EXPECT_EQ(t.lastBox().title, "Ooops!");
        EXPECT_EQ(joystickText() + macroText(), "");
        EXPECT_EQ(cleared, 0);
    };
    open(t.menus().mnuFileJoystickLoad, mig);
    open(t.menus().MnuFileMacroLoad, migMacros);
    open(t.menus().mnuFileOpen, mig);
    open(t.menus().mnuFileOpen, migMacros);
}

TEST_F(OpenTest, ACancelledQuestionAsksForNoFile)
{
    addPair();
    t.typeJoystick("unsaved");
    t.typeMacro("A = a");
    for (MenuItem* command : {&t.menus().mnuFileJoystickLoad, &t.menus().MnuFileMacroLoad, &t.menus().mnuFileOpen}) {
        t.dialogues.answers = {Answer::Cancel};
        command->Click();
        EXPECT_TRUE(t.dialogues.openRequests.empty());
    }
    t.dialogues.answers = {Answer::No, Answer::Cancel};
    t.menus().mnuFileOpen.Click();
    EXPECT_TRUE(t.dialogues.openRequests.empty());
    EXPECT_EQ(joystickText(), "unsaved");
    EXPECT_EQ(macroText(), "A = a");
}

TEST_F(OpenTest, APartnerThatCantBeReadIsNotOpened)
{
    addPair();
    int identified = 0;
    t.program().operations.IdentifyMacrosUsed = [&] { ++identified; };
    t.files.failReads(migMacros, RuntimeError(ErrorCode::PermissionDenied, "no"));
    t.openBoth(mig);
    EXPECT_EQ(t.status(), "Macro file not opened");
    EXPECT_EQ(identified, 0);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().macro.FileName, "untitled.m50");
}

TEST_F(OpenTest, ACancelledOpenBothPutsTheStatusBack)
{
    const std::string before = t.status();
    t.dialogues.whileOpening = [&] {
        EXPECT_EQ(t.status(), "Opening joystick and associated macro file together ....");
    };
    t.dialogues.filesToOpen = {std::nullopt};
    t.menus().mnuFileOpen.Click();
    EXPECT_EQ(t.status(), before);
}

TEST_F(OpenTest, WhatIsTypedAfterAnOpenIsAnEdit)
{
    addPair();
    t.openBoth(mig);
    t.typeJoystick("x");
    EXPECT_EQ(t.editor().joystick.Changed, changed::modified);
    EXPECT_EQ(t.editor().macro.Changed, changed::saved);
}

TEST_F(OpenTest, IdentifiesTheMacrosUsedWhenTheSettingAsksForIt)
{
    addPair();
    int identified = 0;
    int cleared = 0;
    t.program().operations.IdentifyMacrosUsed = [&] { ++identified; };
    t.openBoth(mig);
    EXPECT_EQ(identified, 1);
    t.settings().CheckIdentifyOK = 0;
    t.program().operations.ClearMacroTicks = [&] { ++cleared; };
    t.openBoth(mig);
    EXPECT_EQ(identified, 1);
    EXPECT_EQ(cleared, 1);
}

TEST_F(OpenTest, SingleFilesOnlyOpensTheOneThatWasNamed)
{
    addPair();
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(mig);
    EXPECT_EQ(macroText(), "");
    t.menus().mnuFileNewJoystick.Click();
    t.openBoth(migMacros);
    EXPECT_EQ(macroText(), "Fire = f\r\n");
    EXPECT_EQ(joystickText(), "");
}

TEST_F(OpenTest, SingleFilesTakeAnySliceOfTheMacroExtensionsForAMacroFile)
{
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.files.addFile("c:\\odd.22m", "Odd = o");
    t.openBoth("c:\\odd.22m");
    EXPECT_EQ(macroText(), "Odd = o");
    EXPECT_EQ(joystickText(), "");
}

TEST_F(OpenTest, AProtectedMacroPaneStillTakesAnotherFile)
{
    addPair();
    t.menus().mnuPreferencesProtectMacroFile.Click();
    t.openBoth(mig);
    EXPECT_EQ(macroText(), "Fire = f\r\n");
}

TEST_F(OpenTest, AJoystickFileThatCantBeReadIsNotOpenedBesideItsMacroFile)
{
    addPair();
    int cleared = 0;
    t.program().operations.ClearMacroTicks = [&] { ++cleared; };
    t.files.failReads(mig, RuntimeError(ErrorCode::PermissionDenied, "no"));
    t.openBoth(migMacros);
    EXPECT_EQ(t.status(), "Joystick file not opened");
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
    EXPECT_EQ(macroText(), "Fire = f\r\n");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
}

} // namespace
} // namespace tarvex
