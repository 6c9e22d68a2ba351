#include "templates/shipped_templates.h"

#include "platform/profile_file.h"
#include "shell/errors.h"

namespace tarvex {

namespace {

constexpr std::string_view section = "Extras";
constexpr std::string_view key = "TemplatesCopied";

/// False: it isn't there and couldn't be written.
bool copyTemplate(FileSystem& files, const std::string& folder, const ShippedTemplate& one)
{
    const Steps step;
    return step([&] {
        const std::string path = folder + one.name;
        if (!files.fileExists(path) && !files.directoryExists(path)) files.write(path, one.bytes);
    });
}

} // namespace

std::string templatesFolder(const Platform& platform) { return platform.programDirectory + "\\Templates\\"; }

void copyShippedTemplates(const Platform& platform, const std::function<std::vector<ShippedTemplate>()>& read)
{
    const Steps step;
    step([&] {
        ProfileFile ini(platform.files, platform.programDirectory + "\\Platform.ini");
        if (ini.readString(section, key, "") == "1") return;
        const std::string folder = templatesFolder(platform);
        if (!platform.files.directoryExists(folder)) platform.files.createDirectory(folder);
        bool complete = true;
        for (const ShippedTemplate& one : read()) complete = copyTemplate(platform.files, folder, one) && complete;
        if (complete) ini.writeString(section, key, "1");
    });
}

} // namespace tarvex
