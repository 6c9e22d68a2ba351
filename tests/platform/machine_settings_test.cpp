#include "platform/machine_settings.h"

#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct MachineSettingsTest : testing::Test {
    MemoryFiles files;
    ProfileFile ini{files, platformIniPath("c:")};
    MachineSettings settings{ini};
};

TEST_F(MachineSettingsTest, WithoutAFileThereAreNone)
{
    EXPECT_EQ(settings.runner(Runner::Wine), "");
    EXPECT_TRUE(settings.drives().empty());
    settings.setRunner(Runner::Wine, "");
    settings.setDrive('c', "");
    EXPECT_FALSE(files.fileExists("c:\\Platform.ini")) << "nothing to keep";
}

TEST_F(MachineSettingsTest, KeepRunnersAndDrives)
{
    settings.setRunner(Runner::Wine, "/opt/wine");
    settings.setRunner(Runner::DosBox, "/opt/dosbox");
    settings.setDrive('d', "/mnt/disk");
    EXPECT_EQ(settings.runner(Runner::Wine), "/opt/wine");
    EXPECT_EQ(settings.runner(Runner::DosBox), "/opt/dosbox");
    EXPECT_EQ(settings.drives(), (DriveChoices{{'d', "/mnt/disk"}}));
    settings.setDrive('d', "");
    EXPECT_TRUE(settings.drives().empty());
}

TEST_F(MachineSettingsTest, PathsOfAnyLengthComeBackWhole)
{
    const std::string folder = "/" + std::string(3000, 'x');
    settings.setDrive('c', folder);
    EXPECT_EQ(settings.drives().at('c'), folder);
}

TEST_F(MachineSettingsTest, OnlyFullPathsAreDrives)
{
    files.addFile("c:\\Platform.ini", "[Drives]\r\nc=here\r\nd=c:\\dos\r\ne=/mnt\r\n1=/mnt\r\n");
    EXPECT_EQ(settings.drives(), (DriveChoices{{'e', "/mnt"}}));
}

} // namespace
} // namespace tarvex
