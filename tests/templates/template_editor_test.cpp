#include "templates/template_editor.h"

#include "documents/text/rtf/rtf.h"
#include "language/base_format.h"
#include "support/test_program.h"
#include "templates/template_edit.h"
#include "templates/template_files.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

const std::string folder = "c:\\tarvex\\Templates\\";

struct TemplateEditorTest : testing::Test {
    TestProgram t;
    TemplateForm& window = t.program().templateEditor;
    Pane& pane = window.TemplateText;

    TemplateEditorTest()
    {
        t.files.addDirectory("c:\\tarvex\\Templates");
        t.menus().mnuAppsTemplate.Click();
    }
    void type(const std::string& text) { pane.userEdit(pane.SelStart(), pane.SelLength(), text); }
    void open(const std::string& path)
    {
        t.dialogues.filesToOpen = {path};
        window.Command1[0].Click();
    }
    void saveAs(const std::string& path)
    {
        t.dialogues.filesToSave = {path};
        window.mnuFileSaveAs.Click();
    }
    std::string text() { return pane.Text(); }
    const MessageBox& box() { return t.lastBox(); }
};

TEST_F(TemplateEditorTest, ComesUpWithANewFileInTheTemplatesFolder)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.form.Caption, "Template Editor");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(window.TemplatePath, folder);
    EXPECT_EQ(window.Text1.Text, "untitled.rtf");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(pane.BackColor, t.settings().BackgroundColour);
}

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
    EXPECT_EQ(request.filter, "Templates (*.rtf)|*.rtf|Joystick files |*.f22;*.b50;*.adv|Macro files "
                              "|*.m22;*.m50;*.mdf|Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|All files "
                              "(*.*)|*.*");
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
    EXPECT_EQ(request.filter, "Templates (*.rtf)|*.rtf|Joystick files |*.f22;*.b50;*.adv|Macro files "
                              "|*.m22;*.m50;*.mdf|Text files (*.txt)|*.txt|Ini files (*.ini)|*.ini|All files "
                              "(*.*)|*.*");
}

TEST_F(TemplateEditorTest, OpeningTheDefaultAsksAboutUnsavedTextToo)
{
    t.files.addFile(folder + "default.rtf", "x");
    t.settings().TextFilePath = folder + "default.rtf";
    showDefaultTemplate(window);
    type("mine");
    t.dialogues.answers = {Answer::Cancel, Answer::No};
    window.mnuFileLoadDefault.Click();
    EXPECT_EQ(box().text,
              "untitled.rtf has changed and isn't saved. Do you want to save it before opening another file?");
    EXPECT_EQ(text(), "mine");
    window.mnuFileLoadDefault.Click();
    EXPECT_EQ(text(), "x");
    EXPECT_EQ(t.status(), "default.rtf was opened successfully");
    t.files.addFile("c:\\tm\\tm.cfg", "DLDELAY=20");
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    t.menus().mnuEditTmCFG.Click();
    EXPECT_EQ(text().find("DLDELAY"), std::string::npos);
}

TEST_F(TemplateEditorTest, TmCfgIsLookedForAboveTheFolderAndBesideTheLoader)
{
    t.settings().ProgramFilesPath = "c:\\tm\\b50progs";
    t.settings().B50LoadPath = "c:\\loader\\b50load.exe";
    t.files.addFile("c:\\loader\\tm.cfg", "beside");
    window.mnuEditTmCFG.Click();
    EXPECT_EQ(text(), "beside");
    t.files.addFile("c:\\tm\\tm.cfg", "above");
    window.mnuEditTmCFG.Click();
    EXPECT_EQ(text(), "above");
    EXPECT_EQ(t.program().shared.currentDirectory.path(), "c:\\tm");
}

TEST_F(TemplateEditorTest, SettingAsDefaultWithoutAFileSetsNone)
{
    const std::string before = t.settings().TextFilePath.whole();
    type("x");
    t.dialogues.filesToSave = {std::nullopt};
    window.mnuSetAsDefault.Click();
    EXPECT_EQ(t.settings().TextFilePath, before);
    EXPECT_FALSE(window.Command2.Enabled);
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

TEST_F(TemplateEditorTest, SetAsDefaultSavesAndRemembersTheFile)
{
    EXPECT_FALSE(window.Command2.Enabled);
    EXPECT_EQ(window.Command2.ToolTipText, "Open default template/text file (see Preferences)");
    type("x");
    t.dialogues.filesToSave = {std::string(folder + "a.rtf")};
    window.mnuSetAsDefault.Click();
    EXPECT_EQ(t.ini("Apps", "TextFilePath"), "c:\\tarvex\\templates\\a.rtf");
    EXPECT_TRUE(window.Command2.Enabled);
    EXPECT_EQ(window.Command2.ToolTipText, "Open c:\\tarvex\\templates\\a.rtf");
    window.Command1[2].Click();
    window.Command2.Click();
    EXPECT_EQ(text(), "x");
}

TEST_F(TemplateEditorTest, WithoutADefaultItsCommandSaysSo)
{
    window.mnuFileLoadDefault.Click();
    EXPECT_EQ(box().title, "Have a beer instead");
    EXPECT_EQ(box().text, "You don't have a default template to open. You can set one here or in Preferences.");
}

TEST_F(TemplateEditorTest, ADefaultThatIsGoneDisablesItsButton)
{
    window.form.unload();
    t.settings().TextFilePath = "c:\\gone.rtf";
    t.menus().mnuAppsTemplate.Click();
    EXPECT_FALSE(window.Command2.Enabled);
}

TEST_F(TemplateEditorTest, TmCfgIsFoundAndItsDelaySelected)
{
    t.files.addFile("c:\\tm\\tm.cfg", "THROTTLETYPE=TQS\r\nDLDELAY=20\r\n");
    t.menus().mnuEditTmCFG.Click();
    EXPECT_EQ(window.Text1.Text, "Tm.cfg");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(pane.SelText(), "DLDELAY");
    EXPECT_EQ(pane.SelStart(), 18);
}

TEST_F(TemplateEditorTest, ATmCfgOfAnyBytesIsShownAndSavedAsItWas)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') bytes += static_cast<char>(byte);
    }
    t.files.addFile("c:\\tm\\tm.cfg", bytes);
    t.menus().mnuEditTmCFG.Click();
    EXPECT_EQ(text(), bytes);
    EXPECT_EQ(pane.SelLength(), 0) << "there is no delay in it";
    EXPECT_TRUE(t.dialogues.boxes.empty());
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText("c:\\tm\\tm.cfg"), bytes);
}

TEST_F(TemplateEditorTest, TmCfgIsTakenFromTheFolderThatIsSetBeforeOthers)
{
    t.files.addFile("c:\\tm\\tm.cfg", "above");
    t.files.addFile("c:\\tm\\b50progs\\tm.cfg", "\x01\x02 no delay");
    t.menus().mnuEditTmCFG.Click();
    EXPECT_EQ(text(), "\x01\x02 no delay");
    EXPECT_EQ(pane.SelLength(), 0);
}

TEST_F(TemplateEditorTest, AMissingTmCfgIsReportedWithItsFolder)
{
    t.settings().ProgramFilesPath = "c:\\tm\\b50progs\\\\";
    window.mnuEditTmCFG.Click();
    EXPECT_EQ(box().title, "Couldn't locate Tm.cfg");
    EXPECT_EQ(box().text, "Hmmm...I couldn't find your Tm.cfg file - I was looking for it here: c:\\tm\\b50progs");
}

TEST_F(TemplateEditorTest, WrapIsHeldOrReleased)
{
    EXPECT_TRUE(window.ToggleButton1.isHeld());
    EXPECT_EQ(window.RightMargin, 0);
    window.ToggleButton1.Click();
    EXPECT_FALSE(window.ToggleButton1.isHeld());
    EXPECT_EQ(window.RightMargin, 2000);
    window.ToggleButton1.Click();
    EXPECT_EQ(window.RightMargin, 0);
}

TEST_F(TemplateEditorTest, ColoursAreAppliedByTheRulesOfTheLanguage)
{
    type("BTN S1 a\r\n");
    window.mnuColourApply.Click();
    EXPECT_EQ(pane.formatAt(0).colour, t.settings().BTNColour);
    EXPECT_EQ(pane.formatAt(7).colour, 0);
    EXPECT_EQ(window.TemplateChanged, 1);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "BTN S1 a\r\n");
    EXPECT_EQ(pane.formatAt(0).colour, 0);
}

TEST_F(TemplateEditorTest, AColourByHandIsNoChangeOfTheFile)
{
    type("red");
    window.TemplateChanged = 0;
    pane.setSelStart(0);
    pane.setSelLength(3);
    window.ColourLabel1_Click();
    EXPECT_EQ(t.editor().ColourSelector.target, ColourTarget::Template);
    t.editor().ColourSelector.Command1[1].Click();
    EXPECT_EQ(pane.formatAt(0).colour, t.settings().RemStatements);
    EXPECT_EQ(window.ColourLabel1, t.settings().RemStatements);
    EXPECT_EQ(window.TemplateChanged, 0);
    window.mnuPopBlack.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 0);
}

TEST_F(TemplateEditorTest, LayoutRefreshKeepsColoursAndTheSavedState)
{
    type("red");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(255);
    window.TemplateChanged = 0;
    t.settings().TextFontName = "Courier New";
    window.mnuViewrefreshLayout.Click();
    EXPECT_EQ(pane.formatAt(0).colour, 255);
    EXPECT_EQ(pane.formatAt(0).fontName, "Courier New");
    EXPECT_EQ(pane.SelLength(), 3);
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(t.status(), "Layout refreshed ... (I wish I was!)");
}

TEST_F(TemplateEditorTest, UndoGoesBackWordByWordAndRedoForward)
{
    t.pressKeys(pane, "one two");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "");
    EXPECT_FALSE(window.mnuUndo.Enabled);
    window.mnuRedo.Click();
    window.mnuRedo.Click();
    EXPECT_EQ(text(), "one two");
    EXPECT_FALSE(window.mnuRedo.Enabled);
}

TEST_F(TemplateEditorTest, RepeatedBlanksAreOneUndoLevelAndLaterOnesTheirOwn)
{
    t.pressKeys(pane, "a  b c\r\rd");
    const auto undone = [this] {
        window.mnuUndo.Click();
        return text();
    };
    EXPECT_EQ(undone(), "a  b c");
    EXPECT_EQ(undone(), "a  b");
    EXPECT_EQ(undone(), "a");
    EXPECT_EQ(undone(), "");
    EXPECT_EQ(undone(), "") << "there is no more";
}

TEST_F(TemplateEditorTest, BackspacesRunningAreOneUndoLevel)
{
    t.pressKeys(pane, "abcd\b\bx\b");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "abx");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "abcd");
}

TEST_F(TemplateEditorTest, WhatWasUndoneStaysReachableBelowANewLevel)
{
    t.pressKeys(pane, "one two");
    window.mnuUndo.Click();
    t.pressKeys(pane, "X");
    EXPECT_EQ(text().size(), 4U);
    EXPECT_FALSE(window.mnuRedo.Enabled);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one two") << "the newest level before";
}

TEST_F(TemplateEditorTest, AsManyUndoLevelsAreKeptAsAreSet)
{
    t.settings().UndoMax = 2;
    t.pressKeys(pane, "a b c d e");
    EXPECT_EQ(window.Undo.Levels.size(), 3U);
    window.mnuUndo.Click();
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "a b c");
    EXPECT_FALSE(window.mnuUndo.Enabled);
}

TEST_F(TemplateEditorTest, AnUndoIsAChangeAndPutsTheCaretBack)
{
    t.pressKeys(pane, "one two");
    window.TemplateChanged = 0;
    pane.setSelStart(1);
    window.mnuUndo.Click();
    EXPECT_EQ(window.TemplateChanged, 1);
    EXPECT_EQ(pane.SelStart(), 3);
}

TEST_F(TemplateEditorTest, CutAndPasteAreUndoLevelsOfTheirOwn)
{
    t.pressKeys(pane, "one");
    window.mnuSelectAll.Click();
    window.mnuCut.Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(pane.SelIndent(), paragraphIndent) << "also of the empty text";
    EXPECT_EQ(t.clipboard.content.text, "one");
    window.mnuPaste.Click();
    window.mnuPaste.Click();
    EXPECT_EQ(text(), "oneone");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "one");
}

TEST_F(TemplateEditorTest, WithoutASelectionCutAndCopyLeaveTheClipboard)
{
    t.clipboard.content.text = "before";
    t.pressKeys(pane, "one");
    const std::size_t levels = window.Undo.Levels.size();
    window.mnuCopy.Click();
    window.mnuCut.Click();
    EXPECT_EQ(t.clipboard.content.text, "before");
    t.pressKeys(pane, "s");
    EXPECT_EQ(window.Undo.Levels.size(), levels) << "a cut of nothing opens no level";
}

TEST_F(TemplateEditorTest, TipsAreGivenUnlessTheyAreSwitchedOff)
{
    t.settings().OKtoShowToolTips = 1;
    UpdateTooltips(window);
    EXPECT_EQ(window.Command1[0].ToolTipText, "Open a template or text file");
    EXPECT_EQ(window.Command1[1].ToolTipText, "Save this file");
    EXPECT_EQ(window.Command1[2].ToolTipText, "New file");
    EXPECT_EQ(window.CmndPrint.ToolTipText, "Print this file");
    EXPECT_EQ(window.ToggleButton1.ToolTipText, "Wrap long lines at the edge of the window");
    t.settings().OKtoShowToolTips = 0;
    UpdateTooltips(window);
    for (Button& button : window.Command1) EXPECT_EQ(button.ToolTipText, "");
    EXPECT_EQ(window.CmndPrint.ToolTipText, "");
    EXPECT_EQ(window.ToggleButton1.ToolTipText, "");
}

TEST_F(TemplateEditorTest, FailuresOfTheEditCommandsAreReportedUnderTheirProcedures)
{
    const auto broken = [](const auto&...) { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); };
    const auto reported = [this] { return t.program().shared.errors.ErrorProcedure; };
    type("one");
    window.mnuSelectAll.Click();
    t.clipboard.content.text = "x";
    Connection listening = pane.edited.connect([&](const Pane::Edit&) { broken(); });
    window.mnuCut.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuCut_Click");
    window.mnuPaste.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuPaste_Click");
    listening.disconnect();
    listening = window.Find.Visible.changed.connect([&] { broken(); });
    window.mnuFind.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFind_Click");
    listening.disconnect();
    window.Find.What.Text = "one";
    type("one");
    listening = pane.selectionChanged.connect([&] { broken(); });
    window.mnuFindNext.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFindNext_Click");
    window.mnuFindPrevious.Click();
    EXPECT_EQ(reported(), "TEMPLATE mnuFindPrevious_Click");
}

TEST_F(TemplateEditorTest, UndoDoesNotReachIntoTheFileBefore)
{
    type("mine");
    window.TemplateChanged = 0;
    t.files.addFile(folder + "a.txt", "other");
    open(folder + "a.txt");
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "other");
}

TEST_F(TemplateEditorTest, ANegativeNumberOfUndoLevelsIsNone)
{
    t.settings().UndoMax = -5; // the settings file may say anything
    type("a");
    type("b");
    EXPECT_FALSE(window.mnuUndo.Enabled);
    window.mnuUndo.Click();
    EXPECT_EQ(text(), "ab");
}

TEST_F(TemplateEditorTest, TheClipboardCarriesColours)
{
    type("red");
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelColor(255);
    window.mnuCut.Click();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(t.clipboard.content.text, "red");
    window.mnuPaste.Click();
    EXPECT_EQ(text(), "red");
    EXPECT_EQ(pane.formatAt(0).colour, 255);
}

TEST_F(TemplateEditorTest, ThePopUpOffersWhatSelectionAndClipboardAllow)
{
    type("abc");
    popUpTemplateMenu(window, false);
    EXPECT_EQ(t.dialogues.popUps.back(), "mnuPopShow");
    EXPECT_FALSE(window.mnuCut.Enabled);
    EXPECT_FALSE(window.mnuCopy.Enabled);
    EXPECT_FALSE(window.mnuPaste.Enabled);
    window.mnuSelectAll.Click();
    t.clipboard.content.text = "x";
    popUpTemplateMenu(window, true);
    EXPECT_TRUE(window.mnuCut.Enabled);
    EXPECT_TRUE(window.mnuCopy.Enabled);
    EXPECT_TRUE(window.mnuPaste.Enabled);
}

TEST_F(TemplateEditorTest, ClosingAsksAndACancelKeepsItOpen)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    window.form.unload();
    EXPECT_EQ(box().text, "untitled.rtf has changed and isn't saved. Do you want to save it before exiting?");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 1);
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    window.form.unload();
    EXPECT_EQ(box().text, "untitled.rtf wasn't saved. Exit Template Editor aborted.");
    EXPECT_EQ(window.WindowOpen, 1);
    t.dialogues.answers = {Answer::No};
    window.form.unload();
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(TemplateEditorTest, TheProgramsExitAsksToo)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(text(), "mine");
    t.dialogues.answers = {Answer::No};
    EXPECT_TRUE(t.program().exit());
}

TEST_F(TemplateEditorTest, ATextOfTenMegabytesIsOpenedAndSaved)
{
    const std::string large(10 * 1024 * 1024, 'x');
    t.files.addFile(folder + "a.txt", large);
    open(folder + "a.txt");
    EXPECT_EQ(pane.TextLength(), large.size());
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "a.txt"), large);
}

TEST_F(TemplateEditorTest, ANewFontAndBackgroundOfThePreferencesAreItsOwnWhenItIsUsedAgain)
{
    type("abc");
    pane.setSelStart(0);
    pane.setSelLength(1);
    pane.setSelColor(255);
    window.TemplateChanged = 0;
    t.settings().TextFontSize = 14;
    t.settings().BackgroundColour = 0x123456;
    window.form.Activate();
    EXPECT_EQ(pane.BackColor, 0x123456);
    EXPECT_EQ(pane.formatAt(0).fontSize, 14);
    EXPECT_EQ(pane.formatAt(0).colour, 255);
    EXPECT_EQ(window.TemplateChanged, 0);
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

// ---- print
// -----------------------------------------------------------------------------------------------------------

TEST_F(TemplateEditorTest, PrintPrintsTheTextBelowItsNameAndTheDate)
{
    type("BTN S1 fire");
    window.CmndPrint.Click();
    ASSERT_EQ(t.printers.printer.pages.size(), 1U);
    const FakePrinter::Page& page = t.printers.printer.pages[0];
    EXPECT_EQ(page.lines, (std::vector<std::string>{"", "*untitled.rtf", "*Date printed: 21 November 2026", "", " "}));
    EXPECT_EQ(page.text, "BTN S1 fire");
    EXPECT_EQ(t.status(), "Finished printing untitled.rtf");
    window.mnuFilePrint.Click();
    EXPECT_EQ(t.printers.printer.ended, 2);
}

TEST_F(TemplateEditorTest, PrintOfAnEmptyPaneDoesNothing)
{
    t.printers.count = 0;
    window.mnuFilePrint.Click();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.printers.printer.pages.empty());
}

TEST_F(TemplateEditorTest, PrintWithoutAPrinterSaysSo)
{
    type("BTN S1 fire");
    t.printers.count = 0;
    window.CmndPrint.Click();
    EXPECT_EQ(box().title, "No printer to print to");
    EXPECT_EQ(box().text, "I couldn't detect a printer connected to your system. Please check your printer settings.");
}

} // namespace
} // namespace tarvex
