#include "browse/grouprowmodel.h"

GroupRowModel::GroupRowModel(QObject *parent) : QAbstractListModel(parent) {}

void GroupRowModel::setRows(QStringList names, CountReader counts)
{
    beginResetModel();
    m_names = std::move(names);
    m_pages.reset(m_names.size(), [this, counts = std::move(counts)](qint64 first, int n) {
        const QStringList texts = counts(first, n);
        QList<GroupRow> rows;
        rows.reserve(n);
        for (int i = 0; i < n; ++i)
            rows.append({m_names.at(first + i), texts.value(i)});
        return rows;
    });
    endResetModel();
}

void GroupRowModel::updateCounts()
{
    if (m_names.isEmpty())
        return;
    m_pages.invalidate();
    emit dataChanged(index(0), index(rowCount() - 1), {CountLabelRole, AccessibleLabelRole});
}

int GroupRowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

QVariant GroupRowModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case NameLabelRole:
        return m_names.at(index.row());
    case CountLabelRole:
        if (const GroupRow *row = m_pages.row(index.row()))
            return row->countText;
        return {};
    case AccessibleLabelRole:
        if (const GroupRow *row = m_pages.row(index.row()))
            return tr("%1, records: %2", "a group's name (or year) and its record count read out").arg(m_names.at(index.row()), row->countText);
        return m_names.at(index.row());
    default:
        return {};
    }
}

QHash<int, QByteArray> GroupRowModel::roleNames() const
{
    return {{NameLabelRole, "nameLabel"}, {CountLabelRole, "countLabel"}, {AccessibleLabelRole, "accessibleLabel"}};
}
