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

HardwareArt::Shape HardwareArt::shape(const QString& id, qreal scale)
{
    if (!m_renderer.elementExists(id)) return {};
    const QRectF bounds = m_renderer.transformForElement(id).mapRect(m_renderer.boundsOnElement(id));
    const QRect area = QRectF(bounds.topLeft() * scale, bounds.size() * scale).toAlignedRect();
    QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    painter.scale(scale, scale);
    m_renderer.render(&painter, id, bounds);
    return {image, area.topLeft()};
}

} // namespace tarvex
