#include "platform/posix/open_file.h"

#include "platform/errors.h"
#include "support/temporary_directory.h"

#include <fcntl.h>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

using testing::ElementsAre;

/// Keeps how many bytes were asked for, and does something after each read.
struct CountedReads final : SystemCalls {
    std::vector<std::size_t> asked;
    std::function<void()> afterEach = [] {};

    ssize_t read(int file, void* bytes, std::size_t size) override
    {
        asked.push_back(size);
        const ssize_t count = SystemCalls::read(file, bytes, size);
        afterEach();
        return count;
    }
};

struct ReadAll : testing::Test {
    TemporaryDirectory disk;
    CountedReads calls;

    std::string read(const std::string& bytes)
    {
        disk.put("file", bytes);
        return OpenFile(calls, disk / "file", O_RDONLY).readAll();
    }
};

TEST(RequireRegular, SaysOfADeviceThatItIsNoRegularFile)
{
    SystemCalls calls;
    OpenFile device(calls, "/dev/null", O_RDONLY);
    try {
        requireRegular(device.status());
        FAIL() << "a device is none";
    } catch (const RuntimeError& error) {
        EXPECT_STREQ(error.what(), "Not a regular file");
        EXPECT_EQ(error.code(), ErrorCode::PathFileAccess);
    }
}

} // namespace

TEST_F(ReadAll, MeetsTheEndWithRoomForOneByteMore)
{
    EXPECT_EQ(read("abc"), "abc");
    EXPECT_THAT(calls.asked, ElementsAre(4, 1));
}

TEST_F(ReadAll, EmptyFileTakesOneRead)
{
    EXPECT_EQ(read(""), "");
    EXPECT_THAT(calls.asked, ElementsAre(1));
}

TEST_F(ReadAll, FileThatGrowsMeanwhileIsReadWhole)
{
    const std::string more(10'000, 'x');
    calls.afterEach = [&] {
        if (calls.asked.size() == 1) std::ofstream(disk / "file", std::ios::app) << more;
    };
    EXPECT_EQ(read("abc"), "abc" + more);
}

TEST_F(ReadAll, FileThatShrinksMeanwhileEndsWhereItEnds)
{
    disk.put("file", "abcdef");
    OpenFile file(calls, disk / "file", O_RDWR);
    calls.afterEach = [&] { file.truncate(0); };
    EXPECT_EQ(file.readAll(), "abcdef");
    EXPECT_THAT(calls.asked, ElementsAre(7, 1));
}

TEST_F(ReadAll, LargeFileIsReadInPiecesOfAMegabyte)
{
    constexpr std::size_t megabyte = 1 << 20;
    const std::string bytes(megabyte + 5, 'x');
    EXPECT_EQ(read(bytes), bytes);
    EXPECT_THAT(calls.asked, ElementsAre(megabyte, 6, 1));
}

} // namespace tarvex
