#include "language/commands/macro_lists.h"

#include "language/commands/macro_file.h"
#include "language/commands/macro_filter.h"
#include "language/macro_heading.h"
#include "support/test_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct MacroListTest : testing::Test {
    TestProgram t;
    Editor& editor = t.editor();
    FrameMacros& frame = editor.FrameMacros;

    void analyse(const std::string& file)
    {
        t.files.addFile("c:\\a\\x.m50", file);
        editor.macro.FilePath = "c:\\a\\x.m50";
        editor.macro.FileName = "x.m50";
        ClearAllForNewMacroFile(editor);
        GetEachLineFromMacroFile(editor);
        ExtractMacrosAndTitles(editor);
    }
    std::vector<std::string> names(std::size_t list)
    {
        std::vector<std::string> texts;
        for (const auto& item : frame.List1.at(list).Items.get()) texts.push_back(item.Text);
        return texts;
    }
    std::string tip() { return t.program().mum.StatusBar.Panels(8).ToolTipText; }
};

TEST_F(MacroListTest, TheFrameShowsHeadingsAndAllMacros)
{
    analyse("A = a\r\n" + heading("GUNS") + "B = b\r\n");
    EXPECT_THAT(frame.Combo1.Items.get(), ElementsAre("All", "Guns"));
    EXPECT_EQ(frame.Combo1.Text.get(), "All");
    EXPECT_THAT(names(0), ElementsAre("A", "B"));
    EXPECT_THAT(names(1), ElementsAre("B"));
    EXPECT_TRUE(frame.List1[0].Visible);
    EXPECT_FALSE(frame.List1[1].Visible);
    EXPECT_EQ(editor.macros.HeadingShown, 0);
    EXPECT_EQ(t.status(), "Done");
    EXPECT_EQ(tip(), "Contains 2 macros and 1 macro headings");
    EXPECT_EQ(frame.List1[1].ToolTipText.get(),
              "Double click macro to insert into Joystick file, or use drag and drop");
}

TEST_F(MacroListTest, StatusLinesNameTheFileByItsTitle)
{
    std::vector<std::string> lines;
    const auto listening =
        t.program().mum.StatusBar.Panels(1).Text.changed.connect([&] { lines.push_back(t.status()); });
    analyse("A = a");
    EXPECT_THAT(lines, ElementsAre("Opening x.m50 file for analysis ",
                                   "Analysing x.m50 for macros and sub-headings. Please wait ...", "Done"));
}

TEST_F(MacroListTest, TheKeptLinesAreWrittenToTheDebrisFileAtEachRun)
{
    analyse("  A = a\r\n\r\nrem\r\nRem x\r\n");
    EXPECT_EQ(t.fileText("c:\\macro.txt"), "A = a\r\nRem x\r\n");
    analyse("");
    EXPECT_EQ(t.fileText("c:\\macro.txt"), "");
}

TEST_F(MacroListTest, ADebrisFileThatHasTheLinesIsNotWrittenAgain)
{
    analyse("A = a");
    t.files.clearWrites();
    analyse("A = a");
    EXPECT_THAT(t.files.writes(), IsEmpty());
    analyse("B = b");
    ASSERT_EQ(t.files.writes().size(), 1U);
    EXPECT_EQ(t.fileText("c:\\macro.txt"), "B = b\r\n");
}

TEST_F(MacroListTest, ADebrisFileThatCannotBeReadIsReplaced)
{
    analyse("A = a");
    t.files.failReads("c:\\macro.txt", RuntimeError(ErrorCode::PermissionDenied, "no"));
    t.files.clearWrites();
    t.program().shared.errors.ErrorProcedure.clear();
    analyse("A = a");
    EXPECT_EQ(t.files.writes().size(), 1U);
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "");
}

TEST_F(MacroListTest, AReadOnlyDebrisFileGoesToTheReporterThoughItHasTheLines)
{
    analyse("A = a");
    t.files.setReadOnly("c:\\macro.txt");
    t.program().shared.errors.ErrorProcedure.clear();
    analyse("A = a");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_GetEachLineFromMacroFile");
}

TEST_F(MacroListTest, AFailureToWriteTheDebrisFileGoesToTheReporterAndTheListIsThere)
{
    t.files.failWrites("c:\\macro.txt", RuntimeError(ErrorCode::PathFileAccess, "no"));
    analyse("A = a");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_GetEachLineFromMacroFile");
    EXPECT_THAT(names(0), ElementsAre("A"));
}

TEST_F(MacroListTest, AMissingFileLeavesTheLinesAsTheyAre)
{
    analyse("A = a");
    editor.macro.FilePath = "c:\\a\\gone.m50";
    t.files.clearWrites();
    GetEachLineFromMacroFile(editor);
    EXPECT_THAT(editor.macros.MacroFileLines, ElementsAre("A = a"));
    EXPECT_TRUE(t.files.writes().empty());
}

TEST_F(MacroListTest, AFileThatCantBeReadHasNoLinesAndIsReported)
{
    analyse("A = a");
    t.files.failReads("c:\\a\\x.m50", RuntimeError(ErrorCode::PermissionDenied, "no"));
    GetEachLineFromMacroFile(editor);
    EXPECT_THAT(editor.macros.MacroFileLines, IsEmpty());
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "ED_GetEachLineFromMacroFile");
}

TEST_F(MacroListTest, ClearAllForNewMacroFileUnloadsAllListsButTheFirst)
{
    analyse(heading("h") + "A = a");
    editor.macros.MacroListDirty = 0;
    int changes = 0;
    const auto listening = frame.List1Changed.connect([&] { ++changes; });
    ClearAllForNewMacroFile(editor);
    EXPECT_EQ(frame.List1.size(), 1U);
    EXPECT_THAT(names(0), IsEmpty());
    EXPECT_THAT(frame.Combo1.Items.get(), IsEmpty());
    EXPECT_THAT(editor.macros.MacroHeadings, IsEmpty());
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    EXPECT_EQ(changes, 1);
}

TEST_F(MacroListTest, AHeadingCalledAllIsTheOneThatIsNotedForItIsTheLastOfThatName)
{
    analyse("A = a\r\n" + heading("ALL") + "B = b");
    EXPECT_EQ(editor.macros.HeadingShown, 1);
    EXPECT_TRUE(frame.List1[1].Visible);
    EXPECT_FALSE(frame.List1[0].Visible);
}

TEST_F(MacroListTest, NamesComeThroughTheListsByteForByte)
{
    analyse("M\xE9t\xE9o\x80\x81 = x");
    EXPECT_THAT(names(0), ElementsAre("M\xC3\xA9t\xC3\xA9o\xE2\x82\xAC\xC2\x81"));
}

TEST_F(MacroListTest, TheTooltipShowsUpTo32767MacrosAndStaysAsItWasBeyond)
{
    std::string file;
    for (int i = 0; i < 32'767; ++i) file += "M=\r\n";
    analyse(file);
    EXPECT_EQ(tip(), "Contains 32767 macros and 0 macro headings");
    analyse(file + "N=\r\n");
    EXPECT_EQ(names(0).size(), 32'768U);
    EXPECT_EQ(tip(), "Contains 32767 macros and 0 macro headings");
}

TEST_F(MacroListTest, AHundredThousandHeadingsFillTheFrame)
{
    std::string file;
    for (int i = 0; i < 100'000; ++i) file += heading("all") + "M = x\r\n";
    analyse(file);
    EXPECT_EQ(frame.List1.size(), 100'001U);
    EXPECT_EQ(names(0).size(), 100'000U);
    EXPECT_EQ(editor.macros.HeadingShown, 32'767) << "no higher number fits";
    EXPECT_TRUE(frame.List1[32'767].Visible);
}

TEST_F(MacroListTest, ClearingForgetsTheListAndShowsTheFirst)
{
    analyse("Rem ----\r\nRem A\r\nRem ----\r\nFire = f\r\n");
    editor.macros.ListClicked = 1;
    editor.macros.MacroListDirty = 0;
    bringToFront(frame, 1);
    ClearAllForNewMacroFile(editor);
    EXPECT_EQ(editor.macros.ListClicked, 0U);
    EXPECT_EQ(editor.macros.MacroListDirty, 1);
    ASSERT_EQ(frame.List1.size(), 1U);
    EXPECT_TRUE(frame.List1[0].Visible);
}

TEST_F(MacroListTest, WithoutTheHeadingOfAllNothingIsShownAnew)
{
    frame.Combo1.Items = std::vector<std::string>{"Guns"};
    frame.Combo1.Text = "Guns";
    showAllMacros(editor);
    EXPECT_EQ(frame.Combo1.Text.get(), "Guns");
}

TEST_F(MacroListTest, TheFilterLetsAPartOfANameThroughInEitherCaseWhileItIsShown)
{
    frame.Filter.Text = "EA";
    EXPECT_TRUE(passesFilter(frame, "fire")) << "it isn't shown";
    frame.FilterVisible = true;
    EXPECT_TRUE(passesFilter(frame, "gear"));
    EXPECT_FALSE(passesFilter(frame, "fire"));
    frame.Filter.Text = "";
    EXPECT_TRUE(passesFilter(frame, "fire"));
}

} // namespace
} // namespace tarvex
