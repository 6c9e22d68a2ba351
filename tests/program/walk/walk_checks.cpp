#include "program/walk/walk.h"

#include "documents/find/matches.h"
#include "documents/recovery/journal/recovery_journal.h"
#include "documents/recovery/recovery_format.h"
#include "platform/dos_path.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tarvex {

namespace {

void checkPane(const Pane& pane)
{
    std::size_t formatted = 0;
    for (const FormatRun& run : pane.runs()) formatted += run.length;
    EXPECT_EQ(formatted, pane.TextLength()) << "each character has a format";
    EXPECT_TRUE(hasOnlyPairs(pane.Text()));
    EXPECT_GE(pane.SelStart(), 0);
    EXPECT_LE(pane.SelStart() + pane.SelLength(), static_cast<std::int64_t>(pane.TextLength()));
}

void checkUndo(Walk& walk, const Side& side)
{
    const UndoHistory& history = side.Undo;
    ASSERT_GE(history.Position, 1U);
    ASSERT_LE(history.Position, history.Levels.size());
    EXPECT_LE(history.Levels.size(), 15U);
    EXPECT_EQ(history.Levels[history.Position - 1].Text.text(), side.pane.Text()) << "the level that is showing";
    if (&side != &walk.side()) return;
    EXPECT_EQ(walk.menus().mnuEditUndo.Enabled, history.Position != history.Levels.size());
    EXPECT_EQ(walk.menus().mnuEditRedo.Enabled, history.Position != 1);
}

/// The marks that followed the edits are those that a new search gives.
void checkMarks(Walk& walk, const Side& side)
{
    EXPECT_LT(side.ErrorLine.line().value_or(0), side.pane.lineCount());
    EXPECT_EQ(side.ShowsEdited.get(), side.Changed == changed::modified) << "the dot on the tab of the " << side.kind;
    const FindBar& bar = walk.program().findBar;
    if (!bar.Visible) return;
    Pane pane;
    pane.setText(side.pane.Text());
    MatchMarks fresh(pane);
    fresh.show(soughtBytes(bar.Text.Text).value_or(""),
               (bar.MatchCase.Value ? find::matchCase : 0) + (bar.WholeWord.Value ? find::wholeWord : 0));
    EXPECT_EQ(side.Matches.positions(), fresh.positions());
}

void checkState(Walk& walk, const Side& side)
{
    EXPECT_EQ(walk.editor().tabCaption(side), side.FileName);
    EXPECT_TRUE(side.Changed >= changed::noText && side.Changed <= changed::modified);
    EXPECT_TRUE(side.Changed != changed::noText || side.pane.Text().empty());
    if (side.Changed == changed::saved && !walk.removed.contains(side.FilePath)) {
        const auto onDisk = walk.files.contents(side.FilePath);
        const auto outside = walk.outside.find(side.FilePath);
        EXPECT_TRUE(onDisk == side.pane.Text() || (outside != walk.outside.end() && onDisk == outside->second))
            << side.FilePath << " holds what the pane doesn't show:\n"
            << onDisk.value_or("(no file)");
        EXPECT_TRUE(walk.saved.contains(side.FilePath));
    }
    if (&side != &walk.side()) return;
    StatusBar::Panel& panel = walk.program().mum.StatusBar.Panels(panel::savedState);
    EXPECT_EQ(panel.Picture, side.Changed + 2);
    EXPECT_TRUE(panel.ToolTipText.get().starts_with(side.FileName));
}

/// The files that a crash in this moment would leave behind.
void checkJournal(Walk& walk, const Side& side)
{
    const JournalRecord& record = side.Journal;
    if (record.Number == 0) {
        EXPECT_EQ(record.Base.text(), side.pane.Text()) << "nothing to keep";
        return;
    }
    EXPECT_EQ(side.Changed, changed::modified);
    Journal journal;
    const auto bytes = walk.files.contents(journalPath(walk.editor(), record.Number));
    ASSERT_TRUE(bytes && readJournal(*bytes, journal) == JournalState::Readable);
    EXPECT_EQ(journal.text, side.pane.Text());
    EXPECT_EQ(journal.start.base, record.Base.text());
    EXPECT_TRUE(walk.editor().TimerJournal.Enabled || !record.Unsynced);
}

void checkMacros(Walk& walk)
{
    const auto& lists = walk.editor().FrameMacros.List1;
    const auto& headings = walk.editor().macros.MacroHeadings;
    EXPECT_EQ(lists.size(), std::max<std::size_t>(headings.size(), 1)) << "a list for each heading";
    for (const CheckListBox& list : lists) {
        EXPECT_GE(list.ListIndex, -1);
        EXPECT_LT(list.ListIndex, std::max(static_cast<int>(list.Items.get().size()), 1));
    }
}

void checkList(const RecentList& list)
{
    for (const std::vector<SettingText>* column : list.columns)
        EXPECT_EQ(column->size(), list.columns.front()->size()) << list.menu.Name;
    EXPECT_GE(static_cast<int>(list.columns.front()->size()), list.count) << list.menu.Name;
    EXPECT_LE(list.count, mostEntries) << list.menu.Name;
    EXPECT_EQ(list.menu.UBound(), list.count) << list.menu.Name << ": an item for each entry, and the pattern";
}

/// A file holds what it held, or the text of its document as it was before the action or is now.
void checkFiles(Walk& walk, const Texts& before)
{
    const Texts now = textsOf(walk);
    for (const std::string& name : walk.files.list(walkFolder)) {
        const std::string path = walkFolder + name;
        const std::string held = walk.fileText(path);
        const auto known = walk.saved.find(path);
        if (known != walk.saved.end() && known->second == held) continue;
        const bool macro = lastThree(name).starts_with('m');
        EXPECT_TRUE(held == (macro ? before.macro : before.joystick) || held == (macro ? now.macro : now.joystick))
            << path << " holds what nobody saved:\n"
            << held;
        walk.saved[path] = held;
    }
    for (const auto& [path, text] : walk.saved) EXPECT_TRUE(walk.files.fileExists(path)) << path;
}

bool isInBackups(const Walk& walk, const std::string& text)
{
    const std::string directory = std::string(TestMachine::programDirectory) + "\\Backup";
    if (!walk.files.directoryExists(directory)) return false;
    const auto names = walk.files.list(directory);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return walk.files.contents(directory + "\\" + name) == text; });
}

bool wasAgreedTo(const Walk& walk)
{
    const auto& boxes = walk.dialogues.boxes;
    return std::any_of(boxes.begin(), boxes.end(),
                       [](const MessageBox& box) { return box.title == "OK to overwrite exisiting file?"; });
}

/// What another program wrote stays where it is, or is kept in the backups, unless a document has read it or the user
/// has agreed to replace the file.
void checkOutside(Walk& walk)
{
    for (auto entry = walk.outside.begin(); entry != walk.outside.end();) {
        const auto& [path, text] = *entry;
        const bool isThere = walk.files.contents(path) == text;
        const auto hasRead = [&, &path = path, &text = text](const Side& side) {
            return side.FilePath == path && side.Journal.File == sumOf(text);
        };
        const bool isRead = hasRead(walk.editor().joystick) || hasRead(walk.editor().macro);
        if (!isThere && !isRead) {
            EXPECT_TRUE(isInBackups(walk, text) || wasAgreedTo(walk)) << path << " lost what another program wrote";
            ++walk.keptOutside;
        }
        entry = isThere && !isRead ? std::next(entry) : walk.outside.erase(entry);
    }
}

} // namespace

void check(Walk& walk, const Texts& before)
{
    std::erase_if(walk.removed, [&](const std::string& path) { return walk.files.fileExists(path); });
    checkFiles(walk, before);
    checkOutside(walk);
    EXPECT_EQ(walk.program().shared.IsLoading, 0);
    for (const Side* side : {&walk.editor().joystick, &walk.editor().macro}) {
        SCOPED_TRACE(side->kind);
        checkPane(side->pane);
        checkUndo(walk, *side);
        checkState(walk, *side);
        checkMarks(walk, *side);
        checkJournal(walk, *side);
    }
    checkMacros(walk);
    const Lists& lists = walk.program().lists;
    for (const RecentList* list : {&lists.previous.joystick.list, &lists.previous.macro.list, &lists.favourites.list})
        checkList(*list);
}

} // namespace tarvex
