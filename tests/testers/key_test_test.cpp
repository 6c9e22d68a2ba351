#include "key_test_fixture.h"
#include "support/menu_text.h"

#include <iterator>
#include <string>
#include <utility>

namespace tarvex {
namespace {

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

// ---- failures, modifiers and time ----

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

TEST_F(KeyTestTest, ItsMenusHaveTheirCommands)
{
    EXPECT_EQ(menuText(form.menuBar()), "File\n"
                                        " Exit\n"
                                        "Clear\n"
                                        " All\n"
                                        " -\n"
                                        " After 200ms from key up\n"
                                        " After 400ms from key up\n"
                                        " After 600ms from key up\n"
                                        " After 800ms from key up\n"
                                        " After 1000ms from key up\n");
}

} // namespace
} // namespace tarvex
