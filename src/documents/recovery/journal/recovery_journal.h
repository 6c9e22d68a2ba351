#pragma once

#include "documents/pair/editor.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

// Each edit of a pane goes into a journal on the disk as it happens, from the document's first change on until it is
// saved, closed or left in good order: whatever ends the program meanwhile, the text can be brought back. A journal
// that can't be written disturbs nobody; the status bar says so once, and it is tried again.

constexpr std::string_view journalNameEnd = ".journal";
constexpr std::string_view damagedNameEnd = ".damaged";

/// From now on what happens to the panes is written down.
void followEdits(Editor& editor);

/// The pane's text is where it belongs, in a file (`file` sums its contents) or nowhere: there is nothing to keep of
/// what went before.
void noteTextSettled(Editor& editor, Side& side, const std::optional<FileSum>& file);
/// Appends one record with all that changed since the last one. Run once per edit by the user; changes under IsLoading
/// wait until one of them turns out to count as the user's.
void writeDownChanges(Editor& editor, Side& side);
/// Begins a journal with the document as it is; the one of that number (0: none) goes once the disk has the new one.
void beginJournal(Editor& editor, Side& side, std::uint64_t replaces);

/// 15 seconds have gone by: what was written goes to the disk, and a journal that couldn't be written gets another try.
void TimerJournal_Timer(Editor& editor);
/// The program ends in good order: nothing is kept, and no edit is written down any more.
void endJournals(Editor& editor);

/// 0 is none. One that can't be removed stays. One that could only be read in part is kept under another name.
void removeJournal(Editor& editor, std::uint64_t number);
/// Renames a journal that can't be read, or not to its end, so that it is kept and not looked at again. The path that
/// it has now: the old one when it can't be renamed.
std::string keepDamagedJournal(Editor& editor, std::uint64_t number);
/// The path that it would get.
std::string damagedPath(const Editor& editor, std::uint64_t number);
std::string journalDirectory(const Editor& editor);
std::string journalPath(const Editor& editor, std::uint64_t number);
/// The number in the name of a journal; 0: no journal has that name.
std::uint64_t journalNumber(const std::string& name);

} // namespace tarvex
