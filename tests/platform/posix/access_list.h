#pragma once

#include <cerrno>
#include <cstdint>
#include <string>
#include <sys/xattr.h>
#include <vector>

namespace tarvex {

/// One entry of an access control list in the form that the kernel keeps it in.
struct AccessEntry {
    std::uint16_t tag;
    std::uint16_t rights; ///< 4 read, 2 write, 1 execute
    std::uint32_t id = UINT32_MAX;
};

namespace accessTag {
constexpr std::uint16_t owner = 0x01;
constexpr std::uint16_t user = 0x02; ///< the one that `id` names
constexpr std::uint16_t group = 0x04;
constexpr std::uint16_t mask = 0x10;
constexpr std::uint16_t others = 0x20;
} // namespace accessTag

inline constexpr const char* accessListName = "system.posix_acl_access";
inline constexpr const char* defaultListName = "system.posix_acl_default";

inline std::string accessListBytes(const std::vector<AccessEntry>& entries)
{
    std::string bytes;
    const auto append = [&](std::uint32_t number, int size) {
        for (; size > 0; --size, number >>= 8) bytes += static_cast<char>(number & 0xFF);
    };
    append(2, 4); // version
    for (const AccessEntry& entry : entries) {
        append(entry.tag, 2);
        append(entry.rights, 2);
        append(entry.id, 4);
    }
    return bytes;
}

/// False: the file system has no such attributes.
inline bool setAttribute(const std::string& path, const char* name, const std::string& value)
{
    return ::setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

/// "(none)" without it.
inline std::string attributeOf(const std::string& path, const char* name)
{
    std::string value(65536, '\0');
    const ssize_t size = ::getxattr(path.c_str(), name, value.data(), value.size());
    if (size < 0) return "(none)";
    value.resize(static_cast<std::size_t>(size));
    return value;
}

} // namespace tarvex
