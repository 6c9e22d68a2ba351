#pragma once

#include "desktop/bind.h"

#include <QAbstractListModel>

namespace tarvex {

/// The items of a list with ticks, for a QListView. A list that changes as a whole is reported as a whole.
class CheckListModel : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// From now on the items are those of `list`; null: there are none. The list outlives being shown.
    void show(CheckListBox* list);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void takeItems();
    int itemCount() const;
    bool holds(const QModelIndex& index) const;

    CheckListBox* m_list = nullptr;
    bool m_ticking = false;
    int m_rows = 0; ///< as the view knows them
    Bindings m_bindings;
};

} // namespace tarvex
