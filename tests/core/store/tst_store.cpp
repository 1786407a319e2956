// The store: what it keeps and finds, its upgrades and refusals, the number and date formats it
// reads and writes, and each record's value history.
#include "entry/addvinylviewcontroller.h"
#include "collection/loans.h"
#include "entry/editvinylviewcontroller.h"
#include "exchange/importfile.h"
#include "exchange/importmerge.h"
#include "store/formatters.h"
#include "store/recordnumbers.h"
#include "store/samplecollection.h"
#include "store/store.h"
#include "store/wantedalbums.h"
#include "testsupport.h"
#include "valuation/valuationviewcontroller.h"

#include <QScopeGuard>
#include <QSqlQuery>
#include <QTest>

#include <future>
#include <sqlite3.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Every quote of the store as "value source".
QStringList allQuotes(Store &store)
{
    QStringList quotes;
    QSqlQuery q(store.database());
    q.exec(u"SELECT value, source FROM Quotes ORDER BY rowid"_s);
    while (q.next())
        quotes << QString::number(q.value(0).toDouble()) + u' ' + q.value(1).toString();
    return quotes;
}

Vinyl addValued(TestApp &t)
{
    Vinyl v = t.addVinyl(u"Blue Train"_s, u"John Coltrane"_s, u"Blue Note"_s, 1);
    v.quantity = 1;
    v.value = 10;
    (void)t.store().update(v);
    return v;
}

void importCsv(TestApp &t, const QString &text)
{
    const auto imported = ImportMerge::apply(t.store(), ImportFiles::read(text.toUtf8()));
    QVERIFY2(imported.ok(), qPrintable(imported.errorMessage()));
}

} // namespace

class StoreTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Store> openMemory()
    {
        auto store = Store::open(u":memory:"_s);
        if (!store)
            qWarning() << store.errorMessage();
        return store ? std::move(store).value() : nullptr;
    }

    QStringList names(const QList<Vinyl> &rows)
    {
        QStringList result;
        for (const Vinyl &v : rows)
            result << (v.name ? *v.name : u"<absent>"_s);
        return result;
    }

private slots:
    void initTestCase() { useTestLocale(); }

    // Equality is exact and case-sensitive, an absent text is not an empty one, and predicates
    // combine with AND.
    void equalityIsExactAndAbsentIsNotEmpty()
    {
        TestApp app;
        app.addVinyl(u"Blue"_s, u"Joni"_s, u"Reprise"_s);
        app.addVinyl(u"Blue"_s, u"joni"_s, u"Asylum"_s);
        app.addVinyl(u"Blue"_s, u"Joni "_s, u"Asylum"_s);
        app.addVinyl(u"Blue"_s, u"Joni"_s, u"Asylum"_s, 4);
        app.addVinyl(u"Court"_s, u"Joni"_s, u"Asylum"_s);
        RecordBuilder(u"Empty artist"_s).artist(u""_s).store(app.store());
        RecordBuilder(u"No artist"_s).store(app.store());
        Store &store = app.store();
        auto rows = store.fetchVinyl(FetchRequest()
                                         .where(Predicate::equal(u"name"_s, u"Blue"_s))
                                         .where(Predicate::equal(u"artist"_s, u"Joni"_s))
                                         .where(Predicate::equal(u"recordLabel"_s, u"Asylum"_s)));
        QCOMPARE(rows->size(), 1);
        QCOMPARE(number(rows->first().id), qint16(4));
        QCOMPARE(*store.count(FetchRequest().where(Predicate::equal(u"artist"_s, u"Joni"_s))), 3);

        auto withEmpty = store.fetchVinyl(FetchRequest().where(Predicate::equal(u"artist"_s, u""_s)));
        QVERIFY(withEmpty.ok());
        QCOMPARE(names(*withEmpty), QStringList{u"Empty artist"_s});
        auto withAbsent = store.fetchVinyl(FetchRequest().where(Predicate::equal(u"artist"_s, QVariant())));
        QCOMPARE(names(*withAbsent), QStringList{u"No artist"_s});
        const Vinyl empty = withEmpty->first(), absent = withAbsent->first();
        QVERIFY(empty.artist.has_value() && empty.artist->isEmpty());
        QVERIFY(!absent.artist.has_value());
        QCOMPARE(number(absent.quantity), qint16(0)); // absent numbers read 0
    }

    void stringsSortInCodePointOrderWithAbsentFirst_data()
    {
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("ascending") << true
                                   << QStringList{u"<absent>"_s, u""_s, u"ABBA"_s, u"Zappa"_s, u"abba"_s, u"\u00e9clair"_s};
        QTest::newRow("descending") << false
                                    << QStringList{u"\u00e9clair"_s, u"abba"_s, u"Zappa"_s, u"ABBA"_s, u""_s, u"<absent>"_s};
    }
    void stringsSortInCodePointOrderWithAbsentFirst()
    {
        QFETCH(bool, ascending);
        QFETCH(QStringList, expected);
        auto store = openMemory();
        for (const QString &name : {u"abba"_s, u"Zappa"_s, u"\u00e9clair"_s, u"ABBA"_s, u""_s, u"<absent>"_s}) {
            Vinyl v;
            if (name != u"<absent>"_s)
                v.name = name;
            v.imagesLoaded = true;
            QVERIFY(store->insert(v).ok());
        }
        auto rows = store->fetchVinyl(FetchRequest().sortedBy(u"name"_s, ascending));
        QVERIFY(rows.ok());
        QCOMPARE(names(*rows), expected);
    }

    // A search finds its text in any case of any script, in the searched attribute only, and
    // the count agrees with the rows.
    void searchFindsTextInEveryCase_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::addRow("ascii") << u"name"_s << u"ABBA"_s << QStringList{u"abba gold"_s};
        QTest::addRow("a ring either way") << u"name"_s << u"å"_s << QStringList{u"Fråga"_s, u"ÅSA"_s};
        QTest::addRow("capital of a lower-case name") << u"name"_s << u"ÉTÉ"_s << QStringList{u"été indien"_s};
        QTest::addRow("greek final sigma") << u"name"_s << u"ΟΔΟΣ"_s << QStringList{u"οδος"_s};
        QTest::addRow("other attribute") << u"artist"_s << u"Ö"_s << QStringList{u"Fråga"_s};
        QTest::addRow("text saved over") << u"artist"_s << u"x"_s << QStringList{};
        QTest::addRow("text saved") << u"artist"_s << u"bB"_s << QStringList{u"abba gold"_s};
        QTest::addRow("label") << u"recordLabel"_s << u"ECM"_s << QStringList{u"ÅSA"_s};
        QTest::addRow("empty text, present values") << u"artist"_s << u""_s << QStringList{u"Fråga"_s, u"abba gold"_s};
        QTest::addRow("nothing") << u"name"_s << u"zz"_s << QStringList{};
    }
    void searchFindsTextInEveryCase()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, text);
        QFETCH(QStringList, found);
        auto store = openMemory();
        QVERIFY(store);
        const QList<std::array<QString, 3>> records = {{u"abba gold"_s, u"x"_s, QString()},
                                                       {u"ÅSA"_s, QString(), u"ecm"_s},
                                                       {u"Fråga"_s, u"Östen"_s, QString()},
                                                       {u"été indien"_s, QString(), QString()},
                                                       {u"οδος"_s, QString(), QString()}};
        for (const auto &[name, artist, label] : records) {
            RecordBuilder record(name);
            if (!artist.isNull())
                record.artist(artist);
            if (!label.isNull())
                record.label(label);
            record.store(*store);
        }
        // Saved again, a record is found by its new text only.
        auto abba = store->fetchVinyl(FetchRequest().where(Predicate::equal(u"name"_s, u"abba gold"_s)));
        QVERIFY(abba && abba->size() == 1);
        (*abba)[0].artist = u"Abba"_s;
        QVERIFY(store->update(abba->at(0)));

        const FetchRequest request = FetchRequest().where(Predicate::contains(attribute, text)).sortedBy(u"name"_s);
        QCOMPARE(names(*store->fetchVinyl(request)), found);
        QCOMPARE(store->count(request).valueOr(-1), found.size());
    }

    // Every list order reads its first screenful, and its last, from an index in order: no
    // scan of the records and no sort, with or without a search.
    void listWindowsReadAnIndexWithoutSorting_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<bool>("ascending");
        QTest::addColumn<bool>("search");
        for (const QString &attribute : {u"name"_s, u"artist"_s, u"recordLabel"_s, u"releaseDate"_s, u"recordSpeed"_s,
                                         u"quantity"_s, u"value"_s, Store::kTotalValue}) {
            for (const bool ascending : {true, false}) {
                QTest::addRow("%s %s", qPrintable(attribute), ascending ? "ascending" : "descending")
                    << attribute << ascending << false;
                if (attribute != u"releaseDate"_s)
                    QTest::addRow("%s %s, searching", qPrintable(attribute), ascending ? "ascending" : "descending")
                        << attribute << ascending << true;
            }
        }
    }
    void listWindowsReadAnIndexWithoutSorting()
    {
        QFETCH(QString, attribute);
        QFETCH(bool, ascending);
        QFETCH(bool, search);
        TestApp app;
        SampleOptions options;
        options.records = 40;
        QVERIFY(addSampleCollection(app.store(), options).ok());
        FetchRequest request = FetchRequest().onlyCardAttributes().sortedBy(attribute, ascending).limitedTo(64);
        // Orders without a searched text search the name.
        if (search)
            request.where(Predicate::contains(Store::kSearchedAttributes.contains(attribute) ? attribute : u"name"_s, u"a"_s));
        for (const bool backwards : {false, true}) {
            const QStringList plan = app.store().queryPlan(FetchRequest(request).backwards(backwards).startingAt(10)).valueOr({});
            QVERIFY(!plan.isEmpty());
            const QString steps = plan.join(u" | "_s);
            QVERIFY2(!steps.contains(u"TEMP B-TREE"_s), qPrintable(steps));
            QVERIFY2(steps.contains(u"USING INDEX VinylBy"_s) || steps.contains(u"USING COVERING INDEX VinylBy"_s),
                     qPrintable(steps));
        }
    }

    // A card fetch reads what a card shows and cannot be saved; a list fetch leaves the covers
    // unread, and saving what it read keeps them.
    void partialFetchesKeepWhatTheyDidNotRead()
    {
        TestApp app;
        RecordBuilder record(u"Card"_s);
        record.artist(u"Artist"_s).label(u"Label"_s).id(3).notes(u"long notes"_s).cost(12.5f).value(30.0f, 2).type(u"Yes"_s);
        record.v.frontImage = sampleCoverJpeg(1, true);
        const Vinyl v = record.store(app.store());

        auto cards = app.store().fetchVinyl(FetchRequest().onlyCardAttributes());
        QVERIFY(cards.ok());
        QCOMPARE(cards->first().rowId, v.rowId);
        QCOMPARE(attributeTexts(cards->first()), attributeTexts(v, Store::kCardAttributes));
        Vinyl renamed = cards->first();
        renamed.name = u"Renamed"_s;
        QVERIFY(!app.store().update(renamed).ok());

        auto listed = app.store().fetchVinyl(FetchRequest());
        QCOMPARE(text(listed->first().notes), u"long notes"_s);
        QVERIFY(!listed->first().frontImage.has_value());
        Vinyl changed = listed->first();
        changed.notes = u"cleaned"_s;
        QVERIFY(app.store().update(changed).ok());
        auto full = app.store().vinylByRowId(v.rowId);
        QVERIFY(full.ok() && full->has_value());
        QCOMPARE((*full)->frontImage.value_or(QByteArray()), *v.frontImage);
        QCOMPARE(text((*full)->notes), u"cleaned"_s);
        QCOMPARE(*app.store().coverImage(v.rowId, CoverSide::Front), *v.frontImage);
        QVERIFY(app.store().coverImage(v.rowId, CoverSide::Back)->isEmpty());
    }

    // An older store is brought up to this version keeping its records; a newer one is refused.
    void olderStoreIsUpgradedAndNewerRefused()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            RecordBuilder(u"Kept"_s).store(**store);
            QCOMPARE(runSql((*store)->database(),
                            {u"DROP INDEX VinylByName"_s, u"CREATE INDEX VinylByName ON Vinyl(name)"_s,
                             u"DROP TRIGGER frontImageChanged"_s, u"ALTER TABLE Vinyl DROP COLUMN frontImageExchange"_s,
                             u"DROP TRIGGER backImageChanged"_s, u"ALTER TABLE Vinyl DROP COLUMN backImageExchange"_s,
                             u"PRAGMA user_version = 1"_s}),
                     QString());
        }
        auto reopened = Store::open(path);
        QVERIFY(reopened.ok());
        // The records kept are found by a search, which reads the texts folded by the upgrade.
        const auto found = (*reopened)->fetchVinyl(FetchRequest().where(Predicate::contains(u"name"_s, u"KEP"_s)));
        QCOMPARE(names(*found), QStringList{u"Kept"_s});
        QCOMPARE(sqlColumn((*reopened)->database(), u"PRAGMA user_version"_s), QStringList{QString::number(Store::kSchemaVersion)});
        QCOMPARE(runSql((*reopened)->database(), {u"PRAGMA user_version = 99"_s}), QString());
        QCOMPARE(names(*(*reopened)->fetchVinyl(FetchRequest())), QStringList{u"Kept"_s});
        reopened = Error{};
        QVERIFY(Store::open(path).errorMessage().contains(u"newer"_s));
    }

    // A store from before the value history starts one: each valued record's value, dated now.
    void upgradeStartsAValueHistoryOfValuedRecords()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        QList<qint64> rowIds;
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            for (const std::optional<float> value : {std::optional<float>(12.5f), std::optional<float>(0.0f), std::optional<float>()}) {
                RecordBuilder record(u"R"_s);
                record.v.value = value;
                rowIds << record.store(**store).rowId;
            }
            QCOMPARE(runSql((*store)->database(), {u"DROP TABLE Quotes"_s, u"DROP INDEX VinylByVinylCondition"_s,
                                                   u"DROP INDEX VinylByCoverCondition"_s, u"PRAGMA user_version = 3"_s}),
                     QString());
        }
        const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
        auto reopened = Store::open(path);
        QVERIFY(reopened.ok());
        const auto quotes = (*reopened)->quotes(rowIds[0]);
        QCOMPARE(quotes->size(), 1);
        QCOMPARE(quotes->first().value, 12.5);
        QCOMPARE(quotes->first().source, u"Start"_s);
        QVERIFY(quotes->first().quoted >= before && quotes->first().quoted <= QDateTime::currentDateTime());
        QCOMPARE((*reopened)->quotes(rowIds[1])->size(), 0);
        QCOMPARE((*reopened)->quotes(rowIds[2])->size(), 0);
    }

    // A store of the previous version gains the barcode and the release id, absent on every
    // record: the records keep their attributes, covers, value history and identities, and the
    // store ends up with the very tables, indexes and triggers of a store made new.
    void previousVersionGainsTheLookUpAttributes()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        const QByteArray cover(20000, 'c'); // over several overflow pages
        QList<Vinyl> before;
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            for (const QString &name : {u"First"_s, u"Gone"_s, u"Third"_s}) {
                RecordBuilder record(name);
                record.notes(u""_s);
                record.v.value = 12.5f;
                record.v.frontImage = cover;
                const Vinyl v = record.store(**store);
                Quote quote{0, v.rowId, QDateTime(QDate(2024, 3, 1), QTime(9, 0)), 12.5, QuoteSources::Edit};
                QVERIFY((*store)->insert(quote).ok());
                before << v;
            }
            QVERIFY((*store)->remove(Entity::Vinyl, before.takeAt(1).rowId).ok());
            QVERIFY((*store)->keepExchangeEncoding(before[0].rowId, CoverSide::Front, cover, "encoded").ok());
            QCOMPARE(runSql((*store)->database(), {u"DROP INDEX VinylByBarcode"_s, u"DROP INDEX VinylByMusicBrainzReleaseId"_s,
                                                   u"ALTER TABLE Vinyl DROP COLUMN barcode"_s,
                                                   u"ALTER TABLE Vinyl DROP COLUMN musicBrainzReleaseId"_s,
                                                   u"PRAGMA user_version = 4"_s}),
                     QString());
        }
        auto reopened = Store::open(path);
        QVERIFY2(reopened.ok(), qPrintable(reopened.errorMessage()));
        Store &store = **reopened;
        for (const Vinyl &v : std::as_const(before)) {
            const auto after = store.vinylByRowId(v.rowId);
            QVERIFY(after.ok() && after->has_value());
            QCOMPARE((*after)->name, v.name);
            QCOMPARE((*after)->notes, std::optional<QString>(u""_s));
            QCOMPARE((*after)->frontImage, std::optional<QByteArray>(cover));
            QVERIFY(!(*after)->barcode && !(*after)->musicBrainzReleaseId);
            QCOMPARE(store.quotes(v.rowId)->size(), 1);
        }
        QCOMPARE(store.exchangeEncodings(before[0].rowId)->at(0).kept, std::optional<QByteArray>("encoded"));
        auto fresh = openMemory();
        QVERIFY(fresh);
        const auto schema = [](const Store &s) {
            return sqlColumn(s.database(), u"SELECT type || ' ' || name || ': ' || ifnull(sql, '') FROM sqlite_master ORDER BY name"_s);
        };
        QCOMPARE(schema(store), schema(*fresh));
        QVERIFY(schema(store).join(u'\n').contains(u"VinylByMusicBrainzReleaseId"_s));
    }

    // What the look-up asks before adding a release: which records hold its release id or its
    // barcode. Empty texts look for nothing, not for the records whose texts are empty.
    void recordsOfAReleaseByIdOrBarcode_data()
    {
        QTest::addColumn<QString>("releaseId");
        QTest::addColumn<QString>("barcode");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("release id") << u"id-a"_s << QString() << QStringList{u"A"_s};
        QTest::newRow("barcode") << QString() << u"0724384260910"_s << QStringList{u"A"_s, u"B"_s};
        QTest::newRow("either, in the order added") << u"id-c"_s << u"0724384260910"_s
                                                    << QStringList{u"A"_s, u"B"_s, u"C"_s};
        QTest::newRow("a barcode is matched whole") << QString() << u"724384260910"_s << QStringList();
        QTest::newRow("nothing asked") << QString() << QString() << QStringList();
    }

    void recordsOfAReleaseByIdOrBarcode()
    {
        QFETCH(QString, releaseId);
        QFETCH(QString, barcode);
        QFETCH(QStringList, found);
        auto store = openMemory();
        QVERIFY(store);
        const QList<std::tuple<QString, std::optional<QString>, std::optional<QString>>> records = {
            {u"A"_s, u"id-a"_s, u"0724384260910"_s},
            {u"B"_s, std::nullopt, u"0724384260910"_s},
            {u"C"_s, u"id-c"_s, u"5012345678900"_s},
            {u"D"_s, u""_s, u""_s},
        };
        for (const auto &[name, id, code] : records) {
            RecordBuilder record(name);
            record.v.musicBrainzReleaseId = id;
            record.v.barcode = code;
            record.store(*store);
        }
        const auto matches = store->vinylOfRelease(releaseId, barcode);
        QVERIFY2(matches.ok(), qPrintable(matches.errorMessage()));
        QCOMPARE(names(*matches), found);
        for (const Vinyl &v : *matches)
            QVERIFY(!v.imagesLoaded && v.barcode);
    }

    // A collection in a folder or a file that cannot be written (a copy on a read-only disk, a
    // store of another user) is read as ever; every change is refused with the one message and
    // nothing is written. A mode that grants no one a write holds for the superuser too.
    void readOnlyCollectionReadsAndRefusesEveryChange_data()
    {
        QTest::addColumn<bool>("folder");
        QTest::newRow("folder cannot be written") << true;
        QTest::newRow("store file cannot be written") << false;
    }
    void readOnlyCollectionReadsAndRefusesEveryChange()
    {
        QFETCH(bool, folder);
        QTemporaryDir dir;
        const QString path = dir.filePath(Store::kFileName);
        Vinyl kept;
        {
            auto created = Store::open(path);
            QVERIFY(created.ok());
            kept = RecordBuilder(u"Kept"_s).store(**created);
        }
        const QString locked = folder ? dir.path() : path;
        const ScopedReadOnly readOnly(locked);
        QVERIFY(readOnly.ok());
        const QByteArray bytes = fileBytes(path);
        const QStringList files = QDir(dir.path()).entryList(QDir::Files);

        auto store = Store::open(path);
        QVERIFY2(store.ok(), qPrintable(store.errorMessage()));
        Store &s = **store;
        QCOMPARE(names(*s.fetchVinyl(FetchRequest().where(Predicate::equal(u"name"_s, u"Kept"_s)))), QStringList{u"Kept"_s});
        const QString refusal = Store::kReadOnlyMessage.arg((folder ? Store::kReadOnlyFolder : Store::kReadOnlyFile).arg(locked));
        Vinyl added = kept;
        for (const Result<void> &change : {s.insert(added), s.update(kept), s.remove(Entity::Vinyl, kept.rowId),
                                           s.transaction([] { return Result<void>(); })})
            QCOMPARE(change.errorMessage(), refusal);
        store = Error{};
        QCOMPARE(fileBytes(path), bytes);
        if (folder) // SQLite's index of the journal may be made beside a store in a folder it can write
            QCOMPARE(QDir(dir.path()).entryList(QDir::Files), files);
    }

    // While another program writes, a change waits for it and then happens; when the wait runs
    // out it says the collection is busy and writes nothing.
    void changesWaitForAnotherProgramsChange_data()
    {
        QTest::addColumn<bool>("import");
        QTest::addColumn<bool>("released");
        QTest::newRow("add waits") << false << true;
        QTest::newRow("import waits") << true << true;
        QTest::newRow("add finds it busy") << false << false;
        QTest::newRow("import finds it busy") << true << false;
    }
    void changesWaitForAnotherProgramsChange()
    {
        QFETCH(bool, import);
        QFETCH(bool, released);
        QTemporaryDir dir;
        const QString path = dir.filePath(Store::kFileName);
        Store::setBusyTimeout(released ? Store::kBusyTimeoutMs : 200);
        auto store = Store::open(path);
        Store::setBusyTimeout(Store::kBusyTimeoutMs);
        QVERIFY(store.ok());
        {
            // Another program's change: from its own connection on its own thread (the store waits
            // on this one) it writes "Other" and commits once released or after holdFor.
            std::promise<bool> taken;
            std::promise<void> release;
            std::thread other([&, path = path.toStdString(), holdFor = released ? 1s : 1h] {
                sqlite3 *db = nullptr;
                taken.set_value(sqlite3_open(path.c_str(), &db) == SQLITE_OK
                                && sqlite3_exec(db, "BEGIN IMMEDIATE; INSERT INTO Vinyl(name) VALUES('Other')", nullptr, nullptr, nullptr) == SQLITE_OK);
                release.get_future().wait_for(holdFor);
                sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
                sqlite3_close(db);
            });
            const auto done = qScopeGuard([&] { release.set_value(); other.join(); });
            QVERIFY(taken.get_future().get());
            Vinyl mine = RecordBuilder(u"Mine"_s).v;
            Result<void> changed;
            if (!import)
                changed = (*store)->insert(mine);
            else if (auto applied = ImportMerge::apply(**store, ImportFiles::read("name,artist\nMine,Me\n")); !applied)
                changed = applied.error();
            if (released)
                QVERIFY2(changed.ok(), qPrintable(changed.errorMessage()));
            else
                QVERIFY2(changed.errorMessage().startsWith(Store::kBusyMessage), qPrintable(changed.errorMessage()));
        }
        const QStringList expected = released ? QStringList{u"Mine"_s, u"Other"_s} : QStringList{u"Other"_s};
        QCOMPARE(names(*(*store)->fetchVinyl(FetchRequest().sortedBy(u"name"_s))), expected);
    }

    void failedActionRollsBackWhole()
    {
        TestApp app;
        auto result = app.store().transaction([&]() -> Result<void> {
            app.addVinyl(u"Half done"_s);
            return Error{u"stopped"_s};
        });
        QVERIFY(!result.ok());
        QCOMPARE(*app.store().count(FetchRequest()), 0);
    }

    void unknownAttributeIsAnErrorNotACrash()
    {
        TestApp app;
        auto rows = app.store().fetchVinyl(FetchRequest().where(Predicate::equal(u"name; DROP TABLE Vinyl"_s, 1)));
        QVERIFY(!rows.ok());
        QVERIFY(app.store().count(FetchRequest()).ok());
    }

    // A new record takes the number after the highest; none is left after 32767.
    void newRecordNumber_data()
    {
        QTest::addColumn<QList<int>>("existing");
        QTest::addColumn<int>("expected"); // 0: none left
        QTest::newRow("empty store") << QList<int>{} << 1;
        QTest::newRow("1, 2 and 7") << QList<int>{1, 2, 7} << 8;
        QTest::newRow("highest deleted is reused") << QList<int>{1, 2} << 3;
        QTest::newRow("negative only") << QList<int>{-5} << -4;
        QTest::newRow("none after 32767") << QList<int>{32767} << 0;
    }
    void newRecordNumber()
    {
        QFETCH(QList<int>, existing);
        QFETCH(int, expected);
        TestApp app;
        for (int id : existing)
            app.addVinyl(u"R%1"_s.arg(id), {}, {}, qint16(id));
        if (QTest::currentDataTag() == QByteArray("highest deleted is reused"))
            QVERIFY(app.store().remove(Entity::Vinyl, app.addVinyl(u"R7"_s, {}, {}, 7).rowId).ok());
        auto id = newRecordId(app.store());
        QCOMPARE(id.ok() ? int(*id) : 0, expected);
        QCOMPARE(id.errorMessage(), expected ? QString() : kNoRecordNumberLeft);
    }

    void sampleCollectionIsDeterministicAndNumbered()
    {
        TestApp a, b;
        SampleOptions options;
        options.records = 30;
        options.tracksPerRecord = 3;
        QVERIFY(addSampleCollection(a.store(), options).ok());
        QVERIFY(addSampleCollection(b.store(), options).ok());
        auto rowsA = a.store().fetchVinyl(FetchRequest().sortedBy(u"id"_s));
        auto rowsB = b.store().fetchVinyl(FetchRequest().sortedBy(u"id"_s));
        QCOMPARE(names(*rowsA), names(*rowsB));
        QCOMPARE(number(rowsA->first().id), qint16(1));
        QCOMPARE(number(rowsA->last().id), qint16(30));
        QCOMPARE(*a.store().count(FetchRequest(Entity::Tracks)), 90);
        QVERIFY(!QImage::fromData(*a.store().coverImage(rowsA->first().rowId, CoverSide::Front)).isNull());
    }

    // The formats of amounts, numbers and dates.
    void currencyAndTwoDecimals_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("currency");
        QTest::addColumn<QString>("twoDecimals");
        QTest::newRow("12.5") << 12.5 << u"$12.50"_s << u"12.50"_s;
        QTest::newRow("grouping") << 1234.5 << u"$1,234.50"_s << u"1,234.50"_s;
        QTest::newRow("zero") << 0.0 << u"$0.00"_s << u"0.00"_s;
        QTest::newRow("beyond 16 bits") << 40000.0 << u"$40,000.00"_s << u"40,000.00"_s;
    }
    void currencyAndTwoDecimals()
    {
        QFETCH(double, amount);
        QFETCH(QString, currency);
        QFETCH(QString, twoDecimals);
        QCOMPARE(Formatters::currency(amount), currency);
        QCOMPARE(Formatters::twoDecimals(amount), twoDecimals);
    }

    void dates()
    {
        const QDateTime date(QDate(1975, 3, 5), QTime(0, 0));
        QCOMPARE(Formatters::mediumDate(date), u"Mar 5, 1975"_s);
        QCOMPARE(Formatters::longDate(date), u"March 5, 1975"_s);
        QCOMPARE(Formatters::year(date), u"1975"_s);
        QCOMPARE(Formatters::monthYear(date), u"March-1975"_s);
        // Late in the evening local time is still that day, whatever UTC says.
        QCOMPARE(Formatters::mediumDate(QDateTime(QDate(1975, 12, 31), QTime(23, 30))), u"Dec 31, 1975"_s);
    }

    void mediumDateReadsBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("expected");
        QTest::newRow("medium") << u"Jan 5, 2021"_s << QDate(2021, 1, 5);
        QTest::newRow("not a date") << u"yesterday"_s << QDate();
        QTest::newRow("trailing text") << u"Jan 5, 2021 extra"_s << QDate();
        QTest::newRow("empty") << u""_s << QDate();
    }
    void mediumDateReadsBack()
    {
        QFETCH(QString, text);
        QFETCH(QDate, expected);
        const auto parsed = Formatters::parseMediumDate(text);
        QCOMPARE(parsed.has_value(), expected.isValid());
        if (parsed) {
            QCOMPARE(parsed->date(), expected);
            QCOMPARE(parsed->time(), QTime(0, 0));
        }
    }

    // Numbers are read as the locale writes them; grouping in the wrong place does not read.
    void numbersReadInTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<double>>("number");
        QTest::addColumn<std::optional<double>>("amount");
        const std::optional<double> none;
        QTest::newRow("en plain") << u"en_US"_s << u"12.5"_s << std::optional(12.5) << std::optional(12.5);
        QTest::newRow("en grouped") << u"en_US"_s << u"1,234.5"_s << std::optional(1234.5) << std::optional(1234.5);
        QTest::newRow("en pasted dollars") << u"en_US"_s << u"$12.50"_s << none << std::optional(12.5);
        QTest::newRow("en two points") << u"en_US"_s << u"1.2.3"_s << none << none;
        QTest::newRow("en comma as a point") << u"en_US"_s << u"12,50"_s << none << none;
        QTest::newRow("en letters") << u"en_US"_s << u"12abc"_s << none << none;
        QTest::newRow("en exponent") << u"en_US"_s << u"1e-05"_s << std::optional(0.00001) << std::optional(0.00001);
        QTest::newRow("de grouped") << u"de_DE"_s << u"1.234,50"_s << std::optional(1234.5) << std::optional(1234.5);
        QTest::newRow("de plain") << u"de_DE"_s << u"12,5"_s << std::optional(12.5) << std::optional(12.5);
        QTest::newRow("de euros") << u"de_DE"_s << u"12,50\u00A0\u20AC"_s << none << std::optional(12.5);
        QTest::newRow("de point is no decimal point") << u"de_DE"_s << u"12.5"_s << none << none;
        QTest::newRow("fr narrow no-break space") << u"fr_FR"_s << u"12\u202F345,50"_s << std::optional(12345.5)
                                                  << std::optional(12345.5);
        QTest::newRow("fr no-break space") << u"fr_FR"_s << u"12\u00A0345,5"_s << std::optional(12345.5)
                                           << std::optional(12345.5);
        QTest::newRow("fr typed space") << u"fr_FR"_s << u"12 345,50"_s << std::optional(12345.5)
                                        << std::optional(12345.5);
        QTest::newRow("fr short group") << u"fr_FR"_s << u"12 34,5"_s << none << none;
    }
    void numbersReadInTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(std::optional<double>, number);
        QFETCH(std::optional<double>, amount);
        ScopedLocale scoped(locale);
        QCOMPARE(Formatters::parseDecimal(text), number);
        QCOMPARE(Formatters::parseAmount(text), amount);
    }

    // What the formatters write reads back to the same number.
    void writtenNumbersReadBack_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("length");
        QTest::newRow("en_US") << u"en_US"_s << u"45.5"_s;
        QTest::newRow("de_DE") << u"de_DE"_s << u"45,5"_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s << u"45,5"_s;
        QTest::newRow("hi_IN") << u"hi_IN"_s << u"45.5"_s;
        QTest::newRow("ar_EG") << u"ar_EG"_s << u"45\u066B5"_s;
    }
    void writtenNumbersReadBack()
    {
        QFETCH(QString, locale);
        QFETCH(QString, length);
        ScopedLocale scoped(locale);
        QCOMPARE(Formatters::shortestInLocale(45.5), length);
        QCOMPARE(Formatters::parseDecimal(length), std::optional(45.5));
        for (const double amount : {-1234567.5, 0.1, 12345.5}) {
            QCOMPARE(Formatters::parseDecimal(Formatters::twoDecimals(amount)), std::optional(amount));
            QCOMPARE(Formatters::parseAmount(Formatters::currency(amount)), std::optional(amount));
        }
    }

    // The shortest text that reads back to the number; a float is not widened to a double first.
    void shortestText_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isFloat");
        QTest::addColumn<QString>("expected");
        QTest::newRow("whole") << 45.0 << false << u"45.0"_s;
        QTest::newRow("half") << 45.5 << false << u"45.5"_s;
        QTest::newRow("zero") << 0.0 << false << u"0.0"_s;
        QTest::newRow("small") << 0.00001 << false << u"1e-05"_s;
        QTest::newRow("ten thousandth") << 0.0001 << false << u"0.0001"_s;
        QTest::newRow("duration") << 3.45 << false << u"3.45"_s;
        QTest::newRow("huge") << 1e16 << false << u"1e+16"_s;
        QTest::newRow("negative") << -5.0 << false << u"-5.0"_s;
        QTest::newRow("float 12.5") << 12.5 << true << u"12.5"_s;
        QTest::newRow("float not widened") << 19.99 << true << u"19.99"_s;
        QTest::newRow("float zero") << 0.0 << true << u"0.0"_s;
        QTest::newRow("float 2^24") << 16777216.0 << true << u"1.6777216e+07"_s;
    }
    void shortestText()
    {
        QFETCH(double, value);
        QFETCH(bool, isFloat);
        QFETCH(QString, expected);
        QCOMPARE(isFloat ? Formatters::shortest(float(value)) : Formatters::shortest(value), expected);
    }

    void posixLocaleFallsBackToEnglish()
    {
        QLocale::setDefault(QLocale::c());
        QCOMPARE(Formatters::icuLocaleName(), u"en_US"_s);
        QCOMPARE(Formatters::currency(12.5), u"$12.50"_s);
        useTestLocale();
    }

    // Each record's value history: which saves add a quote, and how the edit and valuation
    // screens show it.
    // A save that changes a record's value adds one quote, naming where the value came from;
    // a save that leaves the value alone adds none.
    void savesThatChangeTheValueAddAQuote_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("change");
        QTest::addColumn<QStringList>("quotes");
        QTest::newRow("edit screen, new value") << u"edit"_s << true << QStringList{u"12.5 Edit"_s};
        QTest::newRow("edit screen, another field") << u"edit"_s << false << QStringList{};
        QTest::newRow("add screen with a value") << u"add"_s << true << QStringList{u"40 Edit"_s};
        QTest::newRow("add screen without a value") << u"add"_s << false << QStringList{};
        QTest::newRow("valuation, new value") << u"valuation"_s << true << QStringList{u"20 Valuation"_s};
        QTest::newRow("valuation, the same value") << u"valuation"_s << false << QStringList{};
        QTest::newRow("import, new value") << u"import"_s << true << QStringList{u"55 Import"_s};
        QTest::newRow("import, the same value") << u"import"_s << false << QStringList{};
        QTest::newRow("import, a new valued record") << u"import new"_s << true << QStringList{u"7 Import"_s};
    }
    void savesThatChangeTheValueAddAQuote()
    {
        QFETCH(QString, path);
        QFETCH(bool, change);
        QFETCH(QStringList, quotes);
        TestApp t;
        const Vinyl stored = addValued(t);
        QString alert;
        if (path == u"edit"_s) {
            t.app().state()->setCurrentRecord(stored);
            EditVinylViewController edit(&t.app());
            change ? edit.setValue(u"12.50"_s) : edit.setProducer(u"Rudy Van Gelder"_s);
            edit.SaveVinylButtonClicked();
            alert = edit.lastAlertTitle();
        } else if (path == u"add"_s) {
            AddVinylViewController add(&t.app());
            add.setAlbumName(u"Night Signals"_s);
            add.setArtist(u"The Harbour Lights"_s);
            add.setRecordLabel(u"Meridian"_s);
            if (change)
                add.setValue(u"40"_s);
            add.SaveNewVinylButtonClicked();
            alert = add.lastAlertTitle();
        } else if (path == u"valuation"_s) {
            // The screen shows the picked record's last quote.
            ValuationViewController valuation(&t.app());
            QCOMPARE(valuation.lastQuoteText(), QString());
            valuation.rowSelected(0);
            QCOMPARE(valuation.lastQuoteText(), u"Not valued yet"_s);
            valuation.setNewValueText(change ? u"20"_s : u"10"_s);
            valuation.SaveNewCardButtonClicked();
            alert = valuation.lastAlertTitle();
            QCOMPARE(valuation.lastQuoteText(), change ? u"Last valued "_s + Formatters::mediumDate(QDateTime::currentDateTime())
                                                       : u"Not valued yet"_s);
        } else if (path == u"import"_s) {
            importCsv(t, change ? u"name,artist,value\nBlue Train,John Coltrane,55\n"_s
                                : u"name,artist,value,producer\nBlue Train,John Coltrane,10,Rudy\n"_s);
        } else {
            importCsv(t, u"name,artist,value\nNight Signals,The Harbour Lights,7\n"_s);
        }
        QCOMPARE(alert, QString());
        QCOMPARE(allQuotes(t.store()), quotes);
    }

    void deletingARecordDeletesItsQuotesAndLoans()
    {
        TestApp t;
        const Vinyl kept = addValued(t);
        const Vinyl gone = t.addVinyl(u"Gone"_s);
        for (const Vinyl &v : {kept, gone}) {
            Quote quote{0, v.rowId, QDateTime::currentDateTime(), 10, QuoteSources::Edit};
            QVERIFY(t.store().insert(quote).ok());
            QVERIFY(Loans::lend(t.store(), v.rowId, u"Sam"_s, QDate(2026, 3, 3)).ok());
        }
        QVERIFY(t.store().transaction([&] { return t.store().remove(Entity::Vinyl, gone.rowId); }).ok());
        QCOMPARE(t.store().quotes(gone.rowId)->size(), 0);
        QCOMPARE(t.store().loans(gone.rowId)->size(), 0);
        QCOMPARE(t.store().quotes(kept.rowId)->size(), 1);
        QCOMPARE(t.store().loansOut()->size(), 1);
    }

    // A record is out to one borrower at a time; what is refused leaves the loans as they were.
    void aRecordIsLentOnceAtATime()
    {
        TestApp t;
        const Vinyl salt = t.addVinyl(u"Salt Roads"_s, u"Ada Moss"_s);
        const Vinyl tides = t.addVinyl(u"Northern Tides"_s, u"Ada Moss"_s);
        Store &store = t.store();
        const QDate march3(2026, 3, 3);
        QCOMPARE(Loans::lend(store, salt.rowId, u"  "_s, march3).errorMessage(), Loans::kNoBorrower);
        QCOMPARE(Loans::lend(store, salt.rowId, u"Sam"_s, march3, march3.addDays(-1)).errorMessage(), Loans::kDueBeforeLent);
        QCOMPARE(Loans::lend(store, salt.rowId + 99, u"Sam"_s, march3).errorMessage(), Loans::kNoRecord);
        QCOMPARE(Loans::giveBack(store, salt.rowId, march3).errorMessage(), Store::kNotLent);
        QCOMPARE(store.loans(salt.rowId)->size(), 0);

        QVERIFY(Loans::lend(store, salt.rowId, u" Sam  Okafor "_s, march3, QDate(2026, 4, 1), u"sleeve"_s).ok());
        QCOMPARE(Loans::lend(store, salt.rowId, u"Lena"_s, march3.addDays(1)).errorMessage(),
                 Store::kAlreadyLent.arg(u"Sam Okafor"_s));
        QCOMPARE(Loans::giveBack(store, salt.rowId, march3.addDays(-1)).errorMessage(), Loans::kBackBeforeLent);
        QCOMPARE(store.loans(salt.rowId)->size(), 1);
        // The store holds to it even when asked directly.
        Loan second{0, salt.rowId, u"Lena"_s, march3, {}, {}, {}};
        QVERIFY(!store.insert(second).ok());

        QVERIFY(Loans::giveBack(store, salt.rowId, QDate(2026, 3, 20)).ok());
        QVERIFY(Loans::lend(store, salt.rowId, u"Lena"_s, QDate(2026, 5, 2)).ok());
        QVERIFY(Loans::lend(store, tides.rowId, u"Sam Okafor"_s, QDate(2026, 1, 9)).ok());

        const auto history = store.loans(salt.rowId);
        QCOMPARE(history->size(), 2);
        QCOMPARE(history->at(0).borrower, u"Lena"_s);
        QVERIFY(history->at(0).isOut());
        QCOMPARE(Loans::historyLine(history->at(1)), u"Sam Okafor, Mar 3, 2026 \u2013 Mar 20, 2026"_s);
        QCOMPARE(history->at(1).note, u"sleeve"_s);
        // What is out, the longest out first; the names offered again, the latest first.
        const auto out = store.loansOut();
        QCOMPARE(out->size(), 2);
        QCOMPARE(out->at(0).name + u" / "_s + out->at(0).loan.borrower, u"Northern Tides / Sam Okafor"_s);
        QCOMPARE(out->at(1).name + u" / "_s + out->at(1).loan.borrower, u"Salt Roads / Lena"_s);
        QCOMPARE(*store.borrowers(), (QStringList{u"Lena"_s, u"Sam Okafor"_s}));
    }

    // The days lent and due read in the collector's language, and overdue by the collector's
    // own day, whatever the time zone: days are kept as days.
    void loanStatusInTheLocaleAndOverdueByTheDay_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QDate>("due");
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("status");
        const QDate april1(2026, 4, 1);
        QTest::newRow("due today") << u"en_US"_s << QByteArray("America/New_York") << april1 << april1
                                   << u"Lent to Sam since Mar 3, 2026, due Apr 1"_s;
        QTest::newRow("a day late") << u"en_US"_s << QByteArray("Pacific/Kiritimati") << april1 << april1.addDays(1)
                                    << u"Lent to Sam since Mar 3, 2026, due Apr 1 (overdue)"_s;
        QTest::newRow("no due day") << u"en_US"_s << QByteArray("America/Adak") << QDate() << april1.addYears(1)
                                    << u"Lent to Sam since Mar 3, 2026"_s;
        QTest::newRow("next year") << u"en_US"_s << QByteArray("America/New_York") << QDate(2027, 1, 15) << april1
                                   << u"Lent to Sam since Mar 3, 2026, due Jan 15, 2027"_s;
        QTest::newRow("de_DE") << u"de_DE"_s << QByteArray("Europe/Berlin") << april1 << april1
                               << u"Lent to Sam since 03.03.2026, due 1. Apr."_s;
        QTest::newRow("fr_FR") << u"fr_FR"_s << QByteArray("Europe/Paris") << april1 << april1
                               << u"Lent to Sam since 3 mars 2026, due 1 avr."_s;
    }

    void loanStatusInTheLocaleAndOverdueByTheDay()
    {
        QFETCH(QString, locale);
        QFETCH(QByteArray, zone);
        QFETCH(QDate, due);
        QFETCH(QDate, today);
        QFETCH(QString, status);
        const ScopedTimeZone zoned(zone);
        const ScopedLocale scoped(locale);
        const Loan loan{1, 1, u"Sam"_s, QDate(2026, 3, 3), due, {}, {}};
        QCOMPARE(Loans::status(loan, today), status);
        QCOMPARE(Loans::isOverdue(loan, today), status.endsWith(u"(overdue)"_s));
    }

    // A store of the previous version gains the loans and the wantlist.
    void previousVersionGainsLoansAndWantlist()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Platterbox.sqlite"_s);
        qint64 rowId = 0;
        {
            auto store = Store::open(path);
            QVERIFY(store.ok());
            rowId = RecordBuilder(u"Kept"_s).store(**store).rowId;
            QCOMPARE(runSql((*store)->database(), {u"DROP TABLE Loans"_s, u"DROP TABLE Wanted"_s,
                                                   u"DROP TABLE WantedTracks"_s, u"PRAGMA user_version = 9"_s}),
                     QString());
        }
        auto reopened = Store::open(path);
        QVERIFY2(reopened.ok(), qPrintable(reopened.errorMessage()));
        QVERIFY(Loans::lend(**reopened, rowId, u"Sam"_s, QDate(2026, 3, 3)).ok());
        QCOMPARE((*reopened)->loansOut()->first().name, u"Kept"_s);
        WantedAlbum wanted;
        wanted.album.name = u"Sought"_s;
        QVERIFY(WantedAlbums::insert(**reopened, wanted, {Track{}}).ok());
        QCOMPARE(WantedAlbums::tracks(**reopened, wanted.rowId)->size(), 1);
    }

    // Newest first with date, amount and source; the chart gets them oldest first.
    void editScreenListsTheQuotes()
    {
        TestApp t;
        const Vinyl v = addValued(t);
        for (const auto &[day, value, source] : {std::tuple{QDate(2023, 5, 2), 8.0, QuoteSources::Start},
                                                 std::tuple{QDate(2024, 3, 1), 10.0, QuoteSources::Valuation}}) {
            Quote quote{0, v.rowId, QDateTime(day, QTime(9, 0)), value, source};
            QVERIFY(t.store().insert(quote).ok());
        }
        t.app().state()->setCurrentRecord(v);
        EditVinylViewController edit(&t.app());
        QStringList rows;
        for (const QVariant &row : edit.valueHistory()) {
            const QVariantMap map = row.toMap();
            rows << map.value(u"dateText"_s).toString() + u" | "_s + map.value(u"valueText"_s).toString() + u" | "_s
                        + map.value(u"source"_s).toString();
        }
        QCOMPARE(rows, (QStringList{u"Mar 1, 2024 | $10.00 | Valuation"_s, u"May 2, 2023 | $8.00 | Start"_s}));
        const QVariantList points = edit.valueHistoryPoints();
        QCOMPARE(points.size(), 2);
        QCOMPARE(points.first().toMap().value(u"y"_s).toDouble(), 8.0);
    }
};

QTEST_MAIN(StoreTest)
#include "tst_store.moc"
