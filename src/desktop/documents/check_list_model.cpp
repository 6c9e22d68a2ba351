#include "desktop/documents/check_list_model.h"

#include <QScopedValueRollback>

namespace tarvex {

CheckListModel::CheckListModel(CheckListBox& list, QObject* parent)
    : QAbstractListModel(parent), m_list(list), m_rows(static_cast<int>(list.Items.get().size()))
{
    m_bindings.follow(list.Items, [this] {
        if (m_ticking) return;
        const int rows = static_cast<int>(m_list.Items.get().size());
        if (rows == m_rows) { // other texts or ticks: the user's place in the list stays
            if (rows > 0) emit dataChanged(index(0), index(rows - 1));
            return;
        }
        beginResetModel();
        m_rows = rows;
        endResetModel();
    });
}

int CheckListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

QVariant CheckListModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    if (row >= m_list.Items.get().size()) return {};
    const CheckListBox::Item& item = m_list.Items.get()[row];
    if (role == Qt::DisplayRole) return toQt(item.Text);
    if (role == Qt::CheckStateRole) return item.Selected ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool CheckListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::CheckStateRole || row >= m_list.Items.get().size()) return false;
    const QScopedValueRollback<bool> ticking(m_ticking, true);
    std::vector<CheckListBox::Item> items = m_list.Items;
    items[row].Selected = value.toInt() == Qt::Checked;
    m_list.Items = std::move(items);
    emit dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex& index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
}

} // namespace tarvex
