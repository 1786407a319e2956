#include "valuation/valuationrowmodel.h"

#include "shell/coverimageprovider.h"

ValuationRowModel::ValuationRowModel(QObject *parent) : QAbstractListModel(parent) {}

void ValuationRowModel::setRecords(qint64 rows, RecordReader reader)
{
    beginResetModel();
    m_pages.reset(rows, [reader = std::move(reader), captions = RecordCaptions::translatedNow()](qint64 first, int n) {
        QList<Row> rows;
        const QList<Vinyl> records = reader(first, n);
        rows.reserve(records.size());
        for (const Vinyl &vinyl : records)
            rows.append({vinyl, Valuation::rowTexts(vinyl, captions)});
        return rows;
    });
    endResetModel();
}

std::optional<Vinyl> ValuationRowModel::record(int row) const
{
    const Row *found = m_pages.row(row);
    return found ? std::optional<Vinyl>(found->record) : std::nullopt;
}

int ValuationRowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_pages.size());
}

QVariant ValuationRowModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row *row = m_pages.row(index.row());
    if (!row)
        return {};
    switch (role) {
    case RowIdRole: return row->record.rowId;
    case CoverSourceRole: return CoverImageProvider::source(row->record.rowId);
    case Qt::DisplayRole:
    case Label1Role: return row->texts.name;
    case Label2Role: return row->texts.artist;
    case Label3Role: return row->texts.recordLabel;
    case Label4Role: return row->texts.released;
    case Label5Role: return row->texts.value;
    case AccessibleLabelRole: {
        QStringList parts{row->texts.name, row->texts.artist, row->texts.recordLabel, row->texts.released, row->texts.value};
        parts.removeAll(QString());
        return parts.join(tr(", ", "between the parts of a valuation row read out"));
    }
    default: return {};
    }
}

QHash<int, QByteArray> ValuationRowModel::roleNames() const
{
    return {
        {RowIdRole, "rowId"},   {Label1Role, "label1"}, {Label2Role, "label2"},           {Label3Role, "label3"},
        {Label4Role, "label4"}, {Label5Role, "label5"}, {CoverSourceRole, "coverSource"},
        {AccessibleLabelRole, "accessibleLabel"},
    };
}
