#include "desktop/platform/qt_file_watch.h"

#include "desktop/platform/input_hold.h"
#include "platform/posix/drive_map.h"
#include "support/temporary_directory.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tarvex {
namespace {

struct QtFileWatchTest : testing::Test {
    QtFileWatchTest()
    {
        watch.watch({drives.toDos(file)});
        QApplication::processEvents();
    }
    TemporaryDirectory disk;
    std::string file = disk.put("mig.b50", "mine");
    DriveMap drives{{.winePrefix = {}, .home = {}, .programDirectory = disk.path(), .workingDirectory = disk.path()}};
    QtFileWatch watch{drives};
    int changes = 0;
    Connection changed = watch.changed.connect([this] { ++changes; });

    /// The change that was just made is noticed.
    bool isNoticed()
    {
        const int before = changes;
        return QTest::qWaitFor([&] { return changes > before; }, 20'000);
    }
};

TEST_F(QtFileWatchTest, NoticesAWriteAndEachOneAfterIt)
{
    disk.put("mig.b50", "theirs");
    EXPECT_TRUE(isNoticed());
    disk.put("mig.b50", "theirs again");
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, NoticesAFileThatIsReplacedByRenamingAnotherAndGoesOnWatchingIt)
{
    for (int i = 0; i < 3; ++i) {
        std::filesystem::rename(disk.put("new", "theirs"), file);
        EXPECT_TRUE(isNoticed()) << i;
    }
    disk.put("mig.b50", "and once more");
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, NoticesAFileThatIsRemovedAndMadeAgain)
{
    std::filesystem::remove(file);
    EXPECT_TRUE(isNoticed());
    disk.put("mig.b50", "theirs");
    EXPECT_TRUE(isNoticed());
    disk.put("mig.b50", "and more");
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, NoticesADirectoryAndAPipeInPlaceOfTheFile)
{
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    EXPECT_TRUE(isNoticed());
    std::filesystem::remove(file);
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, NoticesWhatHappensBehindALink)
{
    const std::string target = disk.put("elsewhere/real.b50", "mine");
    std::filesystem::create_symlink(target, disk / "link.b50");
    watch.watch({drives.toDos(disk / "link.b50")});
    QApplication::processEvents();
    disk.put("elsewhere/real.b50", "theirs");
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, WritesThatFollowEachOtherCloselyAreOneChange)
{
    for (int i = 0; i < 50; ++i) disk.put("mig.b50", std::to_string(i));
    EXPECT_TRUE(isNoticed());
    EXPECT_LE(changes, 2);
}

TEST_F(QtFileWatchTest, ReportsWhatHappensBehindALoaderWhenItHasEnded)
{
    InputHold hold;
    QTimer loader;
    int rounds = 0;
    QObject::connect(&loader, &QTimer::timeout, &hold, [&] {
        if (++rounds == 1) disk.put("mig.b50", "theirs");
        if (rounds == 6) hold.release(); // long after a watch reports otherwise
    });
    loader.start(100);
    hold.hold();
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(isNoticed());
}

TEST_F(QtFileWatchTest, ADriveThatIsNotThereIsPassedOver)
{
    watch.watch({"q:\\nowhere.b50", drives.toDos(file)});
    QApplication::processEvents();
    disk.put("mig.b50", "theirs");
    EXPECT_TRUE(isNoticed());
}

} // namespace
} // namespace tarvex
