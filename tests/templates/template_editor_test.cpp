#include "support/menu_text.h"
#include "templates/template_editor_fixture.h"

namespace tarvex {
namespace {

TEST_F(TemplateEditorTest, ComesUpWithANewFileInTheTemplatesFolder)
{
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.form.Caption, "Template Editor");
    EXPECT_EQ(window.WindowOpen, 1);
    EXPECT_EQ(window.TemplatePath, folder);
    EXPECT_EQ(window.Text1.Text, "untitled.rtf");
    EXPECT_EQ(window.TemplateChanged, 0);
    EXPECT_EQ(pane.BackColor, t.settings().BackgroundColour);
}

TEST_F(TemplateEditorTest, WrapIsHeldOrReleased)
{
    EXPECT_TRUE(window.ToggleButton1.isHeld());
    EXPECT_EQ(window.RightMargin, 0);
    window.ToggleButton1.Click();
    EXPECT_FALSE(window.ToggleButton1.isHeld());
    EXPECT_EQ(window.RightMargin, 2000);
    window.ToggleButton1.Click();
    EXPECT_EQ(window.RightMargin, 0);
}

TEST_F(TemplateEditorTest, TipsAreGivenUnlessTheyAreSwitchedOff)
{
    t.settings().OKtoShowToolTips = 1;
    UpdateTooltips(window);
    EXPECT_EQ(window.Command1[0].ToolTipText, "Open a template or text file");
    EXPECT_EQ(window.Command1[1].ToolTipText, "Save this file");
    EXPECT_EQ(window.Command1[2].ToolTipText, "New file");
    EXPECT_EQ(window.CmndPrint.ToolTipText, "Print this file");
    EXPECT_EQ(window.ToggleButton1.ToolTipText, "Wrap long lines at the edge of the window");
    t.settings().OKtoShowToolTips = 0;
    UpdateTooltips(window);
    for (Button& button : window.Command1) EXPECT_EQ(button.ToolTipText, "");
    EXPECT_EQ(window.CmndPrint.ToolTipText, "");
    EXPECT_EQ(window.ToggleButton1.ToolTipText, "");
}

TEST_F(TemplateEditorTest, ItsMenusHaveTheirCommandsAndKeys)
{
    EXPECT_EQ(menuText(window.menuBar()), "&File\n"
                                          " &New: Ctrl+N\n"
                                          " &Open...: Ctrl+O\n"
                                          " Open &default template\n"
                                          " -\n"
                                          " &Save: Ctrl+S\n"
                                          " Save &as...\n"
                                          " Set as de&fault\n"
                                          " -\n"
                                          " &Print: Ctrl+P\n"
                                          " -\n"
                                          " &Close\n"
                                          "&Edit\n"
                                          " &Undo: Ctrl+Z\n"
                                          " &Redo: Ctrl+Y\n"
                                          " -\n"
                                          " Cu&t: Ctrl+X\n"
                                          " &Copy: Ctrl+C\n"
                                          " &Paste: Ctrl+V\n"
                                          " Select &all: Ctrl+A\n"
                                          " -\n"
                                          " &Find...: Ctrl+F\n"
                                          " Find &next: F3\n"
                                          " Find pre&vious: Shift+F3\n"
                                          " -\n"
                                          " Ed&it tm.cfg\n"
                                          " Pre&ferences...\n"
                                          "&View\n"
                                          " Apply &colours: Ctrl+T\n"
                                          " &Black text\n"
                                          " &Edit colours...\n"
                                          " -\n"
                                          " &Refresh layout: Ctrl+H\n"
                                          " Refresh &indent\n"
                                          "&Help\n"
                                          " &Tarvex help topics\n");
    EXPECT_EQ(menuText(window.popUpMenu()), "Cu&t\n&Copy\n&Paste\n-\n&Black text\n-\nSet as de&fault\n");
}

TEST_F(TemplateEditorTest, ItsControlsAreNamed)
{
    EXPECT_EQ(window.Command1[0].Caption.get(), "Open");
    EXPECT_EQ(window.Command1[1].Caption.get(), "Save");
    EXPECT_EQ(window.Command1[2].Caption.get(), "New");
    EXPECT_EQ(window.Command2.Caption.get(), "Open default template");
    EXPECT_EQ(window.CmndPrint.Caption.get(), "Print");
    EXPECT_EQ(window.ToggleButton1.Caption.get(), "Wrap");
    EXPECT_EQ(window.Find.MatchCase.Caption.get(), "Match &case");
    EXPECT_EQ(window.Find.WholeWord.Caption.get(), "W&hole words only");
    EXPECT_EQ(window.Find.Next.Caption.get(), "Find ne&xt");
    EXPECT_EQ(window.Find.Previous.Caption.get(), "Find &previous");
    EXPECT_EQ(window.Find.Close.Caption.get(), "Close");
}

TEST_F(TemplateEditorTest, OpenedAnewItWrapsWithoutTheSearchRowAndWithItsTips)
{
    window.ToggleButton1.Click();
    window.mnuFind.Click();
    window.form.unload();
    for (Button& button : window.Command1) button.ToolTipText = "";
    t.program().mum.toolWindows.show("TemplateForm");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.ToggleButton1.isHeld());
    EXPECT_EQ(window.RightMargin, 0);
    EXPECT_FALSE(window.Find.Visible);
    EXPECT_EQ(window.Command1[1].ToolTipText, "Save this file");
}

TEST_F(TemplateEditorTest, ItsHelpMenuOpensTheHandbook)
{
    int opened = 0;
    t.menus().mnuHelpContents.handler = [&opened] { ++opened; };
    window.mnuHelpContents.Click();
    EXPECT_EQ(opened, 1);
}

TEST_F(TemplateEditorTest, ClosingAsksAndACancelKeepsItOpen)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    window.form.unload();
    EXPECT_EQ(box().text, "untitled.rtf has changed and isn't saved. Do you want to save it before exiting?");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 1);
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    window.form.unload();
    EXPECT_EQ(box().text, "untitled.rtf wasn't saved. Exit Template Editor aborted.");
    EXPECT_EQ(window.WindowOpen, 1);
    t.dialogues.answers = {Answer::No};
    window.form.unload();
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(TemplateEditorTest, StaysOpenWhenTheQuestionBeforeClosingFails)
{
    type("mine");
    t.dialogues.otherAnswers = [](const MessageBox&) -> Answer {
        throw RuntimeError(ErrorCode::DeviceInputOutput, "broken");
    };
    window.form.unload();
    t.dialogues.otherAnswers = nullptr;
    EXPECT_TRUE(window.form.Visible);
    EXPECT_EQ(text(), "mine");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "TEMPLATE Form_QueryUnload");
}

TEST_F(TemplateEditorTest, TheProgramsExitAsksToo)
{
    type("mine");
    t.dialogues.answers = {Answer::Cancel};
    EXPECT_FALSE(t.program().exit());
    EXPECT_EQ(text(), "mine");
    t.dialogues.answers = {Answer::No};
    EXPECT_TRUE(t.program().exit());
}

TEST_F(TemplateEditorTest, ATextOfTenMegabytesIsOpenedAndSaved)
{
    const std::string large(10 * 1024 * 1024, 'x');
    t.files.addFile(folder + "a.txt", large);
    open(folder + "a.txt");
    EXPECT_EQ(pane.TextLength(), large.size());
    window.Command1[1].Click();
    EXPECT_EQ(t.fileText(folder + "a.txt"), large);
}

TEST_F(TemplateEditorTest, ANewFontAndBackgroundOfThePreferencesAreItsOwnWhenItIsUsedAgain)
{
    type("abc");
    pane.setSelStart(0);
    pane.setSelLength(1);
    pane.setSelColor(255);
    window.TemplateChanged = 0;
    t.settings().TextFontSize = 14;
    t.settings().BackgroundColour = 0x123456;
    window.form.Activate();
    EXPECT_EQ(pane.BackColor, 0x123456);
    EXPECT_EQ(pane.formatAt(0).fontSize, 14);
    EXPECT_EQ(pane.formatAt(0).colour, 255);
    EXPECT_EQ(window.TemplateChanged, 0);
}

TEST_F(TemplateEditorTest, PrintPrintsTheTextBelowItsNameAndTheDate)
{
    type("BTN S1 fire");
    window.CmndPrint.Click();
    ASSERT_EQ(t.printers.printer.pages.size(), 1U);
    const FakePrinter::Page& page = t.printers.printer.pages[0];
    EXPECT_EQ(page.lines, (std::vector<std::string>{"", "*untitled.rtf", "*Date printed: 21 November 2026", "", " "}));
    EXPECT_EQ(page.text, "BTN S1 fire");
    EXPECT_EQ(t.status(), "Finished printing untitled.rtf");
    window.mnuFilePrint.Click();
    EXPECT_EQ(t.printers.printer.ended, 2);
}

TEST_F(TemplateEditorTest, PrintOfAnEmptyPaneDoesNothing)
{
    t.printers.count = 0;
    window.mnuFilePrint.Click();
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_TRUE(t.printers.printer.pages.empty());
}

TEST_F(TemplateEditorTest, PrintWithoutAPrinterSaysSo)
{
    type("BTN S1 fire");
    t.printers.count = 0;
    window.CmndPrint.Click();
    EXPECT_EQ(box().title, "No printer to print to");
    EXPECT_EQ(box().text, "I couldn't detect a printer connected to your system. Please check your printer settings.");
}

} // namespace
} // namespace tarvex
