#pragma once

#include "platform/files.h"
#include "shell/errors.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

/// Takes a loader's result file in pieces of any size and keeps what the program asks of it, however large the file is:
/// its first four lines, and whether "ERROR" stands anywhere. A line ends at CR LF, CR or LF.
class LoaderResultReader {
public:
    static constexpr std::size_t longestLine = 4096; ///< bytes kept of a line

    void take(std::string_view piece);
    /// The file has ended: a last line without an end counts, an empty rest doesn't.
    void finish();

    bool hasError() const { return m_hasError; }
    /// Line 1 to 4. Throws RuntimeError (InputPastEnd) when the file has fewer.
    const std::string& line(std::size_t number) const;

private:
    void search(std::string_view piece);
    void takeLines(std::string_view piece);

    std::array<std::string, 4> m_lines;
    std::size_t m_complete = 0; ///< lines that have ended
    bool m_inLine = false;      ///< the next line has begun
    bool m_afterReturn = false; ///< a LF that comes now belongs to the end of the last line
    bool m_hasError = false;
    std::string m_tail; ///< of the pieces so far, as much as "ERROR" may begin with
};

/// What a loader's result file says, as the program reads it.
struct LoaderResult {
    bool failed = false;
    std::int16_t errorLine = 0; ///< of the joystick file, from 1; 0: the error has no line
    std::string message;        ///< of a failure, UTF-8
    std::string size;           ///< of a success, as the file has it

    /// What the first panel of the status bar shows.
    std::string statusText() const;
};

/// Bytes of a result file that are read; a loader writes less than one hundredth of that.
constexpr std::size_t largestResult = std::size_t{1} << 20;

/// A value that can't be read or converted keeps its initial value, and `step` handles the failure. Throws
/// RuntimeError when the file itself can't be read.
LoaderResult readLoaderResult(const FileSystem& files, const std::string& path, const Steps& step);
/// The same from a reader that has seen the whole file.
LoaderResult loaderResult(const LoaderResultReader& reader, const Steps& step);

/// The number that a text begins with, after blanks, cut to a whole one; 0 when it begins with none. Throws
/// RuntimeError (Overflow) beyond 16 bits.
std::int16_t leadingNumber(std::string_view text);

} // namespace tarvex
