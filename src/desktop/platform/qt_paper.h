#pragma once

#include "platform/printers.h"

#include <QFont>
#include <QPainter>
#include <QTextCharFormat>

#include <functional>
#include <vector>

class QPagedPaintDevice;

namespace tarvex {

/// A paged device as a printer. Everything is laid out in twips without hinting, so that lines and pages break at the
/// same places on every device.
class QtPaper : public Printer {
public:
    /// The device outlives this. It is painted on from the paper's very edge. `abort` drops a document half printed.
    explicit QtPaper(QPagedPaintDevice& device, std::function<void()> abort = {});

    int Orientation() const override;
    void setOrientation(int orientation) override;
    int Width() const override;
    int Height() const override;
    int physicalOffsetX() const override;
    int physicalOffsetY() const override;
    float twipsPerPixelX() const override;
    float twipsPerPixelY() const override;

    void setFontBold(bool bold) override;
    void Print(const std::string& text) override;
    void PrintCentred(const std::string& text, int left, int right, int top) override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;

    std::size_t formatRange(const StyledText& text, const FormatRange& range) override;
    void releaseFormat() override;
    void PaintPicture(const LoadedPicture& picture, const PaperRectangle& rectangle) override;
    void PaintDrawing(const std::string& svg, const PaperRectangle& rectangle) override;

private:
    /// The runs of a text as Qt has them.
    struct Formats {
        const StyledText* text = nullptr;
        std::vector<std::size_t> ends;
        std::vector<QTextCharFormat> looks;
    };
    void open();
    void useFormats(const StyledText& text);
    double printParagraph(const StyledText& text, std::size_t start, std::size_t end, const PaperRectangle& place,
                          double top, std::size_t& next);

    QPagedPaintDevice& m_device;
    std::function<void()> m_abort;
    QPainter m_painter;
    QFont m_font;
    double m_top = 0; ///< of the next line of Print
    Formats m_formats;
};

} // namespace tarvex
