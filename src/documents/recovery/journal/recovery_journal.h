#pragma once

#include "documents/pair/editor.h"
#include "documents/recovery/journal/journalled_text.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

// Each edit of a text is appended to a journal as it happens, from the document's first change until it is saved or
// closed, or the program exits normally. After a crash the text is restored from it. When a journal can't be written,
// the status bar says so once, and writing is retried.

constexpr std::string_view journalNameEnd = ".journal";
constexpr std::string_view damagedNameEnd = ".damaged";

/// Starts journalling the edits of both panes.
void followEdits(Editor& editor);
/// The same for a text beside them, after them. What it refers to outlives the editor's timers.
void followEdits(Editor& editor, const JournalledText& text);

/// The pane has the text of its file (`file` is the checksum of its contents), or of no file: drops the journal, and
/// takes the present text as the base of the next one.
void noteTextSettled(Editor& editor, const JournalledText& text, const std::optional<FileSum>& file);
/// Appends one record with all that changed since the last one. Run once per edit by the user; changes under IsLoading
/// wait until one of them turns out to count as the user's.
void writeDownChanges(Editor& editor, const JournalledText& text);
/// Begins a journal with the document as it is; the one of that number (0: none) goes once the disk has the new one.
void beginJournal(Editor& editor, const JournalledText& text, std::uint64_t replaces);

/// Runs every 15 seconds while needed: syncs the journals and retries those that couldn't be written.
void TimerJournal_Timer(Editor& editor);
/// For a normal exit: removes both journals and stops journalling.
void endJournals(Editor& editor);

/// Does nothing for 0. A journal that can't be removed stays. One that could be read only in part is renamed and kept.
void removeJournal(Editor& editor, std::uint64_t number);
/// Renames a journal that can't be read to its end, so that it is kept and not read again. Returns its path then: the
/// old one when it can't be renamed.
std::string keepDamagedJournal(Editor& editor, std::uint64_t number);
/// The path that keepDamagedJournal would give it.
std::string damagedPath(const Editor& editor, std::uint64_t number);
std::string journalDirectory(const Editor& editor);
std::string journalPath(const Editor& editor, std::uint64_t number);
/// The number in the name of a journal; 0: no journal has that name.
std::uint64_t journalNumber(const std::string& name);

} // namespace tarvex
