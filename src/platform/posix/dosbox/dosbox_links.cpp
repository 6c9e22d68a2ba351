#include "platform/posix/dosbox/dosbox_links.h"

#include "platform/posix/dosbox/dosbox_names.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <filesystem>

namespace tarvex {

namespace {

namespace fs = std::filesystem;

std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        names.push_back(entry->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string stemOf(const std::string& file) { return fs::path(file).stem().string(); }

/// Of the extension remains what DOS can have.
std::string dosExtension(const std::string& file)
{
    std::string extension;
    for (const char c : fs::path(file).extension().string()) {
        if (isPlainDosCharacter(c) && extension.size() < 3) extension += c;
    }
    return extension.empty() ? extension : "." + upperWindows1252(extension);
}

} // namespace

DosboxLinks::DosboxLinks(const DosboxFolder& folder, const std::string& name, const std::string& directory)
    : m_folder(folder), m_name(name), m_directory(directory), m_files(namesIn(directory))
{
    m_folder.makeDirectory(m_name);
    std::map<std::string, int> twins; // that differ by case only
    for (const std::string& file : m_files) ++twins[lowerUtf8(file)];
    for (const std::string& file : m_files) {
        if (isPlainDosName(file) && twins[lowerUtf8(file)] == 1) link(file, upperWindows1252(file));
    }
}

void DosboxLinks::link(const std::string& file, const std::string& name)
{
    m_folder.link(m_name + "/" + name, m_directory + "/" + file);
    m_names[name] = file;
}

std::string DosboxLinks::nameOf(const std::string& file)
{
    const std::string plain = upperWindows1252(file);
    const auto own = m_names.find(plain);
    if (own != m_names.end() && own->second == file) return plain;
    if (!m_aliases.contains(file)) linkFamily(stemOf(file));
    if (!m_aliases.contains(file)) { // new, or one whose name here another one of the family has
        m_aliases[file] = freeStem() + dosExtension(file);
        link(file, m_aliases[file]);
    }
    return m_aliases[file];
}

/// All of that name up to the extension, as many as can have different names here.
void DosboxLinks::linkFamily(const std::string& stem)
{
    const std::string alias = freeStem();
    for (const std::string& file : m_files) {
        const std::string name = alias + dosExtension(file);
        if (stemOf(file) != stem || m_names.contains(name)) continue;
        link(file, name);
        m_aliases[file] = name;
    }
}

std::string DosboxLinks::freeStem() const
{
    for (int number = 1;; ++number) {
        const std::string stem = "FILE" + std::to_string(number);
        const bool taken =
            std::any_of(m_names.begin(), m_names.end(), [&](const auto& entry) { return stemOf(entry.first) == stem; });
        if (!taken) return stem;
    }
}

} // namespace tarvex
