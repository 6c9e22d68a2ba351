// Where the caret and the selection stand after a reload, and what the lines that stay keep.

#include "documents/files/reload.h"

#include "documents/files/outside_notice.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr Colour red = 255;

struct ReloadTest : testing::Test {
    ReloadTest()
    {
        t.settings().CheckIdentifyOK = 0;
        t.settings().ApplyColoursOnFileOpen = 0;
    }
    TestProgram t;
    Side& side = t.editor().joystick;

    void open(const std::string& text)
    {
        t.files.addFile(mig, text);
        t.menus().mnuJoyPopUpSingleFile.Checked = true;
        t.openBoth(mig);
    }
    void select(std::int64_t start, std::int64_t length)
    {
        side.pane.setSelStart(start);
        side.pane.setSelLength(length);
    }
    void reload(const std::string& text)
    {
        t.files.addFile(mig, text);
        lookForOutsideChanges(t.program().outsideNotices);
        t.program().outsideNotices.joystick.Reload.Click();
        ASSERT_EQ(side.pane.Text(), text);
    }
};

struct Moved {
    std::int64_t start;
    std::int64_t length;
    std::int64_t newStart;
    std::int64_t newLength;
};

struct Case {
    const char* name;
    const char* file;
    std::vector<Moved> selections;
};

TEST_F(ReloadTest, TheSelectionStaysAtItsTextOrAsNearAsThereIsText)
{
    const Case cases[] = {
        {"a shorter line",
         "aaaa\r\nXX\r\ncccc\r\n",
         {{0, 0, 0, 0},
          {5, 0, 5, 0},
          {6, 0, 6, 0},
          {8, 0, 8, 0},
          {9, 0, 9, 0},
          {10, 0, 9, 0},
          {11, 0, 9, 0},
          {12, 0, 10, 0},
          {18, 0, 16, 0},
          {2, 2, 2, 2},
          {2, 14, 2, 12},
          {12, 4, 10, 4},
          {10, 1, 9, 0},
          {9, 3, 9, 1}}},
        {"a longer line",
         "aaaa\r\nXXXXXX\r\ncccc\r\n",
         {{6, 0, 6, 0}, {11, 0, 11, 0}, {12, 0, 14, 0}, {0, 18, 0, 20}, {6, 6, 6, 8}}},
        {"a line gone",
         "aaaa\r\ncccc\r\n",
         {{5, 0, 5, 0},
          {6, 0, 6, 0},
          {9, 0, 6, 0},
          {11, 0, 6, 0},
          {12, 0, 6, 0},
          {13, 2, 7, 2},
          {7, 3, 6, 0},
          {3, 6, 3, 3}}},
        {"a line come", "aaaa\r\nXX\r\nbbbb\r\ncccc\r\n", {{5, 0, 5, 0}, {6, 0, 10, 0}, {18, 0, 22, 0}, {3, 6, 3, 10}}},
        {"all gone", "", {{0, 0, 0, 0}, {9, 4, 0, 0}, {18, 0, 0, 0}}},
        {"two lines changed",
         "A\r\nbbbb\r\nCCCCCC\r\n",
         {{5, 0, 2, 0}, {7, 0, 4, 0}, {7, 6, 4, 6}, {18, 0, 17, 0}, {0, 18, 0, 17}}},
    };
    for (const Case& done : cases) {
        for (const Moved& moved : done.selections) {
            SCOPED_TRACE(std::string(done.name) + " at " + std::to_string(moved.start));
            open("aaaa\r\nbbbb\r\ncccc\r\n");
            select(moved.start, moved.length);
            reload(done.file);
            EXPECT_EQ(side.pane.SelStart(), moved.newStart);
            EXPECT_EQ(side.pane.SelLength(), moved.newLength);
            EXPECT_EQ(side.Caret, moved.newStart);
            EXPECT_EQ(side.SelectionLength, moved.newLength);
        }
    }
}

TEST_F(ReloadTest, LinesThatStayKeepTheirColoursBesideUpTo500Changes)
{
    for (const int changes : {500, 501}) {
        std::string old;
        std::string now;
        for (int i = 0; i < changes; ++i) {
            const std::string line = "old" + std::to_string(i) + "\r\n";
            old += line;
            now += "new\r\n" + line;
        }
        open(old);
        select(0, 4);
        side.pane.setSelColor(red);
        reload(now);
        EXPECT_EQ(side.pane.formatAt(5).colour, changes == 500 ? red : 0) << changes;
        EXPECT_EQ(side.pane.formatAt(0).colour, 0);
    }
}

TEST_F(ReloadTest, WhatFlashesEndsAndTheLineOfTheCaretIsShown)
{
    open("aaaa\r\nbbbb\r\ncccc\r\n");
    select(13, 0);
    side.Caret = 13;
    t.menus().mnuViewHighlightLine.Click();
    EXPECT_TRUE(t.editor().TimerBlinkLine.Enabled);
    reload("new\r\naaaa\r\nbbbb\r\ncccc\r\n");
    EXPECT_FALSE(t.editor().TimerBlinkLine.Enabled);
    EXPECT_EQ(side.pane.SelStart(), 17);
    EXPECT_EQ(t.status(panel::line), "Line no: 4");
}

TEST_F(ReloadTest, TheMacroFileAnalysedIsShownByItsPresentName)
{
    t.files.addFile("c:\\tm\\b50progs\\mig.m50", "Fire = f\r\n");
    t.openBoth("c:\\tm\\b50progs\\mig.m50");
    t.editor().TabStrip1.Select(2);
    t.dialogues.filesToSave = {"c:\\tm\\b50progs\\new.m50"};
    t.menus().mnuMacrosSaveOptions1.Checked = false;
    t.menus().mnuFileSaveAs.Click();
    t.files.addFile("c:\\tm\\b50progs\\new.m50", "Fire = f\r\nStop = s\r\n");
    lookForOutsideChanges(t.program().outsideNotices);
    t.program().outsideNotices.macro.Reload.Click();
    EXPECT_EQ(t.status(panel::macroFile), "new.m50");
    EXPECT_EQ(t.editor().FrameMacros.List1.front().Items.get().size(), 2U);
}

} // namespace
} // namespace tarvex
