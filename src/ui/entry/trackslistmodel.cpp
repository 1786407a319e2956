#include "entry/trackslistmodel.h"

TracksListModel::TracksListModel(QObject *parent)
    : QAbstractListModel(parent)
{
}

int TracksListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant TracksListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const TrackRow &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case SongLabelRole:
        return row.songLabel;
    case RowIdRole:
        return row.rowId;
    case TrackNumberLabelRole:
        return row.trackNumberLabel;
    case DurationLabelRole:
        return row.durationLabel;
    case WrittenByLabelRole:
        return row.writtenByLabel;
    case AccessibleLabelRole: {
        QStringList parts{row.trackNumberLabel, row.songLabel, row.durationLabel, row.writtenByLabel};
        parts.removeAll(QString());
        return parts.join(tr(", ", "between the parts of a track read out"));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> TracksListModel::roleNames() const
{
    return {{RowIdRole, "rowId"},
            {SongLabelRole, "songLabel"},
            {TrackNumberLabelRole, "trackNumberLabel"},
            {DurationLabelRole, "durationLabel"},
            {WrittenByLabelRole, "writtenByLabel"},
            {AccessibleLabelRole, "accessibleLabel"}};
}

void TracksListModel::setRows(QList<TrackRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void TracksListModel::removeRowAt(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}
