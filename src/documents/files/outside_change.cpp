#include "documents/files/outside_change.h"

#include "documents/files/largest_text.h"
#include "documents/recovery/recovery_format.h"
#include "platform/dos_path.h"
#include "platform/free_path.h"

#include <algorithm>

namespace tarvex {

namespace {

constexpr std::string_view mark = "-outside";

/// A file of another size needn't be read, however large it is.
bool holds(const FileSystem& files, const std::string& path, const FileSum& sum)
{
    return files.stamp(path).size == sum.size && sumOf(files.read(path)) == sum;
}

/// "mig-outside.b50"
std::string outsideName(const std::string& name)
{
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    return name.substr(0, dot) + std::string(mark) + name.substr(dot);
}

std::string outsidePath(const Editor& editor, const std::string& path)
{
    return freePath(editor.platform.files, editor.shared.BackupDirectory, outsideName(fileNameOf(path)));
}

Answer askOnce(Editor& editor, const Side& side)
{
    return editor.platform.dialogues.show(
        {.title = "Whoa ... not so fast!",
         .text = side.FileName +
                 " was changed by another program since I opened it, and I'd hate to wipe out somebody's work. If you "
                 "save it anyway, I'll put the other version aside first, as\n\n    " +
                 outsidePath(editor, side.FilePath) +
                 "\n\nOr give yours another name, and you'll have both. Or cancel, and have a look at what's there.",
         .icon = BoxIcon::Exclamation,
         .buttons = BoxButtons::YesNoCancel,
         .secondButtonIsDefault = true,
         .captions = {"&Save anyway", "Another &name ...", "", "Show the &differences ..."}});
}

Answer askWhatToDo(Editor& editor, const Side& side)
{
    Answer answer = askOnce(editor, side);
    while (answer == Answer::Ok) { // the button beside the usual ones
        editor.platform.dialogues.showModal("Differences");
        answer = askOnce(editor, side);
    }
    return answer;
}

std::vector<FileSum> harmlessContents(const Side& side)
{
    std::vector<FileSum> sums{sumOf(side.pane.Text())};
    if (side.Journal.File) sums.push_back(*side.Journal.File);
    return sums;
}

} // namespace

FileNews fileNews(const Editor& editor, const Side& side)
{
    using Kind = FileNews::Kind;
    const FileSystem& files = editor.platform.files;
    if (!side.Journal.File) return {};
    if (files.directoryExists(side.FilePath)) return {Kind::Unreadable};
    const bool isThere = files.stamp(side.FilePath).identity != 0;
    if (!isThere) return {Kind::Gone};
    if (isTooLarge(editor, side.FilePath)) return {Kind::TooLarge, {.size = files.stamp(side.FilePath).size}};
    FileNews news{Kind::Unreadable};
    const Steps step;
    step([&] {
        const FileSum sum = sumOf(files.read(side.FilePath));
        const auto harmless = harmlessContents(side);
        const bool isHarmless = std::ranges::find(harmless, sum) != harmless.end();
        news = isHarmless ? FileNews{} : FileNews{Kind::Changed, sum};
    });
    return news;
}

OutsideChange outsideChange(const Editor& editor, const Side& side)
{
    if (!holdsSomethingElse(editor, side.FilePath, harmlessContents(side))) return OutsideChange::None;
    return side.Journal.File ? OutsideChange::Changed : OutsideChange::Unknown;
}

Overwriting agreeOnOverwriting(Editor& editor, const Side& side)
{
    if (!side.Journal.File) return Overwriting::Agreed; // never read nor written: asked about by Save As
    const FileSystem& files = editor.platform.files;
    std::vector<FileSum> harmless = harmlessContents(side);
    // The user may take his time to answer: what was written meanwhile is asked about, too.
    while (holdsSomethingElse(editor, side.FilePath, harmless)) {
        const Answer answer = askWhatToDo(editor, side);
        if (answer == Answer::No) return Overwriting::UnderAnotherName;
        if (answer != Answer::Yes) return Overwriting::Cancelled;
        harmless.push_back(sumOf(files.read(keepOutsideVersion(editor, side.FilePath))));
    }
    return Overwriting::Agreed;
}

bool holdsSomethingElse(const Editor& editor, const std::string& path, const std::vector<FileSum>& harmless)
{
    const FileSystem& files = editor.platform.files;
    if (!files.fileExists(path)) return false;
    bool isHarmless = false;
    const Steps step;
    step([&] {
        isHarmless = std::ranges::any_of(harmless, [&](const FileSum& sum) { return holds(files, path, sum); });
    });
    return !isHarmless;
}

std::string keepOutsideVersion(Editor& editor, const std::string& path)
{
    FileSystem& files = editor.platform.files;
    const std::string& directory = editor.shared.BackupDirectory;
    if (!files.directoryExists(directory)) files.createDirectory(directory);
    std::string copy = outsidePath(editor, path);
    files.copyPrivate(path, copy);
    return copy;
}

bool isOutsideVersion(std::string_view name)
{
    std::string_view stem = name.substr(0, name.rfind('.'));
    const std::size_t number = stem.find_last_not_of("0123456789");
    if (number != std::string_view::npos && number + 1 < stem.size() && stem[number] == '-')
        stem = stem.substr(0, number);
    return stem.ends_with(mark);
}

} // namespace tarvex
