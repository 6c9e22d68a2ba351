#include "platform/posix/posix_files.h"

#include "platform/profile_file.h"
#include "support/temporary_directory.h"

#include <cerrno>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <system_error>

namespace tarvex {

namespace {

using testing::UnorderedElementsAre;

struct Files : testing::Test {
    TemporaryDirectory disk;
    DriveMap drives{DriveEnvironment{"", "", disk.path(), disk.path()}};
    SystemCalls calls;
    SafeWriter writer{disk / "recovery", calls};
    PosixFiles files{drives, writer};
    const std::string root = disk.makeDirectory("drive_c");

    template <typename Call> void expectError(ErrorCode code, int number, Call call)
    {
        try {
            call();
            ADD_FAILURE() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(static_cast<int>(error.code()), static_cast<int>(code));
            EXPECT_EQ(error.lastDllError(), number);
            if (number != EINVAL) {
                EXPECT_EQ(error.what(), std::generic_category().message(number));
            }
        }
    }
};

} // namespace

TEST_F(Files, WhatIsWrittenComesBackByteForByte)
{
    std::string bytes = "Rem\r\n\n\r";
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    files.write("c:\\Mig.b50", bytes);
    EXPECT_EQ(files.read("C:\\MIG.B50"), bytes);
    EXPECT_EQ(bytesOf(root + "/Mig.b50"), bytes);
    files.write("c:\\mig.b50", "");
    EXPECT_EQ(files.read("c:\\mig.b50"), "");
    EXPECT_THAT(namesIn(root), UnorderedElementsAre("Mig.b50"));
}

TEST_F(Files, LargeFileIsReadWhole)
{
    const std::string bytes(3'000'001, 'x');
    disk.put("drive_c/large", bytes);
    EXPECT_EQ(files.read("c:\\large"), bytes);
}

TEST_F(Files, FileOfUnknownSizeIsReadWhole)
{
    EXPECT_NE(files.read("z:\\proc\\self\\status").find("VmRSS"), std::string::npos);
}

TEST_F(Files, QueriesDistinguishFilesFromDirectories)
{
    disk.put("drive_c/Tm/mig.b50", "x");
    EXPECT_TRUE(files.fileExists("c:\\tm\\mig.b50"));
    EXPECT_FALSE(files.directoryExists("c:\\tm\\mig.b50"));
    EXPECT_FALSE(files.fileExists("c:\\tm"));
    EXPECT_TRUE(files.directoryExists("c:\\tm"));
    EXPECT_TRUE(files.directoryExists("c:\\tm\\"));
    EXPECT_FALSE(files.fileExists("c:\\none"));
}

TEST_F(Files, QueriesNeverThrow)
{
    for (const std::string& path :
         {std::string(), std::string("q:\\x"), std::string("c:\\a\0b", 6), std::string("\\\\s")}) {
        EXPECT_FALSE(files.fileExists(path));
        EXPECT_FALSE(files.directoryExists(path));
        EXPECT_FALSE(files.isReadOnly(path));
        EXPECT_EQ(files.stamp(path), FileStamp{});
    }
}

TEST_F(Files, ReadOnlyIsAFileThatNobodyMayWrite)
{
    const std::string file = disk.put("drive_c/mig.b50", "old");
    EXPECT_FALSE(files.isReadOnly("c:\\mig.b50"));
    EXPECT_FALSE(files.isReadOnly("c:\\none"));
    ::chmod(file.c_str(), 0444);
    EXPECT_TRUE(files.isReadOnly("c:\\mig.b50"));
    expectError(ErrorCode::PathFileAccess, EACCES, [&] { files.write("c:\\mig.b50", "new"); });
    expectError(ErrorCode::PathFileAccess, EACCES, [&] { files.removeFile("c:\\mig.b50"); });
    EXPECT_EQ(bytesOf(file), "old");
}

TEST_F(Files, StampChangesWithEachWriteAndWithRemoval)
{
    EXPECT_EQ(files.stamp("c:\\mig.b50").identity, 0U);
    files.write("c:\\mig.b50", "one");
    const FileStamp one = files.stamp("c:\\mig.b50");
    EXPECT_NE(one.identity, 0U);
    EXPECT_EQ(files.stamp("c:\\MIG.b50"), one);
    files.write("c:\\mig.b50", "four");
    EXPECT_NE(files.stamp("c:\\mig.b50"), one);
    files.removeFile("c:\\mig.b50");
    EXPECT_EQ(files.stamp("c:\\mig.b50"), FileStamp{});
}

TEST_F(Files, MissingFileAndMissingDirectoryAreDifferentErrors)
{
    expectError(ErrorCode::FileNotFound, ENOENT, [&] { files.read("c:\\none"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.read("c:\\none\\mig.b50"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.write("c:\\none\\mig.b50", "x"); });
    expectError(ErrorCode::FileNotFound, ENOENT, [&] { files.removeFile("c:\\none"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.list("c:\\none"); });
}

TEST_F(Files, DirectoryIsRefusedAsAFile)
{
    disk.makeDirectory("drive_c/tm");
    expectError(ErrorCode::PathFileAccess, EISDIR, [&] { files.read("c:\\tm"); });
    expectError(ErrorCode::PathFileAccess, EISDIR, [&] { files.write("c:\\tm", "x"); });
    expectError(ErrorCode::PathFileAccess, EISDIR, [&] { files.removeFile("c:\\tm"); });
}

TEST_F(Files, PipeIsRefusedAtOnce)
{
    ASSERT_EQ(::mkfifo((root + "/pipe").c_str(), 0600), 0);
    expectError(ErrorCode::PathFileAccess, EINVAL, [&] { files.read("c:\\pipe"); });
    expectError(ErrorCode::PathFileAccess, EINVAL, [&] { files.write("c:\\pipe", "x"); });
}

TEST_F(Files, NulInAPathIsABadNameForEveryOperation)
{
    const std::string path("c:\\mig.b50\0.txt", 15);
    disk.put("drive_c/mig.b50", "old");
    expectError(ErrorCode::BadFileName, EINVAL, [&] { files.read(path); });
    expectError(ErrorCode::BadFileName, EINVAL, [&] { files.write(path, "new"); });
    expectError(ErrorCode::BadFileName, EINVAL, [&] { files.removeFile(path); });
    expectError(ErrorCode::BadFileName, EINVAL, [&] { files.createDirectory(path); });
    expectError(ErrorCode::BadFileName, EINVAL, [&] { files.list(path); });
    EXPECT_EQ(files.read("c:\\mig.b50"), "old");
}

TEST_F(Files, PrivateFilesAndCopiesAreForTheirOwnerAlone)
{
    constexpr auto ownerOnly = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    files.write("c:\\mig.b50", "shared");
    files.writePrivate("c:\\mig.b50", "private");
    EXPECT_EQ(std::filesystem::status(root + "/mig.b50").permissions(), ownerOnly);
    files.copyPrivate("c:\\mig.b50", "c:\\copy.b50");
    EXPECT_EQ(std::filesystem::status(root + "/copy.b50").permissions(), ownerOnly);
    EXPECT_EQ(files.read("c:\\copy.b50"), "private");
    expectError(ErrorCode::FileExists, EEXIST, [&] { files.copyPrivate("c:\\mig.b50", "C:\\COPY.b50"); });
    expectError(ErrorCode::FileNotFound, ENOENT, [&] { files.copyPrivate("c:\\none", "c:\\other"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.copyPrivate("c:\\mig.b50", "c:\\none\\x"); });
}

TEST_F(Files, DirectoryIsMadeOneLevelAndOnce)
{
    files.createDirectory("c:\\Backup");
    EXPECT_TRUE(files.directoryExists("c:\\backup"));
    EXPECT_EQ(std::filesystem::status(root + "/Backup").permissions(), std::filesystem::perms::owner_all);
    expectError(ErrorCode::PathFileAccess, EEXIST, [&] { files.createDirectory("c:\\BACKUP"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.createDirectory("c:\\a\\b"); });
}

TEST_F(Files, RenamedFileKeepsItsContentsAndPermissionsAndReplacesNone)
{
    disk.put("drive_c/Recover/1.journal", "old");
    ASSERT_EQ(::chmod((root + "/Recover/1.journal").c_str(), 0600), 0);
    files.renameFile("c:\\recover\\1.JOURNAL", "c:\\recover\\1.damaged");
    EXPECT_THAT(files.list("c:\\recover"), UnorderedElementsAre("1.damaged"));
    EXPECT_EQ(files.read("c:\\Recover\\1.damaged"), "old");
    struct stat status = {};
    ASSERT_EQ(::stat((root + "/Recover/1.damaged").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);

    disk.put("drive_c/Recover/2.journal", "new");
    expectError(ErrorCode::FileExists, EEXIST,
                [&] { files.renameFile("c:\\recover\\2.journal", "c:\\recover\\1.damaged"); });
    EXPECT_EQ(files.read("c:\\Recover\\1.damaged"), "old");
    expectError(ErrorCode::FileNotFound, ENOENT,
                [&] { files.renameFile("c:\\recover\\3.journal", "c:\\recover\\3.damaged"); });
}

TEST_F(Files, ALinkThatLeadsNowhereIsNotReplacedByARenamedFile)
{
    disk.put("drive_c/mig.b50", "mine");
    std::filesystem::create_symlink("gone", root + "/link.b50");
    expectError(ErrorCode::FileExists, EEXIST, [&] { files.renameFile("c:\\mig.b50", "c:\\link.b50"); });
    EXPECT_EQ(files.read("c:\\mig.b50"), "mine");
    EXPECT_TRUE(std::filesystem::is_symlink(root + "/link.b50"));
}

TEST_F(Files, RenamedDirectoryKeepsWhatIsInItAndReplacesNone)
{
    disk.put("drive_c/Rtf/mig.rtf", "old");
    files.renameFile("c:\\rtf", "c:\\Rtf.old");
    EXPECT_EQ(files.read("c:\\Rtf.old\\mig.rtf"), "old");
    EXPECT_FALSE(files.directoryExists("c:\\rtf"));
    disk.makeDirectory("drive_c/Rtf");
    expectError(ErrorCode::FileExists, EEXIST, [&] { files.renameFile("c:\\Rtf", "c:\\Rtf.old"); });
    EXPECT_TRUE(files.directoryExists("c:\\rtf"));
    EXPECT_TRUE(files.fileExists("c:\\Rtf.old\\mig.rtf"));
}

TEST_F(Files, NothingIsMadeBelowAFile)
{
    disk.put("drive_c/tm", "a file");
    expectError(ErrorCode::PathNotFound, ENOTDIR, [&] { files.createDirectory("c:\\tm\\Backup"); });
    expectError(ErrorCode::PathNotFound, ENOTDIR, [&] { files.write("c:\\tm\\mig.b50", "x"); });
    EXPECT_EQ(files.read("c:\\tm"), "a file");
}

TEST_F(Files, AFileThatGrowsIsMadeWithItsDirectoryButNotWithThoseAbove)
{
    files.createAppendFile("c:\\Recover\\new")->append("one");
    EXPECT_EQ(files.read("c:\\recover\\new"), "one");
    EXPECT_EQ(std::filesystem::status(root + "/Recover").permissions(), std::filesystem::perms::owner_all);
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { files.createAppendFile("c:\\none\\deeper\\new"); });
}

TEST_F(Files, StampHasSizeAndTimeOfTheFileAndTellsFilesApart)
{
    const std::string one = disk.put("drive_c/one", "four");
    disk.put("drive_c/two", "four");
    const timespec times[] = {{5, 7}, {1'000'000'005, 7}};
    ASSERT_EQ(::utimensat(AT_FDCWD, one.c_str(), times, 0), 0);
    EXPECT_EQ(files.stamp("c:\\one").size, 4U);
    EXPECT_EQ(files.stamp("c:\\one").modifiedNanoseconds, 1'000'000'005'000'000'007);
    EXPECT_NE(files.stamp("c:\\one").identity, files.stamp("c:\\two").identity);
    std::filesystem::create_symlink(one, root + "/link");
    EXPECT_EQ(files.stamp("c:\\link"), files.stamp("c:\\one"));
}

TEST_F(Files, DirectoryIsNotReadOnly)
{
    ::chmod(disk.makeDirectory("drive_c/tm").c_str(), 0500);
    EXPECT_FALSE(files.isReadOnly("c:\\tm"));
}

struct FilePieces : Files {
    std::vector<std::size_t> sizes;
    std::string bytes;

    void read(const std::string& path, std::size_t most = 100)
    {
        files.readPieces(path, [&](std::string_view piece) {
            sizes.push_back(piece.size());
            bytes += piece;
            return sizes.size() < most;
        });
    }
};

TEST_F(FilePieces, AreOf64KilobytesAndTheLastOneOfTheRest)
{
    std::string whole(2 * 65536 + 5, 'x');
    whole[65536] = 'y';
    disk.put("drive_c/large", whole);
    read("c:\\large");
    EXPECT_THAT(sizes, testing::ElementsAre(65536, 65536, 5));
    EXPECT_EQ(bytes, whole);
}

TEST_F(FilePieces, AreReadUntilNoMoreAreWanted)
{
    disk.put("drive_c/large", std::string(3 * 65536, 'x'));
    read("c:\\large", 2);
    EXPECT_THAT(sizes, testing::ElementsAre(65536, 65536));
}

TEST_F(FilePieces, OfAnEmptyFileAreNone)
{
    disk.put("drive_c/empty", "");
    read("c:\\empty");
    EXPECT_TRUE(sizes.empty());
}

TEST_F(FilePieces, OfAFileThatShrinksOrGrowsMeanwhileEndWithItsFirstSize)
{
    const std::string file = disk.put("drive_c/log", std::string(65536 + 10, 'x'));
    files.readPieces("c:\\log", [&](std::string_view piece) {
        sizes.push_back(piece.size());
        std::filesystem::resize_file(file, 3 * 65536);
        return true;
    });
    EXPECT_THAT(sizes, testing::ElementsAre(65536, 10));
    sizes.clear();
    files.readPieces("c:\\log", [&](std::string_view piece) {
        sizes.push_back(piece.size());
        std::filesystem::resize_file(file, 0);
        return true;
    });
    EXPECT_THAT(sizes, testing::ElementsAre(65536));
}

TEST_F(FilePieces, OfWhatIsNoFileAreRefused)
{
    disk.makeDirectory("drive_c/tm");
    ASSERT_EQ(::mkfifo((root + "/pipe").c_str(), 0600), 0);
    expectError(ErrorCode::PathFileAccess, EISDIR, [&] { read("c:\\tm"); });
    expectError(ErrorCode::PathFileAccess, EINVAL, [&] { read("c:\\pipe"); });
    expectError(ErrorCode::FileNotFound, ENOENT, [&] { read("c:\\none"); });
    expectError(ErrorCode::PathNotFound, ENOENT, [&] { read("c:\\none\\mig.b50"); });
    EXPECT_TRUE(sizes.empty());
}

TEST_F(Files, APathLiesWithinTheDirectoriesAboveItBehindAllLinks)
{
    disk.put("drive_c/tm/b50/mig.b50", "x");
    disk.put("drive_c/tm2/su27.b50", "x");
    std::filesystem::create_symlink(root + "/tm2/su27.b50", root + "/tm/link.b50");
    std::filesystem::create_directory_symlink(root + "/tm/b50", root + "/within");
    EXPECT_TRUE(files.liesWithin("c:\\tm\\b50\\mig.b50", "c:\\tm"));
    EXPECT_TRUE(files.liesWithin("c:\\TM\\b50", "c:\\tm\\b50"));
    EXPECT_TRUE(files.liesWithin("c:\\within\\mig.b50", "c:\\tm"));
    EXPECT_FALSE(files.liesWithin("c:\\tm2\\su27.b50", "c:\\tm"));
    EXPECT_FALSE(files.liesWithin("c:\\tm\\link.b50", "c:\\tm"));
    EXPECT_FALSE(files.liesWithin("c:\\tm", "c:\\tm\\b50"));
    EXPECT_FALSE(files.liesWithin("c:\\tm\\none", "c:\\tm"));
    EXPECT_FALSE(files.liesWithin("c:\\tm", "q:\\"));
}

TEST_F(Files, ListNamesFilesAndDirectories)
{
    disk.put("drive_c/Tm/mig.b50", "x");
    disk.makeDirectory("drive_c/Tm/Rtf");
    EXPECT_THAT(files.list("c:\\tm"), UnorderedElementsAre("mig.b50", "Rtf"));
}

TEST_F(Files, SettingsLiveOnARealDisk)
{
    ProfileFile ini(files, "c:\\Tarvex.ini");
    ini.writeString("Games", "GameName1", "F-22");
    EXPECT_EQ(bytesOf(root + "/Tarvex.ini"), "[Games]\r\nGameName1=F-22\r\n");
    disk.put("drive_c/Tarvex.ini", "[Games]\r\nGameName1=Falcon 4\r\n");
    EXPECT_EQ(ini.readString("Games", "GameName1", ""), "Falcon 4");
}

} // namespace tarvex
