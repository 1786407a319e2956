#include "browse/recordcardmodel.h"

#include "shell/coverimageprovider.h"
#include "store/translations.h"

#include <numeric>

using namespace Qt::StringLiterals;

RecordCardModel::RecordCardModel(QObject *parent) : QAbstractListModel(parent) {}

void RecordCardModel::setCards(QList<RecordCard> cards)
{
    beginResetModel();
    m_paged = false;
    m_pages.reset(0, {});
    m_ownCards = std::move(cards);
    m_records.resize(m_ownCards.size());
    std::iota(m_records.begin(), m_records.end(), 0);
    m_lookup = [this](int record) -> const RecordCard & { return m_ownCards.at(record); };
    endResetModel();
}

void RecordCardModel::setCards(QList<int> records, CardLookup lookup)
{
    beginResetModel();
    m_paged = false;
    m_pages.reset(0, {});
    m_ownCards.clear();
    m_records = std::move(records);
    m_lookup = std::move(lookup);
    endResetModel();
}

void RecordCardModel::setPages(qint64 rows, PageCache<RecordCard>::Reader reader)
{
    beginResetModel();
    m_paged = true;
    m_ownCards.clear();
    m_records.clear();
    m_lookup = {};
    m_pages.reset(rows, std::move(reader));
    endResetModel();
}

void RecordCardModel::removeCard(int row)
{
    if (m_paged) {
        if (row < 0 || row >= m_pages.size())
            return;
        beginRemoveRows({}, row, row);
        m_pages.remove(row);
        endRemoveRows();
        return;
    }
    if (row < 0 || row >= m_records.size())
        return;
    beginRemoveRows({}, row, row);
    m_records.removeAt(row);
    endRemoveRows();
}

RecordCard RecordCardModel::card(int row) const
{
    if (m_paged) {
        const RecordCard *card = m_pages.row(row);
        return card ? *card : RecordCard();
    }
    if (row < 0 || row >= m_records.size())
        return {};
    return m_lookup(m_records.at(row));
}

void RecordCardModel::setLoanMarks(QHash<qint64, LoanMark> marks)
{
    if (marks == m_loanMarks)
        return;
    m_loanMarks = std::move(marks);
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), {LoanLabelRole, LoanBadgeRole, LoanOverdueRole});
}

int RecordCardModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_paged ? int(m_pages.size()) : int(m_records.size());
}

QVariant RecordCardModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const RecordCard card = this->card(index.row());
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
        return CoverImageProvider::source(card.rowId);
    case CellsRole:
        return card.cells;
    case LoanLabelRole:
        return m_loanMarks.value(card.rowId).label;
    case LoanOverdueRole:
        return m_loanMarks.value(card.rowId).overdue;
    case AccessibleLabelRole: {
        QStringList parts;
        // A card's lines space their parts twice, which a reader need not hear.
        for (const QString &line : {card.nameLabel, card.releaseDateLabel, card.producerLabel, card.costLabel,
                                    card.speedLabel, m_loanMarks.value(card.rowId).label}) {
            if (!line.trimmed().isEmpty())
                parts.append(line.simplified());
        }
        return parts.join(tr(", ", "between the parts of a record card read out"));
    }
    case LoanBadgeRole: {
        const auto mark = m_loanMarks.constFind(card.rowId);
        if (mark == m_loanMarks.cend())
            return QString();
        return translated(mark->overdue ? QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Overdue")) : QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "On Loan")));
    }
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
        {CellsRole, "cells"},
        {LoanLabelRole, "loanLabel"},
        {LoanBadgeRole, "loanBadge"},
        {LoanOverdueRole, "loanOverdue"},
        {AccessibleLabelRole, "accessibleLabel"},
    };
}
