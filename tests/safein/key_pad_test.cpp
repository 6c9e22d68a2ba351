#include "safein_fixture.h"

#include "platform/input.h"
#include "safein/keys/key_table.h"

namespace tarvex {
namespace {

using KeyPad = SafeinTest;

TEST_F(KeyPad, AClickFillsTheFourFieldsAndGivesInsertTheKeyboard)
{
    int focused = 0;
    const Connection connection = window.CommandPasteJ[0].focusWanted.connect([&] { ++focused; });
    window.TotalCombinedText.Text = "kept";
    click(keyA);
    EXPECT_EQ(syntax(), "a");
    EXPECT_EQ(make(), "#1C");
    EXPECT_EQ(ending(), "#F0 #1C");
    EXPECT_EQ(combined(), "#1C #F0 #1C");
    EXPECT_EQ(statement(), "kept");
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(window.keys.LastKeyIndex, keyA);
}

TEST_F(KeyPad, EveryKeyHasItsCaptionAndComputesItself)
{
    for (const Key& key : keyTable()) {
        EXPECT_EQ(caption(key.index), key.label);
        click(key.index);
        EXPECT_EQ(make(), key.make) << key.index;
    }
}

TEST_F(KeyPad, ATogglesStateIsItsColourAndTheFieldsWaitForTheNextKey)
{
    click(keyA);
    window.ToggleButton1.Click();
    EXPECT_EQ(window.ToggleButton1.BackColor.get(), 0x80C0FF);
    EXPECT_EQ(syntax(), "a");
    click(keyA);
    EXPECT_EQ(syntax(), "SHF a");
    EXPECT_EQ(make(), "#12 #1C");
    window.ToggleButton1.Click();
    EXPECT_EQ(static_cast<std::uint32_t>(window.ToggleButton1.BackColor.get()), 0x8000000FU);
    EXPECT_EQ(syntax(), "SHF a");
    window.ToggleButton2.BackColor = 0x80C0FF; // the colour is all that counts
    click(keyA);
    EXPECT_EQ(syntax(), "CTL a");
}

TEST_F(KeyPad, ShiftChangesTheCaptionsAndDisablesTheShiftKeys)
{
    window.ToggleButton1.Click();
    EXPECT_EQ(caption(keyA), "A");
    EXPECT_EQ(caption(7), "&&");
    EXPECT_EQ(caption(0), ")");
    EXPECT_EQ(caption(46), "~");
    EXPECT_EQ(caption(53), "\"");
    EXPECT_EQ(caption(64), "Enter");
    EXPECT_FALSE(enabled(58) || enabled(59));
    window.ToggleButton1.Click();
    EXPECT_EQ(caption(keyA), "a");
    EXPECT_EQ(caption(49), "\\");
    EXPECT_TRUE(enabled(58) && enabled(59));
}

TEST_F(KeyPad, CtrlAndAltDisableTheirOwnKeys)
{
    window.ToggleButton2.Click();
    EXPECT_FALSE(enabled(60) || enabled(61));
    EXPECT_TRUE(enabled(58) && enabled(62));
    window.ToggleButton3.Click();
    EXPECT_FALSE(enabled(62) || enabled(63));
    window.ToggleButton2.Click();
    window.ToggleButton3.Click();
    EXPECT_TRUE(enabled(60) && enabled(61) && enabled(62) && enabled(63));
}

TEST_F(KeyPad, NumLockCountsOnlyWhileItsToggleIsThere)
{
    window.ToggleButton4.Click();
    click(84);
    EXPECT_EQ(make(), "#E0 #70") << "held, but not to be seen";
    window.mnuUseExtendedRAW.Click();
    click(84);
    EXPECT_EQ(make(), "#E0 #12 #E0 #70");
}

TEST_F(KeyPad, TheJoystickDecidesTheNames)
{
    settings.JoyName = 0;
    click(84);
    EXPECT_EQ(syntax(), "AUXINS");
    settings.JoyName = 1;
    click(84);
    EXPECT_EQ(syntax(), "INS");
}

TEST_F(KeyPad, AnIndexWithoutAKeyGivesEmptyTexts)
{
    for (const int index : {54, -1, 102, 1000}) {
        Command1_Click(window, index);
        EXPECT_EQ(syntax() + make() + ending(), "") << index;
    }
}

TEST_F(KeyPad, TheRawFieldsSelectTheirTextOnEachChange)
{
    int selections = 0;
    std::vector<Connection> connections;
    for (TextBox* field : {&window.RMakeText, &window.RBreakText, &window.RCombinedText})
        connections.push_back(field->selectAllWanted.connect([&] { ++selections; }));
    click(keyA);
    EXPECT_EQ(selections, 3);
    window.RMakeText.Text = "#32";
    EXPECT_EQ(selections, 4);
}

TEST_F(KeyPad, NameAndStatementSelectTheirTextWhenTheyGetTheKeyboard)
{
    int selections = 0;
    std::vector<Connection> connections;
    for (TextBox* field : {&window.SyntaxText, &window.TotalCombinedText}) {
        connections.push_back(field->selectAllWanted.connect([&] { ++selections; }));
        field->Text = "x";
        EXPECT_EQ(selections, 0);
    }
    window.SyntaxText.GotFocus();
    window.TotalCombinedText.GotFocus();
    EXPECT_EQ(selections, 2);
}

// ---- capture and reading back -------------------------------------------------------------------------------------

TEST_F(KeyPad, ACapturedKeyIsLitAndComputedWithWhatIsReallyHeld)
{
    captureKey(window, keyA, shiftKey::shift | shiftKey::ctrl);
    EXPECT_EQ(syntax(), "CTL SHF a");
    EXPECT_EQ(window.LitKey, keyA);
    EXPECT_FALSE(window.ToggleButton1.isHeld());
    captureKey(window, keyB, 0);
    EXPECT_EQ(syntax(), "b");
    EXPECT_EQ(window.LitKey, keyB);
    captureKey(window, -1, 0);
    EXPECT_EQ(window.LitKey, keyB) << "a key that isn't drawn";
    click(keyA);
    EXPECT_EQ(window.LitKey, -1);
}

TEST_F(KeyPad, ACapturedKeyIgnoresWhatThePadHolds)
{
    window.ToggleButton1.Click();
    settings.UseShfKey = 0;
    captureKey(window, keyA, 0);
    EXPECT_EQ(syntax(), "a");
    captureKey(window, keyA, shiftKey::shift);
    EXPECT_EQ(syntax(), "A");
}

TEST_F(KeyPad, ACapturedModifierIsNotHeldBesideItself)
{
    captureKey(window, keyIndex::leftShift, shiftKey::shift);
    EXPECT_EQ(syntax(), "LSFT");
    EXPECT_EQ(make(), "#12");
    captureKey(window, keyIndex::rightCtrl, shiftKey::ctrl | shiftKey::shift);
    EXPECT_EQ(syntax(), "SHF RCTL");
    captureKey(window, keyIndex::rightAlt, shiftKey::alt);
    EXPECT_EQ(syntax(), "RALT");
}

TEST_F(KeyPad, CaptureIsOffAtStartAndASecondClickEndsIt)
{
    EXPECT_FALSE(window.Capture.isHeld());
    window.Capture.Click();
    EXPECT_TRUE(window.Capture.isHeld());
    captureKey(window, keyA, 0);
    window.Capture.Click();
    EXPECT_FALSE(window.Capture.isHeld());
    EXPECT_EQ(window.LitKey, -1);
}

TEST_F(KeyPad, CtrlEscEndsCapturingWithTheTextsOfTheKeyBeforeItsCtrl)
{
    window.Capture.Click();
    captureKey(window, keyA, shiftKey::alt);
    captureKey(window, keyIndex::leftCtrl, shiftKey::ctrl);
    EXPECT_EQ(syntax(), "LCTL");
    endCapture(window);
    EXPECT_FALSE(window.Capture.isHeld());
    EXPECT_EQ(syntax(), "ALT a");
    EXPECT_EQ(make(), "#11 #1C");
    EXPECT_EQ(window.keys.LastKeyIndex, keyA);
}

TEST_F(KeyPad, ACtrlThatWasLookedUpIsStillThereAfterCtrlEsc)
{
    window.Capture.Click();
    for (int presses = 0; presses < 2; ++presses) captureKey(window, keyIndex::leftCtrl, shiftKey::ctrl);
    endCapture(window);
    EXPECT_EQ(syntax(), "LCTL");
}

TEST_F(KeyPad, CtrlEscLeavesTheTextsOfAKeyThatWasClickedMeanwhile)
{
    window.Capture.Click();
    captureKey(window, keyA, 0);
    captureKey(window, keyIndex::leftCtrl, shiftKey::ctrl);
    click(keyB);
    endCapture(window);
    EXPECT_FALSE(window.Capture.isHeld());
    EXPECT_EQ(syntax(), "b");
    EXPECT_EQ(window.keys.LastKeyIndex, keyB);
}

TEST_F(KeyPad, ASelectedNumberSignAloneIsRead)
{
    t.typeJoystick("x # y");
    select(2, 1);
    EXPECT_EQ(window.RawToRead.Text.get(), "#");
}

TEST_F(KeyPad, RawCodesAreReadBackKeyByKey)
{
    window.RawToRead.Text = "RAW (#12 #1C #F0 #1C)";
    EXPECT_EQ(window.RawKeys.Caption.get(), "LSFT down, a down, a up; stays down: LSFT");
    window.RawToRead.Text = "";
    EXPECT_EQ(window.RawKeys.Caption.get(), "");
}

TEST_F(KeyPad, RawCodesThatAreSelectedInThePaneAreRead)
{
    t.typeJoystick("BTN S1 RAW (#1C #F0 #1C)");
    EXPECT_EQ(window.RawToRead.Text.get(), "");
    select(7, 17);
    EXPECT_EQ(window.RawToRead.Text.get(), "RAW (#1C #F0 #1C)");
    select(0, 3);
    EXPECT_EQ(window.RawToRead.Text.get(), "RAW (#1C #F0 #1C)") << "no codes are selected";
}

TEST_F(KeyPad, CodesThatWereSelectedWhileItWasHiddenAreReadWhenItComesBack)
{
    t.typeJoystick("RAW (#1C)");
    window.Command2.Click();
    select(0, 9);
    EXPECT_EQ(window.RawToRead.Text.get(), "");
    t.menus().mnuInsertRAW.Click();
    window.form.Activate();
    EXPECT_EQ(window.RawToRead.Text.get(), "RAW (#1C)");
}

TEST_F(KeyPad, WhatColouringSelectsIsNotRead)
{
    t.typeJoystick("BTN S1 RAW (#1C)");
    t.menus().mnuViewApplyColourBothFiles.Click();
    EXPECT_EQ(window.RawToRead.Text.get(), "");
}

TEST_F(KeyPad, ASelectionTooLongForALineIsNotRead)
{
    std::string codes;
    while (codes.size() < 10'001) codes += "#1C ";
    editor.JoystickText.setText(codes);
    select(0, 10'001);
    EXPECT_EQ(window.RawToRead.Text.get(), "");
    select(0, 10'000);
    EXPECT_EQ(window.RawToRead.Text.get().size(), 10'000U);
}

} // namespace
} // namespace tarvex
