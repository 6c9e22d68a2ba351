#include "documents/text/line_mark.h"

namespace tarvex {

LineMark::LineMark(Pane& pane)
    : m_pane(pane), m_edited(pane.edited.connect([this](const Pane::Edit& edit) { followEdit(edit); }))
{
}

void LineMark::set(std::int64_t line)
{
    if (line < 0 || line >= m_pane.lineCount()) return clear();
    if (this->line() == line) return;
    m_start = m_pane.lineStart(line);
    m_length = lengthOf(line);
    m_line = line;
    changed();
}

void LineMark::clear()
{
    if (!m_start) return;
    m_start.reset();
    changed();
}

std::optional<std::int64_t> LineMark::line() const
{
    if (!m_start) return std::nullopt;
    return m_line;
}

std::int64_t LineMark::lengthOf(std::int64_t line) const
{
    constexpr std::int64_t lineEnd = 2;
    if (line + 1 < m_pane.lineCount()) return m_pane.lineStart(line + 1) - lineEnd - m_pane.lineStart(line);
    return static_cast<std::int64_t>(m_pane.TextLength()) - m_pane.lineStart(line);
}

/// An edit beside the line may still have joined it with another one, so the line must be there as it was.
void LineMark::followEdit(const Pane::Edit& edit)
{
    if (!m_start) return;
    const bool above = edit.position + edit.removed <= *m_start;
    const bool below = edit.position >= *m_start + m_length;
    const std::int64_t start = above ? *m_start + edit.inserted - edit.removed : *m_start;
    const std::int64_t line = m_pane.GetLineFromChar(start);
    if ((!above && !below) || m_pane.lineStart(line) != start || lengthOf(line) != m_length) return clear();
    m_start = start;
    if (m_line == line) return;
    m_line = line;
    changed();
}

} // namespace tarvex
