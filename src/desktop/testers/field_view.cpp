#include "desktop/testers/field_view.h"

#include "desktop/text.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

constexpr int dotStep = 3; // in widths of a line
constexpr int shortLine = 96;

} // namespace

FieldView::FieldView(DrawingField& field, const char* name, QWidget* parent) : QWidget(parent), m_field(field)
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
    m_canvas.fill(toQt(m_field.background()));
    m_longLines.clear();
    update();
}

void FieldView::flush()
{
    if (size().isEmpty()) return;
    makeCanvas();
    if (m_field.isCleared()) {
        m_canvas.fill(toQt(m_field.background()));
        m_longLines.clear();
        update();
    }
    QRect crosses;
    for (const Stroke& stroke : m_field.strokes()) {
        const QRect place = placeOf(stroke);
        paint(place, stroke);
        if (std::max(place.width(), place.height()) < shortLine) {
            crosses |= place;
        } else if (changesPicture(place, stroke)) {
            updateCanvas(place);
        }
    }
    m_field.painted();
    if (!crosses.isEmpty()) updateCanvas(crosses);
}

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
    const auto beyond = static_cast<float>(pixels + shortLine);
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
    const QRgb colour = toQt(stroke.colour).rgb();
    const int dot = std::max(1, std::min(place.width(), place.height()));
    for (int y = part.top(); y <= part.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(m_canvas.scanLine(y));
        for (int x = part.left(); x <= part.right(); ++x) {
            if (!stroke.dotted || (x - place.left() + y - place.top()) / dot % dotStep == 0) line[x] = colour;
        }
    }
}

/// Whether a long line is new or has another colour. A dotted one never hides a solid one at its place.
bool FieldView::changesPicture(const QRect& place, const Stroke& stroke)
{
    const auto known = std::ranges::find(m_longLines, place, &LongLine::place);
    if (known == m_longLines.end()) {
        m_longLines.push_back({place, stroke.colour});
        return true;
    }
    if (known->colour == stroke.colour) return false;
    known->colour = stroke.colour;
    return true;
}

void FieldView::paintEvent(QPaintEvent* event)
{
    makeCanvas();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QPointF(0, 0), m_canvas);
}

void FieldView::resizeEvent(QResizeEvent*)
{
    if (resized) resized();
    flush();
}

} // namespace tarvex
