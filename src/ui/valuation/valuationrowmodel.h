#pragma once

#include "collection/valuation.h"
#include "store/entities.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

#include <optional>

// The valuation table: one row per record, in the order fetched. A row's texts are made the
// first time the view asks for them, so a long collection opens at the cost of its fetch.
class ValuationRowModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the valuation screen")

public:
    enum Roles {
        RowIdRole = Qt::UserRole + 1,
        Label1Role,
        Label2Role,
        Label3Role,
        Label4Role,
        Label5Role,
        CoverSourceRole,
    };

    explicit ValuationRowModel(QObject *parent = nullptr);

    void setRecords(QList<Vinyl> records);
    [[nodiscard]] const QList<Vinyl> &records() const { return m_records; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Vinyl> m_records;
    mutable QList<std::optional<Valuation::RowTexts>> m_texts;
};
