#include "preferences/favourites_page.h"

#include "preferences_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::ElementsAre;

/// Two favourites, the first of which is opened at the start.
struct FavouritesPageTest : testing::Test, PreferencesProgram {
    FavouritesPageTest() : PreferencesProgram(false)
    {
        setIni("Favourites", "FavArrayNum", "2");
        for (const char* number : {"1", "2"}) {
            const std::string path = std::string("c:\\f") + number;
            setIni("Favourites", std::string("FavName") + number, std::string("fav") + number);
            setIni("Favourites", std::string("FavJFPath") + number, path + ".b50");
            setIni("Favourites", std::string("FavMFPath") + number, path + ".m50");
            files.addFile(path + ".b50", "");
            files.addFile(path + ".m50", "");
        }
        setIni("Favourites", "FavLoadOnStart", "1");
        setIni("Favourites", "FavNameToLoad", "fav1");
        start();
    }
    FavouritesPage& page() { return preferences().favouritesPage; }
    void choose(std::int32_t entry)
    {
        page().List2.ListIndex = entry;
        page().List2.Click();
    }
    /// Whether one is opened at the start, and its name.
    std::vector<std::string> openedAtStart()
    {
        return {ini("Favourites", "FavLoadOnStart"), ini("Favourites", "FavNameToLoad")};
    }
};

TEST_F(FavouritesPageTest, RemovingTheOneThatIsOpenedAtTheStartLeavesNone)
{
    inPreferences([this] { page().Command13.Click(); });
    EXPECT_EQ(openedAtStart().front(), "0");
}

TEST_F(FavouritesPageTest, RemovingAnotherLeavesTheOneThatIsOpenedAtTheStart)
{
    inPreferences([this] {
        choose(1);
        page().Command13.Click();
        EXPECT_TRUE(page().LoadAppCheckBox.Value) << "the first one is chosen now";
    });
    EXPECT_THAT(openedAtStart(), ElementsAre("1", "fav1"));
}

TEST_F(FavouritesPageTest, TheOneThatIsOpenedAtTheStartIsSoUnderItsNewNameToo)
{
    inPreferences([this] {
        page().Text7.Text = "Sabre";
        page().Command14.Click();
        EXPECT_TRUE(page().LoadAppCheckBox.Value);
    });
    EXPECT_THAT(openedAtStart(), ElementsAre("1", "Sabre"));
}

TEST_F(FavouritesPageTest, ANewNameOfAnotherLeavesTheOneThatIsOpenedAtTheStart)
{
    inPreferences([this] {
        choose(1);
        page().Text7.Text = "Sabre";
        page().Command14.Click();
        EXPECT_FALSE(page().LoadAppCheckBox.Value);
    });
    EXPECT_THAT(openedAtStart(), ElementsAre("1", "fav1"));
}

TEST_F(FavouritesPageTest, WithoutTheTickNoneIsOpenedAtTheStart)
{
    inPreferences([this] {
        EXPECT_TRUE(page().LoadAppCheckBox.Value);
        page().LoadAppCheckBox.Value = false;
        page().LoadAppCheckBox.Click();
    });
    EXPECT_EQ(openedAtStart().front(), "0");
}

TEST_F(FavouritesPageTest, WithTheLastOneAllOfThePageIsGreyAndEmpty)
{
    inPreferences([this] {
        page().Command13.Click();
        page().Command13.Click();
        for (const TextBox* box : {&page().Text7, &page().Text8, &page().Text9}) {
            EXPECT_FALSE(box->Enabled);
            EXPECT_EQ(box->Text.get(), "");
        }
        for (const Button* button : {&page().Command13, &page().Command14}) EXPECT_FALSE(button->Enabled);
        EXPECT_FALSE(page().LoadAppCheckBox.Enabled);
        EXPECT_FALSE(page().LoadAppCheckBox.Value);
        EXPECT_FALSE(page().List2.Enabled);
    });
}

TEST_F(FavouritesPageTest, BothPathsAreShownAndAppliedAndTheMenuFollowsAtOnce)
{
    inPreferences([this] {
        choose(1);
        EXPECT_EQ(page().Text8.Text.get(), settings().FavJFPath[1].whole());
        EXPECT_EQ(page().Text9.Text.get(), settings().FavMFPath[1].whole());
        page().Text7.Text = "Sabre";
        page().Text8.Text = "C:\\Sabre.B50";
        page().Text9.Text = "C:\\Sabre.M50";
        page().Command14.Click();
        EXPECT_EQ(settings().FavJFPath[1], "c:\\sabre.b50");
        EXPECT_EQ(settings().FavMFPath[1], "c:\\sabre.m50");
        EXPECT_EQ(page().Text9.Text.get(), "c:\\sabre.m50") << "as it is kept";
        EXPECT_EQ(menus().mnuFavArray[2].Caption.get(), "Sabre");
    });
}

} // namespace
} // namespace tarvex
