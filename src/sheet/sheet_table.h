#pragma once

#include "sheet/control_sheet.h"
#include "sheet/sheet_items.h"
#include "sheet/word_wrap.h"

#include <string>
#include <vector>

namespace tarvex {

/// A part of a page, in points from its upper left corner.
struct SheetArea {
    double x = 0;
    double y = 0;
    double width = 0;
    double bottom = 0;
};

/// The table of what the controls of one controller do, in one size of letters. The layers of the dogfight switch stand
/// in columns, or those of S3 if it is the only switch in use; a control that does something in one position alone has
/// the whole width.
class SheetTable {
public:
    /// `width` is that of every area. The page outlives this.
    SheetTable(const SheetPage& page, double width, double size);

    /// Paints rows from `row` on, as many as the area holds, below captions; the first row that found no room.
    std::size_t paint(std::vector<SheetItem>& items, std::size_t row, const SheetArea& area) const;
    /// The same without painting.
    std::size_t fill(std::size_t row, const SheetArea& area) const;
    /// Whether a word is too wide for its column.
    bool partsWords() const;

private:
    /// Lines beside others.
    struct Cell {
        double x = 0; ///< from the row's left edge
        std::vector<PlacedLine> lines;
    };
    struct Row {
        std::vector<std::vector<Cell>> groups; ///< of cells side by side, one group below the other
        double height = 0;
    };
    struct Columns {
        std::string letters;  ///< "UMD", "IO", or " " for one column
        bool ofShift = false; ///< the letters are those of S3
    };

    static Columns columnsOf(const SheetPage& page);
    double padding() const;
    double captionHeight() const;
    double nameWidth() const;
    double columnWidth() const;
    char letterOf(const ControlLayer& layer) const;
    bool isSpread(const SheetRow& row) const;
    Row layOutRow(const SheetRow& row) const;
    void addSpanning(Row& row, const std::vector<ControlLayer>& layers) const;
    std::vector<Cell> columnsOf(const SheetRow& row) const;
    void addLayer(Cell& cell, const ControlLayer& layer, std::string label, double width) const;
    void paintCaptions(std::vector<SheetItem>& items, const SheetArea& area) const;
    void paintRow(std::vector<SheetItem>& items, std::size_t row, const SheetArea& area, double y) const;
    void paintCell(std::vector<SheetItem>& items, const Cell& cell, double left, double y) const;

    const SheetPage& m_page;
    double m_width;
    double m_size;
    Columns m_columns;
    double m_nameWidth;
    std::vector<Row> m_rows;
};

/// Colours of the sheet.
namespace sheetInk {
constexpr SheetColour ink = 0x1A1A1A;
constexpr SheetColour grey = 0x505050;
constexpr SheetColour stripe = 0xEEF1F5;
constexpr SheetColour head = 0x23405F;
constexpr SheetColour onHead = 0xFFFFFF;
constexpr SheetColour modifier = 0xA82A0C;
} // namespace sheetInk

} // namespace tarvex
