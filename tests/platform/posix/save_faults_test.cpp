// Every system call of a save fails in turn, once and for good: the old file or the new one is there, whole.

#include "access_list.h"
#include "platform/errors.h"
#include "platform/posix/faulty_calls.h"
#include "platform/posix/safe_writer.h"
#include "support/temporary_directory.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;

const std::string oldBytes = "Rem the old file\r\n" + std::string(5000, 'o');
const std::string newBytes = "Rem the new file\r\n" + std::string(7000, 'n');

struct Situation {
    const char* name;
    bool exists;
    bool lockedFolder;
    bool shortWrites;
    bool hasAttributes = false; ///< an access control list and a user attribute, where the disk keeps them
};

void PrintTo(const Situation& situation, std::ostream* stream) { *stream << situation.name; }

class SaveFaults : public testing::TestWithParam<Situation> {
protected:
    struct Outcome {
        std::string bytes;
        std::string error; ///< empty: the save succeeded
        std::vector<std::string> made;
        std::vector<std::string> leftInFolder;
        std::vector<std::string> copies; ///< the bytes of each
        std::string copyPath;
    };

    static Outcome save(std::optional<FaultyCalls::Fault> fault)
    {
        const TemporaryDirectory disk(fastDisk());
        const std::string folder = disk.makeDirectory("work") + "/";
        const std::string file = folder + "mig.b50";
        if (GetParam().exists) disk.put("work/mig.b50", oldBytes);
        if (GetParam().hasAttributes) {
            setAttribute(file, accessListName,
                         accessListBytes({{accessTag::owner, 6},
                                          {accessTag::user, 6, 12345},
                                          {accessTag::group, 0},
                                          {accessTag::mask, 6},
                                          {accessTag::others, 0}}));
            setAttribute(file, "user.comment", "kept");
        }
        FaultyCalls calls;
        calls.fault = fault;
        if (GetParam().lockedFolder) calls.lockedFolder = folder;
        if (GetParam().shortWrites) calls.mostPerWrite = 3000;

        Outcome outcome;
        SafeWriter writer(disk / "recovery", calls);
        try {
            writer.save(file, newBytes);
        } catch (const RuntimeError& error) {
            outcome.error = error.what();
        }
        outcome.bytes = bytesOf(file);
        outcome.made = calls.made;
        for (const std::string& name : namesIn(folder)) {
            if (name != "mig.b50") outcome.leftInFolder.push_back(name);
        }
        for (const std::string& copy : writer.leftCopies()) {
            outcome.copies.push_back(bytesOf(copy));
            outcome.copyPath = copy;
        }
        return outcome;
    }

    static void check(const Outcome& outcome, const FaultyCalls::Fault& fault)
    {
        const std::string& failed = outcome.made.at(fault.at);
        SCOPED_TRACE(failed + " number " + std::to_string(fault.at) + (fault.lasting ? " and later: " : ": ") +
                     std::strerror(fault.error) + "; reported: " + outcome.error);
        const std::string before = GetParam().exists ? oldBytes : "(missing)";
        const bool whole = outcome.bytes == before || outcome.bytes == newBytes;
        if (!whole) { // only direct writing can end like this, and then the copy is whole and named
            EXPECT_TRUE(GetParam().exists);
            EXPECT_THAT(outcome.copies, testing::ElementsAre(oldBytes));
            EXPECT_THAT(outcome.error, HasSubstr(outcome.copyPath));
        }
        if (outcome.error.empty()) {
            EXPECT_EQ(outcome.bytes, newBytes);
        }
        if (failed != "unlink") {
            EXPECT_THAT(outcome.leftInFolder, IsEmpty());
        }
    }
};

/// A close that follows an fsync and isn't the folder's, which comes behind the rename.
bool isCloseOfWritten(const std::vector<std::string>& made, std::size_t at)
{
    if (at < 2 || made[at] != "close" || made[at - 1] != "fsync") return false;
    return made[at - 2] != "open";
}

constexpr Situation situations[] = {
    {"NewFile", false, false, false},
    {"OldFile", true, false, false},
    {"OldFileInShortWrites", true, false, true},
    {"OldFileWithAttributes", true, false, false, true},
    {"LockedFolder", true, true, false},
    {"LockedFolderInShortWrites", true, true, true},
};

} // namespace

TEST_P(SaveFaults, EachCallFailingLeavesTheOldOrTheNewFileWhole)
{
    const Outcome good = save(std::nullopt);
    ASSERT_EQ(good.error, "");
    ASSERT_EQ(good.bytes, newBytes);
    ASSERT_GE(good.made.size(), 8U);
    for (const int error : {EIO, ENOSPC, EACCES, EROFS, EMFILE, EEXIST, ENOTSUP}) {
        for (const bool lasting : {false, true}) {
            for (std::size_t at = 0; at < good.made.size(); ++at) {
                const FaultyCalls::Fault fault{at, error, lasting};
                check(save(fault), fault);
            }
        }
    }
}

TEST_P(SaveFaults, FailedWriteSyncCloseOrRenameIsReported)
{
    const Outcome good = save(std::nullopt);
    std::size_t reported = 0;
    for (std::size_t at = 0; at < good.made.size(); ++at) {
        const std::string& name = good.made[at];
        if (name != "write" && name != "fsync" && name != "rename" && !isCloseOfWritten(good.made, at)) continue;
        EXPECT_NE(save(FaultyCalls::Fault{at, EIO}).error, "") << name << " number " << at;
        ++reported;
    }
    EXPECT_GE(reported, 4U);
}

INSTANTIATE_TEST_SUITE_P(Situations, SaveFaults, testing::ValuesIn(situations),
                         [](const auto& information) { return std::string(information.param.name); });

} // namespace tarvex
