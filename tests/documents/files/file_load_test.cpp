#include "documents/files/file_load.h"

#include "documents/files/open_fixture.h"
#include "support/utf16_text.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// The steps of opening a pair, in their order.
struct OpenSteps : OpenTest {
    std::vector<std::string> log;

    OpenSteps()
    {
        addPair();
        Operations& operations = t.program().operations;
        operations.NoteLatestJoystickFile = [this](const std::string&) { log.emplace_back("note joystick file"); };
        operations.NoteLatestMacroFile = [this](const std::string&) { log.emplace_back("note macro file"); };
        operations.ApplyColourHighlighting = [this] { log.emplace_back("colour joystick file"); };
        operations.ApplyMacroColourHighlighting = [this] { log.emplace_back("colour macro file"); };
        operations.ClearAllForNewMacroFile = [this] { log.emplace_back("clear macro list"); };
        operations.GetEachLineFromMacroFile = [this] { log.emplace_back("read macro lines"); };
        operations.ExtractMacrosAndTitles = [this] { log.emplace_back("list macros"); };
        operations.IdentifyMacrosUsed = [this] { log.emplace_back("identify macros"); };
        operations.ClearMacroTicks = [this] { log.emplace_back("clear ticks"); };
        t.menus().mnuViewReformat.handler = [this] {
            log.push_back("lay out tab " + std::to_string(t.editor().TabStrip1.SelectedItem.get()));
        };
        t.menus().mnuViewMacros.handler = [this] { log.emplace_back("show macro frame"); };
    }
};

TEST_F(OpenSteps, APairIsOpenedStepByStepAndEachStepRunsOnce)
{
    t.openBoth(mig);
    EXPECT_THAT(log, ElementsAre("note joystick file", "lay out tab 1", "colour joystick file", "clear macro list",
                                 "note macro file", "lay out tab 2", "colour macro file", "read macro lines",
                                 "list macros", "show macro frame", "identify macros"));
}

TEST_F(OpenSteps, APairWithShadowsIsNeitherLaidOutNorColoured)
{
    addShadow("mig.b50", "Rem mine\r\nBTN S1 Fire\r\n");
    addShadow("mig.m50", "Fire = f\r\n");
    t.openBoth(mig);
    EXPECT_THAT(log, ElementsAre("note joystick file", "clear macro list", "note macro file", "read macro lines",
                                 "list macros", "show macro frame", "identify macros"));
}

TEST_F(OpenSteps, AJoystickFileAloneTouchesNoMacroList)
{
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(mig);
    EXPECT_THAT(log, ElementsAre("note joystick file", "lay out tab 1", "colour joystick file", "clear ticks"));
}

TEST_F(OpenTest, ColoursComeBackFromTheShadowAndNothingIsReformatted)
{
    addPair();
    addShadow("mig.b50", "Rem mine\r\nBTN S1 Fire\r\n");
    bool reformatted = false;
    t.menus().mnuViewReformat.handler = [&] { reformatted = true; };
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().JoystickText.formatAt(0).colour, 0xFF0000);
    EXPECT_EQ(t.editor().JoystickText.formatAt(1).colour, 0);
    EXPECT_TRUE(reformatted) << "the macro file has no shadow";
    reformatted = false;
    t.menus().mnuFileNewMacro.Click();
    addShadow("mig.m50", "Fire = f\r\n");
    t.openBoth(mig);
    EXPECT_FALSE(reformatted);
    EXPECT_EQ(t.editor().TempRichTextBox.Text(), "");
    EXPECT_FALSE(t.editor().TempRichTextBox.Visible);
}

TEST_F(OpenTest, AFileEditedElsewhereNoLongerEqualsItsShadowAndIsColouredAnew)
{
    addPair();
    addShadow("mig.b50", "Rem older\r\n");
    int coloured = 0;
    t.program().operations.ApplyColourHighlighting = [&] { ++coloured; };
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().JoystickText.formatAt(0).colour, 0);
    EXPECT_EQ(coloured, 1);
}

TEST_F(OpenTest, WithoutApplyColoursOnFileOpenNothingIsColoured)
{
    addPair();
    int coloured = 0;
    t.program().operations.ApplyColourHighlighting = [&] { ++coloured; };
    t.settings().ApplyColoursOnFileOpen = 0;
    t.openBoth(mig);
    EXPECT_EQ(coloured, 0);
}

TEST_F(OpenTest, ADamagedShadowLosesToThePlainFile)
{
    addPair();
    for (const std::string& damaged :
         {std::string("{\\rtf1{\\fonttbl{{{{"), std::string("\0\xFF not rtf", 10), std::string()}) {
        t.files.addFile("c:\\tarvex\\Rtf\\mig.b50", damaged);
        t.openBoth(mig);
        EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
        t.menus().mnuFileNewJoystick.Click();
    }
}

TEST_F(OpenTest, AnUnreadableShadowLosesToThePlainFile)
{
    addPair();
    addShadow("mig.b50", "Rem mine\r\nBTN S1 Fire\r\n");
    t.files.failReads("c:\\tarvex\\Rtf\\mig.b50", RuntimeError(ErrorCode::PermissionDenied, "no"));
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
}

TEST_F(OpenTest, SameNameInTwoFoldersSharesOneBackupAndOneShadowWhichFailsTheComparisonAndIsRebuilt)
{
    addPair();
    t.openBoth(mig);
    t.menus().mnuFileSave.Click();
    ASSERT_TRUE(t.files.fileExists("c:\\tarvex\\Rtf\\mig.b50"));
    t.files.addFile("c:\\other\\mig.b50", "another text");
    t.files.addFile("c:\\other\\mig.m50", "");
    t.openBoth("c:\\other\\mig.b50");
    EXPECT_EQ(joystickText(), "another text");
    t.menus().mnuFileSave.Click();
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig.b50"), "another text") << "the backup is shared too";
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(readRtf(t.fileText("c:\\tarvex\\Rtf\\mig.b50"), t.editor().formats).text(),
              "Rem mine\r\nBTN S1 Fire\r\n");
}

TEST_F(OpenTest, LineEndsOfAnotherKindAreRemarkedBehindTheClosingText)
{
    t.settings().CheckIdentifyOK = 0;
    t.files.addFile(mig, "one\ntwo\rthree\r\nfour\n");
    t.files.addFile(migMacros, "Fire = f\r\nStop = s\r");
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "one\r\ntwo\r\nthree\r\nfour\r\n");
    EXPECT_EQ(t.status(), "Done. mig.b50 had 3 line ends of another kind. mig.m50 had 1 line end of another kind.");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    t.menus().mnuFileNewBoth.Click();
    t.files.addFile(mig, "\n\r\n\r\r\n");
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(mig);
    EXPECT_EQ(t.status(), "Done. mig.b50 had 2 line ends of another kind.");
}

TEST_F(OpenTest, AFileInUtf16IsDecodedAndSavedAsPlainText)
{
    t.settings().CheckIdentifyOK = 0;
    t.settings().CreateBackup = 1;
    t.files.addFile(mig, asUtf16("Rem caf\u00E9\r\nBTN S1 Fire\r\n"));
    t.files.addFile(migMacros, asUtf16("Fire = f\r\n"));
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem caf\xE9\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_THAT(t.editor().macros.MacroFileLines, ElementsAre("Fire = f"));
    EXPECT_EQ(t.status(),
              "Done. mig.b50 is in Unicode, which no loader reads: when you save it, it becomes plain text. "
              "mig.m50 is in Unicode, which no loader reads: when you save it, it becomes plain text.");
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText(mig), "Rem caf\xE9\r\nBTN S1 Fire\r\n");
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\Backup\\mig-outside.b50")) << "nothing is lost";
}

TEST_F(OpenTest, AUtf16FileWithCharactersThatPlainTextLacksIsPutAsideByTheFirstSave)
{
    const std::string bytes = asUtf16("Rem \u0416\r\n");
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.files.addFile(mig, bytes);
    t.openBoth(mig);
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText(mig), "Rem ?\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\mig-outside.b50"), bytes);
    t.menus().mnuFileSave.Click();
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\Backup\\mig-outside-2.b50"));
}

TEST_F(OpenTest, CharactersOfAUtf16FileThatPlainTextLacksAreRemarked)
{
    t.settings().CheckIdentifyOK = 0;
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.files.addFile(mig, asUtf16("Rem \u0416\u2192\r\n"));
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem ??\r\n");
    EXPECT_EQ(t.status(),
              "Done. mig.b50 is in Unicode, which no loader reads: when you save it, it becomes plain text. "
              "That has no room for 2 characters, so you see question marks.");
    t.files.addFile(mig, asUtf16("Rem \u0416\r\n"));
    t.openBoth(mig);
    EXPECT_EQ(t.status(),
              "Done. mig.b50 is in Unicode, which no loader reads: when you save it, it becomes plain text. "
              "That has no room for 1 character, so you see question marks.");
}

TEST_F(OpenTest, WindowsLineEndsAreNotRemarked)
{
    t.settings().CheckIdentifyOK = 0;
    addPair();
    t.openBoth(mig);
    EXPECT_EQ(t.status(), "Done");
}

TEST_F(OpenTest, LineEndsOfAnotherKindInTheFileOfTheCommandLineAreRemarkedAtTheStart)
{
    TestProgram started(false);
    started.files.addFile(mig, "one\ntwo\n");
    started.files.addFile(migMacros, "");
    started.setIni("Miscellaneous", "CheckIdentifyOK", "0");
    started.platform.commandLine = mig;
    started.start();
    EXPECT_EQ(started.status(), "Ready! Welcome to Tarvex! mig.b50 had 2 line ends of another kind.");
}

TEST_F(OpenTest, LoneLineEndsBecomePairs)
{
    t.files.addFile(mig, "a\nb\rc\r\nd");
    t.files.addFile(migMacros, "");
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
}

TEST_F(OpenTest, EveryByteValueComesBackUnchangedFromOpenAndSave)
{
    std::string bytes;
    for (int value = 0; value < 256; ++value) {
        if (value != '\r' && value != '\n') bytes += static_cast<char>(value);
    }
    bytes += "\r\nline\r\n\r\n";
    t.files.addFile(mig, bytes);
    t.files.addFile(migMacros, bytes);
    t.openBoth(mig);
    t.menus().mnuFileSaveBoth.Click();
    EXPECT_EQ(t.fileText(mig), bytes);
    EXPECT_EQ(t.fileText(migMacros), bytes);
}

TEST_F(OpenTest, AnEmptyAndATenMegabyteFileOpen)
{
    std::string big;
    for (int line = 0; line < 400'000; ++line) big += "BTN S1 /P a /R b rem x\r\n";
    t.files.addFile(mig, big);
    t.files.addFile(migMacros, "");
    t.openBoth(mig);
    EXPECT_EQ(t.editor().JoystickText.TextLength(), big.size());
    EXPECT_EQ(macroText(), "");
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(t.fileText(mig), big);
}

TEST_F(OpenTest, AFileThatVanishedBetweenDialogueAndOpenLeavesEverythingAsItWas)
{
    t.typeJoystick("mine");
    t.editor().joystick.Changed = changed::saved;
    t.dialogues.filesToOpen = {"c:\\tm\\b50progs\\gone.b50"};
    t.menus().mnuFileJoystickLoad.Click();
    EXPECT_EQ(joystickText(), "mine");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text,
              "I couldn't read gone.b50, so I've left everything just as it was. Is it still there, and "
              "are you allowed to read it?");
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST_F(OpenTest, AMacroFileThatCantBeReadKeepsTheMacroList)
{
    addPair();
    t.files.failReads(migMacros, RuntimeError(ErrorCode::PermissionDenied, "no"));
    bool cleared = false;
    t.program().operations.ClearAllForNewMacroFile = [&] { cleared = true; };
    t.dialogues.filesToOpen = {migMacros};
    t.menus().MnuFileMacroLoad.Click();
    EXPECT_FALSE(cleared);
    EXPECT_EQ(macroText(), "");
}

TEST_F(OpenTest, AStepThatFailsInAnOpenLeavesNoLoadingMark)
{
    addPair();
    t.program().operations.NoteLatestJoystickFile = [](const std::string&) { throw std::runtime_error("odd"); };
    t.menus().mnuViewReformat.handler = [] { throw std::runtime_error("odd"); };
    t.openBoth(mig);
    EXPECT_EQ(joystickText(), "Rem mine\r\nBTN S1 Fire\r\n");
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
}

TEST(OpenFile, OneOver64MegabytesIsRefusedAndNotRead)
{
    constexpr std::size_t most = std::size_t{64} << 20;
    TestProgram t;
    t.typeJoystick("BTN S1 a");
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.files.addFile("c:\\tm\\huge.b50", std::string(most + 1, 'x'));
    t.files.failReads("c:\\tm\\huge.b50", RuntimeError(ErrorCode::DeviceInputOutput, "was read"));
    t.dialogues.answers = {Answer::No};
    t.openBoth("c:\\tm\\huge.b50");
    ASSERT_FALSE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.lastBox().title, "Ooops!");
    EXPECT_EQ(t.lastBox().text, "huge.b50 is larger than 64 MB, so I don't believe that it's for a joystick. I've left "
                                "everything just as it was.");
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 a");
    EXPECT_EQ(t.editor().joystick.FileName, "untitled.b50");
}

TEST_F(OpenTest, RemarksOfOneOpeningAreNotRepeatedByTheNext)
{
    t.settings().CheckIdentifyOK = 0;
    t.files.addFile(mig, "one\n");
    t.files.addFile(migMacros, "Fire = f\r\n");
    const std::tuple<MenuItem*, const char*, const char*> commands[] = {
        {&t.menus().mnuFileJoystickLoad, mig, "Done. mig.b50 had 1 line end of another kind."},
        {&t.menus().MnuFileMacroLoad, migMacros, "Finished opening up macro file and extracting macros from it"},
        {&t.menus().mnuFileOpen, mig, "Done. mig.b50 had 1 line end of another kind."},
        {&t.menus().mnuFileJoystickLoad, mig, "Done. mig.b50 had 1 line end of another kind."}};
    for (const auto& [command, file, status] : commands) {
        t.dialogues.filesToOpen = {file};
        command->Click();
        EXPECT_EQ(t.status(), status) << command->Name;
    }
}

} // namespace
} // namespace tarvex
