#include "composer/hardware_clicks.h"

#include "composer/composer_fixture.h"

#include <gmock/gmock.h>

namespace tarvex {
namespace {

/// A click on a control of a picture, for the controllers at hand, and what it puts into an empty file.
struct Click {
    const char* name;
    std::int16_t joystick;
    std::int16_t throttle;
    const char* id;
    std::function<void(InsertOptions&)> choose; ///< in the menu that pops up; none: there is no menu
    const char* text;
    Colour Settings::*colour = &Settings::BTNColour;
};

void PrintTo(const Click& click, std::ostream* out) { *out << click.name; }

Click button(const char* name, std::int16_t joystick, std::int16_t throttle, const char* id, const char* text)
{
    return {name, joystick, throttle, id, {}, text};
}

Click hat(const char* name, const char* id, int position, const char* text)
{
    return {name, 0, 0, id, [position](InsertOptions& w) { w.MnuHatPostion[position].Click(); }, text};
}

Click corner(const char* name, const char* id, int position, const char* text)
{
    return {name, 0, 0, id, [position](InsertOptions& w) { w.MnuHatCornerPostion[position].Click(); }, text};
}

std::vector<Click> clicks()
{
    std::vector<Click> all{
        button("S1", 0, 0, "BTN(0)", "BTN S1 "),
        button("S2", 1, 0, "BTN(1)", "BTN S2 "),
        button("S3", 0, 0, "BTN(2)", "BTN S3 "),
        button("S4", 0, 0, "BTN(3)", "BTN S4 "),
        button("UB", 2, 0, "BTN(5)", "BTN UB "),
        button("TG", 3, 0, "BTN(6)", "BTN TG "),
        button("MB", 4, 0, "BTN(7)", "BTN MB "),
        button("LB", 2, 0, "BTN(8)", "BTN LB "),
        button("T1", 0, 1, "BTN(32)", "BTN T1 "),
        button("T2", 0, 1, "BTN(24)", "BTN T2 "),
        button("T3", 0, 1, "BTN(27)", "BTN T3 "),
        button("T4", 0, 1, "BTN(26)", "BTN T4 "),
        button("T5", 0, 1, "BTN(25)", "BTN T5 "),
        button("T6", 0, 1, "BTN(11)", "BTN T6 "),
        button("T7", 0, 1, "BTN(12)", "BTN T7 "),
        button("T8", 0, 1, "BTN(13)", "BTN T8 "),
        button("T9", 0, 1, "BTN(14)", "BTN T9 "),
        button("T10", 0, 1, "BTN(15)", "BTN T10 "),
        button("T11", 0, 1, "BTN(30)", "BTN T11 "),
        button("T12", 0, 1, "BTN(29)", "BTN T12 "),
        button("T13", 0, 1, "BTN(28)", "BTN T13 "),
        button("T14", 0, 1, "BTN(31)", "BTN T14 "),
        button("WcsT3", 0, 2, "BTN(21)", "BTN T3 "),
        button("WcsT2", 0, 2, "BTN(22)", "BTN T2 "),
        button("WcsT1", 0, 2, "BTN(23)", "BTN T1 "),
        button("WcsT4", 0, 3, "BTN(19)", "BTN T4 "),
        button("WcsT5", 0, 3, "BTN(20)", "BTN T5 "),
        button("WcsT6", 0, 3, "BTN(18)", "BTN T6 "),
        button("WcsT7OfTheRocker", 0, 2, "BTN(16)", "BTN T7 "),
        button("WcsT8OfTheRocker", 0, 2, "BTN(17)", "BTN T8 "),
        button("OlderWcs3", 2, 3, "BTN(21)", "BTN 3 "),
        button("OlderWcs2", 2, 3, "BTN(22)", "BTN 2 "),
        button("OlderWcs1", 2, 3, "BTN(23)", "BTN 1 "),
        button("OlderWcs4", 3, 3, "BTN(19)", "BTN 4 "),
        button("OlderWcs5", 3, 3, "BTN(20)", "BTN 5 "),
        button("OlderWcs6", 4, 3, "BTN(18)", "BTN 6 "),
        hat("H1U", "HAT(0)", 0, "BTN H1U "),
        hat("H1D", "HAT(0)", 1, "BTN H1D "),
        hat("H2L", "HAT(1)", 2, "BTN H2L "),
        hat("H3R", "HAT(2)", 3, "BTN H3R "),
        hat("H4M", "HAT(3)", 4, "BTN H4M "),
        hat("HU", "HAT(4)", 0, "BTN HU "),
        hat("HD", "HAT(4)", 1, "BTN HD "),
        hat("HL", "HAT(4)", 2, "BTN HL "),
        hat("HR", "HAT(4)", 3, "BTN HR "),
        hat("HM", "HAT(4)", 4, "BTN HM "),
        corner("H1UL", "HAT(0)", 0, "BTN H1UL "),
        corner("H2DL", "HAT(1)", 1, "BTN H2DL "),
        corner("H3UR", "HAT(2)", 2, "BTN H3UR "),
        corner("H4DR", "HAT(3)", 3, "BTN H4DR "),
        {"TG1", 0, 0, "TRIG", [](InsertOptions& w) { w.mnuTrig[0].Click(); }, "BTN TG1 "},
        {"TG2", 0, 0, "TRIG", [](InsertOptions& w) { w.mnuTrig[1].Click(); }, "BTN TG2 "},
    };
    for (const auto& [name, id, text] : std::vector<std::array<const char*, 3>>{
             {"RkrUp", "BTN(16)", "RKR UP "}, {"RkrMd", "BTN(4)", "RKR MD "}, {"RkrDn", "BTN(17)", "RKR DN "}}) {
        Click rocker = button(name, 2, 3, id, text);
        rocker.colour = &Settings::MiscellaneousColour;
        all.push_back(rocker);
    }
    const char* ports[] = {"PortB1 IS ", "PortB2 IS ", "PortB3 IS ", "PortB4 IS "};
    for (int i = 0; i < 4; ++i)
        all.push_back({ports[i], 0, 0, "ROTARY(7)", [i](InsertOptions& w) { w.mnuPort[i].Click(); }, ports[i],
                       &Settings::MiscellaneousColour});
    all.push_back({"SWAPTG", 0, 0, "ROTARY(4)", {}, "SWAPTG \r\n", &Settings::MiscellaneousColour});
    return all;
}

struct HardwareClick : ComposerTest, testing::WithParamInterface<Click> {
    void run()
    {
        const Click& click = GetParam();
        use(click.joystick, click.throttle);
        if (click.choose) t.dialogues.whilePoppedUp = [this, &click] { click.choose(window); };
        controlButton(window, click.id)->Click();
    }
    std::string word() const { return std::string(GetParam().text).substr(0, 3); }
};

TEST_P(HardwareClick, InsertsItsStatementInItsColour)
{
    settings.InsertWithColour = 1;
    run();
    EXPECT_EQ(joystick.Text(), GetParam().text);
    EXPECT_EQ(colourOf(joystick, word()), settings.*GetParam().colour);
    EXPECT_EQ(editor.joystick.Changed, 1);
}

TEST_P(HardwareClick, WithoutColoursInsertsItsStatementPlain)
{
    settings.InsertWithColour = 0;
    run();
    EXPECT_EQ(joystick.Text(), GetParam().text);
    EXPECT_EQ(colourOf(joystick, word()), 0);
}

TEST_P(HardwareClick, ASecondClickFindsTheStatementAndAddsNothing)
{
    run();
    const std::string once = joystick.Text();
    putCaret(0);
    window.ROTARY[7].Value = 0;
    run();
    EXPECT_EQ(joystick.Text(), once);
    EXPECT_EQ(joystick.SelStart(), 0) << "the line at the caret flashes";
    while (editor.TimerBlinkLine.Enabled) editor.TimerBlinkLine.Tick();
    const std::int64_t behind = static_cast<std::int64_t>(once.find_last_not_of("\r\n")) + 1;
    EXPECT_EQ(joystick.SelStart(), behind);
    EXPECT_EQ(joystick.SelLength(), 0);
}

TEST_P(HardwareClick, IsOneUndoStep)
{
    settings.HighlightLineOnUndo = 0;
    write("Rem first\r\n");
    run();
    ASSERT_EQ(joystick.Text(), "Rem first\r\n" + std::string(GetParam().text));
    t.menus().mnuEditUndo.Click();
    EXPECT_EQ(joystick.Text(), "Rem first\r\n");
}

INSTANTIATE_TEST_SUITE_P(Controls, HardwareClick, testing::ValuesIn(clicks()), [](const auto& tested) {
    std::string name = tested.param.name;
    std::erase_if(name, [](unsigned char letter) { return !std::isalnum(letter); });
    return name;
});

// ---- the port toggle ------------------------------------------------------------------------------------------------

struct PortToggle : ComposerTest {
    PortToggle() { use(0, 1); }
    int value() { return window.ROTARY[7].Value; }
    void hold() { rotary(7); } // and the menu is closed without a choice
};

TEST_F(PortToggle, AClickHoldsItAndOpensThePorts)
{
    hold();
    EXPECT_EQ(value(), 1);
    EXPECT_EQ(t.dialogues.popUps, std::vector<std::string>{"mnuPortAll"});
}

TEST_F(PortToggle, ASecondClickReleasesItWithoutAMenu)
{
    hold();
    hold();
    EXPECT_EQ(value(), 0);
    EXPECT_EQ(t.dialogues.popUps.size(), 1U);
}

TEST_F(PortToggle, HeldItMakesTheHatEntryH1UABareNameWithoutASearchAndGoesBack)
{
    write("H1U ");
    hold();
    t.dialogues.whilePoppedUp = [this] { window.MnuHatPostion[0].Click(); };
    window.HAT[0].Click();
    EXPECT_EQ(joystick.Text(), "H1U H1U ");
    EXPECT_EQ(value(), 0);
}

TEST_F(PortToggle, HeldItMakesAButtonABareName)
{
    hold();
    button(0);
    EXPECT_EQ(joystick.Text(), "S1 ");
    EXPECT_EQ(value(), 0);
}

TEST_F(PortToggle, HeldItMakesATriggerABareName)
{
    hold();
    window.mnuTrig[1].Click();
    EXPECT_EQ(joystick.Text(), "TG2 ");
    EXPECT_EQ(value(), 0);
}

TEST_F(PortToggle, ABareNameFollowsThePortThatWasChosen)
{
    t.dialogues.whilePoppedUp = [this] { window.mnuPort[1].Click(); };
    rotary(7);
    button(1);
    EXPECT_EQ(joystick.Text(), "PortB2 IS S2 ");
    EXPECT_EQ(value(), 0);
}

TEST_F(PortToggle, AButtonReleasesItAlsoWhenItsStatementIsFound)
{
    write("BTN S1 ");
    button(0);
    EXPECT_EQ(value(), 0);
}

TEST_F(PortToggle, APortThatIsThereIsFoundWithTheCaretBehindItsIS)
{
    write("PortB1 IS S2\r\nBTN S1 x");
    window.mnuPort[0].Click();
    EXPECT_EQ(joystick.Text(), "PortB1 IS S2\r\nBTN S1 x");
    EXPECT_EQ(static_cast<std::int64_t>(editor.joystick.Caret), 10);
}

// ---- rotaries -------------------------------------------------------------------------------------------------------

struct RotaryCase {
    int index;
    const char* word;
    int page;
    int axis; ///< -1: none
};

struct RotaryClick : ComposerTest, testing::WithParamInterface<RotaryCase> {
    RotaryClick() { use(0, 1, 1); }
};

TEST_P(RotaryClick, LeadsToItsPageWhenItsStatementIsNotThere)
{
    write("BTN S1 x");
    rotary(GetParam().index);
    EXPECT_EQ(window.SSTab1.Tab.get(), GetParam().page);
    EXPECT_EQ(joystick.Text(), "BTN S1 x");
    for (int i = 0; i < 3 && GetParam().axis >= 0; ++i)
        EXPECT_EQ(window.ToggleButton1[static_cast<std::size_t>(i)].isHeld(), i == GetParam().axis) << i;
}

TEST_P(RotaryClick, FindsItsStatementAndStaysOnThePictures)
{
    write(std::string("BTN S1 x\r\n") + GetParam().word + " 1 2 3");
    rotary(GetParam().index);
    EXPECT_EQ(window.SSTab1.Tab.get(), composerPage::hardware);
    EXPECT_EQ(static_cast<std::size_t>(editor.joystick.Caret), 10 + std::string(GetParam().word).size());
}

INSTANTIATE_TEST_SUITE_P(Rotaries, RotaryClick,
                         testing::Values(RotaryCase{0, "RNG", composerPage::range, -1},
                                         RotaryCase{1, "ANT", composerPage::antenna, -1},
                                         RotaryCase{5, "THR", composerPage::throttle, -1},
                                         RotaryCase{9, "THR", composerPage::throttle, -1},
                                         RotaryCase{2, "RDDR", composerPage::digitalAxes, 2},
                                         RotaryCase{8, "RDDR", composerPage::digitalAxes, 2},
                                         RotaryCase{3, "JSX", composerPage::digitalAxes, 0},
                                         RotaryCase{6, "JSY", composerPage::digitalAxes, 1}),
                         [](const auto& tested) { return "Rotary" + std::to_string(tested.param.index); });

// ---- slash modifiers ------------------------------------------------------------------------------------------------

TEST_F(ComposerTest, EverySlashButtonInsertsItsModifierInTheSlashColourWithoutASearch)
{
    settings.InsertWithColour = 1;
    write("BTN S1");
    std::string expected = "BTN S1 ";
    for (const char* slash : {"/U", "/M", "/D", "/I", "/O", "/T", "/P", "/R", "/H", "/N", "/A", "/Q"})
        expected += slash + std::string(" ");
    for (Button& slash : window.SlashButton) slash.Click();
    EXPECT_EQ(joystick.Text(), expected);
    EXPECT_EQ(colourOf(joystick, "/U"), settings.SlashColour);
    window.SlashButton[0].Click();
    EXPECT_EQ(joystick.Text(), expected + "/U ");
}

TEST_F(ComposerTest, WithoutColoursASlashModifierIsPlain)
{
    settings.InsertWithColour = 0;
    window.SlashButton[11].Click();
    EXPECT_EQ(joystick.Text(), "/Q ");
    EXPECT_EQ(colourOf(joystick, "/Q"), 0);
}

TEST_F(ComposerTest, TheMiddleOfARockerWithoutAStatementInsertsNothing)
{
    use(0, 2);
    button(4);
    EXPECT_EQ(joystick.Text(), "");
}

TEST_F(ComposerTest, AButtonInsideALineBeginsALineOfItsOwn)
{
    write("BTN S1 x\r\nRem end");
    putCaret(3);
    button(1);
    EXPECT_EQ(joystick.Text(), "BTN S1 x\r\nBTN S2 \r\nRem end");
}

TEST_F(ComposerTest, AnInsertionGivesTheKeyboardBackIfTheUserWantsThat)
{
    int asked = 0;
    const Connection front = t.program().mum.form.frontWanted.connect([&asked] { ++asked; });
    settings.COMPreturnFocus = 0;
    button(0);
    EXPECT_EQ(asked, 0);
    settings.COMPreturnFocus = 1;
    button(1);
    EXPECT_EQ(asked, 1);
}

TEST_F(ComposerTest, AProtectedMacroFileTakesNoStatement)
{
    editor.TabStrip1.Select(2);
    t.menus().mnuPreferencesProtectMacroFile.Click();
    window.SlashButton[0].Click();
    EXPECT_EQ(macro.Text(), "");
    EXPECT_THAT(t.status(), testing::HasSubstr("is protected"));
}

TEST_F(ComposerTest, AButtonThatIsFoundReturnsTheFocusAndAPortTakesOneBareName)
{
    settings.COMPreturnFocus = 1;
    write("BTN S1 fire\r\n");
    int front = 0;
    const Connection wanted = t.program().mum.form.frontWanted.connect([&front] { ++front; });
    button(0);
    EXPECT_EQ(joystick.Text(), "BTN S1 fire\r\n");
    EXPECT_EQ(front, 1);
    use(2, 3); // an older stick, whose rockers are no buttons
    joystick.setText("");
    putCaret(0);
    rotary(7);
    EXPECT_EQ(window.ROTARY[7].Value, 1);
    const std::string rocker = window.BTN[4].Caption;
    ASSERT_FALSE(rocker.empty() || rocker.starts_with('T')) << rocker;
    button(4);
    EXPECT_EQ(joystick.Text(), rocker + " ");
    EXPECT_EQ(window.ROTARY[7].Value, 0);
}

TEST_F(ComposerTest, APortTakesTheNameOfARockerThatHasItsOwnStatementElsewhere)
{
    use(2, 3);
    const std::string rocker = window.BTN[4].Caption;
    write(rocker + " x\r\n");
    rotary(7);
    button(4);
    EXPECT_EQ(joystick.Text(), rocker + " x\r\n" + rocker + " ");
}

} // namespace
} // namespace tarvex
