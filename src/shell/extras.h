#pragma once

#include "platform/profile_file.h"
#include "platform/signal.h"

#include <span>
#include <string_view>

namespace tarvex {

/// A choice that goes beyond the program's settings: a tick on the page "Extras" of the preferences, kept as 0 or 1 in
/// the section Extras of Platform.ini. A feature that has one adds a row to the table in extras.cpp.
struct ExtraTick {
    std::string_view key;
    const char* caption; ///< with an access key that the page has not yet
    const char* tip;
    bool standard; ///< what it is until the user chooses
};
std::span<const ExtraTick> extraTicks();

namespace extraKey {
constexpr std::string_view askForFiles = "AskForFiles";
constexpr std::string_view printPageNumbers = "PrintPageNumbers";
constexpr std::string_view printFileName = "PrintFileName";
constexpr std::string_view lineNumbers = "LineNumbers";
constexpr std::string_view currentLine = "CurrentLine";
constexpr std::string_view darkFiles = "DarkFiles";
constexpr std::string_view colourAsTyped = "ColourAsTyped";
} // namespace extraKey

/// The ticks as Platform.ini has them; nothing is cached.
class Extras {
public:
    /// The file outlives this.
    explicit Extras(ProfileFile& ini) : m_ini(ini) {}

    /// Throws std::out_of_range for a key without a row.
    bool on(std::string_view key) const;
    void set(std::string_view key, bool on);

    Signal<std::string_view> changed; ///< the tick with this key was set to another value, which is written

private:
    ProfileFile& m_ini;
};

} // namespace tarvex
