#include "program/walk/walk.h"

#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/recovery_format.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

/// Some change of some bytes, or an end too early.
std::string damaged(Random& random, std::string bytes)
{
    const auto size = static_cast<unsigned>(bytes.size());
    switch (below(random, 4)) {
    case 0:
        bytes[below(random, size)] ^= static_cast<char>(1U << below(random, 8));
        break;
    case 1:
        bytes.resize(below(random, size));
        break;
    case 2:
        bytes.insert(below(random, size), std::string(below(random, 40) + 1, static_cast<char>(random())));
        break;
    default:
        bytes.replace(below(random, size), 20, "Dear diary");
        break;
    }
    return bytes;
}

/// One of the journals of what is open, with its side and what can be read of it.
struct OneJournal {
    Side* side = nullptr;
    std::string path;
    std::string bytes;
};

OneJournal anyJournal(Walk& walk)
{
    Side& side = walk.anySide();
    if (side.Journal.Number == 0) return {};
    const std::string path = journalPath(walk.editor(), side.Journal.Number);
    const std::string bytes = walk.files.contents(path).value_or("");
    return {bytes.empty() ? nullptr : &side, path, bytes};
}

bool isKept(const Walk& walk, const std::string& bytes)
{
    const std::vector<std::string> names = walk.files.list("c:\\tarvex\\Recover");
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return walk.fileText("c:\\tarvex\\Recover\\" + name) == bytes; });
}

/// The program is gone without a word, and something happens to a journal before it is started again: the other
/// document isn't touched by it, what precedes the damage comes back, and the bytes are kept, and the user knows.
void killDamageAndRestart(Walk& walk)
{
    const OneJournal journal = anyJournal(walk);
    if (journal.side == nullptr) return;
    const Side& otherSide = walk.editor().other(*journal.side);
    const int tab = journal.side->tab;
    const Unsaved other = unsavedOf(walk, otherSide);
    const std::string bytes = damaged(walk.random, journal.bytes);
    walk.files.addFile(journal.path, bytes);
    Journal readable;
    const JournalState state = readJournal(bytes, readable);
    walk.restart();

    Side& side = tab == walk.editor().joystick.tab ? walk.editor().joystick : walk.editor().macro;
    if (other.mustComeBack) {
        EXPECT_EQ(walk.editor().other(side).pane.Text(), other.text);
    }
    if (state == JournalState::Damaged || (state == JournalState::Readable && readable.damaged)) {
        ++walk.damagedJournals;
        EXPECT_TRUE(isKept(walk, bytes));
        EXPECT_FALSE(walk.dialogues.boxes.empty()) << "the user is informed";
    }
}

/// An orderly exit leaves no journal, except for those that can't be read, or that look like those of another version.
void exitAndRestartBesideDamage(Walk& walk)
{
    if (!walk.program().exit()) return;
    const std::string directory = "c:\\tarvex\\Recover";
    const bool isThere = walk.files.directoryExists(directory);
    for (const std::string& name : isThere ? walk.files.list(directory) : std::vector<std::string>()) {
        if (!name.ends_with(".journal")) continue;
        Journal journal;
        EXPECT_EQ(readJournal(walk.fileText(directory + "\\" + name), journal), JournalState::OtherVersion) << name;
    }
    const std::size_t asked = walk.dialogues.boxes.size();
    walk.restart();
    EXPECT_EQ(walk.dialogues.boxes.size(), asked) << "a start after an orderly exit shows no box";
}

} // namespace

std::vector<Action> actionsWithDamage()
{
    const auto usual = usualActions();
    std::vector<Action> all(usual.begin(), usual.end());
    for (Action& action : all) {
        if (action.run == exitAndRestart) action.run = exitAndRestartBesideDamage;
    }
    all.push_back({"kill, damage a journal and restart", 4, killDamageAndRestart});
    return all;
}

} // namespace tarvex
