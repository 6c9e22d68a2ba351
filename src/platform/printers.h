#pragma once

#include "platform/controls.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarvex {

class LoadedPicture;

/// Values of Printer::orientation.
namespace orientation {
constexpr int portrait = 1;
constexpr int landscape = 2;
} // namespace orientation

/// A rectangle on paper in twips, from the corner of the printable area.
struct PaperRectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const PaperRectangle&) const = default;
};

/// A text to be printed with its look. Windows-1252; lines are separated by CR LF.
struct StyledText {
    struct Run {
        std::size_t length = 0; ///< characters
        std::string fontName;
        float fontSize = 10; ///< points
        bool bold = false;
        bool italic = false;
        bool underline = false;
        Colour colour = 0;
        int indent = 0; ///< of the paragraph, twips
    };
    std::string text;
    std::vector<Run> runs; ///< cover the text
};

/// A piece of a text, and where it goes.
struct FormatRange {
    PaperRectangle rectangle; ///< of the text
    PaperRectangle page;      ///< the whole paper
    std::size_t start = 0;    ///< first character
    std::size_t end = 0;      ///< behind the last one
};

/// A printer with its paper. The first output opens a document, EndDoc hands it over. What fails throws RuntimeError,
/// after which the document is to be ended by KillDoc.
class Printer {
public:
    virtual ~Printer() = default;

    virtual int Orientation() const = 0;
    /// Stays for later documents. No document is open.
    virtual void setOrientation(int orientation) = 0;
    /// Of the paper as it lies, in twips.
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    /// From the paper's left and top edges to the printable area, in the device's pixels.
    virtual int physicalOffsetX() const = 0;
    virtual int physicalOffsetY() const = 0;
    virtual float twipsPerPixelX() const = 0;
    virtual float twipsPerPixelY() const = 0;

    virtual void setFontBold(bool bold) = 0;
    /// Prints a line of UTF-8 text below the last one; the first of a page is at the top of the printable area.
    virtual void Print(const std::string& text) = 0;
    /// Prints a line of UTF-8 text with its top at `top`, in the middle between `left` and `right`.
    virtual void PrintCentred(const std::string& text, int left, int right, int top) = 0;
    virtual void NewPage() = 0;
    virtual void EndDoc() = 0;
    virtual void KillDoc() = 0;

    /// Prints as many whole lines of the range as the rectangle holds and returns the first character not printed, the
    /// range's end when all of it is; its start when not even one line fits. Long lines are wrapped.
    virtual std::size_t formatRange(const StyledText& text, const FormatRange& range) = 0;
    /// Drops the layout that formatRange may keep of its text.
    virtual void releaseFormat() = 0;
    /// Paints the picture, as large as the rectangle.
    virtual void PaintPicture(const LoadedPicture& picture, const PaperRectangle& rectangle) = 0;
    /// Paints a drawing, an SVG document, as large as the rectangle.
    virtual void PaintDrawing(const std::string& svg, const PaperRectangle& rectangle) = 0;
};

/// A document to be printed on whatever it is given.
using PrintJob = std::function<void(Printer&)>;

/// The printers of the system.
class Printers {
public:
    virtual ~Printers() = default;
    /// How many there are to print to.
    virtual int Count() = 0;
    /// The one in use: the system's default until the user chooses another.
    virtual Printer& current() = 0;
    /// Shows the system's printer dialogue; what the user chooses there stays for later documents.
    virtual void setUp() = 0;
    /// Shows the pages of a document as the printer in use would print them. `title` is UTF-8.
    virtual void preview(const std::string& title, const PrintJob& job) = 0;
    /// The bytes of a PDF file with the document, on the paper of the printer in use. Throws RuntimeError.
    virtual std::string pdf(const std::string& title, const PrintJob& job) = 0;
};

} // namespace tarvex
