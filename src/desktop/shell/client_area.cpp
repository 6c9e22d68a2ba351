#include "desktop/shell/client_area.h"

#include "desktop/mixed.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarvex {

namespace {

constexpr int steps = 48;
constexpr double strength = 0.35; // of the colour where it is strongest

} // namespace

ClientArea::ClientArea(Property<bool>& gradient, QWidget* toolbar, QWidget* editor, QWidget* parent)
    : QWidget(parent), m_gradient(gradient), m_editor(editor)
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(toolbar);
    column->addWidget(editor, 1);
    m_bindings.follow(gradient, [this] { update(); });
}

/// From the theme's own colour at the top down to the plain ground; texts on it stay readable in both themes.
void ClientArea::paintEvent(QPaintEvent*)
{
    if (!m_gradient) return;
    QPainter painter(this);
    const QRect area = m_editor->geometry();
    const QColor ground = palette().color(QPalette::Window);
    const QColor colour = palette().color(QPalette::Highlight);
    for (int step = 0; step < steps; ++step) {
        const int top = area.top() + area.height() * step / steps;
        const int bottom = area.top() + area.height() * (step + 1) / steps;
        const double share = strength * (steps - step) / steps;
        painter.fillRect(QRect(area.left(), top, area.width(), bottom - top), mixed(ground, colour, share));
    }
}

} // namespace tarvex
