#include "key_test_fixture.h"

#include <string>
#include <utility>

namespace tarvex {
namespace {

constexpr const char* noJoystickText =
    "I couldn't detect the joystick. Check the Windows Control Panel's Game controllers or Thrustmaster's ProPanel to "
    "see what the problem is.";

TEST_F(KeyTestTest, TheJoystickIsAskedForAllThatItHasInARecordOf52Bytes)
{
    open();
    form.Info.dwSize = form.Info.dwFlags = 0;
    joystick.positionResult = joyError::unplugged; // leaves the record as it was asked with
    form.JoystickTimer.Tick();
    EXPECT_EQ(form.Info.dwSize, 52U);
    EXPECT_EQ(form.Info.dwFlags, 255U);
}

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

} // namespace
} // namespace tarvex
