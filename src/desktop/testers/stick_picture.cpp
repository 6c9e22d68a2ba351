#include "desktop/testers/stick_picture.h"

#include <QPainter>

namespace tarvex {

namespace {

constexpr int pointRadius = 3;

QRect toPixels(const Placement& place)
{
    return {place.Left / twipsPerPixel, place.Top / twipsPerPixel, place.Width / twipsPerPixel,
            place.Height / twipsPerPixel};
}

QRect inside(const Placement& frame, const Placement& bar)
{
    return toPixels(bar).translated(toPixels(frame).topLeft());
}

} // namespace

StickPicture::StickPicture(KeyTestForm& window, QWidget* parent) : QWidget(parent), m_window(window)
{
    setObjectName(QStringLiteral("PictureJoystick"));
    setAccessibleName(QStringLiteral("Joystick, throttle and rudders"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    const auto repaint = [this] { update(); };
    m_bindings.follow(window.PictureJoystick, repaint);
    m_bindings.follow(window.JoystickShown, repaint);
    for (Property<Placement>* place : {&window.FrameTHR, &window.FrameRDDR, &window.LabelTHR, &window.LabelRDDR})
        m_bindings.follow(*place, repaint);
}

QSize StickPicture::sizeHint() const
{
    using namespace keyTestTwips;
    constexpr int gap = 90;
    return {(plot + gap + throttleWidth) / twipsPerPixel + 1, (plot + gap + rudderHeight) / twipsPerPixel + 1};
}

void StickPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect plot(0, 0, keyTestTwips::plot / twipsPerPixel, keyTestTwips::plot / twipsPerPixel);
    const QColor bar = toQt(ToggleLabel::heldColour);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::white);
    painter.drawRect(plot);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(toPixels(m_window.FrameTHR));
    painter.drawRect(toPixels(m_window.FrameRDDR));
    if (!m_window.JoystickShown) return;
    painter.fillRect(inside(m_window.FrameTHR, m_window.LabelTHR), bar);
    painter.fillRect(inside(m_window.FrameRDDR, m_window.LabelRDDR), bar);
    const PlottedPoint point = m_window.PictureJoystick;
    const auto pixel = [&plot](std::uint32_t at) {
        return pointRadius + 1 +
               static_cast<int>(static_cast<double>(at) / axisLast * (plot.width() - 2 * pointRadius - 2));
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPoint(pixel(point.x), pixel(point.y)), pointRadius, pointRadius);
}

} // namespace tarvex
