#pragma once

#include "documents/text/rich_text.h"

#include <string>
#include <string_view>

namespace tarvex {

/// RTF that any word processor reads: font table, colour table, one paragraph a line, 7-bit. It begins in the plain
/// look, whatever the look of the place that it is put into. Linear in the text.
std::string writeRtf(const RichText& text);

/// Reads any bytes without recursion, in linear time and memory. Bytes that aren't RTF (no "{\rtf" at the start) give
/// an empty text. Every text that writeRtf wrote comes back with the same characters and formats.
///
/// Read are:
/// * looks: "\f", "\fs", "\b", "\i", "\ul" and its kinds, "\cf", "\li", "\plain" and "\pard", with the font table and
/// the
///   colour table;
/// * line ends: "\par", "\line", "\row", "\page", "\sect", and CR and LF as characters; a "\par" at the very end begins
///   no further line. "\tab", "\cell" and "\nestcell" are tabs;
/// * characters as bytes: of the font's code page ("\fcharset", "\cpg"), else of the file's ("\ansicpg", "\mac", "\pc",
///   "\pca"). Known are the Windows pages 1250 to 1258 and 874, DOS 437 and 850, Macintosh Roman, and the East Asian
///   pages 932, 936, 949, 950 and 1361, of which nothing but the length of a character matters here. Bytes of symbol
///   fonts and of unknown pages stay as they are;
/// * characters by number or name: "\u", which takes as many characters away as "\uc" says, "\emdash", "\lquote" and
/// the
///   like. A character that Windows-1252 lacks becomes one "?", and so does half of a surrogate pair that stands alone.
///
/// Not part of the text are hidden ("\v") and deleted text, bullets and numbers of lists ("\pntext", "\listtext"),
/// pictures, notes, headers and footers, styles, and groups that begin with "\*". Other unknown words are skipped, and
/// their groups read. Groups deeper than 1,000 are skipped. Names of fonts are taken for Windows-1252.
RichText readRtf(std::string_view rtf, const std::shared_ptr<FormatTable>& formats);
/// Whether the bytes begin as RTF does.
bool looksLikeRtf(std::string_view bytes);

} // namespace tarvex
