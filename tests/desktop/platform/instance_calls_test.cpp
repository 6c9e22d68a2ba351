#include "desktop/platform/instance_calls.h"

#include "desktop/platform/input_hold.h"
#include "support/temporary_directory.h"

#include <QApplication>
#include <QDialog>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>

namespace tarvex {
namespace {

using Kind = InstanceRequest::Kind;

constexpr int patience = 20'000; // milliseconds

struct InstanceCallsTest : testing::Test {
    InstanceCallsTest()
    {
        QObject::connect(&calls, &InstanceCalls::wanted, &calls,
                         [this](const InstanceRequest& request) { fulfilled.push_back(request.path); });
        calls.listen(path);
    }
    TemporaryDirectory disk;
    std::string path = disk / "x.socket";
    InstanceCalls calls;
    std::vector<std::string> fulfilled;

    /// What another process does, while this one handles its events.
    template <typename Work> bool elsewhere(Work work)
    {
        std::atomic<bool> done = false;
        bool result = false;
        std::thread other([&] {
            result = work();
            done = true;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return done.load(); }, patience));
        other.join();
        return result;
    }
    bool ask(const std::string& file)
    {
        return elsewhere([&] { return askRunningInstance(path, {Kind::Open, file, {}}, patience); });
    }
};

TEST_F(InstanceCallsTest, AnswerAtOnceAndFulfilOnceTheProgramHasStarted)
{
    EXPECT_TRUE(ask("/a"));
    EXPECT_TRUE(ask("/b"));
    EXPECT_TRUE(fulfilled.empty());
    calls.fulfil();
    EXPECT_TRUE(QTest::qWaitFor([&] { return fulfilled.size() == 2; }, patience));
    EXPECT_EQ(fulfilled, (std::vector<std::string>{"/a", "/b"}));
}

TEST_F(InstanceCallsTest, WaitUntilABoxHasGone)
{
    calls.fulfil();
    QDialog box;
    box.setModal(true);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    EXPECT_TRUE(ask("/a"));
    QApplication::processEvents();
    EXPECT_TRUE(fulfilled.empty());
    QWidget window;
    box.close();
    window.show(); // gets the keyboard then
    EXPECT_TRUE(QTest::qWaitFor([&] { return fulfilled.size() == 1; }, patience));
}

TEST_F(InstanceCallsTest, WaitUntilTheLoaderThatRunsHasEnded)
{
    calls.fulfil();
    InputHold hold;
    std::atomic<bool> answered = false;
    std::thread other([&] {
        EXPECT_TRUE(askRunningInstance(path, {Kind::Open, "/a", {}}, patience));
        answered = true;
    });
    QTimer loader;
    int rounds = 0; // of a loader that works on after the answer
    QObject::connect(&loader, &QTimer::timeout, &hold, [&] {
        if (answered && ++rounds == 10) hold.release();
    });
    loader.start(10);
    hold.hold();
    EXPECT_TRUE(fulfilled.empty());
    other.join();
    EXPECT_TRUE(QTest::qWaitFor([&] { return fulfilled.size() == 1; }, patience));
}

TEST_F(InstanceCallsTest, RubbishIsNotFulfilledAndKeepsNobodyElseOut)
{
    calls.fulfil();
    const auto shout = [this](const std::string& bytes) {
        return elsewhere([&] {
            sockaddr_un address = {};
            address.sun_family = AF_UNIX;
            path.copy(address.sun_path, sizeof address.sun_path - 1);
            const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
            if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return false;
            ::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            ::shutdown(socket.get(), SHUT_WR);
            char answer = 0;
            return ::recv(socket.get(), &answer, 1, 0) == 1;
        });
    };
    EXPECT_FALSE(shout("GET / HTTP/1.1\r\n\r\n"));
    EXPECT_FALSE(shout(""));
    EXPECT_FALSE(shout(std::string(1 << 20, 'x')));
    EXPECT_TRUE(ask("/a"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fulfilled.empty(); }, patience));
    EXPECT_EQ(fulfilled, std::vector<std::string>{"/a"});
}

TEST(InstanceCalls, LeaveNoSocketBehind)
{
    const TemporaryDirectory disk;
    {
        InstanceCalls calls;
        calls.listen(disk / "x.socket");
        EXPECT_TRUE(std::filesystem::exists(disk / "x.socket"));
    }
    EXPECT_FALSE(std::filesystem::exists(disk / "x.socket"));
}

} // namespace
} // namespace tarvex
