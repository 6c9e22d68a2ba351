// The whole program on real files: drives, names in any case, and disks that fail.

#include "documents/files/auto_save.h"
#include "documents/files/file_open.h"
#include "support/disk_program.h"
#include "support/small_disk.h"
#include "support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tarvex {
namespace {

TEST(ProgramOnDisk, OpensANativePathEditsAndSavesItWithBackupAndShadow)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string joystick = disk.put("drive_c/TM/Mig.B50", "MDEF Mig\r\n");
    const std::string macro = disk.put("drive_c/TM/MIG.m50", "Fire = f\r\n");
    DiskProgram t(disk.path(), joystick);
    ASSERT_TRUE(t.start());
    Editor& editor = t.program->editor;
    EXPECT_EQ(editor.pair.JoystickFilePath, "c:\\tm\\mig.b50");
    EXPECT_EQ(editor.MacroText.Text(), "Fire = f\r\n");

    t.type(editor.joystick, "Rem \xE9\r\n");
    t.program->menus.mnuFileSaveBoth.Click();
    EXPECT_EQ(bytesOf(joystick), "Rem \xE9\r\nMDEF Mig\r\n");
    EXPECT_EQ(bytesOf(macro), "Fire = f\r\n");
    EXPECT_EQ(bytesOf(disk / "Backup/mig.b50"), "Rem \xE9\r\nMDEF Mig\r\n");
    EXPECT_EQ(bytesOf(disk / "Rtf/mig.b50").substr(0, 5), "{\\rtf");
    EXPECT_EQ(namesIn(disk / "drive_c/TM").size(), 2U) << "under the names that they had";
}

TEST(ProgramOnDisk, ADosPathOnTheCommandLineIsTakenInAnyCase)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    disk.put("drive_c/tm/mig.b50", "BTN S1 x");
    disk.put("drive_c/tm/mig.m50", "");
    DiskProgram t(disk.path(), "C:\\TM\\MIG.B50");
    ASSERT_TRUE(t.start());
    EXPECT_EQ(t.program->editor.JoystickText.Text(), "BTN S1 x");
}

TEST(ProgramOnDisk, OfTwoNamesThatDifferOnlyByCaseTheOneThatWasMeantIsSaved)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string lower = disk.put("drive_c/tm/mig.b50", "lower");
    const std::string upper = disk.put("drive_c/tm/MIG.b50", "upper");
    disk.put("drive_c/tm/mig.m50", "");
    DiskProgram t(disk.path(), upper);
    ASSERT_TRUE(t.start());
    Editor& editor = t.program->editor;
    EXPECT_EQ(editor.JoystickText.Text(), "upper");
    t.type(editor.joystick, "new ");
    editor.TabStrip1.Select(1);
    t.program->menus.mnuFileSave.Click();
    EXPECT_EQ(bytesOf(upper), "new upper");
    EXPECT_EQ(bytesOf(lower), "lower");
}

TEST(ProgramOnDisk, SettingsTravelToWindowsAndBackUnharmed)
{
    const TemporaryDirectory disk;
    const std::string foreign =
        "; J\xF6rg's "
        "settings\r\n[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\nProgramFilesPath=C:\\J\xF6rg\\TM\\\r\n"
        "[Miscellaneous]\r\nValidUser=\"J\xF6rg\"\r\nUnknownKey=1\r\nOpenSingleFileOnly=0\r\n";
    const std::string ini = disk.put("Tarvex.ini", foreign);
    disk.makeDirectory("drive_c/J\xC3\xB6rg/TM");
    {
        DiskProgram t(disk.path());
        ASSERT_TRUE(t.start());
        EXPECT_EQ(t.program->shared.settings.ValidUser, "J\xC3\xB6rg");
        EXPECT_TRUE(t.program->exit());
    }
    const std::string written = bytesOf(ini);
    EXPECT_EQ(
        written.find(
            "; J\xF6rg's "
            "settings\r\n[FileLocations]\r\nFirstTimeUsed=0\r\nShowTips=0\r\nProgramFilesPath=C:\\J\xF6rg\\TM\\\r\n"),
        0U)
        << written;
    EXPECT_NE(written.find("ValidUser=\"J\xF6rg\"\r\nUnknownKey=1\r\n"), std::string::npos)
        << "an equal value is left as it was written";
    for (std::size_t at = written.find('\n'); at != std::string::npos; at = written.find('\n', at + 1))
        EXPECT_EQ(written[at - 1], '\r');
}

TEST(ProgramOnDisk, AReadOnlyFileIsNeverWrittenOver)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string joystick = disk.put("drive_c/tm/mig.b50", "precious");
    disk.put("drive_c/tm/mig.m50", "");
    std::filesystem::permissions(joystick, std::filesystem::perms::owner_read);
    DiskProgram t(disk.path(), joystick);
    ASSERT_TRUE(t.start());
    Editor& editor = t.program->editor;
    t.type(editor.joystick, "x");
    t.dialogues.filesToSave = {std::nullopt};
    t.program->menus.mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.boxes.back().title, "Can't save Read Only file");
    AutoSaveFile(editor);
    EXPECT_EQ(bytesOf(joystick), "precious");
    EXPECT_EQ(editor.pair.JoystickChanged, changed::modified);
}

TEST(ProgramOnDisk, ADirectoryInPlaceOfAFileIsToldAndOpensNothing)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    disk.makeDirectory("drive_c/tm/mig.b50");
    DiskProgram t(disk.path());
    ASSERT_TRUE(t.start());
    t.dialogues.filesToOpen = {"c:\\tm\\mig.b50"};
    t.program->menus.mnuFileJoystickLoad.Click();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.program->editor.pair.JoystickFileName, "untitled.b50");
}

/// Both documents edited and saved on a disk that is full: the number of the first expectation that isn't met, or 0.
int fullDiskStory(const std::string& programFolder, const std::string& smallDisk)
{
    const std::string joystick = smallDisk + "/mig.b50";
    const std::string macro = smallDisk + "/mig.m50";
    const std::string old(8000, 'o');
    std::ofstream(joystick) << old;
    std::ofstream(macro) << old;
    fill(smallDisk + "/filler");

    DiskProgram t(programFolder, joystick);
    if (!t.start()) return 1;
    Editor& editor = t.program->editor;
    if (editor.JoystickText.Text() != old || editor.MacroText.Text() != old) return 2;
    for (Side* side : {&editor.joystick, &editor.macro}) {
        t.type(*side, "new ");
        editor.TabStrip1.Select(side->tab);
        t.dialogues.filesToSave = {std::nullopt};
        t.program->menus.mnuFileSave.Click();
        if (t.dialogues.boxes.empty()) return 3;
        if (t.dialogues.boxes.back().title != "Error generated when trying to save your file") return 4;
        if (side->Changed != changed::modified) return 5;
    }
    if (bytesOf(joystick) != old || bytesOf(macro) != old) return 6;
    if (namesIn(smallDisk).size() != 3) return 7;

    std::filesystem::remove(smallDisk + "/filler");
    t.program->menus.mnuFileSaveBoth.Click();
    return bytesOf(joystick) == "new " + old && bytesOf(macro) == "new " + old ? 0 : 8;
}

TEST(ProgramOnDisk, ADiskOf64KbFilledToTheBrimKeepsTheOldJoystickAndMacroFile)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string small = disk.makeDirectory("small");
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const int mountRefused = 77;
        ::_exit(mountSmallDisk(small) ? fullDiskStory(disk.path(), small) : mountRefused);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77)
        GTEST_SKIP() << "this machine allows no mount; the tests of saving count bytes instead";
    EXPECT_EQ(WEXITSTATUS(status), 0) << "number of the expectation in fullDiskStory that isn't met";
}

} // namespace
} // namespace tarvex
