#include "desktop/viewer/picture_area.h"

#include "desktop/platform/qt_pictures.h"
#include "viewer/image_commands.h"
#include "viewer/image_place.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWheelEvent>

#include <cmath>

namespace tarvex {

PictureArea::PictureArea(ViewImage& window, QWidget* parent)
    : QWidget(parent), m_window(window), m_horizontal(bar(window.HScroll1, Qt::Horizontal, "HScroll1")),
      m_vertical(bar(window.VScroll1, Qt::Vertical, "VScroll1"))
{
    constexpr QSize smallest(160, 120);
    setObjectName(QStringLiteral("Picture2"));
    setAccessibleName(QStringLiteral("Picture"));
    setMinimumSize(smallest);
    setFocusPolicy(Qt::StrongFocus);
    m_bindings.bind(window.Picture3, [this](const std::shared_ptr<const LoadedPicture>& picture) {
        const auto* loaded = dynamic_cast<const QtPicture*>(picture.get());
        m_picture = loaded == nullptr ? QPixmap() : QPixmap::fromImage(loaded->image());
        update();
    });
    m_bindings.follow(window.Picture3Place, [this] { update(); });
    m_bindings.follow(window.Picture2, [this] { place(); });
}

QScrollBar* PictureArea::bar(ScrollBar& state, Qt::Orientation orientation, const char* name)
{
    auto* view = new QScrollBar(orientation, this);
    view->setObjectName(QLatin1String(name));
    m_bindings.bind(state.Max, [view](int max) { view->setMaximum(max); });
    m_bindings.bind(state.LargeChange, [view](int step) { view->setPageStep(step); });
    m_bindings.bind(state.SmallChange, [view](int step) { view->setSingleStep(step); });
    m_bindings.bind(state.Visible, [view](bool on) { view->setVisible(on); });
    m_bindings.bind(state.Value, [view](int value) {
        const QSignalBlocker quiet(view);
        view->setValue(value);
    });
    connect(view, &QScrollBar::valueChanged, this, [&state](int value) {
        state.Value = value;
        if (state.Change) state.Change();
    });
    return view;
}

void PictureArea::place()
{
    const Placement& frame = m_window.Picture2.get();
    const int thickness = m_window.BarThickness;
    m_horizontal->setGeometry(0, frame.Height, frame.Width, thickness);
    m_vertical->setGeometry(frame.Width, 0, thickness, frame.Height);
    update();
}

void PictureArea::resizeEvent(QResizeEvent*)
{
    m_window.BarThickness = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_vertical);
    m_window.ScaleWidth = width();
    m_window.ScaleHeight = height();
    RepositionControls(m_window);
}

void PictureArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.save();
    paintPicture(painter);
    painter.restore();
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void PictureArea::paintPicture(QPainter& painter) const
{
    const Placement& frame = m_window.Picture2.get();
    const Placement& shown = m_window.Picture3Place.get();
    if (m_picture.isNull()) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         QStringLiteral("No picture yet. Select Open from the Image menu."));
        return;
    }
    painter.setClipRect(0, 0, frame.Width, frame.Height);
    const QRect target(shown.Left, shown.Top, shown.Width, shown.Height);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, shown.Width < m_picture.width());
    if (target.size() == m_picture.size()) {
        painter.drawPixmap(target.topLeft(), m_picture);
    } else {
        painter.drawPixmap(target, m_picture);
    }
}

void PictureArea::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120; // eighths of a degree
    const QPoint at = event->position().toPoint();
    zoomAt(m_window, std::pow(zoomStep, event->angleDelta().y() / notch), at.x(), at.y());
    event->accept();
}

void PictureArea::mousePressEvent(QMouseEvent* event) { m_dragged = event->pos(); }

void PictureArea::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) == 0) return;
    const QPoint by = m_dragged - event->pos();
    m_dragged = event->pos();
    m_horizontal->setValue(m_horizontal->value() + by.x());
    m_vertical->setValue(m_vertical->value() + by.y());
}

void PictureArea::mouseDoubleClickEvent(QMouseEvent*) { mnuImageEdit_Click(m_window); }

} // namespace tarvex
