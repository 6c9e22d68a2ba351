#include "platform/posix/instance_lock.h"

#include "platform/posix/processes/spawn.h"
#include "support/temporary_directory.h"

#include <csignal>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {
namespace {

/// Another process that takes the lock and keeps it until it is killed.
class Holder {
public:
    explicit Holder(
        const std::string& path, const std::function<int()>& afterwards = [] { return 0; })
    {
        int ends[2] = {};
        EXPECT_EQ(::pipe(ends), 0);
        m_process = ::fork();
        if (m_process == 0) {
            InstanceLock lock;
            const bool taken = lock.take(path);
            const int result = taken ? afterwards() : -1;
            if (::write(ends[1], &result, sizeof result) != sizeof result) ::_exit(1);
            for (;;) ::pause();
        }
        ::close(ends[1]);
        EXPECT_EQ(::read(ends[0], &reported, sizeof reported), static_cast<ssize_t>(sizeof reported));
        ::close(ends[0]);
    }
    ~Holder() { kill(); }
    Holder(const Holder&) = delete;
    Holder& operator=(const Holder&) = delete;

    void kill()
    {
        if (m_process <= 0) return;
        EXPECT_EQ(::kill(m_process, SIGKILL), 0);
        EXPECT_EQ(::waitpid(m_process, nullptr, 0), m_process);
        m_process = 0;
    }

    int reported = -1;

private:
    pid_t m_process = 0;
};

TEST(InstanceLock, KeepsASecondProcessOutAndIsFreeOnceTheFirstWasKilled)
{
    const TemporaryDirectory disk;
    Holder holder(disk / "Tarvex.lock");
    ASSERT_EQ(holder.reported, 0);
    InstanceLock lock;
    EXPECT_FALSE(lock.take(disk / "Tarvex.lock"));
    holder.kill();
    EXPECT_TRUE(std::filesystem::exists(disk / "Tarvex.lock")) << "the file stays";
    EXPECT_TRUE(lock.take(disk / "Tarvex.lock"));
    EXPECT_TRUE(lock.take(disk / "Tarvex.lock")) << "who has it may ask again";
    InstanceLock second;
    EXPECT_FALSE(second.take(disk / "Tarvex.lock"));
}

TEST(InstanceLock, AFileThatNamesThisVeryProcessKeepsNobodyOut)
{
    const TemporaryDirectory disk;
    const std::string path = disk.put("Tarvex.lock", std::to_string(::getpid()) + "\ntarvex\nhost\n");
    InstanceLock lock;
    EXPECT_TRUE(lock.take(path));
}

TEST(InstanceLock, AProgramThatWasStartedDoesNotKeepIt)
{
    const TemporaryDirectory disk;
    Holder holder(disk / "Tarvex.lock", [&] { return spawn({"/bin/sleep", "1000"}, disk.path()); });
    ASSERT_GT(holder.reported, 0);
    holder.kill();
    InstanceLock lock;
    EXPECT_TRUE(lock.take(disk / "Tarvex.lock"));
    EXPECT_EQ(::kill(holder.reported, SIGKILL), 0) << "it still runs";
}

TEST(InstanceLock, IsTakenOnAFileThatMayOnlyBeRead)
{
    const TemporaryDirectory disk;
    const std::string path = disk.put("Tarvex.lock", "");
    ASSERT_EQ(::chmod(path.c_str(), 0400), 0);
    InstanceLock lock;
    EXPECT_TRUE(lock.take(path));
    InstanceLock second;
    EXPECT_FALSE(second.take(path));
}

TEST(InstanceLock, AFolderThatTakesNoLockKeepsNobodyOut)
{
    InstanceLock lock;
    EXPECT_TRUE(lock.take("/nowhere/Tarvex.lock"));
    const TemporaryDirectory disk;
    EXPECT_TRUE(lock.take(disk.path())) << "a folder in its place";
}

} // namespace
} // namespace tarvex
