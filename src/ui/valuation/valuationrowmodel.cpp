#include "valuation/valuationrowmodel.h"

#include "shell/coverimageprovider.h"

ValuationRowModel::ValuationRowModel(QObject *parent) : QAbstractListModel(parent) {}

void ValuationRowModel::setRecords(QList<Vinyl> records)
{
    beginResetModel();
    m_records = std::move(records);
    m_texts.clear();
    m_texts.resize(m_records.size());
    endResetModel();
}

int ValuationRowModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

QVariant ValuationRowModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Vinyl &vinyl = m_records.at(index.row());
    if (role == RowIdRole)
        return vinyl.rowId;
    if (role == CoverSourceRole)
        return CoverImageProvider::source(vinyl.rowId);

    std::optional<Valuation::RowTexts> &texts = m_texts[index.row()];
    if (!texts)
        texts = Valuation::rowTexts(vinyl);
    switch (role) {
    case Qt::DisplayRole:
    case Label1Role: return texts->name;
    case Label2Role: return texts->artist;
    case Label3Role: return texts->recordLabel;
    case Label4Role: return texts->released;
    case Label5Role: return texts->value;
    default: return {};
    }
}

QHash<int, QByteArray> ValuationRowModel::roleNames() const
{
    return {
        {RowIdRole, "rowId"},   {Label1Role, "label1"}, {Label2Role, "label2"},           {Label3Role, "label3"},
        {Label4Role, "label4"}, {Label5Role, "label5"}, {CoverSourceRole, "coverSource"},
    };
}
