#include "desktop/documents/window/check_list_model.h"

#include <QScopedValueRollback>

namespace tarvex {

void CheckListModel::show(CheckListBox* list)
{
    beginResetModel();
    m_bindings = Bindings();
    m_list = list;
    m_rows = itemCount();
    if (list != nullptr) m_bindings.follow(list->Items, [this] { takeItems(); });
    endResetModel();
}

void CheckListModel::takeItems()
{
    if (m_ticking) return;
    const int rows = itemCount();
    if (rows == m_rows) { // other texts or ticks: the user's place in the list stays
        if (rows > 0) emit dataChanged(index(0), index(rows - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int CheckListModel::itemCount() const { return m_list != nullptr ? static_cast<int>(m_list->Items.get().size()) : 0; }

bool CheckListModel::holds(const QModelIndex& index) const { return index.row() >= 0 && index.row() < itemCount(); }

int CheckListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

QVariant CheckListModel::data(const QModelIndex& index, int role) const
{
    if (!holds(index)) return {};
    const CheckListBox::Item& item = m_list->Items.get()[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) return toQt(item.Text);
    if (role == Qt::CheckStateRole) return item.Selected ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool CheckListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !holds(index)) return false;
    const QScopedValueRollback<bool> ticking(m_ticking, true);
    std::vector<CheckListBox::Item> items = m_list->Items;
    items[static_cast<std::size_t>(index.row())].Selected = value.toInt() == Qt::Checked;
    m_list->Items = std::move(items);
    emit dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags CheckListModel::flags(const QModelIndex& index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled;
}

} // namespace tarvex
