#pragma once

#include "collection/recordcard.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

// The record cards a list screen shows, in the order shown. Cards come either whole or
// from a lookup by record index, so that a long list makes only the cards that get shown.
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
    };

    explicit RecordCardModel(QObject *parent = nullptr);

    // The card of a record index; the reference must stay valid until the next setCards.
    using CardLookup = std::function<const RecordCard &(int record)>;

    void setCards(QList<RecordCard> cards);
    // Shows the records at these indices, in this order, with cards from lookup.
    void setCards(QList<int> records, CardLookup lookup);
    void removeCard(int row);
    // The card of a shown row; an empty card outside the rows.
    [[nodiscard]] RecordCard card(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<RecordCard> m_ownCards;
    QList<int> m_records;
    CardLookup m_lookup;
};
