#include "lists/recent_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Names with a second column, and their menu.
struct Names {
    std::int16_t count = 0;
    std::vector<SettingText> names;
    std::vector<SettingText> paths;
    MenuArray menu{"mnuNames", {"(none)"}};
    RecentList list{count, {&names, &paths}, menu};

    explicit Names(int entries = 0)
    {
        count = static_cast<std::int16_t>(entries);
        for (int i = 1; i <= entries; ++i) {
            names.push_back(std::string("n").append(std::to_string(i)));
            paths.push_back(std::string("p").append(std::to_string(i)));
        }
        showMenu(list);
    }
    std::vector<std::string> captions()
    {
        std::vector<std::string> texts;
        for (int i = 1; i <= menu.UBound(); ++i) texts.push_back(menu[i].Caption);
        return texts;
    }
};

TEST(PutOnTop, TheFirstEntryOfAllHidesThePattern)
{
    Names t;
    EXPECT_TRUE(t.menu[0].Visible);
    putOnTop(t.list, {"a", "1"});
    EXPECT_EQ(t.count, 1);
    EXPECT_THAT(t.names, ElementsAre("a"));
    EXPECT_THAT(t.paths, ElementsAre("1"));
    EXPECT_THAT(t.captions(), ElementsAre("a"));
    EXPECT_FALSE(t.menu[0].Visible);
    EXPECT_TRUE(t.menu[1].Visible);
}

TEST(PutOnTop, ANewEntryMovesAllOthersOnePlaceBack)
{
    Names t(2);
    putOnTop(t.list, {"new", "p"});
    EXPECT_THAT(t.names, ElementsAre("new", "n1", "n2"));
    EXPECT_THAT(t.paths, ElementsAre("p", "p1", "p2"));
    EXPECT_THAT(t.captions(), ElementsAre("new", "n1", "n2"));
}

TEST(PutOnTop, AKnownEntryMovesUpAndTheOthersKeepTheirOrder)
{
    Names t(4);
    putOnTop(t.list, {"n3", "other"});
    EXPECT_THAT(t.names, ElementsAre("n3", "n1", "n2", "n4"));
    EXPECT_THAT(t.paths, ElementsAre("other", "p1", "p2", "p4"));
    EXPECT_EQ(t.count, 4);
}

TEST(PutOnTop, OfSeveralAlikeTheLastMovesUp)
{
    Names t(4);
    t.names = {"a", "x", "b", "x"};
    showMenu(t.list);
    putOnTop(t.list, {"x", "new"});
    EXPECT_THAT(t.names, ElementsAre("x", "a", "x", "b"));
    EXPECT_THAT(t.paths, ElementsAre("new", "p1", "p2", "p3"));
}

TEST(PutOnTop, AFirstEntryThatIsAlikeStaysFirstAndTheOthersStayWhereTheyAre)
{
    Names t(4);
    t.names = {"x", "a", "x", "b"};
    showMenu(t.list);
    putOnTop(t.list, {"x", "new"});
    EXPECT_THAT(t.names, ElementsAre("x", "a", "x", "b"));
    EXPECT_THAT(t.paths, ElementsAre("new", "p2", "p3", "p4"));
}

TEST(PutOnTop, AnEntryThatIsUsedBehindAFirstOneOfItsNameChangesNothing)
{
    Names t(3);
    t.names = {"x", "a", "x"};
    showMenu(t.list);
    putOnTop(t.list, {"x", "p3"});
    EXPECT_THAT(t.names, ElementsAre("x", "a", "x"));
    EXPECT_THAT(t.paths, ElementsAre("p1", "p2", "p3"));
}

TEST(PutOnTop, TwentyNineEntriesTakeOneMoreAndThirtyDropTheLast)
{
    Names t(29);
    putOnTop(t.list, {"thirtieth", ""});
    EXPECT_EQ(t.count, 30);
    EXPECT_EQ(t.names.back(), "n29");
    putOnTop(t.list, {"one more", ""});
    EXPECT_EQ(t.count, 30);
    EXPECT_EQ(t.names.size(), 30U);
    EXPECT_EQ(t.names.front(), "one more");
    EXPECT_EQ(t.names.back(), "n28");
    EXPECT_EQ(t.menu.UBound(), 30);
}

TEST(PutOnTop, AListThatIsTooLongMovesEntriesWithinItsFirstThirty)
{
    Names t(40);
    putOnTop(t.list, {"new", "p"});
    EXPECT_EQ(t.count, 40);
    EXPECT_EQ(t.names[0], "new");
    EXPECT_EQ(t.names[29], "n29");
    EXPECT_EQ(t.names[30], "n31");
    EXPECT_EQ(t.menu.UBound(), 40);
}

TEST(PutOnTop, AnEntryBehindTheThirtiethMovesUpLikeAnyOther)
{
    Names t(40);
    putOnTop(t.list, {"n35", "p"});
    EXPECT_EQ(t.names[0], "n35");
    EXPECT_EQ(t.names[34], "n34");
    EXPECT_EQ(t.names[35], "n36");
}

TEST(ResizeColumns, ACountBelowZeroIsNone)
{
    Names t(2);
    t.count = -5;
    resizeColumns(t.list);
    showMenu(t.list);
    EXPECT_EQ(t.count, 0);
    EXPECT_TRUE(t.names.empty());
    EXPECT_TRUE(t.paths.empty());
    EXPECT_EQ(t.menu.UBound(), 0);
    EXPECT_TRUE(t.menu[0].Visible);
}

TEST(IsOnMenu, ComparesExactlyAndLeavesThePatternOut)
{
    Names t(2);
    EXPECT_EQ(isOnMenu(t.list, "n2"), -1);
    EXPECT_EQ(isOnMenu(t.list, "N2"), 0);
    EXPECT_EQ(isOnMenu(t.list, "n"), 0);
    EXPECT_EQ(isOnMenu(t.list, "(none)"), 0);
    EXPECT_EQ(isOnMenu(Names().list, "n1"), 0);
}

TEST(RecentListOnTop, OfEntriesOfOneNameTheFirstIsTakenBeforeTheLast)
{
    Names names(3);
    names.names[2] = "n1";
    putOnTop(names.list, {"n1", "new"});
    EXPECT_EQ(names.paths[0], "new");
    EXPECT_EQ(names.paths[1], "p2");
    EXPECT_EQ(names.paths[2], "p3") << "the other one stays";
}

TEST(PutOnTop, AnEntryThatStandsCutIsTheOneOfItsShownText)
{
    Names t(2);
    t.names[1] = SettingText::cutTo(3, "abcdef");
    showMenu(t.list);
    putOnTop(t.list, {"abc", "new"});
    EXPECT_THAT(t.names, ElementsAre("abc", "n1"));
    EXPECT_THAT(t.paths, ElementsAre("new", "p1"));
    EXPECT_EQ(t.count, 2);
}

TEST(PutOnTop, OfTwoThatAreCutAlikeTheOneOfTheSameWholeTextMovesUp)
{
    Names t(3);
    t.names[1] = SettingText::cutTo(3, "abcdef");
    t.names[2] = SettingText::cutTo(3, "abcxyz");
    showMenu(t.list);
    putOnTop(t.list, {SettingText::cutTo(3, "abcdef"), "new"});
    EXPECT_THAT(t.paths, ElementsAre("new", "p1", "p3"));
    EXPECT_EQ(t.names[0].whole(), "abcdef");
    EXPECT_EQ(t.names[2].whole(), "abcxyz");
}

TEST(PutOnTop, TheTextsOfAnotherNameDoNotKeepAnEntryFromItsNewOnes)
{
    Names t(2);
    putOnTop(t.list, {"n1", "p2"});
    EXPECT_THAT(t.names, ElementsAre("n1", "n2"));
    EXPECT_THAT(t.paths, ElementsAre("p2", "p2"));
}

TEST(PutOnTop, AColumnThatIsTooShortIsFilledUp)
{
    Names t(2);
    t.paths.clear();
    putOnTop(t.list, {"n2", "p"});
    EXPECT_THAT(t.names, ElementsAre("n2", "n1"));
    EXPECT_THAT(t.paths, ElementsAre("p", ""));
}

} // namespace
} // namespace tarvex
