#include "desktop/testers/field_view.h"

#include "desktop/text.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace tarvex {

namespace {

constexpr int dotStep = 3;     // in widths of a line
constexpr int beyondEdge = 96; // pixels; what lies further out is cut

} // namespace

FieldView::FieldView(DrawingField& field, const char* name, QWidget* parent)
    : QWidget(parent), m_field(field), m_colours(paneColours(field.background()))
{
    setObjectName(QLatin1String(name));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_bindings.follow(field.refreshWanted, [this] { flush(); });
}

QSize FieldView::minimumSizeHint() const { return {24, 24}; }

void FieldView::makeCanvas()
{
    const QSize wanted = size() * devicePixelRatioF();
    if (m_canvas.size() == wanted) return;
    m_canvas = QImage(wanted, QImage::Format_RGB32);
    m_canvas.setDevicePixelRatio(devicePixelRatioF());
    clear();
}

void FieldView::clear()
{
    m_canvas.fill(shown(m_field.background()));
    m_rows.assign(static_cast<std::size_t>(m_canvas.height()), {});
    m_columns.assign(static_cast<std::size_t>(m_canvas.width()), {});
    update();
}

void FieldView::flush()
{
    if (size().isEmpty()) return;
    makeCanvas();
    if (m_field.isCleared()) clear();
    QRect changed;
    for (const Stroke& stroke : m_field.strokes()) {
        const QRect place = placeOf(stroke);
        paint(place, stroke);
        if (changesPicture(place, stroke)) changed |= place;
    }
    m_field.painted();
    if (!changed.isEmpty()) updateCanvas(changed);
}

/// As one rectangle: copying the little more is cheaper than clipping to the parts.
void FieldView::updateCanvas(const QRect& part)
{
    const double ratio = devicePixelRatioF();
    update(QRectF(part.x() / ratio, part.y() / ratio, part.width() / ratio, part.height() / ratio)
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
}

int FieldView::pixelOf(float coordinate, int pixels) const
{
    const float range = m_field.high() - m_field.low();
    const float at = (coordinate - m_field.low()) / range * static_cast<float>(pixels - 1);
    const auto beyond = static_cast<float>(pixels + beyondEdge);
    return static_cast<int>(std::lround(std::clamp(at, -beyond, 2 * beyond)));
}

/// All strokes are horizontal or vertical.
QRect FieldView::placeOf(const Stroke& stroke) const
{
    const int width = std::max(1, static_cast<int>(std::lround(devicePixelRatioF())));
    const QPoint from(pixelOf(stroke.x1, m_canvas.width()), pixelOf(stroke.y1, m_canvas.height()));
    const QPoint to(pixelOf(stroke.x2, m_canvas.width()), pixelOf(stroke.y2, m_canvas.height()));
    return QRect(from, to).normalized().adjusted(0, 0, width - 1, width - 1);
}

void FieldView::paint(const QRect& place, const Stroke& stroke)
{
    const QRect part = place & m_canvas.rect();
    if (part.isEmpty()) return;
    const QRgb colour = shown(stroke.colour);
    const int dot = std::max(1, std::min(place.width(), place.height()));
    const auto pixelsInLine = m_canvas.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    auto* line = reinterpret_cast<QRgb*>(m_canvas.bits()) + part.top() * pixelsInLine;
    for (int y = part.top(); y <= part.bottom(); ++y, line += pixelsInLine) {
        for (int x = part.left(); x <= part.right(); ++x) {
            if (!stroke.dotted || (x - place.left() + y - place.top()) / dot % dotStep == 0) line[x] = colour;
        }
    }
}

/// A line across the field does only in another colour than before. A dotted one never hides a solid one at its place.
bool FieldView::changesPicture(const QRect& place, const Stroke& stroke)
{
    const QRect all = m_canvas.rect();
    const bool isRow = place.left() <= all.left() && place.right() >= all.right();
    const bool isColumn = place.top() <= all.top() && place.bottom() >= all.bottom();
    if (isRow == isColumn) return true;
    const int at = isRow ? place.top() : place.left();
    std::vector<std::optional<Colour>>& colours = isRow ? m_rows : m_columns;
    if (at < 0 || at >= static_cast<int>(colours.size())) return false;
    return std::exchange(colours[static_cast<std::size_t>(at)], stroke.colour) != stroke.colour;
}

// ---- colours --------------------------------------------------------------------------------------------------------

QRgb FieldView::readable(Colour colour) const
{
    return (colour == m_field.background() ? m_colours.ground : m_colours.text(colour)).rgb();
}

QRgb FieldView::shown(Colour colour)
{
    const auto known = std::ranges::find(m_shown, colour, &Shown::colour);
    if (known != m_shown.end()) return known->pixel;
    return m_shown.emplace_back(Shown{colour, readable(colour)}).pixel;
}

/// What was painted stays, the trail above all, in the colours of another appearance.
void FieldView::recolour()
{
    m_colours = paneColours(m_field.background());
    const std::vector<Shown> before = m_shown;
    for (Shown& each : m_shown) each.pixel = readable(each.colour);
    const auto pixels = static_cast<std::size_t>(m_canvas.width());
    for (int y = 0; y < m_canvas.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(m_canvas.scanLine(y));
        for (QRgb& pixel : std::span(line, pixels)) {
            const auto old = std::ranges::find(before, pixel, &Shown::pixel);
            if (old != before.end()) pixel = m_shown[static_cast<std::size_t>(old - before.begin())].pixel;
        }
    }
    update();
}

void FieldView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool isLook = event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::StyleChange;
    if (isLook && paneColours(m_field.background()) != m_colours) recolour();
}

// ---- events of the widget -------------------------------------------------------------------------------------------

void FieldView::paintEvent(QPaintEvent*)
{
    makeCanvas();
    QPainter painter(this);
    painter.drawImage(QPointF(0, 0), m_canvas);
}

void FieldView::resizeEvent(QResizeEvent*)
{
    if (resized) resized();
    flush();
}

} // namespace tarvex
