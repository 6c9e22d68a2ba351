#include "shell/shipped_files.h"

#include "platform/profile_file.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvex {
namespace {

/// A machine whose program folder gets the files that come with the program.
struct Shipped : testing::Test, TestMachine {
    std::vector<ShippedFile> shipped{{"Templates\\one.txt", "1"}, {"Templates\\two.txt", "2"}};
    int reads = 0;

    void copy()
    {
        copyShippedFiles(platform, "Copied", [this] {
            ++reads;
            return shipped;
        });
    }
    std::string mark()
    {
        return ProfileFile(files, "c:\\tarvex\\Platform.ini").readString("Extras", "Copied", "(none)");
    }
};

TEST_F(Shipped, AreCopiedOnce)
{
    copy();
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\one.txt"), "1");
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\two.txt"), "2");
    EXPECT_EQ(mark(), "1");
    files.removeFile("c:\\tarvex\\Templates\\one.txt");
    copy();
    EXPECT_FALSE(files.fileExists("c:\\tarvex\\Templates\\one.txt")) << "the user threw it away";
    EXPECT_EQ(reads, 1);
}

TEST_F(Shipped, LeaveWhatIsThere)
{
    files.addFile("c:\\tarvex\\Templates\\one.txt", "mine");
    files.addDirectory("c:\\tarvex\\Templates\\two.txt");
    copy();
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\one.txt"), "mine");
    EXPECT_TRUE(files.directoryExists("c:\\tarvex\\Templates\\two.txt"));
    EXPECT_EQ(mark(), "1");
}

TEST_F(Shipped, ThatCannotAllBeWrittenAreTriedAgainNextTime)
{
    files.failWrites("c:\\tarvex\\Templates\\one.txt", RuntimeError(ErrorCode::DiskFull, "Disk full"));
    copy();
    EXPECT_EQ(fileText("c:\\tarvex\\Templates\\two.txt"), "2") << "the others are there";
    EXPECT_EQ(mark(), "(none)");
}

TEST_F(Shipped, ThatAreNotFoundAreTriedAgainNextTime)
{
    shipped.clear();
    copy();
    EXPECT_EQ(mark(), "(none)");
}

} // namespace
} // namespace tarvex
