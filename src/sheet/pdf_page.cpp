#include "sheet/pdf_page.h"

#include "platform/windows1252.h"
#include "sheet/number_text.h"
#include "sheet/text_width.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <vector>

namespace tarvex {

namespace {

std::string numbers(std::initializer_list<double> values)
{
    std::string text;
    for (const double value : values) text += pdfNumber(value);
    return text;
}

std::string channels(std::uint32_t colour)
{
    return numbers({(colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0, (colour & 0xFF) / 255.0});
}

/// A colour for each stretch between two stops.
std::string gradientFunction(const ArtGradient& gradient)
{
    std::string functions;
    std::string bounds;
    std::string encode;
    for (std::size_t i = 0; i + 1 < gradient.stops.size(); ++i) {
        functions += "<< /FunctionType 2 /Domain [0 1] /N 1 /C0 [" + channels(gradient.stops[i].colour) + "] /C1 [" +
                     channels(gradient.stops[i + 1].colour) + "] >> ";
        if (i > 0) bounds += pdfNumber(gradient.stops[i].offset);
        encode += "0 1 ";
    }
    return "<< /FunctionType 3 /Domain [0 1] /Functions [" + functions + "] /Bounds [" + bounds + "] /Encode [" +
           encode + "] >>";
}

std::string shading(const ArtGradient& gradient)
{
    const auto& [x1, y1, x2, y2] = gradient.line;
    return "<< /ShadingType 2 /ColorSpace /DeviceRGB /Coords [" + numbers({x1, y1, x2, y2}) + "] /Function " +
           gradientFunction(gradient) + " /Extend [true true] >>";
}

/// The operators of a path of absolute M, L, C, Q and z.
class PathWriter {
public:
    std::string write(std::string_view path)
    {
        std::string out;
        char command = 'M';
        std::vector<double> values;
        const auto flush = [&] {
            if (command != 'z' && !values.empty()) out += segments(command, values);
            values.clear();
        };
        for (const char* at = path.data(); at != path.data() + path.size();) {
            if (std::string_view("MLCQz").find(*at) != std::string_view::npos) {
                flush();
                command = *at++;
                if (command == 'z') out += "h\n";
                continue;
            }
            double value = 0;
            const auto read = std::from_chars(at, path.data() + path.size(), value);
            if (read.ec == std::errc()) {
                values.push_back(value);
                at = read.ptr;
            } else {
                ++at;
            }
        }
        flush();
        return out;
    }

private:
    std::string segments(char command, const std::vector<double>& values)
    {
        const std::size_t step = command == 'C' ? 6 : command == 'Q' ? 4 : 2;
        std::string out;
        for (std::size_t i = 0; i + step <= values.size(); i += step) {
            const double* v = values.data() + i;
            if (command == 'C') {
                out += numbers({v[0], v[1], v[2], v[3], v[4], v[5]}) + "c\n";
            } else if (command == 'Q') { // as a cubic curve
                out += numbers({m_x + 2 * (v[0] - m_x) / 3, m_y + 2 * (v[1] - m_y) / 3, v[2] + 2 * (v[0] - v[2]) / 3,
                                v[3] + 2 * (v[1] - v[3]) / 3, v[2], v[3]}) +
                       "c\n";
            } else {
                out += numbers({v[0], v[1]}) + (command == 'M' ? "m\n" : "l\n");
            }
            m_x = v[step - 2];
            m_y = v[step - 1];
        }
        return out;
    }
    double m_x = 0;
    double m_y = 0;
};

int percentOf(double opacity) { return static_cast<int>(opacity * 100 + 0.5); }

} // namespace

std::string pdfNumber(double value) { return fixedText(value, 3) + " "; }

std::string pdfString(std::string_view utf8)
{
    std::string text = "(";
    for (const char letter : windows1252FromUtf8(utf8)) {
        if (letter == '(' || letter == ')' || letter == '\\') text += '\\';
        text += static_cast<unsigned char>(letter) < 0x20 ? ' ' : letter;
    }
    return text + ")";
}

// ---- what stands on a page -----------------------------------------------------------------------------------------

void PdfPage::operator()(const SheetText& text)
{
    showText(text.text, text.size, text.bold, text.colour, text.x, m_paper.height - text.baseline, 1);
}

void PdfPage::operator()(const SheetBox& box)
{
    m_stream += channels(box.fill) + "rg " +
                numbers({box.x, m_paper.height - box.y - box.height, box.width, box.height}) + "re f\n";
}

void PdfPage::operator()(const SheetPicture& picture) { draw(readArt(hardwareDrawing(picture.picture)), picture); }

void PdfPage::draw(const Art& art, const SheetPicture& place)
{
    m_stream += "q " + numbers({place.scale, 0, 0, -place.scale, place.x, m_paper.height - place.y}) + "cm 1 J 1 j\n";
    for (ArtShape shape : art.shapes) {
        if (shape.isLabel) shape.size = place.labelSize;
        paint(art, shape);
    }
    m_stream += "Q\n";
}

std::string PdfPage::resources() const
{
    std::string text = "<< /Font << /F1 3 0 R /F2 4 0 R >> /ExtGState << ";
    for (const int percent : m_opacities)
        text += "/O" + std::to_string(percent) + " << /CA " + pdfNumber(percent / 100.0) + ">> ";
    text += ">> /Shading << ";
    for (const auto& [id, definition] : m_shadings) text += "/" + id + " " + definition + " ";
    return text + ">> >>";
}

void PdfPage::showText(const std::string& text, double size, bool bold, std::uint32_t colour, double x, double y,
                       double flip)
{
    m_stream += "BT " + channels(colour) + "rg /" + (bold ? "F2 " : "F1 ") + pdfNumber(size) + "Tf " +
                numbers({1, 0, 0, flip, x, y}) + "Tm " + pdfString(text) + " Tj ET\n";
}

void PdfPage::paint(const Art& art, const ArtShape& shape)
{
    if (shape.path.empty()) return paintText(shape);
    const std::string path = PathWriter().write(shape.path);
    if (shape.fill.kind == ArtPaint::Kind::Colour) m_stream += channels(shape.fill.colour) + "rg\n" + path + "f\n";
    if (shape.fill.kind == ArtPaint::Kind::Gradient) fillGradient(art, shape.fill.gradient, path);
    if (shape.stroke.kind == ArtPaint::Kind::Colour) stroke(shape, path);
}

void PdfPage::paintText(const ArtShape& shape)
{
    const double width = textWidth(shape.text, shape.size, true);
    const double x = shape.anchor == "end" ? shape.x - width : shape.anchor == "middle" ? shape.x - width / 2 : shape.x;
    showText(shape.text, shape.size, true, shape.fill.colour, x, shape.y, -1); // the drawing grows downwards
}

void PdfPage::fillGradient(const Art& art, const std::string& id, const std::string& path)
{
    const auto gradient = std::ranges::find(art.gradients, id, &ArtGradient::id);
    if (gradient == art.gradients.end() || !gradient->solid || gradient->stops.size() < 2) return;
    m_shadings.try_emplace(id, shading(*gradient));
    m_stream += "q\n" + path + "W n /" + id + " sh Q\n";
}

void PdfPage::stroke(const ArtShape& shape, const std::string& path)
{
    const int percent = percentOf(shape.strokeOpacity);
    m_opacities.insert(percent);
    m_stream += "q /O" + std::to_string(percent) + " gs " + channels(shape.stroke.colour) + "RG " +
                pdfNumber(shape.strokeWidth) + "w\n" + path + "S Q\n";
}

} // namespace tarvex
