#pragma once

#include "documents/text/character_format.h"
#include "documents/text/format_runs.h"
#include "documents/text/text_chunk.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// An immutable text with its formats: cheap to copy, and sharing its storage with the pane it was taken from and with
/// that pane's other snapshots, so that a thousand of them taken between keystrokes cost little more than the strokes.
class RichText {
public:
    using Chunk = TextChunk;
    using ChunkPointer = tarvex::ChunkPointer;

    RichText() = default;
    RichText(std::shared_ptr<FormatTable> formats, std::vector<ChunkPointer> chunks);
    /// A text of its own, cut into chunks; `runs` give the format of each character (missing ones have format 0).
    RichText(std::shared_ptr<FormatTable> formats, std::string_view text, const std::vector<FormatRun>& runs);

    std::size_t size() const { return m_size; } ///< characters
    bool empty() const { return m_size == 0; }
    std::string text() const;
    /// Runs that cover the text; neighbours differ.
    std::vector<FormatRun> runs() const;

    const std::vector<ChunkPointer>& chunks() const;
    /// The table that the format numbers belong to; null only in an empty text.
    const std::shared_ptr<FormatTable>& formats() const { return m_formats; }

    /// Same characters in the same formats (by look, not by number).
    friend bool operator==(const RichText& a, const RichText& b);

private:
    std::shared_ptr<FormatTable> m_formats;
    std::shared_ptr<const std::vector<ChunkPointer>> m_chunks;
    std::size_t m_size = 0;
};

/// The same look in the numbers of another table.
RichText translated(const RichText& text, const std::shared_ptr<FormatTable>& formats);

/// Whether every CR stands before a LF and every LF behind a CR, when the text stands between `before` and `after`.
bool hasOnlyPairs(std::string_view text, char before = ' ', char after = ' ');
/// Lone CR and lone LF become CR LF, in the format of what was there.
RichText withWindowsLineEnds(const RichText& text);

} // namespace tarvex
