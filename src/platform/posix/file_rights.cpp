#include "platform/posix/file_rights.h"

#include "platform/posix/system_error.h"

#include <cerrno>
#include <cstring>
#include <string_view>

namespace tarvex {

namespace {

constexpr const char* accessList = "system.posix_acl_access";
constexpr std::string_view userAttributes = "user.";
constexpr std::size_t largestAttribute = 65536; ///< bytes, of a value and of a list of names: the kernel's own limit
constexpr mode_t ownerBits = 0700;
constexpr mode_t allAndSpecialBits = 07777;

bool meansNone(int error) { return error == ENODATA || error == ENOTSUP || error == ENOSYS; }

struct Attribute {
    std::string value;
    bool isUnknown = false; ///< may exist, but can't be read
};

Attribute readAttribute(SystemCalls& calls, const std::string& path, const char* name)
{
    std::string value(largestAttribute, '\0');
    const ssize_t size = calls.lgetxattr(path, name, value.data(), value.size());
    if (size < 0) return {{}, !meansNone(errno)};
    value.resize(static_cast<std::size_t>(size));
    return {value};
}

void copyUserAttributes(SystemCalls& calls, int file, const std::string& oldPath)
{
    std::string names(largestAttribute, '\0');
    const ssize_t size = calls.llistxattr(oldPath, names.data(), names.size());
    names.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    for (const char* name = names.data(); name < names.data() + names.size(); name += std::strlen(name) + 1) {
        if (!std::string_view(name).starts_with(userAttributes)) continue;
        const Attribute attribute = readAttribute(calls, oldPath, name);
        if (!attribute.isUnknown) calls.fsetxattr(file, name, attribute.value.data(), attribute.value.size());
    }
}

struct Kept {
    bool owner = false;
    bool group = false;
};

Kept copyOwner(SystemCalls& calls, int file, const struct stat& old)
{
    struct stat made = {};
    if (calls.fstat(file, made) < 0) throwSystemError();
    Kept kept{made.st_uid == old.st_uid, made.st_gid == old.st_gid};
    if (kept.owner && kept.group) return kept;
    if (calls.fchown(file, old.st_uid, old.st_gid) == 0) return {true, true};
    if (!kept.group) kept.group = calls.fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0; // often allowed
    return kept;
}

/// Drops rights that a change of owner or group would give to another class of users, such as the members of a lost
/// group, who become others.
mode_t modeFor(const Kept& kept, mode_t old)
{
    if (kept.owner && kept.group) return old & allAndSpecialBits;
    mode_t owner = old >> 6 & 7;
    mode_t group = old >> 3 & 7;
    mode_t others = old & 7;
    if (!kept.group) group = others = group & others;
    if (!kept.owner) {
        group &= owner;
        others &= owner;
    }
    return owner << 6 | group << 3 | others;
}

/// The group's bits of a mode are the list's mask wherever there is a list; without it they would be granted to the
/// group itself.
bool copyAccessList(SystemCalls& calls, int file, const std::string& oldPath, const Kept& kept)
{
    const Attribute list = readAttribute(calls, oldPath, accessList);
    if (list.isUnknown) return false;
    if (!list.value.empty())
        return kept.group && calls.fsetxattr(file, accessList, list.value.data(), list.value.size()) == 0;
    // One that the directory gave the new file would come into force with the mode.
    return calls.fremovexattr(file, accessList) == 0 || meansNone(errno);
}

} // namespace

void copyRights(SystemCalls& calls, int file, const std::string& oldPath, const struct stat& old)
{
    copyUserAttributes(calls, file, oldPath); // while the file still belongs to this user, who may write it
    const Kept kept = copyOwner(calls, file, old);
    const mode_t mode = modeFor(kept, old.st_mode);
    const mode_t granted = copyAccessList(calls, file, oldPath, kept) ? mode : mode & ownerBits;
    // Some file systems know no permissions; contents that are safe are worth more than their mode.
    calls.fchmod(file, granted);
}

} // namespace tarvex
