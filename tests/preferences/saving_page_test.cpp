#include "preferences_fixture.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct SavingPageTest : testing::Test, PreferencesProgram {
    SavingPage& page() { return preferences().savingPage; }
};

TEST_F(SavingPageTest, UndoLevelsBelowTenAreShownAsTenWhenTheBoxIsLeft)
{
    inPreferences([this] {
        page().TxtUndoLevels.Text = "5";
        EXPECT_EQ(settings().UndoMax, 10);
        EXPECT_EQ(page().TxtUndoLevels.Text.get(), "5") << "not under the user's hands";
        page().TxtUndoLevels.LostFocus();
        EXPECT_EQ(page().TxtUndoLevels.Text.get(), "10");
    });
    EXPECT_EQ(ini("Miscellaneous", "UndoMax"), "10");
}

TEST_F(SavingPageTest, UndoLevelsBelowTenOfTheSettingsFileAreNotChangedByALook)
{
    settings().UndoMax = 5;
    inPreferences([this] {
        EXPECT_EQ(page().TxtUndoLevels.Text.get(), "5");
        EXPECT_EQ(settings().UndoMax, 5);
    });
}

TEST_F(SavingPageTest, UndoLevelsOf10And30000AreTaken)
{
    for (const char* levels : {"10", "30000"}) {
        inPreferences([this, levels] { page().TxtUndoLevels.Text = levels; });
        EXPECT_EQ(ini("Miscellaneous", "UndoMax"), levels);
    }
}

TEST_F(SavingPageTest, UndoLevelsAbove30000AreShownAs30000)
{
    for (const char* typed : {"40000", "30001", "1e9"}) {
        inPreferences([this, typed] {
            page().TxtUndoLevels.Text = typed;
            page().TxtUndoLevels.LostFocus();
            EXPECT_EQ(page().TxtUndoLevels.Text.get(), "30000") << typed;
        });
        EXPECT_EQ(settings().UndoMax, 30000);
    }
}

TEST_F(SavingPageTest, UndoLevelsInLettersAreTen)
{
    inPreferences([this] { page().TxtUndoLevels.Text = "many"; });
    EXPECT_EQ(settings().UndoMax, 10);
}

TEST_F(SavingPageTest, NegativeMinutesBringTheBoxAndTenMinutes)
{
    inPreferences([this] {
        page().Text3.Text = "-5";
        EXPECT_EQ(lastBox().title, "Oops!");
        EXPECT_EQ(lastBox().text, "The value you entered isn't valid. I'm changing it to 10 minutes to prevent an "
                                  "error ocurring.");
        EXPECT_EQ(page().Text3.Text.get(), "10");
    });
    EXPECT_EQ(ini("Miscellaneous", "AutoSaveTime"), "10");
}

TEST_F(SavingPageTest, MinutesBeyond16BitsAndLettersBringTheBoxOnce)
{
    for (const char* typed : {"32768", "1e9", "x"}) {
        dialogues.boxes.clear();
        inPreferences([this, typed] { page().Text3.Text = typed; });
        EXPECT_EQ(dialogues.boxes.size(), 1U) << typed;
        EXPECT_EQ(settings().AutoSaveTime, 10) << typed;
    }
}

TEST_F(SavingPageTest, TheMostMinutesThat16BitsHoldAreTaken)
{
    inPreferences([this] { page().Text3.Text = "32767"; });
    EXPECT_EQ(ini("Miscellaneous", "AutoSaveTime"), "32767");
    EXPECT_TRUE(dialogues.boxes.empty());
}

TEST_F(SavingPageTest, ZeroMinutesBecomeOne)
{
    inPreferences([this] {
        page().Text3.Text = "0";
        EXPECT_EQ(page().Text3.Text.get(), "1");
    });
    EXPECT_EQ(settings().AutoSaveTime, 1);
}

TEST_F(SavingPageTest, NoMinutesTurnTheAutomaticSaveOffUntilThereAreSome)
{
    inPreferences([this] {
        page().Check3[0].Value = true;
        page().Text3.Text = "";
        EXPECT_FALSE(page().Check3[0].Value);
        EXPECT_FALSE(page().Check3[0].Enabled);
        page().Text3.LostFocus();
        EXPECT_EQ(page().Text3.Text.get(), "10");
        EXPECT_TRUE(page().Check3[0].Enabled);
    });
    EXPECT_EQ(settings().AutoSaveTime, 10);
    EXPECT_EQ(settings().AutoSaveEnabled, 0);
}

TEST_F(SavingPageTest, TheTimerFollowsTheTickAndItsMinutesBeginAnew)
{
    editor().AutoSaveMinutes = 7;
    inPreferences([this] { page().Check3[0].Value = true; });
    EXPECT_TRUE(editor().Timer1.Enabled);
    EXPECT_EQ(editor().AutoSaveMinutes, 0);
    inPreferences([this] { page().Check3[0].Value = false; });
    EXPECT_FALSE(editor().Timer1.Enabled);
}

TEST_F(SavingPageTest, ClearNowLeavesTheTextAsTheOnlyLevel)
{
    typeJoystick("abc");
    typeJoystick("def");
    inPreferences([this] { page().Command11.Click(); });
    EXPECT_EQ(menus().mnuEditUndo.Caption.get(), "&Undo");
    EXPECT_EQ(editor().JoystickText.Text(), "abcdef");
    EXPECT_EQ(editor().joystick.Changed, changed::modified);
}

TEST_F(SavingPageTest, WhatAHandEditedFileSaysStandsUntilTheDialogueCloses)
{
    settings().UndoMax = 5;
    settings().AutoSaveTime = 0;
    inPreferences([this] {
        EXPECT_EQ(page().TxtUndoLevels.Text.get(), "5");
        EXPECT_EQ(page().Text3.Text.get(), "0");
        EXPECT_EQ(settings().UndoMax, 5);
        EXPECT_EQ(settings().AutoSaveTime, 0);
    });
    EXPECT_EQ(settings().UndoMax, 10);
}

TEST_F(SavingPageTest, UndoLevelsAreInForceAsTheyAreWritten)
{
    inPreferences([this] {
        page().TxtUndoLevels.Text = "77";
        EXPECT_EQ(settings().UndoMax, 77);
    });
}

TEST_F(SavingPageTest, TheTickOfTheAutomaticSaveCanBeUsedAgainAtTheNextOpening)
{
    inPreferences([this] {
        page().Text3.Text = "";
        EXPECT_FALSE(page().Check3[0].Enabled);
    });
    settings().AutoSaveTime = 7;
    page().Text3.Text = "";
    inPreferences([this] { EXPECT_TRUE(page().Check3[0].Enabled); });
}

TEST_F(SavingPageTest, OneMinuteStaysWhenTheBoxIsLeftAndNoneBecomesTen)
{
    inPreferences([this] {
        page().Text3.Text = "1";
        page().Text3.LostFocus();
        EXPECT_EQ(page().Text3.Text.get(), "1");
        page().Text3.Text = "";
        page().Text3.LostFocus();
        EXPECT_EQ(page().Text3.Text.get(), "10");
    });
}

} // namespace
} // namespace tarvex
