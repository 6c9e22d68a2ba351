// What DOSBox is given for a run, without DOSBox.

#include "platform/posix/dosbox/dosbox_run.h"

#include "platform/errors.h"
#include "platform/posix/dosbox/dos_starter.h"
#include "platform/posix/dosbox/dosbox_folder.h"
#include "platform/posix/processes/process_world.h"
#include "platform/posix/system_error.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace tarvex {
namespace {

std::string hexOf(const std::string& bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes)
        hex += {digits[static_cast<unsigned char>(byte) >> 4U], digits[static_cast<unsigned char>(byte) & 15U]};
    return hex;
}

TEST(DosStarter, IsThisProgram)
{
    EXPECT_EQ(
        hexOf(dosStarter({.drive = 'D', .directory = "D:\\TM", .program = "D:\\TM\\LOAD.COM", .tail = " mig.b50"})),
        "bc7a03"                           // mov sp, the end of the stack
        "bb3800b44acd21"                   // keep 38h paragraphs
        "b203b40ecd21"                     // select drive 3, which is d:
        "ba6501b43bcd21"                   // change to the directory at 165h
        "722f"                             // or end
        "be5c01bf5c00b80129cd21"           // the first word from 15Ch on
        "ac3c2077fb4e"                     // to the end of that word
        "bf6c00b80129cd21"                 // the second word
        "8cc8a35101a35501a35901"           // this segment, into the parameters
        "bb4d01ba6b01b8004bcd21"           // run the program at 16Bh
        "b8004ccd21"                       // end
        "00005b0100005c0000006c000000"     // the parameters
        "08206d69672e6235300d"             // 8 characters, " mig.b50", Return
        "443a5c544d00"                     // "D:\TM"
        "443a5c544d5c4c4f41442e434f4d00"); // "D:\TM\LOAD.COM"
}

TEST(DosStarter, KeepsMemoryForItsTextsAndAStackOfHalfAKilobyte)
{
    for (const std::size_t length : {0U, 1U, 15U, 16U, 126U}) {
        const std::string bytes =
            dosStarter({.drive = 'c', .directory = "C:\\", .program = "C:\\A.COM", .tail = std::string(length, 'x')});
        const auto wordAt = [&](std::size_t at) {
            return static_cast<unsigned char>(bytes[at]) + 256U * static_cast<unsigned char>(bytes[at + 1]);
        };
        const std::size_t end = 0x100 + bytes.size();
        EXPECT_EQ(wordAt(1), (end + 512) / 2 * 2) << length;
        EXPECT_EQ(wordAt(4), (wordAt(1) + 15) / 16) << length;
    }
}

struct DosboxRunTest : testing::Test, ProcessWorld {
    DosboxRunTest()
    {
        disk.put("drive_c/TM/load.com", "");
        disk.put("drive_c/TM/tm.bat", "");
    }
    static std::string file(DosboxRun& run, const std::string& name)
    {
        return bytesOf(run.folder().path() + "/" + name);
    }
};

TEST_F(DosboxRunTest, AProgramIsStartedByASmallOneOnADriveOfItsOwn)
{
    DosboxRun run(drives, ProgramKind::Dos, "c:\\tm\\load.com", " c:\\tm\\tm.bat Q", "c:\\tm");
    const std::string folder = run.folder().path();
    EXPECT_EQ(file(run, "run/START.BAT"), "@echo off\r\nmount c " + folder + "/c\r\ncls\r\ny:\\run.com\r\nexit\r\n");
    EXPECT_EQ(
        file(run, "run/RUN.COM"),
        dosStarter({.drive = 'C', .directory = "C:\\TM", .program = "C:\\TM\\LOAD.COM", .tail = " c:\\tm\\tm.bat Q"}));
    EXPECT_EQ(file(run, "dosbox.conf"),
              "# The user's own settings hold. This file keeps one in the current folder out.\n");
    EXPECT_EQ(run.arguments("/usr/bin/dosbox"),
              (std::vector<std::string>{"/usr/bin/dosbox", "-userconf", "-conf", folder + "/dosbox.conf", "-noautoexec",
                                        "-c", "mount y " + folder + "/run", "-c", "y:\\start.bat", "-c", "exit"}));
}

/// Leaves the program as many files to open as it says.
struct FewFiles {
    rlimit before{};

    explicit FewFiles(int number)
    {
        ::getrlimit(RLIMIT_NOFILE, &before);
        const FileDescriptor next(::open("/", O_RDONLY | O_CLOEXEC));
        const rlimit few{static_cast<rlim_t>(next.get() + number), before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
    }
    ~FewFiles() { ::setrlimit(RLIMIT_NOFILE, &before); }
    FewFiles(const FewFiles&) = delete;
    FewFiles& operator=(const FewFiles&) = delete;
};

TEST_F(DosboxRunTest, AFolderThatCannotBeLockedIsReportedAndLeavesNothing)
{
    const TemporaryDirectory runtime;
    const char* const set = std::getenv("XDG_RUNTIME_DIR");
    const std::string before = set != nullptr ? set : "";
    ::setenv("XDG_RUNTIME_DIR", runtime.path().c_str(), 1);
    (void)systemError(EMFILE); // a sanitizer looks at each kind of object once, and opens files for that
    for (const int number : {0, 1}) {
        try {
            const FewFiles few(number);
            const DosboxFolder folder;
            ADD_FAILURE() << number;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.lastDllError(), EMFILE) << number;
        }
    }
    const std::string made = DosboxFolder().path();
    EXPECT_EQ(made.substr(0, made.size() - 6), runtime.path() + "/tarvex-dos-") << "and six characters by chance";
    EXPECT_TRUE(namesIn(runtime.path()).empty());
    if (set != nullptr)
        ::setenv("XDG_RUNTIME_DIR", before.c_str(), 1);
    else
        ::unsetenv("XDG_RUNTIME_DIR");
}

TEST_F(DosboxRunTest, ABatchFileIsCalledInItsDirectory)
{
    DosboxRun run(drives, ProgramKind::DosBatch, "c:\\tm\\tm.bat", " one two", "c:\\tm");
    EXPECT_EQ(file(run, "run/START.BAT"), "@echo off\r\nmount c " + run.folder().path() +
                                              "/c\r\ncls\r\nC:\r\ncd \\TM\r\ncall C:\\TM\\TM.BAT one two\r\nexit\r\n");
    EXPECT_EQ(file(run, "run/RUN.COM"), "(missing)");
}

TEST_F(DosboxRunTest, ABatchFileIsGivenPlainCharactersOnly)
{
    const auto codeOf = [this](const std::string& tail) {
        try {
            const DosboxRun run(drives, ProgramKind::DosBatch, "c:\\tm\\tm.bat", tail, "c:\\tm");
            return 0;
        } catch (const RuntimeError& error) {
            EXPECT_STREQ(error.what(), "Invalid procedure call or argument");
            return static_cast<int>(error.code());
        }
    };
    EXPECT_EQ(codeOf(" azAZ09\\/:._-$#@!(),=+"), 0);
    for (const char sign : std::string("`{[@?;<>|&%\"'^~*\t\n\x7F"))
        EXPECT_EQ(codeOf(std::string(" ") + sign), sign == '@' ? 0 : 5) << sign;
}

TEST_F(DosboxRunTest, ATailOf126BytesIsTakenAndALongerOneRefused)
{
    EXPECT_NO_THROW(DosboxRun(drives, ProgramKind::Dos, "c:\\tm\\load.com", std::string(126, 'x'), "c:\\"));
    EXPECT_THROW(DosboxRun(drives, ProgramKind::Dos, "c:\\tm\\load.com", std::string(127, 'x'), "c:\\"), RuntimeError);
}

TEST_F(DosboxRunTest, WithoutItsDirectoryThereIsNoRun)
{
    try {
        const DosboxRun run(drives, ProgramKind::Dos, "c:\\tm\\load.com", "", "c:\\gone");
        ADD_FAILURE();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.code(), ErrorCode::PathNotFound);
        EXPECT_STREQ(error.what(), "Path not found");
    }
}

} // namespace
} // namespace tarvex
