#include "composer/templates_tab.h"

#include "composer/composer_fixture.h"
#include "platform/input.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

const std::string rtf = R"({\rtf1\ansi{\fonttbl{\f0 Courier;}}{\colortbl;\red255\green0\blue0;})"
                        R"(\f0\cf1 Rem\cf0  title\par BTN S1\par})";

struct TemplatesTest : ComposerTest {
    TemplateTab& tab = window.templates;

    void file(const std::string& name, const std::string& bytes)
    {
        t.files.addFile("c:\\tarvex\\Templates\\" + name, bytes);
    }
    void choose(const std::string& name)
    {
        tab.Command11[2].Click();
        const std::vector<std::string>& names = tab.Templates.Items;
        tab.Templates.ListIndex = static_cast<int>(std::ranges::find(names, name) - names.begin());
        tab.Templates.Click();
    }
    std::vector<std::string> names()
    {
        tab.Command11[2].Click();
        return tab.Templates.Items;
    }
};

TEST_F(TemplatesTest, TheRtfFilesComeFirstThenTheTextsAndOtherExtensionsDontShow)
{
    file("b.txt", "");
    file("a.TXT", "");
    file("z.rtf", "");
    file("y.Rtf", "");
    file("x.doc", "");
    file("rtf", "");
    EXPECT_THAT(names(), testing::ElementsAre("y.Rtf", "z.rtf", "a.TXT", "b.txt"));
}

TEST_F(TemplatesTest, WithoutAFolderOrInAnEmptyOneTheListIsEmpty)
{
    EXPECT_THAT(names(), testing::IsEmpty());
    t.files.addDirectory("c:\\tarvex\\Templates");
    EXPECT_THAT(names(), testing::IsEmpty());
}

TEST_F(TemplatesTest, AFolderThatCannotBeReadGivesAnEmptyListAndInsertsNothing)
{
    file("a.rtf", rtf);
    choose("a.rtf");
    const std::string folder = "c:\\tarvex\\Templates";
    t.files.failReads(folder, RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    EXPECT_THAT(names(), testing::IsEmpty());
    for (Button& button : tab.Command11) button.Click();
    TemplatesPreview_DblClick(window);
    EXPECT_EQ(joystick.Text() + macro.Text(), "");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    t.files.failReads(folder, std::nullopt);
    EXPECT_THAT(names(), testing::ElementsAre("a.rtf"));
}

TEST_F(TemplatesTest, AFolderThatCannotBeReadLetsTheWindowOpen)
{
    file("a.rtf", rtf);
    window.form.Close();
    t.files.failReads("c:\\tarvex\\Templates", RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    show();
    EXPECT_TRUE(window.form.Visible);
    EXPECT_THAT(tab.Templates.Items.get(), testing::IsEmpty());
}

TEST_F(TemplatesTest, OfTwoThousandFilesEachIsListedOnceAndTheLastOneIsInserted)
{
    for (int i = 0; i < 2000; ++i) file(std::to_string(i) + ".rtf", rtf);
    EXPECT_EQ(names().size(), 2000U);
    EXPECT_EQ(std::ranges::count(names(), "1999.rtf"), 1);
    choose("999.rtf");
    tab.Command11[0].Click();
    EXPECT_EQ(joystick.Text(), "Rem title\r\nBTN S1");
}

TEST_F(TemplatesTest, AMegabyteWithoutLineEndsIsShownAndInsertedOnce)
{
    const std::string text(1 << 20, 'x');
    file("a.txt", text);
    choose("a.txt");
    tab.Command11[0].Click();
    EXPECT_EQ(joystick.Text(), text);
}

TEST_F(TemplatesTest, AChosenFileIsShownWithItsColours)
{
    file("a.rtf", rtf);
    choose("a.rtf");
    EXPECT_EQ(tab.TemplatesPreview.Text(), "Rem title\r\nBTN S1");
    EXPECT_EQ(colourOf(tab.TemplatesPreview, "Rem"), 255);
    EXPECT_EQ(colourOf(tab.TemplatesPreview, "title"), 0);
}

TEST_F(TemplatesTest, AFileThatIsNoRtfIsShownAsPlainText)
{
    file("a.rtf", "BTN S1 x\r\n");
    choose("a.rtf");
    EXPECT_EQ(tab.TemplatesPreview.Text(), "BTN S1 x\r\n");
}

TEST_F(TemplatesTest, AFileThatCannotBeReadLeavesTheViewEmptyAndInsertsNothing)
{
    file("a.rtf", rtf);
    file("b.rtf", rtf);
    choose("b.rtf");
    t.files.failReads("c:\\tarvex\\Templates\\a.rtf", RuntimeError(ErrorCode::PermissionDenied, "no"));
    choose("a.rtf");
    EXPECT_EQ(tab.TemplatesPreview.Text(), "");
    tab.Command11[0].Click();
    EXPECT_EQ(joystick.Text(), "");
}

TEST_F(TemplatesTest, InsertingIntoTheJoystickFileBringsTheColoursAndTheFontOfThePanes)
{
    file("a.rtf", rtf);
    choose("a.rtf");
    editor.TabStrip1.Select(2);
    tab.Command11[0].Click();
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 1);
    EXPECT_EQ(joystick.Text(), "Rem title\r\nBTN S1");
    EXPECT_EQ(colourOf(joystick, "Rem"), 255);
    EXPECT_EQ(joystick.formatAt(0).fontName, settings.TextFontName);
    EXPECT_EQ(static_cast<std::size_t>(editor.joystick.Caret), joystick.TextLength());
    EXPECT_EQ(editor.TempRichTextBox.Text(), "");
}

TEST_F(TemplatesTest, AnInsertionThatFailsLeavesTheFileToTheUser)
{
    file("a.rtf", rtf);
    choose("a.rtf");
    {
        const auto failing =
            joystick.edited.connect([](const Pane::Edit&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
        tab.Command11[0].Click();
    }
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "COMPOSER Command11_Click");
    EXPECT_EQ(t.program().shared.IsLoading, 0) << "what is typed now would not count as an edit";
}

TEST_F(TemplatesTest, InsideALineATemplateBeginsALineOfItsOwn)
{
    file("a.txt", "new\r\n");
    choose("a.txt");
    write("abc");
    putCaret(1);
    tab.Command11[0].Click();
    EXPECT_EQ(joystick.Text(), "a\r\nnew\r\nbc");
}

TEST_F(TemplatesTest, AtALineStartItGoesInAsItIs)
{
    file("a.txt", "new\r\n");
    choose("a.txt");
    write("abc\r\n");
    tab.Command11[0].Click();
    EXPECT_EQ(joystick.Text(), "abc\r\nnew\r\n");
}

TEST_F(TemplatesTest, InsertingIsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    file("a.txt", "new\r\n");
    choose("a.txt");
    write("abc");
    tab.Command11[0].Click();
    ASSERT_EQ(joystick.Text(), "abc\r\nnew\r\n");
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "abc");
}

TEST_F(TemplatesTest, InsertingIntoTheMacroFileSelectsItsTab)
{
    file("a.txt", "Fire = f");
    choose("a.txt");
    tab.Command11[1].Click();
    EXPECT_EQ(editor.TabStrip1.SelectedItem.get(), 2);
    EXPECT_EQ(macro.Text(), "Fire = f");
}

TEST_F(TemplatesTest, AProtectedMacroFileTakesNoTemplate)
{
    file("a.txt", "Fire = f");
    choose("a.txt");
    t.menus().mnuPreferencesProtectMacroFile.Click();
    tab.Command11[1].Click();
    EXPECT_EQ(macro.Text(), "");
}

TEST_F(TemplatesTest, ADoubleClickInsertsIntoTheFileThatIsSelectedAtThatMoment)
{
    file("a.txt", "x");
    choose("a.txt");
    editor.TabStrip1.Select(2);
    TemplatesPreview_DblClick(window);
    EXPECT_EQ(macro.Text(), "x");
    editor.TabStrip1.Select(1);
    TemplatesPreview_DblClick(window);
    EXPECT_EQ(joystick.Text(), "x");
}

TEST_F(TemplatesTest, TheRightButtonOpensTheMenuOfThePreview)
{
    file("a.txt", "x");
    choose("a.txt");
    t.dialogues.whilePoppedUp = [this] { window.mnuMacrofile.Click(); };
    TemplatesPreview_MouseDown(window, mouseButton::left);
    EXPECT_TRUE(t.dialogues.popUps.empty());
    TemplatesPreview_MouseDown(window, mouseButton::right);
    EXPECT_THAT(t.dialogues.popUps, testing::ElementsAre("mnuTemplates"));
    EXPECT_EQ(macro.Text(), "x");
}

TEST_F(TemplatesTest, TheRightButtonOnTheListShowsTheEntry)
{
    file("a.txt", "x");
    tab.Command11[2].Click();
    tab.Templates.ListIndex = 0;
    Templates_MouseDown(window, mouseButton::right);
    EXPECT_EQ(tab.TemplatesPreview.Text(), "x");
}

TEST_F(TemplatesTest, ARowBehindTheLastLeavesTheViewAsItIs)
{
    file("a.txt", "shown");
    file("gone.txt", "another");
    choose("a.txt");
    std::vector<std::string> files{"a.txt", "gone.txt"};
    files.pop_back(); // its text may still be there
    tab.Templates.Items = std::move(files);
    for (const int row : {1, -1}) {
        tab.Templates.ListIndex = row;
        tab.Templates.Click();
        EXPECT_EQ(tab.TemplatesPreview.Text(), "shown") << row;
    }
}

TEST_F(TemplatesTest, FilesAreListedByNameInAnyCaseAndNoneIsChosen)
{
    for (const char* name : {"b.rtf", "A.rtf", "C.rtf"}) file(name, "Rem x");
    choose("b.rtf");
    EXPECT_NE(tab.TemplatesPreview.Text(), "");
    EXPECT_THAT(names(), testing::ElementsAre("A.rtf", "b.rtf", "C.rtf"));
    EXPECT_EQ(tab.Templates.ListIndex, -1);
    EXPECT_EQ(tab.TemplatesPreview.Text(), "");
    EXPECT_TRUE(tab.TemplatesPreview.Locked);
    EXPECT_FALSE(window.mnuQuickie.Enabled) << "it is a remark in the menu";
}

TEST_F(TemplatesTest, TheMenuOfThePreviewInsertsIntoEitherFileInTheLookOfThePanes)
{
    settings.TextFontBold = 1;
    settings.TextFontSize = 14;
    file("a.rtf", rtf);
    choose("a.rtf");
    window.mnuJoystick.Click();
    EXPECT_EQ(joystick.Text(), "Rem title\r\nBTN S1");
    EXPECT_TRUE(joystick.formatAt(0).bold);
    EXPECT_EQ(joystick.formatAt(0).fontSize, 14);
    EXPECT_EQ(joystick.formatAt(0).indent, 20);
    window.mnuMacrofile.Click();
    EXPECT_EQ(macro.Text(), "Rem title\r\nBTN S1");
}

TEST_F(TemplatesTest, ThePreviewHasTheLookOfTheSettings)
{
    settings.BackgroundColour = 0x654321;
    settings.TextFontName = "Courier New";
    names();
    EXPECT_EQ(tab.TemplatesPreview.BackColor.get(), 0x654321);
    EXPECT_EQ(tab.TemplatesPreview.Font().name, "Courier New");
}

TEST_F(TemplatesTest, WhatCannotBeShownTakesTheFormerTemplateAwayAndEachIsShownFromItsStart)
{
    file("a.txt", "Rem shown");
    file("b.txt", "Rem other");
    t.files.failReads("c:\\tarvex\\Templates\\b.txt", RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    choose("a.txt");
    EXPECT_EQ(tab.TemplatesPreview.Text(), "Rem shown");
    EXPECT_EQ(tab.TemplatesPreview.SelStart(), 0);
    tab.Templates.ListIndex = 1;
    tab.Templates.Click();
    EXPECT_EQ(tab.TemplatesPreview.Text(), "");
}

} // namespace
} // namespace tarvex
