#include "download/loader_result.h"

#include "platform/windows1252.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarvex {

namespace {

constexpr std::string_view errorMark = "ERROR";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Blank before a number that isn't negative: the place of its sign.
std::string withSignPlace(int number) { return (number < 0 ? "" : " ") + std::to_string(number); }

} // namespace

void LoaderResultReader::take(std::string_view piece)
{
    search(piece);
    takeLines(piece);
}

void LoaderResultReader::search(std::string_view piece)
{
    if (m_hasError) return;
    // The mark may stand across the border of two pieces.
    const std::string border = m_tail + std::string(piece.substr(0, errorMark.size() - 1));
    m_hasError = border.find(errorMark) != std::string::npos || piece.find(errorMark) != std::string_view::npos;
    const std::string_view last = piece.size() < errorMark.size() ? std::string_view(border) : piece;
    m_tail = last.substr(last.size() - std::min(last.size(), errorMark.size() - 1));
}

void LoaderResultReader::takeLines(std::string_view piece)
{
    while (m_complete < m_lines.size() && !piece.empty()) {
        if (m_afterReturn && piece.front() == '\n') piece.remove_prefix(1);
        m_afterReturn = false;
        if (piece.empty()) return;
        const std::size_t end = std::min(piece.find_first_of("\r\n"), piece.size());
        std::string& line = m_lines[m_complete];
        line.append(piece.substr(0, std::min(end, longestLine - line.size())));
        m_inLine = true;
        if (end == piece.size()) return;
        m_afterReturn = piece[end] == '\r';
        piece.remove_prefix(end + 1);
        ++m_complete;
        m_inLine = false;
    }
}

void LoaderResultReader::finish()
{
    if (m_inLine) ++m_complete;
}

const std::string& LoaderResultReader::line(std::size_t number) const
{
    if (number < 1 || number > m_complete) throw RuntimeError(ErrorCode::InputPastEnd, "Input past end of file");
    return m_lines[number - 1];
}

std::int16_t leadingNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (text.empty() || !(isDigit(text.front()) || text.front() == '.')) return 0;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    value = std::trunc(negative ? -value : value);
    using Limits = std::numeric_limits<std::int16_t>;
    if (result.ec == std::errc::result_out_of_range || value < Limits::min() || value > Limits::max())
        throw RuntimeError(ErrorCode::Overflow, "Overflow");
    return static_cast<std::int16_t>(value);
}

LoaderResult loaderResult(const LoaderResultReader& reader, const Steps& step)
{
    LoaderResult result;
    result.failed = reader.hasError();
    std::string third;
    step([&] { third = utf8FromWindows1252(reader.line(3)); });
    if (!result.failed) {
        result.size = third;
        return result;
    }
    step([&] { result.message = utf8FromWindows1252(reader.line(4)); });
    step([&] { result.errorLine = leadingNumber(third); });
    return result;
}

LoaderResult readLoaderResult(const FileSystem& files, const std::string& path, const Steps& step)
{
    LoaderResultReader reader;
    std::size_t left = largestResult;
    files.readPieces(path, [&](std::string_view piece) {
        piece = piece.substr(0, left);
        left -= piece.size();
        reader.take(piece);
        return left > 0;
    });
    reader.finish();
    return loaderResult(reader, step);
}

std::string LoaderResult::statusText() const
{
    if (!failed) return "Compiled and downloaded successfully! (File size: " + size + " bytes)";
    if (errorLine != 0) return "Compiler reported an error at line" + withSignPlace(errorLine) + ": " + message;
    return "Compiler reported the following error: " + message;
}

} // namespace tarvex
