#pragma once

#include "documents/text/pane.h"
#include "platform/windows1252.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvex {

/// The pane's rules in the plainest form, a cell a character, for tests to compare the pane with.
class PlainPane {
public:
    struct Cell {
        char byte = 0;
        CharacterFormat format;
        bool operator==(const Cell&) const = default;
    };
    using Cells = std::vector<Cell>;
    using Write = std::function<void(CharacterFormat&)>;

    Cells cells;
    std::size_t start = 0;
    std::size_t length = 0;
    std::optional<CharacterFormat> chosen;
    PaneFont font;
    int indent = 0;

    static Cells cellsOf(const RichText& text)
    {
        Cells cells;
        for (const FormatRun& run : text.runs()) {
            for (std::size_t i = 0; i < run.length; ++i) cells.push_back({0, (*text.formats())[run.format]});
        }
        const std::string bytes = text.text();
        for (std::size_t i = 0; i < cells.size(); ++i) cells[i].byte = bytes[i];
        return cells;
    }

    static Cells withPairs(const Cells& given)
    {
        Cells pairs;
        for (std::size_t i = 0; i < given.size(); ++i) {
            const CharacterFormat& format = given[i].format;
            if (given[i].byte != '\r' && given[i].byte != '\n') {
                pairs.push_back(given[i]);
            } else if (given[i].byte == '\r' && i + 1 < given.size() && given[i + 1].byte == '\n') {
                pairs.push_back(given[i]);
                pairs.push_back(given[++i]);
            } else {
                pairs.push_back({'\r', format});
                pairs.push_back({'\n', format});
            }
        }
        return pairs;
    }

    std::string text() const
    {
        std::string text;
        for (const Cell& cell : cells) text += cell.byte;
        return text;
    }

    bool insidePair(std::size_t at) const
    {
        return at > 0 && at < cells.size() && cells[at - 1].byte == '\r' && cells[at].byte == '\n';
    }

    CharacterFormat formatOfInsertion(std::size_t at) const
    {
        if (insidePair(at)) --at;
        const std::size_t caret = insidePair(start) ? start - 1 : start;
        if (chosen && length == 0 && caret == at) return *chosen;
        if (at > 0 && cells[at - 1].byte != '\n') return cells[at - 1].format;
        if (at < cells.size() && cells[at].byte != '\r') return cells[at].format;
        if (at > 0) return cells[at - 1].format;
        CharacterFormat format;
        format.fontName = font.name;
        format.fontSize = font.size;
        format.bold = font.bold;
        format.indent = indent;
        return format;
    }

    void select(std::size_t newStart, std::size_t newLength)
    {
        if (newStart != start || newLength != length) chosen.reset();
        start = newStart;
        length = newLength;
    }

    /// Narrows the range to what an edit may touch.
    void keepPairs(std::size_t& begin, std::size_t& end) const
    {
        if (begin == end) {
            if (insidePair(begin)) begin = end = begin - 1;
            return;
        }
        if (insidePair(begin)) ++begin;
        if (insidePair(end)) --end;
    }

    void replace(std::size_t begin, std::size_t end, const std::string& text)
    {
        keepPairs(begin, end);
        const CharacterFormat format = begin < end ? cells[begin].format : formatOfInsertion(begin);
        Cells inserted;
        for (const char byte : text) inserted.push_back({byte, format});
        put(begin, end, withPairs(inserted));
    }

    void replace(std::size_t begin, std::size_t end, const Cells& inserted)
    {
        keepPairs(begin, end);
        put(begin, end, withPairs(inserted));
    }

    void replaceAll(const Cells& text)
    {
        cells = withPairs(text);
        start = length = 0;
        chosen.reset();
    }

    void setText(const std::string& text)
    {
        const CharacterFormat format = cells.empty() ? formatOfInsertion(0) : cells.front().format;
        Cells all;
        for (const char byte : text) all.push_back({byte, format});
        replaceAll(all);
    }

    void write(const Write& write)
    {
        if (length == 0) {
            CharacterFormat format = formatOfInsertion(start);
            write(format);
            chosen = format;
        }
        for (std::size_t i = start; i < start + length; ++i) write(cells[i].format);
    }

    void setIndent(int twips)
    {
        const std::size_t firstLine = lineOf(start);
        const std::size_t lastLine = lineOf(length == 0 ? start : start + length - 1);
        std::optional<CharacterFormat> next;
        if (length == 0) next = formatOfInsertion(start);
        bool any = false;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (lineOf(i) < firstLine || lineOf(i) > lastLine) continue;
            cells[i].format.indent = twips;
            any = true;
        }
        indent = twips;
        if (next && (chosen || !any)) {
            next->indent = twips;
            chosen = next;
        }
    }

    std::size_t lineOf(std::size_t position) const
    {
        std::size_t line = 0;
        for (std::size_t i = 0; i + 1 < cells.size() && i + 1 < position; ++i) {
            if (cells[i].byte == '\r' && cells[i + 1].byte == '\n') ++line;
        }
        return line;
    }

    long find(const std::string& wanted, long from, long to, int options)
    {
        const auto folded = [&](char byte) {
            const auto index = static_cast<unsigned char>(byte);
            return (options & find::matchCase) != 0 ? index : windows1252Lower[index];
        };
        const auto word = [&](long at) {
            return at >= 0 && at < static_cast<long>(cells.size()) &&
                   windows1252IsWord[static_cast<unsigned char>(cells[static_cast<std::size_t>(at)].byte)];
        };
        const long size = static_cast<long>(wanted.size());
        if (from < 0) from += 65536;
        if (wanted.empty()) return -1;
        for (long at = from; at + size <= std::min(to, static_cast<long>(cells.size())); ++at) {
            bool equal = true;
            for (long i = 0; equal && i < size; ++i) {
                equal =
                    folded(wanted[static_cast<std::size_t>(i)]) == folded(cells[static_cast<std::size_t>(at + i)].byte);
            }
            const bool cutsWord = (word(at - 1) && word(at)) || (word(at + size - 1) && word(at + size));
            if (!equal || ((options & find::wholeWord) != 0 && cutsWord)) continue;
            select(static_cast<std::size_t>(at), wanted.size());
            return at;
        }
        return -1;
    }

    void span(const std::string& set, bool forward, bool negate)
    {
        const std::size_t end = start + length;
        if (forward) {
            select(start, walk(end, set, true, negate) - start);
        } else {
            const std::size_t reached = walk(start, set, false, negate);
            select(reached, end - reached);
        }
    }

    void upTo(const std::string& set, bool forward, bool negate)
    {
        select(walk(forward ? start + length : start, set, forward, !negate), 0);
    }

private:
    void put(std::size_t begin, std::size_t end, const Cells& inserted)
    {
        const auto at = [&](std::size_t i) { return cells.begin() + static_cast<std::ptrdiff_t>(i); };
        cells.erase(at(begin), at(end));
        cells.insert(at(begin), inserted.begin(), inserted.end());
        select(begin + inserted.size(), 0);
    }

    std::size_t walk(std::size_t at, const std::string& set, bool forward, bool negate) const
    {
        const auto wanted = [&](char byte) { return (set.find(byte) != std::string::npos) != negate; };
        if (forward) {
            while (at < cells.size() && wanted(cells[at].byte)) ++at;
        } else {
            while (at > 0 && wanted(cells[at - 1].byte)) --at;
        }
        return at;
    }
};

} // namespace tarvex
