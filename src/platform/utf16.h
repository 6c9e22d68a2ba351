#pragma once

#include <optional>
#include <string>
#include <string_view>

// UTF-16 as text files hold it: a mark, then units of two bytes.

namespace tarvex {

enum class Utf16Order { LittleEndian, BigEndian };

/// The order that a file's mark (FF FE or FE FF) states; nothing where the bytes begin with none.
std::optional<Utf16Order> utf16OrderOf(std::string_view bytes);

/// The mark becomes that of UTF-8. Half of a surrogate pair that stands alone becomes three bytes that are no valid
/// UTF-8 but come back. An odd byte at the end is left out.
std::string utf8FromUtf16(std::string_view bytes, Utf16Order order);
/// Other bytes than utf8FromUtf16 gives become U+FFFD.
std::string utf16FromUtf8(std::string_view text, Utf16Order order);

/// The Windows-1252 text of a file: a file in UTF-16 is decoded without its mark, and characters that the code page
/// lacks become "?"; any other file is its text.
std::string textOfFile(std::string bytes);
/// Number of characters that textOfFile can't keep.
std::size_t charactersLostFromFile(std::string_view bytes);

} // namespace tarvex
