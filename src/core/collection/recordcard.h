#pragma once

#include <QString>

// The five text lines of one record card; its cover is the record's own (by rowId).
struct RecordCard
{
    qint64 rowId = 0;
    QString nameLabel;
    QString releaseDateLabel;
    QString producerLabel;
    QString costLabel;
    QString speedLabel;
};
