#include "desktop/preferences/path_box.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace tarvex {

namespace {

constexpr int textMargin = 2; ///< what QLineEdit leaves between its frame and the text, pixels

} // namespace

PathBox::PathBox(TextBox& state, const QString& name, Bindings& bindings) : LineBox(state, name, bindings)
{
    bindings.bind(state.Text, [this](const std::string& text) { setToolTip(toQt(text)); });
}

void PathBox::paintEvent(QPaintEvent* event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .marginsRemoved(textMargins())
                           .adjusted(textMargin, 0, -textMargin, 0);
    const bool fits = fontMetrics().horizontalAdvance(text()) <= room.width();
    if (hasFocus() || fits) return LineBox::paintEvent(event);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width()));
}

} // namespace tarvex
