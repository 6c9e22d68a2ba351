#pragma once

#include "platform/profile_file.h"
#include "shell/errors.h"
#include "shell/settings.h"
#include "shell/settings_table.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// Moves settings between memory and the INI files, by the table of all keys. Nothing is cached beyond the files'
/// text: what another program wrote is seen at the next read. Reads and writes never fail for the caller; a value that
/// can't be converted leaves its member as it was and is reported under the procedure's tag.
class SettingsStore {
public:
    SettingsStore(FileSystem& files, std::string programDirectory, Settings& settings, ErrorRecord& errors);

    /// The keys that this procedure reads, in the table's order.
    void read(Access procedure, std::string_view tag);
    /// The keys that this procedure writes, one profile call each; they reach the disk together.
    void write(Access procedure, std::string_view tag);

    void GetOptions();
    void SaveOptions();
    void GetColours();
    /// Sets the factory values of a new installation in memory and writes them.
    void ColoursSortOut();

    void GetOpenSingleOnly() { read(Access::GetOpenSingleOnly, "MODULE GetOpenSingleOnly"); }
    void SaveOpenSingleOnly() { write(Access::SaveOpenSingleOnly, "MODULE SaveOpenSingleOnly"); }
    void GetIndentStuff() { read(Access::GetIndentStuff, "MODULE GetIndentStuff"); }
    void SaveIndentStuff() { write(Access::SaveIndentStuff, "MODULE SaveIndentStuff"); }

    /// Holds the writes of several procedures back until it ends, so that each INI file is written once.
    class Batch {
    public:
        explicit Batch(SettingsStore& store);

    private:
        std::array<std::optional<ProfileFile::Batch>, 4> m_files;
    };

    /// A file whose last write failed. Its settings are in memory all the same, and are written with the next change.
    struct WriteFailure {
        std::string path;
        std::string reason;
    };
    std::vector<WriteFailure> writeFailures() const;

    /// Full path of an INI file.
    std::string pathOf(IniFile file) const;

private:
    ProfileFile& file(IniFile which);
    void readRow(const SettingRow& row);
    void writeRow(const SettingRow& row);
    int countOf(const SettingRow& row) const;

    FileSystem& m_files;
    std::string m_programDirectory;
    Settings& m_settings;
    ErrorRecord& m_errors;
    std::array<std::unique_ptr<ProfileFile>, 4> m_profiles;
};

} // namespace tarvex
