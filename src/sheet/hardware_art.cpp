#include "sheet/hardware_art.h"

#include "sheet/number_text.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace tarvex {

namespace {

/// Black stands for currentColor: paper is white.
constexpr std::uint32_t inkOnPaper = 0x222222;

struct Element {
    std::string_view name;
    std::string_view attributes;
    std::string_view text; ///< up to the next element
};

template <typename Take> void eachElement(std::string_view svg, Take take)
{
    for (std::size_t at = svg.find('<'); at != std::string_view::npos;) {
        const std::size_t end = svg.find('>', at);
        if (end == std::string_view::npos) return;
        const std::size_t next = std::min(svg.find('<', end), svg.size());
        const std::string_view tag = svg.substr(at + 1, end - at - 1);
        const std::size_t nameEnd = std::min(tag.find_first_of(" /"), tag.size());
        take(Element{tag.substr(0, nameEnd), tag.substr(nameEnd), svg.substr(end + 1, next - end - 1)});
        at = next < svg.size() ? next : std::string_view::npos;
    }
}

std::string_view attribute(const Element& element, std::string_view name)
{
    const std::string start = " " + std::string(name) + "=\"";
    const std::size_t at = element.attributes.find(start);
    if (at == std::string_view::npos) return {};
    const std::string_view value = element.attributes.substr(at + start.size());
    return value.substr(0, value.find('"'));
}

double number(std::string_view text, double otherwise = 0)
{
    double value = otherwise;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

double numberOf(const Element& element, std::string_view name, double otherwise = 0)
{
    return number(attribute(element, name), otherwise);
}

/// "#abc" or "#aabbcc".
std::uint32_t colourOf(std::string_view text)
{
    if (!text.starts_with('#')) return inkOnPaper;
    std::uint32_t value = 0;
    std::from_chars(text.data() + 1, text.data() + text.size(), value, 16);
    if (text.size() != 4) return value;
    return (value >> 8 & 0xF) * 0x110000 + (value >> 4 & 0xF) * 0x1100 + (value & 0xF) * 0x11;
}

ArtPaint paintOf(std::string_view text)
{
    if (text.empty() || text == "none") return {};
    if (text.starts_with("url(#"))
        return {
            .kind = ArtPaint::Kind::Gradient, .colour = 0, .gradient = std::string(text.substr(5, text.find(')') - 5))};
    return {.kind = ArtPaint::Kind::Colour, .colour = colourOf(text), .gradient = {}};
}

std::string ellipsePath(double cx, double cy, double rx, double ry)
{
    constexpr double k = 0.5523; // control points of a quarter of a circle
    std::string path;
    const auto add = [&path](const char* command, std::initializer_list<double> values) {
        path += command;
        for (const double value : values) path += fixedText(value, 2) + " ";
    };
    add("M", {cx + rx, cy});
    add("C", {cx + rx, cy + k * ry, cx + k * rx, cy + ry, cx, cy + ry});
    add("C", {cx - k * rx, cy + ry, cx - rx, cy + k * ry, cx - rx, cy});
    add("C", {cx - rx, cy - k * ry, cx - k * rx, cy - ry, cx, cy - ry});
    add("C", {cx + k * rx, cy - ry, cx + rx, cy - k * ry, cx + rx, cy});
    return path + "z";
}

ArtShape shapeOf(const Element& element)
{
    ArtShape shape;
    shape.fill = paintOf(attribute(element, "fill"));
    shape.stroke = paintOf(attribute(element, "stroke"));
    shape.strokeWidth = numberOf(element, "stroke-width", 1);
    shape.strokeOpacity = numberOf(element, "stroke-opacity", 1);
    const double cx = numberOf(element, "cx");
    const double cy = numberOf(element, "cy");
    if (element.name == "path") {
        shape.path = attribute(element, "d");
    } else if (element.name == "circle") {
        shape.path = ellipsePath(cx, cy, numberOf(element, "r"), numberOf(element, "r"));
    } else if (element.name == "ellipse") {
        shape.path = ellipsePath(cx, cy, numberOf(element, "rx"), numberOf(element, "ry"));
    } else {
        shape.text = element.text;
        shape.x = numberOf(element, "x");
        shape.y = numberOf(element, "y");
        shape.isLabel = attribute(element, "fill") == "currentColor";
        shape.size = numberOf(element, "font-size");
        shape.anchor = attribute(element, "text-anchor");
    }
    return shape;
}

bool isShape(std::string_view name)
{
    return name == "path" || name == "circle" || name == "ellipse" || name == "text";
}

ArtGradient gradientOf(const Element& element)
{
    return {
        .id = std::string(attribute(element, "id")),
        .line = {numberOf(element, "x1"), numberOf(element, "y1"), numberOf(element, "x2"), numberOf(element, "y2")},
        .stops = {},
        .solid = element.name == "linearGradient"};
}

} // namespace

std::string_view hardwareDrawing(PictureOf what)
{
    const auto* found = std::ranges::find(hardwareDrawings, picture(what).file, &HardwareDrawing::file);
    return found == std::end(hardwareDrawings) ? std::string_view() : found->svg;
}

Art readArt(std::string_view svg)
{
    Art art;
    eachElement(svg, [&art](const Element& element) {
        if (element.name == "linearGradient" || element.name == "radialGradient") {
            art.gradients.push_back(gradientOf(element));
        } else if (element.name == "stop" && !art.gradients.empty()) {
            ArtGradient& gradient = art.gradients.back();
            gradient.stops.push_back({numberOf(element, "offset"), colourOf(attribute(element, "stop-color"))});
            if (!attribute(element, "stop-opacity").empty()) gradient.solid = false;
        } else if (isShape(element.name)) {
            art.shapes.push_back(shapeOf(element));
        }
    });
    return art;
}

} // namespace tarvex
