#include "documents/recovery/offer/recovery_find.h"

#include "documents/recovery/journal/recovery_journal.h"

#include <functional>
#include <set>

namespace tarvex {

namespace {

constexpr std::string_view tag = "ED_findJournals";
constexpr std::uint64_t largest = std::uint64_t{1} << 30; // a file beyond that is none of ours

/// The sum of what the path holds now; none when there is no such file.
std::optional<FileSum> sumOfFile(const Editor& editor, const std::string& path)
{
    if (!editor.platform.files.fileExists(path)) return std::nullopt;
    const Steps step;
    FileSum sum{UINT64_MAX, 0}; // of a file that can't be read: it isn't what it was
    step([&] { sum = sumOf(editor.platform.files.read(path)); });
    return sum;
}

/// Everything typed is in the file already, or was taken back. A base that stands in no file, as that of a text which
/// came back under a new name, isn't to be found anywhere else.
bool isNeedless(Editor& editor, LeftJournal& left)
{
    const JournalStart& start = left.journal.start;
    const std::string& text = left.journal.text;
    const auto now = sumOfFile(editor, start.path);
    left.fileIsSame = now == start.file;
    if (now && *now == sumOf(text)) return true;
    return left.fileIsSame && text == start.base && (start.file || start.base.empty());
}

/// Nothing for a file that holds no text; it is removed when it is ours.
std::optional<LeftJournal> readLeft(Editor& editor, std::uint64_t number)
{
    const FileSystem& files = editor.platform.files;
    const std::string path = journalPath(editor, number);
    if (files.stamp(path).size > largest) return std::nullopt;
    LeftJournal left;
    left.number = number;
    const JournalState state = readJournal(files.read(path), left.journal);
    if (state == JournalState::Unbegun) removeJournal(editor, number);
    if (state != JournalState::Readable) return std::nullopt;
    return left;
}

std::vector<LeftJournal> readAll(Editor& editor)
{
    const Steps step(editor.shared.errors, tag);
    const std::string directory = journalDirectory(editor);
    if (!editor.platform.files.directoryExists(directory)) return {};
    std::set<std::uint64_t, std::greater<>> numbers;
    step([&] {
        for (const std::string& name : editor.platform.files.list(directory)) numbers.insert(journalNumber(name));
    });
    numbers.erase(0);
    std::vector<LeftJournal> journals;
    for (const std::uint64_t number : numbers) {
        step([&] {
            if (auto left = readLeft(editor, number)) journals.push_back(std::move(*left));
        });
    }
    return journals;
}

} // namespace

std::vector<LeftJournal> findJournals(Editor& editor)
{
    std::vector<LeftJournal> journals = readAll(editor);
    std::set<std::uint64_t> replaced;
    for (const LeftJournal& left : journals) replaced.insert(left.journal.start.replaces);
    std::erase_if(journals, [&](LeftJournal& left) {
        // One that was about to take another's place has all that the other has.
        if (!replaced.contains(left.number) && !isNeedless(editor, left)) return false;
        removeJournal(editor, left.number);
        return true;
    });
    return journals;
}

} // namespace tarvex
