#include "floors.h"

#include "bench.h"

#include "store/store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <vector>

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

// What an import writes of a record, its covers apart, and of a track.
const char *const kVinylColumns = "id, name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                                  "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                                  "frontImagePath, backImagePath, barcode, musicBrainzReleaseId, nameFolded, "
                                  "artistFolded, recordLabelFolded";
const char *const kTrackColumns = "vinylID, trackNumber, song, writtenBy, duration";
constexpr int kValueColumn = 13; // of kVinylColumns
const char *const kInsertQuote = "INSERT INTO Quotes (vinylRowId, quoted, value, source) VALUES (?, ?, ?, 'Import')";

// "?,?,?" for n parameters.
QByteArray parameters(int n)
{
    QByteArray list;
    for (int i = 0; i < n; ++i)
        list += i == 0 ? "?" : ",?";
    return list;
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

// The records' and tracks' attributes of a store, as SQLite values, to be written again: the
// same texts, numbers and dates, so that each index takes its entries where the real ones go.
struct SourceRows
{
    Q_DISABLE_COPY_MOVE(SourceRows)
    explicit SourceRows(const QString &storeFile)
    {
        sqlite3 *db = openFile(storeFile, SQLITE_OPEN_READONLY);
        readAll(db, QByteArray("SELECT ") + kVinylColumns + " FROM Vinyl ORDER BY rowid", vinyl);
        readAll(db, QByteArray("SELECT ") + kTrackColumns + " FROM Tracks ORDER BY rowid", tracks);
        sqlite3_close(db);
    }
    ~SourceRows()
    {
        for (auto *rows : {&vinyl, &tracks}) {
            for (const auto &row : *rows)
                std::for_each(row.begin(), row.end(), sqlite3_value_free);
        }
    }
    static void readAll(sqlite3 *db, const QByteArray &sql, std::vector<std::vector<sqlite3_value *>> &rows)
    {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(db, sql.constData(), -1, &statement, nullptr);
        while (statement && sqlite3_step(statement) == SQLITE_ROW) {
            std::vector<sqlite3_value *> &row = rows.emplace_back();
            for (int c = 0; c < sqlite3_column_count(statement); ++c)
                row.push_back(sqlite3_value_dup(sqlite3_column_value(statement, c)));
        }
        sqlite3_finalize(statement);
    }
    std::vector<std::vector<sqlite3_value *>> vinyl;
    std::vector<std::vector<sqlite3_value *>> tracks;
};

// Binds a source row to the first parameters, then the given bytes to the next `covers` ones.
void bindRow(sqlite3_stmt *statement, const std::vector<sqlite3_value *> &row, const QByteArray &cover = {}, int covers = 2)
{
    int parameter = 0;
    for (sqlite3_value *value : row)
        sqlite3_bind_value(statement, ++parameter, value);
    if (!cover.isEmpty()) {
        for (int side = 0; side < covers; ++side)
            sqlite3_bind_blob(statement, ++parameter, cover.constData(), int(cover.size()), SQLITE_STATIC);
    }
}

void stepAndReset(sqlite3_stmt *statement)
{
    sqlite3_step(statement);
    sqlite3_reset(statement);
}

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

double insert(const QString &folder, const QString &sourceStoreFile, const QByteArray &cover, int runs)
{
    const SourceRows source(sourceStoreFile);
    // An imported cover is kept as its own exchange encoding too.
    const QByteArray insertVinyl = QByteArray("INSERT INTO Vinyl (") + kVinylColumns
                                   + ", frontImage, backImage, frontImageExchange, backImageExchange) VALUES ("
                                   + parameters(26) + ")";
    const QByteArray insertTrack = QByteArray("INSERT INTO Tracks (") + kTrackColumns + ") VALUES (" + parameters(5) + ")";
    int round = 0;
    QString path;
    return medianMs(
        runs,
        [&] {
            sqlite3 *db = openFile(path, SQLITE_OPEN_READWRITE);
            sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
            sqlite3_stmt *vinyl = nullptr, *quote = nullptr, *track = nullptr;
            sqlite3_prepare_v2(db, insertVinyl.constData(), -1, &vinyl, nullptr);
            sqlite3_prepare_v2(db, kInsertQuote, -1, &quote, nullptr);
            sqlite3_prepare_v2(db, insertTrack.constData(), -1, &track, nullptr);
            const qint64 now = QDateTime::currentMSecsSinceEpoch();
            for (const auto &row : source.vinyl) {
                bindRow(vinyl, row, cover, 4);
                stepAndReset(vinyl);
                // An imported record with a value gets the first quote of its value history.
                sqlite3_value *value = row[kValueColumn];
                if (sqlite3_value_double(value) != 0) {
                    sqlite3_bind_int64(quote, 1, sqlite3_last_insert_rowid(db));
                    sqlite3_bind_int64(quote, 2, now);
                    sqlite3_bind_value(quote, 3, value);
                    stepAndReset(quote);
                }
            }
            for (const auto &row : source.tracks) {
                bindRow(track, row);
                stepAndReset(track);
            }
            sqlite3_finalize(vinyl);
            sqlite3_finalize(quote);
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

double update(const QString &storeFile, const QString &sourceStoreFile, const QByteArray &cover, int runs)
{
    const SourceRows source(sourceStoreFile);
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
    const QByteArray setVinyl = QByteArray("UPDATE Vinyl SET (") + kVinylColumns + ", frontImage, backImage) = ("
                                + parameters(24) + ") WHERE rowid = ?25";
    const QByteArray setTrack = QByteArray("UPDATE Tracks SET (") + kTrackColumns + ") = (" + parameters(5) + ") WHERE rowid = ?6";
    const double ms = medianMs(runs, [&] {
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        sqlite3_stmt *vinyl = nullptr, *track = nullptr;
        sqlite3_prepare_v2(db, setVinyl.constData(), -1, &vinyl, nullptr);
        sqlite3_prepare_v2(db, setTrack.constData(), -1, &track, nullptr);
        for (qsizetype i = 0; i < vinylRows.size() && i < qsizetype(source.vinyl.size()); ++i) {
            bindRow(vinyl, source.vinyl[i], cover);
            sqlite3_bind_int64(vinyl, 25, vinylRows[i]);
            stepAndReset(vinyl);
        }
        for (qsizetype i = 0; i < trackRows.size() && i < qsizetype(source.tracks.size()); ++i) {
            bindRow(track, source.tracks[i]);
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
