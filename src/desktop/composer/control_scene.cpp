#include "desktop/composer/control_scene.h"

#include "desktop/text.h"

#include <QPainter>

namespace tarvex {

ControlScene::ControlScene(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ControlScene::showControls(PictureOf what, const QStringList& controls)
{
    const Picture& wanted = tarvex::picture(what);
    if (m_picture != &wanted) m_art.reset();
    m_picture = &wanted;
    m_controls = controls;
    update();
}

QSize ControlScene::sizeHint() const { return {}; }

HardwareArt::Look ControlScene::look() const
{
    HardwareArt::Look look{.ink = palette().color(QPalette::WindowText), .hidden = {}, .faint = {}};
    for (const PictureControl& entry : m_picture->controls) {
        if (const QString id = toQt(entry.id); !m_controls.contains(id)) look.faint.append(id);
    }
    return look;
}

void ControlScene::paintEvent(QPaintEvent*)
{
    constexpr qreal smallest = 0.3; // of the drawing's size
    if (m_picture == nullptr) return;
    if (!m_art) {
        m_art = std::make_unique<HardwareArt>(*m_picture);
        m_drawn = {};
    }
    const HardwareArt::Look wanted = look();
    m_art->setLook(wanted);
    const QSizeF shown = m_art->size().scaled(size(), Qt::KeepAspectRatio);
    if (shown.width() < m_art->size().width() * smallest) return;
    const QSize pixels = (shown * devicePixelRatioF()).toSize();
    if (m_drawn.size() != pixels || !(wanted == m_look)) {
        m_drawn = m_art->whole(pixels);
        m_look = wanted;
    }
    m_drawn.setDevicePixelRatio(devicePixelRatioF());
    const QSizeF rest = (QSizeF(size()) - shown) / 2;
    QPainter(this).drawPixmap(QPointF(rest.width(), rest.height()), m_drawn);
}

} // namespace tarvex
