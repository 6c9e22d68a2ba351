#include "testers/key_test.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

#include <iterator>
#include <utility>

namespace tarvex {
namespace {

constexpr const char* noJoystickText =
    "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or Thrustmaster's ProPanel to "
    "see what the problem is.";

struct KeyTestTest : testing::Test, TestProgram {
    KeyTestForm& form = program().testers.keyTest;

    void SetUp() override
    {
        settings().BTNColour = 1;
        settings().SlashColour = 2;
        settings().RAWColour = 3;
        settings().MiscellaneousColour = 4;
        settings().RemStatements = 5;
        settings().BackgroundColour = 6;
        settings().MacroBackgroundColour = 7;
    }
    void open() { menus().mnuSendToKeyTest.Click(); }
    /// Down, the character if it has one, and up.
    void key(int code, int shift = 0, int character = 0)
    {
        Form_KeyDown(form, code, shift);
        if (character != 0) Form_KeyPress(form, character);
        Form_KeyUp(form, code, shift);
    }
};

TEST_F(KeyTestTest, TheJoystickIsAskedForAllThatItHasInARecordOf52Bytes)
{
    open();
    form.Info.dwSize = form.Info.dwFlags = 0;
    joystick.positionResult = joyError::unplugged; // leaves the record as it was asked with
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.Info.dwSize, 52U);
    EXPECT_EQ(form.Info.dwFlags, 255U);
}

// ---- opening and closing ----

TEST_F(KeyTestTest, OpensBeforeAllWindowsWithTheColoursOfTheScheme)
{
    open();
    EXPECT_TRUE(form.form.Visible);
    EXPECT_TRUE(form.form.TopMost);
    EXPECT_EQ(form.form.Caption.get(), "KeyTester");
    EXPECT_EQ(form.RTFKeysDownText.BackColor, 6);
    EXPECT_EQ(form.RTFKeysUpText.BackColor, 7);
    EXPECT_EQ(form.CurrentColour, 4);
    EXPECT_FALSE(form.Timer1.Enabled);
    EXPECT_EQ(form.Timer1.Interval, 500);
    EXPECT_TRUE(form.JoystickTimer.Enabled);
    EXPECT_EQ(form.JoystickTimer.Interval, 100);
}

TEST_F(KeyTestTest, EachOpeningStartsWithEmptyListsAndNoEntryChecked)
{
    open();
    key(13);
    form.mnuClear500[2].Click();
    form.mnuClose.Click();
    EXPECT_FALSE(form.form.Visible);
    EXPECT_FALSE(form.JoystickTimer.Enabled);
    EXPECT_EQ(joystick.users, 0);
    open();
    EXPECT_EQ(form.RTFKeysDownText.Text(), "");
    EXPECT_FALSE(form.mnuClear500[2].Checked);
    EXPECT_EQ(form.AutoClearOn, 0);
    EXPECT_EQ(form.Timer1.Interval, 500);
}

TEST_F(KeyTestTest, EachOpeningForgetsWhatTheLastOneLeft)
{
    open();
    for (ToggleLabel* label : {&form.LabelSHIFT, &form.LabelCTRL, &form.LabelALT, &form.JoyButtonAnalogue[0]})
        label->hold(true);
    form.mnuClear500[2].Click();
    Form_KeyUp(form, 13, 0);
    EXPECT_TRUE(form.Timer1.Enabled);
    form.mnuClose.Click();
    EXPECT_FALSE(form.Timer1.Enabled);
    form.ClearOnNextKey = form.KeyPressSuppressed = form.SkipNextKeyDown = form.SkipNextKeyUp = 1;
    form.ToldOfCapsLock = true;
    form.ColourIndex = 4;
    form.MoreButtons.Caption = "5";
    open();
    for (const ToggleLabel* label : {&form.LabelSHIFT, &form.LabelCTRL, &form.LabelALT, &form.JoyButtonAnalogue[0]})
        EXPECT_FALSE(label->isHeld());
    EXPECT_FALSE(form.Timer1.Enabled);
    EXPECT_EQ(form.ClearOnNextKey + form.KeyPressSuppressed + form.SkipNextKeyDown + form.SkipNextKeyUp, 0);
    EXPECT_FALSE(form.ToldOfCapsLock);
    EXPECT_EQ(form.ColourIndex, 1);
    EXPECT_EQ(form.CurrentColour, settings().MiscellaneousColour);
    EXPECT_EQ(form.UpColour, form.CurrentColour);
    EXPECT_EQ(form.MoreButtons.Caption.get(), "");
    EXPECT_TRUE(form.JoystickShown);
}

TEST_F(KeyTestTest, AKeyDownDropsTheClearingThatWasDue)
{
    open();
    form.mnuClear500[0].Click();
    EXPECT_EQ(form.Timer1.Interval, 200);
    key(13);
    form.Timer1.Tick();
    EXPECT_EQ(form.ClearOnNextKey, 1);
    Form_KeyDown(form, 13, 0);
    EXPECT_EQ(form.ClearOnNextKey, 0);
    EXPECT_FALSE(form.Timer1.Enabled);
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n");
    Form_KeyDown(form, 13, 0);
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n Enter\r\n") << "cleared once";
}

TEST_F(KeyTestTest, TheCommandAgainKeepsWhatTheOpenWindowShows)
{
    open();
    key(13);
    open();
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n");
    EXPECT_EQ(joystick.users, 1);
}

TEST_F(KeyTestTest, ExitButtonCloses)
{
    open();
    form.Command1.Click();
    EXPECT_FALSE(form.form.Visible);
}

TEST_F(KeyTestTest, ClosesWithTheDocumentWindow)
{
    open();
    EXPECT_TRUE(program().exit());
    EXPECT_FALSE(form.form.Visible);
    EXPECT_EQ(joystick.users, 0);
}

TEST_F(KeyTestTest, NumLockIsLitWhileItIsOn)
{
    keyboard.states[144] = 1;
    open();
    EXPECT_TRUE(form.LabelNUMLOCK.isHeld());
    keyboard.states[144] = 0;
    key(144);
    EXPECT_FALSE(form.LabelNUMLOCK.isHeld());
}

TEST_F(KeyTestTest, CapsLockThatIsOnAtOpeningIsSwitchedOff)
{
    keyboard.states[20] = 1;
    open();
    EXPECT_EQ(keyboard.GetKeyState(20), 0);
}

// ---- keys ----

TEST_F(KeyTestTest, ANamedKeyWritesToAllThreeLists)
{
    open();
    key(13, 0, 13);
    EXPECT_EQ(form.RTFKeysDownText.Text(), "Keycode:  13\r\n");
    EXPECT_EQ(form.RTFKeysUpText.Text(), "Keycode:  13\r\n");
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n");
}

TEST_F(KeyTestTest, CtrlAloneWritesToTheDownAndUpListsOnly)
{
    open();
    Form_KeyDown(form, 17, 2);
    EXPECT_TRUE(form.LabelCTRL.isHeld());
    Form_KeyUp(form, 17, 0);
    EXPECT_FALSE(form.LabelCTRL.isHeld());
    EXPECT_EQ(form.RTFKeysDownText.Text(), "Keycode:  17 + CTRL\r\n");
    EXPECT_EQ(form.RTFKeysUpText.Text(), "Keycode:  17\r\n");
    EXPECT_EQ(form.RTFKeysText.Text(), "");
}

TEST_F(KeyTestTest, AltAloneWritesToTheDownAndUpListsOnly)
{
    open();
    Form_KeyDown(form, 18, 4);
    EXPECT_TRUE(form.LabelALT.isHeld());
    Form_KeyUp(form, 18, 0);
    EXPECT_FALSE(form.LabelALT.isHeld());
    EXPECT_EQ(form.RTFKeysDownText.Text(), "Keycode:  18 + ALT\r\n");
    EXPECT_EQ(form.RTFKeysUpText.Text(), "Keycode:  18\r\n");
    EXPECT_EQ(form.RTFKeysText.Text(), "");
}

TEST_F(KeyTestTest, ShiftAloneSuppressesNoKeyPress)
{
    open();
    Form_KeyDown(form, 16, 1);
    EXPECT_EQ(form.KeyPressSuppressed, 0);
    EXPECT_TRUE(form.LabelSHIFT.isHeld());
    EXPECT_EQ(form.RTFKeysText.Text(), "");
}

TEST_F(KeyTestTest, ShiftWithALetterArrivesThroughKeyPressInItsUpperCaseForm)
{
    open();
    Form_KeyDown(form, 16, 1);
    key('A', 1, 'A');
    EXPECT_EQ(form.RTFKeysDownText.Text(), "Keycode:  16 + SHF\r\nKeycode:  65 + SHF\r\n");
    EXPECT_EQ(form.RTFKeysText.Text(), " A\r\n");
}

TEST_F(KeyTestTest, CtrlWithALetterShowsItInLowerCase)
{
    open();
    key('A', 2, 1);
    EXPECT_EQ(form.RTFKeysText.Text(), " Ctrl a\r\n");
}

TEST_F(KeyTestTest, CharactersBelow19AreDroppedAnd19IsShown)
{
    open();
    Form_KeyPress(form, 18);
    EXPECT_EQ(form.RTFKeysText.Text(), "");
    Form_KeyPress(form, 19);
    EXPECT_EQ(form.RTFKeysText.Text(), " \x13\r\n");
}

TEST_F(KeyTestTest, CharactersAreThoseOfTheCodePage)
{
    open();
    key('E', 0, 0xE9);
    EXPECT_EQ(form.RTFKeysText.Text(), " \xC3\xA9\r\n");
}

TEST_F(KeyTestTest, AfterFiveKeysTheColourCycleIsBackAtTheFirstColour)
{
    open();
    for (int i = 0; i < 6; ++i) key('A', 0, 'a');
    std::vector<Colour> colours;
    for (const auto& line : form.RTFKeysDownText.lines()) colours.push_back(line.colour);
    EXPECT_EQ(colours, (std::vector<Colour>{2, 3, 4, 5, 1, 2}));
}

TEST_F(KeyTestTest, OneKeyHasOneColourInAllThreeLists)
{
    open();
    key('A', 0, 'a');
    key(13);
    EXPECT_EQ(form.RTFKeysDownText.lines()[1].colour, 3);
    EXPECT_EQ(form.RTFKeysUpText.lines()[1].colour, 3);
    EXPECT_EQ(form.RTFKeysText.lines()[1].colour, 3);
}

TEST_F(KeyTestTest, CapsLockIsShownAndItsStateStaysOff)
{
    open();
    keyboard.states[20] = 1;
    keyboard.states[144] = 1;
    key(20);
    EXPECT_EQ(form.RTFKeysText.Text(), " CAPSLOCK\r\n");
    EXPECT_EQ(keyboard.GetKeyState(20), 0);
    EXPECT_EQ(keyboard.GetKeyState(144), 1);
    EXPECT_EQ(form.status.Caption.get(), "");
}

TEST_F(KeyTestTest, WhereCapsLockCannotBeSwitchedOffTheStatusSaysSoOnce)
{
    keyboard.canBeSet = false;
    open();
    form.JoystickTimer.Tick();
    key(20);
    EXPECT_EQ(form.status.Caption.get(), "Status: Sorry, I can't switch Caps Lock off here");
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Sorry, I can't switch Caps Lock off here") << "until it is read";
    joystick.positionResult = joyError::unplugged;
    form.JoystickTimer.Tick();
    key(20);
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick unplugged");
}

TEST_F(KeyTestTest, SkippedEventsAreIgnoredOnce)
{
    open();
    form.SkipNextKeyDown = 1;
    form.SkipNextKeyUp = 1;
    key(13);
    EXPECT_EQ(form.RTFKeysDownText.Text(), "");
    EXPECT_EQ(form.RTFKeysUpText.Text(), "");
    key(13);
    EXPECT_EQ(form.RTFKeysDownText.lines().size(), 1U);
    EXPECT_EQ(form.RTFKeysUpText.lines().size(), 1U);
}

TEST_F(KeyTestTest, HeldModifiersAreUnlitWhenTheKeyboardGoesElsewhere)
{
    open();
    Form_KeyDown(form, 16, 1);
    Form_KeyDown(form, 18, 5);
    keyboardLost(form);
    EXPECT_FALSE(form.LabelSHIFT.isHeld());
    EXPECT_FALSE(form.LabelALT.isHeld());
    EXPECT_EQ(form.RTFKeysUpText.Text(), "") << "no key came up here";
}

TEST_F(KeyTestTest, OfAHundredThousandKeysTheLastLinesStay)
{
    open();
    for (int i = 0; i < 100'000; ++i) key('A' + i % 26, 0, 'a' + i % 26);
    EXPECT_EQ(form.RTFKeysDownText.lines().size(), ColouredList::mostLines);
    EXPECT_EQ(form.RTFKeysText.lines().back().text, std::string(" ") + static_cast<char>('a' + 99'999 % 26));
}

// ---- clearing ----

TEST_F(KeyTestTest, ClearAllEmptiesTheLists)
{
    open();
    key(13);
    form.mnuClearAll.Click();
    EXPECT_EQ(form.RTFKeysDownText.Text() + form.RTFKeysUpText.Text() + form.RTFKeysText.Text(), "");
}

TEST_F(KeyTestTest, EntriesOfTheAutoClearAreExclusiveAndSetTheInterval)
{
    open();
    for (int index = 0; index < 5; ++index) {
        form.mnuClear500[index].Click();
        EXPECT_EQ(form.Timer1.Interval, 200 * (index + 1));
        for (int i = 0; i < 5; ++i) EXPECT_EQ(form.mnuClear500[i].Checked, i == index);
        EXPECT_EQ(form.mnuClear500[index].Caption.get(),
                  "After " + std::to_string(200 * (index + 1)) + "ms from key up");
    }
    EXPECT_EQ(form.AutoClearOn, -1);
}

TEST_F(KeyTestTest, ChoosingTheCheckedEntryAgainSwitchesTheAutoClearOff)
{
    open();
    form.mnuClear500[1].Click();
    key(13);
    EXPECT_TRUE(form.Timer1.Enabled);
    form.mnuClear500[1].Click();
    EXPECT_FALSE(form.Timer1.Enabled);
    EXPECT_FALSE(form.mnuClear500[1].Checked);
    EXPECT_EQ(form.AutoClearOn, 0);
    key(13);
    EXPECT_FALSE(form.Timer1.Enabled);
}

TEST_F(KeyTestTest, TheListsEmptyAtTheNextKeyDownAndNotWhenTheTimeRunsOut)
{
    open();
    form.mnuClear500[0].Click();
    key(13);
    form.Timer1.Tick();
    EXPECT_FALSE(form.Timer1.Enabled);
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n");
    Form_KeyDown(form, 27, 0);
    EXPECT_EQ(form.RTFKeysText.Text(), " Escape\r\n");
}

TEST_F(KeyTestTest, AKeyUpRestartsTheCountAndDropsTheClearing)
{
    open();
    form.mnuClear500[0].Click();
    key(13);
    form.Timer1.Tick();
    Form_KeyUp(form, 13, 0);
    EXPECT_TRUE(form.Timer1.Enabled);
    Form_KeyDown(form, 27, 0);
    EXPECT_EQ(form.RTFKeysText.lines().size(), 2U);
}

// ---- joystick ----

TEST_F(KeyTestTest, WithoutAJoystickItOpensAfterOneMessageAndTheKeyListsWork)
{
    joystick.unplug();
    open();
    ASSERT_EQ(dialogues.boxes.size(), 1U);
    EXPECT_EQ(lastBox().title, "No joystick detected");
    EXPECT_EQ(lastBox().text, noJoystickText);
    EXPECT_EQ(lastBox().icon, BoxIcon::Exclamation);
    EXPECT_TRUE(form.form.Visible);
    EXPECT_FALSE(form.JoystickTimer.Enabled);
    EXPECT_EQ(form.status.Caption.get(), "Status: No joystick");
    key(13);
    EXPECT_EQ(form.RTFKeysText.Text(), " Enter\r\n");
}

TEST_F(KeyTestTest, TheBarsStartBesideThePlotAndTheRudderInTheMiddle)
{
    open();
    EXPECT_EQ(form.FrameTHR.get(), (Placement{2490, 0, 495, 2400}));
    EXPECT_EQ(form.LabelTHR.get().Width, 495 - 120);
    EXPECT_EQ(form.FrameRDDR.get(), (Placement{0, 2490, 2400, 390}));
    EXPECT_EQ(form.LabelRDDR.get(), (Placement{120, 60, 1140, 270}));
}

TEST_F(KeyTestTest, ATickShowsThePositionAlone)
{
    open();
    joystick.position.dwXpos = 100;
    joystick.position.dwYpos = 65535;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick connected");
    EXPECT_EQ(form.PictureJoystick.get(), (PlottedPoint{100, 65535}));
}

TEST_F(KeyTestTest, TheThrottleBarGrowsUpwardsAsItsValueFalls)
{
    open();
    joystick.position.dwZpos = 65535;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.LabelTHR.get().Height, 0);
    joystick.position.dwZpos = 0;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.LabelTHR.get().Height, 2340);
    EXPECT_EQ(form.LabelTHR.get().Top, 0);
    joystick.position.dwZpos = 32768;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.LabelTHR.get().Height, 1169);
    EXPECT_EQ(form.LabelTHR.get().Top, 2400 - 1169 - 60);
}

TEST_F(KeyTestTest, TheRudderBarFollowsItsValue)
{
    open();
    for (const auto& [value, width] : {std::pair{0U, 0}, {65535U, 2280}, {32768U, 1140}}) {
        joystick.position.dwRpos = value;
        form.JoystickTimer.Tick();
        EXPECT_EQ(form.LabelRDDR.get().Width, width);
    }
}

TEST_F(KeyTestTest, ABarMovesOnlyWhenItsSizeChanges)
{
    open();
    form.JoystickTimer.Tick();
    int moves = 0;
    const Connection watched = form.LabelTHR.changed.connect([&] { ++moves; });
    joystick.position.dwZpos += 5;
    form.JoystickTimer.Tick();
    EXPECT_EQ(moves, 0);
    joystick.position.dwZpos += 50;
    form.JoystickTimer.Tick();
    EXPECT_EQ(moves, 1);
}

TEST_F(KeyTestTest, WithoutThrottleAndRuddersTheirBarsStay)
{
    joystick.caps.wCaps = 0;
    open();
    joystick.position.dwZpos = 0;
    joystick.position.dwRpos = 0;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.LabelTHR.get().Height, 0);
    EXPECT_EQ(form.LabelRDDR.get().Width, 1140);
}

TEST_F(KeyTestTest, EachOfTheFourIndicatorsFollowsItsButton)
{
    open();
    for (std::uint32_t pressed = 0; pressed < 16; ++pressed) {
        joystick.position.dwButtons = pressed;
        form.JoystickTimer.Tick();
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(form.JoyButtonAnalogue[i].BackColor.get(),
                      (pressed >> i & 1U) != 0 ? 0x80C0FF : static_cast<Colour>(0x8000000FU));
        }
    }
}

TEST_F(KeyTestTest, FurtherButtonsAndHatsAreShownInWords)
{
    open();
    JoystickReport report;
    report.buttons.set(0).set(4).set(127);
    report.hats = {4500, 18000, povCentred, povCentred};
    joystick.reported(report);
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.MoreButtons.Caption.get(), "Buttons 5, 128   Hat up right, down");
}

TEST_F(KeyTestTest, HatsAreNamedByTheirDirectionAndStandAloneWithoutButtons)
{
    open();
    const char* names[] = {"up", "up right", "right", "down right", "down", "down left", "left", "up left"};
    for (std::uint32_t direction = 0; direction < 8; ++direction) {
        JoystickReport report;
        report.hats = {direction * 4500, povCentred, povCentred, povCentred};
        joystick.reported(report);
        form.JoystickTimer.Tick();
        EXPECT_EQ(form.MoreButtons.Caption.get(), std::string("Hat ") + names[direction]);
    }
    joystick.reported({});
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.MoreButtons.Caption.get(), "");
}

TEST_F(KeyTestTest, FailuresElsewhereInTheWindowAreReportedUnderTheirNames)
{
    open();
    Connection failing = form.RTFKeysText.appended.connect(
        [](const ColouredList::Line&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
    Form_KeyPress(form, 'a');
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST Form_KeyPress");
    failing.disconnect();
    const auto checked =
        form.mnuClear500[1].Checked.changed.connect([] { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
    form.mnuClear500[1].Click();
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST mnuClear500_Click");
    desktop.whileHandlingEvents = [] { throw RuntimeError(ErrorCode::PathNotFound, "broken"); };
    key(20);
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST TurnOffCapsLOCK");
    desktop.whileHandlingEvents = {};
    form.mnuClose.Click();
    form.form.TopMost = false;
    const auto loading =
        form.form.TopMost.changed.connect([] { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
    open();
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST Form_Load");
}

TEST_F(KeyTestTest, AnUnpluggedJoystickIsReportedAndShownAgainWhenItComesBack)
{
    open();
    joystick.position.dwXpos = 10;
    form.JoystickTimer.Tick();
    joystick.positionResult = joyError::unplugged;
    joystick.position.dwXpos = 20;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick unplugged");
    EXPECT_EQ(form.PictureJoystick.get().x, 10U);
    joystick.positionResult = 165;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick error");
    EXPECT_TRUE(form.JoystickTimer.Enabled);
    joystick.positionResult = joyError::none;
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick connected");
    EXPECT_EQ(form.PictureJoystick.get().x, 20U);
}

TEST_F(KeyTestTest, FailuresInTheKeyHandlersAreReportedUnderTheirNames)
{
    open();
    const auto failing = form.RTFKeysDownText.appended.connect(
        [](const ColouredList::Line&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
    Form_KeyDown(form, 13, 0);
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST Form_KeyDown");
    const auto up = form.RTFKeysUpText.appended.connect(
        [](const ColouredList::Line&) { throw RuntimeError(ErrorCode::PathNotFound, "broken"); });
    Form_KeyUp(form, 13, 0);
    EXPECT_EQ(program().shared.errors.ErrorProcedure, "KEYTEST Form_KeyUp");
}

TEST_F(KeyTestTest, EachModifierIsLitWhileItIsHeldAndNoOther)
{
    open();
    const std::pair<int, ToggleLabel*> modifiers[] = {{1, &form.LabelSHIFT}, {2, &form.LabelCTRL}, {4, &form.LabelALT}};
    const int codes[] = {16, 17, 18};
    for (std::size_t held = 0; held < std::size(modifiers); ++held) {
        Form_KeyDown(form, codes[held], modifiers[held].first);
        for (std::size_t i = 0; i < std::size(modifiers); ++i) EXPECT_EQ(modifiers[i].second->isHeld(), i == held) << i;
        Form_KeyUp(form, 13, modifiers[held].first);
        EXPECT_TRUE(modifiers[held].second->isHeld()) << "another key went up";
        Form_KeyUp(form, codes[held], 0);
        EXPECT_FALSE(modifiers[held].second->isHeld());
    }
}

TEST_F(KeyTestTest, ANamedKeySuppressesItsCharacterAndTheNextKeyDoesNot)
{
    open();
    Form_KeyDown(form, 'A', 2);
    Form_KeyPress(form, 'a');
    EXPECT_EQ(form.RTFKeysText.lines().size(), 1U) << "the name alone";
    Form_KeyPress(form, 'b');
    EXPECT_EQ(form.RTFKeysText.lines().size(), 2U) << "once";
}

TEST_F(KeyTestTest, EachKeyUpStartsTheTimeOfTheClearingAnewAndItsEndStopsIt)
{
    open();
    form.mnuClear500[0].Click();
    key('A', 0, 'a');
    int changes = 0;
    const Connection changed = form.Timer1.Enabled.changed.connect([&changes] { ++changes; });
    key('B', 0, 'b');
    EXPECT_EQ(changes, 2) << "off and on";
    form.Timer1.Tick();
    EXPECT_FALSE(form.Timer1.Enabled);
}

TEST_F(KeyTestTest, EachOpeningShowsTheStateOfTheJoystickAnewAndNoButtonsOfTheLastOne)
{
    settings().BackgroundColour = 9;
    open();
    EXPECT_EQ(form.RTFKeysText.BackColor, 9);
    joystick.position.dwButtons = 0xFF;
    joystick.send();
    form.JoystickTimer.Tick();
    EXPECT_NE(form.MoreButtons.Caption.get(), "");
    form.mnuClose.Click();
    form.status.Caption = "";
    open();
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.status.Caption.get(), "Status: Joystick connected");
    EXPECT_EQ(form.MoreButtons.Caption.get(), "");
    EXPECT_EQ(joystick.users, 1);
    EXPECT_TRUE(form.form.KeyDown('A', 2)) << "no key is passed on";
    form.mnuClose.Click();
    joystick.unplug();
    open();
    EXPECT_FALSE(form.JoystickShown);
}

TEST_F(KeyTestTest, CodesHaveAPlaceForTheirSign)
{
    const std::pair<int, const char*> lines[] = {
        {0, "Keycode:  0"}, {1, "Keycode:  1"}, {-1, "Keycode: -1"}, {255, "Keycode:  255"}};
    for (const auto& [code, line] : lines) {
        open();
        Form_KeyDown(form, code, 0);
        EXPECT_EQ(form.RTFKeysDownText.Text().substr(0, std::string(line).size()), line);
        form.mnuClose.Click();
    }
}

} // namespace
} // namespace tarvex
