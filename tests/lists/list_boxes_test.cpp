// What the boxes that ask for the names of games and favourites report and explain.

#include "lists/enter_favouritename.h"
#include "lists/enter_game_name.h"
#include "platform/errors.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

void fail() { throw RuntimeError(ErrorCode::DeviceInputOutput, "broken"); }

struct ListBoxes : testing::Test {
    TestProgram t;
    ErrorRecord& errors = t.program().shared.errors;

    /// The window is up, although its view failed to show it.
    static void show(Form& form)
    {
        try {
            form.Visible = true;
        } catch (const RuntimeError&) {
        }
    }
    std::string reported(const std::function<void()>& work)
    {
        errors.ErrorProcedure.clear();
        work();
        return std::exchange(errors.ErrorProcedure, "");
    }
};

TEST_F(ListBoxes, OfAGameExplainItsCommandAndItsFolder)
{
    Game current;
    EnterGameName form(t.editor(), current);
    form.Command5.Click();
    EXPECT_EQ(t.lastBox().text,
              "Make sure you have any command line switches in here if they're required. You can get this information "
              "by right clicking on the shortcut to the game and selecting properties. For example, this is what mine "
              "is for Quake 2 .... D:\\Quake2\\quake2.exe +set cddir J:\\install\\data +set basedir d:\\QUAKE2");
    form.Command6.Click();
    EXPECT_EQ(t.lastBox().title, "About the working directory ... ");
    EXPECT_EQ(t.lastBox().text,
              "The working directory is usually the directory the game's exe file is in. You can get this information "
              "by right clicking on the shortcut to the game and selecting properties. Copy the string from Start in "
              "to this text box.");
}

TEST_F(ListBoxes, OfAGameReportFailuresUnderTheirControls)
{
    Game current;
    EnterGameName form(t.editor(), current);
    t.dialogues.whileOpening = fail;
    EXPECT_EQ(reported([&] { form.Command1[0].Click(); }), "GAME Command1_Click");
    Connection listening = form.Text3.Text.changed.connect(fail);
    t.dialogues.folders = {"c:\\games"};
    EXPECT_EQ(reported([&] { form.Command2.Click(); }), "GAME Command2_Click");
    EXPECT_EQ(reported([&] { GAME_Form_Load(form); }), "GAME Form_Load");
    listening = form.Form.Visible.changed.connect(fail);
    EXPECT_EQ(reported([&] {
                  show(form.Form);
                  form.Command3.Click();
              }),
              "GAME Command3_Click");
    EXPECT_EQ(reported([&] {
                  show(form.Form);
                  form.Command4.Click();
              }),
              "GAME Command4_Click");
    listening = form.Text1.selectAllWanted.connect(fail);
    const Connection two = form.Text2.selectAllWanted.connect(fail);
    const Connection three = form.Text3.selectAllWanted.connect(fail);
    const Connection four = form.Text4.selectAllWanted.connect(fail);
    EXPECT_EQ(reported([&] { form.Text1.GotFocus(); }), "GAME Text1_GotFocus");
    EXPECT_EQ(reported([&] { form.Text2.GotFocus(); }), "GAME Text2_GotFocus");
    EXPECT_EQ(reported([&] { form.Text3.GotFocus(); }), "GAME Text3_GotFocus");
    EXPECT_EQ(reported([&] { form.Text4.GotFocus(); }), "GAME Text4_GotFocus");
    form.Text1.Text = "x";
    listening = form.Command3.Enabled.changed.connect(fail);
    EXPECT_EQ(reported([&] { form.Text1.Text = ""; }), "GAME Text1_Change");
}

TEST_F(ListBoxes, OfAFavouriteReportFailuresUnderTheirControls)
{
    Favourite current;
    EnterFavouritename form(errors, current);
    Connection listening = form.Text1.Text.changed.connect(fail);
    EXPECT_EQ(reported([&] { FAV_Form_Load(form, "mine"); }), "FAV Form_Load");
    listening = form.Text1.selectAllWanted.connect(fail);
    EXPECT_EQ(reported([&] { FAV_Text1_GotFocus(form); }), "FAV Text1_GotFocus");
    form.Form.Visible = true;
    listening = form.Form.Visible.changed.connect(fail);
    EXPECT_EQ(reported([&] { form.Command1.Click(); }), "FAV Command1_Click");
    EXPECT_EQ(reported([&] {
                  show(form.Form);
                  form.Command2.Click();
              }),
              "FAV Command2_Click");
}

} // namespace
} // namespace tarvex
