#pragma once

#include "sheet/hardware_art.h"
#include "sheet/sheet_items.h"

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace tarvex {

/// A number and a blank behind it.
std::string pdfNumber(double value);
/// A string of the file in its brackets, Windows-1252; `utf8` may hold anything.
std::string pdfString(std::string_view utf8);

/// Contents and resources of a page of a PDF file whose objects 3 and 4 are the regular and the bold font. Coordinates
/// of the file grow upwards, those of the items downwards.
class PdfPage {
public:
    explicit PdfPage(const SheetPaper& paper) : m_paper(paper) {}

    void operator()(const SheetText& text);
    void operator()(const SheetBox& box);
    void operator()(const SheetPicture& picture);
    /// A drawing where the picture would stand. Gradients that let through what is below are left out.
    void draw(const Art& art, const SheetPicture& place);

    const std::string& stream() const { return m_stream; }
    std::string resources() const;

private:
    void showText(const std::string& text, double size, bool bold, std::uint32_t colour, double x, double y,
                  double flip);
    void paint(const Art& art, const ArtShape& shape);
    void paintText(const ArtShape& shape);
    void fillGradient(const Art& art, const std::string& id, const std::string& path);
    void stroke(const ArtShape& shape, const std::string& path);

    SheetPaper m_paper;
    std::string m_stream;
    std::set<int> m_opacities; ///< of strokes, per cent
    std::map<std::string, std::string> m_shadings;
};

} // namespace tarvex
