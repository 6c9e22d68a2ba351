#include "desktop/safein/key_button.h"

#include "desktop/text.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace tarvex {

namespace {

constexpr int leastPixels = 7;
constexpr int margin = 3;

/// The largest size up to `pixels` in which the text fits into the width.
QFont fitted(QFont font, const QString& text, int pixels, int width)
{
    pixels = std::max(pixels, leastPixels);
    font.setPixelSize(pixels);
    const int wanted = QFontMetrics(font).horizontalAdvance(text);
    if (wanted > width && wanted > 0) font.setPixelSize(std::max(leastPixels, pixels * width / wanted));
    return font;
}

} // namespace

KeyButton::KeyButton(int index, QWidget* parent) : QPushButton(parent), m_index(index)
{
    setObjectName(QStringLiteral("Command1_%1").arg(index));
    setFocusPolicy(Qt::ClickFocus);
    setAutoDefault(false);
}

void KeyButton::setSecondSign(const QString& sign)
{
    if (sign == m_secondSign) return;
    m_secondSign = sign;
    setAccessibleDescription(sign.isEmpty() ? QString() : QStringLiteral("%1 on your keyboard").arg(sign));
    update();
}

void KeyButton::setLit(bool on)
{
    if (on == m_lit) return;
    m_lit = on;
    if (!on) return setPalette(QPalette());
    QPalette lit = palette();
    lit.setColor(QPalette::Button, lit.color(QPalette::Highlight));
    lit.setColor(QPalette::ButtonText, lit.color(QPalette::HighlightedText));
    setPalette(lit);
}

void KeyButton::paintEvent(QPaintEvent*)
{
    constexpr int letterShare = 42; // per cent of the height
    constexpr int wordShare = 30;
    constexpr int signShare = 34;
    constexpr int mostPixels = 60; // on larger keys letters don't grow any more
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);

    const QRect cap = rect().adjusted(margin, margin / 2, -margin, -margin / 2);
    const QString label = text().replace(QLatin1String("&&"), QLatin1String("&"));
    const int edge = std::min(m_usualEdge, mostPixels);
    const bool alone = m_secondSign.isEmpty();
    const int labelShare = label.size() > 1 ? wordShare : letterShare;
    painter.setFont(fitted(font(), label, edge * labelShare / 100, cap.width()));
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawText(cap, static_cast<int>(alone ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignTop), label);
    if (alone) return;
    painter.setFont(fitted(font(), m_secondSign, edge * signShare / 100, cap.width()));
    painter.setPen(palette().color(m_lit ? QPalette::HighlightedText : QPalette::Link));
    painter.drawText(cap, static_cast<int>(Qt::AlignRight | Qt::AlignBottom), m_secondSign);
}

void KeyButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (arrowPressed) arrowPressed(event->key());
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

} // namespace tarvex
