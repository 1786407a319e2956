#include "store/backup.h"

#include "store/keptfigures.h"
#include "store/store.h"
#include "store/translations.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QUrl>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Backup::Info;
using Backup::Paths;
using Backup::Progress;
using Backup::part;

// 1: the first backups; 2: a backup carries a checksum of its content.
constexpr int kFormat = 2;
constexpr int kBusyMilliseconds = 10000;
constexpr int kPagesPerStep = 512;
constexpr qint64 kRowsPerStep = 2000;
const QString kInfoTable = u"PlatterboxBackup"_s;
const QString kFilesTable = u"PlatterboxCoverFiles"_s;

// A backup's checksum is the SHA-256 of the whole file, taken with the checksum's own digits as
// zeros; it is kept in the description as "sha256:" and 64 hexadecimal digits.
const QByteArray kChecksumPrefix = QByteArrayLiteral("sha256:");
constexpr qsizetype kDigestDigits = 64;

const QString kTargetIsStore =
    u"%1 is the collection itself; choose another file for the backup."_s;
const QString kTargetIsSnapshot =
    u"%1 is among the snapshots kept for undoing imports; choose a file outside that folder for the backup."_s;

// One SQLite connection of our own, closed with the object.
class Connection
{
public:
    Connection() = default;
    ~Connection() { sqlite3_close_v2(m_db); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    Result<void> open(const QString &path, int flags)
    {
        if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, flags, nullptr) != SQLITE_OK)
            return error(u"Cannot open "_s + path);
        sqlite3_busy_timeout(m_db, kBusyMilliseconds);
        return {};
    }
    [[nodiscard]] sqlite3 *handle() const { return m_db; }
    [[nodiscard]] Error error(const QString &what) const
    {
        return Error{what + u": "_s + QString::fromUtf8(m_db ? sqlite3_errmsg(m_db) : "out of memory")};
    }
    Result<void> exec(const QString &sql) const
    {
        if (sqlite3_exec(m_db, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            return error(sql);
        return {};
    }

private:
    sqlite3 *m_db = nullptr;
};

// A prepared statement, finalized with the object.
class Statement
{
public:
    Statement(const Connection &db, const QString &sql)
    {
        if (sqlite3_prepare_v2(db.handle(), sql.toUtf8().constData(), -1, &m_stmt, nullptr) != SQLITE_OK)
            m_stmt = nullptr;
    }
    ~Statement() { sqlite3_finalize(m_stmt); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    [[nodiscard]] bool ok() const { return m_stmt != nullptr; }
    [[nodiscard]] sqlite3_stmt *handle() const { return m_stmt; }
    bool next() { return sqlite3_step(m_stmt) == SQLITE_ROW; }
    int step() { return sqlite3_step(m_stmt); }
    void bind(int i, const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        sqlite3_bind_text(m_stmt, i, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    }
    void bind(int i, const QByteArray &bytes) { sqlite3_bind_blob(m_stmt, i, bytes.constData(), int(bytes.size()), SQLITE_TRANSIENT); }
    [[nodiscard]] QString text(int column) const
    {
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(m_stmt, column)),
                                 sqlite3_column_bytes(m_stmt, column));
    }
    [[nodiscard]] qint64 integer(int column) const { return sqlite3_column_int64(m_stmt, column); }
    [[nodiscard]] QByteArray blob(int column) const
    {
        return QByteArray(static_cast<const char *>(sqlite3_column_blob(m_stmt, column)), sqlite3_column_bytes(m_stmt, column));
    }

private:
    sqlite3_stmt *m_stmt = nullptr;
};

Result<qint64> singleInteger(const Connection &db, const QString &sql)
{
    Statement q(db, sql);
    if (!q.ok() || !q.next())
        return db.error(sql);
    return q.integer(0);
}

bool keepGoing(const Progress &progress, qint64 done, qint64 total)
{
    return !progress || progress(done, total);
}

Error cancelled()
{
    return Error{u"Cancelled."_s};
}

// The cover file paths of every record, inside the documents folder and present on disk.
Result<QStringList> coverFilePaths(const Connection &db, const QString &documents)
{
    const QString folder = QDir(documents).absolutePath() + u'/';
    QStringList paths;
    for (const QString &column : {u"frontImagePath"_s, u"backImagePath"_s}) {
        Statement q(db, u"SELECT DISTINCT %1 FROM Vinyl WHERE %1 IS NOT NULL"_s.arg(column));
        if (!q.ok())
            return db.error(u"Cannot read the cover file names"_s);
        while (q.next()) {
            const QString path = QDir::cleanPath(q.text(0));
            if (path.startsWith(folder) && !paths.contains(path) && QFileInfo(path).isFile())
                paths.append(path);
        }
    }
    return paths;
}

Result<void> writeInfo(const Connection &db, const Info &info, const QByteArray &checksum)
{
    if (auto r = db.exec(u"CREATE TABLE %1 (key TEXT PRIMARY KEY, value TEXT)"_s.arg(kInfoTable)); !r)
        return r;
    Statement q(db, u"INSERT INTO %1 (key, value) VALUES (?, ?)"_s.arg(kInfoTable));
    const QList<std::pair<QString, QString>> rows = {
        {u"format"_s, QString::number(kFormat)},
        {u"created"_s, info.created.toUTC().toString(Qt::ISODateWithMs)},
        {u"kind"_s, info.kind},
        {u"source"_s, info.source},
        {u"records"_s, QString::number(info.records)},
        {u"coverFiles"_s, QString::number(info.coverFiles)},
        {u"documents"_s, info.documents},
        {u"checksum"_s, QString::fromLatin1(checksum)},
    };
    for (const auto &[key, value] : rows) {
        sqlite3_reset(q.handle());
        q.bind(1, key);
        q.bind(2, value);
        if (q.step() != SQLITE_DONE)
            return db.error(u"Cannot write the backup's description"_s);
    }
    return {};
}

Result<void> writeCoverFiles(const Connection &db, const QStringList &paths, const Progress &progress)
{
    if (auto r = db.exec(u"CREATE TABLE %1 (name TEXT PRIMARY KEY, bytes BLOB)"_s.arg(kFilesTable)); !r)
        return r;
    Statement q(db, u"INSERT OR REPLACE INTO %1 (name, bytes) VALUES (?, ?)"_s.arg(kFilesTable));
    for (qsizetype i = 0; i < paths.size(); ++i) {
        QFile file(paths.at(i));
        if (!file.open(QIODevice::ReadOnly))
            return Error{u"Cannot read the cover file %1: %2"_s.arg(paths.at(i), file.errorString())};
        sqlite3_reset(q.handle());
        q.bind(1, QFileInfo(paths.at(i)).fileName());
        q.bind(2, file.readAll());
        if (q.step() != SQLITE_DONE)
            return db.error(u"Cannot keep the cover file "_s + paths.at(i));
        if (!keepGoing(progress, i + 1, paths.size()))
            return cancelled();
    }
    return {};
}

// Copies the store into the open target connection, page by page.
Result<void> copyStore(const Connection &source, const Connection &target, const Progress &progress)
{
    sqlite3_backup *backup = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
    if (!backup)
        return target.error(u"Cannot start the backup"_s);
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, kPagesPerStep);
        const int total = sqlite3_backup_pagecount(backup);
        if (!keepGoing(progress, total - sqlite3_backup_remaining(backup), total)) {
            sqlite3_backup_finish(backup);
            return cancelled();
        }
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(50);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
    if (sqlite3_backup_finish(backup) != SQLITE_OK || rc != SQLITE_DONE)
        return target.error(u"Cannot copy the store"_s);
    return {};
}

// The mapped bytes of a file, unmapped with the object.
class MappedFile
{
public:
    explicit MappedFile(const QString &path) : m_file(path)
    {
        if (m_file.open(QIODevice::ReadOnly) && m_file.size() > 0)
            m_data = m_file.map(0, m_file.size());
    }
    [[nodiscard]] bool ok() const { return m_data != nullptr; }
    [[nodiscard]] QByteArrayView bytes() const { return {m_data, m_file.size()}; }

private:
    QFile m_file;
    uchar *m_data = nullptr;
};

// Where the checksum text ("sha256:" and its digits) stands in bytes; -1 when it is not there.
qsizetype checksumOffset(QByteArrayView bytes, QByteArrayView checksum)
{
    const auto found = std::search(bytes.begin(), bytes.end(),
                                   std::boyer_moore_horspool_searcher(checksum.begin(), checksum.end()));
    return found == bytes.end() ? -1 : qsizetype(found - bytes.begin());
}

// The checksum of bytes whose checksum text stands at offset.
QByteArray digestOf(QByteArrayView bytes, qsizetype offset)
{
    const qsizetype digits = offset + kChecksumPrefix.size();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(bytes.first(digits));
    hash.addData(QByteArray(kDigestDigits, '0'));
    hash.addData(bytes.sliced(digits + kDigestDigits));
    return kChecksumPrefix + hash.result().toHex();
}

// A checksum text no file holds yet, which the backup's own digest replaces once it is written.
QByteArray placeholderChecksum()
{
    QByteArray random(kDigestDigits / 2, Qt::Uninitialized);
    QRandomGenerator::system()->generate(random.begin(), random.end());
    return kChecksumPrefix + random.toHex();
}

// Puts the file's checksum in place of its placeholder.
Result<void> seal(const QString &path, const QByteArray &placeholder)
{
    QByteArray checksum;
    qsizetype offset = -1;
    {
        const MappedFile mapped(path);
        if (!mapped.ok())
            return Error{u"Cannot read back the backup %1"_s.arg(path)};
        offset = checksumOffset(mapped.bytes(), placeholder);
        if (offset < 0)
            return Error{u"Cannot find the checksum in the backup %1"_s.arg(path)};
        checksum = digestOf(mapped.bytes(), offset);
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(offset) || file.write(checksum) != checksum.size() || !file.flush())
        return Error{u"Cannot write the checksum of the backup %1: %2"_s.arg(path, file.errorString())};
    return {};
}

// Whether the file's content is what its checksum says; backups of the first format carry none.
Result<void> verify(const QString &path, const QString &checksum, int format)
{
    if (format < 2)
        return {};
    const QString name = QFileInfo(path).fileName();
    const QByteArray stored = checksum.toLatin1();
    if (!stored.startsWith(kChecksumPrefix) || stored.size() != kChecksumPrefix.size() + kDigestDigits)
        return Error{u"%1 is damaged: its checksum is missing."_s.arg(name)};
    const MappedFile mapped(path);
    if (!mapped.ok())
        return Error{u"Cannot read %1."_s.arg(name)};
    const qsizetype offset = checksumOffset(mapped.bytes(), stored);
    if (offset < 0 || digestOf(mapped.bytes(), offset) != stored)
        return Error{u"%1 is damaged: its content is not what it was when it was written (its checksum differs)."_s.arg(name)};
    return {};
}

QStringList tablesOf(const Connection &db, const QString &schema)
{
    QStringList tables;
    Statement q(db, u"SELECT name FROM %1.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%%' "
                    "AND name NOT IN ('%2', '%3') ORDER BY name"_s.arg(schema, kInfoTable, kFilesTable));
    while (q.ok() && q.next())
        tables.append(q.text(0));
    return tables;
}

QStringList columnsOf(const Connection &db, const QString &schema, const QString &table)
{
    QStringList columns;
    Statement q(db, u"PRAGMA %1.table_info(\"%2\")"_s.arg(schema, table));
    while (q.ok() && q.next())
        columns.append(q.text(1));
    return columns;
}

// The backup as this version's schema: the file itself when it is current, otherwise a migrated
// copy beside the store (removed with the returned object).
Result<std::unique_ptr<QTemporaryFile>> currentSchemaCopy(const QString &backupPath, const Info &info, const Paths &paths)
{
    if (info.schemaVersion == Store::kSchemaVersion)
        return std::unique_ptr<QTemporaryFile>();
    auto copy = std::make_unique<QTemporaryFile>(QFileInfo(paths.store).absolutePath() + u"/restore-XXXXXX.sqlite"_s);
    QFile source(backupPath);
    if (!copy->open() || !source.open(QIODevice::ReadOnly))
        return Error{u"Cannot make a working copy of the backup: "_s + copy->errorString()};
    while (!source.atEnd()) {
        const QByteArray chunk = source.read(1 << 20);
        if (chunk.isEmpty() || copy->write(chunk) != chunk.size())
            return Error{u"Cannot make a working copy of the backup: "_s + copy->errorString()};
    }
    copy->close();
    if (auto migrated = Store::open(copy->fileName()); !migrated)
        return Error{u"%1 is from an older version of Platterbox and cannot be brought up to date: %2"_s.arg(
            QFileInfo(backupPath).fileName(), migrated.errorMessage())};
    // The store left it in WAL mode: read back in that mode, it would leave its -wal and -shm
    // files behind when it goes.
    Connection plain;
    if (auto r = plain.open(copy->fileName(), SQLITE_OPEN_READWRITE); !r)
        return r.error();
    if (auto r = plain.exec(u"PRAGMA journal_mode = DELETE"_s); !r)
        return r.error();
    return copy;
}

Result<void> restoreCoverFiles(const Connection &db, const QString &documents, const Progress &progress)
{
    QDir().mkpath(documents);
    const qint64 total = singleInteger(db, u"SELECT count(*) FROM backup.%1"_s.arg(kFilesTable)).valueOr(0);
    Statement q(db, u"SELECT name, bytes FROM backup.%1"_s.arg(kFilesTable));
    qint64 done = 0;
    while (q.ok() && q.next()) {
        const QString name = QFileInfo(q.text(0)).fileName(); // never a path out of the folder
        const QString path = QDir(documents).filePath(name);
        const QByteArray bytes = q.blob(1);
        QFile existing(path);
        const bool same = existing.open(QIODevice::ReadOnly) && existing.size() == bytes.size() && existing.readAll() == bytes;
        if (!same) {
            QSaveFile out(path);
            if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size() || !out.commit())
                return Error{u"Cannot write the cover file %1: %2"_s.arg(path, out.errorString())};
        }
        if (!keepGoing(progress, ++done, total))
            return cancelled();
    }
    return {};
}

// Whether the attached backup holds every column of the store's tables it holds.
Result<void> checkColumns(const Connection &db, const QString &backupName)
{
    const QStringList backupTables = tablesOf(db, u"backup"_s);
    for (const QString &table : tablesOf(db, u"main"_s)) {
        if (!backupTables.contains(table))
            continue;
        const QStringList backupColumns = columnsOf(db, u"backup"_s, table);
        for (const QString &column : columnsOf(db, u"main"_s, table)) {
            if (!backupColumns.contains(column))
                return Error{u"%1 is not a Platterbox backup: its table %2 has no column %3."_s.arg(backupName, table, column)};
        }
    }
    return {};
}

// Copies every table of the store from the attached backup, rows with their identities, in
// slices so that progress is reported and a cancel is heard.
Result<void> copyTables(const Connection &db, const Progress &progress)
{
    // The kept figures are worked out afresh from the rows copied: with their triggers in place,
    // every row emptied and copied would be counted one at a time.
    for (const QString &sql : KeptFigures::dropped()) {
        if (auto r = db.exec(sql); !r)
            return r;
    }
    const QStringList tables = tablesOf(db, u"main"_s);
    const QStringList backupTables = tablesOf(db, u"backup"_s);
    qint64 total = 0;
    for (const QString &table : backupTables) {
        if (tables.contains(table))
            total += singleInteger(db, u"SELECT count(*) FROM backup.\"%1\""_s.arg(table)).valueOr(0);
    }
    qint64 done = 0;
    for (const QString &table : tables) {
        if (auto r = db.exec(u"DELETE FROM main.\"%1\""_s.arg(table)); !r)
            return r;
        if (!backupTables.contains(table))
            continue;
        QStringList columns;
        for (const QString &column : columnsOf(db, u"main"_s, table))
            columns.append(u'"' + column + u'"');
        const QString list = columns.join(u", "_s);
        Statement slice(db, u"INSERT INTO main.\"%1\" (rowid, %2) SELECT rowid, %2 FROM backup.\"%1\" "
                            "WHERE rowid > ? ORDER BY rowid LIMIT %3"_s.arg(table, list).arg(kRowsPerStep));
        Statement last(db, u"SELECT max(rowid) FROM main.\"%1\""_s.arg(table));
        if (!slice.ok() || !last.ok())
            return db.error(u"Cannot restore the table "_s + table);
        qint64 after = std::numeric_limits<qint64>::min();
        for (;;) {
            sqlite3_reset(slice.handle());
            sqlite3_bind_int64(slice.handle(), 1, after);
            if (slice.step() != SQLITE_DONE)
                return db.error(u"Cannot restore the table "_s + table);
            const int copied = sqlite3_changes(db.handle());
            if (copied == 0)
                break;
            done += copied;
            sqlite3_reset(last.handle());
            if (!last.next())
                return db.error(u"Cannot restore the table "_s + table);
            after = last.integer(0);
            if (!keepGoing(progress, done, total))
                return cancelled();
        }
    }
    for (const QString &sql : KeptFigures::schema()) {
        if (auto r = db.exec(sql); !r)
            return r;
    }
    return {};
}

Result<void> replacePathFolder(const Connection &db, const QString &from, const QString &to)
{
    for (const QString &column : {u"frontImagePath"_s, u"backImagePath"_s}) {
        Statement q(db, u"UPDATE main.Vinyl SET %1 = ?2 || substr(%1, length(?1) + 1) "
                        "WHERE substr(%1, 1, length(?1)) = ?1"_s.arg(column));
        if (!q.ok())
            return db.error(u"Cannot move the cover paths"_s);
        q.bind(1, QDir::cleanPath(from) + u'/');
        q.bind(2, QDir::cleanPath(to) + u'/');
        if (q.step() != SQLITE_DONE)
            return db.error(u"Cannot move the cover paths"_s);
    }
    return {};
}

// The records' cover paths follow their files from the folder the backup was made in to this
// data folder's documents. A path that then names anything but a file of the documents folder
// is dropped (the record keeps its small picture): a backup cannot lead a record to other files.
Result<void> movePaths(const Connection &db, const QString &from, const QString &to)
{
    if (!from.isEmpty() && QDir::cleanPath(from) != QDir::cleanPath(to)) {
        if (auto r = replacePathFolder(db, from, to); !r)
            return r;
    }
    for (const QString &column : {u"frontImagePath"_s, u"backImagePath"_s}) {
        Statement q(db, u"UPDATE main.Vinyl SET %1 = NULL WHERE %1 IS NOT NULL AND NOT ("
                        "substr(%1, 1, length(?1)) = ?1 AND instr(substr(%1, length(?1) + 1), '/') = 0 "
                        "AND substr(%1, length(?1) + 1) NOT IN ('', '.', '..'))"_s.arg(column));
        if (!q.ok())
            return db.error(u"Cannot check the cover paths"_s);
        q.bind(1, QDir::cleanPath(to) + u'/');
        if (q.step() != SQLITE_DONE)
            return db.error(u"Cannot check the cover paths"_s);
    }
    return {};
}

} // namespace

namespace Backup {

Progress part(const Progress &progress, double from, double to)
{
    if (!progress)
        return {};
    return [=](qint64 done, qint64 total) {
        const double fraction = total > 0 ? double(done) / double(total) : 1.0;
        return progress(qint64(1000 * (from + (to - from) * fraction)), 1000);
    };
}

Result<Info> write(const Paths &paths, const QString &target, Info info, bool coverFiles, const Progress &progress)
{
    Connection source;
    // Read as the store reads a read-only collection: without writing anything beside it.
    if (auto r = source.open(Store::readerUri(paths.store), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI); !r)
        return r.error();
    QStringList files;
    if (coverFiles) {
        auto found = coverFilePaths(source, paths.documents);
        if (!found)
            return found.error();
        files = *found;
    }
    const QString folder = QFileInfo(target).absolutePath();
    if (!QDir().mkpath(folder))
        return Error{u"Cannot make the folder "_s + folder};
    // Written beside the target and moved over it when complete.
    QTemporaryFile partial(folder + u"/.platterbox-backup-XXXXXX"_s);
    if (!partial.open())
        return Error{u"Cannot write in %1: %2"_s.arg(folder, partial.errorString())};
    partial.close();
    const QByteArray placeholder = placeholderChecksum();
    {
        Connection out;
        if (auto r = out.open(partial.fileName(), SQLITE_OPEN_READWRITE); !r)
            return r.error();
        const double storeShare = files.isEmpty() ? 1.0 : 0.6;
        if (auto r = copyStore(source, out, part(progress, 0.0, storeShare)); !r)
            return r.error();
        if (auto r = out.exec(u"PRAGMA journal_mode = DELETE"_s); !r)
            return r.error();
        auto records = singleInteger(out, u"SELECT count(*) FROM Vinyl"_s);
        auto version = singleInteger(out, u"PRAGMA user_version"_s);
        if (!records || !version)
            return records ? version.error() : records.error();
        info.records = *records;
        info.schemaVersion = int(*version);
        info.coverFiles = files.size();
        info.documents = QDir::cleanPath(QDir(paths.documents).absolutePath());
        if (!info.created.isValid())
            info.created = QDateTime::currentDateTimeUtc();
        if (auto r = out.exec(u"BEGIN"_s); !r)
            return r.error();
        if (auto r = writeInfo(out, info, placeholder); !r)
            return r.error();
        if (auto r = writeCoverFiles(out, files, part(progress, storeShare, 1.0)); !r)
            return r.error();
        if (auto r = out.exec(u"COMMIT"_s); !r)
            return r.error();
    }
    if (auto r = seal(partial.fileName(), placeholder); !r)
        return r.error();
    if (std::rename(QFile::encodeName(partial.fileName()).constData(), QFile::encodeName(target).constData()) != 0)
        return Error{u"Cannot write %1."_s.arg(target)};
    partial.setAutoRemove(false);
    return info;
}

Result<Info> backUp(const Paths &paths, const QString &target, const Progress &progress)
{
    const QFileInfo wanted(target);
    // The target may not exist yet, and its folder may be reached through a link.
    const QString folder = QFileInfo(wanted.absolutePath()).canonicalFilePath();
    const QString file = wanted.exists() ? wanted.canonicalFilePath()
                                         : (folder.isEmpty() ? wanted.absoluteFilePath() : folder + u'/' + wanted.fileName());
    const QString store = QFileInfo(paths.store).canonicalFilePath();
    for (const QString &suffix : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s}) {
        if (!store.isEmpty() && file == store + suffix)
            return Error{translated(kTargetIsStore).arg(target)};
    }
    const QString snapshots = QFileInfo(paths.snapshots).canonicalFilePath();
    if (!snapshots.isEmpty() && (file == snapshots || file.startsWith(snapshots + u'/')))
        return Error{translated(kTargetIsSnapshot).arg(target)};
    Info info;
    info.kind = u"backup"_s;
    return write(paths, target, info, true, progress);
}

Result<Info> describe(const QString &path)
{
    const Error notABackup{u"%1 is not a Platterbox backup."_s.arg(QFileInfo(path).fileName())};
    if (!QFileInfo(path).isFile())
        return Error{u"%1 is not a file."_s.arg(path)};
    Connection db;
    if (auto r = db.open(path, SQLITE_OPEN_READONLY); !r)
        return notABackup;
    Statement q(db, u"SELECT key, value FROM %1"_s.arg(kInfoTable));
    if (!q.ok())
        return notABackup;
    QHash<QString, QString> values;
    while (q.next())
        values.insert(q.text(0), q.text(1));
    const int format = values.value(u"format"_s).toInt();
    if (format < 1 || !tablesOf(db, u"main"_s).contains(u"Vinyl"_s))
        return notABackup;
    if (format > kFormat)
        return Error{u"%1 was written by a newer version of Platterbox."_s.arg(QFileInfo(path).fileName())};
    Info info;
    info.created = QDateTime::fromString(values.value(u"created"_s), Qt::ISODateWithMs).toLocalTime();
    info.kind = values.value(u"kind"_s);
    info.source = values.value(u"source"_s);
    info.records = values.value(u"records"_s).toLongLong();
    info.coverFiles = values.value(u"coverFiles"_s).toLongLong();
    info.documents = values.value(u"documents"_s);
    info.format = format;
    info.checksum = values.value(u"checksum"_s);
    info.schemaVersion = int(singleInteger(db, u"PRAGMA user_version"_s).valueOr(0));
    if (info.schemaVersion < 1)
        return notABackup;
    if (info.schemaVersion > Store::kSchemaVersion)
        return Error{u"%1 was written by a newer version of Platterbox (schema %2, this version knows %3)."_s
                         .arg(QFileInfo(path).fileName())
                         .arg(info.schemaVersion)
                         .arg(Store::kSchemaVersion)};
    return info;
}

Result<Info> inspect(const QString &path)
{
    auto info = describe(path);
    if (!info)
        return info;
    if (auto r = verify(path, info->checksum, info->format); !r)
        return r.error();
    Connection db;
    if (auto r = db.open(path, SQLITE_OPEN_READONLY); !r)
        return r.error();
    Statement check(db, u"PRAGMA integrity_check"_s);
    if (!check.ok() || !check.next() || check.text(0) != u"ok"_s)
        return Error{u"%1 is damaged (its integrity check fails)."_s.arg(QFileInfo(path).fileName())};
    return info;
}

Result<void> restore(const QString &backupPath, const Paths &paths, const Progress &progress)
{
    auto info = inspect(backupPath);
    if (!info)
        return info.error();
    auto copy = currentSchemaCopy(backupPath, *info, paths);
    if (!copy)
        return copy.error();
    const QString source = *copy ? (*copy)->fileName() : backupPath;

    Connection db;
    if (auto r = db.open(paths.store, SQLITE_OPEN_READWRITE | SQLITE_OPEN_URI); !r)
        return r.error();
    {
        Statement attach(db, u"ATTACH DATABASE ? AS backup"_s);
        attach.bind(1, QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath()).toString(QUrl::FullyEncoded) + u"?mode=ro"_s);
        if (!attach.ok() || attach.step() != SQLITE_DONE)
            return db.error(u"Cannot read the backup"_s);
    }
    if (auto r = checkColumns(db, QFileInfo(backupPath).fileName()); !r)
        return r;
    // Cover files first: if the store cannot be written they are only files nobody names yet.
    if (auto r = restoreCoverFiles(db, paths.documents, part(progress, 0.0, 0.2)); !r)
        return r;
    if (auto r = db.exec(u"BEGIN IMMEDIATE"_s); !r)
        return r;
    auto copied = copyTables(db, part(progress, 0.2, 1.0));
    if (copied)
        copied = movePaths(db, info->documents, paths.documents);
    if (copied)
        copied = db.exec(u"COMMIT"_s);
    if (!copied) {
        static_cast<void>(db.exec(u"ROLLBACK"_s));
        return copied;
    }
    static_cast<void>(db.exec(u"DETACH DATABASE backup"_s));
    return {};
}

Result<QStringList> namedCoverFiles(const QString &databasePath)
{
    Connection db;
    if (auto r = db.open(databasePath, SQLITE_OPEN_READONLY); !r)
        return r.error();
    QStringList names;
    Statement q(db, u"SELECT frontImagePath FROM Vinyl WHERE frontImagePath IS NOT NULL "
                    "UNION SELECT backImagePath FROM Vinyl WHERE backImagePath IS NOT NULL"_s);
    if (!q.ok())
        return db.error(u"Cannot read the cover file names"_s);
    while (q.next())
        names.append(QFileInfo(q.text(0)).fileName());
    return names;
}

} // namespace Backup
