// What a failure in the Composer is reported under.

#include "composer/composer_fixture.h"
#include "composer/find_button.h"
#include "composer/hardware_clicks.h"
#include "composer/logic.h"
#include "composer/macro_tab.h"
#include "composer/statement_tabs.h"
#include "composer/templates_tab.h"
#include "platform/errors.h"
#include "platform/input.h"

namespace tarvex {
namespace {

/// Every insertion brings the document window to the front in the end, which fails.
struct ComposerFailures : ComposerTest {
    static void fail() { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); }
    Connection front = t.program().mum.form.frontWanted.connect(fail);

    ComposerFailures() { settings.COMPreturnFocus = 1; }
    std::string reported(const std::function<void()>& work)
    {
        ErrorRecord& errors = t.program().shared.errors;
        errors.ErrorProcedure.clear();
        work();
        return std::exchange(errors.ErrorProcedure, "");
    }
    std::string clicked(Button& button)
    {
        return reported([&] { button.Click(); });
    }
};

TEST_F(ComposerFailures, OfThePicturesBelongToTheirControls)
{
    EXPECT_EQ(clicked(window.BTN[0]), "COMPOSER BTN_Click");
    EXPECT_EQ(clicked(window.ROTARY[4]), "COMPOSER ROTARY_Click");
    EXPECT_EQ(clicked(window.SlashButton[0]), "COMPOSER SlashButton_Click");
    EXPECT_EQ(reported([&] { window.MnuHatPostion[0].Click(); }), "COMPOSER MnuHatPostion_Click");
    EXPECT_EQ(reported([&] { window.MnuHatCornerPostion[0].Click(); }), "COMPOSER MnuHatCornerPostion_Click");
    EXPECT_EQ(reported([&] { window.mnuTrig[0].Click(); }), "COMPOSER mnuTrig_Click");
    EXPECT_EQ(reported([&] { window.mnuPort[0].Click(); }), "COMPOSER mnuPort_Click");
    const Connection caption = window.MnuHatPostion[0].Caption.changed.connect(fail);
    window.HAT[0].Click();
    EXPECT_EQ(clicked(window.HAT[1]), "COMPOSER HAT_Click");
}

TEST_F(ComposerFailures, OfTheStatementPagesBelongToTheirButtons)
{
    EXPECT_EQ(clicked(window.Command1[0]), "COMPOSER Command1_Click");
    EXPECT_EQ(clicked(window.Command2[0]), "COMPOSER Command2_Click");
    EXPECT_EQ(clicked(window.Command3), "COMPOSER Command3_Click");
    EXPECT_EQ(clicked(window.Command4), "COMPOSER Command4_Click");
    EXPECT_EQ(clicked(window.Command8[0]), "COMPOSER Command8_Click");
    EXPECT_EQ(clicked(window.InsertANT), "COMPOSER InsertANT_Click");
    EXPECT_EQ(clicked(window.Command12[0]), "COMPOSER Command12_Click");
    EXPECT_EQ(clicked(window.DlyRptButtons[0]), "COMPOSER DlyRptButtons_Click");
    EXPECT_EQ(clicked(window.CommandREM), "COMPOSER CommandREM_Click");
    EXPECT_EQ(clicked(window.Command7[0]), "COMPOSER Command7_Click");
    EXPECT_EQ(clicked(window.mice.Command9), "COMPOSER Command9_Click");
}

TEST_F(ComposerFailures, OfTheLogicPageBelongToItsButtons)
{
    Pane& field = window.flags.RichTexFlag[0];
    field.setText("X1");
    EXPECT_EQ(clicked(window.flags.Command13[0]), "COMPOSER Command13_Click");
    const Connection edited = field.edited.connect([](const Pane::Edit&) { fail(); });
    EXPECT_EQ(clicked(window.flags.CMDCompare[0]), "COMPOSER CMDCompare_Click");
    EXPECT_EQ(clicked(window.flags.CMDFlagSlash[0]), "COMPOSER CMDFlagSlash_Click");
    EXPECT_EQ(clicked(window.flags.CMDFlagInsert[3]), "COMPOSER CMDFlagInsert_Click");
}

TEST_F(ComposerFailures, OfTheTemplatesBelongToTheirButtons)
{
    window.templates.TemplatesPreview.setText("Rem template\r\n");
    EXPECT_EQ(clicked(window.templates.Command11[0]), "COMPOSER Command11_Click");
    EXPECT_EQ(reported([&] { TemplatesPreview_DblClick(window); }), "COMPOSER TemplatesPreview_DblClick");
}

TEST_F(ComposerFailures, OfTheMacrosBelongToTheirList)
{
    write("BTN S1 fire\r\n");
    window.macros.List1[0].Items = std::vector<CheckListBox::Item>{{.Text = "fire"}};
    window.macros.List1[0].ListIndex = 0;
    window.macros.ListClicked = 0;
    EXPECT_EQ(reported([&] { List1_DblClick(window, 0); }), "COMPOSER List1_DblClick");
    EXPECT_EQ(reported([&] { mnuFindInJoyFile_Click(window); }), "COMPOSER mnuFindInJoyFile_Click");
    EXPECT_EQ(reported([&] { mnuRHListEdit_Click(window); }), "COMPOSER mnuRHListEdit_Click");
    const Connection caption = window.macros.Combo1.Items.changed.connect(fail);
    editor.macros.MacroHeadings = {"All", "Guns"};
    EXPECT_EQ(reported([&] { CopyMacroList(window); }), "COMPOSER CopyMacroList");
}

TEST_F(ComposerFailures, OfTheSearchForAButtonBelongToIt)
{
    write("BTN S1 fire\r\n");
    Connection selected = joystick.selectionChanged.connect(fail);
    EXPECT_EQ(reported([&] { FindButton(window, "BTN S1"); }), "COMPOSER FindButton");
    editor.macros.SelectedMacro = "fire";
    EXPECT_EQ(reported([&] { FindMacriInJfile(window); }), "COMPOSER FindMacriInJfile");
}

TEST_F(ComposerFailures, OfClicksIntoTheListOfMacrosBelongToTheirEvents)
{
    write("BTN S1 fire\r\n");
    window.macros.List1[0].Items = std::vector<CheckListBox::Item>{{.Text = "fire"}};
    window.macros.List1[0].ListIndex = 0;
    t.dialogues.whilePoppedUp = fail;
    EXPECT_EQ(reported([&] { List1_MouseDown(window, 0, mouseButton::right); }), "COMPOSER List1_MouseDown");
    t.menus().mnuViewHighlightLine.Click();
    const Connection selected = joystick.selectionChanged.connect(fail);
    EXPECT_EQ(reported([&] { List1_MouseMove(window, 0, mouseButton::left); }), "COMPOSER List1_MouseMove");
}

TEST_F(ComposerFailures, OfTheWindowsEventsBelongToThem)
{
    t.menus().mnuInsertRAW.handler = fail;
    EXPECT_EQ(clicked(window.Command5[0]), "COMPOSER Command5_Click");
    t.menus().mnuEditSelectAll.handler = fail;
    EXPECT_EQ(reported([&] { window.form.KeyDown('A', shiftKey::ctrl); }), "COMPOSER Form_KeyDown");
    window.mnuHatDivider.Visible = !window.mnuHatDivider.Visible;
    const Connection divider = window.mnuHatDivider.Visible.changed.connect(fail);
    EXPECT_EQ(reported([&] { window.form.Activate(); }), "COMPOSER Form_Activate");
}

TEST_F(ComposerFailures, OfItsOpeningBelongToTheWindow)
{
    const Connection text = window.fields.TextRPT.Text.changed.connect(fail);
    window.form.unload();
    t.setIni("Miscellaneous", "DefaultRPTvalue", "77");
    EXPECT_EQ(reported([&] { Form_Load(window); }), "COMPOSER Form_Load");
}

} // namespace
} // namespace tarvex
