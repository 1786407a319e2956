#pragma once

#include "collection/pagecache.h"
#include "collection/recordcard.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

// The record cards a list screen shows, in the order shown. Cards come whole, from a lookup
// by record index, or a page at a time from the store (setPages), so that a long list reads
// and makes only the cards that get shown.
class RecordCardModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Record cards belong to their list screen")

public:
    enum Roles {
        RowIdRole = Qt::UserRole + 1,
        NameLabelRole,
        ReleaseDateLabelRole,
        ProducerLabelRole,
        CostLabelRole,
        SpeedLabelRole,
        CoverSourceRole,
        // The row's texts in the table, column by column.
        CellsRole,
        // "Lent to Sam since Mar 3, 2026"; empty when the record is in.
        LoanLabelRole,
        // What the card's cover says of it: "On Loan", "Overdue" or nothing.
        LoanBadgeRole,
        LoanOverdueRole,
        // The whole card as one sentence for a screen reader: album, date, producer, cost,
        // speed and the loan.
        AccessibleLabelRole,
    };

    explicit RecordCardModel(QObject *parent = nullptr);

    // The card of a record index; the reference must stay valid until the next setCards.
    using CardLookup = std::function<const RecordCard &(int record)>;

    void setCards(QList<RecordCard> cards);
    // Shows the records at these indices, in this order, with cards from lookup.
    void setCards(QList<int> records, CardLookup lookup);
    // rows cards, read a page at a time by reader as the view asks for them.
    void setPages(qint64 rows, PageCache<RecordCard>::Reader reader);
    void removeCard(int row);
    struct LoanMark
    {
        QString label;
        bool overdue = false;
        bool operator==(const LoanMark &) const = default;
    };
    // What the cards of the records lent out say of it, by row identity.
    void setLoanMarks(QHash<qint64, LoanMark> marks);
    // The card of a shown row; an empty card outside the rows.
    [[nodiscard]] RecordCard card(int row) const;

    // Cards read from the store since the model was made (paged lists only).
    [[nodiscard]] qint64 cardsRead() const { return m_pages.rowsRead(); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<RecordCard> m_ownCards;
    QList<int> m_records;
    CardLookup m_lookup;
    bool m_paged = false;
    mutable PageCache<RecordCard> m_pages;
    QHash<qint64, LoanMark> m_loanMarks;
};
