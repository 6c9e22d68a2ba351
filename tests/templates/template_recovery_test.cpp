// What is unsaved in the Template Editor comes back after any end of the program.

#include "support/test_program.h"
#include "templates/template_editor.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

const std::string folder = "c:\\tarvex\\Templates\\";
constexpr const char* recoverFolder = "c:\\tarvex\\Recover";

struct TemplateRecovery : testing::Test {
    TestProgram t;

    TemplateRecovery()
    {
        t.files.addFile(folder + "hat.txt", "BTN H1U up\r\n");
        t.files.addFile(folder + "red.rtf", "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\cf1 red}");
        t.menus().mnuAppsTemplate.Click();
    }
    TemplateForm& window() { return t.program().templateEditor; }
    std::string text() { return window().TemplateText.Text(); }
    void type(const std::string& words)
    {
        window().TemplateText.EditComing();
        window().TemplateText.userEdit(0, 0, words);
    }
    void open(const std::string& name)
    {
        t.dialogues.filesToOpen = {folder + name};
        window().Command1[0].Click();
    }
    /// The program is gone without a word, and is started again.
    void killAndStart(std::deque<Answer> answers)
    {
        t.dialogues.boxes.clear();
        t.dialogues.answers = std::move(answers);
        t.start();
    }
    std::vector<std::string> kept()
    {
        return t.files.directoryExists(recoverFolder) ? t.files.list(recoverFolder) : std::vector<std::string>();
    }
};

TEST_F(TemplateRecovery, ANewTextComesBackInItsOpenWindow)
{
    type("BTN S1 a");
    killAndStart({Answer::Yes});
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().title, "Phew ... nothing's lost!");
    EXPECT_NE(t.lastBox().text.find("\n    untitled.rtf\n"), std::string::npos) << t.lastBox().text;
    EXPECT_TRUE(window().form.Visible);
    EXPECT_EQ(text(), "BTN S1 a");
    EXPECT_EQ(window().TemplateChanged, 1);
    EXPECT_EQ(window().Text1.Text, "untitled.rtf");
    EXPECT_EQ(t.editor().MacroText.Text(), "") << "the pair has nothing to do with it";
}

TEST_F(TemplateRecovery, AFileComesBackUnderItsNameWithTheSavedTextOneUndoAway)
{
    open("hat.txt");
    type("Rem new\r\n");
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "Rem new\r\nBTN H1U up\r\n");
    EXPECT_EQ(window().TemplateFullName, "c:\\tarvex\\templates\\hat.txt");
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "BTN H1U up\r\n") << "nothing is saved by itself";
    window().mnuUndo.Click();
    EXPECT_EQ(text(), "BTN H1U up\r\n");
    window().mnuRedo.Click();
    window().Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "hat.txt"), "Rem new\r\nBTN H1U up\r\n");
    EXPECT_TRUE(kept().empty());
}

TEST_F(TemplateRecovery, ColoursOfTheFileComeBackWithIt)
{
    open("red.rtf");
    type("more ");
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "more red");
    EXPECT_EQ(window().TemplateText.formatAt(6).colour, 255);
}

TEST_F(TemplateRecovery, WhatWasUndoneIsNotInTheTextThatComesBack)
{
    open("hat.txt");
    type("one ");
    type("two ");
    window().mnuUndo.Click();
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "one BTN H1U up\r\n");
}

TEST_F(TemplateRecovery, AFileThatHasChangedStaysAndTheTextIsUntitled)
{
    open("hat.txt");
    type("mine ");
    t.files.addFile(folder + "hat.txt", "BTN H1U theirs\r\n");
    killAndStart({Answer::Yes});
    EXPECT_NE(t.lastBox().text.find("hat.txt isn't what it was then, so I'd leave the file alone and call yours "
                                    "untitled.rtf."),
              std::string::npos)
        << t.lastBox().text;
    EXPECT_EQ(text(), "mine BTN H1U up\r\n");
    EXPECT_EQ(window().Text1.Text, "untitled.rtf");
    EXPECT_EQ(window().TemplateFullName, "");
}

TEST_F(TemplateRecovery, TheSavedTextOfAFileThatHasChangedIsOneUndoAwayInTheUsualLook)
{
    open("hat.txt");
    type("mine ");
    t.files.addFile(folder + "hat.txt", "BTN H1U theirs\r\n");
    killAndStart({Answer::Yes});
    window().mnuUndo.Click();
    EXPECT_EQ(text(), "BTN H1U up\r\n");
    EXPECT_FALSE(window().mnuUndo.Enabled);
    EXPECT_EQ(window().TemplateText.formatAt(0).fontName, t.settings().TextFontName);
    EXPECT_EQ(window().TemplateText.formatAt(0).indent, 20);
}

TEST_F(TemplateRecovery, AChangeInTheMiddleComesBackInItsPlaceWithTheCaretBehindIt)
{
    open("hat.txt");
    window().TemplateText.EditComing();
    window().TemplateText.userEdit(8, 2, "down");
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "BTN H1U down\r\n");
    EXPECT_EQ(window().TemplateText.SelStart(), 12);
    EXPECT_EQ(window().TemplateText.SelLength(), 0);
    EXPECT_EQ(window().TemplateChanged, 1);
    window().mnuUndo.Click();
    EXPECT_EQ(text(), "BTN H1U up\r\n");
}

TEST_F(TemplateRecovery, ADeletionComesBackToo)
{
    open("hat.txt");
    window().TemplateText.EditComing();
    window().TemplateText.userEdit(7, 3, "");
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "BTN H1U\r\n");
    EXPECT_EQ(window().TemplateChanged, 1);
}

TEST_F(TemplateRecovery, AfterASecondEndTheSavedTextOfAChangedFileIsStillOneUndoAway)
{
    open("hat.txt");
    type("mine ");
    t.files.addFile(folder + "hat.txt", "BTN H1U theirs\r\n");
    killAndStart({Answer::Yes});
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "mine BTN H1U up\r\n");
    window().mnuUndo.Click();
    EXPECT_EQ(text(), "BTN H1U up\r\n");
}

TEST_F(TemplateRecovery, IsOfferedInAQuestionOfItsOwnBehindThatOfThePair)
{
    t.typeJoystick("BTN S1 joystick");
    t.typeMacro("macro = m");
    type("template");
    killAndStart({Answer::Yes, Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 joystick");
    EXPECT_EQ(t.editor().MacroText.Text(), "macro = m");
    EXPECT_EQ(text(), "template");
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    killAndStart({Answer::No, Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "");
    EXPECT_EQ(text(), "template");
    killAndStart({Answer::No});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(text(), "");
}

TEST_F(TemplateRecovery, TextThatCameBackIsKeptAsWellAsNew)
{
    type("1");
    killAndStart({Answer::Yes});
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "1");
    type("2");
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "21");
}

TEST_F(TemplateRecovery, ANoPutsTheTextIntoAFileThatIsNotAskedAboutAgain)
{
    type("mine");
    killAndStart({Answer::No});
    EXPECT_FALSE(window().form.Visible);
    EXPECT_EQ(t.fileText(std::string(recoverFolder) + "\\untitled.rtf"), "mine");
    killAndStart({});
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(TemplateRecovery, NothingIsKeptOfWhatWasSavedOrGivenUp)
{
    open("hat.txt");
    type("saved ");
    EXPECT_EQ(kept().size(), 1U);
    window().Command1[1].Click();
    EXPECT_TRUE(kept().empty());

    type("given up ");
    EXPECT_EQ(kept().size(), 1U);
    t.dialogues.answers = {Answer::No};
    window().Command1[2].Click();
    EXPECT_TRUE(kept().empty());

    type("closed ");
    t.dialogues.answers = {Answer::No};
    window().form.unload();
    EXPECT_TRUE(kept().empty());
}

TEST_F(TemplateRecovery, AnExitLeavesNothing)
{
    type("mine");
    t.dialogues.answers = {Answer::No};
    EXPECT_TRUE(t.program().exit());
    EXPECT_TRUE(kept().empty());
}

TEST_F(TemplateRecovery, AJournalThatCannotBeWrittenIsReportedAndTriedAgain)
{
    t.files.failAppends(RuntimeError(ErrorCode::DiskFull, "Disk full"));
    type("mine");
    type("mine ");
    EXPECT_NE(t.status().find("I can't take notes"), std::string::npos) << "it stays: " << t.status();
    t.files.failAppends(std::nullopt);
    t.editor().TimerJournal.Tick();
    killAndStart({Answer::Yes});
    EXPECT_EQ(text(), "mine mine");
}

} // namespace
} // namespace tarvex
