#include "platform/profile_file.h"
#include "shell/large_settings.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

/// An INI file of exactly that size, whose first line counts.
std::string iniOfSize(std::size_t size)
{
    std::string bytes = "[Miscellaneous]\r\nUndoMax=77\r\n;";
    bytes.resize(size - 2, 'x');
    return bytes + "\r\n";
}

TEST(LargeSettings, AFileOver16MegabytesGivesTheDefaultsAndStaysAsItIs)
{
    TestProgram t(false);
    const std::string bytes = iniOfSize(largestProfile + 1);
    t.files.addFile(TestMachine::iniPath, bytes);
    t.files.clearWrites();
    t.start();
    ASSERT_FALSE(t.dialogues.boxes.empty());
    const MessageBox& box = t.dialogues.boxes.front();
    EXPECT_EQ(box.title, "That's a lot of settings ...");
    EXPECT_NE(box.text.find("c:\\tarvex\\Tarvex.ini"), std::string::npos) << box.text;
    EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(t.program().shared.settings.WakeUpWarning, 0);
    EXPECT_EQ(t.program().shared.settings.GamesCaption, "&Games");
    t.menus().mnuUseWakeWarning.Click();
    t.program().exit();
    EXPECT_TRUE(t.fileText(TestMachine::iniPath) == bytes);
}

TEST(LargeSettings, AFileOf16MegabytesIsReadAndWritten)
{
    TestProgram t(false);
    t.files.addFile(TestMachine::iniPath, iniOfSize(largestProfile));
    TestMachine& machine = t;
    Settings settings;
    ErrorRecord errors;
    SettingsStore store(machine.files, TestMachine::programDirectory, settings, errors);
    store.GetOptions();
    EXPECT_EQ(settings.UndoMax, 77);
    settings.UndoMax = 78;
    ProfileFile(machine.files, TestMachine::iniPath).writeString("Miscellaneous", "UndoMax", "78");
    EXPECT_EQ(t.ini("Miscellaneous", "UndoMax"), "78");
}

TEST(LargeSettings, OneOfTheOtherFilesIsNamedToo)
{
    TestProgram t(false);
    t.files.addFile("c:\\tarvex\\Lists.ini", iniOfSize(largestProfile + 1));
    t.files.addFile("c:\\tarvex\\Platform.ini", iniOfSize(largestProfile + 1));
    t.start();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.lastBox().text,
              "This is larger than 16 MB, so I haven't read it, and I won't write to it either:\n"
              "\n    c:\\tarvex\\Lists.ini\n    c:\\tarvex\\Platform.ini"
              "\n\nI've started with the settings that I was born with, and I'll forget what you change there until "
              "you've moved it away.");
}

TEST(LargeSettings, AFileThatGrowsWhileItIsWrittenStaysAsItIs)
{
    TestMachine t;
    ProfileFile profile(t.files, "c:\\tarvex\\x.ini");
    const std::string bytes = iniOfSize(largestProfile + 1);
    {
        const ProfileFile::Batch batch(profile);
        profile.writeString("A", "b", "1");
        t.files.addFile("c:\\tarvex\\x.ini", bytes);
        profile.writeString("A", "c", "2");
    }
    EXPECT_TRUE(t.fileText("c:\\tarvex\\x.ini") == bytes);
    EXPECT_EQ(profile.readString("A", "b", "default"), "default");
}

TEST(LargeSettings, OfFilesUpTo16MegabytesNothingIsSaid)
{
    TestMachine machine;
    machine.files.addFile("c:\\tarvex\\Lists.ini", iniOfSize(largestProfile));
    reportLargeSettings(machine.platform);
    EXPECT_TRUE(machine.dialogues.boxes.empty());
}

} // namespace
} // namespace tarvex
