// What else is open, noted and removed after a text was brought back.

#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/open_pair.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

const RuntimeError diskFull(ErrorCode::DiskFull, "full");

TEST(RecoveredPair, HasItsCaretNotedWhereTheTextWasWritten)
{
    OpenPair t;
    t.editor().JoystickText.setSelStart(4);
    t.typeJoystick("mine ");
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN mine S1 fire\r\n");
    EXPECT_EQ(t.editor().JoystickText.SelStart(), 9);
    EXPECT_EQ(t.joystick().Caret, 9);
    EXPECT_EQ(t.status(3), "Line no: 1");
}

TEST(RecoveredPair, WhosePartnerIsGoneIsBroughtBackAloneAndInSilence)
{
    OpenPair t;
    t.typeMacro("x");
    t.files.removeFile(joystickPath);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U) << "the offer alone";
    EXPECT_EQ(t.editor().MacroText.Text(), "xfire = x\r\n");
    EXPECT_EQ(t.joystick().FileName, "untitled.b50");
}

TEST(RecoveredPair, HasItsPartnerOpenWhichTheCommandLineDoesntOpenOnceMore)
{
    OpenPair t;
    t.typeMacro("x");
    t.platform.commandLine = joystickPath;
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U) << "no question about the text that came back";
    EXPECT_EQ(t.editor().MacroText.Text(), "xfire = x\r\n");
    EXPECT_EQ(t.joystick().FilePath, joystickPath);
}

TEST(RecoveredPair, UnderANewNameIsNotCoveredByTheFileOfTheCommandLine)
{
    OpenPair t;
    t.typeJoystick("mine ");
    t.files.addFile(joystickPath, "BTN S1 theirs\r\n");
    t.platform.commandLine = joystickPath;
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_EQ(t.editor().JoystickText.Text(), "mine BTN S1 fire\r\n");
    EXPECT_EQ(t.joystick().FileName, "untitled-mig.b50");
}

TEST(RecoveredPair, LeavesADamagedJournalThatCannotBeRenamedWhereItIs)
{
    OpenPair t;
    t.typeJoystick("1");
    const std::string name = t.onlyJournal();
    const std::string bytes = t.fileText(name) + "Dear diary";
    t.files.addFile(name, bytes);
    t.files.failWrites(std::string(recoverDirectory) + "\\1.damaged", diskFull);
    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "1BTN S1 fire\r\n");
    t.diskIsDone();
    EXPECT_EQ(t.fileText(name), bytes);
}

// ---- journals -------------------------------------------------------------------------------------------------------

TEST(JournalFile, ThatCouldOnlyBeBegunIsRemoved)
{
    OpenPair t;
    t.files.failAppends(diskFull, 10);
    t.typeJoystick("a");
    EXPECT_EQ(t.journals(), 0U);
    t.files.failAppends(std::nullopt);
    t.diskIsDone();
    EXPECT_EQ(t.journals(), 1U);
}

TEST(JournalFile, StaysAsItIsAfterAChangeWithoutAnEdit)
{
    OpenPair t;
    t.typeJoystick("a");
    const std::string before = t.fileText(t.onlyJournal());
    t.editor().JoystickText.Change();
    EXPECT_EQ(t.fileText(t.onlyJournal()), before);
}

TEST(JournalFile, GrowsToAMegabyteAndFourTimesItsTexts)
{
    constexpr std::size_t size = 100'000;
    TestProgram t;
    t.files.addFile(joystickPath, std::string(size, 'o'));
    t.menus().mnuJoyPopUpSingleFile.Checked = true;
    t.openBoth(joystickPath);
    constexpr std::size_t limit = (std::size_t{1} << 20) + 4 * (size + size);
    std::size_t largest = 0;
    for (int i = 0; i < 40; ++i) {
        t.editor().JoystickText.userEdit(0, size, std::string(size, static_cast<char>('a' + i % 20)));
        ASSERT_FALSE(t.files.list(recoverDirectory).empty());
        for (const std::string& name : t.files.list(recoverDirectory))
            largest = std::max(largest, t.fileText(std::string(recoverDirectory) + "\\" + name).size());
        for (int tick = 0; tick < 2; ++tick) t.editor().TimerJournal.Tick();
    }
    EXPECT_GT(largest, limit) << "the edit that is too much is its last one";
    EXPECT_LE(largest, limit + size + 1000);
}

} // namespace
} // namespace tarvex
