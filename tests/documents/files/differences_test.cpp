#include "documents/files/differences.h"

#include "support/test_program.h"
#include "support/utf16_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";

struct DifferencesTest : testing::Test {
    DifferencesTest()
    {
        t.files.addFile(mig, "one\r\ntwo\r\nthree\r\nfour\r\n");
        t.menus().mnuJoyPopUpSingleFile.Checked = true;
        t.openBoth(mig);
    }
    TestProgram t;
    Differences& window = t.program().differences;

    void load(const std::string& file)
    {
        t.files.addFile(mig, file);
        loadDifferences(window);
    }
};

TEST_F(DifferencesTest, GoFromOneDifferenceToTheNextAndStopAtTheEnds)
{
    load("ONE\r\ntwo\r\nthree\r\nFOUR\r\nfive\r\n");
    EXPECT_EQ(window.Count.Caption.get(), "Difference 1 of 2");
    EXPECT_FALSE(window.Previous.Enabled);
    EXPECT_EQ(firstRowOf(window, window.Current), 0U);
    window.Next.Click();
    EXPECT_EQ(window.Count.Caption.get(), "Difference 2 of 2");
    EXPECT_EQ(firstRowOf(window, window.Current), 3U);
    EXPECT_FALSE(window.Next.Enabled);
    EXPECT_TRUE(window.Previous.Enabled);
    window.Next.Click();
    EXPECT_EQ(window.Current, 1);
    window.Previous.Click();
    EXPECT_EQ(window.Current, 0);
    EXPECT_EQ(window.Count.Caption.get(), "Difference 1 of 2");
    EXPECT_TRUE(window.Next.Enabled);
    EXPECT_FALSE(window.Previous.Enabled);
    window.Previous.Click();
    EXPECT_EQ(window.Current, 0);
}

TEST_F(DifferencesTest, ShowBothTextsWithTheirNames)
{
    load("one\r\nzw\xF6lf\r\n");
    EXPECT_EQ(window.Left.Caption.get(), "mig.b50 in this window");
    EXPECT_EQ(window.Right.Caption.get(), "mig.b50 on the disk");
    EXPECT_EQ(window.LeftLines, (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(window.RightLines, (std::vector<std::string>{"one", "zwölf"}));
    EXPECT_EQ(window.Rows.size(), 4U);
}

TEST_F(DifferencesTest, AFileInUtf16IsComparedByItsText)
{
    load(asUtf16("one\r\ntwo\r\nTHREE\r\nfour\r\n"));
    EXPECT_EQ(window.Count.Caption.get(), "Difference 1 of 1");
    EXPECT_EQ(window.RightLines[2], "THREE");
}

TEST_F(DifferencesTest, EqualTextsHaveNone)
{
    load("one\ntwo\nthree\nfour\n"); // other line ends alone are none
    EXPECT_EQ(window.Count.Caption.get(), "No line differs");
    EXPECT_EQ(window.Current, -1);
    EXPECT_FALSE(window.Next.Enabled);
    window.Next.Click();
    window.Previous.Click();
    EXPECT_EQ(window.Current, -1);
}

TEST_F(DifferencesTest, AFileThatIsGoneCountsAsEmpty)
{
    t.files.removeFile(mig);
    loadDifferences(window);
    EXPECT_TRUE(window.RightLines.empty());
    EXPECT_EQ(window.Hunks.size(), 1U);
}

TEST_F(DifferencesTest, OfSeveralHaveTheirRowsOneByOne)
{
    load("ONE\r\ntwo\r\nTHREE\r\nfour\r\nfive\r\n");
    const std::pair<std::size_t, bool> expected[] = {{0, false}, {2, true}, {4, true}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(window.Current, i);
        EXPECT_EQ(firstRowOf(window, i), expected[i].first);
        EXPECT_EQ(window.Previous.Enabled, expected[i].second) << i;
        EXPECT_EQ(window.Next.Enabled, i < 2) << i;
        window.Next.Click();
    }
}

} // namespace
} // namespace tarvex
