#include "desktop/composer/hardware_picture.h"

#include "desktop/text.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <array>
#include <utility>

namespace tarvex {

namespace {

constexpr qreal smallest = 0.5; // of the drawing's size
constexpr int haloSpace = 5;    // around a control, for what shows its state

HardwareArt::Look lookOf(const QWidget& picture, const std::vector<HardwareControl*>& controls)
{
    HardwareArt::Look look{.ink = picture.palette().color(QPalette::WindowText), .hidden = {}, .faint = {}};
    for (const HardwareControl* control : controls) {
        if (control->isHidden()) {
            look.hidden.append(control->objectName());
        } else if (!control->isEnabled()) {
            look.faint.append(control->objectName());
        }
    }
    return look;
}

/// The same shape in one colour.
QImage filled(QImage shape, const QColor& colour)
{
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), colour);
    return shape;
}

/// The band around a shape, `width` pixels wide; the image is larger than the shape by `margin` on each side.
QImage halo(const QImage& shape, const QColor& colour, qreal width, int margin)
{
    constexpr int directions = 16;
    QImage around(shape.size() + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    around.fill(Qt::transparent);
    QPainter painter(&around);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QImage coloured = filled(shape, colour);
    for (int i = 0; i < directions; ++i) {
        const QLineF away = QLineF::fromPolar(width, 360.0 * i / directions);
        painter.drawImage(QPointF(margin, margin) + away.p2(), coloured);
    }
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(margin, margin, shape);
    return around;
}

/// Lightens or colours the shape so that a name on the control stays legible.
void paintTint(QPainter& painter, const QImage& shape, const HardwareControl& control, bool hovered)
{
    struct Tint {
        bool wanted;
        QPainter::CompositionMode mode;
        QColor colour;
    };
    const std::array tints{Tint{control.isDown(), QPainter::CompositionMode_Multiply, QColor(0xA0, 0xA0, 0xA0)},
                           Tint{control.isChecked(), QPainter::CompositionMode_Multiply, QColor(0xFF, 0xB7, 0x4D)},
                           Tint{hovered, QPainter::CompositionMode_Screen, QColor(0x38, 0x3C, 0x42)}};
    const auto tint = std::ranges::find(tints, true, &Tint::wanted);
    if (tint == tints.end()) return;
    painter.setCompositionMode(tint->mode);
    painter.drawImage(0, 0, filled(shape, tint->colour));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void paintMark(QPainter& painter, const HardwareControl& control)
{
    constexpr qreal radius = 4.5;
    const QPointF inwards(-radius / 2, radius / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.4));
    painter.setBrush(QColor(0x16, 0xA3, 0x4A));
    painter.drawEllipse(QPointF(control.markPlace()) + inwards, radius, radius);
    painter.restore();
}

} // namespace

HardwarePicture::HardwarePicture(const Picture& picture, QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setPicture(picture);
}

void HardwarePicture::setPicture(const Picture& picture)
{
    if (m_picture == &picture) return;
    m_picture = &picture;
    m_art = std::make_unique<HardwareArt>(picture);
    for (HardwareControl* old : std::exchange(m_controls, {})) { // later, because one of them may be handling its click
        old->disconnect(this);
        old->hide();
        old->deleteLater();
    }
    if (!std::exchange(m_attended, {}).isEmpty()) emit attended({});
    setAccessibleName(toQt(picture.description));
    for (const PictureControl& entry : picture.controls) addControl(entry);
    updateGeometry();
    invalidate();
}

void HardwarePicture::addControl(const PictureControl& entry)
{
    auto* control = new HardwareControl(*this);
    control->setObjectName(toQt(entry.id));
    control->setAccessibleName(toQt(tarvex::accessibleName(entry)));
    connect(control, &QAbstractButton::clicked, this, [this, control] { emit clicked(control->objectName()); });
    connect(control, &HardwareControl::menuWanted, this,
            [this, control](QPoint at) { emit menuWanted(control->objectName(), at); });
    connect(control, &HardwareControl::attended, this, [this, control](bool here) { attend(*control, here); });
    connect(control, &HardwareControl::availabilityChanged, this, &HardwarePicture::invalidate);
    connect(control, &HardwareControl::neighbourWanted, this,
            [this, control](int step) { focusNeighbour(*control, step); });
    connect(control, &HardwareControl::changed, this,
            [this, control] { update(control->geometry().adjusted(-haloSpace, -haloSpace, haloSpace, haloSpace)); });
    m_controls.push_back(control);
    control->show();
}

HardwareControl* HardwarePicture::control(std::string_view id) const
{
    const auto found = std::ranges::find(m_controls, toQt(id), &QObject::objectName);
    return found == m_controls.end() ? nullptr : *found;
}

QSize HardwarePicture::sizeHint() const { return {580, 480}; }

QSize HardwarePicture::minimumSizeHint() const { return sizeHint() * smallest; }

void HardwarePicture::attend(const HardwareControl& control, bool here)
{
    const HardwareControl* shown = here ? &control : nullptr;
    for (const auto has : {&QWidget::underMouse, &QWidget::hasFocus}) {
        const auto found = std::ranges::find_if(m_controls, has);
        if (shown == nullptr && found != m_controls.end()) shown = *found;
    }
    const QString id = shown != nullptr ? shown->objectName() : QString();
    if (std::exchange(m_attended, id) != id) emit attended(id);
}

void HardwarePicture::focusNeighbour(const HardwareControl& from, int step)
{
    const auto count = static_cast<int>(m_controls.size());
    const auto here = static_cast<int>(std::ranges::find(m_controls, &from) - m_controls.begin());
    for (int i = 1; i < count; ++i) {
        HardwareControl* next = m_controls[static_cast<std::size_t>((here + i * step + i * count) % count)];
        if (next->isHidden() || !next->isEnabled()) continue;
        next->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return;
    }
}

/// A burst of changes is drawn once: the controls are placed when the request arrives.
void HardwarePicture::invalidate()
{
    m_whole = {};
    m_placed = 0;
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
    update();
}

bool HardwarePicture::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && isVisible()) place();
    return QWidget::event(event);
}

void HardwarePicture::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    invalidate();
}

void HardwarePicture::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    place();
}

void HardwarePicture::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) invalidate();
}

/// Puts each control where the drawing shows it; only the drawn shape takes the mouse.
void HardwarePicture::place()
{
    const qreal ratio = devicePixelRatioF();
    if (m_placed == ratio) return;
    m_placed = ratio;
    m_art->setLook(lookOf(*this, m_controls));
    const QSizeF drawing = m_art->size();
    if (drawing.isEmpty()) return;
    const QSizeF space = QSizeF(size()) * ratio;
    m_scale = std::min(space.width() / drawing.width(), space.height() / drawing.height());
    const QSizeF rest = (space - drawing * m_scale) / 2;
    m_corner = QPointF(rest.width(), rest.height()).toPoint();
    const QPoint corner = (QPointF(m_corner) / ratio).toPoint();
    const qreal scale = m_scale / ratio;
    for (HardwareControl* control : m_controls) {
        if (control->isHidden()) continue;
        const auto [shape, from] = m_art->shape(control->objectName(), scale);
        const QRect name = m_art->nameArea(control->objectName(), scale);
        control->setShape(corner + from, shape, name.isEmpty() ? name : name.translated(corner));
    }
}

void HardwarePicture::paintEvent(QPaintEvent* event)
{
    place();
    const qreal ratio = devicePixelRatioF();
    if (m_whole.isNull() || m_whole.devicePixelRatio() != ratio) {
        m_whole = m_art->whole((m_art->size() * m_scale).toSize());
        m_whole.setDevicePixelRatio(ratio);
    }
    QPainter painter(this);
    painter.drawPixmap(QPointF(m_corner) / ratio, m_whole);
    for (const HardwareControl* control : m_controls) {
        const QRect area = control->shapeArea().adjusted(-haloSpace, -haloSpace, haloSpace, haloSpace);
        if (!control->isHidden() && event->rect().intersects(area)) paintState(painter, *control);
    }
}

void HardwarePicture::paintState(QPainter& painter, const HardwareControl& control)
{
    const bool hovered = control.underMouse() && control.isEnabled();
    if (hovered || control.hasFocus() || control.isDown() || control.isChecked()) {
        const qreal ratio = devicePixelRatioF();
        const auto [shape, corner] = m_art->shape(control.objectName(), m_scale);
        painter.save();
        painter.scale(1 / ratio, 1 / ratio); // pixels of the device, so that the shape lies exactly on the drawing
        painter.translate(m_corner + corner);
        paintTint(painter, shape, control, hovered);
        const int margin = static_cast<int>(haloSpace * ratio);
        const QColor accent = palette().color(QPalette::Highlight);
        if (control.hasFocus()) painter.drawImage(-margin, -margin, halo(shape, Qt::white, 3.5 * ratio, margin));
        if (control.hasFocus()) painter.drawImage(-margin, -margin, halo(shape, accent, 2.2 * ratio, margin));
        if (hovered && !control.hasFocus())
            painter.drawImage(-margin, -margin, halo(shape, accent.lighter(), 1.6 * ratio, margin));
        painter.restore();
    }
    if (control.isAssigned()) paintMark(painter, control);
}

} // namespace tarvex
