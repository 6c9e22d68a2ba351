#include "download/shell_and_wait.h"

#include "support/test_program.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

struct World {
    World() { files.addDirectory("c:\\tm"); }
    MemoryFiles files;
    FakeProcesses processes;
    CurrentDirectory current{files, "c:\\tm"};
};

TEST(ShellAndWait, AsksForANormalWindowWhateverStyleWasGiven)
{
    for (const std::optional<int> style : {std::optional<int>(), std::optional(0), std::optional(3), std::optional(6),
                                           std::optional(7), std::optional(-1)}) {
        World w;
        EXPECT_EQ(ShellAndWait(w.processes, w.current, "c:\\tm\\load.exe", style), 0);
        ASSERT_EQ(w.processes.starts.size(), 1U);
        EXPECT_EQ(w.processes.starts[0].style, 1);
    }
}

TEST(ShellAndWait, WaitsForEverWithoutATimeoutAndReturnsTheWaitsResult)
{
    World w;
    w.processes.result = waitResult::failed;
    EXPECT_EQ(ShellAndWait(w.processes, w.current, "c:\\tm\\load.exe x y", 6), -1);
    EXPECT_TRUE(w.processes.starts.at(0).waitedFor) << "the double checks the timeout of -1";
    EXPECT_EQ(w.processes.starts[0].commandLine, "c:\\tm\\load.exe x y");
    EXPECT_EQ(w.processes.starts[0].directory, "c:\\tm");
}

TEST(ShellAndWait, AProgramThatDoesNotStartGivesTheErrorNumberAndNoWait)
{
    World w;
    w.processes.failure = RuntimeError(ErrorCode::FileNotFound, "File not found");
    w.processes.whileRunning = [] { FAIL() << "nothing to wait for"; };
    EXPECT_EQ(ShellAndWait(w.processes, w.current, "c:\\gone.exe", 6), 53 - 2147221504);
}

} // namespace
} // namespace tarvex
