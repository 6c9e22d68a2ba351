// The whole program on real files: drives, names in any case, and disks that fail.

#include "documents/files/auto_save.h"
#include "documents/files/file_open.h"
#include "support/disk_program.h"
#include "support/small_disk.h"
#include "support/temporary_directory.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
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
    EXPECT_EQ(editor.joystick.FilePath, "c:\\tm\\mig.b50");
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
    EXPECT_EQ(editor.joystick.Changed, changed::modified);
}

std::filesystem::perms accessTo(const std::string& path) { return std::filesystem::status(path).permissions(); }

TEST(ProgramOnDisk, CopiesOfAPrivateFileAreForItsOwnerAlone)
{
    using std::filesystem::perms;
    constexpr auto ownerOnly = perms::owner_read | perms::owner_write;
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string joystick = disk.put("drive_c/tm/mig.b50", "precious");
    const std::string macro = disk.put("drive_c/tm/mig.m50", "Fire = f\r\n");
    for (const std::string& file : {joystick, macro}) std::filesystem::permissions(file, ownerOnly);
    const std::string oldBackup = disk.put("Backup/mig.m50", "by an earlier version, for all to read");
    std::filesystem::permissions(oldBackup, perms::owner_all | perms::group_read | perms::others_read);
    DiskProgram t(disk.path(), joystick);
    ASSERT_TRUE(t.start());
    t.type(t.program->editor.joystick, "x");
    t.type(t.program->editor.macro, "x");
    t.program->menus.mnuFileSaveBoth.Click();
    EXPECT_EQ(bytesOf(joystick), "xprecious");
    for (const char* copy : {"Backup/mig.b50", "Backup/mig.m50", "Rtf/mig.b50", "Rtf/mig.m50", "drive_c/macro.txt"})
        EXPECT_EQ(accessTo(disk / copy), ownerOnly) << copy;
    EXPECT_EQ(accessTo(disk / "Rtf"), perms::owner_all);
    EXPECT_EQ(accessTo(joystick), ownerOnly);
}

TEST(ProgramOnDisk, AnOutsideVersionUnderTheSameTimeAndSizeIsAskedAboutAndKeptForItsOwnerAlone)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string joystick = disk.put("drive_c/tm/mig.b50", "BTN S1 x");
    disk.put("drive_c/tm/mig.m50", "");
    const auto time = std::filesystem::last_write_time(joystick);
    DiskProgram t(disk.path(), joystick);
    ASSERT_TRUE(t.start());
    t.dialogues.boxes.clear();             // of opening a text without macros
    std::ofstream(joystick) << "BTN S2 y"; // into the same file, as many editors write
    std::filesystem::last_write_time(joystick, time);
    t.type(t.program->editor.joystick, "Rem ");
    t.program->editor.TabStrip1.Select(1);
    t.dialogues.answers = {Answer::Yes};
    t.program->menus.mnuFileSave.Click();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_NE(t.dialogues.boxes.back().text.find("was changed by another program"), std::string::npos);
    EXPECT_EQ(bytesOf(joystick), "Rem BTN S1 x");
    EXPECT_EQ(bytesOf(disk / "Backup/mig-outside.b50"), "BTN S2 y");
    EXPECT_EQ(accessTo(disk / "Backup/mig-outside.b50"),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(ProgramOnDisk, APipeInPlaceOfTheFileIsNeitherWaitedForNorReplaced)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    const std::string joystick = disk.put("drive_c/tm/mig.b50", "BTN S1 x");
    disk.put("drive_c/tm/mig.m50", "");
    DiskProgram t(disk.path(), joystick);
    ASSERT_TRUE(t.start());
    std::filesystem::remove(joystick);
    ASSERT_EQ(::mkfifo(joystick.c_str(), 0600), 0);
    t.type(t.program->editor.joystick, "Rem ");
    AutoSaveFile(t.program->editor);
    t.program->editor.TabStrip1.Select(1);
    t.dialogues.answers = {Answer::Yes};
    t.dialogues.filesToSave = {std::nullopt};
    t.program->menus.mnuFileSave.Click();
    EXPECT_EQ(t.dialogues.boxes.back().title, "Error generated when trying to save your file");
    EXPECT_TRUE(std::filesystem::is_fifo(joystick));
    EXPECT_EQ(t.program->editor.joystick.Changed, changed::modified);
}

TEST(ProgramOnDisk, AFolderOnTheCommandLineIsNamedInTheStatusBar)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    DiskProgram t(disk.path(), disk.makeDirectory("drive_c/tm"));
    ASSERT_TRUE(t.start());
    EXPECT_EQ(t.status(), "c:\\tm is a folder, so I haven't opened it.");
    EXPECT_TRUE(t.dialogues.boxes.empty());
    EXPECT_EQ(t.program->editor.joystick.FileName, "untitled.b50");
}

TEST(ProgramOnDisk, ALoopOfLinksOnTheCommandLineIsNamedInTheStatusBar)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    disk.makeDirectory("drive_c/tm");
    std::filesystem::create_symlink("b.b50", disk / "drive_c/tm/a.b50");
    std::filesystem::create_symlink("a.b50", disk / "drive_c/tm/b.b50");
    DiskProgram t(disk.path(), disk / "drive_c/tm/a.b50");
    ASSERT_TRUE(t.start());
    EXPECT_EQ(t.status(), "I couldn't open c:\\tm\\a.b50: Too many levels of symbolic links");
    EXPECT_TRUE(t.dialogues.boxes.empty());
}

TEST(ProgramOnDisk, ANameThatIsNotUtf8OpensItsFileOrIsReportedInTheStatusBar)
{
    for (const bool exists : {true, false}) {
        const TemporaryDirectory disk;
        disk.put("Tarvex.ini", DiskProgram::settings);
        disk.makeDirectory("drive_c/tm");
        if (exists) disk.put("drive_c/tm/J\xF6rg.b50", "BTN S1 x");
        DiskProgram t(disk.path(), disk / "drive_c/tm/J\xF6rg.b50");
        ASSERT_TRUE(t.start());
        EXPECT_EQ(t.program->editor.JoystickText.Text(), exists ? "BTN S1 x" : "");
        EXPECT_EQ(t.status(), exists ? "Ready! Welcome to Tarvex!"
                                     : "I couldn't find the file I was started with: its name isn't valid UTF-8.");
    }
}

TEST(ProgramOnDisk, AMissingFileOnTheCommandLineIsDroppedWithoutAWord)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    for (const char* path : {"/drive_c/none.b50", "/none/none.b50"}) {
        DiskProgram t(disk.path(), disk.path() + path);
        ASSERT_TRUE(t.start());
        EXPECT_EQ(t.status(), "Ready! Welcome to Tarvex!") << path;
        EXPECT_TRUE(t.program->exit());
    }
}

TEST(ProgramOnDisk, ADirectoryInPlaceOfAFileIsReportedAndOpensNothing)
{
    const TemporaryDirectory disk;
    disk.put("Tarvex.ini", DiskProgram::settings);
    disk.makeDirectory("drive_c/tm/mig.b50");
    DiskProgram t(disk.path());
    ASSERT_TRUE(t.start());
    t.dialogues.filesToOpen = {"c:\\tm\\mig.b50"};
    t.program->menus.mnuFileJoystickLoad.Click();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.program->editor.joystick.FileName, "untitled.b50");
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
