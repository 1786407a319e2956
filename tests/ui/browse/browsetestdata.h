#pragma once

#include "browse/recordcardmodel.h"
#include "store/store.h"

#include <QAbstractItemModel>
#include <QDate>
#include <QDateTime>
#include <QStringList>
#include <QTime>

// Small helpers shared by the browse tests.

// A local date and time, as the collector entered it.
inline QDateTime localDate(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute));
}

// A record with a name and whatever the test sets; stored, so it has its rowId.
struct RecordBuilder
{
    Vinyl v;
    explicit RecordBuilder(const QString &name) { v.name = name; v.imagesLoaded = true; }
    RecordBuilder &artist(const QString &s) { v.artist = s; return *this; }
    RecordBuilder &label(const QString &s) { v.recordLabel = s; return *this; }
    RecordBuilder &producer(const QString &s) { v.producer = s; return *this; }
    RecordBuilder &date(const QDateTime &d) { v.releaseDate = d; return *this; }
    RecordBuilder &value(float value, qint16 quantity) { v.value = value; v.quantity = quantity; return *this; }
    RecordBuilder &cost(float c) { v.cost = c; return *this; }
    RecordBuilder &speed(const QString &s) { v.recordSpeed = s; return *this; }
    RecordBuilder &type(const QString &s) { v.doubleAlbum = s; return *this; }
    RecordBuilder &duration(double minutes) { v.albumDuration = minutes; return *this; }
    Vinyl store(Store &store)
    {
        (void)store.insert(v);
        return v;
    }
};

// The values of one role, top to bottom.
inline QStringList column(const QAbstractItemModel &model, const QByteArray &role)
{
    const int roleId = model.roleNames().key(role, -1);
    QStringList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.data(model.index(row, 0), roleId).toString());
    return values;
}

// The album names of the cards shown ("Album: X  Artist: Y" -> X).
inline QStringList albumNames(const QAbstractItemModel &model)
{
    QStringList names;
    for (const QString &label : column(model, "nameLabel")) {
        QString rest = label.section(QStringLiteral("  Artist: "), 0, 0);
        names.append(rest.mid(rest.indexOf(QLatin1Char(':')) + 1).trimmed());
    }
    return names;
}
