#include "platform/posix/file_rights.h"

#include "access_list.h"
#include "faulty_calls.h"
#include "platform/errors.h"
#include "platform/posix/safe_writer.h"
#include "support/temporary_directory.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvex {
namespace {

constexpr std::uint32_t friendId = 12345;   ///< named in the access list
constexpr std::uint32_t strangerId = 23456; ///< in nobody's group
constexpr std::uint32_t groupId = 34567;

/// The friend may read and write, the file's own group may not; the mode says 0660, for the mask.
const std::string listWithFriend = accessListBytes({{accessTag::owner, 6},
                                                    {accessTag::user, 6, friendId},
                                                    {accessTag::group, 0},
                                                    {accessTag::mask, 6},
                                                    {accessTag::others, 0}});

/// What the work gives when another user does it.
int asUser(uid_t user, gid_t group, const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const bool changed =
            ::setgroups(0, nullptr) == 0 && ::setresgid(group, group, group) == 0 && ::setresuid(user, user, user) == 0;
        ::_exit(changed ? work() : 99);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 98;
}

struct FileRights : testing::Test {
    TemporaryDirectory disk;
    FaultyCalls calls;
    SafeWriter writer{disk / "recovery", calls};
    const std::string folder = disk.makeDirectory("work");
    const std::string file = disk.put("work/mig.b50", "old");

    mode_t modeOf(const std::string& path) const
    {
        struct stat status = {};
        ::stat(path.c_str(), &status);
        return status.st_mode & 07777U;
    }
    bool mayRead(uid_t user, gid_t group) const
    {
        return asUser(user, group, [&] { return ::access(file.c_str(), R_OK) == 0 ? 1 : 0; }) == 1;
    }
    bool mayWrite(uid_t user, gid_t group) const
    {
        return asUser(user, group, [&] { return ::access(file.c_str(), W_OK) == 0 ? 1 : 0; }) == 1;
    }
    void openFolder() const
    {
        ::chmod(disk.path().c_str(), 0777);
        ::chmod(folder.c_str(), 0777);
    }
};

#define SKIP_WITHOUT_ATTRIBUTES(call)                                                                                  \
    if (!(call)) GTEST_SKIP() << "this file system keeps no such attributes"
#define SKIP_UNLESS_ROOT()                                                                                             \
    if (::geteuid() != 0) GTEST_SKIP() << "only root can become another user"

TEST_F(FileRights, UserAttributesAreKept)
{
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(file, "user.comment", "made for the Su-27"));
    ASSERT_TRUE(setAttribute(file, "user.empty", ""));
    writer.save(file, "new");
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(attributeOf(file, "user.comment"), "made for the Su-27");
    EXPECT_EQ(attributeOf(file, "user.empty"), "");
}

TEST_F(FileRights, UserAttributesOfAFileThatItsOwnerMayNotWriteAreKept)
{
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(file, "user.comment", "kept"));
    ::chmod(file.c_str(), 0464);
    writer.save(file, "new");
    EXPECT_EQ(attributeOf(file, "user.comment"), "kept");
    EXPECT_EQ(modeOf(file), 0464U);
}

TEST_F(FileRights, AccessListIsKept)
{
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(file, accessListName, listWithFriend));
    ASSERT_EQ(modeOf(file), 0660U) << "the mask, not the group's rights";
    writer.save(file, "new");
    EXPECT_EQ(attributeOf(file, accessListName), listWithFriend);
    EXPECT_EQ(modeOf(file), 0660U);
}

TEST_F(FileRights, ModeOfAFileWithoutAListGivesNothingToThoseNamedInTheFoldersList)
{
    const std::string inherited = accessListBytes({{accessTag::owner, 7},
                                                   {accessTag::user, 7, friendId},
                                                   {accessTag::group, 5},
                                                   {accessTag::mask, 7},
                                                   {accessTag::others, 5}});
    ::chmod(file.c_str(), 0640);
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(folder, defaultListName, inherited));
    writer.save(file, "new");
    EXPECT_EQ(attributeOf(file, accessListName), "(none)");
    EXPECT_EQ(modeOf(file), 0640U);
}

/// Each new file of the folder has an access list, which can be taken off.
struct ListsOfTheFolder final : SystemCalls {
    int listsTakenOff = 0;

    int fremovexattr(int, const char*) override
    {
        ++listsTakenOff;
        errno = EIO; // of an earlier call: one that works leaves it
        return 0;
    }
    ssize_t lgetxattr(const std::string&, const char*, void*, std::size_t) override
    {
        errno = ENODATA;
        return -1;
    }
};

TEST_F(FileRights, AFileThatLosesTheListOfItsFolderKeepsItsMode)
{
    ListsOfTheFolder lists;
    SafeWriter writerOfLists(disk / "other-recovery", lists);
    ::chmod(file.c_str(), 0640);
    writerOfLists.save(file, "new");
    EXPECT_EQ(lists.listsTakenOff, 1);
    EXPECT_EQ(modeOf(file), 0640U);
}

TEST_F(FileRights, FriendAndStrangerHaveTheRightsThatTheyHadBefore)
{
    SKIP_UNLESS_ROOT();
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(file, accessListName, listWithFriend));
    openFolder();
    ASSERT_EQ(::chown(file.c_str(), 0, groupId), 0);
    for (const char* when : {"before", "after"}) {
        EXPECT_TRUE(mayRead(friendId, friendId)) << when;
        EXPECT_TRUE(mayWrite(friendId, friendId)) << when;
        EXPECT_FALSE(mayRead(strangerId, strangerId)) << when;
        EXPECT_FALSE(mayRead(strangerId, groupId)) << when << ": the group, which the mask doesn't mean";
        writer.save(file, "new");
    }
}

TEST_F(FileRights, NobodyGetsMoreThanBeforeAtAnyMomentWhateverFails)
{
    const auto prepare = [&] {
        std::filesystem::remove(file);
        disk.put("work/mig.b50", "old");
        if (!setAttribute(file, accessListName, listWithFriend)) ::chmod(file.c_str(), 0640);
        setAttribute(file, "user.comment", "kept");
        calls.made.clear();
    };
    prepare();
    const mode_t mode = modeOf(file);
    const std::string list = attributeOf(file, accessListName);
    const auto isNoWider = [&](const std::string& path) {
        return (modeOf(path) & 077U) == 0 || (modeOf(path) == mode && attributeOf(path, accessListName) == list);
    };
    calls.beforeEach = [&] {
        for (const std::string& name : namesIn(folder))
            EXPECT_TRUE(isNoWider(folder + "/" + name)) << name << " at " << calls.made.back();
    };
    writer.save(file, "new");
    const std::vector<std::string> made = calls.made;
    for (std::size_t at = 0; at < made.size(); ++at) {
        for (const int error : {EPERM, EIO, ENOSPC, ENOTSUP, ENODATA}) {
            const bool saysNone = error == ENOTSUP || error == ENODATA; // the kernel never says so of what is there
            if (saysNone && (made[at] == "lgetxattr" || made[at] == "fremovexattr")) continue;
            prepare();
            calls.fault = {at, error};
            try {
                writer.save(file, "new");
                EXPECT_EQ(bytesOf(file), "new") << made[at] << " failed with " << error;
            } catch (const RuntimeError&) {
            }
            EXPECT_TRUE(isNoWider(file)) << made[at] << " failed with " << error;
        }
    }
}

TEST_F(FileRights, WithoutItsListAFileIsForItsOwnerAlone)
{
    SKIP_WITHOUT_ATTRIBUTES(setAttribute(file, accessListName, listWithFriend));
    writer.save(file, "old");
    const auto at = std::find(calls.made.begin(), calls.made.end(), "fsetxattr") - calls.made.begin();
    calls.made.clear();
    calls.fault = {static_cast<std::size_t>(at), EPERM};
    writer.save(file, "new");
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(modeOf(file), 0600U);
}

TEST_F(FileRights, LostGroupPassesItsRightsToNobody)
{
    SKIP_UNLESS_ROOT();
    openFolder();
    ASSERT_EQ(::chown(file.c_str(), friendId, groupId), 0);
    ::chmod(file.c_str(), 0606); // members of the group are kept out
    const std::string recovery = disk / "other-recovery";
    const int result = asUser(strangerId, strangerId, [&] {
        SystemCalls ownCalls;
        SafeWriter(recovery, ownCalls).save(file, "new");
        return 0;
    });
    ASSERT_EQ(result, 0);
    EXPECT_EQ(bytesOf(file), "new");
    EXPECT_EQ(modeOf(file), 0600U);
    EXPECT_FALSE(mayRead(friendId + 1, groupId));
}

TEST_F(FileRights, OwnerWhoIsLostKeepsNoMoreThanItsClassHad)
{
    SKIP_UNLESS_ROOT();
    openFolder();
    ASSERT_EQ(::chown(file.c_str(), friendId, strangerId), 0);
    ::chmod(file.c_str(), 04466); // the owner may only read
    const int result = asUser(strangerId, strangerId, [&] {
        SystemCalls ownCalls;
        SafeWriter(disk / "other-recovery", ownCalls).save(file, "new");
        return 0;
    });
    ASSERT_EQ(result, 0);
    EXPECT_EQ(modeOf(file), 0444U) << "and no set-user-id for another owner";
}

} // namespace
} // namespace tarvex
