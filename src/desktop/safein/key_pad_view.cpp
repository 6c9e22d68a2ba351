#include "desktop/safein/key_pad_view.h"

#include "desktop/safein/key_button.h"
#include "desktop/text.h"
#include "safein/keys/pad_layout.h"

#include <QEvent>

#include <algorithm>
#include <cmath>

namespace tarvex {

namespace {

constexpr int usualQuarter = 10; // pixels of a quarter of a usual key
constexpr int leastQuarter = 6;
constexpr int firstTabStop = 83; // Esc
constexpr int gap = 1;

Direction directionOf(int arrow)
{
    switch (arrow) {
    case Qt::Key_Left:
        return Direction::Left;
    case Qt::Key_Right:
        return Direction::Right;
    case Qt::Key_Up:
        return Direction::Up;
    default:
        return Direction::Down;
    }
}

} // namespace

KeyPadView::KeyPadView(RAWform& window, QWidget* parent) : QWidget(parent), m_window(window)
{
    setObjectName(QStringLiteral("KeyPad"));
    setAccessibleName(QStringLiteral("Keyboard"));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizePolicy(policy);
    for (const KeyPlace& place : padLayout()) addKey(*keyAt(place.index)); // the Tab key's order is the layout's
    m_tabStop = button(firstTabStop);
    m_tabStop->setFocusPolicy(Qt::StrongFocus);
    m_bindings.bind(window.LitKey, [this](int index) { light(index); });
    m_bindings.follow(window.ToggleButton1.BackColor, [this] { refreshSigns(); });
}

void KeyPadView::addKey(const Key& key)
{
    auto* view = new KeyButton(key.index, this);
    m_buttons[static_cast<std::size_t>(key.index)] = view;
    view->setAccessibleName(toQt(std::string(key.spoken)));
    view->installEventFilter(this);
    view->arrowPressed = [this, index = key.index](int arrow) { moveFocus(index, arrow); };
    m_bindings.button(m_window.Command1[static_cast<std::size_t>(key.index)], *view);
}

QSize KeyPadView::sizeHint() const { return QSize(padWidth, padHeight) * usualQuarter; }

/// A key is never lower than a line of the window's other texts, so that large letters don't shrink it.
QSize KeyPadView::minimumSizeHint() const
{
    constexpr int frame = 2 * (2 + gap);
    const int line = (fontMetrics().height() + frame + usualKey - 1) / usualKey;
    return QSize(padWidth, padHeight) * std::max(leastQuarter, line);
}

void KeyPadView::resizeEvent(QResizeEvent*)
{
    const double quarter = std::min(static_cast<double>(width()) / padWidth, static_cast<double>(height()) / padHeight);
    const double left = (width() - quarter * padWidth) / 2;
    const double top = (height() - quarter * padHeight) / 2;
    const auto edge = [quarter](double start, int at) { return static_cast<int>(std::lround(start + quarter * at)); };
    for (const KeyPlace& key : padLayout()) {
        const QPoint from(edge(left, key.x), edge(top, key.y));
        const QPoint to(edge(left, key.x + key.width), edge(top, key.y + key.height));
        button(key.index)->setUsualEdge(static_cast<int>(std::lround(quarter * usualKey)));
        button(key.index)->setGeometry(QRect(from, to - QPoint(1, 1)).adjusted(gap, gap, -gap, -gap));
    }
}

/// The key that had the keyboard last is the one that the Tab key leads to.
bool KeyPadView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && watched != m_tabStop) {
        m_tabStop->setFocusPolicy(Qt::ClickFocus);
        m_tabStop = static_cast<KeyButton*>(watched);
        m_tabStop->setFocusPolicy(Qt::StrongFocus);
    }
    return QWidget::eventFilter(watched, event);
}

/// Past keys that can't be pressed.
void KeyPadView::moveFocus(int index, int arrow)
{
    for (int next = keyBeside(index, directionOf(arrow)); next != index; next = keyBeside(index, directionOf(arrow))) {
        if (button(next)->isEnabled()) return button(next)->setFocus(Qt::OtherFocusReason);
        index = next;
    }
}

void KeyPadView::showSigns(const KeyboardSigns& signs)
{
    m_signs = signs;
    refreshSigns();
}

void KeyPadView::refreshSigns()
{
    const bool shift = m_window.ToggleButton1.isHeld();
    for (const Key& key : keyTable()) {
        const auto at = static_cast<std::size_t>(key.index);
        const std::string& sign = (shift ? m_signs.shifted : m_signs.plain)[at];
        button(key.index)->setSecondSign(toQt(std::string(secondSign(key, shift, sign))));
    }
}

void KeyPadView::light(int index)
{
    if (m_lit != nullptr) m_lit->setLit(false);
    m_lit = index < 0 ? nullptr : button(index);
    if (m_lit != nullptr) m_lit->setLit(true);
}

} // namespace tarvex
