#include "composer/composer.h"

#include "composer/composer_fixture.h"
#include "composer/macro_tab.h"
#include "platform/input.h"
#include "platform/key_codes.h"

#include <gmock/gmock.h>

#include <iterator>
#include <utility>

namespace tarvex {
namespace {

std::string ini(TestProgram& t, const char* key) { return t.ini("Miscellaneous", key); }

/// A program whose settings say something before the Composer is opened.
struct ComposerStart : testing::Test {
    TestProgram t{false};
    InsertOptions& open()
    {
        t.start();
        InsertOptions& window = t.program().composer;
        window.form.open();
        window.form.Activate();
        return window;
    }
    void set(const char* key, const char* value) { t.setIni("Miscellaneous", key, value); }
};

TEST_F(ComposerStart, WithoutSettingsTheWindowHasTheDefaults)
{
    InsertOptions& window = open();
    EXPECT_EQ(window.fields.Text1[valueField::blanks].Text.get(), "5");
    EXPECT_EQ(window.fields.TextRPT.Text.get(), "2");
    EXPECT_EQ(window.fields.DLYText.Text.get(), "60");
    EXPECT_EQ(window.flags.TxtFlag[4].Text.get(), "60");
    EXPECT_FALSE(window.CheckAlwaysInsert.Value);
    EXPECT_FALSE(window.macros.CheckAddCR.Value);
    EXPECT_TRUE(window.Check2FocusThang.Value);
    EXPECT_FALSE(window.macros.CheckCopyTicks.Value);
    EXPECT_TRUE(window.Check1.Value);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_FALSE(window.HighlightStatement.Value);
    EXPECT_TRUE(window.CheckShowAssigned.Value);
    EXPECT_EQ(window.form.Top.get(), 10);
    EXPECT_EQ(window.form.Left.get(), 10);
}

TEST_F(ComposerStart, TheWindowShowsTheSettings)
{
    set("NumberOfBlanks", "9");
    set("DefaultRPTvalue", "4");
    set("DefaultDLYvalue", "150");
    set("AlwaysInsert", "1");
    set("COMPaddCR", "1");
    set("COMPreturnFocus", "0");
    set("COMPMacrosTickedCopy", "1");
    set("CompTabsAddCr", "0");
    set("CompOnTop", "0");
    set("HighlightDefinitions", "1");
    set("ComposerTop", "300");
    set("ComposerLeft", "400");
    InsertOptions& window = open();
    EXPECT_EQ(window.fields.Text1[valueField::blanks].Text.get(), "9");
    EXPECT_EQ(window.fields.TextRPT.Text.get(), "4");
    EXPECT_EQ(window.fields.DLYText.Text.get(), "150");
    EXPECT_TRUE(window.CheckAlwaysInsert.Value);
    EXPECT_TRUE(window.macros.CheckAddCR.Value);
    EXPECT_FALSE(window.Check2FocusThang.Value);
    EXPECT_TRUE(window.macros.CheckCopyTicks.Value);
    for (CheckBox& box : window.CheckMultiAddCR) EXPECT_FALSE(box.Value);
    EXPECT_FALSE(window.Check1.Value);
    EXPECT_FALSE(window.form.TopMost);
    EXPECT_TRUE(window.HighlightStatement.Value);
    EXPECT_EQ(window.form.Top.get(), 300);
    EXPECT_EQ(window.form.Left.get(), 400);
}

TEST_F(ComposerStart, APlaceOutsideOfTheScreenBecomes200)
{
    set("ComposerTop", "-1");
    set("ComposerLeft", "19201"); // the screen has 19,200 twips
    InsertOptions& window = open();
    EXPECT_EQ(window.form.Top.get(), 200);
    EXPECT_EQ(window.form.Left.get(), 200);
}

TEST_F(ComposerStart, APlaceAtTheEdgeOfTheScreenStays)
{
    set("ComposerTop", "0");
    set("ComposerLeft", "19200");
    InsertOptions& window = open();
    EXPECT_EQ(window.form.Top.get(), 0);
    EXPECT_EQ(window.form.Left.get(), 19200);
}

TEST_F(ComposerStart, SettingsOfEveryWrongKindOpenTheWindowAllTheSame)
{
    for (const char* key : {"NumberOfBlanks", "DefaultRPTvalue", "DefaultDLYvalue", "AlwaysInsert", "COMPaddCR",
                            "COMPreturnFocus", "COMPMacrosTickedCopy", "ComposerTop", "ComposerLeft", "ComposerImages"})
        set(key, "xyzzy");
    t.setIni("FileLocations", "JoyName", "-7");
    t.setIni("FileLocations", "ThrottleName", "99999999999");
    InsertOptions& window = open();
    EXPECT_TRUE(window.form.Visible);
    window.BTN[0].Click();
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 ");
}

TEST(ComposerWidth, OnANarrowScreenTheWindowLeavesTheTextMoreRoom)
{
    const auto pixels = [](float screen) { return composerWidth(screen * twipsPerPixel) / twipsPerPixel; };
    EXPECT_FLOAT_EQ(pixels(800), 900); // the view makes it as narrow as the screen
    EXPECT_FLOAT_EQ(pixels(1440), 900);
    EXPECT_FLOAT_EQ(pixels(1500), 937.5F);
    EXPECT_FLOAT_EQ(pixels(1568), 980);
    EXPECT_FLOAT_EQ(pixels(1920), 980);
}

TEST_F(ComposerTest, LoadedItIsOpenAndHiddenItStaysLoaded)
{
    EXPECT_EQ(window.ComposerOpen, 1);
    window.fields.RemTextBox.Text = std::string("kept");
    window.Command6.Click();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.ComposerOpen, 1);
    show();
    EXPECT_EQ(window.fields.RemTextBox.Text.get(), "kept");
}

TEST_F(ComposerTest, ClosingUnloadsItAndWritesItsSettings)
{
    window.fields.Text1[valueField::blanks].Text = std::string("7");
    window.fields.TextRPT.Text = std::string("6");
    window.form.Top = 150;
    window.form.Left = 90000;
    window.form.Close();
    EXPECT_EQ(window.ComposerOpen, 0);
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(ini(t, "NumberOfBlanks"), "7");
    EXPECT_EQ(ini(t, "DefaultRPTvalue"), "6");
    EXPECT_EQ(ini(t, "DefaultDLYvalue"), "60");
    EXPECT_EQ(ini(t, "ComposerTop"), "150");
    EXPECT_EQ(ini(t, "ComposerLeft"), "200");
}

TEST_F(ComposerTest, ClosedItForgetsWhatWasWrittenAndHeldAndTheNextLoadStartsAnew)
{
    window.SSTab1.Tab = composerPage::flags;
    for (TextBox* field : {&window.fields.Rng1[0], &window.fields.Thr2[3], &window.fields.RemTextBox,
                           &window.fields.Text1[valueField::rate], &window.flags.TxtFlag[0]})
        field->Text = std::string("x");
    window.flags.RichTexFlag[5].setText("DEF X6 S1");
    window.flags.OptionFlag[5].Click();
    window.flags.FlagList[0].ListIndex = 3;
    window.ToggleButton1[axisToggle::rddr].Click();
    rotary(7);
    window.form.Close();
    show();
    for (const TextBox* field : {&window.fields.Rng1[0], &window.fields.Thr2[3], &window.fields.RemTextBox,
                                 &window.fields.Text1[valueField::rate], &window.flags.TxtFlag[0]})
        EXPECT_EQ(field->Text.get(), "");
    EXPECT_EQ(window.fields.DLYText.Text.get(), "60");
    EXPECT_EQ(window.fields.TextRPT.Text.get(), "2");
    EXPECT_EQ(window.flags.RichTexFlag[5].Text(), "");
    EXPECT_EQ(window.flags.CurrentFlag, 0);
    EXPECT_EQ(window.flags.FlagList[0].ListIndex, -1);
    EXPECT_TRUE(window.ToggleButton1[axisToggle::jsx].isHeld());
    EXPECT_EQ(window.SSTab1.Tab, composerPage::hardware);
    button(0);
    EXPECT_EQ(joystick.Text(), "BTN S1 ") << "no port is waiting for a bare name";
}

TEST_F(ComposerTest, AMinimisedWindowKeepsThePlaceThatWasWritten)
{
    window.form.Top = 150;
    SaveSpaces(window);
    window.form.State = WindowState::Minimised;
    window.form.Top = 700;
    window.form.Close();
    EXPECT_EQ(ini(t, "ComposerTop"), "150");
}

TEST_F(ComposerTest, WhatIsNoNumberInAFieldLeavesItsSetting)
{
    window.fields.Text1[valueField::blanks].Text = std::string("many");
    window.fields.TextRPT.Text = std::string("99999");
    window.form.Close();
    EXPECT_EQ(ini(t, "NumberOfBlanks"), "5");
    EXPECT_EQ(ini(t, "DefaultRPTvalue"), "2");
}

TEST_F(ComposerTest, KeepOnTopIsWrittenAtOnce)
{
    window.Check1.Value = false;
    window.Check1.Click();
    EXPECT_FALSE(window.form.TopMost);
    EXPECT_EQ(settings.CompOnTop, 0);
    EXPECT_EQ(ini(t, "CompOnTop"), "0");
}

TEST_F(ComposerTest, TheOtherTicksAreSettings)
{
    const std::pair<CheckBox*, const char*> ticks[] = {{&window.CheckAlwaysInsert, "AlwaysInsert"},
                                                       {&window.Check2FocusThang, "COMPreturnFocus"},
                                                       {&window.HighlightStatement, "HighlightDefinitions"}};
    for (const auto& [box, key] : ticks) {
        for (const bool on : {true, false}) {
            box->Value = on;
            box->Click();
            EXPECT_EQ(ini(t, key), on ? "1" : "0") << key;
        }
    }
}

TEST_F(ComposerTest, ThePresetOfDelaysComesBackWithTheWindow)
{
    window.fields.DLYText.Text = std::string("1");
    settings.DefaultDLYvalue = 90;
    window.form.Activate();
    EXPECT_EQ(window.fields.DLYText.Text.get(), "90");
    EXPECT_EQ(window.flags.TxtFlag[4].Text.get(), "90");
}

TEST_F(ComposerTest, TipsFollowTheirSetting)
{
    settings.OKtoShowToolTips = 1;
    window.form.Activate();
    EXPECT_EQ(window.BTN[0].ToolTipText.get(), "Insert or find this button statement");
    EXPECT_EQ(window.BTN[6].ToolTipText.get(), "Insert or find this trigger statement");
    EXPECT_EQ(window.HAT[2].ToolTipText.get(), "Insert or find this hat statement");
    const char* rotaries[] = {"Insert or find the Range rotary",
                              "Insert or find the Antenna rotary",
                              "Setup your rudders",
                              "Setup for digital joystick x axis",
                              "Swap the trigger positions around",
                              "Set up for digital throttle use as opposed to normal analogue",
                              "Setup for digital joystick y axis",
                              "Assign a hat or button as an analogue switch",
                              "Set up your rudders",
                              "Set up for digital throttle use as opposed to normal analogue"};
    for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(window.ROTARY[i].ToolTipText.get(), rotaries[i]);
    EXPECT_EQ(window.Check1.ToolTipText.get(), "Keep the Composer above the Editor");
    EXPECT_EQ(window.Command10.ToolTipText.get(), "Clear the text above");
    settings.OKtoShowToolTips = 0;
    window.form.Activate();
    EXPECT_EQ(window.BTN[0].ToolTipText.get(), "");
    EXPECT_EQ(window.Check1.ToolTipText.get(), "");
}

TEST_F(ComposerTest, TheFootLeadsToSafeinThePreferencesAndTheInsertionPoint)
{
    write("abc");
    window.Command5[2].Click();
    EXPECT_TRUE(editor.TimerBlinkLine.Enabled);
    window.Command5[0].Click();
    EXPECT_TRUE(t.program().safein.form.Visible);
    window.Command5[1].Click();
    EXPECT_THAT(t.dialogues.modalForms, testing::ElementsAre("Preferences"));
}

TEST_F(ComposerTest, AQuestionMarkSaysWhatHidingIsGoodFor)
{
    window.Command14.Click();
    EXPECT_EQ(t.lastBox().text, "Keep the Composer in memory for increased speed");
}

TEST_F(ComposerTest, KeysAreThoseOfTheProgram)
{
    write("abc");
    EXPECT_TRUE(window.form.KeyDown('A', shiftKey::ctrl));
    EXPECT_EQ(joystick.SelLength(), 3);
    EXPECT_FALSE(window.form.KeyDown('A', shiftKey::none));
    window.form.KeyDown(keyCode::f4, shiftKey::none);
    EXPECT_EQ(window.form.State.get(), WindowState::Minimised);
}

TEST_F(ComposerTest, OthersBringUpAPageAndTheFieldOfRATE)
{
    window.form.Close();
    int asked = 0;
    const Connection focus = window.fields.Text1[valueField::rate].focusWanted.connect([&asked] { ++asked; });
    showComposerRate(window, "80");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.SSTab1.Tab.get(), composerPage::setUp);
    EXPECT_EQ(window.fields.Text1[valueField::rate].Text.get(), "80");
    EXPECT_EQ(asked, 1);
    showComposerPage(window, composerPage::hardware);
    EXPECT_EQ(window.SSTab1.Tab.get(), composerPage::hardware);
}

TEST_F(ComposerTest, EscHidesItAndTheCommandsAndOtherUnitsBringItUp)
{
    window.form.Escape();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.ComposerOpen, 1);
    t.menus().mnuShowInsertWindow.Click();
    EXPECT_TRUE(window.form.Visible);
    window.form.Close();
    t.menus().mnuComposerPlugin.Click();
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.SSTab7.Tab.get(), listPage::templates);
    t.program().operations.UnloadForm("InsertOptions");
    EXPECT_EQ(window.ComposerOpen, 0);
}

TEST_F(ComposerTest, ALoadShowsEverythingBeforeTheWindowComesToTheFront)
{
    window.form.Close();
    t.files.addFile("c:\\tm\\a.b50", "BTN S1 Fire\r\n");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\n");
    t.openBoth("c:\\tm\\a.b50");
    t.files.addFile("c:\\tarvex\\Templates\\hat.rtf", "hat");
    t.setIni("Miscellaneous", "DefaultDLYvalue", "77");
    settings.DefaultDLYvalue = 77;
    settings.CompTabsAddCr = 1;
    settings.HighlightDefinitions = 1;
    settings.BackgroundColour = 0x123456;
    settings.JoyName = 2;
    window.SSTabHardware.Tab = hardwarePage::tqs;
    window.SSTab7.Tab = listPage::templates;
    window.SSTabFlags.Tab = 1;
    window.mnuRHList.Visible = true;
    for (CheckBox& box : window.CheckMultiAddCR) box.Value = false;
    window.BTN[0].ToolTipText = std::string();
    window.form.open();
    EXPECT_EQ(window.SSTabHardware.Tab.get(), hardwarePage::otherSticks);
    EXPECT_FALSE(window.SSTabHardware.Pages(hardwarePage::f22AndF16).Visible);
    EXPECT_EQ(window.SSTab7.Tab.get(), listPage::macros);
    EXPECT_EQ(window.SSTabFlags.Tab.get(), 0);
    EXPECT_FALSE(window.mnuRHList.Visible);
    for (const CheckBox& box : window.CheckMultiAddCR) EXPECT_TRUE(box.Value);
    EXPECT_TRUE(window.HighlightStatement.Value);
    EXPECT_NE(window.BTN[0].ToolTipText.get(), "");
    EXPECT_EQ(window.fields.DLYText.Text.get(), "77");
    EXPECT_EQ(window.templates.Templates.Items.get(), std::vector<std::string>{"hat.rtf"});
    EXPECT_EQ(window.templates.TemplatesPreview.BackColor.get(), 0x123456);
    ASSERT_EQ(window.macros.List1[0].Items.get().size(), 1U);
    EXPECT_EQ(window.macros.List1[0].Items.get()[0].Text, "Fire");
}

TEST_F(ComposerTest, TheTickOnCarriageReturnsIsOnAllPages)
{
    const bool before = window.CheckMultiAddCR[0].Value;
    window.CheckMultiAddCR[0].Value = !before;
    window.CheckMultiAddCR[0].Click();
    for (const CheckBox& box : window.CheckMultiAddCR) EXPECT_EQ(box.Value.get(), !before);
}

TEST_F(ComposerTest, ItsButtonsAndTicksAreNamed)
{
    const std::pair<const Button*, std::string> buttons[] = {
        {&window.Command5[0], "&Safein"},
        {&window.Command5[1], "&Prefs"},
        {&window.Command5[2], "&Find IP"},
        {&window.Command6, "&Hide"},
        {&window.Command14, "?"},
        {&window.mice.Command9, "Insert"},
        {&window.templates.Command11[0], "Insert into Joystick file"},
        {&window.templates.Command11[1], "Insert into Macro file"},
        {&window.templates.Command11[2], "Refresh"}};
    for (const auto& [button, caption] : buttons) EXPECT_EQ(button->Caption.get(), caption);
    const std::pair<const CheckBox*, std::string> boxes[] = {
        {&window.CheckAlwaysInsert, "Always insert &BTN statement"},
        {&window.Check2FocusThang, "&Return focus to Editor"},
        {&window.HighlightStatement, "High&light definitions "},
        {&window.Check1, "&Keep on top"},
        {&window.CheckShowAssigned, "Sho&w what is assigned"},
        {&window.macros.CheckAddCR, "Add carriage return"},
        {&window.macros.CheckCopyTicks, "Copy the ticks too"}};
    for (const auto& [box, caption] : boxes) EXPECT_EQ(box->Caption.get(), caption);
    for (const CheckBox& box : window.CheckMultiAddCR)
        EXPECT_EQ(box.Caption.get(), "Add carriage return when inserting");
    EXPECT_EQ(window.form.Caption.get(), "Composer - to ease your programming somewhat !!!");
}

TEST_F(ComposerTest, OtherUnitsShowItByName)
{
    window.form.Close();
    t.program().mum.toolWindows.show("InsertOptions");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.ComposerOpen, 1);
}

TEST_F(ComposerTest, TipsSayWhatEachControlInserts)
{
    const char* ofSlashes[] = {"Up",   "Middle",    "Down",           "In",
                               "Out",  "Toggle",    "Press",          "Release",
                               "Hold", "No repeat", "Force analogue", "Ignore initial repeat delay"};
    ASSERT_EQ(window.SlashButton.size(), std::size(ofSlashes));
    for (std::size_t i = 0; i < std::size(ofSlashes); ++i)
        EXPECT_NE(window.SlashButton[i].ToolTipText.get().find(ofSlashes[i]), std::string::npos) << i;
    for (const CheckBox& box : window.CheckMultiAddCR)
        EXPECT_EQ(box.ToolTipText.get(), "Add carriage return when inserting");
    EXPECT_EQ(window.fields.Text1[valueField::blanks].ToolTipText.get(),
              "Number of spaces to insert when the Spaces button is pressed");
    EXPECT_EQ(window.Command6.ToolTipText.get(), "Hides the Composer and keeps it in memory for faster recall");
    EXPECT_EQ(window.Command5[2].ToolTipText.get(), "Locate insertion point in the currently selected file");
    EXPECT_NE(window.TRIG.ToolTipText.get(), "");
}

/// Whatever inserts: a click on a macro, which has selected where it is used, doesn't make it write there.
TEST_F(ComposerTest, EachInsertionGoesToTheCaretInOneUndoStepAndReturnsTheFocus)
{
    settings.COMPreturnFocus = 1;
    window.fields.Text1[valueField::blanks].Text = std::string("3");
    window.fields.RemTextBox.Text = std::string("note");
    window.flags.RichTexFlag[0].setText("X1");
    window.templates.TemplatesPreview.setText("Rem template\r\n");
    const std::pair<const char*, Button*> insertions[] = {
        {"a button", &window.BTN[0]},
        {"a slash modifier", &window.SlashButton[0]},
        {"a swapped trigger", &window.ROTARY[4]},
        {"a plain statement", &window.Command1[0]},
        {"a value", &window.Command2[0]},
        {"a range", &window.Command3},
        {"a line end", &window.Command7[0]},
        {"blanks", &window.Command7[1]},
        {"a delay", &window.DlyRptButtons[0]},
        {"a comment", &window.CommandREM},
        {"all definitions", &window.flags.Command13[0]},
        {"the chosen definition", &window.flags.Command13[1]},
        {"a mouse", &window.mice.Command9},
        {"a template", &window.templates.Command11[0]},
    };
    const std::string text = "BTN S9 fire\r\nold";
    for (const auto& [name, insertion] : insertions) {
        joystick.setText("");
        write(text);
        window.macros.List1[0].Items = std::vector<CheckListBox::Item>{{.Text = "fire"}};
        window.macros.List1[0].ListIndex = 0;
        joystick.setSelStart(static_cast<std::int64_t>(text.size()) - 3);
        joystick.setSelLength(3);
        List1_MouseDown(window, 0, mouseButton::left);
        ASSERT_TRUE(joystick.SelText().starts_with("fire")) << name;
        int front = 0;
        const Connection wanted = t.program().mum.form.frontWanted.connect([&front] { ++front; });
        insertion->Click();
        EXPECT_TRUE(joystick.Text().starts_with("BTN S9 fire\r\n")) << name << ": " << joystick.Text();
        EXPECT_NE(joystick.Text(), text) << name;
        EXPECT_EQ(front, 1) << name;
        t.menus().mnuEditUndo.Click();
        EXPECT_EQ(joystick.Text(), text) << name;
    }
}

} // namespace
} // namespace tarvex
