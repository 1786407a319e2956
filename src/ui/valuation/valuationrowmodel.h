#pragma once

#include "collection/pagecache.h"
#include "collection/valuation.h"
#include "store/entities.h"

#include <QAbstractListModel>
#include <QList>
#include <optional>
#include <QtQml/qqmlregistration.h>

// The valuation table: one row per record, in the list's order, read from the store a page at
// a time as the view asks for rows; a page's texts are made when it is read.
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
        // The row as one sentence for a screen reader: album, artist, label, date and value.
        AccessibleLabelRole,
    };

    // A row's record (card attributes only) and its texts.
    struct Row
    {
        Vinyl record;
        Valuation::RowTexts texts;
    };
    // Records first .. first + n - 1 of the list.
    using RecordReader = std::function<QList<Vinyl>(qint64 first, int n)>;

    explicit ValuationRowModel(QObject *parent = nullptr);

    void setRecords(qint64 rows, RecordReader reader);
    // The record of a row; nullopt outside the rows.
    [[nodiscard]] std::optional<Vinyl> record(int row) const;
    // Rows read from the store since the model was made.
    [[nodiscard]] qint64 rowsRead() const { return m_pages.rowsRead(); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    mutable PageCache<Row> m_pages;
};
