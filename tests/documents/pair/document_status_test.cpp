// What the status bar and the menus say of the documents.

#include "documents/pair/document_status.h"

#include "documents/pair/noted_caret.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(NotedCaret, IsShownAgainAfterAnotherLineWasShown)
{
    TestProgram t;
    Side& side = t.editor().joystick;
    side.pane.setText("one\r\ntwo\r\nthree");
    side.pane.setSelStart(6);
    noteCaret(t.editor(), side);
    EXPECT_EQ(t.status(panel::line), "Line no: 2");
    showLineNumber(t.editor(), side, 11);
    EXPECT_EQ(t.status(panel::line), "Line no: 3");
    noteCaret(t.editor(), side);
    EXPECT_EQ(t.status(panel::line), "Line no: 2");
}

TEST(NotedCaret, ReportsThatItsLineWasLeft)
{
    TestProgram t;
    int left = 0;
    t.editor().operations.CaretLeftLine = [&] { ++left; };
    for (Side* side : {&t.editor().joystick, &t.editor().macro}) side->pane.setText("one\r\ntwo");
    const auto put = [&](Side& side, std::int64_t caret) {
        side.pane.setSelStart(caret);
        noteCaret(t.editor(), side);
        return std::exchange(left, 0);
    };
    Side& joystick = t.editor().joystick;
    put(joystick, 0);
    EXPECT_EQ(put(joystick, 2), 0) << "in its line";
    EXPECT_EQ(put(joystick, 6), 1);
    EXPECT_EQ(put(joystick, 6), 0) << "nowhere else";
    EXPECT_EQ(put(t.editor().macro, 6), 1) << "in the other pane";
    joystick.pane.setSelStart(6);
    EXPECT_EQ(put(joystick, 0), 1);
}

TEST(QuietDownload, GoesWithTheDownloadOnlyWhileItIsTicked)
{
    for (const bool ticked : {true, false}) {
        TestProgram t;
        t.editor().TabStrip1.Tabs(1).Caption = "mig.b50";
        t.menus().mnuAppsQuiet.Checked = ticked;
        updateDownload(t.editor());
        EXPECT_TRUE(t.menus().mnuAppsQuiet.Enabled);
        t.editor().TabStrip1.Tabs(1).Caption = "mig.f22";
        updateDownload(t.editor());
        EXPECT_EQ(t.menus().mnuAppsQuiet.Enabled, !ticked);
        EXPECT_FALSE(t.menus().mnuSendToJoystick.Enabled);
        EXPECT_EQ(t.menus().mnuSendToJoystick.Caption.get(), "&Download ");
    }
}

} // namespace
} // namespace tarvex
