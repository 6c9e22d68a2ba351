#include "documents/recovery/offer/recovery_find.h"

#include "documents/recovery/journal/recovery_journal.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <set>

namespace tarvex {

namespace {

constexpr std::string_view tag = "ED_findJournals";
constexpr std::uint64_t largest = std::uint64_t{1} << 30; // a file beyond that is none of ours

/// The contents of a file that may be one of these sizes; nothing when it has another one or can't be read.
std::optional<std::string> contentsOfSize(const FileSystem& files, const std::string& path,
                                          std::initializer_list<std::uint64_t> sizes)
{
    const std::uint64_t size = files.stamp(path).size;
    std::optional<std::string> contents;
    const Steps step;
    if (std::find(sizes.begin(), sizes.end(), size) != sizes.end()) step([&] { contents = files.read(path); });
    return contents;
}

/// Everything typed is in the file already, or was taken back. A base that stands in no file, as that of a text which
/// came back under a new name, isn't to be found anywhere else.
bool isNeedless(const Editor& editor, LeftJournal& left)
{
    const JournalStart& start = left.journal.start;
    const std::string& text = left.journal.text;
    const FileSystem& files = editor.platform.files;
    if (files.fileExists(start.path)) {
        const auto now = contentsOfSize(files, start.path, {text.size(), start.file ? start.file->size : text.size()});
        left.fileIsSame = now && start.file && sumOf(*now) == *start.file;
        if (now == text) return true;
    } else {
        left.fileIsSame = !start.file;
    }
    return left.fileIsSame && text == start.base && (start.file || start.base.empty());
}

/// Nothing for a file that holds no text.
std::optional<LeftJournal> readLeft(Editor& editor, std::uint64_t number, FoundJournals& found)
{
    const FileSystem& files = editor.platform.files;
    const std::string path = journalPath(editor, number);
    if (files.stamp(path).size > largest) return std::nullopt;
    LeftJournal left;
    left.number = number;
    switch (readJournal(files.read(path), left.journal)) {
    case JournalState::Readable:
        if (left.journal.damaged) editor.DamagedJournals.insert(number);
        return left;
    case JournalState::Damaged:
        found.unreadable.push_back(keepDamagedJournal(editor, number));
        return std::nullopt;
    case JournalState::Unbegun:
        removeJournal(editor, number);
        return std::nullopt;
    case JournalState::OtherVersion:
        break;
    }
    return std::nullopt;
}

void readAll(Editor& editor, FoundJournals& found)
{
    const Steps step(editor.shared.errors, tag);
    const std::string directory = journalDirectory(editor);
    if (!editor.platform.files.directoryExists(directory)) return;
    std::set<std::uint64_t, std::greater<>> numbers;
    step([&] {
        for (const std::string& name : editor.platform.files.list(directory)) numbers.insert(journalNumber(name));
    });
    numbers.erase(0);
    for (const std::uint64_t number : numbers) {
        step([&] {
            if (auto left = readLeft(editor, number, found)) found.withText.push_back(std::move(*left));
        });
    }
}

/// A journal was begun in the place of that one, and has all that it has. Numbers only grow, so one that claims the
/// place of a later one, or its own, is wrong about that.
bool isReplaced(const LeftJournal& left, const std::vector<LeftJournal>& all)
{
    return std::any_of(all.begin(), all.end(), [&](const LeftJournal& other) {
        return other.number > left.number && other.journal.start.replaces == left.number &&
               other.journal.start.tab == left.journal.start.tab;
    });
}

} // namespace

FoundJournals findJournals(Editor& editor, std::initializer_list<int> tabs)
{
    FoundJournals found;
    readAll(editor, found);
    std::erase_if(found.withText, [&](const LeftJournal& left) {
        return std::ranges::find(tabs, left.journal.start.tab) == tabs.end();
    });
    std::vector<LeftJournal> wanted;
    for (LeftJournal& left : found.withText) {
        const bool replaced = isReplaced(left, found.withText);
        if (!replaced && !isNeedless(editor, left)) {
            wanted.push_back(left);
        } else if (!replaced && left.journal.damaged) {
            found.unreadable.push_back(keepDamagedJournal(editor, left.number)); // the file may lack what is in there
        } else {
            removeJournal(editor, left.number);
        }
    }
    found.withText = std::move(wanted);
    return found;
}

} // namespace tarvex
