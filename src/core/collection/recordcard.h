#pragma once

#include <QString>
#include <QStringList>

// The five text lines of one record card, and its row's cells in the table (see
// CollectionList::tableColumns()); its cover is the record's own (by rowId).
struct RecordCard
{
    qint64 rowId = 0;
    QString nameLabel;
    QString releaseDateLabel;
    QString producerLabel;
    QString costLabel;
    QString speedLabel;
    QStringList cells;
};
