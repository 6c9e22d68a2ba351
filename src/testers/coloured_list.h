#pragma once

#include "platform/controls.h"

#include <deque>
#include <string>

namespace tarvex {

/// A list of lines, each in a colour, that only grows at its end. Beyond `mostLines` the oldest ones go, so that it
/// stays quick however much is written.
class ColouredList {
public:
    static constexpr std::size_t mostLines = 2000;

    struct Line {
        std::string text; ///< UTF-8, without its line end
        Colour colour = 0;
        bool operator==(const Line&) const = default;
    };

    void append(std::string text, Colour colour)
    {
        m_lines.push_back({std::move(text), colour});
        if (m_lines.size() > mostLines) m_lines.pop_front();
        appended(m_lines.back());
    }
    void clear()
    {
        m_lines.clear();
        cleared();
    }

    const std::deque<Line>& lines() const { return m_lines; }
    /// Each line with CR LF behind it.
    std::string Text() const
    {
        std::string text;
        for (const Line& line : m_lines) text += line.text + "\r\n";
        return text;
    }

    Property<Colour> BackColor = 0;
    Signal<const Line&> appended; ///< the view does the same cut
    Signal<> cleared;

private:
    std::deque<Line> m_lines;
};

} // namespace tarvex
