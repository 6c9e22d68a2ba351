#include "documents/window/last_pair.h"

#include "shell/session_extras.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

constexpr const char* mig = "c:\\tm\\b50progs\\mig.b50";
constexpr const char* su27 = "c:\\tm\\b50progs\\su27.b50";
constexpr const char* macros = "c:\\tm\\b50progs\\other.m50";

/// A pair whose files don't belong together by name.
struct LastPairTest : testing::Test {
    LastPairTest()
    {
        t.files.addFile(mig, "BTN S1 x\r\nBTN S2 y\r\n");
        t.files.addFile(su27, "su27");
        t.files.addFile(macros, "Fire = f\r\n");
        t.program().shared.extras.set(extraKey::openLastPair, true);
        t.menus().mnuJoyPopUpSingleFile.Checked = true;
        t.openBoth(mig);
        t.openBoth(macros);
        t.editor().TabStrip1.Select(1);
    }
    TestProgram t;

    void startAgain()
    {
        ASSERT_TRUE(t.program().exit());
        t.start();
    }
    std::string joystick() { return t.editor().joystick.FileName; }
};

TEST_F(LastPairTest, ComesBackWithBothFiles)
{
    startAgain();
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.editor().macro.FilePath, macros);
    EXPECT_EQ(t.editor().joystick.Changed, changed::saved);
    EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex!");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST_F(LastPairTest, IsNotOpenedWithoutTheTick)
{
    t.program().shared.extras.set(extraKey::openLastPair, false);
    startAgain();
    EXPECT_EQ(joystick(), "untitled.b50");
}

TEST_F(LastPairTest, BringsCaretsSelectionsAndTheTabBack)
{
    t.editor().JoystickText.setSelStart(10);
    t.editor().JoystickText.setSelLength(3);
    t.editor().MacroText.setSelStart(4);
    t.editor().TabStrip1.Select(2);
    startAgain();
    EXPECT_EQ(t.editor().JoystickText.SelText(), "BTN");
    EXPECT_EQ(t.editor().joystick.Caret, 10);
    EXPECT_EQ(t.editor().MacroText.SelStart(), 4);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 2);
}

TEST_F(LastPairTest, BringsTilingAndTheMacroFrameBack)
{
    ASSERT_TRUE(t.menus().mnuViewMacros.Checked) << "opening a macro file shows it";
    t.menus().mnuViewMacros.Click();
    t.menus().mnuViewTileVertically.Click();
    startAgain();
    EXPECT_FALSE(t.menus().mnuViewMacros.Checked);
    EXPECT_TRUE(t.menus().mnuViewTileVertically.Checked);
    EXPECT_TRUE(t.editor().JoystickText.Visible);
    EXPECT_TRUE(t.editor().MacroText.Visible);
}

TEST_F(LastPairTest, AsksTheViewForTheLinesThatWereInSight)
{
    t.program().lastPair.firstLine = [](const Side& side) { return side.tab * 10; };
    ASSERT_TRUE(t.program().exit());
    const ProfileFile ini(t.files, "c:\\tarvex\\Platform.ini");
    EXPECT_EQ(ini.readInt("LastPair", "JoystickLine", 0), 10);
    EXPECT_EQ(ini.readInt("LastPair", "MacroLine", 0), 20);
    Program next(t.platform);
    std::vector<int> lines;
    const Connection wanted =
        next.lastPair.firstLineWanted.connect([&](const Side&, int line) { lines.push_back(line); });
    ASSERT_TRUE(next.start());
    EXPECT_EQ(lines, (std::vector<int>{10, 20}));
}

TEST_F(LastPairTest, AFileThatIsGoneLeavesItsDocumentEmptyAndSaysSo)
{
    ASSERT_TRUE(t.program().exit());
    t.files.removeFile(mig);
    t.start();
    EXPECT_EQ(joystick(), "untitled.b50");
    EXPECT_EQ(t.editor().macro.FilePath, macros);
    EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex! mig.b50 isn't there any more.");
}

TEST_F(LastPairTest, AShorterFileCutsThePlaces)
{
    t.editor().JoystickText.setSelStart(15);
    ASSERT_TRUE(t.program().exit());
    t.files.addFile(mig, "x");
    t.start();
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 1);
}

TEST_F(LastPairTest, DamagedPlacesAreTheBeginning)
{
    ASSERT_TRUE(t.program().exit());
    ProfileFile ini(t.files, "c:\\tarvex\\Platform.ini");
    for (const char* key : {"JoystickCaret", "JoystickSelection", "JoystickLine", "Tab", "Tiled"})
        ini.writeString("LastPair", key, "-7");
    t.start();
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 0);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_FALSE(t.menus().mnuViewTileVertically.Checked);
}

TEST_F(LastPairTest, GivesWayToTheFileOfTheCommandLine)
{
    ASSERT_TRUE(t.program().exit());
    t.platform.commandLine = su27;
    t.start();
    EXPECT_EQ(t.editor().joystick.FilePath, su27);
    EXPECT_EQ(t.editor().macro.FileName, "untitled.m50");
}

TEST_F(LastPairTest, ANewDocumentIsNotBroughtBack)
{
    t.menus().mnuFileNewJoystick.Click();
    startAgain();
    EXPECT_EQ(joystick(), "untitled.b50");
    EXPECT_EQ(t.editor().macro.FilePath, macros);
}

TEST_F(LastPairTest, IsNotNotedWithoutTheTick)
{
    t.program().shared.extras.set(extraKey::openLastPair, false);
    ASSERT_TRUE(t.program().exit());
    const ProfileFile ini(t.files, "c:\\tarvex\\Platform.ini");
    for (const char* key : {"JoystickFile", "JoystickCaret", "JoystickLine", "MacroFile", "Tiled", "MacroFrame", "Tab"})
        EXPECT_EQ(ini.readString("LastPair", key, "none", 100), "none") << key;
}

TEST_F(LastPairTest, IsNotedWithEachKey)
{
    t.editor().JoystickText.setSelStart(10);
    t.editor().JoystickText.setSelLength(3);
    t.menus().mnuViewTileVertically.Click();
    t.editor().TabStrip1.Select(2);
    ASSERT_TRUE(t.program().exit());
    const ProfileFile ini(t.files, "c:\\tarvex\\Platform.ini");
    const std::pair<const char*, const char*> keys[] = {{"JoystickFile", mig},
                                                        {"JoystickCaret", "10"},
                                                        {"JoystickSelection", "3"},
                                                        {"JoystickLine", "0"},
                                                        {"MacroFile", macros},
                                                        {"MacroCaret", "0"},
                                                        {"MacroSelection", "0"},
                                                        {"MacroLine", "0"},
                                                        {"Tiled", "1"},
                                                        {"MacroFrame", "1"},
                                                        {"Tab", "2"}};
    for (const auto& [key, value] : keys) EXPECT_EQ(ini.readString("LastPair", key, "none", 100), value) << key;
}

TEST_F(LastPairTest, ComesBackWithTheSelectionNotedAndTheLineShown)
{
    t.editor().JoystickText.setSelStart(10);
    t.editor().JoystickText.setSelLength(3);
    startAgain();
    EXPECT_EQ(t.editor().joystick.SelectionLength, 3);
    EXPECT_EQ(t.status(3), "Line no: 2");
}

TEST_F(LastPairTest, TicksTheMacrosUsedWhenTheSettingAsksForIt)
{
    for (const bool identify : {true, false}) {
        t.files.addFile(mig, "BTN S1 Fire \r\n");
        ASSERT_TRUE(t.program().exit());
        t.setIni("Miscellaneous", "CheckIdentifyOK", identify ? "1" : "0");
        t.start();
        ASSERT_EQ(t.settings().CheckIdentifyOK, identify ? 1 : 0);
        ASSERT_FALSE(t.editor().FrameMacros.List1.front().Items.get().empty());
        EXPECT_EQ(t.editor().FrameMacros.List1.front().Items.get().front().Selected, identify);
    }
}

TEST_F(LastPairTest, ViewsThatWereNotNotedStayAsTheyAre)
{
    ASSERT_TRUE(t.program().exit());
    const std::string files = "[Extras]\r\nOpenLastPair=1\r\n[LastPair]\r\nJoystickFile=" + std::string(mig) +
                              "\r\nMacroFile=" + macros + "\r\n";
    t.files.addFile("c:\\tarvex\\Platform.ini", files);
    t.start();
    EXPECT_EQ(t.editor().joystick.FilePath, mig);
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 0);
    EXPECT_EQ(t.editor().JoystickText.SelLength(), 0);
    EXPECT_TRUE(t.menus().mnuViewMacros.Checked) << "opening a macro file shows it";
    EXPECT_FALSE(t.menus().mnuViewTileVertically.Checked);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
}

TEST_F(LastPairTest, WithBothFilesGoneTheViewsStay)
{
    t.menus().mnuViewTileVertically.Click();
    t.editor().TabStrip1.Select(2);
    ASSERT_TRUE(t.program().exit());
    t.files.removeFile(mig);
    t.files.removeFile(macros);
    t.start();
    EXPECT_FALSE(t.menus().mnuViewTileVertically.Checked);
    EXPECT_EQ(t.editor().TabStrip1.SelectedItem, 1);
    EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex! mig.b50 isn't there any more. other.m50 isn't there any more.");
}

} // namespace
} // namespace tarvex
