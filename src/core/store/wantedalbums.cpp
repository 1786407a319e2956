#include "store/wantedalbums.h"

#include "store/store.h"
#include "store/storedvalue.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

// The columns of Wanted in the order values are bound and read; the covers come last.
const QString kColumns = u"name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                         "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                         "frontImagePath, backImagePath, barcode, musicBrainzReleaseId, maxPrice, priority"_s;
const QString kCovers = u"frontImage, backImage"_s;
// Read after the row identity and the 20 columns above.
constexpr int kFrontColumn = 21;


QVariantList values(const WantedAlbum &w)
{
    const Vinyl &v = w.album;
    return {storedValue(v.name),          storedValue(v.artist),        storedValue(v.releaseDate),    storedValue(v.recordLabel),
            storedValue(v.producer),      storedValue(v.quantity),      storedValue(v.albumDuration),  storedValue(v.vinylCondition),
            storedValue(v.coverCondition), storedValue(v.recordSpeed),  storedValue(v.doubleAlbum),    storedValue(v.cost),
            storedValue(v.value),         storedValue(v.notes),         storedValue(v.frontImagePath), storedValue(v.backImagePath),
            storedValue(v.barcode),       storedValue(v.musicBrainzReleaseId), storedValue(w.maxPrice), w.priority};
}

std::optional<QString> text(const QSqlQuery &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<QString>(q.value(i).toString());
}

template<typename T>
std::optional<T> number(const QSqlQuery &q, int i)
{
    if (q.isNull(i))
        return std::nullopt;
    if constexpr (std::is_floating_point_v<T>)
        return T(q.value(i).toDouble());
    else
        return T(q.value(i).toLongLong());
}

WantedAlbum read(const QSqlQuery &q, bool withImages)
{
    WantedAlbum w;
    w.rowId = q.value(0).toLongLong();
    Vinyl &v = w.album;
    int i = 1;
    v.name = text(q, i++);
    v.artist = text(q, i++);
    if (const auto ms = number<qint64>(q, i++))
        v.releaseDate = QDateTime::fromMSecsSinceEpoch(*ms);
    v.recordLabel = text(q, i++);
    v.producer = text(q, i++);
    v.quantity = number<qint16>(q, i++);
    v.albumDuration = number<double>(q, i++);
    v.vinylCondition = text(q, i++);
    v.coverCondition = text(q, i++);
    v.recordSpeed = text(q, i++);
    v.doubleAlbum = text(q, i++);
    v.cost = number<float>(q, i++);
    v.value = number<float>(q, i++);
    v.notes = text(q, i++);
    v.frontImagePath = text(q, i++);
    v.backImagePath = text(q, i++);
    v.barcode = text(q, i++);
    v.musicBrainzReleaseId = text(q, i++);
    w.maxPrice = number<float>(q, i++);
    w.priority = number<qint16>(q, i++).value_or(2);
    if (withImages) {
        v.frontImage = q.isNull(kFrontColumn) ? std::nullopt : std::optional(q.value(kFrontColumn).toByteArray());
        v.backImage = q.isNull(kFrontColumn + 1) ? std::nullopt : std::optional(q.value(kFrontColumn + 1).toByteArray());
    }
    v.imagesLoaded = withImages;
    return w;
}

Result<QSqlQuery> run(const Store &store, const QString &sql, const QVariantList &bound, const QString &what)
{
    QSqlQuery q(store.database());
    q.setForwardOnly(true);
    if (!q.prepare(sql))
        return Error{what + u": "_s + q.lastError().text()};
    for (const QVariant &value : bound)
        q.addBindValue(value);
    if (!q.exec())
        return Error{what + u": "_s + q.lastError().text()};
    return q;
}

Result<void> insertTracks(Store &store, qint64 rowId, const QList<Track> &tracks)
{
    for (const Track &t : tracks) {
        auto q = run(store, u"INSERT INTO WantedTracks (wantedRowId, trackNumber, song, writtenBy, duration) "
                             "VALUES (?, ?, ?, ?, ?)"_s,
                     {rowId, storedValue(t.trackNumber), storedValue(t.song), storedValue(t.writtenBy), storedValue(t.duration)},
                     u"Cannot save the wanted album's tracks"_s);
        if (!q)
            return q.error();
    }
    return {};
}

} // namespace

namespace WantedAlbums {

Result<void> insert(Store &store, WantedAlbum &wanted, const QList<Track> &tracks)
{
    return store.transaction([&]() -> Result<void> {
        QVariantList bound = values(wanted);
        bound << storedValue(wanted.album.frontImage) << storedValue(wanted.album.backImage);
        auto q = run(store, u"INSERT INTO Wanted (%1, %2) VALUES (%3)"_s.arg(kColumns, kCovers, u"?, "_s.repeated(21) + u'?'),
                     bound, u"Cannot add the album to the wantlist"_s);
        if (!q)
            return q.error();
        wanted.rowId = q->lastInsertId().toLongLong();
        return insertTracks(store, wanted.rowId, tracks);
    });
}

Result<void> update(Store &store, const WantedAlbum &wanted)
{
    return store.transaction([&]() -> Result<void> {
        QString assignments = kColumns;
        assignments.replace(u", "_s, u" = ?, "_s).append(u" = ?"_s);
        QVariantList bound = values(wanted);
        if (wanted.album.imagesLoaded) {
            assignments += u", frontImage = ?, backImage = ?"_s;
            bound << storedValue(wanted.album.frontImage) << storedValue(wanted.album.backImage);
        }
        bound << wanted.rowId;
        auto q = run(store, u"UPDATE Wanted SET %1 WHERE rowid = ?"_s.arg(assignments), bound,
                     u"Cannot save the wanted album"_s);
        return q ? Result<void>{} : Result<void>{q.error()};
    });
}

Result<void> addTracks(Store &store, qint64 rowId, const QList<Track> &tracks)
{
    return store.transaction([&]() { return insertTracks(store, rowId, tracks); });
}

Result<void> remove(Store &store, qint64 rowId)
{
    return store.transaction([&]() -> Result<void> {
        for (const QString &sql : {u"DELETE FROM WantedTracks WHERE wantedRowId = ?"_s, u"DELETE FROM Wanted WHERE rowid = ?"_s}) {
            if (auto q = run(store, sql, {rowId}, u"Cannot take the album off the wantlist"_s); !q)
                return q.error();
        }
        return {};
    });
}

Result<std::optional<WantedAlbum>> byRowId(const Store &store, qint64 rowId, bool withImages)
{
    const QString columns = withImages ? kColumns + u", "_s + kCovers : kColumns;
    auto q = run(store, u"SELECT rowid, %1 FROM Wanted WHERE rowid = ?"_s.arg(columns), {rowId},
                 u"Cannot read the wanted album"_s);
    if (!q)
        return q.error();
    if (!q->next())
        return std::optional<WantedAlbum>();
    return std::optional<WantedAlbum>(read(*q, withImages));
}

Result<QList<WantedAlbum>> all(const Store &store)
{
    auto q = run(store, u"SELECT rowid, %1 FROM Wanted ORDER BY priority, artist, name, rowid"_s.arg(kColumns), {},
                 u"Cannot read the wantlist"_s);
    if (!q)
        return q.error();
    QList<WantedAlbum> list;
    while (q->next())
        list.append(read(*q, false));
    return list;
}

Result<QList<Track>> tracks(const Store &store, qint64 rowId)
{
    auto q = run(store, u"SELECT rowid, trackNumber, song, writtenBy, duration FROM WantedTracks "
                         "WHERE wantedRowId = ? ORDER BY trackNumber, rowid"_s,
                 {rowId}, u"Cannot read the wanted album's tracks"_s);
    if (!q)
        return q.error();
    QList<Track> list;
    while (q->next()) {
        Track t;
        t.rowId = q->value(0).toLongLong();
        t.trackNumber = number<qint16>(*q, 1);
        t.song = text(*q, 2);
        t.writtenBy = text(*q, 3);
        t.duration = number<double>(*q, 4);
        list.append(t);
    }
    return list;
}

Result<qint64> count(const Store &store)
{
    auto q = run(store, u"SELECT count(*) FROM Wanted"_s, {}, u"Cannot read the wantlist"_s);
    if (!q)
        return q.error();
    return q->next() ? q->value(0).toLongLong() : 0;
}

} // namespace WantedAlbums
