#include "templates/template_find.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct TemplateFindTest : testing::Test {
    TestProgram t;
    TemplateForm& window = t.program().templateEditor;
    Pane& pane = window.TemplateText;

    TemplateFindTest()
    {
        t.menus().mnuAppsTemplate.Click();
        pane.setText("Hat hatch\r\nhat\r\n");
        pane.setSelStart(0);
        window.TemplateChanged = 0;
    }
    std::int64_t next()
    {
        window.mnuFindNext.Click();
        return pane.SelStart();
    }
    std::int64_t previous()
    {
        window.mnuFindPrevious.Click();
        return pane.SelStart();
    }
};

TEST_F(TemplateFindTest, GoesFromMatchToMatchAndRoundAgain)
{
    window.Find.What.Text = "hat";
    EXPECT_EQ(next(), 0);
    EXPECT_EQ(pane.SelLength(), 3);
    EXPECT_EQ(next(), 4);
    EXPECT_EQ(next(), 11);
    EXPECT_NE(t.status(), "That was all of it, so I went round once more");
    EXPECT_EQ(next(), 0);
    EXPECT_EQ(t.status(), "That was all of it, so I went round once more");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(TemplateFindTest, GoesBackwardsToo)
{
    window.Find.What.Text = "hat";
    const std::string round = "That was all of it, so I went round once more";
    pane.setSelStart(14);
    EXPECT_EQ(previous(), 11);
    EXPECT_EQ(previous(), 4);
    EXPECT_EQ(previous(), 0);
    EXPECT_NE(t.status(), round);
    EXPECT_EQ(previous(), 11);
    EXPECT_EQ(t.status(), round);
}

TEST_F(TemplateFindTest, OfMatchesSideBySideTheNearestIsFoundBackwards)
{
    pane.setText("aaa b");
    pane.setSelStart(5);
    window.Find.What.Text = "a";
    EXPECT_EQ(previous(), 2);
    EXPECT_EQ(previous(), 1);
    EXPECT_EQ(previous(), 0);
}

TEST_F(TemplateFindTest, CaseAndWholeWordsCountWhenTheirBoxesAreTicked)
{
    window.Find.What.Text = "hat";
    window.Find.MatchCase.Value = true;
    EXPECT_EQ(next(), 4);
    window.Find.WholeWord.Value = true;
    EXPECT_EQ(next(), 11);
    EXPECT_EQ(next(), 11);
    window.Find.MatchCase.Value = false;
    EXPECT_EQ(next(), 0);
    EXPECT_EQ(previous(), 11);
}

TEST_F(TemplateFindTest, AMissingTextIsReportedAndTheSelectionStays)
{
    pane.setSelStart(2);
    window.Find.What.Text = "rudder";
    EXPECT_EQ(next(), 2);
    EXPECT_EQ(t.lastBox().title, "Text not found");
    EXPECT_EQ(t.lastBox().text, "\"rudder\" not found in untitled.rtf");
    EXPECT_NE(t.status(), "That was all of it, so I went round once more");
}

TEST_F(TemplateFindTest, TakesTheSelectionUnlessItHasSeveralLines)
{
    int focused = 0;
    const auto listening = window.Find.What.focusWanted.connect([&] { ++focused; });
    pane.setSelStart(4);
    pane.setSelLength(5);
    window.mnuFind.Click();
    EXPECT_TRUE(window.Find.Visible);
    EXPECT_EQ(window.Find.What.Text, "hatch");
    EXPECT_EQ(focused, 1);
    pane.setSelStart(4);
    pane.setSelLength(10);
    window.mnuFind.Click();
    EXPECT_EQ(window.Find.What.Text, "hatch");
}

TEST_F(TemplateFindTest, WithoutATextItAsksForOne)
{
    window.mnuFindNext.Click();
    EXPECT_TRUE(window.Find.Visible);
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(TemplateFindTest, LettersBeyondAsciiAreFoundInAnyCase)
{
    pane.setText("H\xD6HE"); // Windows-1252
    pane.setSelStart(0);
    window.Find.What.Text = "h\xC3\xB6he"; // UTF-8
    EXPECT_EQ(next(), 0);
    EXPECT_EQ(pane.SelLength(), 4);
}

TEST_F(TemplateFindTest, EscClosesTheRowFirstAndThenTheWindow)
{
    window.mnuFind.Click();
    window.form.Escape();
    EXPECT_FALSE(window.Find.Visible);
    EXPECT_TRUE(window.form.Visible);
    window.form.Escape();
    EXPECT_FALSE(window.form.Visible);
}

TEST_F(TemplateFindTest, TheRowsButtonsDoWhatTheMenuDoes)
{
    int selected = 0;
    int focused = 0;
    const Connection words = window.Find.What.selectAllWanted.connect([&selected] { ++selected; });
    const Connection text = pane.focusWanted.connect([&focused] { ++focused; });
    window.mnuFind.Click();
    EXPECT_EQ(selected, 1) << "to be typed over";
    window.Find.What.Text = "hat";
    window.Find.Next.Click();
    window.Find.Next.Click();
    EXPECT_EQ(pane.SelStart(), 4);
    window.Find.Previous.Click();
    EXPECT_EQ(pane.SelStart(), 0);
    window.Find.Close.Click();
    EXPECT_FALSE(window.Find.Visible);
    EXPECT_EQ(focused, 1);
}

} // namespace
} // namespace tarvex
