#pragma once

#include "platform/utf16.h"

#include <string>
#include <string_view>

namespace tarvex {

/// The file of a Windows program that writes Unicode: `text` in UTF-16 behind its mark.
inline std::string asUtf16(std::string_view text)
{
    return utf16FromUtf8("\xEF\xBB\xBF" + std::string(text), Utf16Order::LittleEndian);
}

} // namespace tarvex
