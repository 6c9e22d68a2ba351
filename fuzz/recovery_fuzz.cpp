// Any bytes as a journal: reading never fails, and never takes a text for more than its records say. The first byte of
// the input chooses: the rest is a whole file, or the contents of records with check sums that fit.

#include "documents/recovery/recovery_format.h"

#include <cstdio>
#include <cstdlib>

namespace {

using namespace tarvex;

void check(bool holds, const char* promise)
{
    if (holds) return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

/// Each record: kind, length of its contents, contents.
std::string sealed(std::string_view input)
{
    std::string bytes(journalMark());
    std::uint64_t chain = 0;
    while (input.size() >= 2) {
        const std::string_view contents = input.substr(2, static_cast<unsigned char>(input[1]));
        bytes += journalRecord(input[0], contents, chain);
        input.remove_prefix(2 + contents.size());
    }
    return bytes;
}

void checkJournal(const std::string& bytes)
{
    Journal journal;
    if (readJournal(bytes, journal) != JournalState::Readable) return;
    check(journal.text.size() <= bytes.size(), "a text holds nothing that isn't in the file");

    std::uint64_t chain = 0;
    JournalStart start = journal.start;
    start.edit = differenceOf(start.base, journal.text);
    Journal again;
    check(readJournal(journalStart(start, chain), again) == JournalState::Readable, "what is written can be read");
    check(again.text == journal.text && again.start == start && !again.damaged, "and is what was written");

    Journal cut;
    if (readJournal(std::string_view(bytes).substr(0, bytes.size() - 1), cut) == JournalState::Readable)
        check(cut.start.base == journal.start.base && (journal.damaged || !cut.damaged),
              "a torn end leaves the start alone and is no damage");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    if (bytes.empty()) return 0;
    const std::string rest = bytes.substr(1);
    checkJournal(bytes[0] % 2 == 0 ? rest : sealed(rest));
    return 0;
}
