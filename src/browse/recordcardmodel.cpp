#include "recordcardmodel.h"

RecordCardModel::RecordCardModel(QObject *parent) : QAbstractListModel(parent) {}

void RecordCardModel::setCards(QList<RecordCard> cards)
{
    beginResetModel();
    m_cards = std::move(cards);
    endResetModel();
}

void RecordCardModel::removeCard(int row)
{
    if (row < 0 || row >= m_cards.size())
        return;
    beginRemoveRows({}, row, row);
    m_cards.removeAt(row);
    endRemoveRows();
}

int RecordCardModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_cards.size());
}

QVariant RecordCardModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const RecordCard &card = m_cards.at(index.row());
    switch (role) {
    case RowIdRole:
        return card.rowId;
    case Qt::DisplayRole:
    case NameLabelRole:
        return card.nameLabel;
    case ReleaseDateLabelRole:
        return card.releaseDateLabel;
    case ProducerLabelRole:
        return card.producerLabel;
    case CostLabelRole:
        return card.costLabel;
    case SpeedLabelRole:
        return card.speedLabel;
    case CoverSourceRole:
        return card.coverSource;
    default:
        return {};
    }
}

QHash<int, QByteArray> RecordCardModel::roleNames() const
{
    return {
        {RowIdRole, "rowId"},
        {NameLabelRole, "nameLabel"},
        {ReleaseDateLabelRole, "releaseDateLabel"},
        {ProducerLabelRole, "producerLabel"},
        {CostLabelRole, "costLabel"},
        {SpeedLabelRole, "speedLabel"},
        {CoverSourceRole, "coverSource"},
    };
}
