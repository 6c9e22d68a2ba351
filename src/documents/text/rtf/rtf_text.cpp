#include "documents/text/rtf/rtf_text.h"

#include <utility>

namespace tarvex {

void RtfText::add(std::string_view characters, FormatId format)
{
    if (characters.empty()) return;
    m_text += characters;
    appendRun(m_runs, characters.size(), format);
    m_endsInParagraph = m_afterCr = false;
}

void RtfText::addLineEndByte(char byte, FormatId format)
{
    const bool secondOfPair = byte == '\n' && std::exchange(m_afterCr, false);
    if (secondOfPair) return;
    endLine(format);
    m_afterCr = byte == '\r';
}

void RtfText::endLine(FormatId format)
{
    add("\r", m_crFormat.value_or(format));
    add("\n", format);
    m_crFormat.reset();
}

void RtfText::endParagraph(FormatId format)
{
    endLine(format);
    m_endsInParagraph = true;
}

RichText RtfText::take(const std::shared_ptr<FormatTable>& formats)
{
    if (std::exchange(m_endsInParagraph, false)) removeLast(2);
    return RichText(formats, m_text, m_runs);
}

void RtfText::removeLast(std::size_t count)
{
    m_text.resize(m_text.size() - count);
    for (; count > 0; --count) {
        if (--m_runs.back().length == 0) m_runs.pop_back();
    }
}

} // namespace tarvex
