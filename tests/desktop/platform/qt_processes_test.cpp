#include "desktop/platform/qt_processes.h"

#include "desktop/bind.h"
#include "held_window.h"
#include "support/disk_program.h"
#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {
namespace {

/// A loader that works until it is asked to end, and a window that waits for it.
template <typename Adapter> struct WaitingWith {
    WaitingWith()
    {
        const std::string script = disk.put("drive_c/load.exe", "#!/bin/sh\ncat <" + (disk / "end") + " >/dev/null\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        EXPECT_EQ(::mkfifo((disk / "end").c_str(), 0600), 0);
        m_end = ::open((disk / "end").c_str(), O_RDWR | O_CLOEXEC);
        process = processes.start("c:\\load.exe", windowStyle::normal, "c:\\");
    }
    ~WaitingWith() { ::close(m_end); }
    /// The loader ends as soon as nobody holds the other end of its input.
    void endLoader()
    {
        window.acts.emplace_back([this] { ::kill(-process, SIGTERM); });
    }
    bool waitWhileTheUserActs()
    {
        return window.waitWhileTheUserActs([this] { result = processes.wait(process, -1); });
    }

    TemporaryDirectory disk;
    DriveMap drives{{.winePrefix = {}, .home = {}, .programDirectory = disk.path(), .workingDirectory = disk.path()}};
    SystemCalls calls;
    SafeWriter writer{disk / "Recovery", calls};
    PosixFiles files{drives, writer};
    ScriptedDialogues dialogues;
    Adapter processes{drives, files, dialogues, drives.toDos(disk.path())};
    HeldWindow window;
    ProcessId process = 0;
    std::int32_t result = waitResult::failed;

private:
    int m_end = -1;
};

using Waiting = WaitingWith<QtProcesses>;

/// On a system that has no files that report the end of a program.
struct WithoutProcessFiles : QtProcesses {
    using QtProcesses::QtProcesses;

protected:
    int openProcess(pid_t) override { return -1; }
};
using WaitingWithoutFiles = WaitingWith<WithoutProcessFiles>;

TEST(WaitForLoader, TakesNothingFromTheUserNotEvenEsc)
{
    Waiting t;
    t.window.press(Qt::Key_A);
    t.window.press(Qt::Key_F7);
    t.window.press(Qt::Key_Escape);
    t.window.acts.emplace_back([&] { QTest::mouseClick(t.window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5)); });
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs()) << "Esc doesn't end it";
    EXPECT_EQ(t.result, waitResult::ended);
    EXPECT_EQ(t.window.keys + t.window.clicks + t.window.shortcuts, 0);
    QTest::keyClick(t.window.windowHandle(), Qt::Key_A);
    EXPECT_EQ(t.window.keys, 1) << "and takes it again afterwards";
}

template <typename WaitingForLoader> void expectDrawnMeanwhile(WaitingForLoader& t)
{
    int before = 0;
    int after = 0;
    t.window.acts.emplace_back([&] {
        before = t.window.paints;
        t.window.update();
    });
    t.window.acts.emplace_back([] {});
    t.window.acts.emplace_back([&] { after = t.window.paints; });
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs());
    EXPECT_GT(after, before);
}

TEST(WaitForLoader, TheWindowIsDrawnMeanwhile)
{
    Waiting t;
    expectDrawnMeanwhile(t);
}

TEST(WaitForLoader, AWindowIsNotClosedMeanwhileNorAfterwards)
{
    Waiting t;
    t.window.acts.emplace_back([&] { t.window.close(); });
    t.window.acts.emplace_back([] {});
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs());
    QApplication::processEvents();
    EXPECT_EQ(t.window.closes, 0);
    EXPECT_TRUE(t.window.isVisible());
}

TEST(WaitForLoader, NoTimerOfTheProgramTicks)
{
    Waiting t;
    Timer timer(0);
    int ticks = 0;
    timer.Tick = [&] { ++ticks; };
    Bindings bindings;
    bindings.timer(timer, t.window);
    timer.Enabled = true;
    for (int i = 0; i < 5; ++i) t.window.acts.emplace_back([] {});
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs());
    EXPECT_EQ(ticks, 0);
}

TEST(WaitForLoader, ATimeoutEndsTheWaitAndNotTheLoader)
{
    Waiting t;
    EXPECT_EQ(t.processes.wait(t.process, 1), waitResult::timeout);
    EXPECT_EQ(::kill(t.process, 0), 0);
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs());
}

/// Waits until a child has exited, without reaping it.
void awaitEnd(ProcessId process)
{
    siginfo_t info{};
    EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOWAIT), 0);
}

TEST(WaitForLoader, EndsWhenAnotherProgramEndsInTheSameMoment)
{
    Waiting t;
    const ProcessId other = t.processes.start("c:\\load.exe", windowStyle::normal, "c:\\");
    t.window.acts.emplace_back([&] {
        for (const ProcessId process : {other, t.process}) {
            ::kill(-process, SIGTERM);
            awaitEnd(process);
        }
        t.processes.reap(); // as the end of the other one asks for it
        EXPECT_EQ(::waitpid(other, nullptr, WNOHANG), -1) << "the other one is gone";
        siginfo_t info{};
        EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(t.process), &info, WEXITED | WNOWAIT | WNOHANG), 0)
            << "the one that is waited for isn't taken from the wait";
    });
    EXPECT_TRUE(t.waitWhileTheUserActs());
    EXPECT_EQ(t.result, waitResult::ended);
    EXPECT_EQ(t.processes.wait(t.process, 0), waitResult::failed) << "and is gone afterwards";
}

TEST(StartedProgram, ThatNobodyWaitsForIsReapedWhenItEnds)
{
    Waiting t;
    ::kill(-t.process, SIGTERM);
    EXPECT_TRUE(QTest::qWaitFor([&] { return t.processes.wait(t.process, 0) == waitResult::failed; }, 60000));
    EXPECT_EQ(::waitpid(t.process, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST(WaitForLoader, WithoutProcessFilesDrawsTheWindowAndEndsWithTheLoader)
{
    WaitingWithoutFiles t;
    expectDrawnMeanwhile(t);
    EXPECT_EQ(t.result, waitResult::ended);
}

TEST(WaitForLoader, WithoutProcessFilesKeepsToTheTimeout)
{
    WaitingWithoutFiles t;
    EXPECT_EQ(t.processes.wait(t.process, 1), waitResult::timeout);
    t.endLoader();
    EXPECT_TRUE(t.waitWhileTheUserActs());
}

TEST(StartedProgram, WithoutProcessFilesIsReapedWhenItEndsToo)
{
    WaitingWithoutFiles t;
    ::kill(-t.process, SIGTERM);
    siginfo_t info{};
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return ::waitid(P_PID, static_cast<id_t>(t.process), &info, WEXITED | WNOWAIT | WNOHANG) < 0 &&
                   errno == ECHILD;
        },
        60000));
}

} // namespace
} // namespace tarvex
