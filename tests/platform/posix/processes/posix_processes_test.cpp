#include "platform/posix/processes/posix_processes.h"

#include "platform/posix/processes/runners.h"
#include "platform/posix/processes/spawn.h"
#include "process_world.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tarvex {
namespace {

constexpr const char* show = "pwd >seen\nfor argument; do printf '<%s>' \"$argument\" >>seen; done\n";

// ---- what is started ----

TEST(StartProgram, RunsANativeOneInItsDirectoryWithItsArguments)
{
    ProcessWorld w;
    w.script("tm/load.exe", show);
    EXPECT_EQ(w.run("c:\\tm\\load.exe one \"two three\" Q", "c:\\tm"), 0);
    EXPECT_EQ(w.contents("tm/seen"), w.driveC + "/tm\n<one><two three><Q>");
}

TEST(StartProgram, FindsItsNameInAnyCaseAndWithoutItsExtension)
{
    ProcessWorld w;
    w.script("TM/Load.exe", show);
    EXPECT_EQ(w.run("C:\\tm\\LOAD.EXE a"), 0);
    EXPECT_EQ(w.run("c:\\tm\\load b"), 0);
    EXPECT_EQ(w.contents("seen"), w.driveC + "\n<b>");
}

TEST(StartProgram, ArgumentsThatAreDosPathsBecomeNative)
{
    ProcessWorld w;
    w.script("load.exe", show);
    w.disk.put("drive_c/Progs/Mig.b50", "");
    EXPECT_EQ(w.run("c:\\load.exe c:\\progs\\MIG.B50 c:\\progs\\new.b50 c: q:\\x /D:c:\\x http://c/x"), 0);
    EXPECT_EQ(w.contents("seen"), w.driveC + "\n<" + w.driveC + "/Progs/Mig.b50><" + w.driveC +
                                      "/Progs/new.b50><c:><q:\\x></D:c:\\x><http://c/x>");
}

TEST(StartProgram, ShellMetacharactersAreText)
{
    ProcessWorld w;
    w.script("load.exe", show);
    EXPECT_EQ(w.run("c:\\load.exe ;touch $(touch\tbad) `touch` %PATH% & | > bad 'x -rf a\nb * ~ $HOME"), 0);
    EXPECT_EQ(w.contents("seen"), w.driveC + "\n<;touch><$(touch><bad)><`touch`><%PATH%><&><|><>><bad><'x><-rf><a\nb>"
                                             "<*><~><$HOME>");
    EXPECT_EQ(w.contents("bad"), "(missing)");
}

TEST(StartProgram, ShellMetacharactersInAProgramPathAreLiteral)
{
    ProcessWorld w;
    const std::string odd = "a;b$(c)'d%e&f`-g";
    w.script(odd + "/-load.exe", show);
    w.disk.put("drive_c/" + odd + "/x;y.b50", "");
    EXPECT_EQ(w.run("c:\\" + odd + "\\-load.exe c:\\" + odd + "\\x;y.b50", "c:\\" + odd), 0);
    EXPECT_EQ(w.contents(odd + "/seen"), w.driveC + "/" + odd + "\n<" + w.driveC + "/" + odd + "/x;y.b50>");
}

TEST(StartProgram, APathWithALineEndIsOnePath)
{
    ProcessWorld w;
    w.script("two\nlines/load.exe", show);
    const std::string folder = w.drives.toDos(w.driveC + "/two\nlines");
    EXPECT_EQ(w.run(folder + "\\load.exe " + folder + "\\x", folder), 0);
    EXPECT_EQ(w.contents("two\nlines/seen"), w.driveC + "/two\nlines\n<" + w.driveC + "/two\nlines/x>");
}

TEST(StartProgram, WithABlankInItsPathIsTheTextBeforeTheBlank)
{
    ProcessWorld w;
    w.script("my tm/load.exe", "touch wrong\n");
    w.script("my.exe", show);
    EXPECT_EQ(w.run("c:\\my.exe tm\\load.exe"), 0);
    EXPECT_EQ(w.contents("seen"), w.driveC + "\n<tm\\load.exe>");
    EXPECT_EQ(w.run("c:\\gone tm\\load.exe"), 53);
}

/// A command as the download builds it.
ProgramCommand withFile(const std::string& file, const std::string& options = {})
{
    ProgramCommand command("c:\\load.exe ", file);
    command.options = options;
    return command;
}

TEST(StartProgram, ANativeOneGetsTheFileAsOneArgumentWhateverItsPathHolds)
{
    for (const std::string name : {"my file.b50", "f --evil -x/k.b50", "a\"b'c.b50", "two  blanks\t.b50", "\"q\".b50",
                                   "ends\\\"", "-x.b50", "a\nb.b50", "*.b50"}) {
        ProcessWorld w;
        w.script("load.exe", show);
        w.disk.put("drive_c/" + name, "");
        EXPECT_EQ(w.run(withFile(w.drives.toDos(w.driveC + "/" + name), " Q /X \"y z\"")), 0) << name;
        EXPECT_EQ(w.contents("seen"), w.driveC + "\n<" + w.driveC + "/" + name + "><Q></X><y z>") << name;
    }
}

TEST(StartProgram, AFileNameWithoutAFolderIsNoOptionOfANativeOne)
{
    ProcessWorld w;
    w.script("load.exe", show);
    EXPECT_EQ(w.run(withFile("--evil x.b50")), 0);
    EXPECT_EQ(w.contents("seen"), w.driveC + "\n<./--evil x.b50>");
}

// ---- what isn't ----

TEST(StartProgram, NothingNamedStartsNothing)
{
    ProcessWorld w;
    w.script("load.exe", "touch wrong\n");
    EXPECT_EQ(w.run(""), 53);
    EXPECT_EQ(w.run(" c:\\load.exe"), 53) << "an empty program, and what would be its first argument";
    EXPECT_EQ(w.contents("wrong"), "(missing)");
}

TEST(StartProgram, NeverOneFromTheCurrentFolderOrFromThePath)
{
    ProcessWorld w;
    for (const std::string name : {"ls", "load.exe"}) w.script(name, "touch wrong\n");
    for (const std::string line :
         {"ls", "load.exe", "load", ".\\load.exe", "\\load.exe", "c:load.exe", "/bin/true", "c:"})
        EXPECT_EQ(w.run(line), 53) << line;
    EXPECT_EQ(w.contents("wrong"), "(missing)");
}

TEST(StartProgram, WhatIsMissingIsNotFound)
{
    ProcessWorld w;
    EXPECT_EQ(w.run("c:\\gone.exe"), 53);
    EXPECT_EQ(w.lastError, "File not found");
    EXPECT_EQ(w.run("c:\\gone\\load.exe"), 76);
    EXPECT_EQ(w.lastError, "Path not found");
    EXPECT_EQ(w.run("q:\\load.exe"), 76);
}

TEST(StartProgram, ADirectoryATextAndAFileThatMayNotRunAreErrors)
{
    ProcessWorld w;
    w.disk.makeDirectory("drive_c/dir.exe");
    EXPECT_EQ(w.run("c:\\dir.exe"), 75);
    w.disk.put("drive_c/text.exe", "hello");
    EXPECT_EQ(w.run("c:\\text.exe"), 5);
    EXPECT_EQ(w.lastError, "Invalid procedure call or argument");
    w.disk.put("drive_c/script.exe", "#!/bin/sh\n");
    EXPECT_EQ(w.run("c:\\script.exe"), 70);
    EXPECT_EQ(w.lastError, "Permission denied");
    w.script("nul.exe", "");
    EXPECT_EQ(w.run(std::string("c:\\nul.exe\0x", 12)), 64);
    EXPECT_EQ(w.lastError, "Bad file name");
}

TEST(StartProgram, ADirectoryThatIsGoneIsNotFound)
{
    ProcessWorld w;
    w.script("load.exe", "touch wrong\n");
    EXPECT_EQ(w.run("c:\\load.exe", "c:\\gone"), 76);
    EXPECT_EQ(w.lastError, "Path not found");
}

// ---- how it runs ----

TEST(StartProgram, GivesItNoneOfOurFilesAndAnEmptyInput)
{
    ProcessWorld w;
    const int open = ::open("/dev/null", O_RDONLY); // without close-on-exec
    ASSERT_GE(open, 3);
    w.script("load.exe", "cat >input\n[ -e /proc/self/fd/" + std::to_string(open) + " ] && echo open >files\n");
    EXPECT_EQ(w.run("c:\\load.exe"), 0);
    ::close(open);
    EXPECT_EQ(w.contents("input"), "");
    EXPECT_EQ(w.contents("files"), "(missing)");
}

/// Runs in a process of its own.
int openedWithoutStandardFiles(const char* path)
{
    for (int file = STDIN_FILENO; file <= STDERR_FILENO; ++file) ::close(file);
    fillStandardFiles();
    return ::open(path, O_RDONLY);
}

TEST(StartProgram, ClosedStandardFilesDoNotBecomeOthersOfOurs)
{
    const pid_t child = ::fork();
    if (child == 0) ::_exit(openedWithoutStandardFiles("/dev/null") > STDERR_FILENO ? 0 : 1);
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST(StartProgram, GivesItASessionOfItsOwn)
{
    ProcessWorld w;
    w.script("load.exe", "echo $$ >own\ncut -d' ' -f6 /proc/$$/stat >session\n");
    EXPECT_EQ(w.run("c:\\load.exe"), 0);
    EXPECT_EQ(w.contents("session"), w.contents("own"));
}

TEST(WaitForProgram, EndsWithOneThatCrashes)
{
    ProcessWorld w;
    w.script("load.exe", "kill -SEGV $$\n");
    EXPECT_EQ(w.run("c:\\load.exe"), 0);
}

TEST(WaitForProgram, OneThatHangsCanBeEndedFromOutside)
{
    ProcessWorld w;
    w.script("load.exe", "exec sleep 1000\n");
    const ProcessId process = w.processes.start("c:\\load.exe", 1, "c:\\");
    EXPECT_EQ(w.processes.wait(process, 0), waitResult::timeout);
    EXPECT_EQ(::kill(process, SIGKILL), 0);
    EXPECT_EQ(w.processes.wait(process, -1), waitResult::ended);
    EXPECT_EQ(w.processes.wait(process, -1), waitResult::failed) << "nobody is there any more";
}

TEST(WaitForProgram, LeavesNoDeadProcessBehind)
{
    ProcessWorld w;
    w.script("load.exe", "");
    const ProcessId first = w.processes.start("c:\\load.exe", 1, "c:\\");
    const ProcessId second = w.processes.start("c:\\load.exe", 1, "c:\\");
    EXPECT_EQ(w.processes.wait(second, -1), waitResult::ended);
    const int file = openProcess(first);
    if (file >= 0) {
        pollfd ended{file, POLLIN, 0};
        EXPECT_EQ(::poll(&ended, 1, -1), 1);
        ::close(file);
    }
    w.processes.reap();
    EXPECT_EQ(::waitpid(first, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(::waitpid(second, nullptr, WNOHANG), -1);
}

void waitForItsEnd(pid_t process)
{
    siginfo_t end{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(process), &end, WEXITED | WNOWAIT), 0);
}

TEST(WaitForProgram, WhatHasEndedIsReapedWithItsStarter)
{
    ProcessId process = 0;
    {
        ProcessWorld w;
        w.script("load.exe", "");
        process = w.processes.start("c:\\load.exe", 1, "c:\\");
        waitForItsEnd(process);
    }
    EXPECT_EQ(::waitpid(process, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

/// On a system that has no files that report the end of a program.
struct WithoutProcessFiles : PosixProcesses {
    using PosixProcesses::PosixProcesses;

protected:
    int openProcess(pid_t) override { return -1; }
};

struct Plain : ProcessWorld {
    WithoutProcessFiles plain{drives, files, dialogues, drives.toDos(disk.path())};
};

TEST(WaitForProgram, WithoutProcessFilesKeepsToTheTimeout)
{
    Plain w;
    w.script("load.exe", "exec sleep 1000\n");
    const ProcessId process = w.plain.start("c:\\load.exe", 1, "c:\\");
    EXPECT_EQ(w.plain.wait(process, 0), waitResult::timeout);
    EXPECT_EQ(w.plain.wait(process, 30), waitResult::timeout);
    EXPECT_EQ(::kill(process, SIGKILL), 0);
    EXPECT_EQ(w.plain.wait(process, -1), waitResult::ended);
    EXPECT_EQ(::waitpid(process, nullptr, WNOHANG), -1);
}

TEST(WaitForProgram, WithoutProcessFilesAnEndLongBeforeTheTimeoutIsSeen)
{
    Plain w;
    w.script("load.exe", "exec sleep 0.2\n");
    const ProcessId process = w.plain.start("c:\\load.exe", 1, "c:\\");
    constexpr int day = 24 * 60 * 60 * 1000; // longer than any run of the tests may take
    EXPECT_EQ(w.plain.wait(process, day), waitResult::ended);
}

/// Notes whether a program is watched or waited for.
struct Noting : PosixProcesses {
    using PosixProcesses::PosixProcesses;

    std::string notes;
    std::function<void()> whileWaiting;

protected:
    void watch(const Running&) override { notes += "watch "; }
    void unwatch(const Running&) override { notes += "unwatch "; }
    bool waitForEnd(const Running& program, int timeout) override
    {
        notes += "wait ";
        if (const auto work = std::exchange(whileWaiting, nullptr)) work();
        return PosixProcesses::waitForEnd(program, timeout);
    }
};

TEST(WaitForProgram, ItIsWatchedExceptWhileSomebodyWaitsForIt)
{
    ProcessWorld w;
    Noting processes(w.drives, w.files, w.dialogues, w.drives.toDos(w.disk.path()));
    w.script("load.exe", "exec sleep 1000\n");
    const ProcessId process = processes.start("c:\\load.exe", 1, "c:\\");
    processes.whileWaiting = [&] { processes.wait(process, 0); };
    EXPECT_EQ(processes.wait(process, 0), waitResult::timeout);
    EXPECT_EQ(processes.notes, "watch unwatch wait wait watch ");
    EXPECT_EQ(::kill(process, SIGKILL), 0);
    processes.notes.clear();
    EXPECT_EQ(processes.wait(process, -1), waitResult::ended);
    EXPECT_TRUE(processes.notes.starts_with("unwatch wait ")) << processes.notes;
    EXPECT_EQ(processes.notes.find(" watch"), std::string::npos) << processes.notes;
}

// ---- what runs it ----

TEST(FindCommand, LooksOnlyIntoFullPaths)
{
    const TemporaryDirectory disk;
    const std::string path = disk.put("bin/wine", "#!/bin/sh\n");
    EXPECT_EQ(findCommand(disk / "bin", "wine"), "") << "it can't be run";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    EXPECT_EQ(findCommand("/gone:" + (disk / "bin"), "wine"), path);
    EXPECT_EQ(findCommand("bin:.::", "wine"), "");
}

struct Settable : ProcessWorld {
    /// A runner that notes how it was called.
    explicit Settable(const std::string& key)
    {
        script("runner", "cd /\nfor a; do printf '<%s>' \"$a\" >>" + driveC + "/seen; done\n");
        disk.put("Platform.ini", "[Programs]\r\n" + key + "=" + driveC + "/runner\r\n");
    }
};

TEST(Runner, OfWindowsProgramsIsTheOneOfPlatformIni)
{
    Settable w("Wine");
    std::string program(0x80, '\0');
    program.replace(0, 2, "MZ");
    program[0x3C] = 0x40;
    program.replace(0x40, 2, "PE");
    w.disk.put("drive_c/winld.exe", program);
    EXPECT_EQ(w.run("c:\\winld.exe c:\\a;b.b50 \"/X y\" Q"), 0);
    EXPECT_EQ(
        w.contents("seen"), "<" + w.driveC + "/winld.exe><z:" +
                                [&] {
                                    std::string path = w.driveC + "/a;b.b50";
                                    for (char& c : path)
                                        if (c == '/') c = '\\';
                                    return path;
                                }() +
                                "></X y><Q>")
        << "without a Wine prefix its drives aren't ours";
}

TEST(Runner, OfWindowsProgramsGetsTheLineWithTheFileAsItStands)
{
    Settable w("Wine");
    std::string program(0x80, '\0');
    program.replace(0, 2, "MZ");
    program[0x3C] = 0x40;
    program.replace(0x40, 2, "PE");
    w.disk.put("drive_c/load.exe", program);
    EXPECT_EQ(w.run(withFile("q:\\my \"file.b50", " Q")), 0);
    EXPECT_EQ(w.contents("seen"), "<" + w.driveC + "/load.exe><q:\\my><file.b50 Q>");
}

/// A Wine prefix whose c: is drive_c, and a runner that notes what Wine would be given.
struct Prefix : Settable {
    explicit Prefix(bool withRoot) : Settable("Wine")
    {
        disk.makeDirectory("prefix/dosdevices");
        std::filesystem::create_directory_symlink(driveC, disk / "prefix/dosdevices/c:");
        if (withRoot) std::filesystem::create_directory_symlink("/", disk / "prefix/dosdevices/z:");
        std::string program(0x80, '\0');
        program.replace(0, 2, "MZ");
        program[0x3C] = 0x40;
        program.replace(0x40, 2, "PE");
        disk.put("drive_c/winld.exe", program);
    }
    /// The argument as it reaches the program; `%` in it stands for the folder of drive_c.
    std::string argumentSeen(const std::string& argument)
    {
        const DriveMap wines(
            {.winePrefix = disk / "prefix", .home = {}, .programDirectory = disk.path(), .workingDirectory = "/"});
        PosixFiles wineFiles(wines, writer);
        PosixProcesses wine(wines, wineFiles, dialogues, wines.toDos(disk.path()));
        std::filesystem::remove(driveC + "/seen");
        EXPECT_EQ(wine.wait(wine.start("c:\\winld.exe " + argument, 1, "c:\\"), -1), waitResult::ended);
        std::string seen = contents("seen");
        std::string folder = driveC;
        std::replace(folder.begin(), folder.end(), '/', '\\');
        const std::size_t at = seen.find(folder);
        if (at != std::string::npos) seen.replace(at, folder.size(), "%");
        return seen.substr(seen.find("><") + 1);
    }
};

TEST(Runner, WineGetsPathsOnItsOwnDrivesUnchanged)
{
    Prefix w(true);
    w.disk.put("drive_c/TM/Mig.b50", "");
    for (const std::string path : {"c:\\tm\\mig.b50", "C:/TM/new.b50", "c:\\tm\\", "z:\\etc", "c:", "Q", "q:\\x"})
        EXPECT_EQ(w.argumentSeen(path), "<" + path + ">");
}

TEST(Runner, WineGetsTheNativePathOfANameThatOnlyTarvexKnows)
{
    for (const bool withRoot : {true, false}) {
        Prefix w(withRoot);
        w.disk.put("drive_c/MIG.b50", "upper");
        w.disk.put("drive_c/mig.b50", "lower");
        const DriveMap wines(
            {.winePrefix = w.disk / "prefix", .home = {}, .programDirectory = w.disk.path(), .workingDirectory = "/"});
        const std::string hidden = wines.toDos(w.driveC + "/mig.b50") == "c:\\mig.b50"
                                       ? wines.toDos(w.driveC + "/MIG.b50")
                                       : wines.toDos(w.driveC + "/mig.b50");
        ASSERT_NE(hidden.find('~'), std::string::npos) << hidden;
        const std::string seen = w.argumentSeen(hidden);
        EXPECT_EQ(seen.substr(0, seen.find('%')), withRoot ? "<z:" : "<\\\\?\\unix");
        EXPECT_EQ(seen.find('~'), std::string::npos) << seen;
    }
}

TEST(Runner, WineWithoutADriveForEverythingGetsTheNativePath)
{
    Prefix w(false);
    EXPECT_EQ(w.argumentSeen("z:\\etc\\x"), "<\\\\?\\unix\\etc\\x>") << "that letter is Tarvex's own";
}

TEST(Runner, DosboxParsesOnlyNamesOfOurOwn)
{
    Settable w("DOSBox");
    w.disk.put("drive_c/a;$(b)\n\"/x.com", "");
    const std::string folder = w.drives.toDos(w.driveC + "/a;$(b)\n\"");
    EXPECT_EQ(w.run(folder + "\\x.com ;mount \"c\"\nexit %PATH%", folder), 0);
    const std::string seen = w.contents("seen");
    EXPECT_EQ(seen.find_first_of(";\n\"%("), std::string::npos) << seen;
    EXPECT_NE(seen.find("<-userconf><-conf></"), std::string::npos) << seen;
    EXPECT_NE(seen.find("<-noautoexec>"), std::string::npos) << seen;
}

TEST(Runner, AMissingOneIsReportedWithTheProgramThatNeedsIt)
{
    ProcessWorld w;
    w.disk.put("drive_c/b50load.com", "x");
    w.disk.put("Platform.ini", "[Programs]\r\nDOSBox=/gone/dosbox\r\n");
    EXPECT_EQ(w.run("c:\\b50load.com"), 53);
    ASSERT_EQ(w.dialogues.boxes.size(), 1U);
    EXPECT_EQ(w.dialogues.boxes[0].title, "Where is DOSBox?");
    const std::string& text = w.dialogues.boxes[0].text;
    EXPECT_TRUE(
        text.starts_with("c:\\b50load.com is a DOS program, and I need DOSBox to run it, which I couldn't find. "
                         "You've told me that it is here: /gone/dosbox\n\nInstall it (the package is called "
                         "dosbox), or choose it on the Extras page of the preferences, which keep it in "))
        << text;
    EXPECT_TRUE(text.ends_with("\\Platform.ini.")) << text;
    w.disk.put("drive_c/b50load.exe", std::string("MZ") + std::string(58, '\0') + "\x40" + std::string(3, '\0') + "PE");
    w.disk.put("Platform.ini", "[Programs]\r\nWine=/gone/wine\r\n");
    EXPECT_EQ(w.run("c:\\b50load.exe"), 53);
    EXPECT_EQ(w.dialogues.boxes.back().title, "Where is Wine?");
    EXPECT_TRUE(
        w.dialogues.boxes.back().text.starts_with("c:\\b50load.exe is a Windows program, and I need Wine to run "
                                                  "it, which I couldn't find."))
        << w.dialogues.boxes.back().text;
}

TEST(Runner, WithARelativePathIsNotRun)
{
    ProcessWorld w;
    w.script("dosbox", "touch wrong\n");
    w.disk.put("drive_c/b50load.com", "x");
    w.disk.put("Platform.ini", "[Programs]\r\nDOSBox=dosbox\r\n");
    EXPECT_EQ(w.run("c:\\b50load.com"), 53);
    EXPECT_EQ(w.contents("wrong"), "(missing)");
}

} // namespace
} // namespace tarvex
