#pragma once

#include "documents/text/pane.h"

#include <cstdint>
#include <optional>

namespace tarvex {

/// Marks a line of a pane. The mark moves with the line when lines come or go above it, and goes when the line's own
/// text is edited.
class LineMark {
public:
    /// The pane outlives the mark.
    explicit LineMark(Pane& pane);

    /// Lines count from 0; one that the pane doesn't have leaves no mark.
    void set(std::int64_t line);
    void clear();
    std::optional<std::int64_t> line() const;

    /// Another line is marked now, or the same one has another number, or none is marked any more.
    Signal<> changed;

private:
    void followEdit(const Pane::Edit& edit);
    std::int64_t lengthOf(std::int64_t line) const;

    const Pane& m_pane;
    std::optional<std::int64_t> m_start; ///< of the line, in characters
    std::int64_t m_length = 0;           ///< without the line's end
    std::int64_t m_line = 0;
    Connection m_edited;
};

} // namespace tarvex
