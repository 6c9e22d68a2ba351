#include "documents/text/drag_move.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// "abcdef" with "cd" in bold and selected.
struct MoveSelection : testing::Test {
    Pane pane;
    int edits = 0;
    Connection edited = pane.edited.connect([this](const Pane::Edit&) { ++edits; });

    MoveSelection()
    {
        pane.setText("abcdef");
        pane.setSelStart(2);
        pane.setSelLength(2);
        pane.setSelBold(true);
        edits = 0;
    }
    std::string boldText()
    {
        std::string bold;
        for (std::size_t i = 0; i < pane.TextLength(); ++i)
            if (pane.formatAt(i).bold) bold += pane.Text()[i];
        return bold;
    }
    void expect(const std::string& text, std::int64_t start)
    {
        EXPECT_EQ(pane.Text(), text);
        EXPECT_EQ(pane.SelStart(), start);
        EXPECT_EQ(pane.SelText(), "cd");
        EXPECT_EQ(boldText(), "cd") << "in its own look";
    }
};

TEST_F(MoveSelection, ForwardsItStandsBeforeTheTarget)
{
    moveSelection(pane, 5);
    expect("abecdf", 3);
    EXPECT_EQ(edits, 1) << "one edit for one undo";
}

TEST_F(MoveSelection, BackwardsItStandsAtTheTarget)
{
    moveSelection(pane, 1);
    expect("acdbef", 1);
    EXPECT_EQ(edits, 1);
}

TEST_F(MoveSelection, BeyondTheTextItGoesToItsEnds)
{
    moveSelection(pane, 99);
    expect("abefcd", 4);
    moveSelection(pane, -1);
    expect("cdabef", 0);
}

TEST_F(MoveSelection, OntoItselfItStays)
{
    for (const std::int64_t target : {2, 3, 4}) moveSelection(pane, target);
    expect("abcdef", 2);
    EXPECT_EQ(edits, 0);
}

TEST_F(MoveSelection, OfAProtectedPaneItStays)
{
    pane.Locked = true;
    moveSelection(pane, 0);
    expect("abcdef", 2);
    EXPECT_EQ(edits, 0);
}

} // namespace
} // namespace tarvex
