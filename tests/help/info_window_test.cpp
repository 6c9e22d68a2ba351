#include "help/info_window.h"

#include "help_program.h"

namespace tarvex {
namespace {

struct InfoPages : HelpTest {
    InfoWindow& window = help.info;

    void addPage(const std::string& file, const std::string& bytes)
    {
        t.files.addDirectory("c:\\tarvex\\info");
        t.files.addFile("c:\\tarvex\\info\\" + file, bytes);
    }
    std::string text() const { return window.InfoText.Text(); }
};

TEST_F(InfoPages, EveryNumberHasItsFile)
{
    const std::vector<std::pair<int, std::string>> pages = {
        {0, "Using the layout window effectively.rtf"},
        {1, "To reposition the text boxes.rtf"},
        {2, "To resize the text boxes.rtf"},
        {3, "To change the orientation.rtf"},
        {4, "To move the graphical image.rtf"},
        {10, "Syntax.rtf"},
        {11, "Slash modifiers.rtf"},
        {12, "Error codes.rtf"},
        {20, "Inserting macros.rtf"},
        {21, "Updating macros.rtf"},
        {22, "Downloading files.rtf"},
        {23, "Compiling files.rtf"},
        {24, "TarvexOne preferences.rtf"},
        {30, "Safein options.rtf"},
        {31, "Safein advanced menu.rtf"},
        {32, "Using the Hide button.rtf"},
    };
    for (const auto& [index, file] : pages) EXPECT_EQ(infoPageFile(index), file);
    for (const int none : {-1, 5, 9, 13, 19, 25, 29, 33}) EXPECT_EQ(infoPageFile(none), "") << none;
}

TEST_F(InfoPages, ShowsAnRtfPage)
{
    addPage("Syntax.rtf", "{\\rtf1\\ansi Some {\\b bold} words\\par}");
    ShowInfoPage(window, 10);
    EXPECT_EQ(text(), "Some bold words");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(window.form.TopMost);
    EXPECT_EQ(window.WindowOpen, 1);
}

TEST_F(InfoPages, SetMyPreferencesOpensPage24)
{
    addPage("TarvexOne preferences.rtf", "{\\rtf1 preferences}");
    t.menus().mnuHowDoIArray[4].Click();
    EXPECT_EQ(text(), "preferences");
}

TEST_F(InfoPages, TheThrustmasterMenuBeginsWithPage10)
{
    addPage("Syntax.rtf", "{\\rtf1 syntax}");
    addPage("Error codes.rtf", "{\\rtf1 codes}");
    t.menus().mnuTMhelp[0].Click();
    EXPECT_EQ(text(), "syntax");
    t.menus().mnuTMhelp[2].Click();
    EXPECT_EQ(text(), "codes");
}

TEST_F(InfoPages, SafeinShowsItsOwn)
{
    addPage("Safein options.rtf", "{\\rtf1 options}");
    addPage("Safein advanced menu.rtf", "{\\rtf1 extended}");
    addPage("Using the Hide button.rtf", "{\\rtf1 hide}");
    t.menus().mnuInsertRAW.Click();
    t.program().safein.mnuOptionsExplain.Click();
    EXPECT_EQ(text(), "options");
    t.program().safein.mnuExtendedExplain.Click();
    EXPECT_EQ(text(), "extended");
    t.program().safein.mnuUseHideButton.Click();
    EXPECT_EQ(text(), "hide");
}

TEST_F(InfoPages, AMissingPageLeavesTheWindowEmpty)
{
    addPage("Syntax.rtf", "{\\rtf1 syntax}");
    ShowInfoPage(window, 10);
    ShowInfoPage(window, 11);
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(window.form.Visible);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(InfoPages, ANumberWithoutAPageLeavesTheWindowEmpty)
{
    t.files.addDirectory("c:\\tarvex\\info");
    ShowInfoPage(window, 99);
    EXPECT_EQ(text(), "");
}

TEST_F(InfoPages, TheUserCanNotWriteInIt) { EXPECT_TRUE(window.InfoText.Locked); }

TEST_F(InfoPages, PlaceAndSizeAreKeptForTheNextTime)
{
    ShowInfoPage(window, 10);
    window.form.Top = 1500;
    window.form.Left = 3000;
    window.form.Width = 6000;
    window.form.Height = 4500;
    window.Command1.Click();
    EXPECT_FALSE(window.form.Visible);
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_EQ(t.ini("Online Help", "InfoWindowTop"), "1500");
    EXPECT_EQ(t.ini("Online Help", "InfoWindowLeft"), "3000");
    EXPECT_EQ(t.ini("Online Help", "InfoWindowHeight"), "4500");
    EXPECT_EQ(t.ini("Online Help", "InfoWindowWidth"), "6000");
    t.setIni("Online Help", "InfoWindowWidth", "7500");
    ShowInfoPage(window, 10);
    EXPECT_EQ(window.form.Width, 7500.0F);
    EXPECT_EQ(window.form.Top, 1500.0F);
}

TEST_F(InfoPages, APlaceOffTheScreenIsReplaced)
{
    t.setIni("Online Help", "InfoWindowTop", "-20");
    t.setIni("Online Help", "InfoWindowLeft", "900000");
    t.setIni("Online Help", "InfoWindowHeight", "-1");
    const float height = window.form.Height;
    ShowInfoPage(window, 10);
    EXPECT_EQ(window.form.Top, 200.0F);
    EXPECT_EQ(window.form.Left, 200.0F);
    EXPECT_EQ(window.form.Height, height);
}

TEST_F(InfoPages, TheStatusBarSaysWhatTheMouseIsOver)
{
    InfoText_MouseMove(window);
    EXPECT_EQ(t.status(), "Some online help for you to peruse!");
    Command1_MouseMove(window);
    EXPECT_EQ(t.status(), "Press the OK button when you're done.");
}

TEST_F(InfoPages, TheDocumentWindowTakesItDownAtTheExit)
{
    ShowInfoPage(window, 10);
    t.program().operations.UnloadForm("InfoWindow");
    EXPECT_EQ(window.WindowOpen, 0);
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(InfoPages, APageThatIsNoRtfIsPlainText)
{
    addPage("Syntax.rtf", "plain\r\nwords");
    ShowInfoPage(window, 10);
    EXPECT_EQ(text(), "plain\r\nwords");
}

TEST_F(InfoPages, WithoutARememberedPlaceItComesUpWhereItIs)
{
    const float width = window.form.Width;
    const float height = window.form.Height;
    window.form.Top = 1234;
    window.form.Left = 2345;
    ShowInfoPage(window, 10);
    EXPECT_EQ(window.form.Top, 1234.0F);
    EXPECT_EQ(window.form.Left, 2345.0F);
    EXPECT_EQ(window.form.Width, width);
    EXPECT_EQ(window.form.Height, height);
    EXPECT_EQ(width, 7200.0F);
    EXPECT_EQ(height, 6000.0F);
}

TEST_F(InfoPages, OfItsSizeAHundredPixelsAreKeptAndLessIsDamaged)
{
    for (const char* key : {"InfoWindowWidth", "InfoWindowHeight"}) t.setIni("Online Help", key, "1499");
    ShowInfoPage(window, 10);
    EXPECT_EQ(window.form.Width, 7200.0F);
    EXPECT_EQ(window.form.Height, 6000.0F);
    window.form.Close();
    for (const char* key : {"InfoWindowWidth", "InfoWindowHeight"}) t.setIni("Online Help", key, "1500");
    ShowInfoPage(window, 10);
    EXPECT_EQ(window.form.Width, 1500.0F);
    EXPECT_EQ(window.form.Height, 1500.0F);
}

TEST_F(InfoPages, OfAMinimisedWindowThePlaceIsNotKept)
{
    ShowInfoPage(window, 10);
    window.form.Top = 1500;
    window.form.State = WindowState::Minimised;
    window.Command1.Click();
    EXPECT_EQ(t.ini("Online Help", "InfoWindowTop"), "(none)");
}

} // namespace
} // namespace tarvex
