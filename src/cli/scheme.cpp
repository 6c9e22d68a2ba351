#include "cli/scheme.h"

#include "cli/input.h"
#include "platform/errors.h"
#include "shell/settings_store.h"

namespace tarvex::cli {

namespace {

/// A disk that gives the same file for every path and drops what is written.
class OneFile final : public FileSystem {
public:
    explicit OneFile(std::string bytes) : m_bytes(std::move(bytes)) {}

    bool fileExists(const std::string&) const override { return true; }
    bool directoryExists(const std::string&) const override { return true; }
    bool isReadOnly(const std::string&) const override { return true; }
    FileStamp stamp(const std::string&) const override { return {m_bytes.size(), 0, 1}; }
    std::string read(const std::string&) const override { return m_bytes; }
    void write(const std::string&, const std::string&) override {}
    void createDirectory(const std::string&) override {}
    void removeFile(const std::string&) override {}
    std::vector<std::string> list(const std::string&) const override { return {}; }

private:
    std::string m_bytes;
};

} // namespace

Settings readScheme(const std::string& iniPath)
{
    Settings settings;
    ErrorRecord errors;
    OneFile files(iniPath.empty() ? std::string() : readInput(iniPath));
    SettingsStore store(files, "c:", settings, errors);
    if (iniPath.empty())
        store.ColoursSortOut();
    else
        store.GetColours();
    return settings;
}

std::vector<std::string> readPreviousFiles(const std::string& iniPath)
{
    Settings settings;
    ErrorRecord errors;
    OneFile files(readInput(iniPath));
    SettingsStore(files, "c:", settings, errors).read(Access::GetPreviousFiles, "");
    std::vector<std::string> paths;
    for (const SettingText& path : settings.JFPath) paths.push_back(path.whole());
    return paths;
}

} // namespace tarvex::cli
