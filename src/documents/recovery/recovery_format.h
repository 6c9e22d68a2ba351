#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The file that keeps what is typed until it is saved: a mark, a start record with the text as it was saved last and
// what has become of it, and a record for each edit since, and for each other file in the pane beside it. Each record
// carries its length and a check sum that also covers all records before it, so that a half-written end, or one of
// another time, is detected.

namespace tarvex {

/// Quick, and of 64 bits; against accidents, not against malice. `seed` continues an earlier sum.
std::uint64_t checkSum(std::string_view bytes, std::uint64_t seed = 0);

/// Distinguishes two contents of a file.
struct FileSum {
    std::uint64_t size = 0;
    std::uint64_t sum = 0;
    bool operator==(const FileSum&) const = default;
};
FileSum sumOf(std::string_view bytes);

/// `removed` characters at `position` give way to `inserted`.
struct TextEdit {
    std::uint64_t position = 0;
    std::uint64_t removed = 0;
    std::string inserted;
    bool operator==(const TextEdit&) const = default;
};
/// The smallest edit that makes the one text the other.
TextEdit differenceOf(std::string_view from, std::string_view to);
/// False, and nothing done: the text has no such place.
bool apply(std::string& text, const TextEdit& edit);

struct JournalStart {
    int tab = 1;                ///< 1 joystick, 2 macro
    std::uint64_t replaces = 0; ///< number of the journal whose place this one takes; 0: none
    std::string path;           ///< of the document, UTF-8
    std::string name;
    std::string partnerPath;     ///< the file in the other pane; empty: a new one
    std::optional<FileSum> file; ///< what the path held when the text was the base; none: no file
    std::string base;            ///< the text as it was opened or saved, Windows-1252
    TextEdit edit;               ///< made of the base since
    bool operator==(const JournalStart&) const = default;
};

// The bytes to append, in order. `chain` is the check sum so far: 0 at first, brought up to date by each call.
std::string journalStart(const JournalStart& start, std::uint64_t& chain);
std::string journalEdit(const TextEdit& edit, std::uint64_t& chain);
/// The file in the other pane is another one now.
std::string journalPartner(std::string_view path, std::uint64_t& chain);
/// One record with contents that may be anything.
std::string journalRecord(char kind, std::string_view contents, std::uint64_t& chain);
std::string_view journalMark();

namespace journalKind {
constexpr char start = 'S';
constexpr char edit = 'E';
constexpr char partner = 'P';
} // namespace journalKind

struct Journal {
    JournalStart start;
    std::string text;     ///< after the last edit that is whole
    bool damaged = false; ///< there was more, which can't be read
};

enum class JournalState {
    Readable,
    Unbegun,      ///< cut off before anything of the text was there
    Damaged,      ///< its first text can't be read, or it is no journal at all
    OtherVersion, ///< of a program that writes them in another way
};
/// Any bytes. Reads up to the first record that isn't whole; the journal is there when the start is. A last record that
/// was cut short, as by a crash, is no damage.
JournalState readJournal(std::string_view bytes, Journal& journal);

} // namespace tarvex
