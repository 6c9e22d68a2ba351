#include "documents/recovery/journal/recovery_journal.h"

#include "documents/recovery/recovery_sync.h"
#include "platform/free_path.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tarvex {

namespace {

constexpr std::string_view tag = "ED_RecoveryJournal";
constexpr std::uint64_t ample = 1 << 20;

/// Numbers grow, so the later of two journals has the larger one.
std::uint64_t nextNumber(Editor& editor)
{
    std::uint64_t& last = editor.LastJournal;
    const Steps step;
    if (last == 0 && editor.platform.files.directoryExists(journalDirectory(editor))) {
        step([&] {
            for (const std::string& name : editor.platform.files.list(journalDirectory(editor)))
                last = std::max(last, journalNumber(name));
        });
    }
    return ++last;
}

/// The other document of the pair; none for a text beside the pair.
Side* partnerOf(Editor& editor, const JournalledText& text)
{
    if (text.tab == editor.joystick.tab) return &editor.macro;
    return text.tab == editor.macro.tab ? &editor.joystick : nullptr;
}

/// The file beside a document, when there is one.
std::string partnerPath(Editor& editor, const JournalledText& text)
{
    const Side* const partner = partnerOf(editor, text);
    return partner != nullptr && partner->Journal.File ? partner->FilePath : std::string();
}

JournalStart startOf(Editor& editor, const JournalledText& text, std::uint64_t replaces)
{
    std::string base = text.Journal.Base.text();
    TextEdit edit = differenceOf(base, text.pane.Text());
    return {.tab = text.tab,
            .replaces = replaces,
            .path = text.FilePath,
            .name = text.FileName,
            .partnerPath = partnerPath(editor, text),
            .file = text.Journal.File,
            .base = std::move(base),
            .edit = std::move(edit)};
}

/// Keeps the records that were written completely.
void giveUpForNow(Editor& editor, JournalRecord& journal, const std::string& whyNot)
{
    closeFile(journal);
    journal.Failed = true;
    editor.TimerJournal.Enabled = true;
    if (editor.JournalFailureShown) return;
    editor.JournalFailureShown = true;
    editor.status("I can't take notes of what you type, so you'd better save it now and then: " + whyNot);
}

void wrote(Editor& editor, JournalRecord& journal, std::size_t size)
{
    journal.Size += size;
    journal.Unsynced = true;
    editor.TimerJournal.Enabled = true;
}

void append(Editor& editor, JournalRecord& journal, const std::string& bytes)
{
    const Steps step(editor.shared.errors, tag);
    const bool written = step([&] {
        journal.Out->append(bytes);
        wrote(editor, journal, bytes.size());
    });
    if (!written) giveUpForNow(editor, journal, step.whyNot());
}

/// Only notes the edit: each edit is followed by the pane's Change, and that writes it down when it is the user's.
void onEdited(JournalRecord& journal, const Pane& pane, const Pane::Edit& edit)
{
    const auto length = static_cast<std::int64_t>(pane.TextLength());
    const JournalRecord::Unchanged now{edit.position, length - edit.position - edit.inserted};
    if (!journal.Unwritten) journal.Unwritten = now;
    journal.Unwritten->before = std::min(journal.Unwritten->before, now.before);
    journal.Unwritten->after = std::min(journal.Unwritten->after, now.after);
}

/// The edits since the journal was written last, as one.
TextEdit takeUnwritten(JournalRecord& journal, const std::string& text)
{
    const auto length = static_cast<std::int64_t>(text.size());
    const std::int64_t most = std::min(length, journal.Length);
    const std::int64_t before = std::min(journal.Unwritten->before, most);
    const std::int64_t after = std::min(journal.Unwritten->after, most - before);
    TextEdit edit{static_cast<std::uint64_t>(before), static_cast<std::uint64_t>(journal.Length - before - after),
                  text.substr(static_cast<std::size_t>(before), static_cast<std::size_t>(length - before - after))};
    journal.Length = length;
    journal.Unwritten.reset();
    return edit;
}

void follow(const JournalledText& text)
{
    text.Journal.following = text.pane.edited.connect(
        [&journal = text.Journal, &pane = text.pane](const Pane::Edit& edit) { onEdited(journal, pane, edit); });
}

bool hasOutgrown(const JournalledText& text)
{
    return text.Journal.Size > ample + 4 * (text.Journal.Base.size() + text.pane.TextLength());
}

void sync(Editor& editor, JournalRecord& journal)
{
    const Steps step(editor.shared.errors, tag);
    bool isSafe = false;
    if (!step([&] { isSafe = syncFurther(journal); })) return giveUpForNow(editor, journal, step.whyNot());
    if (!isSafe) return;
    editor.JournalFailureShown = false;
    removeJournal(editor, std::exchange(journal.Replaced, 0));
}

/// Syncs the journal and retries one that couldn't be written. True: it needs another look.
bool tendJournal(Editor& editor, const JournalledText& text)
{
    JournalRecord& journal = text.Journal;
    sync(editor, journal);
    if (journal.Failed) {
        beginJournal(editor, text, journal.Number);
        sync(editor, journal);
    }
    const bool closed = closeEnded(journal);
    return journal.Unsynced || journal.Syncing || journal.Failed || !closed;
}

/// The journal in whose place the next one is begun. One that the disk has never had for certain isn't worth keeping
/// beside the one before it.
std::uint64_t keptUntilSafe(const JournalRecord& journal, std::uint64_t replaces)
{
    return journal.Replaced != 0 ? journal.Replaced : replaces;
}

} // namespace

void removeJournal(Editor& editor, std::uint64_t number)
{
    if (editor.DamagedJournals.contains(number)) {
        keepDamagedJournal(editor, number);
        return;
    }
    const Steps step;
    if (number != 0) step([&] { editor.platform.files.removeFile(journalPath(editor, number)); });
}

std::string keepDamagedJournal(Editor& editor, std::uint64_t number)
{
    editor.DamagedJournals.erase(number);
    const Steps step(editor.shared.errors, tag);
    std::string path = journalPath(editor, number);
    step([&] {
        const std::string kept = damagedPath(editor, number);
        editor.platform.files.renameFile(path, kept);
        path = kept;
    });
    return path;
}

std::string damagedPath(const Editor& editor, std::uint64_t number)
{
    return freePath(editor.platform.files, journalDirectory(editor) + "\\",
                    std::to_string(number) + std::string(damagedNameEnd));
}

std::string journalDirectory(const Editor& editor) { return editor.platform.programDirectory + "\\Recover"; }

std::string journalPath(const Editor& editor, std::uint64_t number)
{
    return journalDirectory(editor) + "\\" + std::to_string(number) + std::string(journalNameEnd);
}

std::uint64_t journalNumber(const std::string& name)
{
    if (!name.ends_with(journalNameEnd)) return 0;
    const char* const end = name.data() + name.size() - journalNameEnd.size();
    std::uint64_t number = 0;
    const auto result = std::from_chars(name.data(), end, number);
    constexpr auto most = std::uint64_t{1} << 62; // there is always a next one
    return result.ec == std::errc() && result.ptr == end && number < most ? number : 0;
}

void followEdits(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) follow(*side);
    editor.TimerJournal.Tick = [&editor] { TimerJournal_Timer(editor); };
}

void followEdits(Editor& editor, const JournalledText& text)
{
    follow(text);
    editor.TimerJournal.Tick = [&editor, text, others = std::move(editor.TimerJournal.Tick)] {
        others();
        if (tendJournal(editor, text)) editor.TimerJournal.Enabled = true;
    };
}

void noteTextSettled(Editor& editor, const JournalledText& text, const std::optional<FileSum>& file)
{
    JournalRecord& journal = text.Journal;
    closeFile(journal);
    removeJournal(editor, std::exchange(journal.Replaced, 0)); // first: alone it would be taken for the latest
    removeJournal(editor, std::exchange(journal.Number, 0));
    journal.Base = text.pane.TextRTF();
    journal.File = file;
    journal.Length = static_cast<std::int64_t>(text.pane.TextLength());
    journal.Unwritten.reset();
    journal.Failed = false;

    Side* const partner = partnerOf(editor, text);
    if (partner != nullptr && partner->Journal.Out)
        append(editor, partner->Journal, journalPartner(partnerPath(editor, *partner), partner->Journal.Chain));
}

void beginJournal(Editor& editor, const JournalledText& text, std::uint64_t replaces)
{
    const Steps step(editor.shared.errors, tag);
    JournalRecord& journal = text.Journal;
    journal.Unwritten.reset();
    journal.Length = static_cast<std::int64_t>(text.pane.TextLength());
    journal.Number = replaces;

    const std::uint64_t kept = keptUntilSafe(journal, replaces);
    const std::uint64_t number = nextNumber(editor);
    std::unique_ptr<AppendFile> out;
    const bool begun = step([&] {
        journal.Chain = 0;
        const std::string bytes = journalStart(startOf(editor, text, kept), journal.Chain);
        out = editor.platform.files.createAppendFile(journalPath(editor, number));
        out->append(bytes);
        closeFile(journal);
        journal.Size = 0;
        wrote(editor, journal, bytes.size());
    });
    if (!begun) {
        if (out) removeJournal(editor, number);
        return giveUpForNow(editor, journal, step.whyNot());
    }
    journal.Out = std::move(out);
    journal.Number = number;
    journal.Replaced = kept;
    journal.Failed = false;
    if (kept != replaces) removeJournal(editor, replaces);
}

void writeDownChanges(Editor& editor, const JournalledText& text)
{
    JournalRecord& journal = text.Journal;
    if (journal.Failed || journal.Held) return;
    // A change that alters nothing makes a document modified, too: from then on its text is kept whatever becomes of
    // the file.
    if (!journal.Out && (journal.Unwritten || journal.File)) return beginJournal(editor, text, journal.Number);
    if (!journal.Unwritten) return;
    append(editor, journal, journalEdit(takeUnwritten(journal, text.pane.Text()), journal.Chain));
    if (journal.Out && hasOutgrown(text)) beginJournal(editor, text, journal.Number);
}

void TimerJournal_Timer(Editor& editor)
{
    bool goesOn = false;
    for (Side* side : {&editor.joystick, &editor.macro}) goesOn = tendJournal(editor, *side) || goesOn;
    editor.TimerJournal.Enabled = goesOn;
}

void endJournals(Editor& editor)
{
    for (Side* side : {&editor.joystick, &editor.macro}) {
        side->Journal.following.disconnect();
        noteTextSettled(editor, *side, std::nullopt);
    }
    editor.TimerJournal.Enabled = false;
}

} // namespace tarvex
