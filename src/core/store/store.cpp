#include "store/store.h"
#include "store/storedvalue.h"

#include "store/keptfigures.h"
#include "store/translations.h"

#include <QAtomicInteger>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QSqlDriver>
#include <QTimeZone>
#include <QUrl>
#include <QUrlQuery>

#include <sqlite3.h>

#include <mutex>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Text, Integer, Real, Date, Blob };

struct Column
{
    QString name;
    Kind kind;
};

// Column order of each table. The BLOBs come last so that the other columns of a row sit
// before any overflow pages and list fetches never touch the image bytes.
const QList<Column> &vinylColumns()
{
    static const QList<Column> columns = {
        {u"id"_s, Kind::Integer},           {u"name"_s, Kind::Text},
        {u"artist"_s, Kind::Text},          {u"releaseDate"_s, Kind::Date},
        {u"recordLabel"_s, Kind::Text},     {u"producer"_s, Kind::Text},
        {u"quantity"_s, Kind::Integer},     {u"albumDuration"_s, Kind::Real},
        {u"vinylCondition"_s, Kind::Text},  {u"coverCondition"_s, Kind::Text},
        {u"recordSpeed"_s, Kind::Text},     {u"doubleAlbum"_s, Kind::Text},
        {u"cost"_s, Kind::Real},            {u"value"_s, Kind::Real},
        {u"notes"_s, Kind::Text},           {u"frontImagePath"_s, Kind::Text},
        {u"backImagePath"_s, Kind::Text},   {u"barcode"_s, Kind::Text},
        {u"musicBrainzReleaseId"_s, Kind::Text}, {u"frontImage"_s, Kind::Blob},
        {u"backImage"_s, Kind::Blob},
    };
    return columns;
}
constexpr int kVinylColumnsWithoutImages = 19;

const QList<Column> &trackColumns()
{
    static const QList<Column> columns = {
        {u"vinylID"_s, Kind::Integer}, {u"trackNumber"_s, Kind::Integer}, {u"song"_s, Kind::Text},
        {u"writtenBy"_s, Kind::Text},  {u"duration"_s, Kind::Real},
    };
    return columns;
}

const QList<Column> &conditionColumns()
{
    static const QList<Column> columns = {{u"condition"_s, Kind::Text}};
    return columns;
}

const QList<Column> &columnsOf(Entity entity)
{
    switch (entity) {
    case Entity::Vinyl: return vinylColumns();
    case Entity::Tracks: return trackColumns();
    case Entity::VinylCondition:
    case Entity::CoverCondition: return conditionColumns();
    }
    return conditionColumns();
}

const Column *findColumn(Entity entity, const QString &attribute)
{
    for (const Column &c : columnsOf(entity)) {
        if (c.name == attribute)
            return &c;
    }
    return nullptr;
}

Error sqlError(const QString &what, const QSqlError &error)
{
    return Error{what + u": "_s + error.text()};
}

// Values travel as QVariant; dates are stored as milliseconds since the epoch so that they
// compare and sort as numbers.
QVariant toStored(Kind kind, const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return QVariant();
    if (kind == Kind::Date && value.metaType() == QMetaType::fromType<QDateTime>())
        return value.toDateTime().toMSecsSinceEpoch();
    return value;
}


// Reads go straight through SQLite's C API on the store's own connection: a list fetch of
// the whole collection is the hottest path of the app, and per-value QVariants cost more
// than the query itself.
class Statement
{
public:
    // A kept statement is the store's and is only reset when done with; any other is finalized.
    enum Ownership { Own, Kept, Released };
    explicit Statement(sqlite3_stmt *statement, Ownership ownership = Own)
        : m_statement(statement), m_ownership(ownership)
    {
    }
    ~Statement()
    {
        if (m_ownership == Kept) {
            sqlite3_reset(m_statement);
            sqlite3_clear_bindings(m_statement);
        } else if (m_ownership == Own) {
            sqlite3_finalize(m_statement);
        }
    }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    bool next() { return sqlite3_step(m_statement) == SQLITE_ROW; }
    [[nodiscard]] bool isNull(int i) const { return sqlite3_column_type(m_statement, i) == SQLITE_NULL; }
    [[nodiscard]] qint64 integer(int i) const { return sqlite3_column_int64(m_statement, i); }
    [[nodiscard]] double real(int i) const { return sqlite3_column_double(m_statement, i); }
    [[nodiscard]] QString string(int i) const
    {
        const auto *data = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, i));
        const int size = sqlite3_column_bytes(m_statement, i);
        return size > 0 ? QString::fromUtf8(data, size) : QString(u""_s);
    }
    [[nodiscard]] QByteArray blob(int i) const
    {
        const void *data = sqlite3_column_blob(m_statement, i);
        const int size = sqlite3_column_bytes(m_statement, i);
        return QByteArray(static_cast<const char *>(data), size);
    }

    [[nodiscard]] sqlite3_stmt *handle() const { return m_statement; }
    // Hands the statement over to the caller, who finalizes it.
    void release() { m_ownership = Released; }

private:
    sqlite3_stmt *m_statement;
    Ownership m_ownership;
};

std::optional<QString> readText(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<QString>(q.string(i));
}
std::optional<qint16> readInt16(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<qint16>(qint16(q.integer(i)));
}
std::optional<double> readDouble(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<double>(q.real(i));
}
std::optional<float> readFloat(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<float>(float(q.real(i)));
}
std::optional<QDateTime> readDate(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<QDateTime>(QDateTime::fromMSecsSinceEpoch(q.integer(i)));
}
std::optional<QByteArray> readBlob(const Statement &q, int i)
{
    return q.isNull(i) ? std::nullopt : std::optional<QByteArray>(q.blob(i));
}

QString tableName(Entity entity)
{
    return entityName(entity);
}

QString columnList(Entity entity, bool includeImages)
{
    QStringList names{u"rowid"_s};
    const auto &columns = columnsOf(entity);
    const int n = (entity == Entity::Vinyl && !includeImages) ? kVinylColumnsWithoutImages : int(columns.size());
    for (int i = 0; i < n; ++i)
        names << u'"' + columns[i].name + u'"';
    return names.join(u", "_s);
}

// Store::kTotalValue as SQL, written as its index holds it so the index yields the order.
const QString kTotalValueExpression = u"ifnull(quantity, 0) * ifnull(value, 0)"_s;

struct BuiltQuery
{
    QString sql;
    QVariantList values;
};

// holds(text, part): whether text holds part, as instr(text, part) > 0 answers, for a search.
// It looks for part's bytes with the standard library's search, where instr compares at every
// character: a search keystroke over a large collection takes a quarter less. Both texts are
// UTF-8, in which no character starts inside another's bytes, so a match of bytes is one of
// characters. An absent text holds nothing.
void holdsFunction(sqlite3_context *context, int, sqlite3_value **arguments)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(arguments[0]));
    const auto *part = reinterpret_cast<const char *>(sqlite3_value_text(arguments[1]));
    const bool holds = text && part
        && std::string_view(text, size_t(sqlite3_value_bytes(arguments[0])))
                   .find(std::string_view(part, size_t(sqlite3_value_bytes(arguments[1])))) != std::string_view::npos;
    sqlite3_result_int(context, holds ? 1 : 0);
}

Result<BuiltQuery> buildSelect(const FetchRequest &request, const QString &selection, bool withOrder)
{
    BuiltQuery built;
    built.sql = u"SELECT "_s + selection + u" FROM \""_s + tableName(request.entity) + u'"';
    QStringList conditions;
    for (const Predicate &p : request.predicates) {
        const Column *column = findColumn(request.entity, p.attribute);
        if (!column)
            return Error{u"Unknown attribute "_s + p.attribute + u" of "_s + entityName(request.entity)};
        const QVariant value = toStored(column->kind, p.value);
        const QString quoted = u'"' + column->name + u'"';
        if (value.isNull()) {
            // Comparing with an absent value: only equality is meaningful.
            conditions << (p.op == Predicate::Op::Equal ? quoted + u" IS NULL"_s : u"0"_s);
            continue;
        }
        if (p.op == Predicate::Op::Contains) {
            if (request.entity != Entity::Vinyl || !Store::kSearchedAttributes.contains(column->name))
                return Error{u"No search index for "_s + p.attribute + u" of "_s + entityName(request.entity)};
            // Both sides folded, so any letter matches its other cases; an empty text is in every
            // present value.
            conditions << u"holds(\""_s + Store::foldedColumn(column->name) + u"\", ?)"_s;
            built.values << Store::folded(value.toString());
            continue;
        }
        const char *op = p.op == Predicate::Op::Equal ? " = ?" : p.op == Predicate::Op::GreaterOrEqual ? " >= ?" : " < ?";
        conditions << quoted + QLatin1StringView(op);
        built.values << value;
    }
    if (!conditions.isEmpty())
        built.sql += u" WHERE "_s + conditions.join(u" AND "_s);
    if (withOrder) {
        QStringList order;
        const auto direction = [&](bool ascending) { return ascending != request.reversed ? u" ASC"_s : u" DESC"_s; };
        for (const SortKey &key : request.sortKeys) {
            if (request.entity == Entity::Vinyl && key.attribute == Store::kTotalValue) {
                order << kTotalValueExpression + direction(key.ascending);
                continue;
            }
            if (key.attribute == Store::kAddedOrder) {
                order << u"rowid"_s + direction(key.ascending);
                continue;
            }
            const Column *column = findColumn(request.entity, key.attribute);
            if (!column)
                return Error{u"Unknown sort attribute "_s + key.attribute + u" of "_s + entityName(request.entity)};
            order << u'"' + column->name + u'"' + direction(key.ascending);
            // The folded text follows its attribute (equal texts fold equally, so the order is
            // the same): the attribute's index holds both, and the row identity comes next in it.
            if (request.entity == Entity::Vinyl && Store::kSearchedAttributes.contains(column->name))
                order << u'"' + Store::foldedColumn(column->name) + u'"' + direction(key.ascending);
        }
        // Ties go by row identity in the first key's direction, so each order reads one index
        // either way: forwards, or backwards when reversed or descending.
        if (!order.isEmpty())
            built.sql += u" ORDER BY "_s + order.join(u", "_s) + u", rowid"_s + direction(request.sortKeys.first().ascending);
        if (request.limit > 0 || request.offset > 0)
            built.sql += u" LIMIT "_s + QString::number(request.limit > 0 ? request.limit : -1);
        if (request.offset > 0)
            built.sql += u" OFFSET "_s + QString::number(request.offset);
    }
    return built;
}

QString cardColumnList()
{
    QStringList names{u"rowid"_s};
    for (const QString &attribute : Store::kCardAttributes)
        names << u'"' + attribute + u'"';
    return names.join(u", "_s);
}

// The columns of cardColumnList(), in its order.
Vinyl readCardVinyl(const Statement &q)
{
    Vinyl v;
    v.rowId = q.integer(0);
    v.name = readText(q, 1);
    v.artist = readText(q, 2);
    v.releaseDate = readDate(q, 3);
    v.recordLabel = readText(q, 4);
    v.producer = readText(q, 5);
    v.quantity = readInt16(q, 6);
    v.albumDuration = readDouble(q, 7);
    v.recordSpeed = readText(q, 8);
    v.doubleAlbum = readText(q, 9);
    v.cost = readFloat(q, 10);
    v.value = readFloat(q, 11);
    v.cardAttributesOnly = true;
    return v;
}

Vinyl readVinyl(const Statement &q, bool includeImages)
{
    Vinyl v;
    v.rowId = q.integer(0);
    v.id = readInt16(q, 1);
    v.name = readText(q, 2);
    v.artist = readText(q, 3);
    v.releaseDate = readDate(q, 4);
    v.recordLabel = readText(q, 5);
    v.producer = readText(q, 6);
    v.quantity = readInt16(q, 7);
    v.albumDuration = readDouble(q, 8);
    v.vinylCondition = readText(q, 9);
    v.coverCondition = readText(q, 10);
    v.recordSpeed = readText(q, 11);
    v.doubleAlbum = readText(q, 12);
    v.cost = readFloat(q, 13);
    v.value = readFloat(q, 14);
    v.notes = readText(q, 15);
    v.frontImagePath = readText(q, 16);
    v.backImagePath = readText(q, 17);
    v.barcode = readText(q, 18);
    v.musicBrainzReleaseId = readText(q, 19);
    if (includeImages) {
        v.frontImage = readBlob(q, 20);
        v.backImage = readBlob(q, 21);
    }
    v.imagesLoaded = includeImages;
    return v;
}

QVariantList vinylValues(const Vinyl &v, bool includeImages)
{
    QVariantList values{storedValue(v.id),          storedValue(v.name),           storedValue(v.artist),
                        storedValue(v.releaseDate), storedValue(v.recordLabel),    storedValue(v.producer),
                        storedValue(v.quantity),    storedValue(v.albumDuration),  storedValue(v.vinylCondition),
                        storedValue(v.coverCondition), storedValue(v.recordSpeed), storedValue(v.doubleAlbum),
                        storedValue(v.cost),        storedValue(v.value),          storedValue(v.notes),
                        storedValue(v.frontImagePath), storedValue(v.backImagePath), storedValue(v.barcode),
                        storedValue(v.musicBrainzReleaseId)};
    if (includeImages)
        values << storedValue(v.frontImage) << storedValue(v.backImage);
    return values;
}

// The case-folded texts the searches read, in the order of Store::kSearchedAttributes; written
// with every save, after the columns of vinylValues().
QVariantList foldedValues(const Vinyl &v)
{
    QVariantList values;
    for (const std::optional<QString> *text : {&v.name, &v.artist, &v.recordLabel})
        values << (*text ? QVariant(Store::folded(**text)) : QVariant());
    return values;
}

QVariantList trackValues(const Track &t)
{
    return {storedValue(t.vinylID), storedValue(t.trackNumber), storedValue(t.song), storedValue(t.writtenBy), storedValue(t.duration)};
}

// The attributes the lists are ordered by; each has an index, read either way (see migrate()).
const QStringList kListOrders = {u"name"_s, u"artist"_s, u"recordLabel"_s, u"releaseDate"_s};

QString listOrderIndex(const QString &order)
{
    return u"VinylBy"_s + order.at(0).toUpper() + order.mid(1);
}

// The table's further orders, by attribute or expression; an index each.
const QList<std::pair<QString, QString>> kTableOrders = {
    {u"recordSpeed"_s, u"recordSpeed"_s},
    {u"quantity"_s, u"quantity"_s},
    {u"value"_s, u"value"_s},
    {Store::kTotalValue, u'(' + kTotalValueExpression + u')'},
};

QStringList tableOrderNames()
{
    QStringList names;
    for (const auto &order : kTableOrders)
        names << order.first;
    return names;
}

QAtomicInteger<quint64> s_connectionCounter;
QAtomicInt s_busyTimeoutMs = Store::kBusyTimeoutMs;

sqlite3 *connectionOf(const QSqlDatabase &db);

bool isBusy(int rc)
{
    return (rc & 0xff) == SQLITE_BUSY || (rc & 0xff) == SQLITE_LOCKED;
}

// Whether path may be written by this user, and by anyone at all: the superuser may write
// every file, but a store whose file or folder grants no one a write was made read-only on
// purpose (a copy kept safe, a folder shared to look at).
bool writable(const QFileInfo &info)
{
    return info.isWritable() && (info.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther));
}

// Why the store at filePath cannot be changed: SQLite keeps its journal beside the store, so
// the folder must be writable as well as the files; empty when everything is.
QString readOnlyReasonOf(const QString &filePath)
{
    const QFileInfo store(filePath);
    if (!writable(QFileInfo(store.absolutePath())))
        return translated(Store::kReadOnlyFolder).arg(QDir::toNativeSeparators(store.absolutePath()));
    for (const QString &path : QStringList{filePath, filePath + u"-wal"_s, filePath + u"-shm"_s}) {
        const QFileInfo file(path);
        if (file.exists() && !writable(file))
            return translated(Store::kReadOnlyFile).arg(QDir::toNativeSeparators(file.absoluteFilePath()));
    }
    return {};
}

} // namespace

QString entityName(Entity entity)
{
    switch (entity) {
    case Entity::Vinyl: return u"Vinyl"_s;
    case Entity::Tracks: return u"Tracks"_s;
    case Entity::VinylCondition: return u"VinylCondition"_s;
    case Entity::CoverCondition: return u"CoverCondition"_s;
    }
    return {};
}

Store::Store(QString connectionName, QString filePath)
    : m_connectionName(std::move(connectionName)), m_filePath(std::move(filePath))
{
}

Store::~Store()
{
    for (sqlite3_stmt *statement : std::as_const(m_statements))
        sqlite3_finalize(statement);
    m_statements.clear();
    {
        QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
        if (db.isOpen())
            db.close();
    }
    QSqlDatabase::removeDatabase(m_connectionName);
}

QSqlDatabase Store::database() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

Result<std::unique_ptr<Store>> Store::open(const QString &filePath)
{
    // SQLite counts every allocation under a lock unless told otherwise before it starts (a call
    // after that changes nothing); the store never asks for the counts, and a save allocates
    // several times for every value it writes.
    static std::once_flag uncounted;
    std::call_once(uncounted, [] { sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0); });
    const QString name = u"platterbox-store-"_s + QString::number(++s_connectionCounter);
    std::unique_ptr<Store> store(new Store(name, filePath));
    QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
    const QString readOnly = filePath == u":memory:"_s ? QString() : readOnlyReasonOf(filePath);
    if (!readOnly.isEmpty() && !QFileInfo::exists(filePath))
        return Error{u"Cannot make the store "_s + filePath + u": "_s + readOnly};
    bool writeRefused = false;
    auto connected = store->connect(readOnly, &writeRefused);
    // A disk that refuses the first write (mounted read-only, say) opens the store read-only.
    if (writeRefused)
        connected = store->connect(translated(kReadOnlyRefused).arg(QDir::toNativeSeparators(filePath)), nullptr);
    if (!connected)
        return connected.error();
    if (auto r = store->migrate(); !r)
        return r.error();
    return store;
}

Result<void> Store::connect(const QString &readOnlyReason, bool *writeRefused)
{
    QSqlDatabase db = database();
    m_handle = nullptr;
    if (db.isOpen())
        db.close();
    m_readOnlyReason = readOnlyReason;
    if (isReadOnly()) {
        configureReader(db, m_filePath);
    } else {
        db.setDatabaseName(m_filePath);
        db.setConnectOptions();
    }
    if (!db.open())
        return sqlError(u"Cannot open the store "_s + m_filePath, db.lastError());
    sqlite3 *handle = connectionOf(db);
    if (!handle)
        return Error{u"Cannot open the store "_s + m_filePath};
    m_handle = handle;
    sqlite3_busy_timeout(handle, s_busyTimeoutMs.loadRelaxed());
    if (sqlite3_create_function(handle, "holds", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr,
                                holdsFunction, nullptr, nullptr)
        != SQLITE_OK)
        return Error{u"Cannot open the store "_s + m_filePath + u": "_s + QString::fromUtf8(sqlite3_errmsg(handle))};
    // A write that fires the kept figures' triggers inside a longer transaction keeps a statement
    // journal; in a temporary file that costs dozens of system calls per record imported. The
    // writer's page cache (32 MB at most, 2 MB by default) holds the list indexes of a large
    // collection, so an import does not write each index page out again and again.
    const char *pragmas = isReadOnly()
        ? "PRAGMA foreign_keys = OFF; PRAGMA temp_store = MEMORY"
        : "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = OFF; "
          "PRAGMA temp_store = MEMORY; PRAGMA cache_size = -32768";
    const int rc = sqlite3_exec(handle, pragmas, nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK)
        return {};
    if (writeRefused)
        *writeRefused = (rc & 0xff) == SQLITE_READONLY;
    return Error{u"Cannot open the store "_s + m_filePath + u": "_s + QString::fromUtf8(sqlite3_errmsg(handle))};
}

void Store::setBusyTimeout(int milliseconds)
{
    s_busyTimeoutMs.storeRelaxed(milliseconds);
}

QString Store::readerUri(const QString &filePath)
{
    if (filePath == u":memory:"_s)
        return filePath;
    // SQLite reads a store in WAL mode through an index file it makes beside the store. Where
    // that cannot be made and is not there, no program can be changing the store either, and it
    // is read as a file that does not change.
    const QFileInfo store(filePath);
    const bool indexPossible = writable(QFileInfo(store.absolutePath()))
                               || (QFileInfo::exists(filePath + u"-wal"_s) && QFileInfo::exists(filePath + u"-shm"_s));
    QUrlQuery query;
    query.addQueryItem(u"mode"_s, u"ro"_s);
    if (!indexPossible)
        query.addQueryItem(u"immutable"_s, u"1"_s);
    QUrl url = QUrl::fromLocalFile(store.absoluteFilePath());
    url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}

void Store::configureReader(QSqlDatabase &db, const QString &filePath)
{
    db.setDatabaseName(readerUri(filePath));
    db.setConnectOptions(u"QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"_s);
}

Result<void> Store::checkWritable() const
{
    if (isReadOnly())
        return readOnlyError();
    return {};
}

Result<void> Store::exec(const QString &sql) const
{
    QSqlQuery q(database());
    if (!q.exec(sql))
        return sqlError(sql, q.lastError());
    return {};
}

Result<void> Store::migrate()
{
    QSqlQuery q(database());
    if (!q.exec(u"PRAGMA user_version"_s) || !q.next())
        return sqlError(u"Cannot read the store's version"_s, q.lastError());
    const int version = q.value(0).toInt();
    q.finish(); // an open read keeps the schema locked against the changes below
    if (version > kSchemaVersion)
        return Error{u"The store was written by a newer version of Platterbox (schema %1, this version knows %2)"_s
                         .arg(version)
                         .arg(kSchemaVersion)};
    if (version >= kSchemaVersion)
        return {};
    if (isReadOnly())
        return Error{translated(kReadOnlyOlderSchema).arg(m_readOnlyReason)};

    return transaction([this, version]() -> Result<void> {
        QStringList statements;
        if (version < 7)
            statements << KeptFigures::dropped();
        if (version < 1) {
            statements << u"CREATE TABLE Vinyl (id INTEGER, name TEXT, artist TEXT, releaseDate INTEGER, recordLabel TEXT, "
                          "producer TEXT, quantity INTEGER, albumDuration REAL, vinylCondition TEXT, coverCondition TEXT, "
                          "recordSpeed TEXT, doubleAlbum TEXT, cost REAL, value REAL, notes TEXT, frontImagePath TEXT, "
                          "backImagePath TEXT, frontImage BLOB, backImage BLOB)"_s
                       << u"CREATE TABLE Tracks (vinylID INTEGER, trackNumber INTEGER, song TEXT, writtenBy TEXT, duration REAL)"_s
                       << u"CREATE TABLE VinylCondition (condition TEXT)"_s
                       << u"CREATE TABLE CoverCondition (condition TEXT)"_s
                       << u"CREATE INDEX VinylByName ON Vinyl(name)"_s
                       << u"CREATE INDEX VinylByArtist ON Vinyl(artist)"_s
                       << u"CREATE INDEX VinylByRecordLabel ON Vinyl(recordLabel)"_s
                       << u"CREATE INDEX VinylByProducer ON Vinyl(producer)"_s
                       << u"CREATE INDEX VinylByReleaseDate ON Vinyl(releaseDate)"_s
                       << u"CREATE INDEX VinylById ON Vinyl(id)"_s
                       << u"CREATE INDEX TracksByRecord ON Tracks(vinylID, trackNumber)"_s;
        }
        if (version < 2) {
            // The list orders become covering indexes over what a card shows: rows are wide
            // (two covers each), so a long list read from the table touches a page per record.
            for (const QString &order : {u"name"_s, u"artist"_s, u"recordLabel"_s, u"releaseDate"_s}) {
                QStringList columns{order};
                for (const QString &attribute : kCardAttributes) {
                    if (attribute != order)
                        columns << attribute;
                }
                const QString index = u"VinylBy"_s + order.at(0).toUpper() + order.mid(1);
                statements << u"DROP INDEX IF EXISTS "_s + index
                           << u"CREATE INDEX "_s + index + u" ON Vinyl("_s + columns.join(u", "_s) + u')';
            }
        }
        if (version < 3) {
            // Each cover's exchange encoding lives beside it (see ExchangeEncoding); a changed
            // cover drops its encoding, whichever way it was written.
            for (const QString &side : {u"front"_s, u"back"_s}) {
                const QString cover = side + u"Image"_s;
                statements << u"ALTER TABLE Vinyl ADD COLUMN %1Exchange BLOB"_s.arg(cover)
                           << u"CREATE TRIGGER %1Changed AFTER UPDATE OF %1 ON Vinyl WHEN NEW.%1 IS NOT OLD.%1 "
                              "BEGIN UPDATE Vinyl SET %1Exchange = NULL WHERE rowid = NEW.rowid; END"_s.arg(cover);
            }
        }
        if (version < 4) {
            // Every change of a record's value is kept with its date. A store that had no history
            // starts one with each valued record's current value, so every chart has a start.
            statements << u"CREATE TABLE IF NOT EXISTS Quotes (vinylRowId INTEGER, quoted INTEGER, value REAL, source TEXT)"_s
                       << u"CREATE INDEX IF NOT EXISTS QuotesByRecord ON Quotes(vinylRowId, quoted, value)"_s
                       << u"INSERT INTO Quotes (vinylRowId, quoted, value, source) SELECT rowid, %1, value, '%2' "
                          "FROM Vinyl WHERE value IS NOT NULL AND value <> 0 ORDER BY rowid"_s
                              .arg(QDateTime::currentMSecsSinceEpoch())
                              .arg(QuoteSources::Start)
                       // The statistics count grades from these instead of reading the wide rows.
                       << u"CREATE INDEX IF NOT EXISTS VinylByVinylCondition ON Vinyl(vinylCondition)"_s
                       << u"CREATE INDEX IF NOT EXISTS VinylByCoverCondition ON Vinyl(coverCondition)"_s;
        }
        if (version < 5) {
            // The look-up's barcode and release id. They go before the covers, as every other
            // attribute does: a column added at the end would lie behind the cover bytes, and
            // each read of a whole record would step through them. So the table is made anew,
            // its rows keeping their identities, and its indexes and triggers made again.
            if (auto r = execAll(statements); !r)
                return r;
            statements.clear();
            // The list orders' indexes are made anew below, over the folded texts as well.
            for (const QString &order : kListOrders) {
                const QString index = listOrderIndex(order);
                if (auto r = execAll({u"DROP INDEX IF EXISTS "_s + index, u"DROP INDEX IF EXISTS "_s + index + u"Descending"_s}); !r)
                    return r;
            }
            auto kept = vinylIndexesAndTriggers();
            if (!kept)
                return kept.error();
            const QString copied = u"id, name, artist, releaseDate, recordLabel, producer, quantity, albumDuration, "
                                   "vinylCondition, coverCondition, recordSpeed, doubleAlbum, cost, value, notes, "
                                   "frontImagePath, backImagePath, frontImage, backImage, frontImageExchange, "
                                   "backImageExchange"_s;
            statements << u"CREATE TABLE VinylRebuilt (id INTEGER, name TEXT, artist TEXT, releaseDate INTEGER, "
                          "recordLabel TEXT, producer TEXT, quantity INTEGER, albumDuration REAL, vinylCondition TEXT, "
                          "coverCondition TEXT, recordSpeed TEXT, doubleAlbum TEXT, cost REAL, value REAL, notes TEXT, "
                          "frontImagePath TEXT, backImagePath TEXT, barcode TEXT, musicBrainzReleaseId TEXT, "
                          "frontImage BLOB, backImage BLOB, frontImageExchange BLOB, backImageExchange BLOB)"_s
                       << u"INSERT INTO VinylRebuilt (rowid, %1) SELECT rowid, %1 FROM Vinyl ORDER BY rowid"_s.arg(copied)
                       << u"DROP TABLE Vinyl"_s << u"ALTER TABLE VinylRebuilt RENAME TO Vinyl"_s << *kept
                       // The look-up asks whether a release is in the collection already.
                       << u"CREATE INDEX IF NOT EXISTS VinylByBarcode ON Vinyl(barcode)"_s
                       << u"CREATE INDEX IF NOT EXISTS VinylByMusicBrainzReleaseId ON Vinyl(musicBrainzReleaseId)"_s;
        }
        if (version < 6) {
            // Lists read a screenful at a time, so each order needs an index that yields it
            // (attribute, then row identity) in both directions, without a sort. The searched
            // texts are kept case-folded beside them, so a search reads the same index.
            if (auto r = execAll(statements); !r)
                return r;
            statements.clear();
            QSqlQuery info(database());
            QStringList present;
            if (info.exec(u"PRAGMA table_info(Vinyl)"_s)) {
                while (info.next())
                    present << info.value(1).toString();
            }
            info.finish();
            for (const QString &attribute : kSearchedAttributes) {
                if (present.contains(foldedColumn(attribute)))
                    continue;
                if (auto r = exec(u"ALTER TABLE Vinyl ADD COLUMN \"%1\" TEXT"_s.arg(foldedColumn(attribute))); !r)
                    return r;
            }
            if (auto r = foldStoredTexts(); !r)
                return r;
            for (const QString &order : kListOrders) {
                const QString index = listOrderIndex(order);
                const bool searched = kSearchedAttributes.contains(order);
                const QString folded = searched ? u", \""_s + foldedColumn(order) + u'"' : QString();
                statements << u"DROP INDEX IF EXISTS "_s + index
                           << u"CREATE INDEX "_s + index + u" ON Vinyl("_s + order + folded + u')';
            }
            // The totals (copies, cost, value) read this instead of every wide row, and the
            // statistics read the other; a record's row holds its covers, so a pass over the
            // rows reads a page or more per record.
            statements << u"CREATE INDEX IF NOT EXISTS VinylByWorth ON Vinyl(quantity, value, cost)"_s
                       << u"CREATE INDEX IF NOT EXISTS VinylFigures ON Vinyl(artist, quantity, value, cost, "
                          "recordLabel, recordSpeed, doubleAlbum, name)"_s;
        }
        if (version < 7) {
            // The statistics read figures kept current on every write, and the largest gains
            // from an index, instead of passing over every record and every quote.
            statements << KeptFigures::schema()
                       << u"CREATE INDEX IF NOT EXISTS VinylByGain ON Vinyl((value - cost) * quantity DESC, name, artist) "
                          "WHERE cost > 0"_s;
        }
        if (version < 8) {
            // The table sorts by speed, copies, value and total value as well: a screenful of
            // each, either way, comes from an index without a sort, ties by row identity.
            for (const auto &[order, indexed] : kTableOrders) {
                const QString index = listOrderIndex(order);
                statements << u"CREATE INDEX IF NOT EXISTS "_s + index + u" ON Vinyl("_s + indexed + u')';
            }
        }
        if (version < 9) {
            // An order read backwards serves its other direction (ties go by row identity in the
            // order's direction), so a second index per order only slowed every write.
            for (const QString &order : kListOrders + tableOrderNames())
                statements << u"DROP INDEX IF EXISTS "_s + listOrderIndex(order) + u"Descending"_s;
        }
        if (version < 10) {
            // Loans: days as ISO dates (the collector's calendar days, whatever the time zone).
            // A record is out at most once, which the store itself holds to.
            statements << u"CREATE TABLE IF NOT EXISTS Loans (vinylRowId INTEGER NOT NULL, borrower TEXT NOT NULL, "
                          "lent TEXT NOT NULL, due TEXT, returned TEXT, note TEXT)"_s
                       << u"CREATE UNIQUE INDEX IF NOT EXISTS LoansOut ON Loans(vinylRowId) WHERE returned IS NULL"_s
                       << u"CREATE INDEX IF NOT EXISTS LoansByRecord ON Loans(vinylRowId, lent)"_s
                       << u"CREATE INDEX IF NOT EXISTS LoansOutByDay ON Loans(lent) WHERE returned IS NULL"_s
                       // The albums sought: a record's attributes without its number, which only
                       // the collection gives, and the most the collector would pay and how keenly.
                       << u"CREATE TABLE IF NOT EXISTS Wanted (name TEXT, artist TEXT, releaseDate INTEGER, "
                          "recordLabel TEXT, producer TEXT, quantity INTEGER, albumDuration REAL, vinylCondition TEXT, "
                          "coverCondition TEXT, recordSpeed TEXT, doubleAlbum TEXT, cost REAL, value REAL, notes TEXT, "
                          "frontImagePath TEXT, backImagePath TEXT, barcode TEXT, musicBrainzReleaseId TEXT, "
                          "maxPrice REAL, priority INTEGER, frontImage BLOB, backImage BLOB)"_s
                       << u"CREATE INDEX IF NOT EXISTS WantedByPriority ON Wanted(priority, artist, name)"_s
                       << u"CREATE TABLE IF NOT EXISTS WantedTracks (wantedRowId INTEGER NOT NULL, trackNumber INTEGER, "
                          "song TEXT, writtenBy TEXT, duration REAL)"_s
                       << u"CREATE INDEX IF NOT EXISTS WantedTracksByAlbum ON WantedTracks(wantedRowId, trackNumber)"_s;
        }
        statements << u"PRAGMA user_version = %1"_s.arg(kSchemaVersion);
        return execAll(statements);
    });
}

QString Store::folded(const QString &text)
{
    return text.toCaseFolded();
}

QString Store::foldedColumn(const QString &attribute)
{
    return attribute + u"Folded"_s;
}

Result<void> Store::foldStoredTexts()
{
    QSqlQuery read(database());
    read.setForwardOnly(true);
    if (!read.exec(u"SELECT rowid, name, artist, recordLabel FROM Vinyl"_s))
        return sqlError(u"Cannot read the records to index them"_s, read.lastError());
    QList<std::pair<qint64, QVariantList>> rows;
    while (read.next()) {
        QVariantList texts;
        for (int i = 1; i <= 3; ++i)
            texts << (read.isNull(i) ? QVariant() : QVariant(folded(read.value(i).toString())));
        rows.append({read.value(0).toLongLong(), texts});
    }
    read.finish();
    QStringList sets;
    for (const QString &attribute : kSearchedAttributes)
        sets << u'"' + foldedColumn(attribute) + u"\" = ?"_s;
    const QString sql = u"UPDATE Vinyl SET "_s + sets.join(u", "_s) + u" WHERE rowid = ?"_s;
    for (const auto &[rowId, texts] : rows) {
        if (auto r = write(sql, texts + QVariantList{rowId}); !r)
            return r;
    }
    return {};
}

Result<void> Store::execAll(const QStringList &statements) const
{
    for (const QString &sql : statements) {
        if (auto r = exec(sql); !r)
            return r;
    }
    return {};
}

Result<QStringList> Store::vinylIndexesAndTriggers() const
{
    QSqlQuery q(database());
    // Indexes SQLite makes itself have no text and come back with the table.
    if (!q.exec(u"SELECT sql FROM sqlite_master WHERE tbl_name = 'Vinyl' AND type IN ('index', 'trigger') "
                "AND sql IS NOT NULL ORDER BY type, name"_s))
        return sqlError(u"Cannot read the store's indexes"_s, q.lastError());
    QStringList statements;
    while (q.next())
        statements << q.value(0).toString();
    return statements;
}

Result<void> Store::transaction(const std::function<Result<void>()> &work)
{
    if (isReadOnly())
        return readOnlyError();
    const bool outermost = m_transactionDepth == 0;
    // QSqlDatabase::transaction() begins a deferred transaction, which fails at once when it
    // reads and then finds another program writing; IMMEDIATE waits for the lock instead.
    if (outermost) {
        if (auto begun = control("BEGIN IMMEDIATE"); !begun)
            return begun;
    }
    ++m_transactionDepth;
    Result<void> result = work();
    --m_transactionDepth;
    if (!outermost)
        return result;
    if (!result) {
        (void)control("ROLLBACK");
        return result;
    }
    if (auto committed = control("COMMIT"); !committed) {
        (void)control("ROLLBACK");
        return Error{u"Cannot save the changes: "_s + committed.errorMessage()};
    }
    return {};
}

Result<void> Store::reading(const std::function<Result<void>()> &work)
{
    if (m_transactionDepth > 0 || m_reading)
        return work();
    if (auto begun = control("BEGIN"); !begun)
        return begun;
    m_reading = true;
    Result<void> result = work();
    m_reading = false;
    (void)control("COMMIT"); // ends the read; nothing was written
    return result;
}

Result<void> Store::control(const char *sql)
{
    sqlite3 *handle = m_handle;
    if (!handle)
        return Error{u"The store is not open"_s};
    const int rc = sqlite3_exec(handle, sql, nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK)
        return {};
    if (isBusy(rc))
        return Error{kBusyMessage};
    return Error{QString::fromLatin1(sql) + u": "_s + QString::fromUtf8(sqlite3_errmsg(handle))};
}

namespace {
sqlite3 *connectionOf(const QSqlDatabase &db)
{
    const QVariant handle = db.driver() ? db.driver()->handle() : QVariant();
    return handle.isValid() ? *static_cast<sqlite3 *const *>(handle.data()) : nullptr;
}

// Binds a value as QtSql's SQLite driver would: absent values, null texts and null bytes as
// NULL, texts as UTF-8, dates already turned into numbers. Bytes are bound in place when
// blobLifetime is SQLITE_STATIC: the value must then outlive the statement's step.
int bindValue(sqlite3_stmt *statement, int index, const QVariant &value, sqlite3_destructor_type blobLifetime)
{
    if (!value.isValid())
        return sqlite3_bind_null(statement, index);
    switch (value.metaType().id()) {
    case QMetaType::QString: {
        const QString &string = *static_cast<const QString *>(value.constData());
        if (string.isNull())
            return sqlite3_bind_null(statement, index);
        const QByteArray text = string.toUtf8();
        return sqlite3_bind_text(statement, index, text.constData(), int(text.size()), SQLITE_TRANSIENT);
    }
    case QMetaType::QByteArray: {
        const QByteArray &bytes = *static_cast<const QByteArray *>(value.constData());
        if (bytes.isNull())
            return sqlite3_bind_null(statement, index);
        return sqlite3_bind_blob(statement, index, bytes.constData(), int(bytes.size()), blobLifetime);
    }
    case QMetaType::Double:
    case QMetaType::Float: return sqlite3_bind_double(statement, index, value.toDouble());
    default: return sqlite3_bind_int64(statement, index, value.toLongLong());
    }
}

Result<std::unique_ptr<Statement>> runSelect(sqlite3 *connection, const BuiltQuery &built)
{
    if (!connection)
        return Error{u"The store is not open"_s};
    sqlite3_stmt *raw = nullptr;
    const QByteArray sql = built.sql.toUtf8();
    if (sqlite3_prepare_v2(connection, sql.constData(), int(sql.size()), &raw, nullptr) != SQLITE_OK)
        return Error{u"Cannot prepare a fetch: "_s + QString::fromUtf8(sqlite3_errmsg(connection))};
    auto statement = std::make_unique<Statement>(raw);
    for (int i = 0; i < built.values.size(); ++i) {
        if (bindValue(raw, i + 1, built.values[i], SQLITE_TRANSIENT) != SQLITE_OK)
            return Error{u"Cannot bind a fetch value: "_s + QString::fromUtf8(sqlite3_errmsg(connection))};
    }
    return statement;
}


QString buildInsertSql(Entity entity, int columnCount)
{
    QStringList names, marks;
    const auto &columns = columnsOf(entity);
    for (int i = 0; i < columnCount; ++i) {
        names << u'"' + columns[i].name + u'"';
        marks << u"?"_s;
    }
    if (entity == Entity::Vinyl) {
        for (const QString &attribute : Store::kSearchedAttributes) {
            names << u'"' + Store::foldedColumn(attribute) + u'"';
            marks << u"?"_s;
        }
    }
    return u"INSERT INTO \""_s + tableName(entity) + u"\" ("_s + names.join(u", "_s) + u") VALUES ("_s
           + marks.join(u", "_s) + u')';
}

QString buildUpdateSql(Entity entity, int columnCount)
{
    QStringList sets;
    const auto &columns = columnsOf(entity);
    for (int i = 0; i < columnCount; ++i)
        sets << u'"' + columns[i].name + u"\" = ?"_s;
    if (entity == Entity::Vinyl) {
        for (const QString &attribute : Store::kSearchedAttributes)
            sets << u'"' + Store::foldedColumn(attribute) + u"\" = ?"_s;
    }
    return u"UPDATE \""_s + tableName(entity) + u"\" SET "_s + sets.join(u", "_s) + u" WHERE rowid = ?"_s;
}

// The statements' texts are the keys of the prepared statements; made once per thread, not
// once per record of an import.
QString insertSql(Entity entity, int columnCount)
{
    thread_local QHash<std::pair<int, int>, QString> made;
    QString &sql = made[{int(entity), columnCount}];
    if (sql.isEmpty())
        sql = buildInsertSql(entity, columnCount);
    return sql;
}

QString updateSql(Entity entity, int columnCount)
{
    thread_local QHash<std::pair<int, int>, QString> made;
    QString &sql = made[{int(entity), columnCount}];
    if (sql.isEmpty())
        sql = buildUpdateSql(entity, columnCount);
    return sql;
}
} // namespace

Result<sqlite3_stmt *> Store::kept(const QString &sql) const
{
    sqlite3 *connection = m_handle;
    if (!connection)
        return Error{u"The store is not open"_s};
    sqlite3_stmt *&statement = m_statements[sql];
    if (!statement) {
        const QByteArray text = sql.toUtf8();
        if (sqlite3_prepare_v3(connection, text.constData(), int(text.size()), SQLITE_PREPARE_PERSISTENT, &statement,
                               nullptr)
            != SQLITE_OK) {
            m_statements.remove(sql);
            return Error{QString::fromUtf8(sqlite3_errmsg(connection))};
        }
    }
    return statement;
}

Result<void> Store::write(const QString &sql, const QVariantList &values, qint64 *rowId)
{
    if (isReadOnly())
        return readOnlyError();
    // A change made on its own is a transaction of its own, which waits for the lock as any other.
    if (m_transactionDepth == 0)
        return transaction([&] { return write(sql, values, rowId); });
    sqlite3 *connection = m_handle;
    auto prepared = kept(sql);
    if (!prepared)
        return Error{u"Cannot save a change: "_s + prepared.errorMessage()};
    sqlite3_stmt *statement = *prepared;
    int rc = SQLITE_OK;
    for (int i = 0; i < values.size() && rc == SQLITE_OK; ++i)
        rc = bindValue(statement, i + 1, values[i], SQLITE_STATIC);
    if (rc == SQLITE_OK)
        rc = sqlite3_step(statement);
    const QString error = rc == SQLITE_DONE ? QString() : QString::fromUtf8(sqlite3_errmsg(connection));
    if (rc == SQLITE_DONE && rowId)
        *rowId = sqlite3_last_insert_rowid(connection);
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement); // the blobs bound in place belong to values
    if (rc != SQLITE_DONE)
        return Error{isBusy(rc) ? kBusyMessage : u"Cannot save a change: "_s + error};
    ++m_writeCount;
    return {};
}

Result<QList<Vinyl>> Store::fetchVinyl(const FetchRequest &request) const
{
    QList<Vinyl> rows;
    auto read = forEachVinyl(request, [&rows](Vinyl &vinyl) {
        rows.append(std::move(vinyl));
        return true;
    });
    if (!read)
        return read.error();
    return rows;
}

Result<void> Store::forEachVinyl(const FetchRequest &request, const std::function<bool(Vinyl &)> &each) const
{
    const bool cards = request.cardAttributesOnly && !request.includeImages;
    auto built = buildSelect(request, cards ? cardColumnList() : columnList(Entity::Vinyl, request.includeImages), true);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    while ((*q)->next()) {
        Vinyl vinyl = cards ? readCardVinyl(**q) : readVinyl(**q, request.includeImages);
        if (!each(vinyl))
            break;
    }
    return {};
}

Result<std::optional<Vinyl>> Store::vinylByRowId(qint64 rowId, bool withImages) const
{
    // Kept prepared: an import looks up every record it updates.
    static const QString withSql = u"SELECT "_s + columnList(Entity::Vinyl, true) + u" FROM Vinyl WHERE rowid = ?"_s;
    static const QString withoutSql = u"SELECT "_s + columnList(Entity::Vinyl, false) + u" FROM Vinyl WHERE rowid = ?"_s;
    auto prepared = kept(withImages ? withSql : withoutSql);
    if (!prepared)
        return Error{u"Cannot read a record: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    sqlite3_bind_int64(q.handle(), 1, rowId);
    if (!q.next())
        return std::optional<Vinyl>();
    return std::optional<Vinyl>(readVinyl(q, withImages));
}

Result<QList<RecordKey>> Store::recordKeys() const
{
    // Both indexes are small beside the records' rows, whose covers spill over many pages each.
    auto numbers = kept(u"SELECT rowid, id FROM Vinyl INDEXED BY VinylById WHERE id IS NOT NULL"_s);
    if (!numbers)
        return Error{u"Cannot read the records: "_s + numbers.errorMessage()};
    QHash<qint64, qint16> idOf;
    for (Statement q(*numbers, Statement::Kept); q.next();)
        idOf.insert(q.integer(0), qint16(q.integer(1)));
    auto names = kept(u"SELECT rowid, name, artist FROM Vinyl INDEXED BY VinylFigures WHERE name IS NOT NULL"_s);
    if (!names)
        return Error{u"Cannot read the records: "_s + names.errorMessage()};
    QList<RecordKey> keys;
    for (Statement q(*names, Statement::Kept); q.next();) {
        const qint64 rowId = q.integer(0);
        const auto id = idOf.constFind(rowId);
        keys.append({rowId, q.string(1), q.string(2), id == idOf.cend() ? std::nullopt : std::optional(*id)});
    }
    return keys;
}

Result<QList<Vinyl>> Store::vinylOfRelease(const QString &releaseId, const QString &barcode) const
{
    static const QString sql = u"SELECT "_s + columnList(Entity::Vinyl, false)
                               + u" FROM Vinyl WHERE musicBrainzReleaseId = ? OR barcode = ? ORDER BY rowid"_s;
    auto prepared = kept(sql);
    if (!prepared)
        return Error{u"Cannot look for a release: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    // An empty text is bound as NULL, which equals nothing.
    const auto bound = [](const QString &text) { return text.isEmpty() ? QVariant() : QVariant(text); };
    bindValue(q.handle(), 1, bound(releaseId), SQLITE_TRANSIENT);
    bindValue(q.handle(), 2, bound(barcode), SQLITE_TRANSIENT);
    QList<Vinyl> rows;
    while (q.next())
        rows.append(readVinyl(q, false));
    return rows;
}

Result<QByteArray> Store::coverImage(qint64 vinylRowId, CoverSide side) const
{
    // Kept prepared: an import compares the covers of every record it matches.
    static const QString front = u"SELECT frontImage FROM Vinyl WHERE rowid = ?"_s;
    static const QString back = u"SELECT backImage FROM Vinyl WHERE rowid = ?"_s;
    auto prepared = kept(side == CoverSide::Front ? front : back);
    if (!prepared)
        return Error{u"Cannot read a cover: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    sqlite3_bind_int64(q.handle(), 1, vinylRowId);
    return q.next() ? q.blob(0) : QByteArray();
}

Result<std::array<ExchangeEncoding, 2>> Store::exchangeEncodings(qint64 vinylRowId) const
{
    // Kept prepared: an export reads every record's. A cover is read only without an encoding.
    static const QString sql = u"SELECT frontImageExchange, CASE WHEN frontImageExchange IS NULL THEN frontImage END, "
                               "backImageExchange, CASE WHEN backImageExchange IS NULL THEN backImage END "
                               "FROM Vinyl WHERE rowid = ?"_s;
    auto prepared = kept(sql);
    if (!prepared)
        return Error{u"Cannot read a cover: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    sqlite3_bind_int64(q.handle(), 1, vinylRowId);
    std::array<ExchangeEncoding, 2> encodings;
    if (q.next()) {
        for (int side = 0; side < 2; ++side) {
            if (!q.isNull(2 * side))
                encodings[side].kept = q.blob(2 * side);
            if (!q.isNull(2 * side + 1))
                encodings[side].cover = q.blob(2 * side + 1);
        }
    }
    return encodings;
}

Result<void> Store::keepExchangeEncoding(qint64 vinylRowId, CoverSide side, const QByteArray &cover,
                                         const QByteArray &encoding)
{
    static const QString front = u"UPDATE Vinyl SET frontImageExchange = ? WHERE rowid = ? AND frontImage = ?"_s;
    static const QString back = u"UPDATE Vinyl SET backImageExchange = ? WHERE rowid = ? AND backImage = ?"_s;
    // A picture that is not one keeps an empty encoding, which is not the absent one.
    const QByteArray kept = encoding.isNull() ? QByteArray("") : encoding;
    return write(side == CoverSide::Front ? front : back, {kept, vinylRowId, cover});
}

Result<QList<Track>> Store::fetchTracks(const FetchRequest &request) const
{
    auto built = buildSelect(request, columnList(Entity::Tracks, false), true);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    QList<Track> rows;
    while ((*q)->next()) {
        Track t;
        t.rowId = (*q)->integer(0);
        t.vinylID = readInt16(**q, 1);
        t.trackNumber = readInt16(**q, 2);
        t.song = readText(**q, 3);
        t.writtenBy = readText(**q, 4);
        t.duration = readDouble(**q, 5);
        rows.append(t);
    }
    return rows;
}

Result<QList<Condition>> Store::fetchConditions(const FetchRequest &request) const
{
    auto built = buildSelect(request, columnList(request.entity, false), true);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    QList<Condition> rows;
    while ((*q)->next())
        rows.append({(*q)->integer(0), readText(**q, 1)});
    return rows;
}

Result<qint64> Store::count(const FetchRequest &request) const
{
    // The whole collection's count is kept current by the store, so it costs no pass over an index.
    if (request.entity == Entity::Vinyl && request.predicates.isEmpty()) {
        QSqlQuery q(database());
        if (!q.exec(u"SELECT TOTAL(records) FROM Tallies WHERE kind = '%1'"_s.arg(KeptFigures::kCollection)) || !q.next())
            return sqlError(u"Cannot count the records"_s, q.lastError());
        return qint64(q.value(0).toDouble());
    }
    auto built = buildSelect(request, u"COUNT(*)"_s, false);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    return (*q)->next() ? (*q)->integer(0) : 0;
}

StoreRows::~StoreRows()
{
    sqlite3_finalize(m_statement);
}

Result<bool> StoreRows::next()
{
    const int rc = sqlite3_step(m_statement);
    if (rc == SQLITE_ROW)
        return true;
    if (rc == SQLITE_DONE)
        return false;
    return Error{u"Cannot read the store: "_s + QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(m_statement)))};
}

bool StoreRows::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 StoreRows::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

double StoreRows::real(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

QByteArrayView StoreRows::bytes(int column) const
{
    // A text is asked for as text, so a value stored otherwise reads as the text SQLite makes of it.
    const void *data = sqlite3_column_type(m_statement, column) == SQLITE_BLOB ? sqlite3_column_blob(m_statement, column)
                                                                               : sqlite3_column_text(m_statement, column);
    return QByteArrayView(static_cast<const char *>(data), sqlite3_column_bytes(m_statement, column));
}

namespace {
// The row identity and the attributes' columns, quoted, as a select names them; BLOBs are never
// asked for by name.
Result<QStringList> selectedColumns(const FetchRequest &request, const QStringList &attributes)
{
    QStringList names{u"rowid"_s};
    for (const QString &attribute : attributes) {
        const Column *column = findColumn(request.entity, attribute);
        if (!column || column->kind == Kind::Blob)
            return Error{u"Unknown attribute "_s + attribute + u" of "_s + entityName(request.entity)};
        names << u'"' + column->name + u'"';
    }
    return names;
}

} // namespace

Result<std::unique_ptr<StoreRows>> Store::rows(const FetchRequest &request, const QStringList &attributes,
                                               bool exchangeEncodings) const
{
    auto selected = selectedColumns(request, attributes);
    if (!selected)
        return selected.error();
    QStringList names = *std::move(selected);
    if (exchangeEncodings) {
        if (request.entity != Entity::Vinyl)
            return Error{u"Only records have covers"_s};
        // As exchangeEncodings() reads them: a cover is read only without an encoding.
        names << u"frontImageExchange, CASE WHEN frontImageExchange IS NULL THEN frontImage END, "
                 "backImageExchange, CASE WHEN backImageExchange IS NULL THEN backImage END"_s;
    }
    auto built = buildSelect(request, names.join(u", "_s), true);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    sqlite3_stmt *statement = (*q)->handle();
    (*q)->release();
    return std::make_unique<StoreRows>(statement);
}

Result<QList<QVariantList>> Store::fetchValues(const FetchRequest &request, const QStringList &attributes) const
{
    auto selected = selectedColumns(request, attributes);
    if (!selected)
        return selected.error();
    QStringList names = *std::move(selected);
    auto built = buildSelect(request, names.join(u", "_s), true);
    if (!built)
        return built.error();
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    QList<QVariantList> rows;
    while ((*q)->next()) {
        QVariantList row{QVariant((*q)->integer(0))};
        for (int i = 1; i < names.size(); ++i) {
            switch (sqlite3_column_type((*q)->handle(), i)) {
            case SQLITE_NULL: row << QVariant(); break;
            case SQLITE_INTEGER: row << (*q)->integer(i); break;
            case SQLITE_FLOAT: row << (*q)->real(i); break;
            default: row << (*q)->string(i); break;
            }
        }
        rows.append(row);
    }
    return rows;
}

Result<qint64> Store::position(const FetchRequest &request, qint64 rowId) const
{
    auto ordered = buildSelect(request, u"rowid"_s, true);
    if (!ordered)
        return ordered.error();
    const qsizetype orderAt = ordered->sql.indexOf(u" ORDER BY "_s);
    if (orderAt < 0)
        return Error{u"A position needs an order"_s};
    QString order = ordered->sql.mid(orderAt + 10);
    if (const qsizetype limitAt = order.indexOf(u" LIMIT "_s); limitAt >= 0)
        order.truncate(limitAt);
    auto built = buildSelect(request, u"rowid AS id, ROW_NUMBER() OVER (ORDER BY "_s + order + u") - 1 AS n"_s, false);
    if (!built)
        return built.error();
    built->sql = u"SELECT n FROM ("_s + built->sql + u") WHERE id = ?"_s;
    built->values << rowId;
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    if (!(*q)->next())
        return Error{u"The record is not in the list"_s};
    return (*q)->integer(0);
}

Result<qint64> Store::othersChanges() const
{
    auto prepared = kept(u"PRAGMA data_version"_s);
    if (!prepared)
        return Error{u"Cannot read the store's version: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    return q.next() ? q.integer(0) : 0;
}

Result<QStringList> Store::queryPlan(const FetchRequest &request) const
{
    const bool cards = request.cardAttributesOnly && !request.includeImages;
    auto built = buildSelect(request, cards ? cardColumnList() : columnList(request.entity, request.includeImages), true);
    if (!built)
        return built.error();
    built->sql.prepend(u"EXPLAIN QUERY PLAN "_s);
    auto q = runSelect(m_handle, *built);
    if (!q)
        return q.error();
    QStringList steps;
    while ((*q)->next())
        steps << (*q)->string(3);
    return steps;
}

Result<void> Store::insert(Vinyl &vinyl)
{
    const int n = int(vinylColumns().size());
    QVariantList values = vinylValues(vinyl, true) + foldedValues(vinyl);
    return write(insertSql(Entity::Vinyl, n), values, &vinyl.rowId);
}

Result<void> Store::insert(Track &track)
{
    return write(insertSql(Entity::Tracks, int(trackColumns().size())), trackValues(track), &track.rowId);
}

Result<void> Store::insert(Entity conditionEntity, Condition &condition)
{
    return write(insertSql(conditionEntity, 1), {storedValue(condition.condition)}, &condition.rowId);
}

Result<void> Store::update(const Vinyl &vinyl)
{
    if (vinyl.cardAttributesOnly)
        return Error{u"A record read for a list cannot be saved; read it whole first."_s};
    if (!vinyl.imagesLoaded && (vinyl.frontImage || vinyl.backImage)) {
        // Covers given to a record read without them replace the stored ones; the other stays.
        static const QString sql = []() -> QString {
            QString text = updateSql(Entity::Vinyl, kVinylColumnsWithoutImages);
            return text.replace(u" WHERE rowid"_s,
                                u", frontImage = COALESCE(?, frontImage), backImage = COALESCE(?, backImage) WHERE rowid"_s);
        }();
        QVariantList values = vinylValues(vinyl, false) + foldedValues(vinyl);
        values << storedValue(vinyl.frontImage) << storedValue(vinyl.backImage) << vinyl.rowId;
        return write(sql, values);
    }
    const int n = vinyl.imagesLoaded ? int(vinylColumns().size()) : kVinylColumnsWithoutImages;
    QVariantList values = vinylValues(vinyl, vinyl.imagesLoaded) + foldedValues(vinyl);
    values << vinyl.rowId;
    return write(updateSql(Entity::Vinyl, n), values);
}

Result<void> Store::update(const Track &track)
{
    QVariantList values = trackValues(track);
    values << track.rowId;
    return write(updateSql(Entity::Tracks, int(trackColumns().size())), values);
}

Result<void> Store::updateGiven(const Track &track)
{
    static const QString sql = []() -> QString {
        QStringList sets;
        for (const Column &column : trackColumns())
            sets << u"\"%1\" = COALESCE(?, \"%1\")"_s.arg(column.name);
        return u"UPDATE Tracks SET "_s + sets.join(u", "_s) + u" WHERE rowid = ?"_s;
    }();
    QVariantList values = trackValues(track);
    values << track.rowId;
    return write(sql, values);
}

Result<void> Store::update(Entity conditionEntity, const Condition &condition)
{
    return write(updateSql(conditionEntity, 1), {storedValue(condition.condition), condition.rowId});
}

Result<void> Store::remove(Entity entity, qint64 rowId)
{
    if (entity == Entity::Vinyl) {
        for (const QString &sql : {u"DELETE FROM Quotes WHERE vinylRowId = ?"_s, u"DELETE FROM Loans WHERE vinylRowId = ?"_s}) {
            if (auto r = write(sql, {rowId}); !r)
                return r;
        }
    }
    return write(u"DELETE FROM \""_s + tableName(entity) + u"\" WHERE rowid = ?"_s, {rowId});
}

namespace {
const QString kLoanColumns = u"rowid, vinylRowId, borrower, lent, due, returned, note"_s;

QVariant isoDay(QDate day)
{
    return day.isValid() ? QVariant(day.toString(Qt::ISODate)) : QVariant();
}

Loan readLoan(const Statement &q, int first = 0)
{
    const auto day = [&](int i) { return q.isNull(i) ? QDate() : QDate::fromString(q.string(i), Qt::ISODate); };
    return Loan{q.integer(first), q.integer(first + 1), q.string(first + 2), day(first + 3),
                day(first + 4),   day(first + 5),       q.string(first + 6)};
}
} // namespace

Result<void> Store::insert(Loan &loan)
{
    return transaction([&]() -> Result<void> {
        auto open = loans(loan.vinylRowId);
        if (!open)
            return open.error();
        if (!open->isEmpty() && open->first().isOut())
            return Error{translated(kAlreadyLent).arg(open->first().borrower)};
        return write(u"INSERT INTO Loans (vinylRowId, borrower, lent, due, returned, note) VALUES (?, ?, ?, ?, ?, ?)"_s,
                     {loan.vinylRowId, loan.borrower, isoDay(loan.lent), isoDay(loan.due), isoDay(loan.returned),
                      loan.note},
                     &loan.rowId);
    });
}

Result<void> Store::returnLoan(qint64 vinylRowId, QDate day)
{
    return transaction([&]() -> Result<void> {
        auto open = loans(vinylRowId);
        if (!open)
            return open.error();
        if (open->isEmpty() || !open->first().isOut())
            return Error{kNotLent};
        return write(u"UPDATE Loans SET returned = ? WHERE rowid = ?"_s, {isoDay(day), open->first().rowId});
    });
}

Result<QList<Loan>> Store::loans(qint64 vinylRowId) const
{
    auto prepared = kept(u"SELECT "_s + kLoanColumns
                         + u" FROM Loans WHERE vinylRowId = ? ORDER BY returned IS NOT NULL, lent DESC, rowid DESC"_s);
    if (!prepared)
        return Error{u"Cannot read the loans: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    sqlite3_bind_int64(q.handle(), 1, vinylRowId);
    QList<Loan> list;
    while (q.next())
        list.append(readLoan(q));
    return list;
}

Result<QList<LoanOut>> Store::loansOut() const
{
    auto prepared = kept(u"SELECT Loans.rowid, vinylRowId, borrower, lent, due, returned, note, Vinyl.name, Vinyl.artist "
                         "FROM Loans INDEXED BY LoansOutByDay JOIN Vinyl ON Vinyl.rowid = Loans.vinylRowId "
                         "WHERE returned IS NULL ORDER BY lent, Loans.rowid"_s);
    if (!prepared)
        return Error{u"Cannot read the loans: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    QList<LoanOut> list;
    while (q.next())
        list.append({readLoan(q), q.string(7), q.string(8)});
    return list;
}

Result<QStringList> Store::borrowers() const
{
    auto prepared = kept(u"SELECT borrower FROM Loans GROUP BY borrower ORDER BY max(lent) DESC, max(rowid) DESC"_s);
    if (!prepared)
        return Error{u"Cannot read the loans: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    QStringList names;
    while (q.next())
        names.append(q.string(0));
    return names;
}

Result<void> Store::insert(Quote &quote)
{
    return write(u"INSERT INTO Quotes (vinylRowId, quoted, value, source) VALUES (?, ?, ?, ?)"_s,
                 {quote.vinylRowId, quote.quoted.toMSecsSinceEpoch(), quote.value, quote.source}, &quote.rowId);
}

Result<QList<Quote>> Store::quotes(qint64 vinylRowId) const
{
    auto prepared = kept(u"SELECT rowid, quoted, value, source FROM Quotes WHERE vinylRowId = ? "
                         "ORDER BY quoted DESC, rowid DESC"_s);
    if (!prepared)
        return Error{u"Cannot read the value history: "_s + prepared.errorMessage()};
    Statement q(*prepared, Statement::Kept);
    sqlite3_bind_int64(q.handle(), 1, vinylRowId);
    QList<Quote> list;
    while (q.next())
        list.append({q.integer(0), vinylRowId, QDateTime::fromMSecsSinceEpoch(q.integer(1)), q.real(2), q.string(3)});
    return list;
}
