#include "cli/colour_output.h"

#include "cli/unicode_text.h"

#include <nlohmann/json.hpp>

#include <charconv>

namespace tarvex::cli {

namespace {

struct Rgb {
    int red;
    int green;
    int blue;
};

Rgb rgbOf(Colour colour) { return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF}; }

void appendNumber(std::string& out, long long number)
{
    char digits[24];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

std::string cssColour(Colour colour)
{
    constexpr std::string_view digits = "0123456789abcdef";
    const Rgb rgb = rgbOf(colour);
    std::string text = "#";
    for (const int part : {rgb.red, rgb.green, rgb.blue}) {
        text += digits[static_cast<std::size_t>(part >> 4)];
        text += digits[static_cast<std::size_t>(part & 0xF)];
    }
    return text;
}

std::string_view textOf(const ColouredText& text, const ColourRun& run)
{
    return std::string_view(text.pane.Text()).substr(run.start, run.length);
}

} // namespace

std::string jsonText(const ColouredText& text)
{
    // Written by hand: the numbers are many, and nothing in them needs an escape.
    std::string out = "{\"length\": ";
    appendNumber(out, static_cast<long long>(text.pane.TextLength()));
    out += ", \"runs\": [";
    for (const ColourRun& run : text.runs) {
        out += run.start == 0 ? "[" : ", [";
        appendNumber(out, static_cast<long long>(run.start));
        out += ", ";
        appendNumber(out, static_cast<long long>(run.length));
        out += ", ";
        appendNumber(out, run.colour);
        out += ']';
    }
    nlohmann::ordered_json held = nlohmann::ordered_json::array();
    for (const HeldPass& pass : text.held) held.push_back({{"word", pass.word}, {"line", pass.line}});
    return out + "], \"held\": " + held.dump() + "}\n";
}

std::string ansiText(const ColouredText& text)
{
    std::string out;
    out.reserve(2 * text.pane.Text().size()); // the codes of the colours are about as long as the words
    for (const ColourRun& run : text.runs) {
        if (run.colour != 0) {
            const Rgb rgb = rgbOf(run.colour);
            out += "\x1b[38;2;";
            appendNumber(out, rgb.red);
            out += ';';
            appendNumber(out, rgb.green);
            out += ';';
            appendNumber(out, rgb.blue);
            out += 'm';
        }
        appendShown(out, textOf(text, run));
        if (run.colour != 0) out += "\x1b[0m";
    }
    if (!text.pane.Text().empty() && text.pane.Text().back() != '\n') out += '\n';
    return out;
}

std::string htmlText(const ColouredText& text)
{
    std::string out = "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>";
    appendHtml(out, text.name);
    out += "</title>\n<style>body { background: " + cssColour(text.background) +
           "; color: #000 }</style>\n"
           "</head>\n<body>\n<pre>\n"; // the line end right behind <pre> is none of the text
    for (const ColourRun& run : text.runs) {
        if (run.colour != 0) out += "<span style=\"color: " + cssColour(run.colour) + "\">";
        appendHtml(out, textOf(text, run));
        if (run.colour != 0) out += "</span>";
    }
    return out + "</pre>\n</body>\n</html>\n";
}

} // namespace tarvex::cli
