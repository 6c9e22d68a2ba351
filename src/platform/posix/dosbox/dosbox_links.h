#pragma once

#include "platform/posix/dosbox/dosbox_folder.h"

#include <map>
#include <string>
#include <vector>

namespace tarvex {

/// A folder of links that stands for a real one where DOS can't have some of the names: the others are there under
/// their own, and those that share a name up to their extension share one here, FILE1.B50 and FILE1.M50.
class DosboxLinks {
public:
    /// `folder` outlives this; `name` is that of the links' folder in it. Throws RuntimeError.
    DosboxLinks(const DosboxFolder& folder, const std::string& name, const std::string& directory);

    const std::string& name() const { return m_name; }
    /// What a file of the real folder is called here.
    std::string nameOf(const std::string& file);

private:
    void link(const std::string& file, const std::string& name);
    void linkFamily(const std::string& stem);
    std::string freeStem() const;

    const DosboxFolder& m_folder;
    std::string m_name;
    std::string m_directory;
    std::vector<std::string> m_files;             ///< of the real folder
    std::map<std::string, std::string> m_names;   ///< by name here, in capitals, the file it stands for
    std::map<std::string, std::string> m_aliases; ///< by file, of those that have another name here
};

} // namespace tarvex
