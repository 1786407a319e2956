#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

// The five text lines and the cover of one record card, computed once when a list loads.
struct RecordCard
{
    qint64 rowId = 0;
    QString nameLabel;
    QString releaseDateLabel;
    QString producerLabel;
    QString costLabel;
    QString speedLabel;
    QString coverSource;
};

// The record cards a list screen shows, in the order shown.
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

    void setCards(QList<RecordCard> cards);
    void removeCard(int row);
    [[nodiscard]] const QList<RecordCard> &cards() const { return m_cards; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<RecordCard> m_cards;
};
