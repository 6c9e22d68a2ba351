#pragma once

#include "documents/text/rich_text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

/// The text that a reader of RTF has found so far. Its line ends are CR LF.
class RtfText {
public:
    /// Adds characters that aren't line ends.
    void add(std::string_view characters, FormatId format);
    /// Adds a CR or LF that the file gives as a character; both together make one line end.
    void addLineEndByte(char byte, FormatId format);
    void endLine(FormatId format);
    void endParagraph(FormatId format);
    /// The CR of the next line end gets this format.
    void setCrFormat(FormatId format) { m_crFormat = format; }
    /// A paragraph end behind which nothing stands is left out: it ends the last line and begins none.
    RichText take(const std::shared_ptr<FormatTable>& formats);

private:
    void removeLast(std::size_t count);

    std::string m_text;
    std::vector<FormatRun> m_runs;
    std::optional<FormatId> m_crFormat;
    bool m_endsInParagraph = false;
    bool m_afterCr = false; ///< a LF that comes now belongs to the last line end
};

} // namespace tarvex
