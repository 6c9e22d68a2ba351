#include "templates/template_editor_fixture.h"

#include "documents/text/rtf/rtf.h"
#include "support/utf16_text.h"
#include "templates/template_files.h"

namespace tarvex {
namespace {

const std::string fileTypes = "Templates (*.rtf)|*.rtf|Joystick files |*.f22;*.b50;*.adv|Macro files "
                              "|*.m22;*.m50;*.mdf|Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|All files "
                              "(*.*)|*.*";

TEST_F(TemplateEditorTest, OpensAPlainFileUnderItsLowerCasedName)
{
    t.files.addFile(folder + "Hat.TXT", "BTN H1U a\r\n");
    open(folder + "Hat.TXT");
    EXPECT_EQ(text(), "BTN H1U a\r\n");
    EXPECT_EQ(window.TemplateFullName, "c:\\tarvex\\templates\\hat.txt");
    EXPECT_EQ(window.Text1.Text, "Hat.TXT");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(t.status(), "Hat.TXT was opened successfully");
    const FileRequest& request = t.dialogues.openRequests.back();
    EXPECT_EQ(request.directory, folder);
    EXPECT_EQ(request.defaultExtension, "rtf");
    EXPECT_EQ(request.filter, fileTypes);
}

TEST_F(TemplateEditorTest, OpensRtfWithItsColoursInTheFontOfTheSettings)
{
    Pane written;
    written.setText("red");
    written.setSelLength(3);
    written.setSelColor(255);
    t.settings().TextFontName = "Courier New";
    t.files.addFile(folder + "a.rtf", writeRtf(written.TextRTF()));
    open(folder + "a.rtf");
    EXPECT_EQ(text(), "red");
    EXPECT_EQ(pane.formatAt(0).colour, 255);
    EXPECT_EQ(pane.formatAt(0).fontName, "Courier New");
    EXPECT_EQ(pane.formatAt(0).indent, 20);
}

TEST_F(TemplateEditorTest, AFileWithThatExtensionThatIsNoRtfIsPlainText)
{
    t.files.addFile(folder + "a.rtf", "{just words");
    open(folder + "a.rtf");
    EXPECT_EQ(text(), "{just words");
}

TEST_F(TemplateEditorTest, AFileInUnicodeIsRemarkedAndPutAsideBeforeItIsReplaced)
{
    const std::string bytes = asUtf16("caf\u00E9 \u0416\r\n");
    t.files.addFile(folder + "hat.txt", bytes);
    open(folder + "hat.txt");
    EXPECT_EQ(text(), "caf\xE9 ?\r\n");
    EXPECT_EQ(t.status(),
              "hat.txt was opened successfully. hat.txt is in Unicode, which no loader reads: when you save "
              "it, it becomes plain text. That has no room for 1 character, so you see question marks.");
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "caf\xE9 ?\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\hat-outside.txt"), bytes);
    open(folder + "hat.txt");
    EXPECT_EQ(t.status(), "hat.txt was opened successfully") << "it is plain text now";
}

TEST_F(TemplateEditorTest, AFileInUnicodeThatCannotBePutAsideIsNotReplaced)
{
    const std::string bytes = asUtf16("\u0416");
    t.files.addFile(folder + "hat.txt", bytes);
    open(folder + "hat.txt");
    type("x");
    t.files.failWrites("c:\\tarvex\\Backup\\hat-outside.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "hat.txt"), bytes);
    EXPECT_EQ(window.TemplateChanged, 1);
    EXPECT_EQ(box().title, "Ooops!");
}

TEST_F(TemplateEditorTest, WhatAnotherProgramWroteIsPutAsideBeforeItIsReplaced)
{
    t.files.addFile(folder + "hat.txt", "one\r\n");
    open(folder + "hat.txt");
    type("my ");
    t.files.addFile(folder + "hat.txt", "theirs\r\n");
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "my one\r\n");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\hat-outside.txt"), "theirs\r\n");
    EXPECT_EQ(t.status(), "hat.txt was saved successfully. What was there before is in "
                          "c:\\tarvex\\Backup\\hat-outside.txt");
    type("all ");
    window.Command1[1].Click();
    EXPECT_EQ(t.status(), "hat.txt was saved successfully") << "the window's own text is no news";
    t.files.addFile(folder + "hat.txt", window.TemplateText.Text());
    window.Command1[1].Click();
    EXPECT_EQ(t.status(), "hat.txt was saved successfully") << "the same text";
}

TEST_F(TemplateEditorTest, TheOwnFileIsKnownByItsNameInAnyCase)
{
    t.files.addFile(folder + "Hat.TXT", "one\r\n");
    open(folder + "Hat.TXT");
    type("my ");
    window.Command1[1].Click();
    EXPECT_EQ(t.status(), "Hat.TXT was saved successfully");
    EXPECT_EQ(t.fileText(folder + "Hat.TXT"), "my one\r\n");
}

TEST_F(TemplateEditorTest, ATypedNameOfAnotherTemplateReplacesNoneForGood)
{
    t.files.addFile(folder + "hat.rtf", "mine for years");
    type("new");
    window.Text1.Text = "hat.rtf";
    window.TemplatePath = folder;
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\hat-outside.rtf"), "mine for years");
    EXPECT_EQ(t.status(), "hat.rtf was saved successfully. What was there before is in "
                          "c:\\tarvex\\Backup\\hat-outside.rtf");
}

TEST_F(TemplateEditorTest, AFileThatTheUserAgreedToReplaceIsNotPutAside)
{
    t.files.addFile(folder + "hat.txt", "old");
    type("new");
    saveAs(folder + "hat.txt");
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "new");
    EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\Backup\\hat-outside.txt"));
}

TEST_F(TemplateEditorTest, AFileInUnicodeIsPutAsideAlsoWhereTheUserAgreedToReplaceIt)
{
    const std::string bytes = asUtf16("\u0416");
    t.files.addFile(folder + "hat.txt", bytes);
    type("new");
    saveAs(folder + "hat.txt");
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "new");
    EXPECT_EQ(t.fileText("c:\\tarvex\\Backup\\hat-outside.txt"), bytes);
}

TEST_F(TemplateEditorTest, OfDamagedRtfTheReadablePartIsShown)
{
    const std::string whole = "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\cf1 BTN S1 a\\par BTN S2 b}";
    for (std::size_t length = 6; length <= whole.size(); ++length) {
        t.files.addFile(folder + "a.rtf", whole.substr(0, length));
        open(folder + "a.rtf");
        EXPECT_EQ(std::string("BTN S1 a\r\nBTN S2 b").find(text()), 0U) << text();
        EXPECT_EQ(window.TemplateChanged, 0);
    }
    EXPECT_EQ(text(), "BTN S1 a\r\nBTN S2 b");
    t.files.addFile(folder + "a.rtf", "{\\rtf1}}}}{{{{\\'zz\\bin99999 BTN S1");
    open(folder + "a.rtf");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(TemplateEditorTest, AFileThatCannotBeReadLeavesTextAndName)
{
    type("mine");
    window.TemplateChanged = 0;
    t.files.addFile(folder + "a.rtf", "x");
    t.files.failReads(folder + "a.rtf", RuntimeError(ErrorCode::PathNotFound, "gone"));
    open(folder + "a.rtf");
    EXPECT_EQ(text(), "mine");
    EXPECT_EQ(window.Text1.Text, "untitled.rtf");
}

TEST_F(TemplateEditorTest, AFailureIsOnRecordUnderTheNameOfItsCommand)
{
    const std::string& tag = t.program().shared.errors.ErrorProcedure;
    for (const char* path : {"c:\\hat.txt", "c:\\tm\\tm.cfg"}) {
        t.files.addFile(path, "x");
        t.files.failReads(path, RuntimeError(ErrorCode::PathNotFound, "gone"));
    }
    open("c:\\hat.txt");
    EXPECT_EQ(tag, "TEMPLATE Command1_Click");
    t.settings().TextFilePath = "c:\\hat.txt";
    window.Command2.Click();
    EXPECT_EQ(tag, "TEMPLATE Command2_Click");
    t.settings().ProgramFilesPath = "c:\\tm";
    window.mnuEditTmCFG.Click();
    EXPECT_EQ(tag, "TEMPLATE mnuEditTmCFG_Click");
    pane.Change = [] { throw RuntimeError(ErrorCode::PathNotFound, "broken"); };
    t.clipboard.content.text = "x";
    window.mnuPaste.Click();
    EXPECT_EQ(tag, "TEMPLATE mnuPaste_Click");
    window.mnuSelectAll.Click();
    window.mnuTextToBlack.Click();
    EXPECT_EQ(tag, "TEMPLATE mnuTextToBlack_Click");
}

TEST_F(TemplateEditorTest, AfterALoadThatFailsHalfWayEditsStillCount)
{
    t.files.addFile(folder + "a.txt", "x");
    {
        const auto failing =
            pane.edited.connect([](const Pane::Edit&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
        open(folder + "a.txt");
    }
    type("y");
    EXPECT_EQ(window.TemplateChanged, 1);
}

TEST_F(TemplateEditorTest, ACancelledOpenDialogueLeavesEverything)
{
    t.dialogues.filesToOpen = {std::nullopt};
    window.Command1[0].Click();
    EXPECT_EQ(window.Text1.Text, "untitled.rtf");
}

TEST_F(TemplateEditorTest, EditingIsAChangeAndTheStatusSaysSo)
{
    type("a");
    EXPECT_EQ(window.TemplateChanged, 1);
    EXPECT_EQ(t.status(), "Editing untitled.rtf");
}

TEST_F(TemplateEditorTest, UnsavedTextIsAskedAboutBeforeAnotherFileIsOpened)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    window.Command1[0].Click();
    EXPECT_EQ(box().title, " Save untitled.rtf now?");
    EXPECT_EQ(box().text,
              "untitled.rtf has changed and isn't saved. Do you want to save it before opening another file?");
    EXPECT_TRUE(t.dialogues.openRequests.empty());
    EXPECT_EQ(text(), "mine");
}

TEST_F(TemplateEditorTest, TheFileMenuOpensAndSavesAsTheButtonsDo)
{
    t.files.addFile(folder + "hat.txt", "hat");
    t.dialogues.filesToOpen = {folder + "hat.txt"};
    window.mnuFileOpen.Click();
    EXPECT_EQ(text(), "hat");
    type("my ");
    window.mnuFileSave.Click();
    EXPECT_EQ(t.fileText("c:\\tarvex\\templates\\hat.txt"), "my hat");
    window.mnuFileNew.Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(window.TemplateFullName, "");
    EXPECT_FALSE(window.mnuUndo.Enabled);
    t.program().shared.currentDirectory.ChDir("c:\\");
    t.dialogues.filesToOpen = {std::nullopt};
    window.mnuFileOpen.Click();
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "c:\\tarvex\\templates");
}

TEST_F(TemplateEditorTest, AFontThatIsChangedInThePreferencesIsTheTemplatesAtOnce)
{
    type("one");
    const auto preferences = [this](MenuItem& command, const std::string& font) {
        t.editor().status("");
        t.dialogues.whileModal = [&] { t.settings().TextFontName = font; };
        command.Click();
        t.dialogues.whileModal = nullptr;
        return t.status();
    };
    const std::string refreshed = "Layout refreshed ... (I wish I was!)";
    EXPECT_EQ(preferences(window.mnuViewEditColours, "Courier New"), refreshed);
    EXPECT_EQ(pane.formatAt(0).fontName, "Courier New");
    EXPECT_NE(preferences(window.mnuViewEditColours, "Courier New"), refreshed) << "the same font";
    EXPECT_EQ(preferences(window.mnuEdTmpPrefs, "Arial"), refreshed);
    EXPECT_EQ(pane.formatAt(0).fontName, "Arial");
}

TEST_F(TemplateEditorTest, ACancelKeepsTextAndNameBeforeANewFile)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    window.Command1[2].Click();
    EXPECT_EQ(box().text,
              "untitled.rtf has changed and isn't saved. Do you want to save it before creating a new file?");
    EXPECT_EQ(text(), "mine");
    EXPECT_EQ(window.Text1.Text, "untitled.rtf");
    EXPECT_EQ(window.TemplateChanged, 1);
}

TEST_F(TemplateEditorTest, ANoGivesTheTextUp)
{
    type("mine");
    t.dialogues.answers = {Answer::No};
    window.Command1[2].Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(t.status(), "New file created");
}

TEST_F(TemplateEditorTest, AYesSavesFirst)
{
    saveAs(folder + "a.txt");
    type("mine");
    t.dialogues.answers = {Answer::Yes};
    window.Command1[2].Click();
    EXPECT_EQ(t.fileText(folder + "a.txt"), "mine");
    EXPECT_EQ(text(), "");
}

TEST_F(TemplateEditorTest, WhenTheSaveOfAYesFailsTheCommandEnds)
{
    saveAs(folder + "a.txt");
    type("mine");
    t.files.failWrites("c:\\tarvex\\templates\\a.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    t.dialogues.answers = {Answer::Yes, Answer::Yes};
    window.Command1[2].Click();
    EXPECT_EQ(box().title, "Ooops!");
    EXPECT_EQ(box().text, "a.txt wasn't saved for some reason. I won't proceed in creating a new file");
    EXPECT_EQ(text(), "mine");
    window.Command1[0].Click();
    EXPECT_EQ(box().text, "a.txt wasn't saved for some reason. I won't proceed in opening up another file");
}

TEST_F(TemplateEditorTest, AFailedSaveIsReportedAndKeepsTheOldFile)
{
    saveAs(folder + "a.txt");
    type("new");
    t.files.addFile(folder + "a.txt", "old");
    t.files.failWrites("c:\\tarvex\\templates\\a.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    window.Command1[1].Click();
    EXPECT_NE(box().text.find("Disk full"), std::string::npos);
    EXPECT_EQ(t.fileText(folder + "a.txt"), "old");
    EXPECT_EQ(window.TemplateChanged, 1);
}

TEST_F(TemplateEditorTest, SavingAnUntitledFileAsksForAName)
{
    type("a");
    t.dialogues.filesToSave = {std::string(folder + "My.RTF")};
    window.Command1[1].Click();
    EXPECT_EQ(t.dialogues.saveRequests.size(), 1U);
    EXPECT_TRUE(t.fileText(folder + "my.rtf").starts_with("{\\rtf1"));
    EXPECT_EQ(window.Text1.Text, "my.rtf");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(t.status(), "my.rtf was saved successfully");
    window.Text1.Text = "";
    t.dialogues.filesToSave = {std::nullopt};
    window.Command1[1].Click();
    EXPECT_EQ(t.dialogues.saveRequests.size(), 2U);
}

TEST_F(TemplateEditorTest, AnyOtherExtensionThanRtfLosesTheColours)
{
    type("red");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(255);
    saveAs(folder + "a.f22");
    EXPECT_EQ(t.fileText(folder + "a.f22"), "red");
}

TEST_F(TemplateEditorTest, SavesUnderTheNameThatTheUserTypedOver)
{
    saveAs(folder + "a.rtf");
    window.Text1.Text = "b.txt";
    type("x");
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "b.txt"), "x");
    EXPECT_EQ(window.TemplateName, "b.txt");
}

TEST_F(TemplateEditorTest, ANameThatNoFileCanHaveIsRefused)
{
    type("x");
    for (const char* name : {"a?.txt", "..\\Tarvex.ini", "c:x.rtf", "a\tb.rtf", "a.", "a ", "con.rtf", "NUL"}) {
        window.Text1.Text = name;
        window.Command1[1].Click();
        EXPECT_EQ(box().text, std::string("No file can have the name ") + name);
        EXPECT_EQ(window.TemplateChanged, 1);
    }
}

TEST_F(TemplateEditorTest, ANameWithoutAnExtensionIsSavedPlainUnlessTheFieldIsLeft)
{
    saveAs(folder + "a.rtf");
    type("x");
    window.Text1.Text = "rtf";
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "rtf").substr(0, 5), "{\\rtf") << "its last three letters decide";
    window.Text1.Text = "hat";
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "hat"), "x");
}

TEST_F(TemplateEditorTest, ANameMayHoldNoneOfTheSignsThatPathsNeed)
{
    saveAs(folder + "a.txt");
    type("x");
    for (const char sign : std::string("\\/:*?\"<>|\x1F\x01")) {
        window.Text1.Text = std::string("a") + sign + "b.txt";
        window.Command1[1].Click();
        EXPECT_EQ(box().title, "Ooops!") << sign;
        t.dialogues.boxes.clear();
    }
    window.Text1.Text = "a b'(+)!.txt";
    window.Command1[1].Click();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.fileText(folder + "a b'(+)!.txt"), "x");
}

TEST_F(TemplateEditorTest, SaveAsSuggestsTheNameAndStartsInTheFolder)
{
    window.Text1.Text = "hat.rtf";
    t.dialogues.filesToSave = {std::nullopt};
    window.mnuFileSaveAs.Click();
    const FileRequest& request = t.dialogues.saveRequests.at(0);
    EXPECT_EQ(request.suggestedName, "hat.rtf");
    EXPECT_EQ(request.directory, folder);
    EXPECT_EQ(request.defaultExtension, "rtf");
    EXPECT_EQ(request.filter, fileTypes);
}

TEST_F(TemplateEditorTest, FailuresAreReportedUnderTheirProcedures)
{
    const auto broken = [] { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); };
    const auto reported = [this] { return t.program().shared.errors.ErrorProcedure; };
    saveAs(folder + "a.txt");
    type("x");
    t.files.failWrites("c:\\tarvex\\templates\\a.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    window.Command1[1].Click();
    EXPECT_EQ(reported(), "TEMPLATE Command1_Click");
    EXPECT_EQ(box().text, "a.txt wasn't saved. I was trying to save it with this path: "
                          "c:\\tarvex\\templates\\a.txt, and the error message was: Disk full.");
    t.files.failWrites("c:\\tarvex\\templates\\a.txt", std::nullopt);
    window.Command1[1].Click();
    Connection listening = window.Text1.Text.changed.connect(broken);
    t.dialogues.filesToSave = {std::string(folder + "b.txt")};
    window.mnuFileSaveAs.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFileSaveAs_Click");
    t.files.addFile(folder + "c.txt", "c");
    t.settings().TextFilePath = folder + "c.txt";
    window.TemplateChanged = 0;
    Command2_Click(window);
    EXPECT_EQ(reported(), "TEMPLATE Command2_Click");
    t.files.addFile("c:\\tm\\tm.cfg", "DLDELAY=20");
    mnuEditTmCFG_Click(window);
    EXPECT_EQ(reported(), "TEMPLATE mnuEditTmCFG_Click");
    Command1_Click(window, 2);
    EXPECT_EQ(reported(), "TEMPLATE Command1_Click");
    listening.disconnect();
    saveAs(folder + "d.txt");
    listening = window.Command2.ToolTipText.changed.connect(broken);
    window.mnuSetAsDefault.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFileSetAsDefault_Click");
}

TEST_F(TemplateEditorTest, LeavingTheNameCompletesIt)
{
    for (const auto& [typed, left] : {std::pair("", "untitled.rtf"),
                                      {"Tm.cfg", "Tm.cfg.rtf"},
                                      {"a", "a.rtf"},
                                      {"a.RTF", "a.RTF.rtf"},
                                      {"b.rtf", "b.rtf"}}) {
        window.Text1.Text = typed;
        window.Text1.LostFocus();
        EXPECT_EQ(window.Text1.Text, left);
    }
}

TEST_F(TemplateEditorTest, WithoutATemplatesFolderASaveIsReported)
{
    t.files.removeDirectory("c:\\tarvex\\Templates");
    type("x");
    window.Text1.Text = "a.rtf";
    window.Command1[1].Click();
    EXPECT_EQ(box().title, "Ooops!");
    EXPECT_EQ(window.TemplateChanged, 1);
}

} // namespace
} // namespace tarvex
