#include "documents/text/pane.h"

#include "platform/errors.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <utility>

namespace tarvex {
namespace {

/// Puts `count` values in the place of those from `begin` up to `end`.
template <typename T>
void splice(std::vector<T>& values, std::size_t begin, std::size_t end, const T* from, std::size_t count)
{
    const std::size_t reused = std::min(end - begin, count);
    std::copy_n(from, reused, values.data() + begin);
    const auto rest = values.begin() + static_cast<std::ptrdiff_t>(begin + reused);
    if (reused < count) {
        values.insert(rest, from + reused, from + count);
    } else {
        values.erase(rest, values.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

std::size_t cut(std::int64_t value, std::size_t most)
{
    return value <= 0 ? 0 : std::min(static_cast<std::size_t>(value), most);
}

void refuseNegative(std::int64_t value)
{
    if (value < 0) throw RuntimeError(ErrorCode::InvalidPropertyValue, "Invalid property value");
}

} // namespace

Pane::Pane(std::shared_ptr<FormatTable> formats)
    : m_formats(formats ? std::move(formats) : std::make_shared<FormatTable>())
{
}

// ---- text -----------------------------------------------------------------------------------------------------------

void Pane::setText(std::string_view text)
{
    const FormatId format = m_text.empty() ? insertionFormat() : m_format.front();
    const std::string pairs = withWindowsLineEnds(text);
    putWhole(RichText(m_formats, pairs, {{static_cast<std::uint32_t>(pairs.size()), format}}));
}

RichText Pane::TextRTF() const { return m_snapshots.take(m_formats, m_text, m_format.data()); }

void Pane::setTextRTF(const RichText& text) { putWhole(translated(text, m_formats)); }

std::string Pane::SelText() const
{
    return m_text.substr(static_cast<std::size_t>(m_selStart), static_cast<std::size_t>(m_selLength));
}

void Pane::setSelText(std::string_view text)
{
    replace(withoutHalfPairs(selection()), text);
    changed();
}

void Pane::userEdit(std::int64_t position, std::int64_t removed, std::string_view inserted)
{
    if (Locked || (removed <= 0 && inserted.empty())) return;
    const std::size_t begin = cut(position, m_text.size());
    replace(withoutHalfPairs({begin, begin + cut(removed, m_text.size() - begin)}), inserted);
    changed();
}

RichText Pane::SelRTF() const
{
    const auto [begin, end] = selection();
    return RichText(m_formats, std::string_view(m_text).substr(begin, end - begin),
                    runsOf(m_format.data(), begin, end));
}

void Pane::setSelRTF(const RichText& text)
{
    const RichText own = withWindowsLineEnds(translated(text, m_formats));
    replace(withoutHalfPairs(selection()), own.text(), flattened(own.runs(), own.size()));
    changed();
}

std::vector<FormatRun> Pane::runs() const { return runsOf(m_format.data(), 0, m_format.size()); }

void Pane::replace(Range range, std::string_view text)
{
    const std::string pairs = hasOnlyPairs(text) ? std::string(text) : withWindowsLineEnds(text);
    replace(range, pairs, std::vector<FormatId>(pairs.size(), formatFor(range)));
}

/// Replaces by text that has only pairs, and notifies the views.
void Pane::replace(Range range, std::string_view text, const std::vector<FormatId>& formats)
{
    const Edit edit{static_cast<std::int64_t>(range.begin), static_cast<std::int64_t>(range.end - range.begin),
                    static_cast<std::int64_t>(text.size())};
    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;
    const bool writes = edit.removed != 0 || edit.inserted != 0;
    if (writes) {
        m_snapshots.edited(range.begin, range.end - range.begin, m_text.size());
        putText(range, text);
        putFormats(range, formats.data(), formats.size());
    }
    select(range.begin + text.size(), 0);
    if (writes) edited(edit);
    reportSelection(oldStart, oldLength);
}

void Pane::putText(Range range, std::string_view text)
{
    const std::size_t removed = range.end - range.begin;
    m_text.replace(range.begin, removed, text);
    m_lines.edited(range.begin, removed, text);
    if (m_folded) m_folded->replace(range.begin, removed, lowerWindows1252(text));
}

void Pane::putFormats(Range range, const FormatId* formats, std::size_t count)
{
    splice(m_format, range.begin, range.end, formats, count);
}

void Pane::changed() const
{
    if (Change) Change();
}

// ---- selection ------------------------------------------------------------------------------------------------------

Pane::Range Pane::selection() const
{
    return {static_cast<std::size_t>(m_selStart), static_cast<std::size_t>(m_selStart + m_selLength)};
}

void Pane::setSelStart(std::int64_t position)
{
    refuseNegative(position);
    const std::int64_t oldStart = m_selStart;
    const std::int64_t oldLength = m_selLength;
    select(cut(position, m_text.size()), 0);
    reportSelection(oldStart, oldLength);
}

void Pane::setSelLength(std::int64_t length)
{
    refuseNegative(length);
    const std::int64_t oldLength = m_selLength;
    const auto start = static_cast<std::size_t>(m_selStart);
    select(start, cut(length, m_text.size() - start));
    reportSelection(m_selStart, oldLength);
}

/// The chosen format goes with the caret that it was chosen for.
void Pane::select(std::size_t start, std::size_t length)
{
    const auto newStart = static_cast<std::int64_t>(start);
    const auto newLength = static_cast<std::int64_t>(length);
    if (newStart != m_selStart || newLength != m_selLength) m_chosenFormat.reset();
    m_selStart = newStart;
    m_selLength = newLength;
}

void Pane::reportSelection(std::int64_t oldStart, std::int64_t oldLength)
{
    if (oldStart != m_selStart || oldLength != m_selLength) selectionChanged();
}

bool Pane::partsPair(std::size_t position) const
{
    return position > 0 && position < m_text.size() && m_text[position] == '\n' && m_text[position - 1] == '\r';
}

Pane::Range Pane::withoutHalfPairs(Range range) const
{
    const bool insertion = range.begin == range.end;
    if (insertion && partsPair(range.begin)) return {range.begin - 1, range.begin - 1};
    if (!insertion && partsPair(range.begin)) ++range.begin;
    if (!insertion && partsPair(range.end)) --range.end;
    return range;
}

} // namespace tarvex
