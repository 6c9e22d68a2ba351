#include "shell/setting_text.h"

#include "platform/windows1252.h"

namespace tarvex {

SettingText SettingText::cutTo(std::size_t characters, std::string whole)
{
    SettingText text(utf8Left(whole, characters));
    if (text.size() == whole.size()) return text;
    text.m_shownSize = text.size();
    text.m_whole = std::move(whole);
    return text;
}

SettingText& SettingText::operator=(std::string_view text)
{
    if (text == std::string_view(*this)) return *this;
    assign(text);
    m_whole.clear();
    return *this;
}

/// A text that was changed as a plain string, and not by assignment, is whole as well.
const std::string& SettingText::whole() const
{
    const bool isShown = !m_whole.empty() && size() == m_shownSize && std::string_view(m_whole).starts_with(*this);
    return isShown ? m_whole : *this;
}

SettingText SettingText::lower() const
{
    SettingText text(lowerUtf8(*this));
    if (!isCut()) return text;
    text.m_whole = lowerUtf8(m_whole);
    text.m_shownSize = text.size();
    return text;
}

} // namespace tarvex
