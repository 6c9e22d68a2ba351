#include "platform/posix/running_instance.h"

#include "support/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarvex {
namespace {

using Kind = InstanceRequest::Kind;

constexpr int shortPatience = 50;    // milliseconds; for what never answers
constexpr int longPatience = 20'000; // for what does

/// Somebody who listens, and says something to the first who calls.
class Listener {
public:
    Listener(const std::string& path, std::string answer)
        : m_listening(listenForRequests(path)), m_answer(std::move(answer)), m_thread([this] { serve(); })
    {
    }
    ~Listener()
    {
        if (m_thread.joinable()) m_thread.join();
    }
    /// Once the caller has gone.
    std::string heard()
    {
        m_thread.join();
        return m_heard;
    }

private:
    void serve()
    {
        pollfd wanted{m_listening.get(), POLLIN, 0};
        if (::poll(&wanted, 1, longPatience) <= 0) return;
        const FileDescriptor caller = acceptCaller(m_listening.get());
        for (;;) {
            pollfd more{caller.get(), POLLIN, 0};
            char piece[256];
            if (::poll(&more, 1, longPatience) <= 0) return;
            const ssize_t count = ::recv(caller.get(), piece, sizeof piece, 0);
            if (count <= 0) break;
            m_heard.append(piece, static_cast<std::size_t>(count));
        }
        ::send(caller.get(), m_answer.data(), m_answer.size(), MSG_NOSIGNAL);
    }

    FileDescriptor m_listening;
    std::string m_answer;
    std::string m_heard;
    std::thread m_thread;
};

struct RunningInstance : testing::Test {
    TemporaryDirectory disk;
    std::string path = disk / "x.socket";
};

TEST_F(RunningInstance, HearsTheRequestAndAcceptsIt)
{
    const InstanceRequest request{Kind::Open, "/home/pilot/m\xFC ig.b50", "token_TIME1"};
    Listener listener(path, std::string(requestAccepted()));
    EXPECT_TRUE(askRunningInstance(path, request, longPatience));
    EXPECT_EQ(readRequest(listener.heard()), request);
}

TEST_F(RunningInstance, OfAnotherVersionUnderstandsTheRequestByteByByte)
{
    using namespace std::string_literals;
    Listener listener(path, "tarvex 1 accepted\n");
    EXPECT_TRUE(askRunningInstance(path, {Kind::Open, "/a.b50", "t"}, longPatience));
    EXPECT_EQ(listener.heard(), "tarvex 1\0open\0/a.b50\0t\0"s);
    Listener other(path, "tarvex 1 accepted\n");
    EXPECT_TRUE(askRunningInstance(path, {Kind::ComeForward, "", ""}, longPatience));
    EXPECT_EQ(other.heard(), "tarvex 1\0come forward\0\0\0"s);
    EXPECT_EQ(requestAccepted(), "tarvex 1 accepted\n");
}

TEST_F(RunningInstance, OfAnotherVersionIsFoundBySocketsOfOneName)
{
    const std::string socket = instanceSocket(disk.path(), "/opt/tarvex");
    EXPECT_EQ(socket, disk / "tarvex/4582905150526766.socket");
}

TEST_F(RunningInstance, NobodyThereIsARefusal) { EXPECT_FALSE(askRunningInstance(path, {}, longPatience)); }

TEST_F(RunningInstance, ASocketThatAProcessHasLeftIsARefusalAndGivesWayToANewOne)
{
    listenForRequests(path).reset(); // as after a crash: the file stays
    ASSERT_TRUE(std::filesystem::exists(path));
    EXPECT_FALSE(askRunningInstance(path, {}, longPatience));
    Listener listener(path, std::string(requestAccepted()));
    EXPECT_TRUE(askRunningInstance(path, {}, longPatience));
}

TEST_F(RunningInstance, RubbishForAnAnswerIsARefusal)
{
    Listener listener(path, "HTTP/1.1 400 Bad Request and a lot more");
    EXPECT_FALSE(askRunningInstance(path, {}, longPatience));
}

TEST_F(RunningInstance, NoAnswerIsARefusalOnceTimeIsOver)
{
    const FileDescriptor listening = listenForRequests(path); // and never accepts anybody
    EXPECT_FALSE(askRunningInstance(path, {}, shortPatience));
}

TEST_F(RunningInstance, OnlyTheUserMayUseTheSocket)
{
    const FileDescriptor listening = listenForRequests(path);
    const auto others = std::filesystem::perms::group_all | std::filesystem::perms::others_all;
    EXPECT_EQ(std::filesystem::status(path).permissions() & others, std::filesystem::perms::none);
}

TEST_F(RunningInstance, AFileInPlaceOfTheSocketStays)
{
    disk.put("x.socket", "mine");
    EXPECT_FALSE(listenForRequests(path));
    EXPECT_EQ(bytesOf(path), "mine");
    EXPECT_FALSE(askRunningInstance(path, {}, longPatience));
}

TEST_F(RunningInstance, APathTooLongForASocketIsARefusal)
{
    const std::string endless = disk / std::string(200, 'x');
    EXPECT_FALSE(listenForRequests(endless));
    EXPECT_FALSE(askRunningInstance(endless, {}, longPatience));
}

TEST_F(RunningInstance, APathOf107BytesIsTheLongestForASocket)
{
    constexpr std::size_t longest = 107; // the field of 108 bytes has an end in it
    ASSERT_LT(disk.path().size() + 2, longest);
    const std::string fits = disk / std::string(longest - disk.path().size() - 1, 'x');
    ASSERT_EQ(fits.size(), longest);
    Listener listener(fits, std::string(requestAccepted()));
    EXPECT_TRUE(askRunningInstance(fits, {}, longPatience));
    EXPECT_FALSE(listenForRequests(fits + "x"));
}

TEST_F(RunningInstance, ARequestOfAMegabyteArrivesWhole)
{
    const InstanceRequest request{Kind::Open, std::string(1 << 20, 'x'), "t"};
    Listener listener(path, std::string(requestAccepted()));
    EXPECT_TRUE(askRunningInstance(path, request, longPatience));
    EXPECT_EQ(readRequest(listener.heard()), request);
}

TEST_F(RunningInstance, AnAnswerWithMoreBehindItIsARefusal)
{
    Listener listener(path, std::string(requestAccepted()) + "x");
    EXPECT_FALSE(askRunningInstance(path, {}, longPatience));
}

TEST_F(RunningInstance, ASocketLeavesTheRightsOfLaterFilesAsTheyWere)
{
    const mode_t before = ::umask(0027);
    const FileDescriptor listening = listenForRequests(path);
    EXPECT_EQ(::umask(before), 0027U);
}

// ---- the place ------------------------------------------------------------------------------------------------------

TEST_F(RunningInstance, EachProgramDirectoryHasItsOwnSocketInTheRuntimeDirectory)
{
    const std::string one = instanceSocket(disk.path(), "/opt/one");
    EXPECT_TRUE(one.starts_with(disk / "tarvex/"));
    EXPECT_NE(one, instanceSocket(disk.path(), "/opt/two"));
    EXPECT_EQ(one, instanceSocket(disk.path(), "/opt/one"));
    EXPECT_EQ(std::filesystem::status(disk / "tarvex").permissions(), std::filesystem::perms::owner_all);
}

TEST_F(RunningInstance, WithoutARuntimeDirectoryTheSocketIsInTheProgramDirectory)
{
    EXPECT_EQ(instanceSocket("", "/opt/one"), "/opt/one/Tarvex.socket");
    EXPECT_EQ(instanceSocket("relative", "/opt/one"), "/opt/one/Tarvex.socket");
    EXPECT_EQ(instanceSocket(disk / "nowhere", "/opt/one"), "/opt/one/Tarvex.socket");
}

TEST_F(RunningInstance, ADirectoryThatOthersMayWriteToIsNotUsed)
{
    std::filesystem::create_directory(disk / "tarvex");
    std::filesystem::permissions(disk / "tarvex", std::filesystem::perms::all);
    EXPECT_EQ(instanceSocket(disk.path(), "/opt/one"), "/opt/one/Tarvex.socket");
}

TEST_F(RunningInstance, AFileInPlaceOfTheDirectoryIsNotUsed)
{
    std::filesystem::permissions(disk.put("tarvex", ""), std::filesystem::perms::owner_all);
    EXPECT_EQ(instanceSocket(disk.path(), "/opt/one"), "/opt/one/Tarvex.socket");
}

TEST_F(RunningInstance, ADirectoryThatOthersMayOnlyLookIntoIsNotUsedEither)
{
    std::filesystem::create_directory(disk / "tarvex");
    for (const auto others : {std::filesystem::perms::group_read, std::filesystem::perms::others_exec}) {
        std::filesystem::permissions(disk / "tarvex", std::filesystem::perms::owner_all | others);
        EXPECT_EQ(instanceSocket(disk.path(), "/opt/one"), "/opt/one/Tarvex.socket");
    }
}

TEST_F(RunningInstance, ALinkToADirectoryElsewhereIsNotUsed)
{
    std::filesystem::create_directory(disk / "real");
    std::filesystem::permissions(disk / "real", std::filesystem::perms::owner_all);
    std::filesystem::create_directory_symlink(disk / "real", disk / "tarvex");
    EXPECT_EQ(instanceSocket(disk.path(), "/opt/one"), "/opt/one/Tarvex.socket");
}

TEST_F(RunningInstance, AProcessOfAnotherUserIsNotHeard)
{
    if (::geteuid() != 0) return; // only root can be somebody else
    const FileDescriptor listening = listenForRequests(path);
    std::filesystem::permissions(path, std::filesystem::perms::all);
    std::filesystem::permissions(disk.path(), std::filesystem::perms::all);
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (::setuid(nobody) != 0) ::_exit(2);
        ::_exit(askRunningInstance(path, {}, shortPatience) ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "the listener belongs to another user";
    EXPECT_FALSE(acceptCaller(listening.get())) << "so does the caller";
}

// ---- bytes ----------------------------------------------------------------------------------------------------------

TEST(ReadRequest, TakesWholeRequestsOnly)
{
    const std::string whole("tarvex 1\0open\0/a b\0t\0", 21);
    EXPECT_EQ(readRequest(whole), (InstanceRequest{Kind::Open, "/a b", "t"}));
    for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_FALSE(readRequest(whole.substr(0, size))) << size;
    EXPECT_FALSE(readRequest(whole + "x"));
    EXPECT_FALSE(readRequest(whole + '\0'));
}

TEST(ReadRequest, ComingForwardNeedsNoPath)
{
    const std::string bytes("tarvex 1\0come forward\0\0t\0", 25);
    EXPECT_EQ(readRequest(bytes), (InstanceRequest{Kind::ComeForward, "", "t"}));
}

TEST(ReadRequest, RefusesWhatItDoesNotKnow)
{
    EXPECT_FALSE(readRequest(std::string("tarvex 2\0open\0/a\0t\0", 19)));
    EXPECT_FALSE(readRequest(std::string("tarvex 1\0quit\0/a\0t\0", 19)));
    EXPECT_FALSE(readRequest("GET / HTTP/1.1\r\n\r\n"));
}

} // namespace
} // namespace tarvex
