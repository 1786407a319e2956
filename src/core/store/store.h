#pragma once

#include "store/entities.h"
#include "store/fetchrequest.h"
#include "store/result.h"
#include "store/translations.h"

#include <QByteArrayView>
#include <QList>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>
#include <QString>

#include <array>
#include <functional>
#include <memory>

#include <optional>

struct sqlite3;
struct sqlite3_stmt;

// What tells a stored record from another when a file's lines are matched to the store.
struct RecordKey
{
    qint64 rowId = 0;
    QString name;
    QString artist;
    std::optional<qint16> id;
};

// Rows of one fetch, stepped through one at a time in the request's order, their values read as
// stored without a copy: what a pass over the whole collection uses, which must not hold it in
// memory. Columns are numbered as the request named them, the row identity being column 0.
// Belongs to the store that made it and must not outlive it.
class StoreRows
{
public:
    explicit StoreRows(sqlite3_stmt *statement) : m_statement(statement) {}
    ~StoreRows();
    StoreRows(const StoreRows &) = delete;
    StoreRows &operator=(const StoreRows &) = delete;

    // Moves to the next row; false after the last one, or with an error when the store could not
    // be read.
    Result<bool> next();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] double real(int column) const;
    // A text's UTF-8 bytes or a BLOB's bytes; valid until next().
    [[nodiscard]] QByteArrayView bytes(int column) const;

private:
    sqlite3_stmt *m_statement;
};

// A cover as the exchange file carries it: a re-encoding of the stored picture, kept beside it
// once the exchange writer has made it, so that an export copies it instead of encoding every
// picture again. A cover that changes drops its encoding.
struct ExchangeEncoding
{
    // The encoding made before; empty when the cover is not a picture. Absent when none is kept.
    std::optional<QByteArray> kept;
    // The cover itself, read only when no encoding is kept; empty when the record has none.
    QByteArray cover;
};

// The one embedded SQLite store: tables Vinyl, Tracks, VinylCondition and CoverCondition,
// one nullable column per attribute; Quotes, the value history of the records; Loans, who
// borrowed which record when; and Wanted with WantedTracks, the albums sought. Strings compare exactly and sort in code-point order;
// absent values sort first ascending. Cover BLOBs are only read when a fetch asks for them.
//
// A Store belongs to the thread that opened it (QtSql connections are per thread).
class Store
{
public:
    static constexpr int kSchemaVersion = 10;
    // What a loan of a record that is out, or a return of one that is not, answers.
    static inline const QString kAlreadyLent = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record is lent to %1 already: it can be lent again once it is back."));
    static inline const QString kNotLent = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The record is not lent out."));
    static inline const QString kFileName = QStringLiteral("Platterbox.sqlite");
    // What a record card shows.
    static inline const QStringList kCardAttributes = {
        QStringLiteral("name"),        QStringLiteral("artist"),        QStringLiteral("releaseDate"),
        QStringLiteral("recordLabel"), QStringLiteral("producer"),      QStringLiteral("quantity"),
        QStringLiteral("albumDuration"), QStringLiteral("recordSpeed"), QStringLiteral("doubleAlbum"),
        QStringLiteral("cost"),        QStringLiteral("value")};

    // A sort key that orders records by their total value, copies times value (an absent
    // number as 0), read from an index of its own like any other list order.
    static inline const QString kTotalValue = QStringLiteral("totalValue");
    // A sort key that orders records as they were added: the store's row identity.
    static inline const QString kAddedOrder = QStringLiteral("added");

    // The attributes a list searches; each has a case-folded copy (foldedColumn()) written with
    // every save and held in its list-order indexes, which Predicate::contains() reads.
    static inline const QStringList kSearchedAttributes = {QStringLiteral("name"), QStringLiteral("artist"),
                                                           QStringLiteral("recordLabel")};
    // The text as the searches compare it: every letter in its case-folded form.
    [[nodiscard]] static QString folded(const QString &text);
    [[nodiscard]] static QString foldedColumn(const QString &attribute);

    // What every change of a read-only store answers; %1 says why ("the folder /x cannot be written").
    static inline const QString kReadOnlyMessage =
        QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "This collection is read-only: %1. It can be browsed, searched, exported and backed up, "
                       "but not changed; copy its folder to a place you can write to change it."));
    static inline const QString kReadOnlyFolder = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "the folder %1 cannot be written"));
    static inline const QString kReadOnlyFile = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "the file %1 cannot be written"));
    static inline const QString kReadOnlyRefused = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "the disk refused a write to %1"));
    static inline const QString kReadOnlyOlderSchema =
        QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "This collection is read-only (%1) and was made by an older version of Platterbox; open a "
                       "copy of its folder in a place you can write, and it is brought up to date."));
    // What a change answers when another program kept the collection locked for the whole wait.
    static inline const QString kBusyMessage =
        QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection is busy: another program is changing it. Try again in a moment."));
    // How long a change waits for another program's change to end.
    static constexpr int kBusyTimeoutMs = 5000;

    // Opens (creating and migrating when needed) the store file; ":memory:" gives a private
    // in-memory store. A store whose file or folder cannot be written opens read-only (see
    // isReadOnly()); it is not migrated.
    static Result<std::unique_ptr<Store>> open(const QString &filePath);
    // The wait of stores opened from now on; tests shorten it.
    static void setBusyTimeout(int milliseconds);
    // Sets up a connection that only reads the store file (the cover readers' own ones); it
    // reads a read-only collection too.
    static void configureReader(QSqlDatabase &db, const QString &filePath);
    // The SQLite URI that reads the store file without writing anything beside it.
    [[nodiscard]] static QString readerUri(const QString &filePath);
    ~Store();
    Store(const Store &) = delete;
    Store &operator=(const Store &) = delete;

    [[nodiscard]] QString filePath() const { return m_filePath; }
    [[nodiscard]] QSqlDatabase database() const;

    // A read-only store reads as any other; every change is refused with readOnlyError().
    [[nodiscard]] bool isReadOnly() const { return !m_readOnlyReason.isEmpty(); }
    // Why the store cannot be changed ("the folder /x cannot be written"); empty when it can.
    [[nodiscard]] QString readOnlyReason() const { return m_readOnlyReason; }
    [[nodiscard]] Error readOnlyError() const { return Error{translated(kReadOnlyMessage).arg(m_readOnlyReason)}; }
    // Succeeds when the store can be changed; for the changes that do not go through it
    // (restore, undo), checked before they start.
    [[nodiscard]] Result<void> checkWritable() const;

    Result<QList<Vinyl>> fetchVinyl(const FetchRequest &request) const;
    // The request's records one after the other, each handed to `each` as it is read (false
    // stops the reading): a long list is read with its covers without holding them all.
    Result<void> forEachVinyl(const FetchRequest &request, const std::function<bool(Vinyl &)> &each) const;
    Result<QList<Track>> fetchTracks(const FetchRequest &request) const;
    // request.entity is VinylCondition or CoverCondition.
    Result<QList<Condition>> fetchConditions(const FetchRequest &request) const;
    // Number of objects the request matches (its sort keys and window are ignored).
    Result<qint64> count(const FetchRequest &request) const;
    // The row identity and the attributes of each object the request matches, in its order:
    // values as stored (dates as milliseconds), an absent one as a null QVariant.
    Result<QList<QVariantList>> fetchValues(const FetchRequest &request, const QStringList &attributes) const;
    // The row identity and the attributes of each object the request matches, in its order, read
    // one row at a time. With exchangeEncodings (records only) each row ends in four more columns,
    // its covers as exchangeEncodings() reads them: the front's kept encoding, the front cover when
    // none is kept, then the same of the back.
    Result<std::unique_ptr<StoreRows>> rows(const FetchRequest &request, const QStringList &attributes,
                                            bool exchangeEncodings = false) const;
    // How many of the request's objects come before the object rowId in its order; an error
    // when the request does not match that object.
    Result<qint64> position(const FetchRequest &request, qint64 rowId) const;
    // How SQLite reads the request's rows: the detail lines of EXPLAIN QUERY PLAN.
    Result<QStringList> queryPlan(const FetchRequest &request) const;

    // The record with this row identity, with its covers; nullopt when it no longer exists.
    Result<std::optional<Vinyl>> vinylByRowId(qint64 rowId, bool withImages = true) const;
    // The name, artist and number of every record that has a name, in no particular order: what
    // an import matches its lines against. Read from two indexes, not from the records' rows,
    // which hold the covers.
    Result<QList<RecordKey>> recordKeys() const;
    // The records of one release of the online music database, without their covers, in the
    // order they were added: those holding its release id and those holding its barcode. An
    // empty release id or barcode finds nothing; one indexed read, whatever the collection's size.
    Result<QList<Vinyl>> vinylOfRelease(const QString &releaseId, const QString &barcode) const;
    // The encoded cover bytes, empty when the record has none.
    Result<QByteArray> coverImage(qint64 vinylRowId, CoverSide side) const;

    // The exchange encodings of a record's covers, front then back.
    Result<std::array<ExchangeEncoding, 2>> exchangeEncodings(qint64 vinylRowId) const;
    // Keeps the encoding made of `cover`, unless the record's cover is no longer that picture.
    Result<void> keepExchangeEncoding(qint64 vinylRowId, CoverSide side, const QByteArray &cover,
                                      const QByteArray &encoding);

    // Inserts set rowId on the object they are given.
    Result<void> insert(Vinyl &vinyl);
    Result<void> insert(Track &track);
    Result<void> insert(Entity conditionEntity, Condition &condition);

    // Updates address the object by rowId. A Vinyl fetched without images keeps its covers,
    // but for those it was given since.
    Result<void> update(const Vinyl &vinyl);
    Result<void> update(const Track &track);
    // Changes only the attributes track holds; those it lacks keep their stored values.
    Result<void> updateGiven(const Track &track);
    Result<void> update(Entity conditionEntity, const Condition &condition);

    // Removing a record removes its value history with it.
    Result<void> remove(Entity entity, qint64 rowId);

    // Appends a quote to its record's value history; sets quote.rowId.
    Result<void> insert(Quote &quote);
    // The record's value history, newest first.
    Result<QList<Quote>> quotes(qint64 vinylRowId) const;

    // Lends a record (sets loan.rowId); refused while the record is out already.
    Result<void> insert(Loan &loan);
    // Marks the record's loan returned on that day; an error when the record is not out.
    Result<void> returnLoan(qint64 vinylRowId, QDate day);
    // Every loan of a record, the open one first, then the latest lent first.
    Result<QList<Loan>> loans(qint64 vinylRowId) const;
    // The records out, the longest out first.
    Result<QList<LoanOut>> loansOut() const;
    // The names records were lent to, the latest first, each once.
    Result<QStringList> borrowers() const;

    // Runs work in one transaction: committed when it succeeds, rolled back when it fails,
    // so one user action either happens whole or leaves the store as it was. Nested calls
    // join the outer transaction. The transaction takes the write lock when it begins
    // (IMMEDIATE), waiting up to the busy timeout for another program's change to end, so a
    // change that reads first never finds the collection taken from under it; a wait that runs
    // out gives kBusyMessage. A read-only store refuses with readOnlyError().
    Result<void> transaction(const std::function<Result<void>()> &work);
    [[nodiscard]] bool inTransaction() const { return m_transactionDepth > 0; }
    // Runs work, which only reads, in one read transaction: its reads see one state of the
    // store, and SQLite takes and drops its read lock once instead of for every statement.
    // Inside a transaction it just runs work.
    Result<void> reading(const std::function<Result<void>()> &work);

    // Changes other connections (other programs) committed: a number that differs from the one
    // read before whenever they changed the store in between.
    Result<qint64> othersChanges() const;
    // Number of committed write statements since open; lets callers see whether anything changed.
    [[nodiscard]] qint64 writeCount() const { return m_writeCount; }

private:
    explicit Store(QString connectionName, QString filePath);
    // Opens the connection, read-only when readOnlyReason says why; writeRefused tells a disk that
    // refused the first write.
    Result<void> connect(const QString &readOnlyReason, bool *writeRefused);
    Result<void> migrate();
    Result<void> exec(const QString &sql) const;
    Result<void> execAll(const QStringList &statements) const;
    // The statements that make the Vinyl table's indexes and triggers, as the store holds them.
    Result<QStringList> vinylIndexesAndTriggers() const;
    // Writes the folded copies of the searched texts of every record (when they are added).
    Result<void> foldStoredTexts();
    // Runs BEGIN, COMMIT or ROLLBACK on the store's connection.
    Result<void> control(const char *sql);
    Result<void> write(const QString &sql, const QVariantList &values, qint64 *rowId = nullptr);
    // The store's prepared statement of sql, made on first use and finalized with the store.
    Result<sqlite3_stmt *> kept(const QString &sql) const;

    QString m_connectionName;
    // The open connection's SQLite handle, which QtSql gives only through a lookup by name.
    sqlite3 *m_handle = nullptr;
    // Prepared write statements, reused: a bulk import issues the same few thousands of times.
    // Writes, like reads, go through SQLite's C API on the store's connection.
    mutable QHash<QString, sqlite3_stmt *> m_statements;
    QString m_filePath;
    QString m_readOnlyReason;
    int m_transactionDepth = 0;
    bool m_reading = false;
    qint64 m_writeCount = 0;
};
