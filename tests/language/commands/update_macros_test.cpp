#include "language/commands/update_macros.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* macroPath = "c:\\tm\\b50progs\\x.m50";

struct UpdateMacrosTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();

    void open(const std::string& macros)
    {
        t.files.addFile("c:\\tm\\b50progs\\x.b50", "BTN S1 Fire\r\n");
        t.files.addFile(macroPath, macros);
        t.openBoth("c:\\tm\\b50progs\\x.b50");
        t.dialogues.boxes.clear();
    }
    std::size_t listed() { return editor.FrameMacros.List1.front().Items.get().size(); }
    void forgetList() { editor.FrameMacros.List1.front().Items = std::vector<CheckListBox::Item>(); }
};

TEST_F(UpdateMacrosTest, ATextWithoutEqualsDoesNothing)
{
    open("Rem nothing here\r\n");
    editor.status("before");
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(t.status(), "before");
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 1);
}

TEST_F(UpdateMacrosTest, ATextThatBeginsWithEqualsDoesNothing)
{
    open("= x\r\nA = a\r\n");
    editor.status("before");
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(t.status(), "before");
}

TEST_F(UpdateMacrosTest, TheListIsMadeAnewFromTheFileOnDiskAndTheTabAndFrameAreShown)
{
    open("A = a\r\n");
    t.menus().mnuViewMacros.Click(); // the frame goes away
    ASSERT_FALSE(t.menus().mnuViewMacros.Checked);
    t.files.addFile(macroPath, "A = a\r\nB = b\r\n");
    editor.macros.MacroListDirty = 0;
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(listed(), 2U);
    EXPECT_EQ(editor.TabStrip1.SelectedItem, 2);
    EXPECT_TRUE(t.menus().mnuViewMacros.Checked);
    EXPECT_EQ(t.status(8), "x.m50");
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    EXPECT_EQ(t.program().shared.IsLoading, 0);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(UpdateMacrosTest, UnsavedTextIsSavedOnYesAndThenListed)
{
    open("A = a\r\n");
    t.typeMacro("New = n\r\n");
    t.dialogues.answers = {Answer::Yes};
    t.menus().mnuEditUpdateMacros.Click();
    const MessageBox& box = t.dialogues.boxes.at(0);
    EXPECT_EQ(box.title, " Save x.m50 now?");
    EXPECT_EQ(box.text, "x.m50 has changed and isn't saved. You must save it if you want to update your macros list. "
                        "Shall I go ahead and save it?");
    EXPECT_EQ(box.buttons, BoxButtons::YesNo);
    EXPECT_EQ(box.icon, BoxIcon::Question);
    EXPECT_EQ(t.fileText(macroPath), "New = n\r\nA = a\r\n");
    EXPECT_EQ(listed(), 2U);
    EXPECT_EQ(editor.macro.Changed, changed::saved);
}

TEST_F(UpdateMacrosTest, OnNoTheUserIsWarnedAndTheListStays)
{
    open("A = a\r\n");
    t.typeMacro("New = n\r\n");
    t.dialogues.answers = {Answer::No};
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(t.lastBox().title, "File not saved");
    EXPECT_EQ(t.lastBox().text, "x.m50 wasn't saved, so I won't continue to update your macros list.");
    EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
    EXPECT_EQ(listed(), 1U);
    EXPECT_EQ(t.fileText(macroPath), "A = a\r\n");
}

TEST_F(UpdateMacrosTest, ASaveThatFailsStopsItToo)
{
    open("A = a\r\n");
    forgetList();
    t.typeMacro("New = n\r\n");
    t.files.failWrites(macroPath, RuntimeError(ErrorCode::DiskFull, "full"));
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(t.lastBox().title, "File not saved");
    EXPECT_EQ(listed(), 0U);
}

TEST_F(UpdateMacrosTest, SavingTheMacroFileUpdatesTheListAndTheTicks)
{
    open("A = a\r\n");
    editor.TabStrip1.Select(2);
    t.typeMacro("Fire = f\r\n");
    t.menus().mnuFileSave.Click();
    EXPECT_EQ(editor.FrameMacros.List1.front().Items.get(),
              (std::vector<CheckListBox::Item>{{"Fire", true}, {"A", false}}));
}

TEST_F(UpdateMacrosTest, ASavedFileIsListedUnaskedAndCopiesOfTheListAreOutOfDate)
{
    open("A = a\r\n");
    forgetList();
    editor.macros.MacroListDirty = 0;
    t.menus().mnuEditUpdateMacros.Click();
    EXPECT_EQ(listed(), 1U);
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

} // namespace
} // namespace tarvex
