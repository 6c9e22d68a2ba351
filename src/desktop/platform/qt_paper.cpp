#include "desktop/platform/qt_paper.h"

#include "desktop/platform/qt_pictures.h"
#include "desktop/text.h"
#include "platform/errors.h"
#include "platform/windows1252.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QSvgRenderer>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;
/// Printers leave about a quarter of an inch at the edges; paper that doesn't, as that of a PDF file, looks like it.
constexpr double smallestEdge = 18; // points
constexpr double tabStop = 720;

QFont fontOf(const QString& family, double points)
{
    QFont font(family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * twipsPerPoint))));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QTextCharFormat lookOf(const StyledText::Run& run)
{
    QFont font = fontOf(toQt(run.fontName), run.fontSize);
    font.setBold(run.bold);
    font.setItalic(run.italic);
    font.setUnderline(run.underline);
    QTextCharFormat look;
    look.setFont(font);
    look.setForeground(toQt(run.colour));
    return look;
}

QString textOf(const StyledText& text, std::size_t start, std::size_t end)
{
    QString result;
    result.reserve(static_cast<qsizetype>(end - start));
    for (std::size_t at = start; at < end; ++at)
        result += QChar(windows1252ToUnicode[static_cast<unsigned char>(text.text[at])]);
    return result;
}

QRectF toQt(const PaperRectangle& rectangle)
{
    return QRectF(rectangle.left, rectangle.top, rectangle.right - rectangle.left, rectangle.bottom - rectangle.top);
}

QMarginsF edges(const QPagedPaintDevice& device)
{
    QPageLayout layout = device.pageLayout();
    layout.setUnits(QPageLayout::Point);
    const QMarginsF least = layout.minimumMargins();
    return {std::max(smallestEdge, least.left()), std::max(smallestEdge, least.top()),
            std::max(smallestEdge, least.right()), std::max(smallestEdge, least.bottom())};
}

} // namespace

QtPaper::QtPaper(QPagedPaintDevice& device, std::function<void()> abort)
    : m_device(device), m_abort(std::move(abort)), m_font(fontOf(QStringLiteral("Arial"), 10))
{
}

int QtPaper::Orientation() const
{
    return m_device.pageLayout().orientation() == QPageLayout::Landscape ? orientation::landscape
                                                                         : orientation::portrait;
}

void QtPaper::setOrientation(int orientation)
{
    m_device.setPageOrientation(orientation == orientation::landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

int QtPaper::Width() const
{
    return static_cast<int>(std::lround(m_device.pageLayout().fullRect(QPageLayout::Point).width() * twipsPerPoint));
}

int QtPaper::Height() const
{
    return static_cast<int>(std::lround(m_device.pageLayout().fullRect(QPageLayout::Point).height() * twipsPerPoint));
}

int QtPaper::physicalOffsetX() const
{
    return static_cast<int>(std::lround(edges(m_device).left() * twipsPerPoint / twipsPerPixelX()));
}

int QtPaper::physicalOffsetY() const
{
    return static_cast<int>(std::lround(edges(m_device).top() * twipsPerPoint / twipsPerPixelY()));
}

float QtPaper::twipsPerPixelX() const { return static_cast<float>(twipsPerInch / std::max(1, m_device.logicalDpiX())); }

float QtPaper::twipsPerPixelY() const { return static_cast<float>(twipsPerInch / std::max(1, m_device.logicalDpiY())); }

void QtPaper::open()
{
    if (m_painter.isActive()) return;
    if (!m_painter.begin(&m_device))
        throw RuntimeError(ErrorCode::PrinterError, "The printer doesn't take the document.");
    m_painter.translate(physicalOffsetX(), physicalOffsetY());
    m_painter.scale(1 / twipsPerPixelX(), 1 / twipsPerPixelY());
    m_top = 0;
}

void QtPaper::setFontBold(bool bold) { m_font.setBold(bold); }

void QtPaper::Print(const std::string& text)
{
    open();
    const QFontMetricsF metrics(m_font);
    m_painter.setFont(m_font);
    m_painter.setPen(Qt::black);
    m_painter.drawText(QPointF(0, m_top + metrics.ascent()), tarvex::toQt(text));
    m_top += metrics.lineSpacing();
}

void QtPaper::PrintCentred(const std::string& text, int left, int right, int top)
{
    open();
    const QFontMetricsF metrics(m_font);
    const QString line = metrics.elidedText(tarvex::toQt(text), Qt::ElideMiddle, std::max(0, right - left));
    m_painter.setFont(m_font);
    m_painter.setPen(Qt::black);
    m_painter.drawText(QPointF((left + right - metrics.horizontalAdvance(line)) / 2, top + metrics.ascent()), line);
}

void QtPaper::NewPage()
{
    open();
    if (!m_device.newPage()) throw RuntimeError(ErrorCode::PrinterError, "The printer doesn't take another page.");
    m_top = 0;
}

void QtPaper::EndDoc()
{
    if (m_painter.isActive() && !m_painter.end())
        throw RuntimeError(ErrorCode::PrinterError, "The printer didn't take the document.");
}

void QtPaper::KillDoc()
{
    if (m_abort) m_abort();
    if (m_painter.isActive()) m_painter.end();
}

// ---- text -----------------------------------------------------------------------------------------------------------

void QtPaper::useFormats(const StyledText& text)
{
    if (m_formats.text == &text) return;
    m_formats = {&text, {}, {}};
    std::size_t end = 0;
    for (const StyledText::Run& run : text.runs) {
        m_formats.ends.push_back(end += run.length);
        m_formats.looks.push_back(lookOf(run));
    }
}

/// Prints lines of the paragraph from `start` up to `end`, as many as there is room for below `top`; where the next
/// line goes. `next` becomes the first character not printed.
double QtPaper::printParagraph(const StyledText& text, std::size_t start, std::size_t end, const PaperRectangle& place,
                               double top, std::size_t& next)
{
    QTextLayout layout(textOf(text, start, end), m_font);
    const auto first = std::upper_bound(m_formats.ends.begin(), m_formats.ends.end(), start) - m_formats.ends.begin();
    QList<QTextLayout::FormatRange> ranges;
    std::size_t at = start;
    for (auto run = static_cast<std::size_t>(first); run < m_formats.ends.size() && at < end; ++run) {
        const std::size_t stop = std::min(end, m_formats.ends[run]);
        ranges.append({static_cast<int>(at - start), static_cast<int>(stop - at), m_formats.looks[run]});
        at = stop;
    }
    const auto atStart = static_cast<std::size_t>(first);
    if (atStart < m_formats.looks.size()) layout.setFont(m_formats.looks[atStart].font()); // of an empty line
    layout.setFormats(ranges);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(tabStop);
    layout.setTextOption(option);
    const double indent = atStart < text.runs.size() ? std::max(0, text.runs[atStart].indent) : 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1.0, place.right - place.left - indent));
        if (top + line.height() > place.bottom) {
            next = start + static_cast<std::size_t>(line.textStart());
            layout.endLayout();
            return top;
        }
        line.draw(&m_painter, QPointF(place.left + indent, top) - line.position());
        top += line.height();
    }
    layout.endLayout();
    next = end;
    return top;
}

std::size_t QtPaper::formatRange(const StyledText& text, const FormatRange& range)
{
    open();
    useFormats(text);
    m_painter.setPen(Qt::black);
    double top = range.rectangle.top;
    std::size_t at = range.start;
    while (at < range.end) {
        const std::size_t lineEnd = std::min(text.text.find('\r', at), range.end);
        std::size_t next = at;
        const std::size_t before = at;
        const double behind = printParagraph(text, at, lineEnd, range.rectangle, top, next);
        if (next < lineEnd || (behind == top && next == before)) return next; // the page is full
        top = behind;
        at = std::min(lineEnd + 2, range.end); // its CR LF
    }
    return at;
}

void QtPaper::releaseFormat() { m_formats = {}; }

// ---- pictures -------------------------------------------------------------------------------------------------------

void QtPaper::PaintPicture(const LoadedPicture& picture, const PaperRectangle& rectangle)
{
    open();
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(toQt(rectangle), dynamic_cast<const QtPicture&>(picture).image());
}

void QtPaper::PaintDrawing(const std::string& svg, const PaperRectangle& rectangle)
{
    open();
    QSvgRenderer renderer(QByteArray::fromStdString(svg));
    if (!renderer.isValid())
        throw RuntimeError(ErrorCode::InvalidPicture, "Invalid picture: the drawing can't be read");
    renderer.render(&m_painter, toQt(rectangle));
}

} // namespace tarvex
