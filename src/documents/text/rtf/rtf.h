#pragma once

#include "documents/text/rich_text.h"

#include <string>
#include <string_view>

namespace tarvex {

/// RTF that any word processor reads: font table, colour table, one paragraph a line, 7-bit. Linear in the text.
std::string writeRtf(const RichText& text);

/// Reads any bytes without recursion, in linear time and memory. Groups and control words that it doesn't know are
/// skipped; bytes that aren't RTF at all (no "{\rtf" at the start) give an empty text. Characters that Windows-1252
/// lacks become "?". Every text that writeRtf wrote comes back with the same characters and formats.
RichText readRtf(std::string_view rtf, const std::shared_ptr<FormatTable>& formats);
/// Whether the bytes begin as RTF does.
bool looksLikeRtf(std::string_view bytes);

} // namespace tarvex
