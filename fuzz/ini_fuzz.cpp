// Any bytes as an INI file: reading never fails, a written value reads back, and nothing else changes.
// The input is a section, a key and a value, each ended by a NUL, and then the file.

#include "platform/profile_file.h"
#include "platform/profile_lines.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace {

using namespace tarvex;

constexpr std::size_t ample = 1 << 20;

/// One file in memory.
class OneFile final : public FileSystem {
public:
    explicit OneFile(std::string bytes) : m_bytes(std::move(bytes)) {}
    const std::string& bytes() const { return m_bytes; }
    int writes() const { return m_writes; }

    bool fileExists(const std::string&) const override { return true; }
    bool directoryExists(const std::string&) const override { return false; }
    bool isReadOnly(const std::string&) const override { return false; }
    FileStamp stamp(const std::string&) const override { return {m_bytes.size(), m_writes, 1}; }
    std::string read(const std::string&) const override { return m_bytes; }
    void write(const std::string&, const std::string& bytes) override
    {
        m_bytes = bytes;
        ++m_writes;
    }
    void createDirectory(const std::string&) override { throw std::logic_error("not needed"); }
    void removeFile(const std::string&) override { throw std::logic_error("not needed"); }
    std::vector<std::string> list(const std::string&) const override { return {}; }

private:
    std::string m_bytes;
    int m_writes = 0;
};

void check(bool holds, const char* promise)
{
    if (holds) return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

std::string takeText(std::string_view& input)
{
    const std::size_t end = std::min(input.find('\0'), input.size());
    std::string text(input.substr(0, end));
    input.remove_prefix(std::min(end + 1, input.size()));
    return text;
}

/// What is gone from the first list, and what has come, in order; lines that both have at either end don't count.
struct Difference {
    ProfileLines gone;
    ProfileLines come;
};

/// The text of a file in UTF-16 as UTF-8, any other file as it is.
std::string inBytes(const std::string& file)
{
    const auto order = utf16OrderOf(file);
    return order ? utf8FromUtf16(file, *order) : file;
}

Difference differenceOf(const std::string& before, const std::string& after)
{
    Difference difference{splitProfileLines(inBytes(before)), splitProfileLines(inBytes(after))};
    auto& [gone, come] = difference;
    while (!gone.empty() && !come.empty() && gone.back() == come.back()) {
        gone.pop_back();
        come.pop_back();
    }
    const auto [goneEnd, comeEnd] = std::mismatch(gone.begin(), gone.end(), come.begin(), come.end());
    gone.erase(gone.begin(), goneEnd);
    come.erase(come.begin(), comeEnd);
    return difference;
}

void checkChange(const Difference& difference)
{
    check(difference.gone.size() <= 1, "at most one line is replaced");
    check(difference.come.size() <= difference.gone.size() + 2, "at most a header and an entry are added");
}

/// The keys STEM1 and so on read alike together and one by one.
void checkFamily(const ProfileFile& ini, const std::string& section, const std::string& stem)
{
    if (stem.empty() || (stem.back() >= '0' && stem.back() <= '9')) return;
    const auto family = ini.readStrings(section, stem, 12, "none", ample);
    for (std::size_t i = 0; i < family.size(); ++i) {
        check(family[i] == ini.readString(section, stem + std::to_string(i + 1), "none", ample),
              "a family reads as its keys do");
    }
}

void run(const std::string& section, const std::string& key, const std::string& value, const std::string& bytes)
{
    OneFile file(bytes);
    ProfileFile ini(file, "c:\\Tarvex.ini");
    ini.readInt(section, key, 0);
    const std::string other = ini.readString("Other", "Neighbour", "none", ample);
    check(isValidUtf8(ini.readString(section, key, value, ample)), "what is read is UTF-8");
    check(utf8Length(ini.readString(section, key, value, 10)) <= 9, "a buffer of 10 keeps 9 characters");
    check(file.writes() == 0, "reading doesn't write");

    checkFamily(ini, section, std::string(cleanProfileName(key, "=")));
    ini.writeString(section, key, value);
    const std::string expected = decodeProfileText(strippedValue(cutProfileValue(value)));
    const std::string name = std::string(cleanProfileName(key, "="));
    if (name.empty() || name[0] == ';' || name[0] == '[') {
        check(file.bytes() == bytes, "a key that can't be is not written");
        return;
    }
    check(bytes.empty() || utf16OrderOf(bytes) == utf16OrderOf(file.bytes()), "a file in UTF-16 stays in UTF-16");
    checkChange(differenceOf(bytes, file.bytes()));
    check(ini.readString(section, key, "none", ample) == expected, "a written value reads back");
    ProfileFile again(file, "c:\\Tarvex.ini");
    check(again.readString(section, key, "none", ample) == expected, "a written value reads back from the file");
    const bool isNeighbour = lowerUtf8(cleanProfileName(section, "]")) == "other" && lowerUtf8(name) == "neighbour";
    check(isNeighbour || again.readString("Other", "Neighbour", "none", ample) == other, "other keys are unchanged");

    const int writes = file.writes();
    again.writeString(section, key, value);
    check(file.writes() == writes, "an equal value isn't written");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    std::string_view input = bytes;
    const std::string section = takeText(input);
    const std::string key = takeText(input);
    const std::string value = takeText(input);
    run(section, key, value, std::string(input));
    return 0;
}
