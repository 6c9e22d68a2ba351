#include "desktop/icon_theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace tarvex {

namespace {

QColor tint(QIcon::Mode mode)
{
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    return QApplication::palette().color(group, role);
}

class TintedSvg final : public QIconEngine {
public:
    explicit TintedSvg(QString name) : m_name(std::move(name)) {}

    QIconEngine* clone() const override { return new TintedSvg(m_name); }
    QString iconName() override { return m_name; }

    void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device() != nullptr ? painter->device()->devicePixelRatioF() : 1;
        painter->drawPixmap(area, scaledPixmap(area.size() * scale, mode, state, scale));
    }

    /// `size` is in pixels of the device.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        const QColor colour = tint(mode);
        const QString key = QStringLiteral("tarvex:%1:%2x%3:%4:%5:%6")
                                .arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(colour.rgba())
                                .arg(scale)
                                .arg(mode == QIcon::Disabled);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) return drawn;
        drawn = draw(size, colour, mode == QIcon::Disabled);
        drawn.setDevicePixelRatio(scale);
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

private:
    QPixmap draw(const QSize& size, const QColor& colour, bool faint) const
    {
        constexpr qreal faintness = 0.5; // of the accents, which have colours of their own
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QFile file(QStringLiteral(":/icons/%1.svg").arg(m_name));
        if (!file.open(QIODevice::ReadOnly)) return picture;
        QSvgRenderer renderer(file.readAll().replace("currentColor", colour.name().toLatin1()));
        QPainter painter(&picture);
        if (faint) painter.setOpacity(faintness);
        renderer.render(&painter, QRectF(QPointF(), size));
        return picture;
    }

    QString m_name;
};

} // namespace

QIcon themeIcon(const QString& name) { return QIcon(new TintedSvg(name)); }

} // namespace tarvex
