#pragma once

#include "documents/pair/editor.h"
#include "documents/text/rich_text.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// Colours what the user writes by itself: a while after the last key, and soon after the caret has left the line. It
/// paints the lines that were written, and whatever the edit gives another colour elsewhere, just as colouring the
/// whole file would; what the user coloured by hand in other places stays. Neither the caret nor the undo levels
/// notice.
class ColourAsTyped {
public:
    /// Lengths of the beginning and the end of a text.
    struct Ends {
        std::size_t head;
        std::size_t tail;
    };
    /// The editor outlives this.
    explicit ColourAsTyped(Editor& editor);
    ColourAsTyped(const ColourAsTyped&) = delete;
    ColourAsTyped& operator=(const ColourAsTyped&) = delete;

    /// Colours what waits for it now.
    void colourNow();
    /// Colours a whole document now, whether the user wants it while writing or not.
    void colourAll(const Side& side);
    /// The line that waits for its colours is complete.
    void lineLeft();

private:
    /// A text, and the formats that the passes give it with the colours and the font of the settings.
    struct Coloured {
        std::string scheme;
        std::string text;
        std::vector<FormatId> formats;
    };
    struct OfSide {
        Side& side;
        std::optional<RichText> before = {}; ///< the text before the edits that wait; none: nothing waits
        /// By the edits that wait. The texts alone don't show it: what was cut and typed again has another format.
        Ends untouched = {};
        Coloured known = {}; ///< of the run before, mostly of that same text
        Connection edited = {};
    };
    bool isOn();
    void followEdit(OfSide& of, const Pane::Edit& edit);
    void startTimer(int delay);
    void colour(OfSide& of);
    Coloured colouredAnew(const Side& side, std::string text) const;

    Editor& m_editor;
    std::array<OfSide, 2> m_sides;
    std::optional<bool> m_on; ///< as the tick was read last: a key in a text is no time to read a file
    Connection m_ticked;
};

} // namespace tarvex
