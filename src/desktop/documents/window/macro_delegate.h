#pragma once

#include <QStyledItemDelegate>

namespace tarvex {

/// Draws the rows of a list of macros: as wide as the list, so that long names are elided, a little apart, and with a
/// contour around the tick box on dark grounds.
class MacroDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Where the tick box of a row is; `option` is initialised for it.
    static QRect tickRect(const QStyleOptionViewItem& option);
    /// What the row needs to show its whole name.
    int wholeWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

} // namespace tarvex
