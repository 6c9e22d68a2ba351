#include "shell/shipped_files.h"

#include "platform/profile_file.h"
#include "shell/errors.h"

namespace tarvex {

namespace {

constexpr std::string_view section = "Extras";

void makeFolderOf(FileSystem& files, const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('\\'));
    if (!files.directoryExists(folder)) files.createDirectory(folder);
}

/// False: it isn't there and couldn't be written.
bool copyFile(FileSystem& files, const std::string& path, const std::string& bytes)
{
    const Steps step;
    return step([&] {
        if (files.fileExists(path) || files.directoryExists(path)) return;
        makeFolderOf(files, path);
        files.write(path, bytes);
    });
}

} // namespace

void copyShippedFiles(const Platform& platform, std::string_view key,
                      const std::function<std::vector<ShippedFile>()>& read)
{
    const Steps step;
    step([&] {
        ProfileFile ini(platform.files, platform.programDirectory + "\\Platform.ini");
        if (ini.readString(section, key, "") == "1") return;
        const std::vector<ShippedFile> shipped = read();
        bool complete = !shipped.empty();
        for (const ShippedFile& one : shipped)
            complete = copyFile(platform.files, platform.programDirectory + "\\" + one.name, one.bytes) && complete;
        if (complete) ini.writeString(section, key, "1");
    });
}

} // namespace tarvex
