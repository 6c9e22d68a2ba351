#include "preferences/installation.h"

#include "platform/dos_path.h"
#include "platform/free_path.h"
#include "platform/profile_file.h"
#include "shell/settings_table.h"

#include <algorithm>
#include <deque>

namespace tarvex {

namespace {

constexpr std::size_t entriesSearched = 50'000;

constexpr IniFile settingsFiles[] = {IniFile::Tarvex, IniFile::Layouts, IniFile::Tca};

std::vector<std::string> namesIn(const FileSystem& files, const std::string& folder)
{
    try {
        std::vector<std::string> names = files.list(folder);
        std::sort(names.begin(), names.end());
        return names;
    } catch (const RuntimeError&) {
        return {};
    }
}

std::string megabytes(std::uint64_t bytes) { return std::to_string(bytes >> 20) + " MB"; }

void leaveOut(FoundPart& part, const std::string& name, const std::string& reason)
{
    constexpr std::size_t mostText = 1000;
    if (part.leftOut.size() > mostText) {
        if (!part.leftOut.ends_with("...")) part.leftOut += "\n...";
        return;
    }
    part.leftOut += "\n" + name + ": " + reason;
}

/// The file is one to take: it counts, or is noted as left out.
bool count(const FileSystem& files, const std::string& root, FoundPart& part, const std::string& name)
{
    const std::string path = part.folder + name;
    if (!files.fileExists(path)) return false;
    const std::uint64_t size = files.stamp(path).size;
    if (!files.liesWithin(path, root)) {
        leaveOut(part, name, "a link that leads out of the folder");
    } else if (size > importBound::fileBytes) {
        leaveOut(part, name, "larger than " + megabytes(importBound::fileBytes));
    } else {
        part.files.push_back(name);
        part.bytes += size;
        return true;
    }
    return false;
}

/// At least one key of ours.
bool holdsSettings(FileSystem& files, const std::string& path, IniFile which)
{
    const ProfileFile ini(files, path);
    const std::string none = "\x01";
    const auto& table = settingsTable();
    return std::any_of(table.begin(), table.end(), [&](const SettingRow& row) {
        const bool family = !std::holds_alternative<std::monostate>(row.count);
        const std::string key = std::string(row.key) + (family ? "1" : "");
        return row.file == which && ini.readString(row.section, key, none) != none;
    });
}

void countIni(FileSystem& files, const std::string& root, FoundPart& part, IniFile which)
{
    const std::string name(fileNameOf(which));
    if (!count(files, root, part, name)) return;
    if (holdsSettings(files, part.folder + name, which)) return;
    part.bytes -= files.stamp(part.folder + name).size;
    part.files.pop_back();
    leaveOut(part, name, "damaged; there is no setting in it");
}

template <typename Wanted>
void countFolder(const FileSystem& files, const std::string& root, FoundPart& part, Wanted wanted)
{
    const std::string folder = part.folder.substr(0, part.folder.size() - 1);
    if (files.fileExists(folder)) {
        part.whyNot = fileNameOf(folder) + " is a file and no folder";
    } else if (files.directoryExists(folder) && !files.liesWithin(folder, root)) {
        part.whyNot = fileNameOf(folder) + " is a link that leads out of the folder";
    }
    if (!part.whyNot.empty()) return;
    for (const std::string& name : namesIn(files, folder)) {
        if (wanted(name)) count(files, root, part, name);
        if (part.files.size() <= importBound::files && part.bytes <= importBound::partBytes) continue;
        part.whyNot = "more than " + std::to_string(importBound::files) + " files or " +
                      megabytes(importBound::partBytes) + "; copy what you want of it by hand";
        return;
    }
}

/// The folder with what it had before, for files that come together or not at all.
struct Replaced {
    std::string path;
    std::optional<std::string> before;
};

void putBack(FileSystem& files, const std::vector<Replaced>& done)
{
    for (const Replaced& file : done) {
        try {
            if (file.before) {
                files.write(file.path, *file.before);
            } else {
                files.removeFile(file.path);
            }
        } catch (const RuntimeError&) { // the copy that was made first has it
        }
    }
}

void copyTogether(FileSystem& files, const FoundPart& part, const std::string& to, ImportReport& report)
{
    std::vector<Replaced> done;
    try {
        std::vector<std::string> contents;
        for (const std::string& name : part.files) contents.push_back(files.read(part.folder + name));
        for (std::size_t i = 0; i < part.files.size(); ++i) {
            const std::string path = to + part.files[i];
            std::optional<std::string> before;
            if (files.fileExists(path)) before = files.read(path);
            files.write(path, contents[i]);
            done.push_back({path, std::move(before)});
        }
        report.copied += done.size();
    } catch (const RuntimeError& error) {
        putBack(files, done);
        report.problems += "\n" + part.files.at(done.size() < part.files.size() ? done.size() : 0) + ": " +
                           error.what() + " (so I've left these settings as they were)";
    }
}

void copyBeside(FileSystem& files, const FoundPart& part, const std::string& name, const std::string& to,
                ImportReport& report)
{
    const std::string bytes = files.read(part.folder + name);
    const bool isThere = files.fileExists(to + name);
    if (isThere && files.stamp(to + name).size == bytes.size() && files.read(to + name) == bytes) return;
    files.writePrivate(freePath(files, to, name), bytes);
    ++report.copied;
}

void copyFolder(FileSystem& files, const FoundPart& part, const std::string& to, ImportReport& report)
{
    constexpr int mostFailures = 3;
    int failures = 0;
    for (const std::string& name : part.files) {
        try {
            const std::string folder = to.substr(0, to.size() - 1);
            if (!files.directoryExists(folder)) files.createDirectory(folder);
            copyBeside(files, part, name, to, report);
        } catch (const RuntimeError& error) {
            report.problems += "\n" + name + ": " + error.what();
            if (++failures < mostFailures) continue;
            report.problems +=
                "\nI gave up on the rest of " + fileNameOf(part.folder.substr(0, part.folder.size() - 1));
            return;
        }
    }
}

std::string keepToday(FileSystem& files, const std::string& programDirectory)
{
    const std::string folder = freePath(files, programDirectory + "\\", "Settings before import");
    files.createDirectory(folder);
    for (const std::string_view name :
         {fileNameOf(IniFile::Tarvex), fileNameOf(IniFile::Lists), fileNameOf(IniFile::Layouts),
          fileNameOf(IniFile::Tca), std::string_view("Platform.ini")}) {
        const std::string file(name);
        if (files.fileExists(programDirectory + "\\" + file))
            files.copyPrivate(programDirectory + "\\" + file, folder + "\\" + file);
    }
    return folder;
}

bool isTemplate(const std::string& name)
{
    const std::string extension = lastThree(name);
    return extension == "rtf" || extension == "txt";
}

} // namespace

bool Installation::isEmpty() const
{
    return std::all_of(parts.begin(), parts.end(), [](const FoundPart& part) {
        return part.files.empty() && part.whyNot.empty() && part.leftOut.empty();
    });
}

std::string findInstallation(const FileSystem& files, const std::string& folder)
{
    std::deque<std::string> waiting{folder};
    std::size_t entries = 0;
    for (std::size_t searched = 0; !waiting.empty() && searched < importBound::folders; ++searched) {
        const std::string here = waiting.front();
        waiting.pop_front();
        const std::string inside = here.ends_with('\\') ? here : here + "\\";
        if (files.fileExists(inside + "Tarvex.ini")) return here;
        for (const std::string& name : namesIn(files, here)) {
            if (++entries > entriesSearched) return folder;
            if (files.directoryExists(inside + name) && files.liesWithin(inside + name, folder))
                waiting.push_back(inside + name);
        }
    }
    return folder;
}

Installation examine(FileSystem& files, const std::string& folder)
{
    Installation found;
    found.folder = folder.ends_with('\\') ? folder.substr(0, folder.size() - 1) : folder;
    for (FoundPart& part : found.parts) part.folder = found.folder + "\\";
    const std::string root = found.folder + "\\";
    for (const IniFile which : settingsFiles) countIni(files, root, found[ImportPart::Settings], which);
    countIni(files, root, found[ImportPart::Lists], IniFile::Lists);
    found[ImportPart::Templates].folder += "Templates\\";
    found[ImportPart::Backups].folder += "Backup\\";
    countFolder(files, root, found[ImportPart::Templates], isTemplate);
    countFolder(files, root, found[ImportPart::Backups], [](const std::string&) { return true; });
    return found;
}

std::string sizeText(const FoundPart& part)
{
    const std::string files = part.files.size() == 1 ? "1 file" : std::to_string(part.files.size()) + " files";
    const std::uint64_t kilobytes = (part.bytes + 1023) >> 10;
    return files + ", " + (kilobytes < 10'000 ? std::to_string(kilobytes) + " KB" : megabytes(part.bytes));
}

ImportReport import(FileSystem& files, const Installation& from, const std::array<bool, importParts>& ticked,
                    const std::string& programDirectory)
{
    ImportReport report;
    report.keptIn = keepToday(files, programDirectory);
    const auto take = [&](ImportPart part, auto copy, const std::string& to) {
        const FoundPart& found = from[part];
        if (ticked[static_cast<std::size_t>(part)] && found.whyNot.empty() && !found.files.empty())
            copy(files, found, to, report);
    };
    take(ImportPart::Settings, copyTogether, programDirectory + "\\");
    take(ImportPart::Lists, copyTogether, programDirectory + "\\");
    take(ImportPart::Templates, copyFolder, programDirectory + "\\Templates\\");
    take(ImportPart::Backups, copyFolder, programDirectory + "\\Backup\\");
    return report;
}

} // namespace tarvex
