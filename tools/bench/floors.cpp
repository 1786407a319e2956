#include "floors.h"

#include "bench.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace Floors {

double select(const QString &storeFile, const QString &sql, int runs)
{
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(storeFile.toUtf8().constData(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        sqlite3_close(db);
        return 0;
    }
    const QByteArray query = sql.toUtf8();
    volatile qint64 sink = 0;
    const double ms = medianMs(runs, [&] {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db, query.constData(), -1, &statement, nullptr);
        const int columns = sqlite3_column_count(statement);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int c = 0; c < columns; ++c) {
                switch (sqlite3_column_type(statement, c)) {
                case SQLITE_INTEGER: sink = sink + sqlite3_column_int64(statement, c); break;
                case SQLITE_FLOAT: sink = sink + qint64(sqlite3_column_double(statement, c)); break;
                case SQLITE_TEXT: sink = sink + sqlite3_column_bytes(statement, c) + (sqlite3_column_text(statement, c) ? 1 : 0); break;
                case SQLITE_BLOB: sink = sink + sqlite3_column_bytes(statement, c) + (sqlite3_column_blob(statement, c) ? 1 : 0); break;
                default: break;
                }
            }
        }
        sqlite3_finalize(statement);
    });
    sqlite3_close(db);
    return ms;
}

double insert(const QString &folder, int records, int tracks, const QByteArray &cover, int runs)
{
    int round = 0;
    return medianMs(runs, [&] {
        const QString path = QDir(folder).filePath(QStringLiteral("floor-%1.sqlite").arg(round++));
        QFile::remove(path);
        sqlite3 *db = nullptr;
        sqlite3_open(path.toUtf8().constData(), &db);
        sqlite3_exec(db, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;"
                         "CREATE TABLE Vinyl (id INTEGER, name TEXT, artist TEXT, releaseDate INTEGER, recordLabel TEXT, "
                         "producer TEXT, quantity INTEGER, albumDuration REAL, vinylCondition TEXT, coverCondition TEXT, "
                         "recordSpeed TEXT, doubleAlbum TEXT, cost REAL, value REAL, notes TEXT, frontImagePath TEXT, "
                         "backImagePath TEXT, frontImage BLOB, backImage BLOB);"
                         "CREATE TABLE Tracks (vinylID INTEGER, trackNumber INTEGER, song TEXT, writtenBy TEXT, duration REAL);",
                     nullptr, nullptr, nullptr);
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_stmt *vinyl = nullptr, *track = nullptr;
        sqlite3_prepare_v2(db, "INSERT INTO Vinyl VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)", -1, &vinyl, nullptr);
        sqlite3_prepare_v2(db, "INSERT INTO Tracks VALUES (?,?,?,?,?)", -1, &track, nullptr);
        for (int r = 1; r <= records; ++r) {
            sqlite3_bind_int(vinyl, 1, r);
            for (int c : {2, 3, 5, 6, 9, 10, 11, 12, 15})
                sqlite3_bind_text(vinyl, c, "Some text value", -1, SQLITE_STATIC);
            sqlite3_bind_int64(vinyl, 4, 157766400000LL + r);
            sqlite3_bind_int(vinyl, 7, 1);
            for (int c : {8, 13, 14})
                sqlite3_bind_double(vinyl, c, 12.5);
            if (!cover.isEmpty()) {
                sqlite3_bind_blob(vinyl, 18, cover.constData(), int(cover.size()), SQLITE_STATIC);
                sqlite3_bind_blob(vinyl, 19, cover.constData(), int(cover.size()), SQLITE_STATIC);
            }
            sqlite3_step(vinyl);
            sqlite3_reset(vinyl);
            for (int t = 1; t <= tracks; ++t) {
                sqlite3_bind_int(track, 1, r);
                sqlite3_bind_int(track, 2, t);
                sqlite3_bind_text(track, 3, "A song title", -1, SQLITE_STATIC);
                sqlite3_bind_text(track, 4, "A writer", -1, SQLITE_STATIC);
                sqlite3_bind_double(track, 5, 3.45);
                sqlite3_step(track);
                sqlite3_reset(track);
            }
        }
        sqlite3_finalize(vinyl);
        sqlite3_finalize(track);
        sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
        sqlite3_close(db);
    });
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
