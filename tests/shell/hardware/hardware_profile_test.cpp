#include "shell/hardware/hardware_profile.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct Machine : TestMachine {
    Shared shared{platform};
    Settings& settings = shared.settings;
    void detect() { AutoDetect(platform, shared); }
};

TEST(AutoDetect, FindsAnF22ProAndItsThrottleAndRudders)
{
    Machine t;
    t.files.addFile("c:\\tm\\f22\\Tm.cfg", "THROTTLETYPE=TQS\r\nRUDDERTYPE=RCS\r\nDLDELAY=5\r\n");
    t.detect();
    EXPECT_EQ(t.settings.ProgramFilesPath, "c:\\tm\\f22\\f22progs");
    EXPECT_EQ(t.settings.B50LoadPath, "c:\\tm\\f22\\f22load.exe");
    EXPECT_EQ(t.settings.CandCCPath, "c:\\tm\\f22\\f22.bat");
    EXPECT_EQ(t.settings.JoystickExtension, "f22");
    EXPECT_EQ(t.settings.MacroExtension, "m22");
    EXPECT_EQ(t.settings.JoyName, 0);
    EXPECT_EQ(t.settings.ThrottleName, 1);
    EXPECT_EQ(t.settings.RudderName, 2);
    EXPECT_EQ(t.ini("FileLocations", "ProgramFilesPath"), "c:\\tm\\f22\\f22progs");
}

TEST(AutoDetect, TakesTheF22WhenBothFamiliesAreThere)
{
    Machine t;
    t.files.addDirectory("c:\\tqs");
    t.files.addDirectory("c:\\tm\\f22");
    t.detect();
    EXPECT_EQ(t.settings.JoyName, 0);
    EXPECT_EQ(t.settings.JoystickExtension, "f22");
}

TEST(AutoDetect, TakesTheTqsFolderBeforeAPlainTmFolder)
{
    Machine t;
    t.files.addDirectory("c:\\tqs");
    t.files.addFile("c:\\tm\\b50load.exe", "");
    t.detect();
    EXPECT_EQ(t.settings.ProgramFilesPath, "c:\\tqs\\programs");
    EXPECT_EQ(t.settings.B50LoadPath, "c:\\tqs\\b50load.exe");
    EXPECT_EQ(t.settings.CandCCPath, "c:\\tqs\\tm.bat");
    EXPECT_EQ(t.settings.JoyName, 1);
    EXPECT_EQ(t.settings.ThrottleName, 1);
}

TEST(AutoDetect, ATmFolderWithTheLoaderIsAFlcsWithoutThrottle)
{
    Machine t;
    t.settings.ThrottleName = 3;
    t.files.addFile("c:\\tm\\b50load.exe", "");
    t.detect();
    EXPECT_EQ(t.settings.ProgramFilesPath, "c:\\tm\\b50progs");
    EXPECT_EQ(t.settings.CandCCPath, "c:\\tm\\tm.bat");
    EXPECT_EQ(t.settings.JoyName, 1);
    EXPECT_EQ(t.settings.MacroExtension, "m50");
    EXPECT_EQ(t.settings.ThrottleName, 0);
}

TEST(AutoDetect, ATmFolderWithoutTheLoaderIsAnFcsAndKeepsTheLoaderPath)
{
    Machine t;
    t.settings.B50LoadPath = "c:\\old\\load.exe";
    t.files.addDirectory("c:\\tm");
    t.detect();
    EXPECT_EQ(t.settings.ProgramFilesPath, "c:\\tm\\programs");
    EXPECT_EQ(t.settings.CandCCPath, "c:\\tm\\tm.bat");
    EXPECT_EQ(t.settings.B50LoadPath, "c:\\old\\load.exe");
    EXPECT_EQ(t.settings.JoystickExtension, "adv");
    EXPECT_EQ(t.settings.MacroExtension, "mdf");
    EXPECT_EQ(t.settings.JoyName, 2);
}

TEST(AutoDetect, WithoutAnyFolderOnlyTheFactoryColoursAreSaved)
{
    Machine t;
    t.detect();
    EXPECT_EQ(t.settings.ProgramFilesPath, "");
    EXPECT_EQ(t.ini("Colours", "BTNColour"), "16711680");
    EXPECT_EQ(t.ini("FileLocations", "JoyName"), "(none)");
}

TEST(AutoDetect, ThrottleLinesCountWholeAndWithTheirCase)
{
    for (const char* line : {"THROTTLETYPE = TQS", "throttletype=tqs", "THROTTLETYPE=TQS ", "xTHROTTLETYPE=TQS"}) {
        Machine t;
        t.files.addFile("c:\\tm\\f22\\Tm.cfg", std::string(line) + "\r\n");
        t.detect();
        EXPECT_EQ(t.settings.ThrottleName, 0) << line;
    }
}

TEST(AutoDetect, WcsInTheConfigurationIsIndexTwo)
{
    Machine t;
    t.files.addFile("c:\\tm\\f22\\TM.CFG", "THROTTLETYPE=WCS");
    t.detect();
    EXPECT_EQ(t.settings.ThrottleName, 2);
    EXPECT_EQ(GetHardwareNames(t.settings), "F22 Pro, WCS MkII, no rudders.");
}

TEST(AutoDetect, AnUnreadableConfigurationLeavesTheThrottleAsItWas)
{
    Machine t;
    t.settings.ThrottleName = 3;
    t.files.addFile("c:\\tm\\f22\\Tm.cfg", "THROTTLETYPE=TQS");
    t.files.failReads("c:\\tm\\f22\\Tm.cfg", RuntimeError(ErrorCode::PermissionDenied, "no"));
    t.detect();
    EXPECT_EQ(t.settings.ThrottleName, 3);
    EXPECT_EQ(t.settings.JoyName, 0);
    EXPECT_EQ(t.shared.errors.ErrorProcedure, "");
}

TEST(GetHardwareNames, JoinsTheThreeNames)
{
    Settings settings;
    EXPECT_EQ(GetHardwareNames(settings), "F22 Pro, no throttle, no rudders.");
    settings.JoyName = 4;
    settings.ThrottleName = 3;
    settings.RudderName = 1;
    EXPECT_EQ(GetHardwareNames(settings), "FCS, WCS, Elite rudders.");
    settings.JoyName = 1;
    settings.ThrottleName = 1;
    settings.RudderName = 2;
    EXPECT_EQ(GetHardwareNames(settings), "F-16 FLCS, TQS, RCS.");
}

TEST(GetHardwareNames, AnIndexFromADamagedFileAddsNothing)
{
    Settings settings;
    settings.JoyName = -1;
    settings.ThrottleName = 99;
    settings.RudderName = 3;
    EXPECT_EQ(GetHardwareNames(settings), "");
}

TEST(ComboJoystick_Click, SetsTheExtensionsAndMarksAChange)
{
    Machine t;
    t.settings.JoyName = 1;
    ComboJoystick_Click(t.shared, 3);
    EXPECT_EQ(t.settings.JoystickExtension, "adv");
    EXPECT_EQ(t.settings.MacroExtension, "mdf");
    EXPECT_EQ(t.shared.HardwareChangedMark, 1);
}

TEST(ComboJoystick_Click, AnIndexOfNoJoystickLeavesTheExtensions)
{
    Machine t;
    t.settings.JoystickExtension = "b50";
    t.settings.MacroExtension = "m50";
    for (const int index : {-1, 5, 6}) {
        ComboJoystick_Click(t.shared, static_cast<std::int16_t>(index));
        EXPECT_EQ(t.settings.JoyName, index);
        EXPECT_EQ(t.settings.JoystickExtension, "b50") << index;
        EXPECT_EQ(t.settings.MacroExtension, "m50") << index;
    }
}

TEST(ComboJoystick_Click, EachJoystickHasItsExtensions)
{
    Machine t;
    const std::pair<const char*, const char*> expected[] = {
        {"f22", "m22"}, {"b50", "m50"}, {"adv", "mdf"}, {"adv", "mdf"}, {"adv", "mdf"}};
    for (std::size_t index = 0; index < std::size(expected); ++index) {
        ComboJoystick_Click(t.shared, static_cast<std::int16_t>(index));
        EXPECT_EQ(t.settings.JoystickExtension, expected[index].first) << index;
        EXPECT_EQ(t.settings.MacroExtension, expected[index].second) << index;
    }
}

TEST(ComboJoystick_Click, TheSameIndexIsNoChange)
{
    Machine t;
    t.settings.JoyName = 1;
    ComboJoystick_Click(t.shared, 1);
    EXPECT_EQ(t.settings.JoystickExtension, "b50");
    EXPECT_EQ(t.shared.HardwareChangedMark, 0);
}

TEST(AutoDetect, AnF22ProTakesThePlaceOfAnotherJoystick)
{
    Machine t;
    t.settings.JoyName = 4;
    t.settings.JoystickExtension = "adv";
    t.files.addDirectory("c:\\tm\\f22");
    t.detect();
    EXPECT_EQ(t.settings.JoyName, 0);
    EXPECT_EQ(t.settings.JoystickExtension, "f22");
    EXPECT_EQ(t.ini("FileLocations", "JoyName"), "0");
    EXPECT_EQ(t.ini("FileLocations", "CandCCPath"), "c:\\tm\\f22\\f22.bat");
}

} // namespace
} // namespace tarvex
