#include "documents/recovery/recovery_format.h"

#include <algorithm>
#include <bit>

namespace tarvex {

namespace {

constexpr std::string_view mark = "Tarvex journal 1\x1A\n";
constexpr std::size_t numberSize = 8;
constexpr std::size_t recordHead = 1 + 2 * numberSize; // kind, length, sum

std::uint64_t numberAt(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < numberSize; ++i) {
        number |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
    }
    return number;
}

void put(std::string& bytes, std::uint64_t number)
{
    for (std::size_t i = 0; i < numberSize; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

void put(std::string& bytes, std::string_view text)
{
    put(bytes, std::uint64_t{text.size()});
    bytes += text;
}

void put(std::string& bytes, const TextEdit& edit)
{
    put(bytes, edit.position);
    put(bytes, edit.removed);
    put(bytes, edit.inserted);
}

/// Takes apart what `put` has made. What isn't there is 0 or empty, and is remembered.
class Contents {
public:
    explicit Contents(std::string_view bytes) : m_left(bytes) {}

    std::uint64_t number()
    {
        const std::string_view bytes = take(numberSize);
        return bytes.empty() ? 0 : numberAt(bytes);
    }
    std::string text() { return std::string(take(number())); }
    TextEdit edit()
    {
        TextEdit edit;
        edit.position = number();
        edit.removed = number();
        edit.inserted = text();
        return edit;
    }
    bool wereWhole() const { return m_whole && m_left.empty(); }

private:
    std::string_view take(std::uint64_t size)
    {
        if (size > m_left.size()) {
            m_whole = false;
            m_left = {};
        }
        const std::string_view taken = m_left.substr(0, size);
        m_left.remove_prefix(taken.size());
        return taken;
    }

    std::string_view m_left;
    bool m_whole = true;
};

std::uint64_t sumOfRecord(char kind, std::string_view contents, std::uint64_t chain)
{
    std::string head(1, kind);
    put(head, std::uint64_t{contents.size()});
    return checkSum(contents, checkSum(head, chain));
}

struct Record {
    char kind;
    std::string_view contents;
};

/// The next record; nothing when it isn't whole.
std::optional<Record> takeRecord(std::string_view& bytes, std::uint64_t& chain)
{
    if (bytes.size() < recordHead) return std::nullopt;
    const std::uint64_t size = numberAt(bytes.substr(1));
    if (size > bytes.size() - recordHead) return std::nullopt;
    const Record record{bytes[0], bytes.substr(recordHead, size)};
    const std::uint64_t sum = sumOfRecord(record.kind, record.contents, chain);
    if (sum != numberAt(bytes.substr(1 + numberSize))) return std::nullopt;
    chain = sum;
    bytes.remove_prefix(recordHead + size);
    return record;
}

constexpr int largestTab = 3; ///< of a text beside the pair

std::optional<JournalStart> readStart(const Record& record)
{
    if (record.kind != journalKind::start) return std::nullopt;
    Contents contents(record.contents);
    JournalStart start;
    start.tab = static_cast<int>(std::min<std::uint64_t>(contents.number(), largestTab + 1));
    start.replaces = contents.number();
    start.path = contents.text();
    start.name = contents.text();
    start.partnerPath = contents.text();
    if (contents.number() != 0) {
        const std::uint64_t size = contents.number();
        start.file = FileSum{size, contents.number()};
    }
    start.base = contents.text();
    start.edit = contents.edit();
    if (!contents.wereWhole() || start.tab < 1 || start.tab > largestTab) return std::nullopt;
    return start;
}

/// A write that was cut short leaves the beginning of a record and nothing behind it. Where the length of the record
/// and the one inside of it disagree, one of them was changed, and there may be more records than it seems.
bool isTorn(std::string_view bytes)
{
    const char kind = bytes.front();
    if (kind != journalKind::edit && kind != journalKind::partner) return false;
    if (bytes.size() < recordHead) return true;
    const std::uint64_t size = numberAt(bytes.substr(1));
    const std::string_view contents = bytes.substr(recordHead);
    if (size <= contents.size()) return false;
    const std::size_t numbers =
        kind == journalKind::edit ? 3 * numberSize : numberSize; // the last is the text's length
    return contents.size() < numbers || numberAt(contents.substr(numbers - numberSize)) == size - numbers;
}

/// The mark of a journal of ours, except for the number in it.
bool isOtherVersion(std::string_view bytes)
{
    constexpr std::size_t number = mark.find('1');
    if (!bytes.starts_with(mark.substr(0, number))) return false;
    bytes.remove_prefix(number);
    const std::size_t digits = std::min(bytes.find_first_not_of("0123456789"), bytes.size());
    return digits > 0 && bytes.substr(0, digits) != "1" && bytes.substr(digits).starts_with(mark.substr(number + 1));
}

/// Too short for any text.
bool isUnbegun(std::string_view bytes)
{
    return mark.starts_with(bytes) || (bytes.starts_with(mark) && bytes.size() < mark.size() + recordHead);
}

/// False: the record makes no sense, and nothing was done.
bool follow(Journal& journal, const Record& record)
{
    Contents contents(record.contents);
    if (record.kind == journalKind::edit) {
        const TextEdit edit = contents.edit();
        return contents.wereWhole() && tarvex::apply(journal.text, edit);
    }
    if (record.kind != journalKind::partner) return false;
    const std::string path = contents.text();
    if (contents.wereWhole()) journal.start.partnerPath = path;
    return contents.wereWhole();
}

} // namespace

std::uint64_t checkSum(std::string_view bytes, std::uint64_t seed)
{
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
    constexpr int turn = 29;
    std::uint64_t sum = (seed ^ bytes.size()) * odd;
    for (; bytes.size() >= numberSize; bytes.remove_prefix(numberSize)) {
        sum = std::rotl((sum ^ numberAt(bytes)) * odd, turn);
    }
    for (const char byte : bytes) sum = std::rotl((sum ^ static_cast<unsigned char>(byte)) * odd, turn);
    return (sum ^ sum >> 32) * odd;
}

FileSum sumOf(std::string_view bytes) { return {bytes.size(), checkSum(bytes)}; }

TextEdit differenceOf(std::string_view from, std::string_view to)
{
    const std::size_t most = std::min(from.size(), to.size());
    const auto head = static_cast<std::size_t>(
        std::mismatch(from.begin(), from.begin() + static_cast<std::ptrdiff_t>(most), to.begin()).first - from.begin());
    std::size_t tail = 0;
    while (tail < most - head && from[from.size() - 1 - tail] == to[to.size() - 1 - tail]) ++tail;
    return {head, from.size() - head - tail, std::string(to.substr(head, to.size() - head - tail))};
}

bool apply(std::string& text, const TextEdit& edit)
{
    if (edit.position > text.size() || edit.removed > text.size() - edit.position) return false;
    text.replace(edit.position, edit.removed, edit.inserted);
    return true;
}

std::string_view journalMark() { return mark; }

std::string journalRecord(char kind, std::string_view contents, std::uint64_t& chain)
{
    chain = sumOfRecord(kind, contents, chain);
    std::string bytes(1, kind);
    bytes.reserve(recordHead + contents.size());
    put(bytes, std::uint64_t{contents.size()});
    put(bytes, chain);
    bytes += contents;
    return bytes;
}

std::string journalStart(const JournalStart& start, std::uint64_t& chain)
{
    std::string contents;
    put(contents, static_cast<std::uint64_t>(start.tab));
    put(contents, start.replaces);
    put(contents, start.path);
    put(contents, start.name);
    put(contents, start.partnerPath);
    put(contents, std::uint64_t{start.file ? 1U : 0U});
    if (start.file) {
        put(contents, start.file->size);
        put(contents, start.file->sum);
    }
    put(contents, start.base);
    put(contents, start.edit);
    return std::string(mark) + journalRecord(journalKind::start, contents, chain);
}

std::string journalEdit(const TextEdit& edit, std::uint64_t& chain)
{
    std::string contents;
    put(contents, edit);
    return journalRecord(journalKind::edit, contents, chain);
}

std::string journalPartner(std::string_view path, std::uint64_t& chain)
{
    std::string contents;
    put(contents, path);
    return journalRecord(journalKind::partner, contents, chain);
}

JournalState readJournal(std::string_view bytes, Journal& journal)
{
    if (isUnbegun(bytes)) return JournalState::Unbegun;
    const bool isMarked = bytes.starts_with(mark);
    std::string_view rest = bytes.substr(std::min(mark.size(), bytes.size()));

    std::uint64_t chain = 0;
    const auto first = takeRecord(rest, chain); // its sum says more than the mark, which may be damaged
    auto start = first ? readStart(*first) : std::nullopt;
    std::string text = start ? start->base : std::string();
    if (!start || !tarvex::apply(text, start->edit))
        return isOtherVersion(bytes) ? JournalState::OtherVersion : JournalState::Damaged;
    journal = {std::move(*start), std::move(text), !isMarked};
    while (!rest.empty()) {
        const auto record = takeRecord(rest, chain);
        if (record && follow(journal, *record)) continue;
        journal.damaged = journal.damaged || record || !isTorn(rest);
        break;
    }
    return JournalState::Readable;
}

} // namespace tarvex
