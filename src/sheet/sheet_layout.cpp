#include "sheet/sheet_layout.h"

#include "sheet/text_width.h"
#include "sheet/word_wrap.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tarvex {

namespace {

constexpr double margin = 26;
constexpr double headHeight = 46;
constexpr double gap = 14;
constexpr double footHeight = 16;
constexpr double largestText = 14;
constexpr double smallestText = 5;
constexpr double textStep = 0.5;
constexpr double lineFactor = 1.18;
constexpr double paddingFactor = 0.32;
constexpr double captionFactor = 0.7;
constexpr double pictureWidth = 580;
constexpr double pictureHeight = 480;

namespace colour {
constexpr SheetColour ink = 0x1A1A1A;
constexpr SheetColour grey = 0x606060;
constexpr SheetColour stripe = 0xEEF1F5;
constexpr SheetColour head = 0x23405F;
constexpr SheetColour onHead = 0xFFFFFF;
constexpr SheetColour modifier = 0xB03010;
} // namespace colour

/// What the layers of a page are spread over, side by side.
struct Columns {
    std::string letters;  ///< "UMD", "IO", or " " for one column
    bool ofShift = false; ///< the letters are those of S3
};

struct Area {
    double x;
    double y;
    double width;
    double bottom;
};

/// The lines of one column of a row.
struct Cell {
    double x = 0; ///< from the row's left edge
    std::vector<PlacedLine> lines;
    std::vector<std::string> modifiers; ///< before each line, often empty
};

struct LaidOutRow {
    std::string name;
    std::vector<std::vector<Cell>> spanning; ///< of all columns, groups of cells side by side
    std::vector<Cell> columns;
    double height = 0;
};

bool uses(const SheetPage& page, char ControlLayer::*which)
{
    return std::ranges::any_of(page.rows, [which](const SheetRow& row) {
        return std::ranges::any_of(row.layers, [which](const ControlLayer& layer) { return layer.*which != ' '; });
    });
}

Columns columnsOf(const SheetPage& page)
{
    if (uses(page, &ControlLayer::dogfight)) return {.letters = "UMD", .ofShift = false};
    if (uses(page, &ControlLayer::shift)) return {.letters = "IO", .ofShift = true};
    return {.letters = " ", .ofShift = false};
}

std::string_view captionOf(char letter)
{
    switch (letter) {
    case 'U':
        return "/U dogfight up";
    case 'M':
        return "/M middle";
    case 'D':
        return "/D down";
    case 'I':
        return "/I S3 held in";
    case 'O':
        return "/O S3 out";
    default:
        return "does";
    }
}

class PageLayout {
public:
    /// `pictureShare` is the part of its half of the page that the picture takes across.
    PageLayout(const SheetPage& page, const SheetPaper& paper, double size, double pictureShare)
        : m_page(page), m_paper(paper), m_size(size), m_pictureShare(pictureShare), m_columns(columnsOf(page)),
          m_nameWidth(nameWidth())
    {
    }

    /// The rows that found room.
    std::size_t place(std::vector<SheetItem>& items) const
    {
        const std::array<Area, 2> areas = this->areas();
        std::size_t row = 0;
        for (const Area& area : areas) {
            double y = area.y;
            bool begun = false;
            for (; row < m_page.rows.size(); ++row) {
                const LaidOutRow laidOut = layOutRow(m_page.rows[row], area.width);
                const double caption = begun ? 0 : captionHeight();
                if (y + caption + laidOut.height > area.bottom) break;
                if (!begun) paintCaptions(items, area, y);
                begun = true;
                y += caption;
                paintRow(items, laidOut, area, y, row % 2 == 1);
                y += laidOut.height;
            }
        }
        return row;
    }

    SheetPicture picture() const
    {
        const Area below = areas()[0];
        const double width = below.width * m_pictureShare;
        return {m_page.picture, below.x + (below.width - width) / 2, margin + headHeight + gap / 2,
                width / pictureWidth};
    }

private:
    std::array<Area, 2> areas() const
    {
        const double width = (m_paper.width - 2 * margin - gap) / 2;
        const double top = margin + headHeight + gap / 2;
        const double bottom = m_paper.height - margin - footHeight;
        const double pictured = width * m_pictureShare / pictureWidth * pictureHeight;
        return {Area{margin, top + pictured + gap / 2, width, bottom}, Area{margin + width + gap, top, width, bottom}};
    }
    double line() const { return m_size * lineFactor; }
    double padding() const { return m_size * paddingFactor; }
    double captionHeight() const { return m_size * captionFactor * lineFactor + padding(); }

    double nameWidth() const
    {
        double widest = textWidth("RDDR", m_size, true);
        for (const SheetRow& row : m_page.rows) widest = std::max(widest, textWidth(row.name, m_size, true));
        return widest + 2 * padding();
    }
    double columnWidth(double rowWidth) const
    {
        return (rowWidth - m_nameWidth) / static_cast<double>(m_columns.letters.size());
    }

    /// The layer below what the cell has already, with the modifier that its column doesn't name.
    void add(Cell& cell, const ControlLayer& layer, double width) const
    {
        const bool named = m_columns.ofShift || layer.shift == ' ';
        std::string modifier = named ? "" : std::string("/") + layer.shift;
        const double indent = modifier.empty() ? 0 : textWidth(modifier + " ", m_size, true);
        for (PlacedLine& one : wrapWords(layer.words, width - 2 * padding() - indent, m_size)) {
            for (PlacedWord& word : one) word.x += indent;
            cell.lines.push_back(std::move(one));
            cell.modifiers.push_back(modifier);
            modifier.clear();
        }
    }

    LaidOutRow layOutRow(const SheetRow& row, double width) const
    {
        LaidOutRow result{.name = row.name, .spanning = {}, .columns = {}, .height = 0};
        const double column = columnWidth(width);
        for (std::size_t i = 0; i < m_columns.letters.size(); ++i)
            result.columns.push_back(
                {.x = m_nameWidth + static_cast<double>(i) * column, .lines = {}, .modifiers = {}});
        for (const ControlLayer& layer : row.layers) {
            const std::size_t at = m_columns.letters.find(m_columns.ofShift ? layer.shift : layer.dogfight);
            if (at == std::string::npos) {
                addSpanning(result, layer, width - m_nameWidth);
            } else {
                add(result.columns[at], layer, column);
            }
        }
        const std::size_t lines = std::max<std::size_t>(mostLines(result.columns) + linesOf(result.spanning), 1);
        result.height = static_cast<double>(lines) * line() + padding();
        return result;
    }

    /// A layer of all columns. What S3 does held in and out stands side by side.
    void addSpanning(LaidOutRow& row, const ControlLayer& layer, double width) const
    {
        if (layer.shift == ' ' || m_columns.ofShift) {
            row.spanning.push_back({Cell{.x = m_nameWidth, .lines = {}, .modifiers = {}}});
            return add(row.spanning.back().front(), layer, width);
        }
        const std::size_t side = layer.shift == 'I' ? 0 : 1;
        if (row.spanning.empty() || row.spanning.back().size() <= side || !row.spanning.back()[side].lines.empty())
            row.spanning.push_back({Cell{.x = m_nameWidth, .lines = {}, .modifiers = {}},
                                    Cell{.x = m_nameWidth + width / 2, .lines = {}, .modifiers = {}}});
        add(row.spanning.back()[side], layer, width / 2);
    }

    static std::size_t mostLines(const std::vector<Cell>& cells)
    {
        std::size_t lines = 0;
        for (const Cell& cell : cells) lines = std::max(lines, cell.lines.size());
        return lines;
    }
    static std::size_t linesOf(const std::vector<std::vector<Cell>>& groups)
    {
        std::size_t lines = 0;
        for (const std::vector<Cell>& cells : groups) lines += mostLines(cells);
        return lines;
    }

    void paintCaptions(std::vector<SheetItem>& items, const Area& area, double y) const
    {
        const double size = m_size * captionFactor;
        const double baseline = y + size;
        const auto text = [&](double x, std::string_view caption) {
            items.emplace_back(SheetText{area.x + x, baseline, size, true, colour::grey, std::string(caption)});
        };
        text(padding(), "Control");
        for (std::size_t i = 0; i < m_columns.letters.size(); ++i)
            text(m_nameWidth + static_cast<double>(i) * columnWidth(area.width) + padding(),
                 captionOf(m_columns.letters[i]));
    }

    void paintRow(std::vector<SheetItem>& items, const LaidOutRow& row, const Area& area, double y, bool striped) const
    {
        if (striped) items.emplace_back(SheetBox{area.x, y, area.width, row.height, colour::stripe});
        const double first = y + padding() / 2 + m_size;
        items.emplace_back(SheetText{area.x + padding(), first, m_size, true, colour::head, row.name});
        double baseline = first;
        for (const std::vector<Cell>& cells : row.spanning) {
            for (const Cell& cell : cells) paintCell(items, cell, area, baseline);
            baseline += static_cast<double>(mostLines(cells)) * line();
        }
        for (const Cell& cell : row.columns) paintCell(items, cell, area, baseline);
    }

    void paintCell(std::vector<SheetItem>& items, const Cell& cell, const Area& area, double baseline) const
    {
        const double left = area.x + cell.x + padding();
        for (std::size_t i = 0; i < cell.lines.size(); ++i) {
            if (!cell.modifiers[i].empty())
                items.emplace_back(SheetText{left, baseline, m_size, true, colour::modifier, cell.modifiers[i]});
            for (const PlacedWord& word : cell.lines[i]) {
                const SheetColour ink = word.kind == SheetWord::Kind::Keys ? colour::grey : colour::ink;
                items.emplace_back(SheetText{left + word.x, baseline, m_size, isBold(word.kind), ink, word.text});
            }
            baseline += line();
        }
    }

    const SheetPage& m_page;
    SheetPaper m_paper;
    double m_size;
    double m_pictureShare;
    Columns m_columns;
    double m_nameWidth;
};

/// The text cut to the width, with "…" where it was cut.
std::string cutTo(const std::string& text, double width, double size, bool bold)
{
    if (textWidth(text, size, bold) <= width) return text;
    std::vector<PlacedLine> lines = wrapWords({{text}}, width - textWidth("…", size, bold), size);
    return lines.front().front().text + "…";
}

void paintHead(std::vector<SheetItem>& items, const ControlSheet& sheet, const SheetPage& page, const SheetPaper& paper)
{
    constexpr double nameSize = 22;
    constexpr double smallSize = 11;
    constexpr double inset = 10;
    const double width = paper.width - 2 * margin;
    items.emplace_back(SheetBox{margin, margin, width, headHeight, colour::head});
    items.emplace_back(SheetText{margin + inset, margin + headHeight / 2 + nameSize * 0.36, nameSize, true,
                                 colour::onHead, cutTo(sheet.fileName, width * 0.55, nameSize, true)});
    const auto atRight = [&](const std::string& text, double baseline, bool bold) {
        const std::string shown = cutTo(text, width * 0.42, smallSize, bold);
        const double x = margin + width - inset - textWidth(shown, smallSize, bold);
        items.emplace_back(SheetText{x, margin + baseline, smallSize, bold, colour::onHead, shown});
    };
    atRight(std::string(picture(page.picture).description), 19, true);
    atRight((sheet.macroName.empty() ? "" : "with the macros of " + sheet.macroName + ", ") + sheet.date, 35, false);
}

void paintFoot(std::vector<SheetItem>& items, const SheetPage& page, const SheetPaper& paper, std::size_t left)
{
    constexpr double size = 8;
    std::string text = left == 0 ? "" : "No room for " + std::to_string(left) + " more. ";
    for (const std::string& name : page.unused)
        text += (text.ends_with(". ") || text.empty() ? "Nothing on " : ", ") + name;
    if (text.empty()) return;
    items.emplace_back(SheetText{margin, paper.height - margin, size, false, colour::grey,
                                 cutTo(text, paper.width - 2 * margin, size, false)});
}

/// A smaller picture is still clear where a smaller text is not.
constexpr std::array pictureShares{1.0, 0.8, 0.62};

LaidOutPage layOutPage(const ControlSheet& sheet, const SheetPage& page, const SheetPaper& paper)
{
    LaidOutPage result{.paper = paper, .items = {}, .textSize = largestText, .left = 0};
    std::vector<SheetItem> rows;
    SheetPicture picture;
    const auto fits = [&](double share) {
        const PageLayout layout(page, paper, result.textSize, share);
        rows.clear();
        result.left = page.rows.size() - layout.place(rows);
        picture = layout.picture();
        return result.left == 0;
    };
    while (std::ranges::none_of(pictureShares, fits) && result.textSize > smallestText) result.textSize -= textStep;
    paintHead(result.items, sheet, page, paper);
    result.items.emplace_back(picture);
    std::ranges::move(rows, std::back_inserter(result.items));
    paintFoot(result.items, page, paper, result.left);
    return result;
}

} // namespace

std::vector<LaidOutPage> layOut(const ControlSheet& sheet, const SheetPaper& paper)
{
    std::vector<LaidOutPage> pages;
    for (const SheetPage& page : sheet.pages) pages.push_back(layOutPage(sheet, page, paper));
    return pages;
}

} // namespace tarvex
