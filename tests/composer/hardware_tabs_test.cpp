#include "composer/hardware_tabs.h"

#include "composer/composer_fixture.h"

namespace tarvex {
namespace {

using Pages = std::array<bool, 4>;

struct HardwareTabs : ComposerTest {
    Pages pages()
    {
        Pages shown{};
        for (int page = 0; page < 4; ++page)
            shown[static_cast<std::size_t>(page)] = window.SSTabHardware.Pages(page).Visible;
        return shown;
    }
    std::string caption(int page) { return window.SSTabHardware.Pages(page).Caption; }
    bool cornersShown()
    {
        bool all = window.mnuHatDivider.Visible;
        for (int i = 0; i < 4; ++i) all = all && window.MnuHatCornerPostion[i].Visible;
        return all;
    }
    bool cornersHidden()
    {
        bool any = window.mnuHatDivider.Visible;
        for (int i = 0; i < 4; ++i) any = any || window.MnuHatCornerPostion[i].Visible;
        return !any;
    }
    bool ports() { return window.mnuPort[0].Visible && window.mnuPort[3].Visible; }
    std::string label(std::size_t index) { return window.BTN[index].Caption; }
    /// The document's pictures are asked for, with a file of this name and text.
    void useDocument(const std::string& name, const std::string& text)
    {
        settings.ComposerImages = composerImages::document;
        editor.TabStrip1.Tabs(1).Caption = name;
        joystick.setText(text);
        window.form.Activate();
    }
    void useAll()
    {
        settings.ComposerImages = composerImages::all;
        window.form.Activate();
    }
};

TEST_F(HardwareTabs, TheF22AndF16ShowTheirStickWithHatCorners)
{
    for (const std::int16_t stick : {0, 1}) {
        use(stick);
        EXPECT_EQ(pages(), (Pages{true, false, false, false}));
        EXPECT_TRUE(cornersShown());
    }
}

TEST_F(HardwareTabs, OtherSticksShowTheirsWithoutHatCorners)
{
    for (const std::int16_t stick : {2, 3, 4}) {
        use(stick);
        EXPECT_EQ(pages(), (Pages{false, true, false, false}));
        EXPECT_TRUE(cornersHidden());
        EXPECT_EQ(window.SSTabHardware.Tab.get(), 1);
    }
}

TEST_F(HardwareTabs, TheStickTabHasTheSticksName)
{
    const char* names[] = {"F-22 Pro", "F-16 FLCS", "PFCS", "Top Gun", "FCS"};
    for (std::int16_t stick = 0; stick < 5; ++stick) {
        use(stick);
        EXPECT_EQ(caption(stick < 2 ? 0 : 1), names[stick]);
    }
}

TEST_F(HardwareTabs, WithoutAThrottleThePortsAreShown)
{
    use(0, 0);
    EXPECT_EQ(pages(), (Pages{true, false, false, false}));
    EXPECT_TRUE(ports());
}

TEST_F(HardwareTabs, TheTqsHasItsTabAndThePorts)
{
    use(0, 1);
    EXPECT_EQ(pages(), (Pages{true, false, true, false}));
    EXPECT_TRUE(ports());
}

TEST_F(HardwareTabs, BothWcsHaveTheirTabAndNoPorts)
{
    for (const std::int16_t throttle : {2, 3}) {
        use(0, throttle);
        EXPECT_EQ(pages(), (Pages{true, false, false, true}));
        EXPECT_FALSE(ports());
    }
}

TEST_F(HardwareTabs, OnlyTheF22HasThePortButtonAndSlashQ)
{
    use(0);
    EXPECT_TRUE(window.ROTARY[7].Visible);
    EXPECT_TRUE(window.SlashButton[11].Visible);
    for (const std::int16_t stick : {1, 2, 3, 4}) {
        use(stick);
        EXPECT_FALSE(window.ROTARY[7].Visible);
        EXPECT_FALSE(window.SlashButton[11].Visible);
    }
}

TEST_F(HardwareTabs, ATabThatGoesIsNotLeftInFront)
{
    use(0, 1);
    window.SSTabHardware.Tab = hardwarePage::tqs;
    use(2, 0);
    EXPECT_EQ(window.SSTabHardware.Tab.get(), hardwarePage::otherSticks);
}

TEST_F(HardwareTabs, InItsPlaceComesThatOfTheStick)
{
    use(2, 1);
    window.SSTabHardware.Tab = hardwarePage::tqs;
    use(0, 0);
    EXPECT_EQ(window.SSTabHardware.Tab.get(), hardwarePage::f22AndF16);
}

TEST_F(HardwareTabs, AllPortsComeAndGoTogether)
{
    for (const std::int16_t throttle : {0, 2, 0}) {
        use(0, throttle);
        for (int i = 0; i <= window.mnuPort.UBound(); ++i)
            EXPECT_EQ(window.mnuPort[i].Visible.get(), throttle == 0) << i;
    }
}

TEST_F(HardwareTabs, AllImagesShowEverything)
{
    use(3, 0);
    useAll();
    EXPECT_EQ(pages(), (Pages{true, true, true, true}));
    EXPECT_EQ(caption(0), "F22 and F16");
    EXPECT_TRUE(ports());
    EXPECT_TRUE(cornersShown());
    for (Button& slash : window.SlashButton) EXPECT_TRUE(slash.Visible);
    EXPECT_TRUE(window.ROTARY[2].Visible);
    EXPECT_TRUE(window.ROTARY[8].Visible);
}

TEST_F(HardwareTabs, TheDocumentDecidesByTheLastThreeLettersOfItsName)
{
    use(4, 3);
    useDocument("a.f22", "");
    EXPECT_EQ(pages(), (Pages{true, false, false, false}));
    EXPECT_EQ(caption(0), "F-22 Pro");
    useDocument("a.b50", "");
    EXPECT_EQ(caption(0), "F-16 FLCS");
    useDocument("a.adv", "");
    EXPECT_EQ(pages(), (Pages{false, true, false, false}));
    EXPECT_EQ(caption(1), "PFCS");
}

TEST_F(HardwareTabs, AnyOtherNameShowsTheF22)
{
    for (const char* name : {"a.txt", "noextension", "", "b5"}) {
        useDocument("a.adv", "");
        useDocument(name, "");
        EXPECT_EQ(pages(), (Pages{true, false, false, false})) << name;
        EXPECT_EQ(caption(0), "F-22 Pro") << name;
    }
}

TEST_F(HardwareTabs, TheDocumentsThrottleComesFromItsText)
{
    useDocument("a.f22", "Rem nothing");
    EXPECT_EQ(pages(), (Pages{true, false, false, false}));
    EXPECT_TRUE(ports());
    useDocument("a.f22", "use wcs\r\n");
    EXPECT_EQ(pages(), (Pages{true, false, false, true}));
    useDocument("a.f22", "USE TQS\r\n");
    EXPECT_EQ(pages(), (Pages{true, false, true, false}));
}

TEST_F(HardwareTabs, WhereBothThrottlesAreNamedTheTqsWins)
{
    useDocument("a.f22", "use tqs\r\nRem no wcs\r\n");
    EXPECT_EQ(pages(), (Pages{true, false, true, false}));
    useDocument("a.f22", "Rem no wcs\r\nuse tqs\r\n");
    EXPECT_EQ(pages(), (Pages{true, false, true, false}));
}

TEST_F(HardwareTabs, RuddersAreShownWhereTheUserHasThem)
{
    use(0, 0, 0);
    EXPECT_FALSE(window.ROTARY[2].Visible);
    EXPECT_FALSE(window.ROTARY[8].Visible);
    for (const std::int16_t rudder : {1, 2}) {
        use(0, 0, rudder);
        EXPECT_TRUE(window.ROTARY[2].Visible);
        EXPECT_TRUE(window.ROTARY[8].Visible);
    }
}

TEST_F(HardwareTabs, TheWcsOfAnOlderStickIsLabelledInItsWay)
{
    const std::pair<std::size_t, const char*> older[] = {{21, "3"},      {22, "2"},     {23, "1"},
                                                         {19, "4"},      {20, "5"},     {18, "6"},
                                                         {16, "RKR UP"}, {4, "RKR MD"}, {17, "RKR DN"}};
    use(2, 3);
    for (const auto& [index, text] : older) EXPECT_EQ(label(index), text);
    EXPECT_EQ(window.WcsPicture.get(), PictureOf::WcsWithOlderStick);
}

TEST_F(HardwareTabs, TheWcsOfTheF22AndF16IsLabelledWithTNames)
{
    const std::pair<std::size_t, const char*> others[] = {{21, "T3"}, {22, "T2"}, {23, "T1"}, {19, "T4"}, {20, "T5"},
                                                          {18, "T6"}, {16, "T7"}, {4, ""},    {17, "T8"}};
    use(2, 3);
    use(1, 3);
    for (const auto& [index, text] : others) EXPECT_EQ(label(index), text);
    EXPECT_EQ(window.WcsPicture.get(), PictureOf::Wcs);
}

TEST_F(HardwareTabs, AFileOfAnOlderStickLabelsTheWcsForIt)
{
    use(0, 3);
    editor.TabStrip1.Tabs(1).Caption = std::string("a.adv");
    LabelWCS(window);
    EXPECT_EQ(label(16), "RKR UP");
}

TEST_F(HardwareTabs, EveryControlHasItsCaption)
{
    const std::pair<const char*, const char*> captions[] = {
        {"BTN(0)", "S1"},         {"BTN(3)", "S4"},          {"BTN(5)", "UB"},      {"BTN(7)", "MB"},
        {"BTN(8)", "LB"},         {"BTN(6)", "TG"},          {"BTN(32)", "T1"},     {"BTN(25)", "T5"},
        {"BTN(11)", "T6"},        {"BTN(15)", "T10"},        {"BTN(30)", "T11"},    {"BTN(31)", "T14"},
        {"HAT(0)", " H1"},        {"HAT(3)", " H4"},         {"HAT(4)", " H"},      {"ROTARY(0)", "RNG"},
        {"ROTARY(1)", "ANT"},     {"ROTARY(2)", "Rudder"},   {"ROTARY(3)", "JSX"},  {"ROTARY(6)", "JSY"},
        {"ROTARY(4)", "SWAPTG"},  {"ROTARY(5)", "Throttle"}, {"ROTARY(7)", "PORT"}, {"ROTARY(8)", "Rudder"},
        {"ROTARY(9)", "Throttle"}};
    for (const auto& [id, text] : captions) EXPECT_EQ(controlButton(window, id)->Caption.get(), text) << id;
}

TEST_F(HardwareTabs, TheTriggerHasNoCaptionOfItsOwn)
{
    EXPECT_EQ(controlButton(window, "TRIG"), &window.TRIG);
    EXPECT_EQ(window.TRIG.Caption.get(), "") << "its menu names both stages";
}

TEST_F(HardwareTabs, UnknownIdsHaveNoControl)
{
    for (const char* id : {"", "BTN", "BTN(", "BTN()", "BTN(33)", "BTN(-1)", "BTN(1x)", "HAT(5)", "ROTARY(10)", "X(1)"})
        EXPECT_EQ(controlButton(window, id), nullptr) << id;
}

TEST_F(HardwareTabs, SettingsThatThereAreNotShowTheOlderStickWithoutThrottle)
{
    for (const std::int16_t wrong : {-1, 5, 32767}) {
        use(wrong, wrong);
        EXPECT_EQ(pages(), (Pages{false, true, false, false})) << wrong;
    }
}

TEST_F(HardwareTabs, AllPicturesShowWhatOtherControllersLack)
{
    use(1, 3);
    EXPECT_FALSE(window.mnuPort[0].Visible);
    EXPECT_FALSE(window.SlashButton[11].Visible || window.ROTARY[7].Visible);
    use(2);
    EXPECT_FALSE(window.MnuHatCornerPostion[0].Visible);
    settings.ComposerImages = composerImages::all;
    window.form.Activate();
    EXPECT_TRUE(window.mnuPort[0].Visible);
    EXPECT_TRUE(window.SlashButton[11].Visible && window.ROTARY[7].Visible);
    EXPECT_TRUE(window.MnuHatCornerPostion[0].Visible && window.mnuHatDivider.Visible);
    EXPECT_TRUE(window.ROTARY[2].Visible && window.ROTARY[8].Visible) << "rudders";
}

} // namespace
} // namespace tarvex
