#include "desktop/composer/hardware_control.h"

#include <QBitmap>
#include <QContextMenuEvent>
#include <QKeyEvent>

namespace tarvex {

namespace {

/// The solid pixel that lies farthest to the upper right.
QPoint upperRight(const QImage& shape)
{
    constexpr int solid = 128;
    QPoint best(-1, 0);
    for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x) {
            const bool farther = best.x() < 0 || x - y > best.x() - best.y();
            if (farther && qAlpha(shape.pixel(x, y)) >= solid) best = QPoint(x, y);
        }
    }
    return best;
}

} // namespace

HardwareControl::HardwareControl(QWidget& picture) : QAbstractButton(&picture)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    for (const auto signal : {&QAbstractButton::pressed, &QAbstractButton::released})
        connect(this, signal, this, &HardwareControl::changed);
    connect(this, &QAbstractButton::toggled, this, &HardwareControl::changed);
}

void HardwareControl::setAssigned(bool assigned)
{
    if (assigned == m_assigned) return;
    m_assigned = assigned;
    emit changed();
}

void HardwareControl::setShape(QPoint corner, const QImage& shape, const QRect& name)
{
    m_shapeArea = QRect(corner, shape.size());
    m_markPlace = corner + upperRight(shape);
    const QRect whole = m_shapeArea | name;
    setGeometry(whole);
    const QRegion drawn = QRegion(QBitmap::fromImage(shape.createAlphaMask())).translated(corner);
    setMask((drawn + name).translated(-whole.topLeft()));
}

QPoint HardwareControl::menuPlace() const
{
    return mapToGlobal(m_shapeArea.isEmpty() ? rect().center() : m_shapeArea.center() - pos());
}

bool HardwareControl::event(QEvent* event)
{
    const bool done = QAbstractButton::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        emit attended(event->type() == QEvent::Enter);
        emit changed();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        emit attended(event->type() == QEvent::FocusIn);
        emit changed();
        break;
    case QEvent::EnabledChange:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        emit availabilityChanged();
        break;
    default:
        break;
    }
    return done;
}

void HardwareControl::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        emit neighbourWanted(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        emit neighbourWanted(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) click();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void HardwareControl::contextMenuEvent(QContextMenuEvent* event)
{
    emit menuWanted(event->reason() == QContextMenuEvent::Mouse ? event->globalPos() : menuPlace());
    event->accept();
}

void HardwareControl::paintEvent(QPaintEvent*) {}

} // namespace tarvex
