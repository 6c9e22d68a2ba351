#include "sheet/sheet_table.h"

#include "sheet/text_width.h"

#include <algorithm>
#include <set>

namespace tarvex {

namespace {

constexpr double lineFactor = 1.18;
constexpr double paddingFactor = 0.34;
constexpr double captionFactor = 0.7;

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

double heightOf(const std::vector<PlacedLine>& lines)
{
    double height = 0;
    for (const PlacedLine& line : lines) height += line.size * lineFactor;
    return height;
}

std::string slashed(char letter) { return letter == ' ' ? "" : std::string("/") + letter; }

SheetColour inkOf(SheetWord::Kind kind)
{
    if (kind == SheetWord::Kind::Modifier) return sheetInk::modifier;
    return kind == SheetWord::Kind::Keys ? sheetInk::grey : sheetInk::ink;
}

} // namespace

SheetTable::SheetTable(const SheetPage& page, double width, double size)
    : m_page(page), m_width(width), m_size(size), m_columns(columnsOf(page)), m_nameWidth(nameWidth())
{
    for (const SheetRow& row : page.rows) m_rows.push_back(layOutRow(row));
}

std::size_t SheetTable::fill(std::size_t row, const SheetArea& area) const
{
    double y = area.y + captionHeight();
    while (row < m_rows.size() && y + m_rows[row].height <= area.bottom) y += m_rows[row++].height;
    return row;
}

std::size_t SheetTable::paint(std::vector<SheetItem>& items, std::size_t row, const SheetArea& area) const
{
    const std::size_t end = fill(row, area);
    if (end == row) return end;
    paintCaptions(items, area);
    double y = area.y + captionHeight();
    for (; row < end; ++row) {
        paintRow(items, row, area, y);
        y += m_rows[row].height;
    }
    return end;
}

bool SheetTable::partsWords() const
{
    const auto parts = [](const Cell& cell) { return std::ranges::any_of(cell.lines, &PlacedLine::parted); };
    return std::ranges::any_of(m_rows, [&](const Row& row) {
        return std::ranges::any_of(row.groups,
                                   [&](const std::vector<Cell>& cells) { return std::ranges::any_of(cells, parts); });
    });
}

// ---- columns --------------------------------------------------------------------------------------------------------

/// Only switches with layers to compare make columns.
SheetTable::Columns SheetTable::columnsOf(const SheetPage& page)
{
    const auto compares = [&page](char ControlLayer::*which) {
        return std::ranges::any_of(page.rows, [which](const SheetRow& row) {
            std::set<char> letters;
            for (const ControlLayer& layer : row.layers) letters.insert(layer.*which);
            letters.erase(' ');
            return letters.size() > 1;
        });
    };
    if (compares(&ControlLayer::dogfight)) return {.letters = "UMD", .ofShift = false};
    if (compares(&ControlLayer::shift)) return {.letters = "IO", .ofShift = true};
    return {.letters = " ", .ofShift = false};
}

double SheetTable::padding() const { return m_size * paddingFactor; }

double SheetTable::captionHeight() const { return m_size * captionFactor * lineFactor + padding(); }

double SheetTable::nameWidth() const
{
    double widest = textWidth("RDDR", m_size, true);
    for (const SheetRow& row : m_page.rows) widest = std::max(widest, textWidth(row.name, m_size, true));
    return widest + 2 * padding();
}

double SheetTable::columnWidth() const
{
    return (m_width - m_nameWidth) / static_cast<double>(m_columns.letters.size());
}

char SheetTable::letterOf(const ControlLayer& layer) const { return m_columns.ofShift ? layer.shift : layer.dogfight; }

/// Whether the row has layers in more than one column.
bool SheetTable::isSpread(const SheetRow& row) const
{
    std::set<char> letters;
    for (const ControlLayer& layer : row.layers) letters.insert(letterOf(layer));
    letters.erase(' ');
    return letters.size() > 1;
}

// ---- rows -----------------------------------------------------------------------------------------------------------

SheetTable::Row SheetTable::layOutRow(const SheetRow& row) const
{
    const bool spread = isSpread(row);
    Row result;
    std::vector<ControlLayer> spanning;
    for (const ControlLayer& layer : row.layers)
        if (!spread || letterOf(layer) == ' ') spanning.push_back(layer);
    addSpanning(result, spanning);
    if (spread) result.groups.push_back(columnsOf(row));
    for (const std::vector<Cell>& cells : result.groups) {
        double height = 0;
        for (const Cell& cell : cells) height = std::max(height, heightOf(cell.lines));
        result.height += height;
    }
    result.height = std::max(result.height, m_size * lineFactor) + padding();
    return result;
}

/// Layers of the whole width. What S3 does held in and out stands side by side.
void SheetTable::addSpanning(Row& row, const std::vector<ControlLayer>& layers) const
{
    const double width = m_width - m_nameWidth;
    const auto labelOf = [](const ControlLayer& layer) {
        const std::string shift = slashed(layer.shift);
        const std::string dogfight = slashed(layer.dogfight);
        return dogfight + (dogfight.empty() || shift.empty() ? "" : " ") + shift;
    };
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const bool pair = i + 1 < layers.size() && layers[i].shift == 'I' && layers[i + 1].shift == 'O' &&
                          layers[i].dogfight == layers[i + 1].dogfight;
        std::vector<Cell> cells{{.x = m_nameWidth, .lines = {}}};
        addLayer(cells[0], layers[i], labelOf(layers[i]), pair ? width / 2 : width);
        if (pair) {
            cells.push_back({.x = m_nameWidth + width / 2, .lines = {}});
            addLayer(cells[1], layers[i + 1], labelOf(layers[i + 1]), width / 2);
            ++i;
        }
        row.groups.push_back(std::move(cells));
    }
}

/// The layers in their columns. Neighbours that do the same share a cell, which says of which columns it is.
std::vector<SheetTable::Cell> SheetTable::columnsOf(const SheetRow& row) const
{
    const auto layersOf = [&](char letter) {
        std::vector<ControlLayer> found;
        for (ControlLayer layer : row.layers) {
            if (letterOf(layer) != letter) continue;
            (m_columns.ofShift ? layer.shift : layer.dogfight) = ' ';
            found.push_back(std::move(layer));
        }
        return found;
    };
    const std::string& letters = m_columns.letters;
    std::vector<Cell> cells;
    for (std::size_t first = 0; first < letters.size();) {
        const std::vector<ControlLayer> layers = layersOf(letters[first]);
        std::size_t end = first + 1;
        while (!layers.empty() && end < letters.size() && layersOf(letters[end]) == layers) ++end;
        std::string label;
        for (std::size_t i = first; i < end && end - first > 1; ++i)
            label += (label.empty() ? "/" : " /") + std::string(1, letters[i]);
        Cell cell{.x = m_nameWidth + static_cast<double>(first) * columnWidth(), .lines = {}};
        for (const ControlLayer& layer : layers) {
            const std::string other = slashed(m_columns.ofShift ? layer.dogfight : layer.shift);
            addLayer(cell, layer, label + (label.empty() || other.empty() ? "" : " ") + other,
                     columnWidth() * static_cast<double>(end - first));
            label.clear();
        }
        cells.push_back(std::move(cell));
        first = end;
    }
    return cells;
}

/// The layer below what the cell has already.
void SheetTable::addLayer(Cell& cell, const ControlLayer& layer, std::string label, double width) const
{
    constexpr SheetWord::Kind kind = SheetWord::Kind::Modifier;
    const double hanging = label.empty() ? 0 : textWidth("/O ", sizeOf(kind, m_size), true);
    std::vector<SheetWord> words;
    if (!label.empty()) words.push_back({std::move(label), kind});
    words.insert(words.end(), layer.words.begin(), layer.words.end());
    for (PlacedLine& line : wrapWords(words, width - 2 * padding(), m_size, hanging))
        cell.lines.push_back(std::move(line));
}

// ---- painting -------------------------------------------------------------------------------------------------------

void SheetTable::paintCaptions(std::vector<SheetItem>& items, const SheetArea& area) const
{
    const double size = m_size * captionFactor;
    const auto text = [&](double x, std::string_view caption) {
        items.emplace_back(SheetText{area.x + x, area.y + size, size, true, sheetInk::grey, std::string(caption)});
    };
    text(padding(), "Control");
    for (std::size_t i = 0; i < m_columns.letters.size(); ++i)
        text(m_nameWidth + static_cast<double>(i) * columnWidth() + padding(), captionOf(m_columns.letters[i]));
}

void SheetTable::paintRow(std::vector<SheetItem>& items, std::size_t row, const SheetArea& area, double y) const
{
    const Row& laidOut = m_rows[row];
    if (row % 2 == 1) items.emplace_back(SheetBox{area.x, y, m_width, laidOut.height, sheetInk::stripe});
    double top = y + padding() / 2;
    items.emplace_back(
        SheetText{area.x + padding(), top + m_size, m_size, true, sheetInk::head, m_page.rows[row].name});
    for (const std::vector<Cell>& cells : laidOut.groups) {
        double height = 0;
        for (const Cell& cell : cells) {
            paintCell(items, cell, area.x + cell.x + padding(), top);
            height = std::max(height, heightOf(cell.lines));
        }
        top += height;
    }
}

void SheetTable::paintCell(std::vector<SheetItem>& items, const Cell& cell, double left, double y) const
{
    for (const PlacedLine& line : cell.lines) {
        for (const PlacedWord& word : line.words)
            items.emplace_back(
                SheetText{left + word.x, y + line.size, word.size, isBold(word.kind), inkOf(word.kind), word.text});
        y += line.size * lineFactor;
    }
}

} // namespace tarvex
