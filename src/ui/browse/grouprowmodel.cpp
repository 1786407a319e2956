#include "browse/grouprowmodel.h"

GroupRowModel::GroupRowModel(QObject *parent) : QAbstractListModel(parent) {}

void GroupRowModel::setRows(QList<GroupRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void GroupRowModel::updateCounts(const QStringList &countTexts)
{
    if (countTexts.size() != m_rows.size() || m_rows.isEmpty())
        return;
    int first = -1;
    int last = -1;
    for (int i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].countText == countTexts.at(i))
            continue;
        m_rows[i].countText = countTexts.at(i);
        if (first < 0)
            first = i;
        last = i;
    }
    if (first >= 0)
        emit dataChanged(index(first), index(last), {CountLabelRole});
}

int GroupRowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant GroupRowModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const GroupRow &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameLabelRole:
        return row.name;
    case CountLabelRole:
        return row.countText;
    default:
        return {};
    }
}

QHash<int, QByteArray> GroupRowModel::roleNames() const
{
    return {{NameLabelRole, "nameLabel"}, {CountLabelRole, "countLabel"}};
}
