#include "platform/posix/processes/posix_machine.h"

#include "platform/errors.h"
#include "platform/posix/processes/spawn.h"
#include "process_world.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

namespace tarvex {
namespace {

using testing::HasSubstr;

struct MachineWorld : ProcessWorld {
    DriveMap own{DriveEnvironment{"", "", disk.path(), disk.path()}};
    PosixMachine machine{own, processes};
    std::string runner(const std::string& script)
    {
        this->script("runner", script);
        return driveC + "/runner";
    }
};

TEST(AskForVersion, GivesOutputAndErrorsOfTheProgram)
{
    MachineWorld w;
    const ProgramOutput output = w.machine.askForVersion(w.runner("echo \"wine $1\"\necho warning >&2\nexit 3\n"));
    EXPECT_TRUE(output.ended);
    EXPECT_THAT(output.text, HasSubstr("wine --version\n"));
    EXPECT_THAT(output.text, HasSubstr("warning\n"));
}

TEST(AskForVersion, KeepsTheFirstBytesOfALongAnswer)
{
    MachineWorld w;
    const ProgramOutput output = w.machine.askForVersion(w.runner("yes dosbox | head -c 1000000\n"));
    EXPECT_TRUE(output.ended);
    EXPECT_EQ(output.text.size(), 4096U);
}

TEST(AskForVersion, OfAProgramThatIsNotThereThrows)
{
    MachineWorld w;
    EXPECT_THROW(w.machine.askForVersion("/gone/wine"), RuntimeError);
    EXPECT_THROW(w.machine.askForVersion(w.disk.path()), RuntimeError) << "a folder";
}

TEST(RunProgram, IsStoppedWithAllItHasStartedWhenItTakesTooLong)
{
    MachineWorld w;
    const std::string path = w.runner("sleep 1000 & echo $!\nwait\n");
    const ProgramOutput output = w.processes.run({path}, 200);
    EXPECT_FALSE(output.ended);
    const int child = std::atoi(output.text.c_str());
    if (child > 0) {
        const int file = openProcess(child); // it ends, but nobody says when
        if (file >= 0) {
            pollfd ended{file, POLLIN, 0};
            EXPECT_EQ(::poll(&ended, 1, 10000), 1);
            ::close(file);
        }
    }
}

TEST(Drives, WithChoicesAreShownWithoutBeingInForce)
{
    MachineWorld w;
    const std::string disk = w.disk.makeDirectory("disk");
    const auto with = w.machine.drivesWith({{'c', disk}, {'z', disk}});
    ASSERT_EQ(with.size(), 3U);
    EXPECT_EQ(with[0], (DriveFolder{'c', disk, DriveFolder::Origin::User}));
    EXPECT_EQ(with[1], (DriveFolder{'y', "/", DriveFolder::Origin::Tarvex})) << "the whole disk stays in reach";
    EXPECT_EQ(with[2], (DriveFolder{'z', disk, DriveFolder::Origin::User}));
    EXPECT_EQ(w.machine.drives().size(), 2U);
    EXPECT_EQ(w.machine.drives()[0].origin, DriveFolder::Origin::Tarvex);
}

TEST(Drives, ThatAreChosenLeadTheirPathsToTheFolder)
{
    MachineWorld w;
    const std::string disk = w.disk.makeDirectory("disk");
    w.disk.put("disk/F22.b50", "x");
    w.machine.setDrive('d', disk);
    EXPECT_EQ(w.machine.nativePath("d:\\f22.b50"), disk + "/F22.b50");
    EXPECT_EQ(w.own.toDos(disk + "/F22.b50"), "d:\\F22.b50");
    w.machine.setDrive('d', "");
    EXPECT_THROW(w.machine.nativePath("d:\\f22.b50"), RuntimeError);
}

TEST(FolderExists, IsForFullPathsOfFoldersOnly)
{
    MachineWorld w;
    const std::string file = w.disk.put("file", "x");
    EXPECT_TRUE(w.machine.folderExists(w.disk.path()));
    EXPECT_TRUE(w.machine.folderExists("/"));
    EXPECT_FALSE(w.machine.folderExists(file));
    EXPECT_FALSE(w.machine.folderExists("."));
    EXPECT_FALSE(w.machine.folderExists(""));
}

} // namespace
} // namespace tarvex
