// A process that saves again and again is killed at random moments; the file is whole each time.

#include "platform/posix/safe_writer.h"
#include "support/kill_moments.h"
#include "support/random_seed.h"
#include "support/temporary_directory.h"

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {

namespace {

using Version = std::uint32_t;

/// Length and letter differ from one version to the next, so that no mixture of two is taken for a whole one.
std::string contentsOf(Version version)
{
    const std::string number = std::to_string(version);
    const std::size_t length = 100 + version * 7919U % 60'000U;
    return number + "\r\n" + std::string(length, static_cast<char>('a' + version % 26)) + "\r\n" + number;
}

Version versionOf(const std::string& contents)
{
    return static_cast<Version>(std::strtoul(contents.c_str(), nullptr, 10));
}

[[noreturn]] void saveForEver(const std::string& file, const std::string& recovery, Version version, int report)
{
    SystemCalls calls;
    SafeWriter writer(recovery, calls);
    for (;; ++version) {
        try {
            writer.save(file, contentsOf(version));
        } catch (const std::exception& error) {
            std::cerr << "save failed: " << error.what() << '\n';
            ::_exit(1);
        }
        if (::write(report, &version, sizeof version) != sizeof version) ::_exit(2);
    }
}

struct Round {
    Version lastReported = 0;
    bool wasKilled = false;
};

Round runAndKill(const std::string& file, const std::string& recovery, Version from, std::mt19937& random)
{
    int ends[2] = {};
    if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(ends[0]);
        saveForEver(file, recovery, from, ends[1]);
    }
    ::close(ends[1]);

    Round round{from - 1, false};
    const unsigned reports = 1 + random() % 40;
    for (unsigned i = 0; i < reports; ++i) {
        if (::read(ends[0], &round.lastReported, sizeof(Version)) != sizeof(Version)) break;
    }
    dawdle(random() % 200'000);
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    round.wasKilled = WIFSIGNALED(status);
    while (::read(ends[0], &round.lastReported, sizeof(Version)) == sizeof(Version)) {
    }
    ::close(ends[0]);
    return round;
}

} // namespace

TEST(SaveKill, KilledAtAnyMomentLeavesAWholeFileThatIsNoOlderThanTheLastSave)
{
    const unsigned seed = randomSeed();
    std::mt19937 random(seed);
    const TemporaryDirectory disk(fastDisk());
    const std::string file = disk.put("work/mig.b50", contentsOf(0));
    Version next = 1;
    Version saves = 0;
    for (int rounds = 0; rounds < 250 || saves <= 5000; ++rounds) {
        const Round round = runAndKill(file, disk / "recovery", next, random);
        ASSERT_TRUE(round.wasKilled);
        const std::string contents = bytesOf(file);
        const Version found = versionOf(contents);
        ASSERT_EQ(contents, contentsOf(found));
        ASSERT_GE(found, round.lastReported);
        ASSERT_LE(found, round.lastReported + 1) << "at most the save that the kill interrupted";
        saves += found - (next - 1);
        next = found + 1;
    }
    EXPECT_GT(saves, 5000U);

    SystemCalls calls;
    SafeWriter(disk / "recovery", calls).save(file, "last");
    EXPECT_EQ(namesIn(disk / "work").size(), 1U) << "what the killed ones left is swept";
}

} // namespace tarvex
