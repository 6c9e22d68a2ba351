#pragma once

#include "desktop/bind.h"

#include <QAbstractListModel>

namespace tarvex {

/// The items of a list with ticks, for a QListView.
class CheckListModel : public QAbstractListModel {
    Q_OBJECT
public:
    /// The list outlives the model.
    explicit CheckListModel(CheckListBox& list, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    CheckListBox& m_list;
    bool m_ticking = false;
    int m_rows = 0;
    Bindings m_bindings;
};

} // namespace tarvex
