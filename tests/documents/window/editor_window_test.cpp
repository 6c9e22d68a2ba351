#include "documents/window/editor_window.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(EditorWindow, AtTheStartTheFontsOfTheLayoutSheetAreRead)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\Layouts.ini", "[Joystick Layout]\r\nLOTextFontSize=17\r\n");
    t.start();
    EXPECT_EQ(t.settings().LOTextFontSize, 17);
}

TEST(EditorWindow, AtTheStartToolWindowsHaveNoPlaceYet)
{
    TestProgram t;
    const Shared& shared = t.program().shared;
    for (const auto place :
         {shared.ToolWindowTop, shared.ToolWindowLeft, shared.SecondToolWindowTop, shared.SecondToolWindowLeft})
        EXPECT_EQ(place, -1);
}

TEST(EditorWindow, StaysOpenWhenAQuestionAboutUnsavedTextFails)
{
    for (const bool joystick : {true, false}) {
        TestProgram t;
        joystick ? t.typeJoystick("x") : t.typeMacro("x");
        t.dialogues.otherAnswers = [](const MessageBox&) -> Answer {
            throw RuntimeError(ErrorCode::DeviceInputOutput, "broken");
        };
        EXPECT_FALSE(Form_QueryUnload(t.editor())) << (joystick ? "joystick" : "macro");
        EXPECT_EQ(t.editor().ExitInProgress, 0);
        t.dialogues.otherAnswers = [](const MessageBox&) { return Answer::No; };
        EXPECT_TRUE(Form_QueryUnload(t.editor()));
    }
}

} // namespace
} // namespace tarvex
