#pragma once

#include "desktop/bind.h"
#include "viewer/view_image.h"

#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QWidget>

namespace tarvex {

/// The picture in its frame with the two scroll bars. The wheel zooms; the mouse drags; a double click hands the
/// picture to the system's editor.
class PictureArea : public QWidget {
    Q_OBJECT
public:
    /// The window's state outlives this.
    PictureArea(ViewImage& window, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QScrollBar* bar(ScrollBar& state, Qt::Orientation orientation, const char* name);
    void place();
    void paintPicture(QPainter& painter) const;

    ViewImage& m_window;
    Bindings m_bindings;
    QPixmap m_picture;
    QScrollBar* m_horizontal;
    QScrollBar* m_vertical;
    QPoint m_dragged; ///< where the mouse was last
};

} // namespace tarvex
