// Journals damaged by a disk, by a copy or on purpose: no loss goes unreported.

#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/open_pair.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

std::string inRecover(const std::string& name) { return std::string(recoverDirectory) + "\\" + name; }

/// The journal of an unsaved text that stands in no file.
std::string journalOf(const std::string& name, const std::string& text, std::uint64_t replaces = 0, int tab = 1)
{
    std::uint64_t chain = 0;
    return journalStart({.tab = tab,
                         .replaces = replaces,
                         .path = "c:\\elsewhere\\" + name,
                         .name = name,
                         .partnerPath = {},
                         .file = {},
                         .base = "",
                         .edit = {0, 0, text}},
                        chain);
}

/// A program before its start, with journals left in its folder.
struct Left : TestProgram {
    Left() : TestProgram(false) {}
    void put(const std::string& name, const std::string& bytes) { files.addFile(inRecover(name), bytes); }
    void start(std::deque<Answer> answers)
    {
        dialogues.boxes.clear();
        dialogues.answers = std::move(answers);
        TestProgram::start();
    }
    std::string text(const std::string& name) const { return fileText(inRecover(name)); }
};

TEST(DamagedJournal, InTheMiddleBringsBackWhatPrecedesAndIsKept)
{
    OpenPair t;
    t.typeJoystick("1");
    t.typeJoystick("2");
    const std::size_t two = t.fileText(t.onlyJournal()).size();
    t.typeJoystick("3");
    t.typeJoystick("4");
    const std::string name = t.onlyJournal();
    std::string bytes = t.fileText(name);
    bytes[two + 20] ^= 4;
    t.files.addFile(name, bytes);

    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_NE(t.lastBox().text.find("\n\nSome of my notes on mig.b50 have gone bad, so you'll get it as it was before "
                                    "those. I'll keep the lot as 1.damaged.\n\nShall I bring it back?"),
              std::string::npos)
        << t.lastBox().text;
    EXPECT_EQ(t.editor().JoystickText.Text(), "12BTN S1 fire\r\n");
    EXPECT_EQ(t.joystick().Changed, changed::modified);
    EXPECT_EQ(t.fileText(name), bytes) << "until the disk has the new one";
    t.diskIsDone();
    EXPECT_FALSE(t.files.fileExists(name));
    EXPECT_EQ(t.fileText(inRecover("1.damaged")), bytes);

    t.killAndStart({Answer::Yes});
    EXPECT_EQ(t.lastBox().text.find("gone bad"), std::string::npos) << "said once";
    EXPECT_EQ(t.editor().JoystickText.Text(), "12BTN S1 fire\r\n");
}

TEST(DamagedJournal, IsKeptWhenItsTextIsDeclined)
{
    Left t;
    const std::string bytes = journalOf("mig.b50", "BTN S1 a") + "Dear diary";
    t.put("3.journal", bytes);
    t.start({Answer::No});
    EXPECT_EQ(t.text("mig.b50"), "BTN S1 a");
    EXPECT_EQ(t.text("3.damaged"), bytes);
    EXPECT_FALSE(t.files.fileExists(inRecover("3.journal")));
}

TEST(DamagedJournal, WhoseRestStandsInTheFileIsKeptAndNamed)
{
    OpenPair t;
    t.typeJoystick("1");
    const std::string name = t.onlyJournal();
    const std::string bytes = t.fileText(name) + std::string(100, '\0');
    t.files.addFile(name, bytes);
    t.files.addFile(joystickPath, "1BTN S1 fire\r\n");
    t.killAndStart();
    ASSERT_EQ(t.dialogues.boxes.size(), 1U);
    EXPECT_NE(t.lastBox().text.find(inRecover("1.damaged")), std::string::npos) << t.lastBox().text;
    EXPECT_EQ(t.fileText(inRecover("1.damaged")), bytes);
}

TEST(DamagedJournal, ThatCannotBeReadIsRenamedAndTheUserInformedOnce)
{
    const std::string whole = journalOf("mig.b50", "BTN S1 a");
    std::string oneBit = whole;
    oneBit[whole.size() - 3] ^= 1;
    for (const std::string& bytes : {oneBit, whole.substr(0, whole.size() - 1), std::string("Dear diary")}) {
        Left t;
        t.put("3.journal", bytes);
        t.start({});
        ASSERT_EQ(t.dialogues.boxes.size(), 1U);
        EXPECT_EQ(t.lastBox().title, "I can't read my own writing ...");
        EXPECT_EQ(t.lastBox().icon, BoxIcon::Exclamation);
        EXPECT_EQ(
            t.lastBox().text,
            "These are notes that I took of something that wasn't saved, and they've gone bad, so I can't bring it "
            "back. There may still be something of yours in there, so I've kept them:\n\n    " +
                inRecover("3.damaged") + "\n\nI won't bother you with them again.");
        EXPECT_EQ(t.text("3.damaged"), bytes);
        EXPECT_FALSE(t.files.fileExists(inRecover("3.journal")));
        t.start({});
        EXPECT_TRUE(t.dialogues.boxes.empty());
        EXPECT_EQ(t.text("3.damaged"), bytes);
    }
}

TEST(DamagedJournal, GetsANameThatIsFree)
{
    Left t;
    t.put("3.damaged", "of last year");
    t.put("3.journal", "Dear diary");
    t.start({});
    EXPECT_EQ(t.text("3.damaged"), "of last year");
    EXPECT_EQ(t.text("3-2.damaged"), "Dear diary");
    EXPECT_NE(t.lastBox().text.find(inRecover("3-2.damaged")), std::string::npos);
}

TEST(DamagedJournal, ThatCannotBeRenamedStaysAndIsNamedAsItIs)
{
    Left t;
    t.put("3.journal", "Dear diary");
    t.files.failWrites(inRecover("3.damaged"), RuntimeError(ErrorCode::DiskFull, "full"));
    t.start({});
    EXPECT_EQ(t.text("3.journal"), "Dear diary");
    EXPECT_NE(t.lastBox().text.find(inRecover("3.journal")), std::string::npos);
}

TEST(DamagedJournal, ThatWasToTakeAnothersPlaceLeavesTheOther)
{
    Left t;
    t.put("3.journal", journalOf("mig.b50", "BTN S1 a"));
    const std::string newer = journalOf("mig.b50", "BTN S1 ab", 3);
    t.put("4.journal", newer.substr(0, newer.size() - 1));
    t.start({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 a");
    EXPECT_EQ(t.text("4.damaged"), newer.substr(0, newer.size() - 1));
}

TEST(LeftJournal, ThatClaimsThePlacesOfOthersInACircleIsOfferedLikeThem)
{
    Left t;
    t.put("3.journal", journalOf("old.b50", "older", 4));
    t.put("4.journal", journalOf("new.b50", "newer", 5));
    t.put("5.journal", journalOf("newest.b50", "newest", 5));
    t.start({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "newest");
    EXPECT_EQ(t.text("old.b50"), "older");
    EXPECT_EQ(t.text("new.b50"), "newer");
}

TEST(LeftJournal, ThatClaimsThePlaceOfTheOtherDocumentsDoesNotTakeIt)
{
    Left t;
    t.put("3.journal", journalOf("mig.b50", "BTN S1 a", 0, 1));
    t.put("4.journal", journalOf("mig.m50", "fire = f", 3, 2));
    t.start({Answer::Yes});
    EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 a");
    EXPECT_EQ(t.editor().MacroText.Text(), "fire = f");
}

TEST(LeftJournal, WhoseNameLeadsOutOfTheFolderIsPutAsideWithin)
{
    for (const std::string name : {"../../outside.b50", "..\\..\\outside.b50", "../..\\outside.b50"}) {
        Left t;
        t.put("3.journal", journalOf(name, "BTN S1 a"));
        t.start({Answer::No});
        EXPECT_NE(t.lastBox().text.find("\n    outside.b50\n"), std::string::npos) << t.lastBox().text;
        EXPECT_EQ(t.text("outside.b50"), "BTN S1 a");
        EXPECT_FALSE(t.files.fileExists("c:\\outside.b50"));
        EXPECT_FALSE(t.files.fileExists("c:\\tarvex\\outside.b50"));
    }
}

TEST(LeftJournal, WhoseNameLeadsOutOfTheFolderComesBackInTheDocumentsFolder)
{
    for (const std::string name : {"../../outside.b50", "..", "x/.."}) {
        Left t;
        t.put("3.journal", journalOf(name, "BTN S1 a"));
        t.start({Answer::Yes});
        EXPECT_EQ(t.editor().JoystickText.Text(), "BTN S1 a");
        const std::string& path = t.editor().joystick.FilePath;
        EXPECT_EQ(path, "c:\\tm\\b50progs\\" + t.editor().joystick.FileName);
        EXPECT_EQ(path.find('/'), std::string::npos) << path;
        EXPECT_TRUE(t.editor().joystick.FileName.starts_with("untitled")) << path;
    }
}

} // namespace
} // namespace tarvex
