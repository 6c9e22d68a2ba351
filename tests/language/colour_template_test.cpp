#include "language/colour_template.h"

#include "language/colour_letters.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvex {
namespace {

struct TemplateTest : testing::Test {
    Settings settings;
    ErrorRecord errors;
    Mum mum;
    Pane pane;
    std::vector<std::string> status;
    std::vector<int> progress;
    int blackened = 0;
    Connection statusShown = mum.StatusBar.Panels(panel::progress).Text.changed.connect([this] {
        status.push_back(mum.StatusBar.Panels(panel::progress).Text);
    });
    Connection progressShown =
        mum.ProgressBar1.Value.changed.connect([this] { progress.push_back(mum.ProgressBar1.Value); });

    TemplateTest() { setTestScheme(settings); }

    std::string colours(const std::string& text)
    {
        pane.setText(text);
        colour();
        return visibleColoursOf(pane, settings);
    }
    void colour()
    {
        ColourTemplateText({pane, "mine.txt", [this] { ++blackened; }, settings, errors, mum, {}});
    }
};

TEST_F(TemplateTest, AnEmptyTemplateIsOnlyReported)
{
    bool shown = false;
    const Connection bar = mum.ProgressBar1.Visible.changed.connect([&] { shown = true; });
    colour();
    EXPECT_EQ(status, std::vector<std::string>{"There's no text to highlight."});
    EXPECT_FALSE(shown);
    EXPECT_EQ(blackened, 0);
    EXPECT_EQ(pane.SelStart(), 0);
}

TEST_F(TemplateTest, WordsAreColouredAsInAJoystickFile)
{
    EXPECT_EQ(colours("BTN S1 /I RAW (#5B) x\r\nant 1 DELAY (5)\r\nRKR UP a\r\nPortB1 IS H1\r\nx ~ y"),
              "BBBBBB.SS.RRRRR...R..\r\nMMM...RRRRR....\r\nMMMMMM..\r\nMMMMMMMMMBBB\r\n..CCC");
}

TEST_F(TemplateTest, DefItselfIsMiscellaneousAndItsNameIsAButton) { EXPECT_EQ(colours("DEF X1 a"), "MMMMBB.."); }

TEST_F(TemplateTest, DefWithoutABlankBehindItStaysPlainAndWhatFollowsIsAButton)
{
    EXPECT_EQ(colours("DEF\tX1 a"), "....BB..");
    EXPECT_EQ(colours("def X1 a"), "........");
}

TEST_F(TemplateTest, StatusTextsAreFewerThanThoseOfAJoystickFile)
{
    colours("BTN S1 x");
    EXPECT_EQ(status,
              (std::vector<std::string>{
                  "Applying colour highlighting to mine.txt. Please wait ...", "Applying colour to BTN statements ...",
                  "Applying colour to / modifiers ...", "Applying colour to RAW statements ...",
                  "Applying colour to DLY statements ...", "Applying colour to Rem comments ...", "Done"}));
    EXPECT_FALSE(mum.ProgressBar1.Visible);
}

TEST_F(TemplateTest, ProgressIsThatOfAJoystickFile)
{
    colours("x");
    EXPECT_EQ(progress, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0}));
}

TEST_F(TemplateTest, TheTextIsMadeBlackFirstWithNothingSelectedAndTheCaretComesBack)
{
    pane.setText("BTN S1 x");
    pane.setSelStart(5);
    pane.setSelLength(2);
    std::int64_t selectedWhenBlackened = -1;
    ColourTemplateText(
        {pane, "mine.txt", [&] { selectedWhenBlackened = pane.SelLength(); }, settings, errors, mum, {}});
    EXPECT_EQ(selectedWhenBlackened, 0);
    EXPECT_EQ(pane.SelStart(), 5);
    EXPECT_EQ(pane.SelLength(), 0);
    EXPECT_EQ(pane.BackColor, settings.BackgroundColour);
}

TEST_F(TemplateTest, TheProgressBarCountsFromNothingBeyondTheTextsLengthWhileItIsShown)
{
    std::vector<std::string> shown;
    const Connection visible = mum.ProgressBar1.Visible.changed.connect(
        [&] { shown.push_back(mum.ProgressBar1.Visible ? "shown" : "hidden"); });
    std::vector<int> atFirstPass;
    const Connection passes = mum.StatusBar.Panels(panel::progress).Text.changed.connect([&] {
        if (mum.StatusBar.Panels(panel::progress).Text.get() == "Applying colour to BTN statements ...")
            atFirstPass = {mum.ProgressBar1.Min, mum.ProgressBar1.Max, mum.ProgressBar1.Value};
    });
    int repaints = 0;
    const Connection refreshed = pane.refreshWanted.connect([&] { ++repaints; });
    mum.ProgressBar1.Min = 7;
    mum.ProgressBar1.Value = 9;
    pane.setText("BTN S1 x");
    ColourTemplateText({pane, "mine.txt", {}, settings, errors, mum, {}});
    EXPECT_EQ(shown, (std::vector<std::string>{"shown", "hidden"}));
    EXPECT_EQ(atFirstPass, (std::vector<int>{0, 9, 0}));
    EXPECT_EQ(repaints, 2) << "after the base format, and after the ground and the font";
    EXPECT_EQ(pane.Font(), (PaneFont{settings.TextFontName, static_cast<float>(settings.TextFontSize), false}));
}

TEST_F(TemplateTest, FailuresAreReportedUnderItsName)
{
    colours("/P x");
    EXPECT_EQ(errors.ErrorProcedure, "ColourTemplateText");
}

} // namespace
} // namespace tarvex
