#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <vector>

namespace tarvex {

/// A directory of the real disk that is gone, with all in it, at the end of the test.
class TemporaryDirectory {
public:
    explicit TemporaryDirectory(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
    {
        std::string name = (std::filesystem::canonical(parent) / "tarvex-test-XXXXXX").string();
        if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary directory in " + parent.string());
        m_path = name;
    }
    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    std::string path() const { return m_path.string(); }
    std::string operator/(const std::string& name) const { return (m_path / name).string(); }

    /// Makes the file and the directories on the way; returns its path.
    std::string put(const std::string& name, const std::string& bytes) const
    {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file.string();
    }
    std::string makeDirectory(const std::string& name) const
    {
        std::filesystem::create_directories(m_path / name);
        return (m_path / name).string();
    }

private:
    std::filesystem::path m_path;
};

/// Where saving costs no disk's time, for tests that save thousands of times.
inline std::filesystem::path fastDisk()
{
    std::error_code error;
    return std::filesystem::is_directory("/dev/shm", error) ? "/dev/shm" : std::filesystem::temp_directory_path();
}

/// The bytes of a native file; "(missing)" when it can't be opened.
inline std::string bytesOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) return "(missing)";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::vector<std::string> namesIn(const std::string& directory)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

} // namespace tarvex
