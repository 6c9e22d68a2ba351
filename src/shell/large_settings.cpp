#include "shell/large_settings.h"

#include "platform/profile_file.h"
#include "shell/settings_table.h"

#include <string>

namespace tarvex {

void reportLargeSettings(const Platform& platform)
{
    std::string paths;
    for (const std::string_view name :
         {fileNameOf(IniFile::Tarvex), fileNameOf(IniFile::Lists), fileNameOf(IniFile::Layouts),
          fileNameOf(IniFile::Tca), std::string_view("Platform.ini")}) {
        const std::string path = platform.programDirectory + "\\" + std::string(name);
        if (platform.files.stamp(path).size > largestProfile) paths += "\n    " + path;
    }
    if (paths.empty()) return;
    platform.dialogues.show({.title = "That's a lot of settings ...",
                             .text = "This is larger than 16 MB, so I haven't read it, and I won't write to it "
                                     "either:\n" +
                                     paths +
                                     "\n\nI've started with the settings that I was born with, and I'll forget what "
                                     "you change there until you've moved it away.",
                             .icon = BoxIcon::Exclamation});
}

} // namespace tarvex
