#include "entry/conditionlistmodel.h"

ConditionListModel::ConditionListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int ConditionListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant ConditionListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Condition &entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case ConditionLabelRole:
        return text(entry.condition);
    case RowIdRole:
        return entry.rowId;
    default:
        return {};
    }
}

QHash<int, QByteArray> ConditionListModel::roleNames() const
{
    return {{RowIdRole, "rowId"}, {ConditionLabelRole, "conditionLabel"}};
}

void ConditionListModel::setEntries(QList<Condition> entries)
{
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
}

void ConditionListModel::removeRowAt(int row)
{
    if (row < 0 || row >= m_entries.size())
        return;
    beginRemoveRows({}, row, row);
    m_entries.removeAt(row);
    endRemoveRows();
}
