#pragma once

#include "documents/text/rich_text.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace tarvex {

/// Takes snapshots of a text that is being edited. Keeps the last one, and how much of the text's head and tail hasn't
/// changed since, so that the next snapshot copies the changed chunks only.
class SnapshotKeeper {
public:
    /// `removed` characters at `position` of a text of `size` gave way to others.
    void edited(std::size_t position, std::size_t removed, std::size_t size);
    /// The formats from `begin` up to `end` of a text of `size` changed.
    void reformatted(std::size_t begin, std::size_t end, std::size_t size) { edited(begin, end - begin, size); }

    /// The text as it is now, with the format of each of its characters.
    const RichText& take(const std::shared_ptr<FormatTable>& formats, std::string_view text, const FormatId* ids);
    /// The text is now what `text` says.
    void adopt(RichText text);

private:
    std::vector<ChunkPointer> freshChunks(std::string_view text, const FormatId* ids) const;

    RichText m_last;
    bool m_fresh = true; ///< nothing changed since the last snapshot
    std::size_t m_head = 0;
    std::size_t m_tail = 0;
};

} // namespace tarvex
