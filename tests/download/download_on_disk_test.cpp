// A whole download with real loader processes: the stand-in, and others that misbehave.

#include "dos_loader.h"
#include "platform/posix/processes/runners.h"
#include "support/disk_program.h"
#include "support/temporary_directory.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tarvex {
namespace {

namespace fs = std::filesystem;

/// The program with a pair open; its loader lies in c:\tm.
struct DiskDownload {
    explicit DiskDownload(const std::string& loaderPath = "c:\\tm\\winld.exe",
                          const std::string& name = "tm/progs/mig.b50")
    {
        disk.put("Tarvex.ini", DiskProgram::settings);
        joystick = disk.put("drive_c/" + name, "BTN S1 a\r\nBTN S2 b\r\nBTN S3 c\r\n");
        disk.put("drive_c/" + name.substr(0, name.size() - 3) + "m50", "");
        disk.makeDirectory("drive_c/tm");
        t = std::make_unique<DiskProgram>(disk.path(), joystick);
        EXPECT_TRUE(t->start());
        t->program->shared.settings.B50LoadPath = loaderPath;
        t->program->editor.status("old text");
        t->dialogues.boxes.clear(); // what the opening reported
    }
    void standIn(const std::string& name) const
    {
        fs::copy_file(TARVEX_STANDIN_LOADER, disk / ("drive_c/tm/" + name), fs::copy_options::overwrite_existing);
    }
    void script(const std::string& lines, const std::string& name = "tm/winld.exe") const
    {
        fs::permissions(disk.put("drive_c/" + name, "#!/bin/sh\n" + lines), fs::perms::owner_all);
    }
    std::string download()
    {
        t->program->menus.mnuSendToJoystick.Click();
        return t->status();
    }
    Editor& editor() { return t->program->editor; }
    bool exists(const std::string& name) const { return fs::exists(disk / ("drive_c/" + name)); }

    TemporaryDirectory disk;
    std::string joystick;
    std::unique_ptr<DiskProgram> t;
};

TEST(DownloadOnDisk, FromAnErrorToItsLineToTheCureToSuccess)
{
    DiskDownload r;
    r.standIn("winld.exe");
    r.editor().JoystickText.userEdit(10, 0, "Rem @error Unknown key\r\n");
    EXPECT_EQ(r.download(), "Compiler reported an error at line 2: Unknown key");
    EXPECT_EQ(r.editor().JoystickText.SelText(), "Rem @error Unknown key");
    EXPECT_NE(bytesOf(r.joystick).find("@error"), std::string::npos) << "it was saved on the way";

    r.editor().JoystickText.userEdit(10, 24, "");
    EXPECT_EQ(r.download(), "Compiled and downloaded successfully! (File size: 30 bytes)");
    EXPECT_TRUE(r.t->dialogues.boxes.empty());
}

TEST(DownloadOnDisk, TheStandInIsGivenTheOptionStringOfWinLoad)
{
    DiskDownload r;
    r.standIn("winld.exe");
    r.t->program->shared.settings.WinLoadUse = 1;
    r.t->program->shared.settings.WinLoadString = " /TQS /B6 ";
    r.download();
    EXPECT_EQ(bytesOf(r.disk / "drive_c/tm/winld.dat"), "Stand-in loader /TQS /B6\r\nOK\r\n30\r\n");
}

TEST(DownloadOnDisk, TheOtherLoadersReportNothing)
{
    DiskDownload r("c:\\tm\\b50load.exe");
    r.standIn("b50load.exe");
    r.t->program->menus.mnuAppsQuiet.Enabled = true;
    r.t->program->menus.mnuAppsQuiet.Checked = true;
    EXPECT_EQ(r.download(), "old text");
    EXPECT_FALSE(r.exists("tm/b50load.dat"));
}

TEST(DownloadOnDisk, ShellMetacharactersInAPathReachTheLoader)
{
    DiskDownload r("c:\\tm\\winld.exe", "a;$(b)'%c&`-d/x;y&z.b50");
    r.standIn("winld.exe");
    EXPECT_EQ(r.download(), "Compiled and downloaded successfully! (File size: 30 bytes)");
}

TEST(DownloadOnDisk, APathWithBlanksQuotesAndDashesReachesTheLoaderInOnePiece)
{
    for (const std::string name : {"f --evil -x/k.b50", "a\"b'c.b50"}) {
        DiskDownload r("c:\\tm\\b50load.exe", name);
        r.script("printf '<%s>' \"$@\" >seen\n", "tm/b50load.exe");
        r.t->program->menus.mnuAppsQuiet.Enabled = true;
        r.t->program->menus.mnuAppsQuiet.Checked = true;
        r.download();
        EXPECT_EQ(bytesOf(r.disk / "drive_c/tm/seen"), "<" + r.joystick + "><Q>");
    }
}

TEST(DownloadOnDisk, LoaderPathsThatAreNoneShowNothing)
{
    for (const std::string path : {"", "c:\\tm\\gone\\winld.exe", "c:\\tm", "winld.exe", "q:\\winld.exe"}) {
        DiskDownload r(path);
        r.script("touch wrong\n");
        EXPECT_EQ(r.download(), "old text") << path;
        EXPECT_TRUE(r.t->dialogues.boxes.empty()) << path;
        EXPECT_FALSE(r.exists("tm/wrong") || r.exists("wrong")) << path;
        EXPECT_NE(r.t->program->mum.form.State, WindowState::Minimised) << path;
    }
}

TEST(DownloadOnDisk, ALoaderThatMayNotRunShowsNothing)
{
    DiskDownload r;
    r.disk.put("drive_c/tm/winld.exe", "#!/bin/sh\ntouch wrong\n");
    EXPECT_EQ(r.download(), "old text");
    EXPECT_FALSE(r.exists("tm/wrong"));
}

TEST(DownloadOnDisk, ADosLoaderReportsThroughDosBox)
{
    if (findCommand(std::getenv("PATH"), "dosbox").empty()) GTEST_SKIP() << "dosbox isn't installed";
    DiskDownload r("c:\\tm\\winld.com");
    for (const char* driver : {"SDL_VIDEODRIVER", "SDL_AUDIODRIVER"}) ::setenv(driver, "dummy", 1);
    ::setenv("HOME", r.disk.path().c_str(), 1); // where DOSBox keeps its settings
    r.disk.put("drive_c/tm/winld.dat", "a\r\nb\r\n1\r\n");
    r.disk.put("drive_c/tm/winld.com", dosLoader("WinLoad\r\nERROR\r\n2\r\nUnknown key b\r\n"));
    EXPECT_EQ(r.download(), "Compiler reported an error at line 2: Unknown key b");
    EXPECT_EQ(r.editor().JoystickText.SelText(), "BTN S2 b");
    EXPECT_FALSE(r.exists("tm/winld.dat")) << "the old one went before";
    EXPECT_TRUE(r.exists("tm/WINLD.DAT")) << "and DOS writes in capitals";

    r.disk.put("drive_c/tm/winld.com", dosLoader("WinLoad\r\nOK\r\n30\r\n"));
    EXPECT_EQ(r.download(), "Compiled and downloaded successfully! (File size: 30 bytes)");
    EXPECT_TRUE(r.t->dialogues.boxes.empty());
}

TEST(DownloadOnDisk, AMissingDosBoxIsReportedOnceAndTheFrameComesBack)
{
    DiskDownload r("c:\\tm\\b50load.com");
    r.disk.put("drive_c/tm/b50load.com", "x");
    r.disk.put("Platform.ini", "[Programs]\r\nDOSBox=/gone/dosbox\r\n");
    EXPECT_EQ(r.download(), "old text");
    ASSERT_EQ(r.t->dialogues.boxes.size(), 1U);
    EXPECT_EQ(r.t->dialogues.boxes[0].title, "Where is DOSBox?");
    EXPECT_NE(r.t->program->mum.form.State, WindowState::Minimised);
}

/// Notes its command line in drive c:, in place of Wine.
void putWine(const DiskDownload& r)
{
    r.script("for a; do printf '<%s>' \"$a\" >>" + (r.disk / "drive_c/seen") + "; done\n", "wine");
    r.disk.put("Platform.ini", "[Programs]\r\nWine=" + (r.disk / "drive_c/wine") + "\r\n");
}

std::string windowsProgram()
{
    std::string program(0x80, '\0');
    program.replace(0, 2, "MZ");
    program[0x3C] = 0x40;
    program.replace(0x40, 2, "PE");
    return program;
}

/// Waits until a program that nobody waits for has ended.
void awaitPrograms(DiskDownload& r)
{
    siginfo_t info{};
    EXPECT_EQ(::waitid(P_ALL, 0, &info, WEXITED | WNOWAIT), 0);
    r.t->processes.reap();
}

TEST(ProPanelOnDisk, TheAppletIsStartedInTheControlPanelOfWine)
{
    DiskDownload r;
    putWine(r);
    r.disk.put("drive_c/windows/system32/control.exe", windowsProgram());
    r.disk.put("drive_c/windows/system32/joy.cpl", windowsProgram());
    r.t->program->menus.mnuAppsProPanel.Click();
    EXPECT_TRUE(r.t->dialogues.boxes.empty());
    awaitPrograms(r);
    std::string applet = r.disk / "drive_c/windows/system32/joy.cpl";
    std::replace(applet.begin(), applet.end(), '/', '\\');
    EXPECT_EQ(bytesOf(r.disk / "drive_c/seen"),
              "<" + (r.disk / "drive_c/windows/system32/control.exe") + "><z:" + applet + ">");
}

TEST(ToolsOnDisk, AControlCentreToolAndAUserProgramRunInTheirFolders)
{
    DiskDownload r;
    r.script("pwd >\"$0.seen\"\n", "tm/f22setup.exe");
    r.t->program->shared.settings.CandCCPath = "c:\\tm\\tm.bat";
    r.t->program->menus.mnuF22Setup.Click();
    awaitPrograms(r);
    EXPECT_EQ(bytesOf(r.disk / "drive_c/tm/f22setup.exe.seen"), (r.disk / "drive_c/tm") + "\n");

    r.script("echo \"$PWD $*\" >\"$0.seen\"\n", "tools/own.exe");
    r.t->program->shared.settings.CustomAppPath = {"c:\\tools\\own.exe -x y", "", "", ""};
    r.t->program->menus.mnuCustomApp[0].Click();
    awaitPrograms(r);
    EXPECT_EQ(bytesOf(r.disk / "drive_c/tools/own.exe.seen"), (r.disk / "drive_c") + " -x y\n");
    EXPECT_TRUE(r.t->dialogues.boxes.empty());
}

TEST(LaunchGameOnDisk, AMissingDosBoxIsReportedOnceAndTarvexStaysOpen)
{
    DiskDownload r;
    r.disk.put("drive_c/f22/f22.com", "x");
    r.disk.put("Platform.ini", "[Programs]\r\nDOSBox=/gone/dosbox\r\n");
    r.t->program->lists.games.LaunchGame(
        {.name = "F22", .command = "c:\\f22\\f22.com", .workingDirectory = "c:\\f22", .joystickFile = ""});
    ASSERT_EQ(r.t->dialogues.boxes.size(), 1U);
    EXPECT_EQ(r.t->dialogues.boxes[0].title, "Where is DOSBox?");
    EXPECT_TRUE(r.t->program->mum.form.Visible);
}

TEST(DownloadOnDisk, ALoaderPathWithABlankStartsTheTextBeforeTheBlank)
{
    DiskDownload r("c:\\my tm\\winld.exe");
    r.script("touch /dev/null; : >seen\n", "my");
    r.script("touch wrong\n", "my tm/winld.exe");
    EXPECT_EQ(r.download(), "old text");
    EXPECT_TRUE(r.exists("my tm/seen")) << "in the loader's folder";
    EXPECT_FALSE(r.exists("my tm/wrong"));
}

TEST(DownloadOnDisk, ALoaderThatCrashesOrWritesNoResultLeavesTheStatus)
{
    for (const std::string lines : {"kill -SEGV $$\n", "exit 3\n", ""}) {
        DiskDownload r;
        r.script(lines);
        r.disk.put("drive_c/tm/winld.dat", "a\r\nb\r\n1\r\n");
        EXPECT_EQ(r.download(), "old text") << lines;
        EXPECT_NE(r.t->program->mum.form.State, WindowState::Minimised);
    }
}

TEST(DownloadOnDisk, HalfAResultIsTakenAsFarAsItGoes)
{
    DiskDownload r;
    r.script("printf 'WinLoad\\r\\nERROR\\r\\n2' >winld.dat\n");
    EXPECT_EQ(r.download(), "Compiler reported an error at line 2: ");
    EXPECT_EQ(r.editor().JoystickText.SelText(), "BTN S2 b");
}

TEST(DownloadOnDisk, AResultWithOtherLineEndsIsRead)
{
    DiskDownload r;
    r.script("printf 'WinLoad\\nfine\\n77\\n' >winld.dat\n");
    EXPECT_EQ(r.download(), "Compiled and downloaded successfully! (File size: 77 bytes)");
    r.script("printf 'WinLoad\\rERROR\\r3\\rOops' >winld.dat\n");
    EXPECT_EQ(r.download(), "Compiler reported an error at line 3: Oops");
}

TEST(DownloadOnDisk, AResultOfAHundredMegabytesIsReadUpToTheFirst)
{
    for (const bool within : {true, false}) {
        DiskDownload r;
        r.script("printf 'WinLoad\\r\\nfine\\r\\n2\\r\\nlong\\r\\n' >winld.dat\n"
                 "truncate -s " +
                 std::to_string((1 << 20) - (within ? 5 : 4)) +
                 " winld.dat\n"
                 "printf 'ERROR' >>winld.dat\n"
                 "truncate -s 100000000 winld.dat\n");
        EXPECT_EQ(r.download(), within ? "Compiler reported an error at line 2: long"
                                       : "Compiled and downloaded successfully! (File size: 2 bytes)");
    }
}

TEST(DownloadOnDisk, AResultThatIsNoFileIsNone)
{
    for (const std::string lines : {"mkdir winld.dat\n", "mkfifo winld.dat\n", "ln -s /dev/zero winld.dat\n"}) {
        DiskDownload r;
        r.script(lines);
        EXPECT_EQ(r.download(), "old text") << lines;
    }
}

} // namespace
} // namespace tarvex
