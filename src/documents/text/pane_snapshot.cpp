#include "documents/text/pane.h"

#include <algorithm>

// Writing the whole text: only what differs is written and reported.

namespace tarvex {
namespace {

/// The part of a new text that isn't known to be the same by the identity of its chunks.
struct Middle {
    std::size_t oldBegin = 0;
    std::size_t oldEnd = 0;
    std::string text;
    std::vector<FormatId> formats;
};

Middle middleOf(const RichText& old, const RichText& now)
{
    const auto& before = old.chunks();
    const auto& after = now.chunks();
    const std::size_t most = std::min(before.size(), after.size());
    Middle middle{0, old.size(), {}, {}};
    std::size_t head = 0;
    while (head < most && before[head] == after[head]) middle.oldBegin += before[head++]->size();
    std::size_t tail = 0;
    while (tail < most - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        middle.oldEnd -= before[before.size() - 1 - tail++]->size();
    }
    for (std::size_t i = head; i < after.size() - tail; ++i) {
        middle.text += after[i]->text();
        for (const TextChunk::Run& run : after[i]->runs()) {
            middle.formats.insert(middle.formats.end(), run.length, run.format);
        }
    }
    return middle;
}

/// The smallest stretch of positions below `count` that holds all differences.
std::pair<std::size_t, std::size_t> differing(const FormatId* a, const FormatId* b, std::size_t count)
{
    const auto begin = static_cast<std::size_t>(std::mismatch(a, a + count, b).first - a);
    std::size_t end = count;
    while (end > begin && a[end - 1] == b[end - 1]) --end;
    return {begin, end};
}

} // namespace

void Pane::putWhole(const RichText& text)
{
    const RichText old = TextRTF();
    const Middle middle = middleOf(old, text);
    const char before = middle.oldBegin > 0 ? m_text[middle.oldBegin - 1] : ' ';
    const char after = middle.oldEnd < m_text.size() ? m_text[middle.oldEnd] : ' ';
    if (!hasOnlyPairs(middle.text, before, after)) return putWhole(withWindowsLineEnds(text));

    const std::string_view oldText = std::string_view(m_text).substr(middle.oldBegin, middle.oldEnd - middle.oldBegin);
    const std::string_view newText = middle.text;
    const std::size_t most = std::min(oldText.size(), newText.size());
    const auto head = static_cast<std::size_t>(
        std::mismatch(oldText.begin(), oldText.begin() + static_cast<std::ptrdiff_t>(most), newText.begin()).first -
        oldText.begin());
    std::size_t tail = 0;
    while (tail < most - head && oldText[oldText.size() - 1 - tail] == newText[newText.size() - 1 - tail]) ++tail;

    const std::size_t removed = oldText.size() - head - tail;
    const std::size_t inserted = newText.size() - head - tail;
    const FormatId* oldFormats = m_format.data() + middle.oldBegin;
    const auto [headBegin, headEnd] = differing(oldFormats, middle.formats.data(), head);
    const auto [tailBegin, tailEnd] =
        differing(oldFormats + head + removed, middle.formats.data() + head + inserted, tail);
    const std::size_t tailAt = middle.oldBegin + head + inserted;
    const Edit edit{static_cast<std::int64_t>(middle.oldBegin + head), static_cast<std::int64_t>(removed),
                    static_cast<std::int64_t>(inserted)};
    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;

    putFormats({middle.oldBegin, middle.oldEnd}, middle.formats.data(), middle.formats.size());
    putText({middle.oldBegin + head, middle.oldBegin + head + removed}, newText.substr(head, inserted));
    m_snapshots.adopt(text);
    m_chosenFormat.reset();
    select(0, 0);
    if (removed != 0 || inserted != 0) edited(edit);
    reportReformatted({middle.oldBegin + headBegin, middle.oldBegin + headEnd});
    reportReformatted({tailAt + tailBegin, tailAt + tailEnd});
    reportSelection(oldStart, oldLength);
    changed();
}

} // namespace tarvex
