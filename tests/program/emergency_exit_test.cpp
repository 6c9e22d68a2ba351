#include "support/test_program.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvex {
namespace {

struct EmergencyExit : testing::Test {
    TestProgram t;
    Program& program = t.program();

    void run() { program.shared.errors.exitInEmergency(); }
};

TEST_F(EmergencyExit, TakesDownTheToolWindowsByTheirNames)
{
    std::vector<std::string> unloaded;
    program.operations.UnloadForm = [&](const std::string& name) { unloaded.push_back(name); };
    program.menus.mnuFileExit.handler = [&] { unloaded.emplace_back("(exit)"); };
    run();
    ASSERT_FALSE(unloaded.empty());
    EXPECT_EQ(unloaded.back(), "(exit)") << "behind all of them";
    unloaded.pop_back();
    std::sort(unloaded.begin(), unloaded.end());
    EXPECT_EQ(unloaded, (std::vector<std::string>{"ColourSelector",
                                                  "EnterFavouritename",
                                                  "EnterGameName",
                                                  "FindAndReplace",
                                                  "Heading",
                                                  "InsertOptions",
                                                  "JoyPlot",
                                                  "JoystickWiz",
                                                  "KeyTestForm",
                                                  "MacroWizard",
                                                  "Preferences",
                                                  "RAWform",
                                                  "SelectPictureForm",
                                                  "SingleTextForm",
                                                  "Speedy",
                                                  "TemplateForm",
                                                  "Title",
                                                  "ViewImage",
                                                  "frmAbout",
                                                  "frmTip"}));
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST_F(EmergencyExit, EndsTheProgramAlthoughTheUserKeepsAnUnsavedText)
{
    t.typeJoystick("mine");
    t.menus().mnuEditFind.Click();
    ASSERT_TRUE(program.findAndReplace.form.Visible);
    t.dialogues.answers = {Answer::Cancel};
    run();
    EXPECT_FALSE(program.findAndReplace.form.Visible);
    EXPECT_TRUE(t.editor().Visible);
    EXPECT_EQ(t.desktop.quits, 1);
}

TEST_F(EmergencyExit, TakesTheGradientOffTheFrame)
{
    bool released = false;
    program.operations.ReleaseGradient = [&] { released = true; };
    t.desktop.quits = 0;
    run();
    EXPECT_TRUE(released);
    EXPECT_GE(t.desktop.quits, 1);
}

} // namespace
} // namespace tarvex
