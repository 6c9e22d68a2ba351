#include "preferences/tooltips.h"

#include "preferences_fixture.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct PreferencesTips : testing::Test, PreferencesProgram {
    MiscellaneousPage& page() { return preferences().miscellaneousPage; }
    void showTips(bool on)
    {
        page().CheckShowTooltips.Value = on;
        page().CheckShowTooltips.Click();
    }
};

TEST_F(PreferencesTips, FollowTheTickAtOnceExceptForThoseThatStay)
{
    inPreferences([this] {
        EXPECT_NE(preferences().fileLocationsPage.Command1.ToolTipText.get(), "");
        EXPECT_NE(preferences().extrasPage.Ticks[0].ToolTipText.get(), "");
        showTips(false);
        EXPECT_EQ(preferences().fileLocationsPage.Command1.ToolTipText.get(), "");
        EXPECT_EQ(preferences().winLoadPage.WinLoadThrottle[0].ToolTipText.get(), "");
        EXPECT_EQ(preferences().extrasPage.Ticks[0].ToolTipText.get(), "");
        EXPECT_NE(page().CheckShowTooltips.ToolTipText.get(), "") << "how else to know what it does?";
        EXPECT_EQ(program().mum.Toolbar1.Buttons(1).ToolTipText.get(), "");
        showTips(true);
        EXPECT_NE(preferences().fileLocationsPage.Command1.ToolTipText.get(), "");
    });
}

TEST_F(PreferencesTips, AreBlankFromTheStartForAUserWithoutTips)
{
    setIni("Miscellaneous", "OKtoShowToolTips", "0");
    start();
    inPreferences([this] {
        EXPECT_EQ(preferences().savingPage.Command11.ToolTipText.get(), "");
        EXPECT_EQ(preferences().coloursPage.List1.ToolTipText.get(), "");
    });
}

} // namespace
} // namespace tarvex
