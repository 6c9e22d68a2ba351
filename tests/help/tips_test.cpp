#include "help/tips.h"

#include "help_program.h"

namespace tarvex {
namespace {

constexpr const char* path = "c:\\tarvex\\Tips.txt";

struct TipOfTheDay : HelpTest {
    TipWindow& window = help.frmTip;

    void open() { window.Form.Visible = true; }
    void openWith(const std::string& tips)
    {
        t.files.addFile(path, tips);
        open();
    }
    std::string shown() const { return window.lblTipText.Caption.get(); }
};

TEST_F(TipOfTheDay, TheFirstTipIsOneByChance)
{
    system.nextChance = 7; // the second of three
    openWith("one\r\ntwo\r\nthree\r\n");
    EXPECT_EQ(window.CurrentTip, 2);
    EXPECT_EQ(shown(), "two");
    EXPECT_TRUE(window.Form.TopMost);
}

TEST_F(TipOfTheDay, EveryTipCanBeTheFirst)
{
    t.files.addFile(path, "one\r\ntwo\r\nthree");
    std::vector<std::string> first;
    for (system.nextChance = 0; system.nextChance < 3; ++system.nextChance) {
        open();
        first.push_back(shown());
        window.Form.Visible = false;
    }
    EXPECT_THAT(first, testing::ElementsAre("one", "two", "three"));
}

TEST_F(TipOfTheDay, NextTipGoesOnToTheLastAndBackToTheFirst)
{
    system.nextChance = 1;
    openWith("one\r\ntwo\r\nthree\r\n");
    window.cmdNextTip.Click();
    EXPECT_EQ(shown(), "three");
    window.cmdNextTip.Click();
    EXPECT_EQ(shown(), "one");
}

TEST_F(TipOfTheDay, ASingleTipStaysOnNextTip)
{
    openWith("the only one");
    EXPECT_EQ(shown(), "the only one");
    window.cmdNextTip.Click();
    EXPECT_EQ(shown(), "the only one");
    EXPECT_EQ(window.CurrentTip, 1);
}

TEST_F(TipOfTheDay, AMissingFileShowsAnEmptyTipAndNothingElse)
{
    t.program().shared.errors.ErrorProcedure = "before";
    open();
    EXPECT_EQ(shown(), "");
    window.cmdNextTip.Click();
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "before");
}

TEST_F(TipOfTheDay, AFileWithoutALineShowsAnEmptyTip)
{
    openWith("");
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(window.tips.empty());
}

TEST_F(TipOfTheDay, AHundredThousandTipsAreAllThere)
{
    std::string many;
    for (int i = 0; i < 100'000; ++i) many += "tip " + std::to_string(i) + "\n";
    system.nextChance = 99'999;
    openWith(many);
    EXPECT_EQ(window.tips.size(), 100'000U);
    EXPECT_EQ(shown(), "tip 99999");
    window.cmdNextTip.Click();
    EXPECT_EQ(shown(), "tip 0");
}

TEST_F(TipOfTheDay, NullCharactersAreLeftOutAndLettersOfWindowsAreShown)
{
    openWith(std::string("a\0b\0", 4) + "\r\nd\xE9j\xE0 vu");
    EXPECT_THAT(window.tips, testing::ElementsAre("ab", "d\xC3\xA9j\xC3\xA0 vu"));
}

TEST_F(TipOfTheDay, AnUnreadableFileIsReportedUnderItsTag)
{
    t.files.addFile(path, "one");
    t.files.failReads(path, RuntimeError(ErrorCode::PermissionDenied, "Permission denied"));
    open();
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(t.program().shared.errors.ErrorProcedure, "TIPS LoadTips");
}

TEST_F(TipOfTheDay, LoadTipsRefusesAnEmptyPathAndAMissingFile)
{
    EXPECT_FALSE(LoadTips(window, ""));
    EXPECT_FALSE(LoadTips(window, "c:\\nowhere\\Tips.txt"));
    EXPECT_TRUE(window.tips.empty());
}

TEST_F(TipOfTheDay, LoadTipsShowsTheNextTip)
{
    t.files.addFile(path, "one\r\ntwo");
    EXPECT_TRUE(LoadTips(window, path));
    EXPECT_EQ(window.CurrentTip, 1);
    EXPECT_EQ(shown(), "one");
}

TEST_F(TipOfTheDay, UntickedItDoesNotComeUpAtTheNextStart)
{
    t.settings().ShowTips = 1;
    openWith("one");
    EXPECT_TRUE(window.chkLoadTipsAtStartup.Value);
    window.chkLoadTipsAtStartup.Value = false;
    window.cmdOK.Click();
    EXPECT_FALSE(window.Form.Visible);
    EXPECT_EQ(t.ini("FileLocations", "ShowTips"), "0");
    t.dialogues.modalForms.clear();
    t.start();
    EXPECT_THAT(t.dialogues.modalForms, testing::Not(testing::Contains("frmTip")));
}

TEST_F(TipOfTheDay, TickedItComesUpAtTheNextStart)
{
    t.settings().ShowTips = 0;
    openWith("one");
    EXPECT_FALSE(window.chkLoadTipsAtStartup.Value);
    window.chkLoadTipsAtStartup.Value = true;
    window.cmdOK.Click();
    EXPECT_EQ(t.ini("FileLocations", "ShowTips"), "1");
    t.start();
    EXPECT_THAT(t.dialogues.modalForms, testing::Contains("frmTip"));
}

TEST_F(TipOfTheDay, TheHelpMenuShowsIt)
{
    t.menus().mnuHelpTips.Click();
    EXPECT_THAT(t.dialogues.modalForms, testing::Contains("frmTip"));
}

TEST_F(TipOfTheDay, OpenedAgainItHasEachTipOnceAndNoneOfAFileThatIsGone)
{
    openWith("one\r\ntwo");
    window.Form.Visible = false;
    open();
    EXPECT_THAT(window.tips, testing::ElementsAre("one", "two"));
    window.Form.Visible = false;
    t.files.removeFile(path);
    open();
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(window.tips.empty());
    EXPECT_EQ(window.CurrentTip, 0);
}

} // namespace
} // namespace tarvex
