#include "composer/mice.h"

#include "composer/composer_fixture.h"

namespace tarvex {
namespace {

using Names = std::array<std::string, 3>;

struct MiceTest : ComposerTest {
    Names labels()
    {
        const auto& shown = window.mice.Label5;
        return {shown[0].Caption, shown[1].Caption, shown[2].Caption};
    }
    void choose(std::size_t list, int row)
    {
        window.mice.Option1[list].Click();
        window.mice.MouseList[list].ListIndex = row;
        window.mice.MouseList[list].Click();
    }
};

TEST_F(MiceTest, TheListsHaveTheirTypesAndTheirFirstRowsAreChosen)
{
    const auto& lists = window.mice.MouseList;
    EXPECT_EQ(lists[0].Items.get(), (std::vector<std::string>{"A1", "A2", "A3", "A4", "A5"}));
    EXPECT_EQ(lists[1].Items.get().size(), 10U);
    EXPECT_EQ(lists[1].Items.get().back(), "B10");
    EXPECT_EQ(lists[2].Items.get().front(), "C1");
    for (const ListBox& list : lists) EXPECT_EQ(list.ListIndex.get(), 0);
    EXPECT_EQ(labels(), (Names{"T1", "n/a", "T6"}));
}

TEST_F(MiceTest, OneListIsOnShow)
{
    window.mice.Option1[2].Click();
    EXPECT_FALSE(window.mice.MouseList[0].Visible);
    EXPECT_FALSE(window.mice.MouseList[1].Visible);
    EXPECT_TRUE(window.mice.MouseList[2].Visible);
    EXPECT_TRUE(window.mice.Option1[2].Value);
    EXPECT_FALSE(window.mice.Option1[0].Value);
}

TEST_F(MiceTest, EveryTypeOfATwoButtonMouseShowsItsButtons)
{
    const Names expected[] = {
        {"T1", "n/a", "T6"}, {"T6", "n/a", "T1"}, {"T1", "n/a", "n/a"}, {"T6", "n/a", "n/a"}, {"n/a", "n/a", "n/a"}};
    for (int row = 0; row < 5; ++row) {
        choose(0, row);
        EXPECT_EQ(labels(), expected[row]) << row;
    }
}

TEST_F(MiceTest, EveryTypeOfTheOtherMiceShowsItsButtons)
{
    const Names expected[] = {{"T1", "T6", "n/a"},   {"T6", "T1", "n/a"}, {"T1", "n/a", "n/a"}, {"T6", "n/a", "n/a"},
                              {"n/a", "n/a", "n/a"}, {"T1", "T6", "T3"},  {"T6", "T1", "T3"},   {"T1", "n/a", "T3"},
                              {"T6", "n/a", "T3"},   {"n/a", "n/a", "T3"}};
    for (const std::size_t list : {1, 2}) {
        for (int row = 0; row < 10; ++row) {
            choose(list, row);
            EXPECT_EQ(labels(), expected[row]) << list << ' ' << row;
        }
    }
}

TEST_F(MiceTest, RowFiveOfEveryListShowsThreeTimesNone)
{
    for (const std::size_t list : {0, 1, 2}) {
        choose(list, 4);
        EXPECT_EQ(labels(), (Names{"n/a", "n/a", "n/a"}));
    }
}

TEST_F(MiceTest, WithTheTwoButtonListA3IsInsertedWhateverTheOthersHaveChosen)
{
    settings.CompTabsAddCr = 1;
    choose(1, 7);
    choose(2, 9);
    choose(0, 2);
    window.mice.Command9.Click();
    EXPECT_EQ(joystick.Text(), "USE MTYPE A3\r\n");
}

TEST_F(MiceTest, ARowBehindTheLastHasNoTypeAndNoButtons)
{
    settings.CompTabsAddCr = 1;
    ListBox& list = window.mice.MouseList[0];
    std::vector<std::string> types{"A1", "gone"};
    types.pop_back(); // its text may still be there
    list.Items = std::move(types);
    for (const int row : {1, -1}) {
        list.ListIndex = row;
        window.mice.Command9.Click();
        EXPECT_EQ(joystick.Text(), "USE MTYPE \r\n") << row;
        joystick.setText("");
    }
    choose(0, 0);
    for (const int row : {5, -1}) {
        list.ListIndex = row;
        list.Click();
        EXPECT_EQ(labels(), (Names{"T1", "n/a", "T6"})) << row;
    }
}

} // namespace
} // namespace tarvex
