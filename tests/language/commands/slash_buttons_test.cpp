#include "language/commands/slash_buttons.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr std::size_t delayButton = 11;

struct SlashButtonsTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    Settings& settings = t.settings();
    Pane& joystick = editor.JoystickText;
    Pane& macro = editor.MacroText;

    void click(std::size_t index) { editor.FrameMacros.Command1[index].Click(); }
    std::string hover(std::size_t index)
    {
        Command1_MouseMove(editor, index);
        return t.status();
    }
};

TEST_F(SlashButtonsTest, EveryButtonHasItsCaption)
{
    const char* captions[] = {"/U", "/M", "/D", "/I", "/O", "/A", "/P", "/R", "/H", "/N", "/T", "DLY", "/Q"};
    for (std::size_t i = 0; i < 13; ++i) EXPECT_EQ(editor.FrameMacros.Command1[i].Caption.get(), captions[i]);
}

TEST_F(SlashButtonsTest, EveryButtonSaysWhatItDoes)
{
    const char* texts[] = {"Insert the /U (Up) slash modifier",
                           "Insert the /M (Middle) slash modifier",
                           "Insert the /D (Down) slash modifier",
                           "Insert the /I (In) slash modifier",
                           "Insert the /O (Out) slash modifier",
                           "Insert the /A (Force analogue) slash modifier",
                           "Insert the /P (Press) slash modifier",
                           "Insert the /R (Release) slash modifier",
                           "Insert the /H (Hold) slash modifier",
                           "Insert the /N (No repeat) slash modifier",
                           "Insert the /T (Toggle) slash modifier",
                           "Insert a DLY (Delay) statement - the delay value is adjustable from the Preferences window",
                           "Insert the /Q (Ignore initial repeat delay) slash modifier"};
    for (std::size_t i = 0; i < 13; ++i) EXPECT_EQ(hover(i), texts[i]);
}

TEST_F(SlashButtonsTest, ForTheHardwareThatHasItTheButtonFormatsAsRepeating)
{
    editor.FrameMacros.Command1[5].Caption = "/F";
    EXPECT_EQ(hover(5), "Insert the /F (Format as repeating) slash modifier");
    click(5);
    EXPECT_EQ(joystick.Text(), "/F ");
}

TEST_F(SlashButtonsTest, TheMouseEndsTheSizingPointer)
{
    editor.FrameMacros.MousePointer = MousePointer::SizeWestEast;
    hover(0);
    EXPECT_EQ(editor.FrameMacros.MousePointer.get(), MousePointer::Default);
}

TEST_F(SlashButtonsTest, AModifierComesInItsColourApartFromTheWordBefore)
{
    settings.InsertWithColour = 1;
    t.typeJoystick("BTN");
    click(6);
    EXPECT_EQ(joystick.Text(), "BTN /P ");
    EXPECT_EQ(joystick.formatAt(0).colour, 0);
    EXPECT_EQ(joystick.formatAt(4).colour, settings.SlashColour);
}

TEST_F(SlashButtonsTest, WithoutInsertWithColourAModifierIsPlain)
{
    settings.InsertWithColour = 0;
    t.typeJoystick("BTN");
    click(12);
    EXPECT_EQ(joystick.Text(), "BTN /Q ");
    EXPECT_EQ(joystick.formatAt(4).colour, 0);
}

TEST_F(SlashButtonsTest, AModifierIsBlackInTheMacroPane)
{
    settings.InsertWithColour = 1;
    editor.TabStrip1.Select(2);
    click(0);
    EXPECT_EQ(macro.Text(), "/U ");
    EXPECT_EQ(macro.formatAt(0).colour, 0);
}

TEST_F(SlashButtonsTest, ADelayComesWithTheDefaultValue)
{
    settings.InsertWithColour = 0;
    settings.DefaultDLYvalue = 75;
    t.typeJoystick("a");
    click(delayButton);
    EXPECT_EQ(joystick.Text(), "a DLY(75) ");
    EXPECT_EQ(joystick.runs().size(), 1U);
}

TEST_F(SlashButtonsTest, AColouredDelayKeepsItsValuePlain)
{
    settings.InsertWithColour = 1;
    settings.DefaultDLYvalue = 75;
    t.typeJoystick("a");
    click(delayButton);
    EXPECT_EQ(joystick.Text(), "a DLY(75) ");
    EXPECT_EQ(joystick.formatAt(2).colour, settings.RAWColour);
    EXPECT_EQ(joystick.formatAt(6).colour, 0);
    EXPECT_EQ(joystick.formatAt(8).colour, settings.RAWColour);
}

TEST_F(SlashButtonsTest, InTheMacroPaneTheClosingBracketOfADelayIsBlackAndItsWordColoured)
{
    settings.InsertWithColour = 1;
    editor.TabStrip1.Select(2);
    click(delayButton);
    EXPECT_EQ(macro.Text(), "DLY(" + std::to_string(settings.DefaultDLYvalue) + ") ");
    EXPECT_EQ(macro.formatAt(0).colour, settings.RAWColour);
    EXPECT_EQ(macro.formatAt(macro.TextLength() - 2).colour, 0);
}

TEST_F(SlashButtonsTest, TheMenuInsertsTheModifierThatItsEntryNames)
{
    settings.InsertWithColour = 0;
    MenuArray& menu = t.menus().mnuSlashModifierArray;
    std::string expected;
    for (int index = 0; index <= menu.UBound(); ++index) {
        menu[index].Click();
        expected += menu[index].Caption.get().substr(0, 2) + " ";
    }
    EXPECT_EQ(joystick.Text(), expected);
}

TEST_F(SlashButtonsTest, AClickIsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    settings.InsertWithColour = 1;
    t.typeJoystick("a");
    click(delayButton);
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "a");
}

} // namespace
} // namespace tarvex
