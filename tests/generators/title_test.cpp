#include "generators/title.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

const std::string border = "Rem ################################################\r\n";
const std::string emptyLine = "Rem\r\n";

std::string centred(std::size_t blanks, const std::string& text)
{
    return "Rem " + std::string(blanks, ' ') + text + "\r\n";
}

struct TitleTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Title& window = t.program().generators.title;

    /// The command of the menu; the user fills in the dialogue and clicks OK.
    void insertTitle(const std::function<void()>& fillIn = [] {})
    {
        t.dialogues.whileModal = [this, fillIn] {
            window.Form.Visible = true;
            fillIn();
            window.Command1.Click();
            EXPECT_FALSE(window.Form.Visible);
        };
        t.menus().mnuInsertTitle.Click();
    }
    /// The dialogue comes up and is cancelled.
    void look(const std::function<void()>& look)
    {
        t.dialogues.whileModal = [this, look] {
            window.Form.Visible = true;
            look();
            window.Command2.Click();
            EXPECT_FALSE(window.Form.Visible);
        };
        t.menus().mnuInsertTitle.Click();
    }
    const std::string& joystick() const { return editor.JoystickText.Text(); }
};

TEST_F(TitleTest, ComesUpWithWhatTheProgramKnows)
{
    t.settings().ThrottleName = 1;
    t.settings().ValidUser = "Ned";
    t.desktop.today = "Saturday, 21 November 2026";
    look([this] {
        EXPECT_EQ(window.Text1.Text, "untitled.b50");
        EXPECT_EQ(window.Text2.Text, "eg. F22 ADF");
        EXPECT_EQ(window.Text3.Text, "Ned");
        EXPECT_EQ(window.Text4.Text, "Saturday, 21 November 2026");
        EXPECT_EQ(window.Text5.Text, "F-16 FLCS, TQS, no rudders.");
    });
    EXPECT_EQ(t.dialogues.modalForms, std::vector<std::string>{"Title"});
    EXPECT_EQ(joystick(), "");
}

TEST_F(TitleTest, NamesTheFileOfTheSelectedTab)
{
    editor.TabStrip1.Select(2);
    look([this] { EXPECT_EQ(window.Text1.Text, "untitled.m50"); });
}

TEST_F(TitleTest, HardwareThatIsNotKnownShowsAnExample)
{
    t.settings().JoyName = 99;
    t.settings().ThrottleName = 99;
    t.settings().RudderName = 99;
    look([this] { EXPECT_EQ(window.Text5.Text, "eg. F22 Pro and TQS"); });
}

TEST_F(TitleTest, TheGameStaysForTheNextTitle)
{
    insertTitle([this] { window.Text2.Text = "Red Kestrel"; });
    look([this] { EXPECT_EQ(window.Text2.Text, "Red Kestrel"); });
}

TEST_F(TitleTest, WritesABoxOfCentredLines)
{
    t.settings().ValidUser = "Ned";
    insertTitle([this] {
        window.Text1.Text = "mig.b50";
        window.Text2.Text = "Mig Alley";
        window.Text5.Text = "FLCS";
    });
    EXPECT_EQ(joystick(), border + emptyLine + centred(16, "mig.b50 for Mig Alley") + emptyLine +
                              centred(23, "by Ned") + emptyLine + centred(10, "last modified: 21 November 2026") +
                              emptyLine + centred(16, "For: FLCS combination") + emptyLine + border + "\r\n");
}

TEST_F(TitleTest, ANameAndAGameOf46CharactersStandDirectlyAfterRem)
{
    insertTitle([this] {
        window.Text1.Text = "mig.b50";
        window.Text2.Text = std::string(46 - 7 - 5, 'g');
    });
    EXPECT_NE(joystick().find("\r\nRem mig.b50 for ggg"), std::string::npos) << joystick();
}

TEST_F(TitleTest, GoesToTheStartWhereverTheCaretWas)
{
    t.typeJoystick("BTN S1 a\r\nBTN S2 b\r\n");
    editor.JoystickText.setSelStart(12);
    insertTitle();
    EXPECT_TRUE(joystick().starts_with(border));
    EXPECT_TRUE(joystick().ends_with(border + "\r\nBTN S1 a\r\nBTN S2 b\r\n"));
}

TEST_F(TitleTest, ASelectionStays)
{
    t.typeJoystick("BTN S1 a\r\n");
    editor.JoystickText.setSelStart(0);
    editor.JoystickText.setSelLength(8);
    insertTitle();
    EXPECT_TRUE(joystick().ends_with("BTN S1 a\r\n"));
}

TEST_F(TitleTest, IsOfTheColourOfCommentsInTheMacroPaneToo)
{
    t.settings().RemStatements = 0x123456;
    editor.TabStrip1.Select(2);
    insertTitle();
    EXPECT_TRUE(editor.MacroText.Text().starts_with(border));
    EXPECT_EQ(editor.MacroText.formatAt(0).colour, 0x123456);
    EXPECT_EQ(editor.MacroText.formatAt(70).colour, 0x123456);
}

TEST_F(TitleTest, WithoutInsertWithColourItIsPlain)
{
    t.settings().InsertWithColour = 0;
    insertTitle();
    EXPECT_EQ(editor.JoystickText.formatAt(0).colour, 0);
}

TEST_F(TitleTest, LinesOfTheCommentAreCentredWithTheirLineEnds)
{
    insertTitle([this] { window.RichTextBox1.userEdit(0, 0, "four\r\nseven77\r\nsix666"); });
    const std::string rest = joystick().substr(joystick().find("combination"));
    EXPECT_EQ(rest, "combination\r\n" + emptyLine + emptyLine + centred(23, "four") + centred(22, "seven77") +
                        centred(23, "six666") + emptyLine + border + "\r\n");
}

TEST_F(TitleTest, ALineEndAtTheEndOfTheCommentLeavesAnEmptyLine)
{
    insertTitle([this] { window.RichTextBox1.userEdit(0, 0, "four\r\n"); });
    const std::string rest = joystick().substr(joystick().find("combination"));
    EXPECT_EQ(rest,
              "combination\r\n" + emptyLine + emptyLine + centred(23, "four") + "\r\n" + emptyLine + border + "\r\n");
}

TEST_F(TitleTest, GetCommentLineSelectsTheLineWithItsLineEnd)
{
    window.RichTextBox1.userEdit(0, 0, "four\r\n\r\nlast");
    std::int64_t length = 0;
    EXPECT_EQ(GetCommentLine(window, 0, length), "four\r\n");
    EXPECT_EQ(length, 6);
    EXPECT_EQ(GetCommentLine(window, 1, length), "\r\n");
    EXPECT_EQ(GetCommentLine(window, 2, length), "last");
    EXPECT_EQ(length, 4);
    EXPECT_EQ(window.RichTextBox1.SelStart(), 8);
    EXPECT_EQ(window.RichTextBox1.SelLength(), 4);
}

TEST_F(TitleTest, GetCommentLineBeyondTheLastLineIsEmpty)
{
    window.RichTextBox1.userEdit(0, 0, "four");
    std::int64_t length = -1;
    EXPECT_EQ(GetCommentLine(window, 7, length), "");
    EXPECT_EQ(length, 0);
}

TEST_F(TitleTest, ACommentOfFiveHundredLinesIsWrittenWhole)
{
    std::string comment;
    for (int line = 1; line <= 500; ++line) comment += "line " + std::to_string(line) + "\r\n";
    insertTitle([&] { window.RichTextBox1.userEdit(0, 0, comment); });
    for (const char* line : {" line 1\r\n", " line 250\r\n", " line 500\r\n"})
        EXPECT_NE(joystick().find(line), std::string::npos) << line;
}

TEST_F(TitleTest, KeepsTheUsersNameInTheSettings)
{
    insertTitle([this] { window.Text3.Text = "J\xC3\xB6rg"; });
    EXPECT_EQ(t.settings().ValidUser, "J\xC3\xB6rg");
    EXPECT_EQ(t.ini("Miscellaneous", "ValidUser"), "J\xC3\xB6rg");
    EXPECT_NE(joystick().find("by J\xF6rg\r\n"), std::string::npos);
}

TEST_F(TitleTest, CancelKeepsNoName)
{
    look([this] { window.Text3.Text = "somebody"; });
    EXPECT_EQ(t.settings().ValidUser, "User unknown");
}

TEST_F(TitleTest, IsOneUndoStep)
{
    t.typeJoystick("BTN S1 a");
    insertTitle();
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick(), "BTN S1 a");
}

TEST_F(TitleTest, IntoAProtectedMacroFileNothingIsWritten)
{
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    insertTitle();
    EXPECT_EQ(editor.MacroText.Text(), "");
    EXPECT_EQ(t.status(), "untitled.m50 is protected and can't be edited.");
}

TEST_F(TitleTest, ACommentOfOneLetterAndALastLineOfOneLetterAreWritten)
{
    insertTitle([this] { window.RichTextBox1.userEdit(0, 0, "x"); });
    EXPECT_NE(joystick().find("combination\r\n" + emptyLine + emptyLine + centred(26, "x") + emptyLine + border),
              std::string::npos)
        << joystick();
    editor.JoystickText.setText("");
    insertTitle([this] { window.RichTextBox1.userEdit(1, 0, "\r\ny"); });
    EXPECT_NE(joystick().find(centred(26, "y") + emptyLine + border), std::string::npos) << joystick();
}

} // namespace
} // namespace tarvex
