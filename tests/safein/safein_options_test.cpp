#include "safein_fixture.h"

#include "safein/safein_options.h"

namespace tarvex {
namespace {

using SafeinOptions = SafeinTest;

TEST_F(SafeinOptions, WithoutSettingsTheDefaultsAreTicked)
{
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(window.mnuOption1[i].Checked) << i;
    EXPECT_FALSE(window.mnuUseExtendedRAW.Checked);
    EXPECT_FALSE(window.ToggleButton4.Visible);
    EXPECT_TRUE(window.form.TopMost);
}

TEST_F(SafeinOptions, LineEndAndBracketsTakeTheirTicksAndAreSaved)
{
    window.mnuOption1[0].Click();
    EXPECT_EQ(settings.AddSafeinCR, 0);
    EXPECT_EQ(ini("AddSafeinCR"), "0");
    window.mnuOption1[1].Click();
    EXPECT_EQ(settings.AddRawBrackets, 0);
    EXPECT_EQ(ini("AddRawBrackets"), "0");
    window.mnuOption1[0].Click();
    EXPECT_EQ(ini("AddSafeinCR"), "1");
}

TEST_F(SafeinOptions, ShfKeySyntaxBeforeAnyKeyChangesTheTickAlone)
{
    window.mnuOption1[2].Click();
    EXPECT_FALSE(window.mnuOption1[2].Checked);
    EXPECT_EQ(settings.UseShfKey, 1);
    EXPECT_EQ(ini("UseShfKey"), "(none)");
}

TEST_F(SafeinOptions, ShfKeySyntaxShowsTheFormerSyntaxUntilTheNextKey)
{
    window.ToggleButton1.Click();
    click(keyA);
    window.SyntaxText.Text = "typed";
    window.mnuOption1[2].Click();
    EXPECT_EQ(syntax(), "SHF a");
    EXPECT_EQ(settings.UseShfKey, 0);
    EXPECT_EQ(ini("UseShfKey"), "0");
    click(keyA);
    EXPECT_EQ(syntax(), "A");
}

TEST_F(SafeinOptions, ShfKeySyntaxComputesTheLastKeyAnewWithWhatIsHeldNow)
{
    click(keyA);
    EXPECT_EQ(syntax(), "a");
    window.ToggleButton1.Click();
    int selected = 0;
    const Connection make = window.RMakeText.selectAllWanted.connect([&selected] { ++selected; });
    window.mnuOption1[2].Click();
    EXPECT_EQ(syntax(), "SHF a");
    EXPECT_GT(selected, 0);
}

TEST_F(SafeinOptions, ShfKeySyntaxSelectsTheCodesAnewAlsoWhereTheyAreTheSame)
{
    click(keyA);
    int selected = 0;
    const Connection make = window.RMakeText.selectAllWanted.connect([&selected] { ++selected; });
    window.mnuOption1[2].Click();
    EXPECT_GT(selected, 0);
}

TEST_F(SafeinOptions, ViewSlashModifiersShowsTheRowAndLeavesTheSetting)
{
    window.mnuOption1[3].Click();
    EXPECT_FALSE(window.Command3[0].Visible || window.Command3[7].Visible);
    EXPECT_FALSE(window.Command6.Visible || window.Command7.Visible);
    EXPECT_EQ(settings.SafeinViewModifiers, 1);
    EXPECT_EQ(ini("SafeinViewModifiers"), "1");
    window.mnuOption1[3].Click();
    EXPECT_TRUE(window.Command3[0].Visible && window.Command7.Visible);
}

TEST_F(SafeinOptions, ASettingWithoutSlashModifiersTicksNothingAndShowsTheRowAllTheSame)
{
    window.form.unload();
    t.setIni("Miscellaneous", "SafeinViewModifiers", "0");
    t.menus().mnuInsertRAW.Click();
    EXPECT_FALSE(window.mnuOption1[3].Checked);
    EXPECT_TRUE(window.Command3[0].Visible);
}

TEST_F(SafeinOptions, KeepOnTopIsDoneAndSaved)
{
    window.mnuOption1[4].Click();
    EXPECT_FALSE(window.form.TopMost);
    EXPECT_EQ(ini("SafeinOnTop"), "0");
}

TEST_F(SafeinOptions, ExtendedCodesShowNumLockAndWaitForTheNextSaving)
{
    window.mnuUseExtendedRAW.Click();
    EXPECT_EQ(settings.ApplyRAWTMnotes, 1);
    EXPECT_TRUE(window.ToggleButton4.Visible);
    EXPECT_EQ(ini("ApplyRAWTMnotes"), "(none)");
    window.mnuOption1[0].Click();
    EXPECT_EQ(ini("ApplyRAWTMnotes"), "1");
    window.mnuUseExtendedRAW.Click();
    EXPECT_FALSE(window.ToggleButton4.Visible);
}

TEST_F(SafeinOptions, KeysAreWrittenInTheirOrderThreeWithABlankInTheSignsPlace)
{
    SaveSafeinOptions(window);
    const std::string text = t.fileText(TestMachine::iniPath);
    const std::string keys = "AddSafeinCR=1\r\nUseShfKey=1\r\nAddRawBrackets=1\r\nSafeinOnTop= 1\r\n"
                             "SafeinViewModifiers= 1\r\nApplyRAWTMnotes= 0\r\n";
    EXPECT_NE(text.find(keys), std::string::npos) << text;
}

TEST_F(SafeinOptions, TextsInPlaceOfNumbersCountAsZero)
{
    window.form.unload();
    for (const char* key : {"AddSafeinCR", "UseShfKey", "SafeinOnTop", "ApplyRAWTMnotes"})
        t.setIni("Miscellaneous", key, "yes");
    t.setIni("Miscellaneous", "SafeinTop", "high up");
    t.menus().mnuInsertRAW.Click();
    EXPECT_FALSE(window.mnuOption1[0].Checked || window.mnuOption1[2].Checked || window.mnuOption1[4].Checked);
    EXPECT_GE(window.form.Top.get(), 0.0F);
}

TEST_F(SafeinOptions, ExtendedCodesThatAreSetAreTickedAndShowNumLockAtTheOpening)
{
    window.form.unload();
    t.setIni("Miscellaneous", "ApplyRAWTMnotes", "1");
    t.menus().mnuInsertRAW.Click();
    EXPECT_TRUE(window.mnuUseExtendedRAW.Checked);
    EXPECT_TRUE(window.ToggleButton4.Visible);
}

} // namespace
} // namespace tarvex
