#include "support/test_program.h"
#include "wizards/wizards.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvex {
namespace {

struct JoystickWizardTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    JoystickWiz& window = t.program().wizards.joystick;
    std::vector<std::string> ran;

    JoystickWizardTest() { t.menus().mnuhelpWizCreateJoyFile.Click(); }

    void click(std::size_t action) { window.BTNinFrame.at(action).Click(); }
    void note(MenuItem& command)
    {
        command.handler = [this, &command] { ran.push_back(command.Name); };
    }
};

TEST_F(JoystickWizardTest, ComesUpOnTopAtItsFirstPageWithoutAWayBack)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_EQ(window.form.Caption, "The Joystick file wizard");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_FALSE(window.pages.foot[footButton::back].Enabled);
}

TEST_F(JoystickWizardTest, ButtonsSayWhatTheyDo)
{
    const std::map<std::size_t, std::string> captions{
        {0, "Open up a macro file"},
        {1, "Give me a new joystick file please"},
        {2, "Save this joystick file please"},
        {3, "Show me this Composer thing you're so proud of then"},
        {4, "Put me in the correct position in the joystick file please."},
        {5, "Clear the joystick file and insert a title please"},
        {6, "Show the Composer and its USE section please"},
        {7, "Let the Composer write a first statement please"},
        {8, "Show the Composer and its RATE section please"},
        {9, "Show the Composer with the main Composer tab selected please"}};
    for (const auto& [index, caption] : captions) EXPECT_EQ(window.BTNinFrame.at(index).Caption.get(), caption);
}

TEST_F(JoystickWizardTest, Page10IsTheLast)
{
    for (int page = 0; page < 9; ++page) window.pages.foot[footButton::next].Click();
    EXPECT_TRUE(window.pages.foot[footButton::next].Visible);
    EXPECT_EQ(window.pages.foot[footButton::close].Caption, "Cancel");
    window.pages.foot[footButton::next].Click();
    EXPECT_EQ(window.pages.PageNumber, 10);
    EXPECT_FALSE(window.pages.foot[footButton::next].Visible);
    EXPECT_EQ(window.pages.foot[footButton::close].Caption, "Finished");
}

TEST_F(JoystickWizardTest, ButtonsRunTheCommandsOfTheMenus)
{
    Menus& menus = t.menus();
    for (MenuItem* command : {&menus.MnuFileMacroLoad, &menus.mnuFileNewJoystick, &menus.mnuFileSave}) note(*command);
    for (const std::size_t action : {0U, 1U, 2U}) click(action);
    EXPECT_EQ(ran, (std::vector<std::string>{"MnuFileMacroLoad", "mnuFileNewJoystick", "mnuFileSave"}));
}

TEST_F(JoystickWizardTest, SavesTheJoystickFileAlsoWhenTheMacroFileIsOnTop)
{
    t.typeJoystick("BTN S1 a");
    t.typeMacro("a = b");
    editor.TabStrip1.Select(2);
    t.dialogues.filesToSave = {std::string("c:\\tm\\b50progs\\first.b50")};
    click(2);
    EXPECT_EQ(t.fileText("c:\\tm\\b50progs\\first.b50"), "BTN S1 a");
    EXPECT_EQ(editor.joystick.Changed, changed::saved);
    EXPECT_EQ(editor.macro.Changed, changed::modified);
    EXPECT_EQ(t.dialogues.saveRequests.size(), 1U);
}

TEST_F(JoystickWizardTest, ClosedHalfWayItBeginsAnewNextTime)
{
    window.pages.foot[footButton::next].Click();
    window.pages.foot[footButton::close].Click();
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_FALSE(window.form.Visible);
    t.menus().mnuhelpWizCreateJoyFile.Click();
    EXPECT_EQ(window.pages.PageNumber, 0);
}

TEST_F(JoystickWizardTest, PutsTheCaretAtTheStartOfTheJoystickFile)
{
    t.typeJoystick("BTN S1 a");
    editor.TabStrip1.Select(2);
    int focused = 0;
    const auto listening = editor.JoystickText.focusWanted.connect([&] { ++focused; });
    click(4);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
    EXPECT_EQ(editor.JoystickText.SelStart(), 0);
    EXPECT_EQ(editor.joystick.Caret, 0);
    EXPECT_GE(focused, 1);
}

TEST_F(JoystickWizardTest, ClearsAChangedFileWithoutAQuestionAndAsksForATitle)
{
    t.typeJoystick("BTN S1 a");
    editor.TabStrip1.Select(2);
    t.dialogues.whileModal = [this] {
        EXPECT_EQ(editor.JoystickText.Text(), "");
        Title& title = t.program().generators.title;
        title.Form.Visible = true;
        title.Command1.Click();
    };
    click(5);
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Title"});
    EXPECT_TRUE(editor.JoystickText.Text().starts_with("Rem ####"));
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(editor.JoystickText.Text(), "BTN S1 a");
}

TEST_F(JoystickWizardTest, ComposerButtonsOpenItAndShowTheirPlaceInIt)
{
    note(t.menus().mnuShowInsertWindow);
    const auto place = [this](const char* name) { return [this, name] { ran.emplace_back(name); }; };
    window.composer = {place("use"), place("statements"), place("rate"), place("main")};
    for (const std::size_t action : {3U, 6U, 7U, 8U, 9U}) click(action);
    EXPECT_EQ(ran,
              (std::vector<std::string>{"mnuShowInsertWindow", "mnuShowInsertWindow", "use", "mnuShowInsertWindow",
                                        "statements", "mnuShowInsertWindow", "rate", "mnuShowInsertWindow", "main"}));
}

TEST_F(JoystickWizardTest, TheComposerIsShownAtTheSectionThatAButtonNames)
{
    InsertOptions& composer = t.program().composer;
    t.menus().mnuShowInsertWindow.handler = [&composer] { composer.form.open(); };
    click(3);
    EXPECT_TRUE(composer.form.Visible);
    click(6);
    EXPECT_EQ(composer.SSTab1.Tab, composerPage::setUp);
    click(9);
    EXPECT_EQ(composer.SSTab1.Tab, composerPage::hardware);
    click(8);
    EXPECT_EQ(composer.SSTab1.Tab, composerPage::setUp);
    EXPECT_EQ(composer.fields.Text1[valueField::rate].Text, "80");
}

TEST_F(JoystickWizardTest, TheComposerWritesAPortStatementAndHides)
{
    click(7);
    EXPECT_EQ(editor.JoystickText.Text(), "PortB1 IS TG1 \r\n");
    EXPECT_FALSE(t.program().composer.form.Visible);
}

TEST_F(JoystickWizardTest, WithoutAComposerItsButtonsAreGrey)
{
    window.form.unload();
    t.menus().mnuShowInsertWindow.handler = nullptr;
    t.menus().mnuhelpWizCreateJoyFile.Click();
    for (const std::size_t action : {3U, 6U, 7U, 8U, 9U}) EXPECT_FALSE(window.BTNinFrame.at(action).Enabled) << action;
    EXPECT_TRUE(window.BTNinFrame.at(0).Enabled);
    note(t.menus().mnuShowInsertWindow);
    window.form.unload();
    t.menus().mnuhelpWizCreateJoyFile.Click();
    EXPECT_TRUE(window.BTNinFrame.at(3).Enabled);
}

TEST_F(JoystickWizardTest, StaysOpenWhileTheDocumentsChangeUnderIt)
{
    t.menus().mnuhelpWizCreateMacroFile.Click();
    t.menus().mnuInsertRAW.Click();
    t.files.addFile("c:\\tm\\b50progs\\a.b50", "BTN S1 one\r\n");
    t.files.addFile("c:\\tm\\b50progs\\a.m50", "one = a\r\n");
    t.openBoth("c:\\tm\\b50progs\\a.b50");
    click(4);
    EXPECT_EQ(editor.JoystickText.Text(), "BTN S1 one\r\n");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(t.program().wizards.macro.WindowOpen, 1);
}

TEST_F(JoystickWizardTest, GivesTheKeyboardToTheFileAlsoWhenItIsOnTop)
{
    int focused = 0;
    const auto listening = editor.JoystickText.focusWanted.connect([&] { ++focused; });
    for (const std::size_t action : {4U, 5U, 7U}) {
        focused = 0;
        editor.TabStrip1.Select(1);
        focused = 0;
        click(action);
        EXPECT_GE(focused, 1) << action;
    }
}

TEST_F(JoystickWizardTest, TheComposersPlacesComeUpFromAnyOfItsTabs)
{
    InsertOptions& composer = t.program().composer;
    t.menus().mnuShowInsertWindow.Click();
    composer.SSTab1.Tab = composerPage::setUp;
    click(7);
    EXPECT_EQ(composer.SSTab1.Tab, composerPage::hardware);
    int focused = 0;
    const auto listening = composer.Command1[0].focusWanted.connect([&] { ++focused; });
    click(6);
    EXPECT_EQ(focused, 1) << "the first button of the USE statements";
}

} // namespace
} // namespace tarvex
