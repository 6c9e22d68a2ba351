#include "sheet/pdf_sheet.h"

#include "platform/windows1252.h"
#include "sheet/hardware_art.h"
#include "sheet/number_text.h"
#include "sheet/text_width.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <set>

namespace tarvex {

namespace {

std::string decimal(double value) { return fixedText(value, 3) + " "; }

std::string numbers(std::initializer_list<double> values)
{
    std::string text;
    for (const double value : values) text += decimal(value);
    return text;
}

std::string channels(std::uint32_t colour)
{
    return numbers({(colour >> 16 & 0xFF) / 255.0, (colour >> 8 & 0xFF) / 255.0, (colour & 0xFF) / 255.0});
}

/// A string of the file, Windows-1252.
std::string quoted(std::string_view utf8)
{
    std::string text = "(";
    for (const char letter : windows1252FromUtf8(utf8)) {
        if (letter == '(' || letter == ')' || letter == '\\') text += '\\';
        text += static_cast<unsigned char>(letter) < 0x20 ? ' ' : letter;
    }
    return text + ")";
}

/// The objects of the file, and where each begins.
class Objects {
public:
    /// Number of an object whose contents come later.
    int reserve()
    {
        m_objects.emplace_back();
        return static_cast<int>(m_objects.size());
    }
    void put(int number, std::string contents)
    {
        m_objects[static_cast<std::size_t>(number) - 1] = std::move(contents);
    }
    int add(std::string contents)
    {
        const int number = reserve();
        put(number, std::move(contents));
        return number;
    }
    int addStream(const std::string& stream)
    {
        return add("<< /Length " + std::to_string(stream.size()) + " >>\nstream\n" + stream + "\nendstream");
    }

    std::string file(int catalogue, int information) const
    {
        std::string file = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < m_objects.size(); ++i) {
            places.push_back(file.size());
            file += std::to_string(i + 1) + " 0 obj\n" + m_objects[i] + "\nendobj\n";
        }
        const std::size_t table = file.size();
        const std::string count = std::to_string(m_objects.size() + 1);
        file += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const std::size_t place : places) {
            std::array<char, 32> row{};
            std::snprintf(row.data(), row.size(), "%010zu 00000 n \n", place);
            file += row.data();
        }
        return file + "trailer\n<< /Size " + count + " /Root " + std::to_string(catalogue) + " 0 R /Info " +
               std::to_string(information) + " 0 R >>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
    }

private:
    std::vector<std::string> m_objects;
};

// ---- drawings -------------------------------------------------------------------------------------------------------

/// A colour for each stretch between two stops.
std::string gradientFunction(const ArtGradient& gradient)
{
    std::string functions;
    std::string bounds;
    std::string encode;
    for (std::size_t i = 0; i + 1 < gradient.stops.size(); ++i) {
        functions += "<< /FunctionType 2 /Domain [0 1] /N 1 /C0 [" + channels(gradient.stops[i].colour) + "] /C1 [" +
                     channels(gradient.stops[i + 1].colour) + "] >> ";
        if (i > 0) bounds += decimal(gradient.stops[i].offset);
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

std::string opacityName(double opacity) { return "O" + std::to_string(static_cast<int>(opacity * 100 + 0.5)); }

/// Contents and resources of a page.
class PageWriter {
public:
    explicit PageWriter(const SheetPaper& paper) : m_paper(paper) {}

    void operator()(const SheetText& text)
    {
        showText(text.text, text.size, text.bold, text.colour, text.x, m_paper.height - text.baseline, 1);
    }
    void operator()(const SheetBox& box)
    {
        m_stream += channels(box.fill) + "rg " +
                    numbers({box.x, m_paper.height - box.y - box.height, box.width, box.height}) + "re f\n";
    }
    void operator()(const SheetPicture& picture)
    {
        const Art art = readArt(hardwareDrawing(picture.picture));
        m_stream += "q " + numbers({picture.scale, 0, 0, -picture.scale, picture.x, m_paper.height - picture.y}) +
                    "cm 1 J 1 j\n";
        for (ArtShape shape : art.shapes) {
            if (shape.isLabel) shape.size = picture.labelSize;
            paint(art, shape);
        }
        m_stream += "Q\n";
    }

    const std::string& stream() const { return m_stream; }
    std::string resources() const
    {
        std::string text = "<< /Font << /F1 3 0 R /F2 4 0 R >> /ExtGState << ";
        for (const int percent : m_opacities)
            text += "/O" + std::to_string(percent) + " << /CA " + decimal(percent / 100.0) + ">> ";
        text += ">> /Shading << ";
        for (const auto& [id, definition] : m_shadings) text += "/" + id + " " + definition + " ";
        return text + ">> >>";
    }

private:
    void showText(const std::string& text, double size, bool bold, std::uint32_t colour, double x, double y,
                  double flip)
    {
        m_stream += "BT " + channels(colour) + "rg /" + (bold ? "F2 " : "F1 ") + decimal(size) + "Tf " +
                    numbers({1, 0, 0, flip, x, y}) + "Tm " + quoted(text) + " Tj ET\n";
    }
    void paint(const Art& art, const ArtShape& shape)
    {
        if (shape.path.empty()) return paintText(shape);
        const std::string path = PathWriter().write(shape.path);
        if (shape.fill.kind == ArtPaint::Kind::Colour) m_stream += channels(shape.fill.colour) + "rg\n" + path + "f\n";
        if (shape.fill.kind == ArtPaint::Kind::Gradient) fillGradient(art, shape.fill.gradient, path);
        if (shape.stroke.kind == ArtPaint::Kind::Colour) stroke(shape, path);
    }
    void paintText(const ArtShape& shape)
    {
        const double width = textWidth(shape.text, shape.size, true);
        const double x = shape.anchor == "end"      ? shape.x - width
                         : shape.anchor == "middle" ? shape.x - width / 2
                                                    : shape.x;
        showText(shape.text, shape.size, true, shape.fill.colour, x, shape.y, -1); // the drawing grows downwards
    }
    void fillGradient(const Art& art, const std::string& id, const std::string& path)
    {
        const auto gradient = std::ranges::find(art.gradients, id, &ArtGradient::id);
        if (gradient == art.gradients.end() || !gradient->solid || gradient->stops.size() < 2) return;
        m_shadings.try_emplace(id, shading(*gradient));
        m_stream += "q\n" + path + "W n /" + id + " sh Q\n";
    }
    void stroke(const ArtShape& shape, const std::string& path)
    {
        m_opacities.insert(static_cast<int>(shape.strokeOpacity * 100 + 0.5));
        m_stream += "q /" + opacityName(shape.strokeOpacity) + " gs " + channels(shape.stroke.colour) + "RG " +
                    decimal(shape.strokeWidth) + "w\n" + path + "S Q\n";
    }

    SheetPaper m_paper;
    std::string m_stream;
    std::set<int> m_opacities;
    std::map<std::string, std::string> m_shadings;
};

std::string fontObject(std::string_view name)
{
    return "<< /Type /Font /Subtype /Type1 /BaseFont /" + std::string(name) + " /Encoding /WinAnsiEncoding >>";
}

} // namespace

std::string pdfSheet(const std::vector<LaidOutPage>& pages, const std::string& title)
{
    Objects objects;
    const int catalogue = objects.reserve();
    const int tree = objects.reserve();
    objects.add(fontObject("Helvetica")); // 3 and 4, as the resources of the pages name them
    objects.add(fontObject("Helvetica-Bold"));
    std::string kids;
    for (const LaidOutPage& page : pages) {
        PageWriter writer(page.paper);
        for (const SheetItem& item : page.items) std::visit(writer, item);
        const int contents = objects.addStream(writer.stream());
        kids +=
            std::to_string(objects.add("<< /Type /Page /Parent " + std::to_string(tree) + " 0 R /MediaBox [0 0 " +
                                       decimal(page.paper.width) + decimal(page.paper.height) + "] /Contents " +
                                       std::to_string(contents) + " 0 R /Resources " + writer.resources() + " >>")) +
            " 0 R ";
    }
    objects.put(tree, "<< /Type /Pages /Count " + std::to_string(pages.size()) + " /Kids [" + kids + "] >>");
    objects.put(catalogue, "<< /Type /Catalog /Pages " + std::to_string(tree) + " 0 R >>");
    const int information = objects.add("<< /Title " + quoted(title) + " /Creator (Tarvex) >>");
    return objects.file(catalogue, information);
}

} // namespace tarvex
