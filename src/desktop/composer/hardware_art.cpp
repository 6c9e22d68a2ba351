#include "desktop/composer/hardware_art.h"

#include "desktop/text.h"

#include <QFile>
#include <QPainter>

namespace tarvex {

namespace {

/// Adds an attribute to the elements of a control.
void mark(QByteArray& svg, const QString& control, const char* attribute)
{
    for (const char* part : {"", "label:", "beside:"}) {
        const QByteArray id = QStringLiteral("id=\"%1%2\"").arg(QLatin1String(part), control).toUtf8();
        svg.replace(id, id + ' ' + attribute);
    }
}

QRect scaled(const QRectF& area, qreal scale)
{
    return QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
}

} // namespace

HardwareArt::HardwareArt(const Picture& picture)
{
    QFile file(QStringLiteral(":/hardware/%1.svg").arg(toQt(picture.file)));
    if (file.open(QIODevice::ReadOnly)) m_svg = file.readAll();
    m_renderer.setAspectRatioMode(Qt::KeepAspectRatio);
}

void HardwareArt::setLook(const Look& look)
{
    if (m_renderer.isValid() && look == m_look) return;
    m_look = look;
    QByteArray svg = m_svg;
    svg.replace("currentColor", look.ink.name().toLatin1());
    for (const QString& control : look.hidden) mark(svg, control, "display=\"none\"");
    for (const QString& control : look.faint) mark(svg, control, "opacity=\"0.35\"");
    m_renderer.load(svg);
}

QSizeF HardwareArt::size() const { return m_renderer.viewBoxF().size(); }

QPixmap HardwareArt::whole(const QSize& pixels)
{
    QPixmap drawn(pixels);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    m_renderer.render(&painter);
    return drawn;
}

QRectF HardwareArt::bounds(const QString& element) const
{
    return m_renderer.transformForElement(element).mapRect(m_renderer.boundsOnElement(element));
}

QRect HardwareArt::nameArea(const QString& id, qreal scale) const
{
    const QString name = QStringLiteral("name:") + id;
    if (!m_renderer.elementExists(name)) return {};
    return scaled(bounds(name), scale);
}

HardwareArt::Shape HardwareArt::shape(const QString& id, qreal scale)
{
    if (!m_renderer.elementExists(id)) return {};
    const QRect area = scaled(bounds(id), scale);
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    painter.scale(scale, scale);
    m_renderer.render(&painter, id, bounds(id));
    return {image, area.topLeft()};
}

} // namespace tarvex
