#include "documents/text/line_mark.h"

#include "support/random_seed.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tarvex {
namespace {

struct LineMarkTest : testing::Test {
    Pane pane;
    LineMark mark{pane};
    int changes = 0;
    Connection connection = mark.changed.connect([this] { ++changes; });

    LineMarkTest() { pane.setText("one\r\ntwo\r\nthree\r\n\r\nfive"); }
};

TEST_F(LineMarkTest, StaysWithItsLineWhenLinesComeAndGoAboveIt)
{
    mark.set(2);
    pane.userEdit(0, 0, "new\r\n");
    EXPECT_EQ(mark.line(), 3);
    pane.userEdit(0, 10, "");
    EXPECT_EQ(mark.line(), 1);
    EXPECT_EQ(changes, 3);
}

TEST_F(LineMarkTest, StaysWhenOtherLinesAreEdited)
{
    mark.set(2);
    pane.userEdit(0, 3, "first");
    pane.userEdit(static_cast<std::int64_t>(pane.TextLength()), 0, "!");
    pane.userEdit(pane.lineStart(3), 0, "four");
    EXPECT_EQ(mark.line(), 2);
    EXPECT_EQ(changes, 1);
}

TEST_F(LineMarkTest, GoesWhenItsLineIsEdited)
{
    for (const std::int64_t column : {0, 2, 5}) {
        mark.set(2);
        pane.userEdit(pane.lineStart(2) + column, 0, "x");
        EXPECT_FALSE(mark.line()) << column;
        pane.userEdit(pane.lineStart(2) + column, 1, "");
    }
    mark.set(2);
    pane.userEdit(pane.lineStart(2) + 4, 1, "e"); // written over by its equal
    EXPECT_FALSE(mark.line());
}

TEST_F(LineMarkTest, GoesWhenItsLineIsJoinedWithAnother)
{
    mark.set(1);
    pane.userEdit(3, 2, ""); // the end of the line before
    EXPECT_FALSE(mark.line());
    pane.setText("one\r\ntwo\r\nthree");
    mark.set(1);
    pane.userEdit(8, 2, ""); // its own end
    EXPECT_FALSE(mark.line());
}

TEST_F(LineMarkTest, ALineEndWrittenAtItsEdgesLeavesItWhole)
{
    mark.set(1);
    pane.userEdit(5, 0, "\r\n");
    EXPECT_EQ(mark.line(), 2);
    pane.userEdit(10, 0, "\r\n");
    EXPECT_EQ(mark.line(), 2);
}

TEST_F(LineMarkTest, AnEmptyLineCanBeMarked)
{
    mark.set(3);
    pane.userEdit(0, 0, "\r\n");
    EXPECT_EQ(mark.line(), 4);
    pane.userEdit(pane.lineStart(4), 0, "x");
    EXPECT_FALSE(mark.line());
}

TEST_F(LineMarkTest, GoesWithTheWholeText)
{
    mark.set(2);
    pane.setText("");
    EXPECT_FALSE(mark.line());
}

TEST_F(LineMarkTest, ALineThatThereIsNotLeavesNoMark)
{
    for (const std::int64_t line : {-1, 5, 1000}) {
        mark.set(1);
        mark.set(line);
        EXPECT_FALSE(mark.line()) << line;
    }
}

TEST_F(LineMarkTest, EachLineThatThereIsCanBeMarked)
{
    for (std::int64_t line = 0; line < 5; ++line) {
        mark.set(line);
        EXPECT_EQ(mark.line(), line);
    }
}

TEST_F(LineMarkTest, ColoursLeaveTheMark)
{
    mark.set(2);
    pane.setSelStart(0);
    pane.setSelLength(20);
    pane.setSelColor(255);
    EXPECT_EQ(mark.line(), 2);
}

/// Every character of the marked line is a "#", which no other text holds.
TEST(LineMark, FollowsItsLineThroughRandomEdits)
{
    std::mt19937 random(randomSeed());
    const auto below = [&](std::size_t bound) { return static_cast<std::int64_t>(random() % bound); };
    const std::vector<std::string> pieces = {"", "a", "bc", "\r\n", "d\r\n", "\r\ne", "f\r\ng\r\n"};
    for (int round = 0; round < 300; ++round) {
        Pane pane;
        LineMark mark(pane);
        pane.setText("aa\r\nbbb\r\n#####\r\ncc\r\ndddd");
        mark.set(2);
        for (int edit = 0; edit < 20 && mark.line(); ++edit) {
            const std::string before = pane.Text();
            pane.userEdit(below(before.size() + 1), below(4), pieces[static_cast<std::size_t>(below(pieces.size()))]);
            const std::string& text = pane.Text();
            const std::size_t at = ("\r\n" + text + "\r\n").find("\r\n#####\r\n");
            ASSERT_EQ(mark.line().has_value(), at != std::string::npos) << before << "\n->\n" << text;
            if (!mark.line()) break;
            ASSERT_EQ(pane.lineStart(*mark.line()), static_cast<std::int64_t>(at));
        }
    }
}

} // namespace
} // namespace tarvex
