#include "language/associated_files.h"

#include "platform/dos_path.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvex {

namespace {

struct Family {
    std::string_view joystickFile;
    std::string_view macroFile;
};
constexpr std::array<Family, 3> families{{{"f22", "m22"}, {"b50", "m50"}, {"adv", "mdf"}}};

const Family* familyBy(std::string_view Family::*extension, const std::string& path)
{
    const auto* const family = std::ranges::find(families, lastThree(path), extension);
    return family == families.end() ? nullptr : family;
}

/// Decided by the family of the file, not by the hardware that is set.
std::string macroExtensionFor(const std::string& joystickPath, const Settings& settings)
{
    const Family* family = familyBy(&Family::joystickFile, joystickPath);
    return family ? std::string(family->macroFile) : std::string(settings.MacroExtension);
}

} // namespace

FileKind kindOfFile(const std::string& name)
{
    if (familyBy(&Family::joystickFile, name)) return FileKind::Joystick;
    if (familyBy(&Family::macroFile, name)) return FileKind::Macro;
    return FileKind::Other;
}

std::string associatedJoystickFile(const std::string& macroPath, const Settings& settings)
{
    const Family* family = familyBy(&Family::macroFile, macroPath);
    return withLastThree(macroPath, family ? family->joystickFile : std::string_view(settings.JoystickExtension));
}

std::string associatedMacroFile(const std::string& joystickPath, const Settings& settings)
{
    return withLastThree(joystickPath, macroExtensionFor(joystickPath, settings));
}

std::string macroFileByMdef(Pane& joystickText, const std::string& joystickPath, const Settings& settings)
{
    constexpr std::string_view word = "MDEF";
    const auto length = static_cast<std::int64_t>(word.size());
    std::int64_t last = -1;
    for (std::int64_t hit = joystickText.Find(word, 0); hit >= 0; hit = joystickText.Find(word, last + length))
        last = hit;
    if (last < 0) return {};

    joystickText.setSelStart(last + length + 1); // past the blank behind the word
    joystickText.Span("\r\n ", true, true);
    const std::string name =
        utf8FromWindows1252(joystickText.SelText()) + "." + macroExtensionFor(joystickPath, settings);
    return lowerUtf8(directoryOf(joystickPath) + name);
}

} // namespace tarvex
