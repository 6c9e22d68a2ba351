#include "documents/printing/print_rtf.h"

#include "platform/errors.h"

#include <cmath>

namespace tarvex {

namespace {

struct Offset {
    int x;
    int y;
};

/// Drops the printer's layout of the text, also when printing fails: the text doesn't outlive PrintRTF.
class LayoutRelease {
public:
    explicit LayoutRelease(Printer& printer) : m_printer(printer) {}
    ~LayoutRelease() { m_printer.releaseFormat(); }
    LayoutRelease(const LayoutRelease&) = delete;
    LayoutRelease& operator=(const LayoutRelease&) = delete;

private:
    Printer& m_printer;
};

Offset offsetInTwips(const Printer& printer)
{
    const auto twips = [](int pixels, float scale) {
        return static_cast<int>(std::lround(static_cast<float>(pixels) * scale));
    };
    return {twips(printer.physicalOffsetX(), printer.twipsPerPixelX()),
            twips(printer.physicalOffsetY(), printer.twipsPerPixelY())};
}

} // namespace

StyledText styledText(const Pane& pane, const PaperInk& ink)
{
    StyledText text{pane.Text(), {}};
    for (const FormatRun& run : pane.runs()) {
        const CharacterFormat& look = (*pane.formats())[run.format];
        text.runs.push_back({.length = run.length,
                             .fontName = look.fontName,
                             .fontSize = look.fontSize,
                             .bold = look.bold,
                             .italic = look.italic,
                             .underline = look.underline,
                             .colour = ink ? ink(look.colour) : look.colour,
                             .indent = look.indent});
    }
    return text;
}

void PrintRTF(Printer& printer, const Pane& pane, int leftMargin, int topMargin, int rightMargin, int bottomMargin,
              const PageEnd& pageEnd, const PaperInk& ink)
{
    printer.Print(" "); // opens the document, whose device then has its offsets
    const Offset offset = offsetInTwips(printer);
    const int width = printer.Width();
    const int height = printer.Height();
    FormatRange range{
        .rectangle = {.left = leftMargin - offset.x,
                      .top = topMargin - offset.y,
                      .right = width - rightMargin - offset.x,
                      .bottom = height - bottomMargin - offset.y},
        .page = {.left = -offset.x, .top = -offset.y, .right = width - offset.x, .bottom = height - offset.y},
        .start = 0,
        .end = pane.TextLength()};
    const StyledText text = styledText(pane, ink);
    const LayoutRelease release(printer);
    for (int page = 1;; ++page) {
        const std::size_t next = printer.formatRange(text, range);
        if (pageEnd) pageEnd(page, range.rectangle);
        if (next >= range.end) break;
        if (next <= range.start)
            throw RuntimeError(ErrorCode::PrinterError, "The margins leave no room for the text on this paper.");
        printer.NewPage();
        printer.Print(" ");
        range.start = next;
    }
}

} // namespace tarvex
