#include "documents/text/text_chunk.h"

#include "documents/text/format_runs.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

namespace tarvex {

ChunkPointer TextChunk::make(std::string_view text, const FormatId* formats)
{
    static_assert(alignof(TextChunk) >= alignof(Run) && sizeof(TextChunk) % alignof(Run) == 0);
    std::size_t runCount = 0;
    for (std::size_t at = 0; at < text.size(); at = stretchEnd(formats, at, text.size())) ++runCount;

    void* memory = ::operator new(sizeof(TextChunk) + runCount * sizeof(Run) + text.size());
    auto* chunk = new (memory) TextChunk(text.size(), runCount);
    auto* run = reinterpret_cast<Run*>(chunk + 1);
    for (std::size_t at = 0; at < text.size(); ++run) {
        const std::size_t next = stretchEnd(formats, at, text.size());
        new (run) Run{static_cast<std::uint16_t>(next - at), formats[at]};
        at = next;
    }
    if (!text.empty()) std::memcpy(run, text.data(), text.size());
    return ChunkPointer(chunk);
}

void TextChunk::destroy(const TextChunk* chunk)
{
    chunk->~TextChunk();
    ::operator delete(const_cast<TextChunk*>(chunk)); // NOLINT: given back, not written
}

bool TextChunk::holds(const char* characters, const FormatId* formats) const
{
    if (std::memcmp(text().data(), characters, m_size) != 0) return false;
    std::size_t at = 0;
    for (const Run& run : runs()) {
        const std::size_t end = at + run.length;
        if (formats[at] != run.format || stretchEnd(formats, at, end) != end) return false;
        at = end;
    }
    return true;
}

std::size_t chunkSizeFor(std::size_t size)
{
    // A change costs about 1.4 bytes a character of the chunk and 8 bytes a chunk of the list.
    const double best = std::sqrt(static_cast<double>(size) * 8 / 1.4);
    return std::clamp<std::size_t>(static_cast<std::size_t>(best), 512, 8192);
}

void appendChunks(std::vector<ChunkPointer>& chunks, std::string_view text, const FormatId* formats,
                  std::size_t chunkSize)
{
    const std::size_t count = text.size() <= 2 * chunkSize ? 1 : (text.size() + chunkSize - 1) / chunkSize;
    std::size_t at = 0;
    for (std::size_t i = 1; i <= count && at < text.size(); ++i) {
        const std::size_t end = text.size() * i / count;
        chunks.push_back(TextChunk::make(text.substr(at, end - at), formats + at));
        at = end;
    }
}

} // namespace tarvex
