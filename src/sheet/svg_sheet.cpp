#include "sheet/svg_sheet.h"

#include "sheet/hardware_art.h"
#include "sheet/number_text.h"
#include "sheet/text_width.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <utility>

namespace tarvex {

namespace {

std::string decimal(double value) { return fixedText(value, 2); }

/// With digits enough that a drawing's far edge stays in its place.
std::string scaleText(double value) { return fixedText(value, 5); }

std::string hex(SheetColour colour)
{
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "#%06x", static_cast<unsigned>(colour & 0xFFFFFF));
    return text.data();
}

std::string attributes(std::initializer_list<std::pair<std::string_view, std::string>> list)
{
    std::string text;
    for (const auto& [name, value] : list) text += " " + std::string(name) + "=\"" + value + "\"";
    return text;
}

void replaceAll(std::string& text, std::string_view from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// What stands within the drawing's outer element, for a place beside other drawings: no ids but those of its
/// gradients.
std::string innerDrawing(const SheetPicture& picture, const std::string& prefix)
{
    const std::string_view svg = hardwareDrawing(picture.picture);
    const std::size_t start = std::min(svg.find('>'), svg.size() - 1) + 1;
    std::string inner(svg.substr(start, svg.rfind("</svg>") - start));
    replaceAll(inner, "url(#g", "url(#" + prefix + "g");
    replaceAll(inner, "Gradient id=\"g", "Gradient id=\"" + prefix + "g");
    replaceAll(inner, "font-size=\"15\"", "font-size=\"" + decimal(picture.labelSize) + "\""); // beside the drawing
    replaceAll(inner, "currentColor", "#222222");
    for (std::size_t at = inner.find(" id=\""); at != std::string::npos; at = inner.find(" id=\"", at + 1)) {
        const bool ofGradient = at >= 8 && std::string_view(inner).substr(at - 8, 8) == "Gradient";
        if (!ofGradient) inner.erase(at, inner.find('"', at + 5) + 1 - at);
    }
    return inner;
}

struct Writer {
    const std::string& prefix;
    const std::string& fonts;

    std::string operator()(const SheetText& text) const
    {
        return "<text" +
               attributes({{"x", decimal(text.x)},
                           {"y", decimal(text.baseline)},
                           {"font-family", fonts},
                           {"font-size", decimal(text.size)},
                           {"font-weight", text.bold ? "bold" : "normal"},
                           {"textLength", decimal(textWidth(text.text, text.size, text.bold))}, // in any font
                           {"lengthAdjust", "spacingAndGlyphs"},
                           {"fill", hex(text.colour)}}) +
               ">" + escapedForXml(text.text) + "</text>\n";
    }
    std::string operator()(const SheetBox& box) const
    {
        return "<rect" +
               attributes({{"x", decimal(box.x)},
                           {"y", decimal(box.y)},
                           {"width", decimal(box.width)},
                           {"height", decimal(box.height)},
                           {"fill", hex(box.fill)}}) +
               "/>\n";
    }
    std::string operator()(const SheetPicture& picture) const
    {
        return "<g transform=\"translate(" + decimal(picture.x) + " " + decimal(picture.y) + ") scale(" +
               scaleText(picture.scale) + ")\">" + innerDrawing(picture, prefix) + "</g>\n";
    }
};

std::string outer(double width, double height, const std::string& inner)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           attributes({{"width", decimal(width) + "pt"},
                       {"height", decimal(height) + "pt"},
                       {"viewBox", "0 0 " + decimal(width) + " " + decimal(height)}}) +
           ">\n" + inner + "</svg>\n";
}

std::string itemsOf(const LaidOutPage& page, const std::string& prefix, const std::string& fonts)
{
    std::string text =
        "<rect" +
        attributes(
            {{"width", decimal(page.paper.width)}, {"height", decimal(page.paper.height)}, {"fill", "#ffffff"}}) +
        "/>\n";
    for (const SheetItem& item : page.items) text += std::visit(Writer{prefix, fonts}, item);
    return text;
}

} // namespace

std::string escapedForXml(std::string_view text)
{
    std::string escaped;
    for (const char letter : text) {
        switch (letter) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default: // XML has no other control characters
            escaped += static_cast<unsigned char>(letter) < 0x20 ? ' ' : letter;
        }
    }
    return escaped;
}

std::string svgPage(const LaidOutPage& page, const std::string& prefix, const std::string& fonts)
{
    return outer(page.paper.width, page.paper.height, itemsOf(page, prefix, fonts));
}

std::string svgSheet(const std::vector<LaidOutPage>& pages)
{
    std::string inner;
    double width = 0;
    double height = 0;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        inner += "<g transform=\"translate(0 " + decimal(height) + ")\">\n" +
                 itemsOf(pages[i], "p" + std::to_string(i + 1), svgFonts) + "</g>\n";
        width = std::max(width, pages[i].paper.width);
        height += pages[i].paper.height;
    }
    return outer(width, height, inner);
}

} // namespace tarvex
