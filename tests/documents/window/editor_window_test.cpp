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

} // namespace
} // namespace tarvex
