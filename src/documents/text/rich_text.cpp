#include "documents/text/rich_text.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarvex {

RichText::RichText(std::shared_ptr<FormatTable> formats, std::vector<ChunkPointer> chunks)
    : m_formats(std::move(formats))
{
    for (const ChunkPointer& chunk : chunks) m_size += chunk->size();
    m_chunks = std::make_shared<const std::vector<ChunkPointer>>(std::move(chunks));
}

RichText::RichText(std::shared_ptr<FormatTable> formats, std::string_view text, const std::vector<FormatRun>& runs)
    : m_formats(std::move(formats)), m_size(text.size())
{
    std::vector<ChunkPointer> chunks;
    appendChunks(chunks, text, flattened(runs, text.size()).data(), chunkSizeFor(text.size()));
    m_chunks = std::make_shared<const std::vector<ChunkPointer>>(std::move(chunks));
}

const std::vector<ChunkPointer>& RichText::chunks() const
{
    static const std::vector<ChunkPointer> none;
    return m_chunks ? *m_chunks : none;
}

std::string RichText::text() const
{
    std::string text;
    text.reserve(m_size);
    for (const ChunkPointer& chunk : chunks()) text += chunk->text();
    return text;
}

std::vector<FormatRun> RichText::runs() const
{
    std::vector<FormatRun> runs;
    for (const ChunkPointer& chunk : chunks()) {
        for (const Chunk::Run& run : chunk->runs()) appendRun(runs, run.length, run.format);
    }
    return runs;
}

bool operator==(const RichText& a, const RichText& b)
{
    if (a.m_size != b.m_size) return false;
    if (a.m_size == 0) return true;
    const bool sameTable = a.m_formats == b.m_formats;
    if (sameTable && a.chunks() == b.chunks()) return true;
    const auto sameLook = [&](const FormatRun& left, const FormatRun& right) {
        return left.length == right.length &&
               (sameTable ? left.format == right.format : (*a.m_formats)[left.format] == (*b.m_formats)[right.format]);
    };
    return std::ranges::equal(a.runs(), b.runs(), sameLook) && a.text() == b.text();
}

RichText translated(const RichText& text, const std::shared_ptr<FormatTable>& formats)
{
    if (text.empty() || text.formats() == formats) return text;
    constexpr int unknown = -1;
    std::vector<int> numbers(text.formats()->size(), unknown);
    std::vector<FormatRun> runs;
    for (const FormatRun& run : text.runs()) {
        int& number = numbers[run.format];
        if (number == unknown) number = formats->idOf((*text.formats())[run.format]);
        appendRun(runs, run.length, static_cast<FormatId>(number));
    }
    return RichText(formats, text.text(), runs);
}

bool hasOnlyPairs(std::string_view text, char before, char after)
{
    std::size_t lineBegin = 0;
    if (before == '\r' && !text.empty()) {
        if (text.front() != '\n') return false;
        lineBegin = 1;
    }
    bool endsInCr = before == '\r' && text.empty();
    while (!endsInCr) {
        const std::size_t cr = text.find('\r', lineBegin);
        const std::size_t lf = text.substr(0, cr).find('\n', lineBegin);
        if (lf != std::string_view::npos) return false;
        if (cr == std::string_view::npos) break;
        endsInCr = cr + 1 == text.size();
        if (!endsInCr && text[cr + 1] != '\n') return false;
        lineBegin = cr + 2;
    }
    return endsInCr == (after == '\n');
}

RichText withWindowsLineEnds(const RichText& given)
{
    const std::string text = given.text();
    if (hasOnlyPairs(text)) return given;
    std::string pairs;
    std::vector<FormatRun> runs;
    std::size_t at = 0;
    for (const FormatRun& run : given.runs()) {
        for (const std::size_t end = at + run.length; at < end; ++at) {
            const char next = at + 1 < text.size() ? text[at + 1] : ' ';
            const bool addLf = text[at] == '\r' && next != '\n';
            const bool addCr = text[at] == '\n' && (at == 0 || text[at - 1] != '\r');
            if (addCr) pairs += '\r';
            pairs += text[at];
            if (addLf) pairs += '\n';
            appendRun(runs, addCr || addLf ? 2 : 1, run.format);
        }
    }
    return RichText(given.formats(), pairs, runs);
}

} // namespace tarvex
