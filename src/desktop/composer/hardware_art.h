#pragma once

#include "shell/hardware/pictures.h"

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QStringList>
#include <QSvgRenderer>

namespace tarvex {

/// The drawing of a picture of the hardware, whole and control by control. Places and sizes are the drawing's own
/// unless said otherwise; a scale is pixels of the device per unit of the drawing.
class HardwareArt {
public:
    /// What the drawing depends on beside its file.
    struct Look {
        QColor ink;         ///< of names and contours
        QStringList hidden; ///< ids of controls
        QStringList faint;  ///< ids of controls that can't be used

        bool operator==(const Look&) const = default;
    };
    /// What a control covers, drawn alone.
    struct Shape {
        QImage image;
        QPoint corner; ///< of the image, in pixels from the drawing's
    };

    explicit HardwareArt(const Picture& picture);
    /// Costs a parse of the file when the look is another.
    void setLook(const Look& look);
    QSizeF size() const;
    QPixmap whole(const QSize& pixels);
    Shape shape(const QString& id, qreal scale);
    /// Where its name is written, in pixels from the drawing's corner; empty when it has none.
    QRect nameArea(const QString& id, qreal scale) const;

private:
    QRectF bounds(const QString& element) const;

    QByteArray m_svg;
    Look m_look;
    QSvgRenderer m_renderer;
};

} // namespace tarvex
