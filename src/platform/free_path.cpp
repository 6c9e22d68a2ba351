#include "platform/free_path.h"

#include <algorithm>

namespace tarvex {

std::string freePath(const FileSystem& files, const std::string& directory, const std::string& name)
{
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    std::string path = directory + name;
    for (int count = 2; files.fileExists(path) || files.directoryExists(path); ++count)
        path = directory + name.substr(0, dot) + "-" + std::to_string(count) + name.substr(dot);
    return path;
}

} // namespace tarvex
