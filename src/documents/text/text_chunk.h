#pragma once

#include "documents/text/character_format.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvex {

class ChunkPointer;

/// A piece of text with its formats that never changes. Undo keeps tens of thousands of them, so that a chunk is one
/// block of memory: this head, then the runs, then the characters.
class TextChunk {
public:
    struct Run {
        std::uint16_t length = 0;
        FormatId format = 0;
        bool operator==(const Run&) const = default;
    };
    static constexpr std::size_t maximumSize = UINT16_MAX;

    /// A copy of the characters and of the format of each; at most maximumSize.
    static ChunkPointer make(std::string_view text, const FormatId* formats);

    std::size_t size() const { return m_size; }
    /// They cover the text; neighbours differ.
    std::span<const Run> runs() const { return {reinterpret_cast<const Run*>(this + 1), m_runCount}; }
    std::string_view text() const { return {reinterpret_cast<const char*>(runs().data() + m_runCount), m_size}; }
    /// Whether it holds just these characters, as many as it has, in these formats.
    bool holds(const char* text, const FormatId* formats) const;

    TextChunk(const TextChunk&) = delete;
    TextChunk& operator=(const TextChunk&) = delete;

private:
    friend class ChunkPointer;
    TextChunk(std::size_t size, std::size_t runCount)
        : m_size(static_cast<std::uint32_t>(size)), m_runCount(static_cast<std::uint32_t>(runCount))
    {
    }
    ~TextChunk() = default;
    static void destroy(const TextChunk* chunk);

    mutable std::atomic<std::uint32_t> m_users = 0;
    std::uint32_t m_size;
    std::uint32_t m_runCount;
};

/// Shares a chunk, at half the size of a std::shared_ptr: a snapshot is mostly a list of these.
class ChunkPointer {
public:
    explicit ChunkPointer(const TextChunk* chunk) : m_chunk(chunk) { take(); }
    ChunkPointer(const ChunkPointer& other) : m_chunk(other.m_chunk) { take(); }
    ChunkPointer(ChunkPointer&& other) noexcept : m_chunk(std::exchange(other.m_chunk, nullptr)) {}
    ChunkPointer& operator=(ChunkPointer other) noexcept
    {
        std::swap(m_chunk, other.m_chunk);
        return *this;
    }
    ~ChunkPointer()
    {
        if (m_chunk && m_chunk->m_users.fetch_sub(1, std::memory_order_acq_rel) == 1) TextChunk::destroy(m_chunk);
    }

    const TextChunk& operator*() const { return *m_chunk; }
    const TextChunk* operator->() const { return m_chunk; }
    bool operator==(const ChunkPointer& other) const { return m_chunk == other.m_chunk; } ///< the same chunk

private:
    void take() const
    {
        if (m_chunk) m_chunk->m_users.fetch_add(1, std::memory_order_relaxed);
    }
    const TextChunk* m_chunk;
};

/// Size that chunks of a text of `size` characters best have: a change copies one chunk and the list of all.
std::size_t chunkSizeFor(std::size_t size);

/// Appends the text, cut into even chunks of about `chunkSize`, none above twice of it.
void appendChunks(std::vector<ChunkPointer>& chunks, std::string_view text, const FormatId* formats,
                  std::size_t chunkSize);

} // namespace tarvex
