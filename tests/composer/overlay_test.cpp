#include "composer/overlay.h"

#include "composer/composer_fixture.h"
#include "shell/composer_extra.h"
#include "shell/extras.h"

namespace tarvex {
namespace {

struct OverlayTest : ComposerTest {
    void settle()
    {
        if (window.TimerAssigned.Enabled) window.TimerAssigned.Tick();
    }
};

TEST_F(OverlayTest, AControlWhoseStatementStandsInTheFileIsMarked)
{
    write("BTN S1 Fire\r\nBTN H2UL x\r\nRNG 1 5 a b\r\n");
    settle();
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
    EXPECT_TRUE(isAssigned(window, "HAT(1)"));
    EXPECT_TRUE(isAssigned(window, "ROTARY(0)"));
    EXPECT_FALSE(isAssigned(window, "BTN(1)"));
    EXPECT_FALSE(isAssigned(window, "HAT(0)"));
}

TEST_F(OverlayTest, TheMarksFollowTheTextOnceItRests)
{
    int changes = 0;
    const Connection follow = window.AssignedChanged.connect([&changes] { ++changes; });
    write("BTN S1 ");
    EXPECT_TRUE(window.TimerAssigned.Enabled);
    EXPECT_EQ(changes, 0) << "not on the keystroke's path";
    settle();
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(window.TimerAssigned.Enabled);
    joystick.setText("");
    settle();
    EXPECT_FALSE(isAssigned(window, "BTN(0)"));
}

TEST_F(OverlayTest, AHiddenWindowWaitsUntilItComesBack)
{
    window.Command6.Click();
    write("BTN S1 ");
    EXPECT_FALSE(window.TimerAssigned.Enabled);
    show();
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
}

TEST_F(OverlayTest, WithoutTheTickNothingIsMarkedAndTheChoiceIsKept)
{
    write("BTN S1 ");
    settle();
    window.CheckShowAssigned.Value = false;
    window.CheckShowAssigned.Click();
    EXPECT_FALSE(isAssigned(window, "BTN(0)"));
    window.form.Close();
    show();
    EXPECT_FALSE(window.CheckShowAssigned.Value);
    window.CheckShowAssigned.Value = true;
    window.CheckShowAssigned.Click();
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
}

TEST_F(OverlayTest, TheTickOfThePreferencesShowsAndHidesTheMarksWhenTheWindowComesToTheFront)
{
    write("BTN S1 ");
    settle();
    editor.shared.extras.set(extraKey::showAssigned, false);
    window.form.Activate();
    EXPECT_FALSE(window.CheckShowAssigned.Value);
    EXPECT_FALSE(isAssigned(window, "BTN(0)"));
    editor.shared.extras.set(extraKey::showAssigned, true);
    window.form.Activate();
    EXPECT_TRUE(window.CheckShowAssigned.Value);
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
}

TEST_F(OverlayTest, TheTickIsThatOfThePreferences)
{
    window.CheckShowAssigned.Value = false;
    window.CheckShowAssigned.Click();
    EXPECT_FALSE(editor.shared.extras.on(extraKey::showAssigned));
}

TEST_F(OverlayTest, WhereTheTickCannotBeWrittenItCountsForThisWindow)
{
    write("BTN S1 ");
    settle();
    t.files.failWrites("c:\\tarvex\\Platform.ini", RuntimeError(ErrorCode::PermissionDenied, "no"));
    window.CheckShowAssigned.Value = false;
    window.CheckShowAssigned.Click();
    EXPECT_FALSE(isAssigned(window, "BTN(0)"));
}

TEST_F(OverlayTest, TheTextHasTheStatementsAndTheKeysOfTheirMacros)
{
    t.files.addFile("c:\\tm\\a.b50", "BTN H1U Fire A B\r\n/M Firewall\r\nBTN H1D x\r\n");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\nA B = CTL b\r\nUnused = u\r\n");
    t.openBoth("c:\\tm\\a.b50");
    window.form.Activate();
    EXPECT_EQ(assignedText(window, "HAT(0)"),
              "BTN H1U Fire A B\n/M Firewall\n    Fire = f\n    A B = CTL b\nBTN H1D x");
    EXPECT_EQ(assignedText(window, "BTN(0)"), "");
    EXPECT_EQ(assignedText(window, "nothing"), "");
}

TEST_F(OverlayTest, AMacroWhoseNameEndsOrBeginsAnotherWordIsNotNamed)
{
    t.files.addFile("c:\\tm\\a.b50", "BTN S1 BigFire Fireball\r\n");
    t.files.addFile("c:\\tm\\a.m50", "Fire = f\r\n");
    t.openBoth("c:\\tm\\a.b50");
    window.form.Activate();
    EXPECT_EQ(assignedText(window, "BTN(0)"), "BTN S1 BigFire Fireball");
}

TEST_F(OverlayTest, LinesOfTheMacroFileWithoutAnEqualsSignOrANameAreNoMacros)
{
    t.files.addFile("c:\\tm\\a.b50", "BTN H1U Fire\r\n");
    t.files.addFile("c:\\tm\\a.m50", "Fire\r\n = x\r\n  Fire  = f\r\n");
    t.openBoth("c:\\tm\\a.b50");
    window.form.Activate();
    EXPECT_EQ(assignedText(window, "HAT(0)"), "BTN H1U Fire\n    Fire  = f");
}

TEST_F(OverlayTest, TextThatChangesNoStatementRedrawsNoMarks)
{
    write("BTN S1 Fire\r\n");
    settle();
    int changes = 0;
    const Connection follow = window.AssignedChanged.connect([&changes] { ++changes; });
    write("Rem more\r\n");
    settle();
    EXPECT_EQ(changes, 0);
    write("BTN S2 Gear\r\n");
    settle();
    EXPECT_EQ(changes, 1);
}

TEST_F(OverlayTest, TheLabelsOfTheWcsDecideWhoseStatementItIs)
{
    write("BTN T3 a\r\nRKR UP b\r\n");
    use(0, 2);
    EXPECT_TRUE(isAssigned(window, "BTN(21)"));
    EXPECT_FALSE(isAssigned(window, "BTN(16)"));
    use(2, 2);
    EXPECT_FALSE(isAssigned(window, "BTN(21)"));
    EXPECT_TRUE(isAssigned(window, "BTN(16)"));
}

// ---- bad input ------------------------------------------------------------------------------------------------------

TEST_F(OverlayTest, AMegabyteIsMarked)
{
    std::string text;
    while (text.size() < (1U << 20)) text += "BTN X1 /I Chaff /O RAW (#F0 #5B)\r\n";
    write(text + "BTN S1 Fire");
    settle();
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
    EXPECT_EQ(assignedText(window, "BTN(0)"), "BTN S1 Fire");
}

TEST_F(OverlayTest, AMegabyteWithoutLineEndsIsMarked)
{
    write("BTN S1 " + std::string(1 << 20, 'x'));
    settle();
    EXPECT_TRUE(isAssigned(window, "BTN(0)"));
    EXPECT_FALSE(isAssigned(window, "BTN(1)"));
}

TEST_F(OverlayTest, InAnEmptyFileNothingIsMarked)
{
    write("");
    renewAssigned(window);
    for (const AssignedControl& control : window.Assigned) EXPECT_FALSE(control.statement) << control.name;
}

TEST_F(OverlayTest, AmongFiveThousandMacrosTheKeysOfItsOwnAreFound)
{
    std::string macros;
    for (int i = 0; i < 5000; ++i) macros += "Macro" + std::to_string(i) + " = a\r\n";
    t.files.addFile("c:\\tm\\a.b50", "BTN S1 Macro4999\r\n");
    t.files.addFile("c:\\tm\\a.m50", macros);
    t.openBoth("c:\\tm\\a.b50");
    window.form.Activate();
    EXPECT_EQ(assignedText(window, "BTN(0)"), "BTN S1 Macro4999\n    Macro4999 = a");
}

} // namespace
} // namespace tarvex
