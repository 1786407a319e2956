#include "floors.h"

#include "bench.h"

#include "store/store.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace Floors {

namespace {

// Steps through a prepared statement, touching every column once.
qint64 drain(sqlite3_stmt *statement)
{
    qint64 sink = 0;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int c = 0; c < columns; ++c) {
            switch (sqlite3_column_type(statement, c)) {
            case SQLITE_INTEGER: sink += sqlite3_column_int64(statement, c); break;
            case SQLITE_FLOAT: sink += qint64(sqlite3_column_double(statement, c)); break;
            case SQLITE_TEXT: sink += sqlite3_column_bytes(statement, c) + (sqlite3_column_text(statement, c) ? 1 : 0); break;
            case SQLITE_BLOB: sink += sqlite3_column_bytes(statement, c) + (sqlite3_column_blob(statement, c) ? 1 : 0); break;
            default: break;
            }
        }
    }
    return sink;
}

sqlite3 *openFile(const QString &path, int flags)
{
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(path.toUtf8().constData(), &db, flags, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        return nullptr;
    }
    // As the store's own connections are set up.
    sqlite3_exec(db, "PRAGMA synchronous = NORMAL; PRAGMA temp_store = MEMORY; PRAGMA cache_size = -32768", nullptr, nullptr, nullptr);
    return db;
}

void bindRecordFields(sqlite3_stmt *vinyl, int r, const QByteArray &cover)
{
    sqlite3_bind_int(vinyl, 1, r);
    for (int c : {2, 3, 5, 6, 9, 10, 11, 12, 15})
        sqlite3_bind_text(vinyl, c, "Some text value", -1, SQLITE_STATIC);
    sqlite3_bind_int64(vinyl, 4, 157766400000LL + r);
    sqlite3_bind_int(vinyl, 7, 1);
    for (int c : {8, 13, 14})
        sqlite3_bind_double(vinyl, c, 12.5);
    if (!cover.isEmpty()) {
        sqlite3_bind_blob(vinyl, 20, cover.constData(), int(cover.size()), SQLITE_STATIC);
        sqlite3_bind_blob(vinyl, 21, cover.constData(), int(cover.size()), SQLITE_STATIC);
    }
}

void bindTrackFields(sqlite3_stmt *track, int r, int t)
{
    sqlite3_bind_int(track, 1, r);
    sqlite3_bind_int(track, 2, t);
    sqlite3_bind_text(track, 3, "A song title", -1, SQLITE_STATIC);
    sqlite3_bind_text(track, 4, "A writer", -1, SQLITE_STATIC);
    sqlite3_bind_double(track, 5, 3.45);
}

void stepAndReset(sqlite3_stmt *statement)
{
    sqlite3_step(statement);
    sqlite3_reset(statement);
}

const char *const kVinylColumns = "id, name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                                  "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                                  "frontImagePath, backImagePath, barcode, musicBrainzReleaseId, frontImage, backImage";

} // namespace

double select(const QString &storeFile, const QString &sql, int runs, Open open)
{
    const QByteArray query = sql.toUtf8();
    volatile qint64 sink = 0;
    auto run = [&](sqlite3 *db) {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db, query.constData(), -1, &statement, nullptr);
        sink = sink + drain(statement);
        sqlite3_finalize(statement);
    };
    if (open == Open::Timed) {
        return medianMs(runs, [&] {
            sqlite3 *db = openFile(storeFile, SQLITE_OPEN_READONLY);
            run(db);
            sqlite3_close(db);
        });
    }
    sqlite3 *db = openFile(storeFile, SQLITE_OPEN_READONLY);
    if (!db)
        return 0;
    const double ms = medianMs(runs, [&] { run(db); });
    sqlite3_close(db);
    return ms;
}

double insert(const QString &folder, int records, int tracks, const QByteArray &cover, int runs)
{
    int round = 0;
    QString path;
    return medianMs(
        runs,
        [&] {
            sqlite3 *db = openFile(path, SQLITE_OPEN_READWRITE);
            sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
            sqlite3_stmt *vinyl = nullptr, *track = nullptr;
            sqlite3_prepare_v2(db, QByteArray(QByteArray("INSERT INTO Vinyl (") + kVinylColumns + ") VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)").constData(),
                               -1, &vinyl, nullptr);
            sqlite3_prepare_v2(db, "INSERT INTO Tracks (vinylID, trackNumber, song, writtenBy, duration) VALUES (?,?,?,?,?)",
                               -1, &track, nullptr);
            for (int r = 1; r <= records; ++r) {
                bindRecordFields(vinyl, r, cover);
                stepAndReset(vinyl);
                for (int t = 1; t <= tracks; ++t) {
                    bindTrackFields(track, r, t);
                    stepAndReset(track);
                }
            }
            sqlite3_finalize(vinyl);
            sqlite3_finalize(track);
            sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
            sqlite3_close(db);
        },
        [&] {
            // An empty store with the real tables and indexes, made untimed.
            path = QDir(folder).filePath(QStringLiteral("floor-%1.sqlite").arg(round++));
            QFile::remove(path);
            (void)Store::open(path);
        });
}

double update(const QString &storeFile, const QByteArray &cover, int runs)
{
    sqlite3 *db = openFile(storeFile, SQLITE_OPEN_READWRITE);
    if (!db)
        return 0;
    QList<qint64> vinylRows, trackRows;
    for (auto [sql, rows] : {std::pair{"SELECT rowid FROM Vinyl", &vinylRows}, std::pair{"SELECT rowid FROM Tracks", &trackRows}}) {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db, sql, -1, &statement, nullptr);
        while (sqlite3_step(statement) == SQLITE_ROW)
            rows->append(sqlite3_column_int64(statement, 0));
        sqlite3_finalize(statement);
    }
    QByteArray setVinyl("UPDATE Vinyl SET (");
    setVinyl += kVinylColumns;
    setVinyl += ") = (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?) WHERE rowid = ?22";
    const double ms = medianMs(runs, [&] {
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_stmt *vinyl = nullptr, *track = nullptr;
        sqlite3_prepare_v2(db, setVinyl.constData(), -1, &vinyl, nullptr);
        sqlite3_prepare_v2(db, "UPDATE Tracks SET (vinylID, trackNumber, song, writtenBy, duration) = (?,?,?,?,?) WHERE rowid = ?6",
                           -1, &track, nullptr);
        for (qsizetype i = 0; i < vinylRows.size(); ++i) {
            bindRecordFields(vinyl, int(i + 1), cover);
            sqlite3_bind_int64(vinyl, 22, vinylRows[i]);
            stepAndReset(vinyl);
        }
        for (qsizetype i = 0; i < trackRows.size(); ++i) {
            bindTrackFields(track, int(i / 20 + 1), int(i % 20 + 1));
            sqlite3_bind_int64(track, 6, trackRows[i]);
            stepAndReset(track);
        }
        sqlite3_finalize(vinyl);
        sqlite3_finalize(track);
        sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    });
    sqlite3_close(db);
    return ms;
}

double writeFile(const QString &path, const QByteArray &bytes, int runs)
{
    return medianMs(runs, [&] {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    });
}

double readFile(const QString &path, int runs)
{
    volatile qint64 sink = 0;
    return medianMs(runs, [&] {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            sink = sink + file.readAll().size();
    });
}

} // namespace Floors
