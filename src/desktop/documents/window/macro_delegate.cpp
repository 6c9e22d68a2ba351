#include "desktop/documents/window/macro_delegate.h"

#include <QPainter>
#include <QWidget>

namespace tarvex {

QSize MacroDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    constexpr int air = 4;
    return {1, QStyledItemDelegate::sizeHint(option, index).height() + air};
}

void MacroDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    constexpr int half = 128;
    if (option.palette.color(QPalette::Base).lightness() >= half) return;
    // The style draws the box darker than its ground, which can't be seen on a dark one.
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    QColor line = option.palette.color(QPalette::Text);
    line.setAlphaF(0.5F);
    painter->setPen(line);
    painter->drawRect(tickRect(shown).adjusted(0, 0, -1, -1));
}

QRect MacroDelegate::tickRect(const QStyleOptionViewItem& option)
{
    return option.widget->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, option.widget);
}

int MacroDelegate::wholeWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).width();
}

} // namespace tarvex
