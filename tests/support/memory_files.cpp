#include "support/memory_files.h"

#include "platform/dos_path.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <stdexcept>

namespace tarvex {

namespace {

std::string cleaned(std::string path)
{
    std::replace(path.begin(), path.end(), '/', '\\');
    while (path.ends_with('\\')) path.pop_back();
    return path;
}

std::string key(const std::string& path) { return lowerUtf8(cleaned(path)); }

std::string parentOf(const std::string& path) { return cleaned(directoryOf(cleaned(path))); }

[[noreturn]] void fail(ErrorCode code, const char* description) { throw RuntimeError(code, description); }

} // namespace

MemoryFiles::MemoryFiles() { addDirectory("c:"); }

void MemoryFiles::addDirectory(const std::string& path)
{
    for (std::string next = cleaned(path); !next.empty() && !find(next); next = parentOf(next)) {
        Entry& entry = m_entries[key(next)];
        entry.path = next;
        entry.isDirectory = true;
    }
}

void MemoryFiles::addFile(const std::string& path, const std::string& bytes)
{
    addDirectory(parentOf(path));
    put(path, bytes);
}

void MemoryFiles::changeSecretly(const std::string& path, const std::string& bytes)
{
    if (fileAt(path).bytes.size() != bytes.size()) throw std::logic_error("the size would give it away");
    fileAt(path).bytes = bytes;
}

void MemoryFiles::makeLinkOutside(const std::string& path)
{
    if (!find(path)) fail(ErrorCode::FileNotFound, "File not found");
    m_linksOutside.push_back(key(path));
}

void MemoryFiles::removeDirectory(const std::string& path) { m_entries.erase(key(path)); }

void MemoryFiles::setReadOnly(const std::string& path, bool readOnly) { fileAt(path).readOnly = readOnly; }

void MemoryFiles::failWrites(const std::string& path, std::optional<RuntimeError> error)
{
    m_writeErrors.erase(key(path));
    if (error) m_writeErrors.emplace(key(path), *error);
}

void MemoryFiles::failReads(const std::string& path, std::optional<RuntimeError> error)
{
    if (!find(path)) throw std::logic_error("the test names a path that isn't there: " + path);
    m_entries.at(key(path)).readError = std::move(error);
}

void MemoryFiles::failAppends(std::optional<RuntimeError> error, std::size_t after)
{
    m_appendError = std::move(error);
    m_appendRoom = after;
}

std::optional<std::string> MemoryFiles::contents(const std::string& path) const
{
    if (!fileExists(path)) return std::nullopt;
    return find(path)->bytes;
}

std::string MemoryFiles::spelling(const std::string& path) const
{
    const Entry* entry = find(path);
    return entry ? entry->path : path;
}

bool MemoryFiles::fileExists(const std::string& path) const
{
    const Entry* entry = find(path);
    return entry && !entry->isDirectory;
}

bool MemoryFiles::directoryExists(const std::string& path) const
{
    const Entry* entry = find(path);
    return entry && entry->isDirectory;
}

bool MemoryFiles::isReadOnly(const std::string& path) const
{
    const Entry* entry = find(path);
    return entry && entry->readOnly;
}

FileStamp MemoryFiles::stamp(const std::string& path) const
{
    return fileExists(path) ? find(path)->stamp : FileStamp{};
}

std::string MemoryFiles::read(const std::string& path) const
{
    const Entry* entry = find(path);
    if (!entry && !directoryExists(parentOf(path))) fail(ErrorCode::PathNotFound, "Path not found");
    if (!entry) fail(ErrorCode::FileNotFound, "File not found");
    if (entry->isDirectory) fail(ErrorCode::PathFileAccess, "Path/File access error");
    if (entry->readError) throw *entry->readError;
    return entry->bytes;
}

void MemoryFiles::write(const std::string& path, const std::string& bytes)
{
    if (const auto error = m_writeErrors.find(key(path)); error != m_writeErrors.end()) throw error->second;
    if (!directoryExists(parentOf(path))) fail(ErrorCode::PathNotFound, "Path not found");
    if (directoryExists(path) || isReadOnly(path)) fail(ErrorCode::PathFileAccess, "Path/File access error");
    put(path, bytes);
    m_writes.push_back({path, bytes});
}

void MemoryFiles::createDirectory(const std::string& path)
{
    if (find(path)) fail(ErrorCode::PathFileAccess, "Path/File access error");
    if (!directoryExists(parentOf(path))) fail(ErrorCode::PathNotFound, "Path not found");
    addDirectory(path);
}

/// As on a real disk, a file that was removed may still be written to; nobody sees it.
class MemoryFiles::GrowingFile final : public AppendFile {
public:
    GrowingFile(MemoryFiles& files, std::string path) : m_files(files), m_path(std::move(path)) { ++m_files.m_growing; }
    ~GrowingFile() override { --m_files.m_growing; }
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;

    void append(std::string_view bytes) override
    {
        ++m_files.m_appends;
        const auto& error = m_files.m_appendError;
        const std::size_t taken = error ? std::min(bytes.size(), m_files.m_appendRoom) : bytes.size();
        if (error) m_files.m_appendRoom -= taken;
        if (m_files.fileExists(m_path))
            m_files.put(m_path, m_files.find(m_path)->bytes + std::string(bytes.substr(0, taken)));
        if (taken < bytes.size()) throw RuntimeError(*error);
    }
    bool sync() override
    {
        if (m_files.m_appendError && m_files.m_appendRoom == 0) throw RuntimeError(*m_files.m_appendError);
        if (!isSynced()) return false;
        ++m_files.m_syncs;
        m_syncing = true;
        return true;
    }
    bool isSynced() override
    {
        if (!m_syncing) return true;
        if (m_files.m_syncsHeld) return false;
        m_syncing = false;
        if (m_files.m_syncError) throw RuntimeError(*m_files.m_syncError);
        return true;
    }

private:
    MemoryFiles& m_files;
    std::string m_path;
    bool m_syncing = false;
};

std::unique_ptr<AppendFile> MemoryFiles::createAppendFile(const std::string& path)
{
    if (m_appendError && m_appendRoom == 0) throw RuntimeError(*m_appendError);
    if (find(path)) fail(ErrorCode::FileExists, "File already exists");
    if (!directoryExists(parentOf(path))) createDirectory(parentOf(path));
    put(path, "");
    return std::make_unique<GrowingFile>(*this, path);
}

void MemoryFiles::removeFile(const std::string& path)
{
    if (!fileExists(path)) fail(ErrorCode::FileNotFound, "File not found");
    if (isReadOnly(path)) fail(ErrorCode::PathFileAccess, "Path/File access error");
    m_entries.erase(key(path));
}

void MemoryFiles::renameFile(const std::string& path, const std::string& newPath)
{
    if (!fileExists(path)) fail(ErrorCode::FileNotFound, "File not found");
    if (find(newPath) != nullptr) fail(ErrorCode::FileExists, "File already exists");
    if (m_writeErrors.contains(key(newPath))) throw RuntimeError(m_writeErrors.at(key(newPath)));
    Entry entry = fileAt(path);
    entry.path = cleaned(newPath);
    m_entries.erase(key(path));
    m_entries[key(newPath)] = std::move(entry);
}

bool MemoryFiles::liesWithin(const std::string& path, const std::string& directory) const
{
    const std::string inner = key(path);
    const std::string outer = key(directory);
    if (!find(path) || !find(directory)) return false;
    if (inner != outer && !inner.starts_with(outer + "\\")) return false;
    return std::none_of(m_linksOutside.begin(), m_linksOutside.end(), [&](const std::string& link) {
        const bool below = link.starts_with(outer + "\\");
        return below && (inner == link || inner.starts_with(link + "\\"));
    });
}

std::vector<std::string> MemoryFiles::list(const std::string& path) const
{
    if (!directoryExists(path)) fail(ErrorCode::PathNotFound, "Path not found");
    if (const auto& error = find(path)->readError) throw RuntimeError(*error);
    std::vector<std::string> names;
    for (const auto& [entryKey, entry] : m_entries) {
        if (entryKey != key(path) && key(parentOf(entry.path)) == key(path)) names.push_back(fileNameOf(entry.path));
    }
    return names;
}

const MemoryFiles::Entry* MemoryFiles::find(const std::string& path) const
{
    const auto found = m_entries.find(key(path));
    return found == m_entries.end() ? nullptr : &found->second;
}

MemoryFiles::Entry& MemoryFiles::fileAt(const std::string& path)
{
    if (!fileExists(path)) throw std::logic_error("the test names a file that isn't there: " + path);
    return m_entries.at(key(path));
}

void MemoryFiles::put(const std::string& path, const std::string& bytes)
{
    Entry& entry = m_entries[key(path)];
    if (entry.path.empty()) entry.path = cleaned(path);
    entry.bytes = bytes;
    ++m_clock;
    entry.stamp = {bytes.size(), static_cast<std::int64_t>(m_clock), m_clock};
}

} // namespace tarvex
