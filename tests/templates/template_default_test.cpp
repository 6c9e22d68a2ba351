#include "templates/template_editor_fixture.h"

#include "templates/template_files.h"

#include <functional>

namespace tarvex {
namespace {

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

TEST_F(TemplateEditorTest, EachCommandThatGivesTheTextUpAsksAndEndsWhereItCannotBeSaved)
{
    struct GivingUp {
        std::function<void()> command;
        std::string purpose;
        std::string refusal;
    };
    const std::string opening = "before opening another file?";
    const std::string refused = "I won't proceed in opening up another file";
    const GivingUp commands[] = {
        {[&] { window.Command1[0].Click(); }, opening, refused},
        {[&] { window.Command2.Click(); }, opening, refused},
        {[&] { window.mnuEditTmCFG.Click(); }, opening, refused},
        {[&] { window.Command1[2].Click(); }, "before creating a new file?", "I won't proceed in creating a new file"},
    };
    t.files.addFile("c:\\tm\\tm.cfg", "DLDELAY=20");
    t.files.addFile(folder + "default.rtf", "x");
    t.settings().TextFilePath = folder + "default.rtf";
    showDefaultTemplate(window);
    saveAs(folder + "a.txt");
    type("mine");
    t.files.failWrites(folder + "a.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    for (const GivingUp& one : commands) {
        t.dialogues.boxes.clear();
        t.dialogues.answers = {Answer::Yes};
        one.command();
        ASSERT_EQ(t.dialogues.boxes.size(), 3U);
        EXPECT_EQ(t.dialogues.boxes[0].title, " Save a.txt now?");
        EXPECT_EQ(t.dialogues.boxes[0].text,
                  "a.txt has changed and isn't saved. Do you want to save it " + one.purpose);
        EXPECT_EQ(box().title, "Ooops!");
        EXPECT_EQ(box().text, "a.txt wasn't saved for some reason. " + one.refusal);
        EXPECT_EQ(text(), "mine");
    }
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

TEST_F(TemplateEditorTest, TheCommandOfTheEditMenuOpensTheEditorAtADelayOnTheFirstLine)
{
    t.files.addFile("c:\\tm\\tm.cfg", "DLDELAY=20\r\n");
    window.form.unload();
    t.menus().mnuEditTmCFG.Click();
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(pane.SelText(), "DLDELAY");
}

TEST_F(TemplateEditorTest, ATmCfgThatBeginsLikeRtfIsPlainText)
{
    t.files.addFile("c:\\tm\\tm.cfg", "{\\rtf1 x}");
    window.mnuEditTmCFG.Click();
    EXPECT_EQ(text(), "{\\rtf1 x}");
}

TEST_F(TemplateEditorTest, TheFileMenuSetsTheDefaultAsThePopUpDoes)
{
    t.dialogues.filesToSave = {std::string(folder + "a.rtf")};
    window.mnuFileSetAsDefault.Click();
    EXPECT_EQ(t.settings().TextFilePath, "c:\\tarvex\\templates\\a.rtf");
}

TEST_F(TemplateEditorTest, ADefaultThatIsThereAfterThePreferencesCanBeOpenedAtOnce)
{
    t.files.addFile(folder + "a.rtf", "default");
    t.settings().TextFilePath = folder + "a.rtf";
    EXPECT_FALSE(window.Command2.Enabled);
    window.mnuEdTmpPrefs.Click();
    EXPECT_TRUE(window.Command2.Enabled);
}

TEST_F(TemplateEditorTest, ADefaultThatCannotBeReadIsNotSaidToBeOpened)
{
    t.files.addFile(folder + "a.rtf", "default");
    t.settings().TextFilePath = folder + "a.rtf";
    showDefaultTemplate(window);
    t.files.failReads(folder + "a.rtf", RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    window.Command2.Click();
    EXPECT_EQ(t.status().find("opened successfully"), std::string::npos) << t.status();
    EXPECT_EQ(text(), "");
}

} // namespace
} // namespace tarvex
