#include "documents/text/snapshot_keeper.h"

#include <algorithm>
#include <utility>

namespace tarvex {
namespace {

/// The chunks from `first` up to `last` of the last snapshot, and the characters from `begin` up to `end` of the
/// present text that stand in their place. All others are the same in both.
struct Stale {
    std::size_t first = 0;
    std::size_t last = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
};

Stale outsideOf(const std::vector<ChunkPointer>& chunks, std::size_t head, std::size_t tail, std::size_t size)
{
    Stale stale{0, chunks.size(), 0, size};
    while (stale.first < stale.last && stale.begin + chunks[stale.first]->size() <= head) {
        stale.begin += chunks[stale.first++]->size();
    }
    while (stale.first < stale.last && size - stale.end + chunks[stale.last - 1]->size() <= tail) {
        stale.end -= chunks[--stale.last]->size();
    }
    return stale;
}

/// Leaves out chunks that hold what they held, as after colouring a text anew in the same colours.
void skipEqual(Stale& stale, const std::vector<ChunkPointer>& chunks, std::string_view text, const FormatId* ids)
{
    const auto equal = [&](const TextChunk& chunk, std::size_t at) { return chunk.holds(text.data() + at, ids + at); };
    while (stale.first < stale.last) {
        const TextChunk& chunk = *chunks[stale.first];
        if (chunk.size() > stale.end - stale.begin || !equal(chunk, stale.begin)) break;
        stale.begin += chunk.size();
        ++stale.first;
    }
    while (stale.first < stale.last) {
        const TextChunk& chunk = *chunks[stale.last - 1];
        if (chunk.size() > stale.end - stale.begin || !equal(chunk, stale.end - chunk.size())) break;
        stale.end -= chunk.size();
        --stale.last;
    }
}

/// Takes in neighbours until there is enough for a chunk, so that edits can't leave ever more tiny ones.
void takeInNeighbours(Stale& stale, const std::vector<ChunkPointer>& chunks, std::size_t enough)
{
    while (stale.begin < stale.end && stale.end - stale.begin < enough) {
        const std::size_t left = stale.first > 0 ? chunks[stale.first - 1]->size() : SIZE_MAX;
        const std::size_t right = stale.last < chunks.size() ? chunks[stale.last]->size() : SIZE_MAX;
        if (std::min(left, right) == SIZE_MAX) return;
        if (left <= right) {
            stale.begin -= left;
            --stale.first;
        } else {
            stale.end += right;
            ++stale.last;
        }
    }
}

} // namespace

void SnapshotKeeper::edited(std::size_t position, std::size_t removed, std::size_t size)
{
    const std::size_t behind = size - position - removed;
    m_head = m_fresh ? position : std::min(m_head, position);
    m_tail = m_fresh ? behind : std::min(m_tail, behind);
    m_fresh = false;
}

const RichText& SnapshotKeeper::take(const std::shared_ptr<FormatTable>& formats, std::string_view text,
                                     const FormatId* ids)
{
    if (m_fresh) return m_last;
    m_last = RichText(formats, freshChunks(text, ids));
    m_fresh = true;
    return m_last;
}

std::vector<ChunkPointer> SnapshotKeeper::freshChunks(std::string_view text, const FormatId* ids) const
{
    const std::vector<ChunkPointer>& old = m_last.chunks();
    const std::size_t chunkSize = chunkSizeFor(text.size());
    Stale stale = outsideOf(old, m_head, m_tail, text.size());
    skipEqual(stale, old, text, ids);
    takeInNeighbours(stale, old, chunkSize / 2);

    std::vector<ChunkPointer> chunks;
    const auto at = [&](std::size_t index) { return old.begin() + static_cast<std::ptrdiff_t>(index); };
    const std::size_t fresh = (stale.end - stale.begin) / chunkSize + 1;
    chunks.reserve(old.size() - (stale.last - stale.first) + fresh);
    chunks.insert(chunks.end(), old.begin(), at(stale.first));
    appendChunks(chunks, text.substr(stale.begin, stale.end - stale.begin), ids + stale.begin, chunkSize);
    chunks.insert(chunks.end(), at(stale.last), old.end());
    return chunks;
}

void SnapshotKeeper::adopt(RichText text)
{
    m_last = std::move(text);
    m_fresh = true;
}

} // namespace tarvex
