#pragma once

#include "documents/character_format.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tarvex {

/// A stretch of characters of one format.
struct FormatRun {
    std::uint32_t length = 0;
    FormatId format = 0;
    bool operator==(const FormatRun&) const = default;
};

/// An immutable text with its formats: cheap to copy, and sharing its storage with the pane it was taken from and with
/// that pane's other snapshots, so that a thousand of them taken between keystrokes cost little more than the strokes.
class RichText {
public:
    /// A piece of text of about one thousand characters. Never changes once it is built.
    struct Chunk {
        std::string text;
        std::vector<FormatRun> runs; ///< cover `text`, neighbours differ
    };
    using ChunkPointer = std::shared_ptr<const Chunk>;

    RichText() = default;
    RichText(std::shared_ptr<FormatTable> formats, std::vector<ChunkPointer> chunks);
    /// A text of its own, cut into chunks; `formats` of each character as runs that cover `text`.
    RichText(std::shared_ptr<FormatTable> formats, std::string_view text, const std::vector<FormatRun>& runs);

    std::size_t size() const { return m_size; } ///< characters
    bool empty() const { return m_size == 0; }
    std::string text() const;
    /// Runs that cover the text; neighbours differ.
    std::vector<FormatRun> runs() const;

    const std::vector<ChunkPointer>& chunks() const { return m_chunks; }
    /// The table that the format numbers belong to; null only in an empty text.
    const std::shared_ptr<FormatTable>& formats() const { return m_formats; }

    /// Same characters in the same formats (by look, not by number).
    friend bool operator==(const RichText& a, const RichText& b);

private:
    std::shared_ptr<FormatTable> m_formats;
    std::vector<ChunkPointer> m_chunks;
    std::size_t m_size = 0;
};

} // namespace tarvex
