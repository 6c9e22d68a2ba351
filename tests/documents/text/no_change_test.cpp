// What changes nothing is reported to nobody: views repaint what is reported.

#include "documents/text/line_mark.h"
#include "documents/text/match_marks.h"
#include "documents/text/pane.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct NoChange : testing::Test {
    Pane pane;
    int reports = 0;
    Connection reformatted = pane.reformatted.connect([this](std::int64_t, std::int64_t) { ++reports; });
    Connection font = pane.fontChanged.connect([this] { ++reports; });

    NoChange()
    {
        pane.setText("BTN S1 fire\r\nBTN S2 gear\r\nBTN S3 fire");
        reports = 0;
    }
    int reported() { return std::exchange(reports, 0); }
};

TEST_F(NoChange, IsALookThatTheCharactersHaveAlready)
{
    pane.setSelLength(3);
    pane.setSelBold(true);
    EXPECT_EQ(reported(), 1);
    pane.setSelBold(true);
    EXPECT_EQ(reported(), 0);
    pane.setSelIndent(20);
    EXPECT_EQ(reported(), 1);
    pane.setSelIndent(20);
    EXPECT_EQ(reported(), 0);
}

TEST_F(NoChange, AreFormatsThatTheCharactersHaveAlready)
{
    const FormatId bold = pane.formats()->idOf([this] {
        CharacterFormat format = pane.formatAt(0);
        format.bold = true;
        return format;
    }());
    std::vector<FormatId> ids(3, pane.formats()->idOf(pane.formatAt(0)));
    pane.setFormats(4, ids);
    EXPECT_EQ(reported(), 0);
    ids[1] = bold;
    std::pair<std::int64_t, std::int64_t> range;
    const Connection where = pane.reformatted.connect([&](std::int64_t at, std::int64_t length) {
        range = {at, length};
    });
    pane.setFormats(4, ids);
    EXPECT_EQ(reported(), 1);
    EXPECT_EQ(range, (std::pair<std::int64_t, std::int64_t>(5, 1))) << "the one that differs";
    pane.setFormats(4, ids);
    EXPECT_EQ(reported(), 0);
}

TEST_F(NoChange, IsAFontThatThePaneHasAlready)
{
    PaneFont other = pane.Font();
    other.size += 1;
    pane.setFont(pane.Font());
    EXPECT_EQ(reported(), 0);
    pane.setFont(other);
    EXPECT_EQ(reported(), 1);
}

TEST_F(NoChange, IsAMarkOfTheSameLine)
{
    LineMark mark(pane);
    const Connection changed = mark.changed.connect([this] { ++reports; });
    mark.clear();
    EXPECT_EQ(reported(), 0);
    mark.set(1);
    EXPECT_EQ(reported(), 1);
    mark.set(1);
    EXPECT_EQ(reported(), 0);
    pane.userEdit(static_cast<std::int64_t>(pane.TextLength()), 0, "x");
    EXPECT_EQ(reported(), 0) << "an edit below";
    pane.userEdit(0, 0, "x");
    EXPECT_EQ(reported(), 0) << "an edit above, in its line";
    pane.userEdit(0, 0, "\r\n");
    EXPECT_EQ(reported(), 1);
    mark.clear();
    mark.clear();
    EXPECT_EQ(reported(), 1);
}

TEST_F(NoChange, IsTheSameSearchOnceMore)
{
    MatchMarks marks(pane);
    const Connection changed = marks.changed.connect([this] { ++reports; });
    marks.show("fire", 0);
    EXPECT_EQ(reported(), 1);
    marks.show("FIRE", 0);
    EXPECT_EQ(reported(), 0);
    marks.show("fire", find::wholeWord);
    EXPECT_EQ(reported(), 1);
    marks.show("fired", find::wholeWord);
    EXPECT_EQ(reported(), 1);
    pane.userEdit(0, 0, "x");
    EXPECT_EQ(reported(), 0) << "no match came or went";
}

TEST_F(NoChange, IsAnEditOfNothingButNoWrittenSelection)
{
    int changes = 0;
    pane.Change = [&] { ++changes; };
    pane.setSelLength(3);
    pane.setSelRTF(RichText(pane.formats(), "NEW", {{3, 0}}));
    EXPECT_EQ(changes, 1);
    pane.setSelStart(0);
    pane.setSelLength(3);
    pane.setSelText("BTN");
    EXPECT_EQ(changes, 2);
    pane.userEdit(0, 0, "x");
    EXPECT_EQ(changes, 3);
    pane.userEdit(0, 0, "");
    EXPECT_EQ(changes, 3);
}

} // namespace
} // namespace tarvex
